// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "time/dayparts.h"

#include "time/wordtable.h"

namespace understanding {

namespace {

DayPart parsePart(const QString &line)
{
    const QStringList fields = line.split(QLatin1Char('\t'));
    DayPart part;
    part.word = fields.at(0);
    part.firstHour = fields.at(1).toInt();
    part.lastHour = fields.at(2).toInt();
    const QStringList shifted = fields.at(3).split(QLatin1Char('-'), Qt::SkipEmptyParts);
    if (shifted.size() == 2) {
        part.firstShifted = shifted.at(0).toInt();
        part.lastShifted = shifted.at(1).toInt();
    }
    part.start = QTime::fromString(fields.at(4), QStringLiteral("hh:mm"));
    return part;
}

const WordTable<DayPart> &dayParts()
{
    static const WordTable<DayPart> parts(QStringLiteral("dayparts.tsv"), parsePart);
    return parts;
}

} // namespace

int DayPart::hourFor(int saidHour) const
{
    constexpr int halfDay = 12;
    constexpr int wholeDay = 24;
    int hour = saidHour;
    if (saidHour >= firstShifted && saidHour <= lastShifted) {
        hour += halfDay;
    } else if (lastHour >= wholeDay && saidHour <= lastHour - wholeDay) {
        hour += wholeDay;
    }
    return hour >= firstHour && hour <= lastHour ? hour : -1;
}

const DayPart &dayPart(int row)
{
    return dayParts().at(row);
}

int dayPartAt(const QString &text, int position, bool shortForms)
{
    return dayParts().find(text, position, shortForms ? 1 : 2);
}

} // namespace understanding
