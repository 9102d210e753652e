// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// A sentence in the spelling of the rules: full-width letters, digits and signs become ASCII, traditional
/// characters simplified ones, a space between two clauses a comma; case is kept. Maps character by
/// character, so that positions in text() and raw() agree and every slot can carry what was really typed.
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
