// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenerecords.h"

#include <QDateTime>

namespace {

constexpr qint64 MsecsPerMinute = 60000;

qint64 at(int day, int hour, int minute)
{
    return QDateTime(QDate(2026, 3, day), QTime(hour, minute)).toMSecsSinceEpoch();
}

UserInfo participant(const QString &name)
{
    return {name, {}, QStringLiteral("u-") + name, {}};
}

UserInfo candidate(const QString &name, const QString &remarkName, const QString &account)
{
    return {name, remarkName, QStringLiteral("u-") + account, account};
}

struct Candidate
{
    QString remarkName;
    QString account;
};

DuplicateUsers namesakes(const QString &name, const QVector<Candidate> &candidates)
{
    DuplicateUsers group;
    group.name = name;
    for (const Candidate &one : candidates) {
        group.users.append(candidate(name, one.remarkName, one.account));
    }
    return group;
}

const QString LongName = QStringLiteral("欧阳修文·克里斯蒂娜·亚历山德罗芙娜（华东区研发三部）");

} // namespace

ContactDetailMsg SceneRecords::conference(int status)
{
    ContactDetailMsg conference;
    conference.title = QStringLiteral("产品周会");
    conference.participants = {participant(QStringLiteral("李雷")), participant(QStringLiteral("韩梅梅")),
                               participant(QStringLiteral("王芳"))};
    conference.duration = 60 * MsecsPerMinute;
    conference.startTime = at(12, 14, 0);
    conference.confId = QStringLiteral("c-1001");
    conference.conferenceDialNumber = QStringLiteral("801 5523 9146");
    conference.participantLimit = 20;
    conference.status = status;
    conference.isPayingUser = true;
    return conference;
}

ContactDetailMsg SceneRecords::unusualConference()
{
    ContactDetailMsg unusual = conference();
    unusual.startTime = at(12, 9, 30);
    unusual.duration = 45 * MsecsPerMinute;
    unusual.isPayingUser = false;
    return unusual;
}

ContactDetailMsg SceneRecords::longConference()
{
    ContactDetailMsg longOne = conference(1);
    longOne.title = QStringLiteral("<b>第三季度</b>跨部门产品路线图评审暨年度预算复核与风险沟通会议（第二次，"
                                   "含海外同事）<img src=\"file:///etc/hostname\">");
    longOne.conferenceDialNumber = QStringLiteral("801 5523 9146 0072 5581 9930 2217 4410");
    longOne.participants = {participant(LongName), participant(LongName)};
    return longOne;
}

ContactDetailMsg SceneRecords::crowdedConference(int participants)
{
    ContactDetailMsg crowded = conference(1);
    crowded.participantLimit = participants;
    crowded.participants.clear();
    for (int i = 1; i <= participants; ++i) {
        crowded.participants.append(participant(QStringLiteral("同事%1").arg(i)));
    }
    return crowded;
}

QVector<ContactDetailMsg> SceneRecords::conferences(int count)
{
    static const QString titles[] = {QStringLiteral("产品周会"), QStringLiteral("设计评审"),
                                     QStringLiteral("客户回访"), QStringLiteral("一对一")};
    QVector<ContactDetailMsg> list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        ContactDetailMsg next = conference((i + 1) % 3);
        next.title = titles[i % 4];
        next.startTime = at(12, 9 + i % 8, 30 * (i % 2));
        list.append(next);
    }
    return list;
}

ContactInviteMemberDetail SceneRecords::duplicates()
{
    ContactInviteMemberDetail detail;
    detail.duplicateUsers = {
        namesakes(QStringLiteral("王芳"), {{QStringLiteral("王芳（财务）"), QStringLiteral("wangfang01")},
                                           {QStringLiteral("王芳（研发）"), QStringLiteral("wangfang02")}}),
        namesakes(QStringLiteral("李雷"), {{QStringLiteral("李雷（上海）"), QStringLiteral("lilei")},
                                           {QString(), QStringLiteral("lilei.bj")},
                                           {QStringLiteral("李雷（广州）"), QStringLiteral("lilei.gz")}}),
    };
    detail.normalUsers = {
        candidate(QStringLiteral("韩梅梅"), QStringLiteral("韩梅梅"), QStringLiteral("hanmm"))};
    return detail;
}

ContactInviteMemberDetail SceneRecords::longDuplicates()
{
    ContactInviteMemberDetail detail;
    detail.duplicateUsers = {
        {LongName,
         {candidate(LongName, LongName, QStringLiteral("a.very.long.account.name.of.somebody@example.com")),
          candidate(LongName, QStringLiteral("王"), QString(80, QLatin1Char('w'))),
          candidate(QStringLiteral(" "), LongName, QStringLiteral("short"))}},
    };
    return detail;
}

ContactInviteMemberDetail SceneRecords::exceededLimit(int canInvite)
{
    ContactInviteMemberDetail detail = duplicates();
    detail.normalUsers.append(
        candidate(QStringLiteral("赵敏"), QStringLiteral("赵敏"), QStringLiteral("zhaomin")));
    detail.canInviteNum = canInvite;
    return detail;
}
