// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "screenshots.h"

#include "cardpicture.h"

#include <QDir>
#include <QWidget>

namespace devhost {

Screenshots::Screenshots(const QString &folder) : m_folder(folder) {}

bool Screenshots::prepare() const
{
    return !isOn() || QDir().mkpath(m_folder);
}

QString Screenshots::take(QWidget &card, const QString &baseName) const
{
    giveCardItsSize(card);
    const QImage picture = cardPicture(card);
    if (!isOn()) {
        return QString();
    }
    const QString name = baseName + QStringLiteral(".png");
    return picture.save(QDir(m_folder).filePath(name)) ? name : QString();
}

} // namespace devhost
