// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QLatin1String>
#include <QString>
#include <QVector>

#include <optional>
#include <stdexcept>

/// The parameters are not valid for the action. Nothing has changed yet when it is thrown.
class InvalidParameters : public std::runtime_error
{
public:
    explicit InvalidParameters(const char *reason) : std::runtime_error(reason) {}
};

/// A person to invite, given by name, or by id when picked on a card.
struct RequestedMember
{
    QString name;   ///< as it was said, goes back in the answer unchanged
    QString userId; ///< empty unless picked
};

/// The parameter text of one request. It comes from speech and from other programs, so every accessor
/// validates and throws InvalidParameters.
class RequestParameters
{
public:
    /// Ten times as long as any request we know of.
    static constexpr int MaxBytes = 65536;

    explicit RequestParameters(const QString &text);

    bool has(QLatin1String key) const { return m_object.contains(key); }
    /// The key's text, empty when it is absent.
    QString text(QLatin1String key) const;
    /// A whole number from 0 to the end of the year 9999, in milliseconds; nothing when the key is absent.
    std::optional<qint64> number(QLatin1String key) const;
    QVector<RequestedMember> members() const;

private:
    QJsonObject m_object;
};
