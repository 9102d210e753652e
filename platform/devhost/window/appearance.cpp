// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "appearance.h"

#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QSettings>

namespace devhost {

namespace {

constexpr qreal PlannedPixelSize = 14;
constexpr qreal LeastCardScale = 0.8;
constexpr qreal MostCardScale = 1.45; ///< larger text would not fit the fixed sizes of rows and captions

} // namespace

Appearance::Appearance(QObject *parent) : SharedAppearance(QSettings().fileName(), parent) {}

qreal Appearance::cardScale() const
{
    // Designed for a desktop font of 14 pixels; a smaller one is no reason to shrink them.
    QFont desktop = QApplication::font();
    desktop.setPointSizeF(desktopPointSize());
    const qreal ofDesktop = qMax(1.0, QFontInfo(desktop).pixelSize() / PlannedPixelSize);
    const qreal ofStep = pointSize() / desktopPointSize();
    return qBound(LeastCardScale, ofDesktop * ofStep, MostCardScale);
}

} // namespace devhost
