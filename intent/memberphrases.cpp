// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "memberphrases.h"

QString MemberPhrases::joinedNames(const QVector<UserInfo> &users)
{
    QVector<QString> names;
    names.reserve(users.size());
    for (const UserInfo &user : users) {
        names.append(user.name);
    }
    return ContactUtils::vectorToString(names);
}

QString MemberPhrases::choicePrompt(const QVector<QString> &notExistUsers)
{
    QString question = QStringLiteral("您需要邀请以下哪位好友:");
    if (notExistUsers.isEmpty()) {
        return question;
    }
    return QStringLiteral("未找到%1，").arg(ContactUtils::vectorToString(notExistUsers)) + question;
}
