// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversation.h"
#include "linemode.h"

namespace devhost {

/**
 * Plays a conversation in a terminal: reads a sentence or semantic JSON per line and prints it with the
 * plugin's answers, cards as their texts. Skips empty lines and those that start with "#".
 */
class TerminalConversation final : public LineMode
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

    /// The arguments must outlive the object.
    TerminalConversation(Conversation &conversation, const Terminal &terminal, const Screenshots &screenshots,
                         QObject *parent = nullptr);

private:
    void next() override;
    void printSaid(int turn);
    void printReply(int turn, const Reply &reply, const QString &pictureName);
    void printLine(const char *colour, const QString &line);

    Conversation &m_conversation;
    const Terminal m_terminal;
};

} // namespace devhost
