// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/persontexts.h"

#include "core/displaytext.h"

namespace {

QString relationText(Friendship friendship)
{
    switch (friendship) {
    case Friendship::Friend:
        return QStringLiteral("好友");
    case Friendship::Requested:
        return QStringLiteral("已发送好友申请");
    case Friendship::None:
        break;
    }
    return QStringLiteral("同事");
}

QString nameText(const Person &person)
{
    const QString shown = cleanDisplayText(person.shownName());
    const QString name = cleanDisplayText(person.name);
    return shown == name ? name : QStringLiteral("%1（%2）").arg(shown, name);
}

} // namespace

QString personText(const Person &person, PersonColumn column)
{
    switch (column) {
    case PersonColumn::Name:
        return nameText(person);
    case PersonColumn::Account:
        return cleanDisplayText(person.account);
    case PersonColumn::Relation:
        return relationText(person.friendship);
    case PersonColumn::Kind:
        return person.kind == AccountKind::Paying ? QStringLiteral("付费") : QStringLiteral("免费");
    }
    return {};
}

bool isFoundBy(const Person &person, const QString &text)
{
    // Each by itself: nobody is called "（" because a remark is followed by it.
    return text.isEmpty() || person.account.contains(text, Qt::CaseInsensitive) ||
           cleanDisplayText(person.name).contains(text, Qt::CaseInsensitive) ||
           cleanDisplayText(person.remarkName).contains(text, Qt::CaseInsensitive);
}
