// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <vector>

namespace understanding {

/**
 * The characters that a rule asks for. Reading a sentence asks some seventy times whether one is in such a
 * set, and searching a string for it takes several times as long. The null character is in no set.
 */
class CharacterSet
{
public:
    explicit CharacterSet(QStringView characters)
    {
        // Sparse, so that a place is almost always the right one or empty.
        constexpr std::size_t sparseness = 4;
        while (m_places.size() < sparseness * static_cast<std::size_t>(characters.size())) {
            m_places.resize(m_places.size() * 2);
        }
        for (const QChar character : characters) {
            m_places[placeOf(character)] = character;
        }
    }

    bool contains(QChar character) const
    {
        return !character.isNull() && m_places[placeOf(character)] == character;
    }

    /// True if @p text has one of the characters.
    bool meets(const QString &text) const
    {
        return std::any_of(text.cbegin(), text.cend(),
                           [this](QChar character) { return contains(character); });
    }

private:
    /// Where @p character stands, or where it would.
    std::size_t placeOf(QChar character) const
    {
        const std::size_t mask = m_places.size() - 1; // the size is a power of two
        std::size_t place = character.unicode() & mask;
        while (!m_places[place].isNull() && m_places[place] != character) {
            place = (place + 1) & mask;
        }
        return place;
    }

    std::vector<QChar> m_places = std::vector<QChar>(16);
};

} // namespace understanding
