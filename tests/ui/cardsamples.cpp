// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsamples.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

qint64 CardSamples::thursdayAt(int hour, int minute)
{
    return QDateTime(QDate(2024, 3, 7), QTime(hour, minute)).toMSecsSinceEpoch();
}

ContactDetailMsg CardSamples::conference()
{
    ContactDetailMsg conference;
    conference.title = QStringLiteral("周例会");
    conference.participants = {user(QStringLiteral("张三"), {}, QStringLiteral("u1"), QStringLiteral("zs")),
                               user(QStringLiteral("李四"), {}, QStringLiteral("u2"), QStringLiteral("ls"))};
    conference.duration = 15 * Minute;
    conference.startTime = thursdayAt(9);
    conference.confId = QStringLiteral("c-1");
    conference.conferenceDialNumber = QStringLiteral("902 118 34");
    conference.participantLimit = 20;
    return conference;
}

QVector<ContactDetailMsg> CardSamples::conferences(int count)
{
    QVector<ContactDetailMsg> list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        ContactDetailMsg one = conference();
        one.title = QStringLiteral("会议%1").arg(i + 1);
        one.confId = QStringLiteral("c-%1").arg(i + 1);
        one.status = i % 3;
        list.append(one);
    }
    return list;
}

UserInfo CardSamples::user(const QString &name, const QString &remarkName, const QString &userId,
                           const QString &account)
{
    UserInfo user;
    user.name = name;
    user.remarkName = remarkName;
    user.userId = userId;
    user.account = account;
    return user;
}

ContactInviteMemberDetail CardSamples::inviteDetail()
{
    const QString zhang = QStringLiteral("张三");
    const QString wang = QStringLiteral("王五");
    ContactInviteMemberDetail detail;
    detail.duplicateUsers = {
        {zhang,
         {user(zhang, QStringLiteral("张三（市场部）"), QStringLiteral("z1"), QStringLiteral("zhangsan01")),
          user(zhang, QStringLiteral("张三（研发部）"), QStringLiteral("z2"), QStringLiteral("zhangsan02"))}},
        {wang,
         {user(wang, QStringLiteral("王五一"), QStringLiteral("w1"), QStringLiteral("wangwu1")),
          user(wang, QStringLiteral("王五二"), QStringLiteral("w2"), QStringLiteral("wangwu2")),
          user(wang, QStringLiteral("王五三"), QStringLiteral("w3"), QStringLiteral("wangwu3"))}},
    };
    detail.normalUsers = {user(QStringLiteral("赵六"), QStringLiteral("赵六"), QStringLiteral("l1"),
                               QStringLiteral("zhaoliu"))};
    return detail;
}

ContactCreatedConferenceDetail CardSamples::createdDetail()
{
    ContactCreatedConferenceDetail detail;
    detail.inviteDetail = inviteDetail();
    return detail;
}

QStringList CardSamples::texts(const QWidget &parent)
{
    QVector<QLabel *> labels = shown<QLabel>(parent);
    labels.erase(
        std::remove_if(labels.begin(), labels.end(),
                       [](const QLabel *label) { return label->pixmap(Qt::ReturnByValue).width() > 0; }),
        labels.end());
    QStringList result;
    for (const QLabel *label : qAsConst(labels)) {
        result.append(label->text());
    }
    return result;
}

QPushButton *CardSamples::button(const QWidget &parent, const QString &text)
{
    const auto buttons = shown<QPushButton>(parent);
    for (QPushButton *candidate : buttons) {
        if (candidate->text() == text) {
            return candidate;
        }
    }
    return nullptr;
}
