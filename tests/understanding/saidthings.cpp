// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "saidthings.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace {

/// A pattern that takes all digits or none, so that no part of a number is taken for the whole.
QString numeral()
{
    return QStringLiteral("(?:[0-9]++|[零〇一二三四五六七八九十两]++)");
}

int digitOf(QChar character)
{
    static const QString digits = QStringLiteral("零一二三四五六七八九");
    static const QString others = QStringLiteral("〇幺两");
    static constexpr int values[] = {0, 1, 2};
    if (character >= QLatin1Char('0') && character <= QLatin1Char('9')) {
        return character.digitValue();
    }
    const int other = others.indexOf(character);
    return other >= 0 ? values[other] : digits.indexOf(character);
}

/// 20, 二十 and 四十五; -1 for what is no number below a hundred.
int quantityOf(const QString &text)
{
    static const QRegularExpression spoken(QStringLiteral(
        "^(?:[零〇]?([一二三四五六七八九两])|([一二三四五六七八九])?十([一二三四五六七八九])?)$"));
    if (text == QStringLiteral("零") || text == QStringLiteral("〇")) {
        return 0;
    }
    bool isWritten = false;
    const int written = text.toInt(&isWritten);
    if (isWritten) {
        return text.size() <= 2 ? written : -1;
    }
    const QRegularExpressionMatch match = spoken.match(text);
    if (!match.hasMatch()) {
        return -1;
    }
    if (match.capturedLength(1) > 0) {
        return digitOf(match.captured(1).at(0));
    }
    const int tens = match.capturedLength(2) > 0 ? digitOf(match.captured(2).at(0)) : 1;
    const int ones = match.capturedLength(3) > 0 ? digitOf(match.captured(3).at(0)) : 0;
    return tens * 10 + ones;
}

/// Minutes are told like quantities or digit by digit: 九点四五.
int minuteOf(const QString &text)
{
    const int quantity = quantityOf(text);
    const bool isSpelled =
        quantity < 0 && text.size() == 2 && digitOf(text.at(0)) >= 0 && digitOf(text.at(1)) >= 0;
    return isSpelled ? digitOf(text.at(0)) * 10 + digitOf(text.at(1)) : quantity;
}

const QRegularExpression &days()
{
    static const QRegularExpression all(
        QStringLiteral(
            "今天|[明后](?:天|(?=[上下]午))|(下*)周{1,2}([一二三四五六日天])|(%1)月(%1)(?!月)号?|(%1)号")
            .arg(numeral()));
    return all;
}

/// The days that were said. What is no date, such as 2月30号, is an invalid one.
QSet<QDate> daysSaid(const QString &sentence, const QDate &today)
{
    QSet<QDate> said;
    int namedWeeks = 0; // 周三 in 下周三周三 is next week's
    for (auto match = days().globalMatch(sentence); match.hasNext();) {
        const QRegularExpressionMatch day = match.next();
        const QString text = day.captured();
        const int relative = QStringLiteral("今明后").indexOf(text.at(0));
        if (relative >= 0) {
            said.insert(today.addDays(relative));
        } else if (day.capturedLength(2) > 0) {
            const int weekday = QStringLiteral("一二三四五六日天").indexOf(day.captured(2)) + 1;
            namedWeeks = qMax(namedWeeks, day.capturedLength(1));
            const int weeks = namedWeeks;
            const bool isPast = weeks == 0 && weekday < today.dayOfWeek();
            said.insert(today.addDays(qMin(weekday, 7) - today.dayOfWeek() + 7 * (isPast ? 1 : weeks)));
        } else {
            const bool hasMonth = day.capturedLength(3) > 0;
            const int number = quantityOf(day.captured(hasMonth ? 4 : 5));
            QDate date(today.year(), hasMonth ? quantityOf(day.captured(3)) : today.month(), number);
            if (date.isValid() && date < today) {
                date = hasMonth ? date.addYears(1) : date.addMonths(1);
            }
            said.insert(date);
        }
    }
    return said;
}

