// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "turn.h"
#include "turnrunner.h"

#include <understanding/dialogue.h>

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QStringList>
#include <QWidget>

namespace devhost {

class LogRecorder;

/**
 * One conversation with a plugin: takes sentences and semantic texts in any number, puts one after another to
 * the plugin, and tells what it answers. A sentence is understood when its turn comes, because it may answer
 * what the turn before has asked. Lives on the GUI thread and never blocks it.
 *
 * Passwords are blotted out in everything that it tells or keeps.
 */
class Conversation final : public QObject
{
    Q_OBJECT

public:
    /// @p host and @p logs must outlive the conversation.
    Conversation(PluginHost &host, LogRecorder &logs, QObject *parent = nullptr);

    void setContactNames(const QStringList &names);
    /// Who is named in the answer to "你会什么".
    void setHelpNames(const QStringList &names) { m_helpNames = names; }
    /// Forgets the turns and an open question. Not while it is busy.
    void startOver();

    /// Queues a sentence and returns its turn. A text that starts with "{" is taken as semantic JSON, unless
    /// a password is asked for when its turn comes.
    int say(const QString &text);
    /// Queues a sentence that was said at @p when, which its times are set against, and to no open question.
    int sayAsOf(const QString &sentence, const QDateTime &when);
    /// Queues a semantic text, which reaches the plugin as it is.
    int sendSemantic(const QString &semantic);

    bool isBusy() const { return m_running != 0 || !m_queue.isEmpty(); }
    /// Whether what is typed now is a password.
    bool expectsSecret() const;

    /// The turn, or an empty one when it is unknown or so long ago that it was dropped.
    Turn turn(int id) const;
    int lastTurn() const { return m_lastId; }

    /// A longer text is not taken; say() and sendSemantic() then end the turn with a failure.
    static constexpr int LongestInput = 1024 * 1024;

Q_SIGNALS:
    /// Something was queued; @p shown is how it may be shown and kept.
    void said(int turn, const QString &shown);
    /// Only now it is known that the text is a password.
    void saidChanged(int turn, const QString &shown);
    void started(int turn);
    /// The receiver takes over the reply's card. The connection has to be direct.
    void replied(int turn, const Reply &reply);
    /// A reply that came by itself, after @p turn, the last one that was started.
    void repliedLater(int turn, const Reply &reply);
    /// There is no reply, and why.
    void failed(int turn, const QString &reason);
    /// The last signal of a turn; everything about it is known, requests and log too.
    void finished(int turn);
    /// Nothing is left to do.
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
    /// As far as it can be told before the turn comes: the question for a password may be open only then.
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

/// The card of @p reply, or null when its type says that there is none.
QWidget *cardOf(const Reply &reply);

} // namespace devhost
