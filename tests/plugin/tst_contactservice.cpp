// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactservice.h"

#include "dynamicregisterintentfactory.h"
#include "ireplyableintent.h"
#include "logcapture.h"
#include "semantictext.h"
#include "sourcerecords.h"
#include "untouchedreply.h"

#include <QPointer>
#include <QTest>

#include <stdexcept>

namespace {

const char SourceName[] = "plugin/contactservice.cpp";

QString serviceSignature()
{
    return QStringLiteral("virtual IRet ContactService::service(const QString&)");
}

QString handleIntentSignature()
{
    return QStringLiteral("virtual int ContactService::handleIntent(const CloudIntent&)");
}

/// A handler whose doings a test prescribes and observes.
class ScriptedHandler : public QObject, public IReplyableIntent
{
public:
    int action(const CloudIntent &intent) override
    {
        ++actions;
        actedOn = intent.name;
        if (throws) {
            throw std::runtime_error("out of order");
        }
        return result;
    }

    int handleReply(int code, const CloudIntent &intent) override
    {
        ++replies;
        repliedCode = code;
        repliedTo = intent.name;
        if (throwsInReply) {
            throw std::runtime_error("out of paper");
        }
        m_reply = nextReply;
        return code;
    }

    int result = 0;
    bool throws = false;
    bool throwsInReply = false;
    Reply nextReply{0, QStringLiteral("好的。"), 3};
    int actions = 0;
    int replies = 0;
    int repliedCode = 0;
    QString actedOn;
    QString repliedTo;
};

/// Acts but never answers.
class MuteHandler : public IBusinessIntent
{
public:
    int action(const CloudIntent & /*intent*/) override { return 0; }
};

} // namespace

class TestContactService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void knowsItsNameAndPriority();
    void startsWithoutAnAnswer();
    void withoutAFactoryItCannotDoAnything();
    void unreadableTextLeavesTheReply_data();
    void unreadableTextLeavesTheReply();
    void unreadableTextIsLogged();
    void openDialogueGivesTheVoiceAnswer();
    void openDialogueAnswersFromThenOn();
    void anOwnAnswerGoesBeforeTheOpenDialogue();
    void unknownIntentIsAnsweredByTheService();
    void noIntentIsAnsweredAsAnUnknownOne();
    void unsupportedPhrasingIsAnsweredByTheService();
    void onlyTheFirstIntentIsCarriedOut();
    void handlersReplyIsCopiedWhole();
    void replyWithoutCardIsForcedToTexts();
    void failedIntentIsLoggedAndAnswered();
    void textReplyDropsTheFormerCard();
    void formerHandlerIsKeptAndTheLastDeleted();
    void exceptionOfAHandlerStaysInside();
    void exceptionInAReplyStaysInside();
    void handlerThatDoesNotAnswerLeavesTheReply();
    void subclassReplacesHandleIntent();

private:
    void compareReply(const Reply *reply, int code, const char *shown, const char *spoken, int type) const;
    /// Fails unless @p semantic is answered, and logged, as an intent called @p loggedName that nobody knows.
    void compareUnknownIntent(const QString &semantic, const QString &loggedName) const;
    /// The next handler that the factory makes; it belongs to the service then.
    ScriptedHandler *prepareHandler();

    std::unique_ptr<DynamicRegisterIntentFactory> m_factory;
    std::unique_ptr<ContactService> m_service;
    std::unique_ptr<LogCapture> m_log;
    QVector<ScriptedHandler *> m_prepared;
    QVector<QPointer<ScriptedHandler>> m_all;
};

void TestContactService::init()
{
    m_factory.reset(new DynamicRegisterIntentFactory);
    m_factory->registerIntent(QStringLiteral("SCRIPTED"),
                              [this]() -> IBusinessIntent * { return m_prepared.takeFirst(); });
    m_factory->registerIntent(QStringLiteral("MUTE"), []() -> IBusinessIntent * { return new MuteHandler; });
    m_service.reset(new ContactService(QStringLiteral("contact"), m_factory.get(), 10));
    m_log.reset(new LogCapture(LogCapture::Unexpected::Passes));
}

