// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactservice.h"

#include "contactutils.h"
#include "defaultlog.h"
#include "iintentfactory.h"
#include "ireplyableintent.h"
#include "semantic/semanticparser.h"
#include "wire/resultcodes.h"

#include <QJsonDocument>

#include <exception>

namespace {

constexpr IRet Handled = 0;
constexpr IRet NoFactory = -20;
constexpr IRet IntentFailed = -21;
constexpr IRet SemanticUnreadable = -100;

/// Answered by the service itself, without a handler.
bool isOwnAnswer(int code)
{
    return code == ResultCode::UnsupportedIntent || code == ResultCode::UnsupportedPhrasing;
}

} // namespace

ContactService::ContactService(const QString &name, IIntentFactory *factory, ServicePriority priority)
    : m_name(name)
    , m_factory(factory)
    , m_priority(priority)
{
}

ContactService::~ContactService()
{
    delete m_handler;
}

QString ContactService::serviceName()
{
    return m_name;
}

ServicePriority ContactService::servicePriority()
{
    return m_priority;
}

bool ContactService::canHandle(const QString &name)
{
    return name == m_name;
}

IRet ContactService::service(const QString &semantic)
{
    if (m_factory == nullptr) {
        qCCritical(defaultLog) << "This service cannot do anything.";
        return NoFactory;
    }

    // Parse only once: parsing dominates the cost of a turn.
    const QJsonDocument understanding = QJsonDocument::fromJson(semantic.toUtf8());
    SemanticParser parser;
    if (!parser.parseSemanticDocument(understanding)) {
        qCDebug(defaultLog) << "Parse the semantic json error:" << semantic;
        return SemanticUnreadable;
    }

    if (!ContactUtils::analyzeIsShouldEndSession(understanding)) {
        qCDebug(defaultLog) << "Parse the semantic json analyzeIsShouldEndSession is false" << semantic;
        m_openSessionSemantic = semantic;
        return Handled;
    }

    // A semantic without intents yields a nameless one, which no handler accepts.
    const int result = handleIntentSafely(parser.semantic().intents.value(0));
    m_reply.code = result;
    if (result != ResultCode::Success) {
        qCCritical(defaultLog) << "Handle specify intent failed: " << result;
        return IntentFailed;
    }
    return Handled;
}

int ContactService::handleIntent(const CloudIntent &intent)
{
    m_intent = intent;
    // Deliberately leaks the previous handler: this is the worker thread, and the GUI thread may still be
    // inside the previous turn's reply. Hosts create a service per dialogue, so few handlers pile up.
    m_handler = m_factory->createIntent(intent.name);
    if (m_handler == nullptr) {
        qCCritical(defaultLog) << "Unsupport this intent: " << intent.name;
        const QString text = QStringLiteral("对不起，暂不支持该功能。");
        setTextReply(ResultCode::UnsupportedIntent, text, text);
        return ResultCode::UnsupportedIntent;
    }

    const int result = m_handler->action(intent);
    if (result == ResultCode::UnsupportedPhrasing) {
        const QString text = QStringLiteral("对不起，暂不支持该说法。");
        setTextReply(ResultCode::UnsupportedPhrasing, text, text);
    }
    return result;
}

/// The host cannot handle exceptions: one counts as a failed call.
int ContactService::handleIntentSafely(const CloudIntent &intent)
{
    try {
        return handleIntent(intent);
    } catch (const std::exception &error) {
        qCCritical(defaultLog) << "The intent's handler threw:" << error.what();
    } catch (...) {
        qCCritical(defaultLog) << "The intent's handler threw";
    }
    return ResultCode::CallFailedLast;
}

Reply *ContactService::getServiceReply()
{
    if (isOwnAnswer(m_reply.code.toInt())) {
        m_reply.type = Reply::Texts;
        m_reply.widget = nullptr;
    } else if (dialogueIsOpen()) {
        QString displayText;
        QString speechText;
        ContactUtils::getVoiceAnswerContext(m_openSessionSemantic, displayText, speechText);
        setTextReply(ResultCode::Success, displayText, speechText);
    } else {
        takeHandlersReply();
    }
    return &m_reply;
}

bool ContactService::dialogueIsOpen() const
{
    return !m_openSessionSemantic.isEmpty() &&
           !ContactUtils::analyzeIsShouldEndSession(m_openSessionSemantic);
}

/// Keeps the reply if no handler has run yet, or only one that does not reply.
void ContactService::takeHandlersReply()
{
    auto *handler = dynamic_cast<IReplyableIntent *>(m_handler);
    if (handler == nullptr) {
        return;
    }
    try {
        handler->handleReply(m_reply.code.toInt(), m_intent);
    } catch (const std::exception &error) {
        qCCritical(defaultLog) << "The intent's handler threw:" << error.what();
    } catch (...) {
        qCCritical(defaultLog) << "The intent's handler threw";
    }
    m_reply = *handler->getReply();
    if (m_reply.widget == nullptr) {
        m_reply.type = Reply::Texts;
    }
}

/// A text reply never carries the card of an earlier turn.
void ContactService::setTextReply(int code, const QString &displayText, const QString &speechText)
{
    m_reply.code = code;
    m_reply.displayText = displayText;
    m_reply.speechText = speechText;
    m_reply.type = Reply::Texts;
    m_reply.widget = nullptr;
}
