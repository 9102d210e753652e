// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// A folder for pictures of cards. Without a folder nothing is written and every call succeeds.
class Screenshots
{
public:
    explicit Screenshots(const QString &folder = QString());

    bool isOn() const { return !m_folder.isEmpty(); }
    /// Creates the folder. Returns false on failure.
    bool prepare() const;
    /// Lays out @p card, writes its picture and returns the file's name; empty on failure, or without a
    /// folder.
    QString take(QWidget &card, const QString &baseName) const;
    QString folder() const { return m_folder; }

private:
    const QString m_folder;
};

} // namespace devhost