void TestContactService::cleanup()
{
    m_service.reset();
    m_log.reset();
    QVERIFY(m_prepared.isEmpty());
    // The service keeps former handlers on purpose.
    for (const QPointer<ScriptedHandler> &handler : qAsConst(m_all)) {
        delete handler.data();
    }
    m_all.clear();
}

ScriptedHandler *TestContactService::prepareHandler()
{
    auto *handler = new ScriptedHandler;
    m_prepared.append(handler);
    m_all.append(handler);
    return handler;
}

void TestContactService::compareReply(const Reply *reply, int code, const char *shown, const char *spoken,
                                      int type) const
{
    QVERIFY(reply != nullptr);
    QCOMPARE(reply->code, QVariant(code));
    QCOMPARE(reply->displayText, QVariant(QString::fromUtf8(shown)));
    QCOMPARE(reply->speechText, QVariant(QString::fromUtf8(spoken)));
    QCOMPARE(reply->type, type);
    QVERIFY(reply->widget == nullptr);
    QVERIFY(reply->endOfSession);
}

void TestContactService::knowsItsNameAndPriority()
{
    QCOMPARE(m_service->serviceName(), QStringLiteral("contact"));
    QCOMPARE(m_service->servicePriority(), 10);
    QVERIFY(m_service->canHandle(QStringLiteral("contact")));
    QVERIFY(!m_service->canHandle(QStringLiteral("Contact")));
    QVERIFY(!m_service->canHandle(QString()));
    ContactService other(QStringLiteral("else"), nullptr, -3);
    QCOMPARE(other.serviceName(), QStringLiteral("else"));
    QCOMPARE(other.servicePriority(), -3);
}

void TestContactService::startsWithoutAnAnswer()
{
    const Reply *reply = m_service->getServiceReply();
    compareUntouched(*reply);
    QCOMPARE(m_service->getServiceReply(), reply);
}

void TestContactService::withoutAFactoryItCannotDoAnything()
{
    ContactService service(QStringLiteral("contact"), nullptr, 10);
    QCOMPARE(service.service(SemanticText::of("SCRIPTED")), -20);
    QCOMPARE(service.service(QStringLiteral("nonsense")), -20);
    QCOMPARE(service.service(SemanticText::openDialogue("a", "b")), -20);
    const SourceRecord record{QtCriticalMsg, QStringLiteral("This service cannot do anything."),
                              serviceSignature()};
    compareRecords(*m_log, SourceName, {record, record, record});
    QVERIFY(service.getServiceReply() != nullptr);
}

void TestContactService::unreadableTextLeavesTheReply_data()
{
    QTest::addColumn<QString>("semantic");
    QTest::newRow("nothing") << QString();
    QTest::newRow("not JSON") << QStringLiteral("你好");
    QTest::newRow("cut off") << QStringLiteral("{\"intent\":{\"semantic\":[");
    QTest::newRow("no intent object") << QStringLiteral("{\"semantic\":[]}");
    QTest::newRow("an empty intent object") << QStringLiteral("{\"intent\":{}}");
    QTest::newRow("no semantic array") << QStringLiteral("{\"intent\":{\"shouldEndSession\":false}}");
    QTest::newRow("a broken intent") << QStringLiteral("{\"intent\":{\"semantic\":[{\"intent\":1}]}}");
}

void TestContactService::unreadableTextLeavesTheReply()
{
    QFETCH(const QString, semantic);
    QCOMPARE(m_service->service(semantic), -100);
    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(reply->code, QVariant(-1));
    QVERIFY(!reply->displayText.isValid());
    QCOMPARE(reply->type, 0);

    QVERIFY(m_service->service(SemanticText::of("UNKNOWN")) == -21);
    QCOMPARE(m_service->service(semantic), -100);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);
}

void TestContactService::unreadableTextIsLogged()
{
    QCOMPARE(m_service->service(QStringLiteral("你好")), -100);
    compareRecords(
        *m_log, SourceName,
        {{QtDebugMsg, QStringLiteral("Parse the semantic json error: \"你好\""), serviceSignature()}});
}

