// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

#include <initializer_list>

/// Maps an outcome word to a result code.
struct OutcomeCode
{
    QLatin1String word;
    int code;
};

using OutcomeTable = std::initializer_list<OutcomeCode>;

/// The contacts application's answer to a request; untrusted input.
class AbilityAnswer
{
public:
    /// Text that is not JSON makes the answer unreadable, and is logged as a warning starting with @p
    /// errorText.
    AbilityAnswer(const QString &text, const char *errorText);

    [[nodiscard]] bool isReadable() const { return m_isReadable; }
    /// The outcome word; empty if the answer has none.
    [[nodiscard]] const QString &outcome() const { return m_outcome; }
    [[nodiscard]] const QJsonObject &object() const { return m_object; }

    /// Looks the outcome up in @p table; @p otherwise if it is not listed.
    [[nodiscard]] int code(OutcomeTable table, int otherwise) const;

private:
    QJsonObject m_object;
    QString m_outcome;
    bool m_isReadable = false;
};
