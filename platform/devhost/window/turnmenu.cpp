// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "turnmenu.h"

#include "conversation.h"
#include "turntexts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QSet>

namespace devhost {

namespace {

void addCopy(QMenu &menu, const QString &title, const QString &text)
{
    QAction *action = menu.addAction(title, &menu, [text] { QGuiApplication::clipboard()->setText(text); });
    action->setEnabled(!text.isEmpty());
}

bool isMasked(const QString &text)
{
    return text.contains(QChar(0x2022));
}

} // namespace

QString conferenceNumberOf(const Turn &turn)
{
    QSet<QString> numbers;
    for (const AbilityCall &call : turn.calls) {
        const QJsonArray list =
            QJsonDocument::fromJson(call.answer.toUtf8()).object().value(QLatin1String("list")).toArray();
        for (const QJsonValue &conference : list) {
            numbers.insert(conference.toObject().value(QLatin1String("conferenceDialNumber")).toString());
        }
    }
    numbers.remove(QString());
    return numbers.size() == 1 ? *numbers.cbegin() : QString();
}

QMenu *makeTurnMenu(const Turn &turn, const QString &text, Conversation &conversation, QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addCopy(*menu, QStringLiteral("复制文字(&C)"), text);
    addCopy(*menu, QStringLiteral("复制会议号(&N)"), conferenceNumberOf(turn));
    addCopy(*menu, QStringLiteral("复制语义 JSON(&J)"), turntexts::semantic(turn));
    menu->addSeparator();
    const bool isSentence = !turn.said.startsWith(QStringLiteral("语义 JSON"));
    const QString again = isSentence ? turn.said : turn.semantic;
    QAction *ask =
        menu->addAction(QStringLiteral("再问一次(&A)"), &conversation, [&conversation, again, isSentence] {
            if (isSentence) {
                conversation.say(again);
            } else {
                conversation.sendSemantic(again); // also while a password is asked for
            }
        });
    ask->setEnabled(!again.isEmpty() && !isMasked(again));
    return menu;
}

} // namespace devhost
