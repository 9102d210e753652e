// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>
#include <set>

/// A row's key, one value for each column; texts and integers.
using RowKey = QVector<QVariant>;

/**
 * Finds keys between two others, for a search that cannot count rows. Texts are bisected over the characters
 * met so far: where keys consist of digits, each digit covers a tenth.
 */
class MiddleKey
{
public:
    /// Learns the characters of a key.
    void meet(const RowKey &key);

    /// A key about halfway between @p low and @p high in the database's order; none when nothing is between
    /// them or they cannot be compared.
    std::optional<RowKey> between(const RowKey &low, const RowKey &high) const;

private:
    QVariant between(const QVariant &low, const QVariant &high) const;
    QVariant between(const QString &low, const QString &high) const;

    std::set<uint> m_characters;
};
