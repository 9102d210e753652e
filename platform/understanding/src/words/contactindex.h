// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace understanding {

/// The known names, ready to be found in a text longest first.
class ContactIndex final
{
public:
    explicit ContactIndex(const QStringList &names = {});

    /// The longest known name at @p position, empty for none. Names of one character are not looked for: they
    /// are found in too many words. Latin names stand alone and match in any case.
    QString longestAt(const QString &text, int position) const;

private:
    QHash<QChar, QVector<QString>> m_byFirst;
};

} // namespace understanding
