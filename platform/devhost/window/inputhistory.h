// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace devhost {

/// Earlier input, recalled with the arrow keys. A line that was begun is kept at the end.
class InputHistory
{
public:
    void add(const QString &text);
    /// Forgets a text that turned out to be a secret.
    void remove(const QString &text);
    /// The text before the current one; @p present itself at the oldest.
    QString older(const QString &present);
    /// The text after the current one, and finally the line that was begun.
    QString newer(const QString &present);

private:
    QStringList m_texts;
    QString m_begun;
    int m_position = 0; ///< in m_texts; its size means the begun line
};

} // namespace devhost
