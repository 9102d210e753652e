// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// A number found in a text: its value and its length in characters, 0 for none.
struct NumberMatch
{
    int value = 0;
    int length = 0;
    explicit operator bool() const { return length > 0; }
};

/// The value of one digit, 0 to 9, in any of its spellings ("3", "三", "〇", "幺"); -1 for anything else.
int digitValue(QChar character);

/// Reads a quantity at @p position: "25", "二十五", "一百二十", "两", "零五", "三零" (digit by digit). Up to
/// four digits. "幺" is no quantity: it only occurs in numbers that name something.
NumberMatch readQuantity(const QString &text, int position);

/// The end of the string of digits at @p position, including spaces and dashes between digits and "三个八";
/// @p position if there is none.
int digitStringEnd(const QString &text, int position);

/// Writes a number that was read aloud as digits: "幺二三 零" is "1230", "三个八" is "888". Drops spaces,
/// commas and, if only digits remain, dashes; keeps letters and other signs.
QString digitString(const QString &said);

} // namespace understanding
