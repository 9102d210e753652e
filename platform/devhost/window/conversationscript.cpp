// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationscript.h"

#include "conversation.h"
#include "windowscript.h"

#include <QCoreApplication>
#include <QJsonDocument>

namespace devhost {

namespace {

constexpr QChar Blot(0x2022);

QString lineOf(const Turn &turn)
{
    const bool isSentence = turn.isSentence;
    const QString text = isSentence ? turn.said : turn.semantic;
    if (text.contains(Blot)) {
        return QCoreApplication::translate("devhost::ConversationScript",
                                           "# A password was entered here; it is not saved");
    }
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    const QString line =
        json.isNull() ? text.simplified() : QString::fromUtf8(json.toJson(QJsonDocument::Compact));
    return WindowScript::isSaid(line)
               ? line
               : QCoreApplication::translate(
                     "devhost::ConversationScript",
                     "# A sentence that a script would take for a comment or a click is not saved");
}

} // namespace

QString scriptOf(const Conversation &conversation)
{
    QString script;
    for (int id = 1; id <= conversation.lastTurn(); ++id) {
        const Turn turn = conversation.turn(id);
        // Queued input may be a password, which only shows when its turn comes.
        if (turn.id != 0 && turn.state == Turn::Done) {
            script += lineOf(turn) + QLatin1Char('\n');
        }
    }
    return script;
}

} // namespace devhost
