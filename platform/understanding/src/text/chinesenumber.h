// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// A number found in a text: its value and how many characters it takes; length 0 where there is none.
struct NumberMatch
{
    int value = 0;
    int length = 0;
    explicit operator bool() const { return length > 0; }
};

/// The value of one digit, 0 to 9, in any of its spellings ("3", "三", "〇", "幺"); -1 for anything else.
int digitValue(QChar character);

/// Reads a quantity at @p position: "25", "二十五", "一百二十", "两", "零五", "三零" (digit by digit). Up to
/// four digits. "幺" is no quantity: it is said in numbers that name something.
NumberMatch readQuantity(const QString &text, int position);

/// Where the string of digits at @p position ends, spaces and dashes between digits and "三个八" included; \a
/// position where there is none.
int digitStringEnd(const QString &text, int position);

/// The digits of a string of digits read aloud: "幺二三 零" is "1230", "三个八" is "888". Letters and signs
/// stay.
QString digitString(const QString &said);

} // namespace understanding
