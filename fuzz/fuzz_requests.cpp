// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Fuzzes what is said on its way into requests: names, numbers, passcodes and times.

#include "contactutils.h"
#include "request/requesttexts.h"
#include "templatetext.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <ctime>

namespace {

const Words Said = {"李雷", "", "600100", "李雷", "张 伟", "a\"b\\c", "\xe2\x80\xae王芳", "null", "0"};
constexpr const char *Slot =
    "{'suggestDatetime':'2099-03-08|2099-03-08T10:00:00|2026-03-07|2026-03-07T10:20:00|"
    "2027-02-29|9999-12-31T23:59:59|T|2026-03-08T|T10:00:00|0000-00-00|2030-01-01T24:00:00|2030-03-10T02:30:"
    "00|'}";

/// @p text as the application reads it, which must succeed whatever was said.
QJsonObject read(const QString &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    require(error.error == QJsonParseError::NoError && document.isObject());
    return document.object();
}

/// Requires @p received to be @p text, unless that has broken surrogates, which UTF-8 cannot hold.
void requireSame(const QJsonValue &received, const QString &text)
{
    require(received.isString());
    require(received.toString() == text || QString::fromUtf8(text.toUtf8()) != text);
}

void writeTexts(FuzzedDataProvider &bytes)
{
    const QString first = anyText(bytes, Said);
    const QString second = anyText(bytes, Said);
    requireSame(read(ContactUtils::addbuddyParamInit(first)).value(QStringLiteral("userId")), first);
    requireSame(read(ContactUtils::deleteParamInit(first)).value(QStringLiteral("conferenceId")), first);
    const QJsonObject join = read(ContactUtils::joinParamInit(first, second));
    requireSame(join.value(QStringLiteral("conferenceId")), first);
    requireSame(join.value(QStringLiteral("password")), second);

    QVector<QString> names;
    QVector<QString> expected;
    for (int count = bytes.ConsumeIntegralInRange(0, 6); count > 0; --count) {
        names.append(anyText(bytes, Said));
        if (!names.last().isEmpty() && !expected.contains(names.last())) {
            expected.append(names.last());
        }
    }
    // Members that are built as objects keep an empty name; it is only dropped later.
    const bool hasEmpty =
        std::any_of(names.cbegin(), names.cend(), [](const QString &name) { return name.isEmpty(); });
    require(RequestText::membersNamed(names).size() == expected.size() + (hasEmpty ? 1 : 0));
    const QJsonArray members =
        read(ContactUtils::inviteParamInit(names)).value(QStringLiteral("members")).toArray();
    require(members.size() == expected.size());
    for (int at = 0; at < members.size(); ++at) {
        requireSame(members.at(at).toObject().value(QStringLiteral("name")), expected.at(at));
    }
    require(ContactUtils::vectorToString(names).count(QChar(u'、')) >= names.size() - 1);
}

/// Within the range of numbers that JSON holds without rounding.
qint64 anyMsecs(FuzzedDataProvider &bytes)
{
    constexpr qint64 largest = 1LL << 53;
    return bytes.ConsumeIntegralInRange(-largest, largest);
}

void writeRecords(FuzzedDataProvider &bytes)
{
    ContactDetailMsg conference;
    conference.confId = anyText(bytes, Said);
    conference.duration = anyMsecs(bytes);
    conference.startTime = anyMsecs(bytes);
    conference.participantLimit = bytes.ConsumeIntegral<int>();
    const QJsonObject update = read(RequestText::updateConference(conference));
    requireSame(update.value(QStringLiteral("conferenceId")), conference.confId);
    require(update.value(QStringLiteral("participantLimit")).toInt() == conference.participantLimit);
    require(update.value(QStringLiteral("duration")).toVariant().toLongLong() == conference.duration);
    require(update.value(QStringLiteral("startTime")).toVariant().toLongLong() == conference.startTime);

    QVector<UserInfo> users(bytes.ConsumeIntegralInRange(0, 4));
    for (UserInfo &user : users) {
        user.name = anyText(bytes, Said);
        user.userId = anyText(bytes, Said);
    }
    const QJsonArray members = RequestText::membersPicked(users);
    require(members.size() == users.size());
    require(read(RequestText::inviteMembers(members)).value(QStringLiteral("members")).toArray().size() ==
            members.size());
    const qint64 start = anyMsecs(bytes);
    const QJsonObject create = read(RequestText::createConference(members, start));
    require(create.value(QStringLiteral("members")).toArray().size() == users.size());
    require(create.value(QStringLiteral("startTime")).toVariant().toLongLong() == start);
    require(read(RequestText::createConference(members)).size() == 1);
}

void writeTime(FuzzedDataProvider &bytes)
{
    const QString slot = bytes.ConsumeIntegralInRange(0, 9) == 9
                             ? QString()
                             : QString::fromUtf8(TemplateText(bytes).after(Slot));
    const bool wasSchedule = bytes.ConsumeBool();
    bool isSchedule = wasSchedule;
    qint64 start = -1;
    const bool isAccepted = ContactUtils::scheduleTimeMsecsInit(slot, isSchedule, start);
    require(isSchedule == (wasSchedule || (isAccepted && !slot.isEmpty())));
    require(!isAccepted || !isSchedule || start > QDateTime::currentMSecsSinceEpoch() - 60000);

    qint64 queryStart = bytes.ConsumeBool() ? 0 : bytes.ConsumeIntegral<qint64>();
    const QString range = ContactUtils::queryParamInit(slot, queryStart);
    if (!range.isEmpty()) {
        const QJsonObject object = read(range);
        require(object.size() == 2);
        require(object.value(QStringLiteral("endTime")).toDouble() > 0);
    }
}

} // namespace

void prepareToFuzz(int & /*argc*/, char ** /*argv*/)
{
    qputenv("TZ", "America/New_York"); // where an hour of 10 March 2030 does not exist
    tzset();
}

void fuzz(FuzzedDataProvider &bytes)
{
    switch (bytes.ConsumeIntegralInRange(0, 2)) {
    case 0:
        writeTime(bytes);
        break;
    case 1:
        writeTexts(bytes);
        break;
    default:
        writeRecords(bytes);
    }
}
