// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/legibleground.h"

#include "lumo/lguiapplicationhelper.h"

#include <QPainter>

namespace {
constexpr qreal Radius = 4;
/// Below this brightness, of 255, a text is lost on a dark ground.
constexpr int DarkestOnDark = 64;
constexpr QColor Ground(247, 247, 247, 180);
} // namespace

void paintLegibleGround(QPainter &painter, const QRect &rect, const QColor &text)
{
    const bool darkTheme = LGuiApplicationHelper::instance()->themeType() == LGuiApplicationHelper::DarkType;
    if (!darkTheme || qGray(text.rgb()) >= DarkestOnDark) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ground);
    painter.drawRoundedRect(rect, Radius, Radius);
    painter.restore();
}
