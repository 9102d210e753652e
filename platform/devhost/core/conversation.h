// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "turn.h"
#include "turnrunner.h"

#include <understanding/dialogue.h>

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QQueue>
#include <QStringList>
#include <QWidget>

namespace devhost {

class LogRecorder;

/**
 * One conversation with a plugin: queues sentences and semantic texts, puts one after another to the plugin,
 * and reports its answers. A sentence is only understood when its turn comes, because it may answer a
 * question of the turn before. Lives on the GUI thread and never blocks it.
 *
 * Passwords are masked in everything that it reports or keeps.
 */
class Conversation final : public QObject
{
    Q_OBJECT

public:
    /// @p host and @p logs must outlive the conversation.
    Conversation(PluginHost &host, LogRecorder &logs, QObject *parent = nullptr);

    void setContactNames(const QStringList &names);
    /// The people named in the answer to "你会什么".
    void setHelpNames(const QStringList &names) { m_helpNames = names; }
    /// Forgets the turns and an open question. Call only while nothing is queued or running.
    void startOver();

    /// Queues a sentence and returns its turn. A text that starts with "{" is taken as semantic JSON, unless
    /// a password is being asked for when its turn comes.
    int say(const QString &text);
    /// Queues a sentence said at @p when, which its times are relative to. It answers no open question.
    int sayAsOf(const QString &sentence, const QDateTime &when);
    /// Queues a semantic text, which reaches the plugin unchanged.
    int sendSemantic(const QString &semantic);

    bool isBusy() const { return m_running != 0 || !m_queue.isEmpty(); }
    /// Whether the next input is a password.
    bool expectsSecret() const;

    /// The turn; an empty one when it is unknown or old enough to have been dropped.
    Turn turn(int id) const;
    int lastTurn() const { return m_lastId; }

    /// Longer texts are refused: say() and sendSemantic() then end the turn with a failure.
    static constexpr int LongestInput = 1024 * 1024;

Q_SIGNALS:
    /// Something was queued; @p shown is the form in which it may be shown and kept.
    void said(int turn, const QString &shown);
    /// The text has only now turned out to be a password.
    void saidChanged(int turn, const QString &shown);
    void started(int turn);
    /// The receiver takes ownership of the reply's card. Connect directly.
    void replied(int turn, const Reply &reply);
    /// An unsolicited reply; @p turn is the last turn that was started.
    void repliedLater(int turn, const Reply &reply);
    /// There is no reply; @p reason says why.
    void failed(int turn, const QString &reason);
    /// The last signal of a turn; its requests and log are complete.
    void finished(int turn);
    /// The queue is empty.
    void idle();

private:
    enum class Form { Sentence, Semantic, AsItLooks };

    struct Input
    {
        int turn = 0;
        QString text;
        Form form = Form::Sentence;
        QDateTime when; ///< invalid for now
    };

    int enqueue(const QString &text, Form form, const QDateTime &when = QDateTime());
    /// A guess until the turn comes: the question for a password may only be open then.
    bool isSentence(const QString &text, Form form) const;
    QString shownSentence(const QString &sentence) const;
    void startNext();
    void answerWithHelp();
    void closeQuestion();
    QString understand(Input &input);
    void takeResult(const TurnResult &result);
    void takeLater(const Reply &reply);
    void end(const QString &failure);
    void collectLogs(int turn);

    TurnRunner m_runner;
    LogRecorder &m_logs;
    understanding::Dialogue m_dialogue;
    QStringList m_helpNames;
    QQueue<Input> m_queue;
    QHash<int, Turn> m_turns;
    int m_lastId = 0;
    int m_running = 0; ///< the turn, 0 for none
    int m_latest = 0;  ///< the turn that was started last
    bool m_runningIsSentence = false;
};

/// The card of @p reply; null when its type says that it has none.
QWidget *cardOf(const Reply &reply);

} // namespace devhost
