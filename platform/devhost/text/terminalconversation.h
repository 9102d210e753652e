// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversation.h"
#include "exitstatus.h"
#include "linereader.h"
#include "screenshots.h"

#include <QObject>

#include <ostream>

namespace devhost {

/**
 * Plays a conversation in a terminal: one sentence or semantic JSON per line of input, printed with the
 * plugin's answers, cards as their texts. Lines that start with "#" and empty lines are left out.
 *
 * Lives on the GUI thread; waits there for input, which is for a program without a window.
 */
class TerminalConversation final : public QObject
{
    Q_OBJECT

public:
    struct Terminal
    {
        std::istream &input;
        std::ostream &output;
        std::ostream &errors;
        bool isColoured = false;
        bool isPrompting = false; ///< a person types, who sees what is typed
    };

    /// What is given must outlive the object.
    TerminalConversation(Conversation &conversation, const Terminal &terminal, const Screenshots &screenshots,
                         QObject *parent = nullptr);
    void start();

Q_SIGNALS:
    void finished(devhost::ExitStatus status);

private:
    void next();
    void printSaid(int turn);
    void printReply(int turn, const Reply &reply, const QString &pictureName);
    void printLine(const char *colour, const QString &line);
    void complain(const QString &message);

    Conversation &m_conversation;
    const Terminal m_terminal;
    const Screenshots m_screenshots;
    LineReader m_reader;
    ExitStatus m_status = EverythingAnswered;
    int m_laterReplies = 0;
};

} // namespace devhost
