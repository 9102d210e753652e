// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// A sentence in the one spelling that the rules are written in: full-width letters and digits as ASCII,
/// traditional characters as simplified ones, upper case as it was. Character for character, so that a place
/// in text() is the same place in raw() and every slot can carry what was really typed.
class Sentence final
{
public:
    explicit Sentence(const QString &raw);

    const QString &raw() const { return m_raw; }
    const QString &text() const { return m_text; }
    int size() const { return m_text.size(); }
    QString rawPart(int position, int length) const { return m_raw.mid(position, length); }

private:
    QString m_raw;
    QString m_text;
};

} // namespace understanding