void TestContactService::openDialogueGivesTheVoiceAnswer()
{
    const QString semantic = SemanticText::openDialogue("几点？", "请问几点？");
    QCOMPARE(m_service->service(semantic), 0);
    compareReply(m_service->getServiceReply(), 0, "几点？", "请问几点？", 3);
    const QString text = streamed("Parse the semantic json analyzeIsShouldEndSession is false", semantic);
    compareRecords(*m_log, SourceName, {{QtDebugMsg, text, serviceSignature()}});
}

void TestContactService::openDialogueAnswersFromThenOn()
{
    QCOMPARE(m_service->service(SemanticText::openDialogue("几点？", "请问几点？")), 0);
    const ScriptedHandler *handler = prepareHandler();
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QCOMPARE(handler->actions, 1);
    compareReply(m_service->getServiceReply(), 0, "几点？", "请问几点？", 3);
    QCOMPARE(handler->replies, 0);

    QCOMPARE(m_service->service(SemanticText::openDialogue("跟谁？", "跟谁？")), 0);
    compareReply(m_service->getServiceReply(), 0, "跟谁？", "跟谁？", 3);
}

void TestContactService::anOwnAnswerGoesBeforeTheOpenDialogue()
{
    QCOMPARE(m_service->service(SemanticText::openDialogue("几点？", "请问几点？")), 0);
    QCOMPARE(m_service->service(SemanticText::of("UNKNOWN")), -21);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);
}

