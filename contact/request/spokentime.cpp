// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "request/spokentime.h"

#include "wire/latin1literal.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr QLatin1String SuggestDatetimeKey = "suggestDatetime"_latin1;
constexpr QLatin1Char TimeMark('T');

/// Whether @p text matches @p shape, where a zero stands for any digit.
bool hasShape(const QString &text, QLatin1String shape)
{
    return text.size() == shape.size() &&
           std::equal(text.cbegin(), text.cend(), shape.begin(), [](QChar character, char expected) {
               const ushort code = character.unicode();
               return expected == '0' ? code >= '0' && code <= '9' : character == QLatin1Char(expected);
           });
}

// Parsed by hand: Qt's format strings cost more than the rest of a request.

QDate dateOf(const QString &text)
{
    if (!hasShape(text, "0000-00-00"_latin1)) {
        return {};
    }
    return {text.leftRef(4).toInt(), text.midRef(5, 2).toInt(), text.midRef(8, 2).toInt()};
}

QTime timeOf(const QString &text)
{
    if (!hasShape(text, "00:00:00"_latin1)) {
        return {};
    }
    return {text.leftRef(2).toInt(), text.midRef(3, 2).toInt(), text.midRef(6, 2).toInt()};
}

} // namespace

SpokenTime SpokenTime::fromSlot(const QString &slotText, QJsonParseError *error)
{
    SpokenTime result;
    const QJsonDocument document = QJsonDocument::fromJson(slotText.toUtf8(), error);
    result.m_text = document.object().value(SuggestDatetimeKey).toString();
    result.m_hasTime = result.m_text.contains(TimeMark);
    if (result.m_hasTime) {
        // Separately: LocalTime decides whether they exist together.
        const int mark = result.m_text.indexOf(TimeMark);
        result.m_time = timeOf(result.m_text.mid(mark + 1));
        if (result.m_time.isValid()) {
            result.m_date = dateOf(result.m_text.left(mark));
        }
    } else {
        result.m_date = dateOf(result.m_text);
    }
    return result;
}

QDateTime SpokenTime::exact() const
{
    return LocalTime::at(m_date, m_time);
}

QDateTime LocalTime::at(const QDate &date, const QTime &time)
{
    if (!date.isValid() || !time.isValid()) {
        return {}; // QDateTime would take midnight for an invalid time
    }
    QDateTime wanted(date, time);
    if (wanted.isValid()) {
        return wanted;
    }
    // Continues as if the clocks had not gone forward. Qt's own milliseconds for such a time lie before the
    // change: for a missing midnight, on the previous day.
    const int offset = QDateTime(date.addDays(-1), time).offsetFromUtc();
    return QDateTime(date, time, Qt::UTC).addSecs(-offset).toLocalTime();
}

QDateTime LocalTime::startOfDay(const QDate &date)
{
    return at(date, QTime(0, 0));
}

QDateTime LocalTime::nextFullHour(const QDateTime &now)
{
    constexpr int lastHour = 23;
    const int hour = now.time().hour();
    return hour == lastHour ? startOfDay(now.date().addDays(1)) : at(now.date(), QTime(hour + 1, 0));
}

qint64 LocalTime::msecs(const QDateTime &dateTime)
{
    return dateTime.isValid() ? dateTime.toMSecsSinceEpoch() : 0;
}
