// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <algorithm>
#include <initializer_list>

namespace understanding {

/// True when @p word stands at @p position.
inline bool startsAt(const QString &text, int position, const QString &word)
{
    return position >= 0 && word.size() <= text.size() - position &&
           std::equal(word.cbegin(), word.cend(), text.cbegin() + position);
}

/// The length of the first of @p words that stands at @p position, 0 for none. List longer words first.
inline int firstOf(const QString &text, int position, std::initializer_list<const char16_t *> words)
{
    for (const char16_t *word : words) {
        int length = 0;
        while (word[length] != 0 && position + length < text.size() &&
               text.at(position + length) == QChar(word[length])) {
            ++length;
        }
        if (word[length] == 0) {
            return length;
        }
    }
    return 0;
}

/// The character at @p position, a null character outside the text.
inline QChar charAt(const QString &text, int position)
{
    return position >= 0 && position < text.size() ? text.at(position) : QChar();
}

/// True for letters of the Latin alphabet, also with accents, and for ASCII digits.
inline bool isLatinLetterOrDigit(QChar character)
{
    constexpr ushort latinEnd = 0x250; // with accents: Müller
    return character.unicode() < latinEnd && character.isLetterOrNumber();
}

inline bool isAsciiDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

inline int skipSpaces(const QString &text, int position)
{
    while (charAt(text, position) == QLatin1Char(' ')) {
        ++position;
    }
    return position;
}

} // namespace understanding
