// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "turnmenu.h"

#include "conversation.h"
#include "turntexts.h"

#include <QClipboard>
#include <QCoreApplication>
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
    addCopy(*menu, QCoreApplication::translate("devhost::TurnMenu", "&Copy Text"), text);
    addCopy(*menu, QCoreApplication::translate("devhost::TurnMenu", "Copy Conference &Number"),
            conferenceNumberOf(turn));
    addCopy(*menu, QCoreApplication::translate("devhost::TurnMenu", "Copy Semantic &JSON"),
            turntexts::semantic(turn));
    menu->addSeparator();
    const bool isSentence = turn.isSentence;
    const QString again = isSentence ? turn.said : turn.semantic;
    QAction *ask =
        menu->addAction(QCoreApplication::translate("devhost::TurnMenu", "&Ask Again"), &conversation,
                        [&conversation, again, isSentence] {
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
