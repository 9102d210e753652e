// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversation.h"

#include "cleantext.h"
#include "correction.h"
#include "help.h"
#include "logrecorder.h"
#include "secrets.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace devhost {

namespace {

/// Turns that can be inspected; older ones are known to the conversation view only.
constexpr int MostTurns = 2000;
/// Log records and requests kept per turn.
constexpr int MostRecords = 1000;
constexpr int ShownInputLength = 2000;

/// What the conversation shows in place of a semantic text, which is too long to read: the names of its
/// intents.
QString semanticTitle(const QString &semantic)
{
    QString title = Conversation::tr("Semantic JSON");
    const QJsonObject intent =
        QJsonDocument::fromJson(semantic.toUtf8()).object().value(QLatin1String("intent")).toObject();
    const QJsonArray items = intent.value(QLatin1String("semantic")).toArray();
    for (const QJsonValue &item : items) {
        title += QLatin1Char(' ') + item.toObject().value(QLatin1String("intent")).toString();
    }
    return cleanText(title.left(ShownInputLength));
}

} // namespace

QWidget *cardOf(const Reply &reply)
{
    return (reply.type & Reply::Card) != 0 ? reply.widget : nullptr;
}

Conversation::Conversation(PluginHost &host, LogRecorder &logs, QObject *parent)
    : QObject(parent)
    , m_runner(host)
    , m_logs(logs)
{
    connect(&m_runner, &TurnRunner::finished, this, &Conversation::takeResult);
    connect(&host, &PluginHost::repliedLater, this, &Conversation::takeLater);
}

void Conversation::setContactNames(const QStringList &names)
{
    m_dialogue.setContactNames(names);
}

void Conversation::startOver()
{
    Q_ASSERT(!isBusy());
    m_turns.clear();
    closeQuestion();
}

void Conversation::closeQuestion()
{
    // As a user would.
    m_dialogue.turn(QStringLiteral("算了"), QDateTime::currentDateTime());
}

int Conversation::say(const QString &text)
{
    return enqueue(text.trimmed(), Form::AsItLooks);
}

int Conversation::sayAsOf(const QString &sentence, const QDateTime &when)
{
    return enqueue(sentence.trimmed(), Form::Sentence, when);
}

int Conversation::sendSemantic(const QString &semantic)
{
    return enqueue(semantic, Form::Semantic);
}

bool Conversation::expectsSecret() const
{
    return m_dialogue.nextIsSecret();
}

Turn Conversation::turn(int id) const
{
    return m_turns.value(id);
}

bool Conversation::isSentence(const QString &text, Form form) const
{
    return form == Form::Sentence ||
           (form == Form::AsItLooks && (expectsSecret() || !text.startsWith(QLatin1Char('{'))));
}

int Conversation::enqueue(const QString &text, Form form, const QDateTime &when)
{
    Turn turn;
    turn.id = ++m_lastId;
    turn.isSentence = isSentence(text, form);
    turn.said = turn.isSentence ? shownSentence(text) : semanticTitle(text);
    m_turns.insert(turn.id, turn);
    m_turns.remove(turn.id - MostTurns);
    m_queue.enqueue({turn.id, text, form, when});
    Q_EMIT said(turn.id, turn.said);
    // From the event loop, so that the caller knows its turn first.
    QMetaObject::invokeMethod(this, &Conversation::startNext, Qt::QueuedConnection);
    return turn.id;
}

QString Conversation::shownSentence(const QString &sentence) const
{
    return cleanText(m_dialogue.masked(sentence.left(ShownInputLength)));
}

