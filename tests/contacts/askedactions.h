// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "sampleworld.h"

#include <QTest>

// The actions' names, and their most common parameters and answers.

const auto Create = QStringLiteral("Create Conference");
const auto Invite = QStringLiteral("Invite Members");
const auto Join = QStringLiteral("Join Conference");
const auto JoinMy = QStringLiteral("Join My Conference");
const auto Search = QStringLiteral("Search Conference");
const auto IsHost = QStringLiteral("Is Conference Host");
const auto Delete = QStringLiteral("Delete Conference");
const auto AddFriend = QStringLiteral("Add Friends");
const auto Exit = QStringLiteral("Exit Conference");
const auto Open = QStringLiteral("Open Conference List");
const auto Update = QStringLiteral("Update Conference");

inline QString ret(const QJsonObject &answer)
{
    return answer.value(QLatin1String("ret")).toString();
}

inline QJsonArray list(const QJsonObject &answer)
{
    return answer.value(QLatin1String("list")).toArray();
}

inline void useFreeAccount(SampleWorld &world)
{
    QVERIFY(world.admin.Login(QStringLiteral("100002")));
}

/// Leaves one seat free: a free account's conference takes ten, the host and up to nine others.
inline void startOneWithEight(SampleWorld &world)
{
    useFreeAccount(world);
    QCOMPARE(ret(world.ask(Create, membersNamed({QStringLiteral("赵磊"), QStringLiteral("孙丽"),
                                                 QStringLiteral("周一鸣"), QStringLiteral("吴敏"),
                                                 QStringLiteral("郑强"), QStringLiteral("黄蓉"),
                                                 QStringLiteral("徐婷"), QStringLiteral("马超")}))),
             QStringLiteral("OK"));
}
