// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace understanding {

/// Finds known names in a text, the longest first.
class ContactIndex final
{
public:
    explicit ContactIndex(const QStringList &names = {});

    /// The longest known name at @p position, empty for none. Ignores names of one character, which occur in
    /// too many words. Latin names match whole words in any case.
    QString longestAt(const QString &text, int position) const;

private:
    QHash<QChar, QVector<QString>> m_byFirst;
};

} // namespace understanding
