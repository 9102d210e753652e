// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actline.h"

#include "cleantext.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace devhost {

namespace {

constexpr int MostNamesShown = 5;
constexpr int LongestPart = 40;

/// The slots of the single intent that a launcher's sentence may hold.
class Slots
{
public:
    explicit Slots(const QJsonArray &array) : m_array(array) {}

    bool has(const char *name) const { return !values(name).isEmpty(); }
    QString first(const char *name) const { return values(name).value(0); }
    QStringList values(const char *name) const
    {
        QStringList values;
        for (const QJsonValue &slot : m_array) {
            if (slot.toObject().value(QLatin1String("name")).toString() == QLatin1String(name)) {
                values.append(slot.toObject().value(QLatin1String("normValue")).toString());
            }
        }
        return values;
    }

private:
    const QJsonArray m_array;
};

QString shown(const QString &said)
{
    const QString clean = cleanText(said).simplified();
    return clean.size() <= LongestPart ? clean : clean.left(LongestPart) + QChar(0x2026);
}

QString people(const QStringList &names)
{
    QStringList shownNames;
    for (int i = 0; i < qMin(names.size(), MostNamesShown); ++i) {
        shownNames.append(shown(names.at(i)));
    }
    const QString listed = shownNames.join(QStringLiteral("、"));
    return names.size() <= MostNamesShown ? listed : QStringLiteral("%1等%2人").arg(listed).arg(names.size());
}

QString day(const QDate &date, const QDate &today)
{
    return date.toString(date.year() == today.year() ? QStringLiteral("M月d日")
                                                     : QStringLiteral("yyyy年M月d日"));
}

/// Reads a datetime slot: {"suggestDatetime":"2026-11-22T15:00:00"}, or a day alone.
QString suggested(const Slots &slotList)
{
    return QJsonDocument::fromJson(slotList.first("datetime").toUtf8())
        .object()
        .value(QLatin1String("suggestDatetime"))
        .toString();
}

bool isKnownToBeBooked(const QString &verb)
{
    const QStringList booking{QStringLiteral("约"), QStringLiteral("订"),       QStringLiteral("定"),
                              QStringLiteral("排"), QStringLiteral("schedule"), QStringLiteral("book")};
    return std::any_of(booking.begin(), booking.end(),
                       [&verb](const QString &part) { return verb.contains(part, Qt::CaseInsensitive); });
}

QString createLine(const Slots &slotList, const QDate &today)
{
    const QString with =
        slotList.has("name") ? QStringLiteral("与%1的").arg(people(slotList.values("name"))) : QString();
    if (!slotList.has("datetime")) {
        // 预约会议 leaves the time open; the plugin would start the conference now.
        return isKnownToBeBooked(slotList.first("open")) ? QString()
                                                         : QStringLiteral("现在发起%1视频会议").arg(with);
    }
    const QString time = suggested(slotList);
    const QDateTime start = QDateTime::fromString(time, Qt::ISODate);
    if (!start.isValid() || !time.contains(QLatin1Char('T'))) {
        return {}; // for a day alone the plugin picks the hour
    }
    return QStringLiteral("预约 %1 %2 %3视频会议")
        .arg(day(start.date(), today), start.time().toString(QStringLiteral("HH:mm")),
             with.isEmpty() ? QStringLiteral("的") : with);
}

QString queryLine(const Slots &slotList, const QDate &today)
{
    if (!slotList.has("datetime")) {
        return QStringLiteral("查询接下来的视频会议");
    }
    const QDate date = QDate::fromString(suggested(slotList).left(10), Qt::ISODate);
    return date.isValid() ? QStringLiteral("查询 %1的视频会议").arg(day(date, today)) : QString();
}

QString inviteLine(const Slots &slotList, const QDate &)
{
    return slotList.has("name")
               ? QStringLiteral("邀请%1加入当前的视频会议").arg(people(slotList.values("name")))
               : QString();
}

QString joinLine(const Slots &slotList, const QDate &)
{
    return slotList.has("id") && !slotList.has("password")
               ? QStringLiteral("加入会议号为 %1 的视频会议").arg(shown(slotList.first("id")))
               : QString();
}

QString joinMineLine(const Slots &, const QDate &)
{
    return QStringLiteral("进入我的视频会议");
}

QString closeLine(const Slots &, const QDate &)
{
    return QStringLiteral("退出当前的视频会议");
}

QString addLine(const Slots &slotList, const QDate &)
{
    return slotList.has("account")
               ? QStringLiteral("向 %1 发送好友申请").arg(shown(slotList.first("account")))
               : QString();
}

constexpr struct
{
    const char *intent;
    QString (*line)(const Slots &, const QDate &today);
} LineTable[] = {
    {"CREATE_CONFERENCE", createLine},     {"INVITE_CONFERENCE", inviteLine},
    {"ENETR_ID_CONFERENCE", joinLine}, // its spelling is the interface
    {"ENTER_MY_CONFERENCE", joinMineLine}, {"CLOSE_CONFERENCE", closeLine},
    {"QUERY_CONFERENCE", queryLine},       {"ADD_BUDDY", addLine},
};

} // namespace

QString actLine(const QString &semantic, const QDate &today, const QSet<QString> &knownNames)
{
    const QJsonArray items = QJsonDocument::fromJson(semantic.toUtf8())
                                 .object()
                                 .value(QLatin1String("intent"))
                                 .toObject()
                                 .value(QLatin1String("semantic"))
                                 .toArray();
    if (items.size() != 1) {
        return {};
    }
    const QJsonObject item = items.at(0).toObject();
    const Slots slotList(item.value(QLatin1String("slots")).toArray());
    const QStringList names = slotList.values("name");
    const bool areAllKnown =
        knownNames.isEmpty() || std::all_of(names.begin(), names.end(), [&knownNames](const QString &name) {
            return knownNames.contains(name);
        });
    const QString intent = item.value(QLatin1String("intent")).toString();
    for (const auto &row : LineTable) {
        if (areAllKnown && intent == QLatin1String(row.intent)) {
            return row.line(slotList, today);
        }
    }
    return {};
}

} // namespace devhost
