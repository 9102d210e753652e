// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "terminalconversation.h"

#include "cardsummary.h"
#include "cleantext.h"
#include "echooff.h"
#include "textlayout.h"

#include <memory>

namespace devhost {

namespace {

constexpr int Columns = 72;
constexpr int TextColumns = 52;

constexpr const char *SaidColour = "\033[36m";
constexpr const char *ReplyColour = "\033[1m";
constexpr const char *CardColour = "\033[33m";
constexpr const char *FailureColour = "\033[31m";
constexpr const char *PlainColour = "\033[0m";

QString turnPicture(int turn)
{
    return QStringLiteral("turn-%1").arg(turn, 2, 10, QLatin1Char('0'));
}

} // namespace

TerminalConversation::TerminalConversation(Conversation &conversation, const Terminal &terminal,
                                           const Screenshots &screenshots, QObject *parent)
    : LineMode(terminal.input, terminal.errors, screenshots, parent)
    , m_conversation(conversation)
    , m_terminal(terminal)
{
    connect(&m_conversation, &Conversation::started, this, [this](int turn) {
        // A terminal that echoes shows the sentence already.
        if (!m_terminal.isPrompting) {
            printSaid(turn);
        }
    });
    connect(&m_conversation, &Conversation::replied, this,
            [this](int turn, const Reply &reply) { printReply(turn, reply, turnPicture(turn)); });
    connect(&m_conversation, &Conversation::repliedLater, this, [this](int turn, const Reply &reply) {
        printReply(turn, reply, turnPicture(turn) + QStringLiteral("-later-%1").arg(++m_laterReplies));
    });
    connect(&m_conversation, &Conversation::failed, this, [this](int, const QString &reason) {
        m_status = SomethingBroken;
        printLine(FailureColour, tr("  ! %1").arg(reason));
    });
    connect(&m_conversation, &Conversation::idle, this, &TerminalConversation::next);
}

void TerminalConversation::next()
{
    for (;;) {
        if (m_terminal.isPrompting) {
            const QString prompt = m_conversation.expectsSecret() ? tr("Password> ") : tr("You> ");
            m_terminal.output << qUtf8Printable(prompt) << std::flush;
        }
        QString line;
        const std::unique_ptr<EchoOff> echoOff =
            m_terminal.isPrompting && m_conversation.expectsSecret() ? std::make_unique<EchoOff>() : nullptr;
        const LineReader::Outcome outcome = m_reader.read(line);
        if (outcome == LineReader::End) {
            finish();
            return;
        }
        if (outcome != LineReader::Line) {
            complain(outcome == LineReader::TooLong ? tr("longer than 1 MiB, skipped")
                                                    : tr("not UTF-8, skipped"));
            continue;
        }
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        m_conversation.say(line);
        return;
    }
}

void TerminalConversation::printSaid(int turn)
{
    m_terminal.output << '\n';
    QString label = tr("  : You");
    const QStringList said = wrapped(m_conversation.turn(turn).said, TextColumns);
    for (const QString &line : said) {
        const int indent = qMax(0, Columns - terminalWidth(line) - terminalWidth(label));
        printLine(SaidColour, QString(indent, QLatin1Char(' ')) + line + label);
        label = QString(terminalWidth(label), QLatin1Char(' '));
    }
}

void TerminalConversation::printReply(int turn, const Reply &reply, const QString &pictureName)
{
    const int code = reply.code.toInt();
    QStringList lines = wrapped(cleanText(reply.displayText.toString()), TextColumns);
    if (code != 0) {
        lines.last() += QStringLiteral("  (%1)").arg(code);
    }
    QString label = tr("Assistant: ");
    const QString indent(terminalWidth(label), QLatin1Char(' '));
    for (const QString &line : qAsConst(lines)) {
        printLine(ReplyColour, label + line);
        label = indent;
    }

    const std::unique_ptr<QWidget> card(cardOf(reply));
    if (card == nullptr) {
        return;
    }
    const QString picture = m_screenshots.take(*card, pictureName);
    const QStringList summary = cardSummary(*card);
    for (const QString &line : summary) {
        printLine(CardColour, indent + QStringLiteral("│ ") + line);
    }
    if (!picture.isEmpty()) {
        printLine(CardColour, indent + QStringLiteral("└ %1/%2").arg(m_screenshots.folder(), picture));
    } else if (m_screenshots.isOn()) {
        complain(
            tr("the picture of turn %1 could not be written to %2").arg(turn).arg(m_screenshots.folder()));
    }
}

void TerminalConversation::printLine(const char *colour, const QString &line)
{
    if (m_terminal.isColoured) {
        m_terminal.output << colour << qUtf8Printable(line) << PlainColour << std::endl;
    } else {
        m_terminal.output << qUtf8Printable(line) << std::endl;
    }
}

} // namespace devhost
