// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

#include <initializer_list>

/// One outcome word and the result code it means to one kind of request.
struct OutcomeCode
{
    QLatin1String word;
    int code;
};

using OutcomeTable = std::initializer_list<OutcomeCode>;

/// The contacts application's answer to one request, read from outside input.
class AbilityAnswer
{
public:
    /// A text that is not JSON gives an unreadable answer, logged as a warning that begins with @p errorText.
    AbilityAnswer(const QString &text, const char *errorText);

    [[nodiscard]] bool isReadable() const { return m_isReadable; }
    /// Empty when the answer has none.
    [[nodiscard]] const QString &outcome() const { return m_outcome; }
    [[nodiscard]] const QJsonObject &object() const { return m_object; }

    /// What the outcome means by @p table; @p otherwise when it is not listed.
    [[nodiscard]] int code(OutcomeTable table, int otherwise) const;

private:
    QJsonObject m_object;
    QString m_outcome;
    bool m_isReadable = false;
};