/// The clock times that were said, before the part of the day counts. What follows 到 is an end.
QSet<QPair<int, int>> clocksSaid(QString sentence)
{
    static const QRegularExpression clocks(QStringLiteral("(?<![0-9零〇一二三四五六七八九十两])(到)?(%1)(?:"
                                                          "到(?:%1))?点(?:(半)|(一|三)刻|(%1)(?![点号月]))?")
                                               .arg(numeral()));
    sentence.replace(days(), QStringLiteral("|"));
    QSet<QPair<int, int>> said;
    for (auto match = clocks.globalMatch(sentence); match.hasNext();) {
        const QRegularExpressionMatch clock = match.next();
        if (clock.capturedLength(1) > 0) {
            continue;
        }
        constexpr int half = 30;
        constexpr int quarter = 15;
        int minute = 0;
        if (clock.capturedLength(3) > 0) {
            minute = half;
        } else if (clock.capturedLength(4) > 0) {
            minute = quarter * digitOf(clock.captured(4).at(0));
        } else if (clock.capturedLength(5) > 0) {
            minute = minuteOf(clock.captured(5));
        }
        said.insert({quantityOf(clock.captured(2)), minute});
    }
    return said;
}

/// The hours of the day that @p hour may stand for.
QSet<int> hoursOf(int hour, const QSet<QString> &parts)
{
    constexpr int noon = 12;
    if (parts.size() > 1) {
        return {};
    }
    if (hour > noon) {
        return parts.contains(QStringLiteral("上午")) ? QSet<int>() : QSet<int>{hour};
    }
    if (parts.contains(QStringLiteral("上午"))) {
        return {hour};
    }
    const int later = hour == noon ? noon : hour + noon;
    constexpr int lastOfAfternoon = 6; // 1 to 6 alone mean the afternoon
    return parts.isEmpty() && hour > lastOfAfternoon ? QSet<int>{hour, later} : QSet<int>{later};
}

} // namespace

QStringList digitsSaid(const QString &sentence)
{
    QStringList said;
    bool continues = false;
    for (const QChar character : sentence) {
        const int digit = digitOf(character);
        if (digit >= 0 && !continues) {
            said.append(QString());
        }
        if (digit >= 0) {
            said.last() += QString::number(digit);
        }
        continues = digit >= 0;
    }
    return said;
}

QString digitsSaidBehind(const QString &sentence, const QString &label)
{
    const int at = sentence.lastIndexOf(label);
    static const QRegularExpression links(QStringLiteral("^[，,：:是为 ]+"));
    const QString behind = at < 0 ? QString() : sentence.mid(at + label.size()).remove(links);
    return behind.isEmpty() || digitOf(behind.at(0)) < 0 ? QString() : digitsSaid(behind).value(0);
}

QString timeNotSaid(const QString &sentence, const QString &normValue, const QDateTime &now)
{
    const QString time = QJsonDocument::fromJson(normValue.toUtf8())
                             .object()
                             .value(QStringLiteral("suggestDatetime"))
                             .toString();
    const QDateTime start = QDateTime::fromString(time, Qt::ISODate);
    if (!start.isValid()) {
        return QStringLiteral("no time: ") + normValue;
    }
    const QSet<QDate> days = daysSaid(sentence, now.date());
    const QSet<QPair<int, int>> clocks = clocksSaid(sentence);
    const bool isToday = start.date() == now.date();
    const bool isNext = start.date() == now.date().addDays(1) && start.time() < now.time();
    if (days.isEmpty() ? !isToday && !isNext : days.size() > 1 || !days.contains(start.date())) {
        return QStringLiteral("this day was not said: ") + time;
    }
    QSet<QString> parts;
    for (const QString &part : {QStringLiteral("上午"), QStringLiteral("下午")}) {
        if (sentence.contains(part)) {
            parts.insert(part);
        }
    }
    if (clocks.isEmpty()) {
        const QTime usual = parts.isEmpty()                          ? QTime(0, 0)
                            : parts.contains(QStringLiteral("上午")) ? QTime(10, 0)
                                                                     : QTime(15, 0);
        const bool hasClock = time.contains(QLatin1Char('T'));
        return hasClock == !parts.isEmpty() && parts.size() < 2 && (!hasClock || start.time() == usual)
                   ? QString()
                   : QStringLiteral("no hour was said: ") + time;
    }
    const auto isMeant = [&](const QPair<int, int> &clock) {
        return hoursOf(clock.first, parts).contains(start.time().hour()) &&
               clock.second == start.time().minute();
    };
    const bool isSaid = time.contains(QLatin1Char('T')) && clocks.size() == 1 && isMeant(*clocks.cbegin());
    return isSaid ? QString() : QStringLiteral("this hour was not said: ") + time;
}
