// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <cstddef>

/// One outcome word and the result code it means to one kind of request.
struct OutcomeCode
{
    QLatin1String word;
    int code;
};

/// The contacts application's answer to one request, read from outside input.
class AbilityAnswer
{
public:
    /// A text that is not JSON gives an unreadable answer, logged as a warning that begins with @p errorText.
    AbilityAnswer(const QString &text, const char *errorText);

    bool isReadable() const { return m_isReadable; }
    /// Empty when the answer has none.
    const QString &outcome() const { return m_outcome; }
    const QJsonObject &object() const { return m_object; }

    /// What the outcome means by @p table; @p otherwise when it is not listed.
    template <std::size_t Size>
    int code(const OutcomeCode (&table)[Size], int otherwise) const
    {
        for (const OutcomeCode &row : table) {
            if (m_outcome == row.word) {
                return row.code;
            }
        }
        return otherwise;
    }

private:
    QJsonObject m_object;
    QString m_outcome;
    bool m_isReadable = false;
};
