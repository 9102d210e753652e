// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/persontexts.h"

#include "core/displaytext.h"

#include <QCoreApplication>

namespace {

QString relationText(Friendship friendship)
{
    switch (friendship) {
    case Friendship::Friend:
        return QCoreApplication::translate("PersonTexts", "Friend");
    case Friendship::Requested:
        return QCoreApplication::translate("PersonTexts", "Request sent");
    case Friendship::None:
        break;
    }
    return QCoreApplication::translate("PersonTexts", "Colleague");
}

QString nameText(const Person &person)
{
    const QString shown = cleanDisplayText(person.shownName());
    const QString name = cleanDisplayText(person.name);
    return shown == name ? name : QCoreApplication::translate("PersonTexts", "%1 (%2)").arg(shown, name);
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
        return person.kind == AccountKind::Paying ? QCoreApplication::translate("PersonTexts", "Paying")
                                                  : QCoreApplication::translate("PersonTexts", "Free");
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