void TestContactService::compareUnknownIntent(const QString &semantic, const QString &loggedName) const
{
    QCOMPARE(m_service->service(semantic), -21);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);
    compareRecords(
        *m_log, SourceName,
        {{QtCriticalMsg, QStringLiteral("Unsupport this intent:  ") + loggedName, handleIntentSignature()},
         {QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -21"), serviceSignature()}});
}

void TestContactService::unknownIntentIsAnsweredByTheService()
{
    compareUnknownIntent(SemanticText::of("scripted"), QStringLiteral("\"scripted\""));
}

void TestContactService::noIntentIsAnsweredAsAnUnknownOne()
{
    compareUnknownIntent(SemanticText::withoutIntents(), QStringLiteral("\"\""));
}

void TestContactService::unsupportedPhrasingIsAnsweredByTheService()
{
    ScriptedHandler *handler = prepareHandler();
    handler->result = -24;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), -21);
    compareReply(m_service->getServiceReply(), -24, "对不起，暂不支持该说法。", "对不起，暂不支持该说法。",
                 3);
    QCOMPARE(handler->replies, 0);
    compareRecords(
        *m_log, SourceName,
        {{QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -24"), serviceSignature()}});
}

void TestContactService::onlyTheFirstIntentIsCarriedOut()
{
    const ScriptedHandler *handler = prepareHandler();
    QCOMPARE(
        m_service->service(QStringLiteral("{\"intent\":{\"semantic\":[{\"intent\":\"SCRIPTED\",\"slots\":[]},"
                                          "{\"intent\":\"UNKNOWN\",\"slots\":[]}]}}")),
        0);
    QCOMPARE(handler->actions, 1);
    QCOMPARE(handler->actedOn, QStringLiteral("SCRIPTED"));
    compareReply(m_service->getServiceReply(), 0, "好的。", "好的。", 3);
    QCOMPARE(handler->repliedTo, QStringLiteral("SCRIPTED"));
    compareRecords(*m_log, SourceName, {});
}

void TestContactService::handlersReplyIsCopiedWhole()
{
    ScriptedHandler *handler = prepareHandler();
    char card = 0;
    handler->nextReply.code = 7;
    handler->nextReply.displayText = QStringLiteral("shown");
    handler->nextReply.speechText = QStringLiteral("spoken");
    handler->nextReply.widget = reinterpret_cast<QWidget *>(&card);
    handler->nextReply.type = 11;
    handler->nextReply.endOfSession = false;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);

    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(handler->repliedCode, 0);
    QCOMPARE(reply->code, QVariant(7));
    QCOMPARE(reply->displayText, QVariant(QStringLiteral("shown")));
    QCOMPARE(reply->speechText, QVariant(QStringLiteral("spoken")));
    QCOMPARE(reply->widget, handler->nextReply.widget);
    QCOMPARE(reply->type, 11);
    QVERIFY(!reply->endOfSession);
    QVERIFY(reply != handler->getReply());
}

void TestContactService::replyWithoutCardIsForcedToTexts()
{
    prepareHandler()->nextReply = Reply(0, QStringLiteral("好的。"), 11);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    compareReply(m_service->getServiceReply(), 0, "好的。", "好的。", 3);
}

void TestContactService::failedIntentIsLoggedAndAnswered()
{
    ScriptedHandler *handler = prepareHandler();
    handler->result = -16005;
    handler->nextReply = Reply(-16005, QStringLiteral("没有。"), 3);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), -21);
    compareReply(m_service->getServiceReply(), -16005, "没有。", "没有。", 3);
    QCOMPARE(handler->repliedCode, -16005);
    compareRecords(
        *m_log, SourceName,
        {{QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -16005"), serviceSignature()}});
}

void TestContactService::textReplyDropsTheFormerCard()
{
    char card = 0;
    ScriptedHandler *handler = prepareHandler();
    handler->nextReply.widget = reinterpret_cast<QWidget *>(&card);
    handler->nextReply.type = 11;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QVERIFY(m_service->getServiceReply()->widget != nullptr);

    QCOMPARE(m_service->service(SemanticText::of("UNKNOWN")), -21);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);

    ScriptedHandler *again = prepareHandler();
    again->nextReply = handler->nextReply;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QVERIFY(m_service->getServiceReply()->widget != nullptr);
    QCOMPARE(m_service->service(SemanticText::openDialogue("几点？", "请问几点？")), 0);
    compareReply(m_service->getServiceReply(), 0, "几点？", "请问几点？", 3);
}

void TestContactService::formerHandlerIsKeptAndTheLastDeleted()
{
    const QPointer<ScriptedHandler> former(prepareHandler());
    const QPointer<ScriptedHandler> last(prepareHandler());
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QVERIFY(!former.isNull());
    QVERIFY(!last.isNull());
    m_service.reset();
    QVERIFY(!former.isNull());
    QVERIFY(last.isNull());
}

void TestContactService::exceptionOfAHandlerStaysInside()
{
    ScriptedHandler *handler = prepareHandler();
    handler->throws = true;
    handler->nextReply = Reply(-1, QStringLiteral("操作失败"), 3);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), -21);
    compareReply(m_service->getServiceReply(), -1, "操作失败", "操作失败", 3);
    QCOMPARE(handler->repliedCode, -1);
    QCOMPARE(m_log->texts(QtCriticalMsg).size(), 2);
}

void TestContactService::exceptionInAReplyStaysInside()
{
    prepareHandler()->throwsInReply = true;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(reply->code, QVariant(-1));
    QCOMPARE(reply->type, 3);
    QCOMPARE(m_log->texts(QtCriticalMsg).size(), 1);
}

void TestContactService::handlerThatDoesNotAnswerLeavesTheReply()
{
    QCOMPARE(m_service->service(SemanticText::of("MUTE")), 0);
    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(reply->code, QVariant(0));
    QVERIFY(!reply->displayText.isValid());
}

void TestContactService::subclassReplacesHandleIntent()
{
    class Replaced : public ContactService
    {
    public:
        using ContactService::ContactService;
        int handleIntent(const CloudIntent &intent) override
        {
            seen = intent.name;
            return -24;
        }
        QString seen;
    };
    Replaced service(QStringLiteral("contact"), m_factory.get(), 10);
    QCOMPARE(service.service(SemanticText::of("WHATEVER")), -21);
    QCOMPARE(service.seen, QStringLiteral("WHATEVER"));
    QCOMPARE(service.getServiceReply()->code, QVariant(-24));
    QCOMPARE(service.getServiceReply()->type, 3);
}

QTEST_GUILESS_MAIN(TestContactService)

#include "tst_contactservice.moc"