void Conversation::startNext()
{
    if (m_running != 0 || m_queue.isEmpty()) {
        return;
    }
    collectLogs(m_latest);
    Input input = m_queue.dequeue();
    m_running = m_latest = input.turn;
    if (input.when.isValid()) {
        closeQuestion();
    }
    m_runningIsSentence = isSentence(input.text, input.form);
    Turn &running = m_turns[m_running];
    running.isSentence = running.isSentence || m_runningIsSentence;
    running.state = Turn::Running;
    Q_EMIT started(m_running);
    if (input.text.size() > LongestInput) {
        end(tr("The text is too long: %1 characters.").arg(input.text.size()));
        return;
    }
    if (m_runningIsSentence && !m_dialogue.nextIsSecret() && help::isAskedFor(input.text)) {
        answerWithHelp();
        return;
    }
    const QString semantic = m_runningIsSentence ? understand(input) : input.text;
    const QStringList secrets = secretsIn(semantic);
    m_logs.setSecrets(secrets);
    m_turns[m_running].semantic = withoutSecrets(semantic, secrets);
    m_runner.run(semantic);
}

void Conversation::answerWithHelp()
{
    Reply reply(0, help::text(m_helpNames), Reply::Texts);
    reply.speechText = QStringLiteral("您可以这样说。");
    Turn &turn = m_turns[m_running];
    turn.display = reply.displayText.toString();
    turn.speech = reply.speechText.toString();
    turn.type = reply.type;
    Q_EMIT replied(m_running, reply);
    end(QString());
}

QString Conversation::understand(Input &input)
{
    Turn &turn = m_turns[input.turn];
    const QString shown = shownSentence(input.text);
    if (shown != turn.said) {
        turn.said = shown;
        Q_EMIT saidChanged(input.turn, shown);
    }
    QElapsedTimer timer;
    timer.start();
    const QString semantic =
        m_dialogue.turn(input.text, input.when.isValid() ? input.when : QDateTime::currentDateTime());
    m_turns[input.turn].understandingMsecs = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    return semantic;
}

void Conversation::takeResult(const TurnResult &result)
{
    const int id = m_running;
    Turn &turn = m_turns[id];
    turn.status = result.status;
    turn.serviceMsecs = result.serviceMsecs;
    turn.replyMsecs = result.replyMsecs;
    if (!result.failure.isEmpty()) {
        end(result.failure);
        return;
    }
    collectLogs(id);
    Reply reply = result.reply;
    correctFormerTurns(turn.performedAfterAll, reply);
    turn.code = reply.code.toInt();
    turn.display = cleanText(reply.displayText.toString());
    turn.speech = cleanText(reply.speechText.toString());
    turn.type = result.reply.type;
    turn.endOfSession = result.reply.endOfSession;
    if (const QWidget *card = cardOf(result.reply)) {
        turn.cardClass = QString::fromLatin1(card->metaObject()->className());
    }
    if (m_runningIsSentence) {
        // What the plugin itself reports; a correction belongs to another turn.
        m_dialogue.noteReply(turn.code, cleanText(result.reply.displayText.toString()));
    }
    if (result.isUnread() && turn.display.isEmpty()) {
        end(tr("The plugin cannot read this as a semantic JSON (service() answered -100)."));
        return;
    }
    Q_EMIT replied(id, reply);
    end(QString());
}

void Conversation::takeLater(const Reply &reply)
{
    collectLogs(m_latest);
    Q_EMIT repliedLater(m_latest, reply);
}

void Conversation::end(const QString &failure)
{
    const int id = m_running;
    collectLogs(id);
    m_turns[id].state = Turn::Done;
    m_turns[id].failure = failure;
    if (!failure.isEmpty()) {
        Q_EMIT failed(id, failure);
    }
    m_running = 0;
    Q_EMIT finished(id);
    if (m_queue.isEmpty()) {
        Q_EMIT idle();
    } else {
        QMetaObject::invokeMethod(this, &Conversation::startNext, Qt::QueuedConnection);
    }
}

void Conversation::collectLogs(int turn)
{
    const QVector<LogRecord> records = m_logs.take();
    const auto entry = m_turns.find(turn);
    if (entry == m_turns.end()) {
        return;
    }
    for (const LogRecord &record : records) {
        AbilityCall call;
        if (AbilityCall::read(record, call)) {
            if (call.isPerformedAfterAll) {
                entry->performedAfterAll.append(call.action);
            } else if (entry->calls.size() < MostRecords) {
                entry->calls.append(call);
            }
        } else if (entry->logs.size() < MostRecords) {
            entry->logs.append(record);
        }
    }
}

} // namespace devhost
