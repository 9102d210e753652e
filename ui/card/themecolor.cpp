// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/themecolor.h"

#include <lumo/lguiapplicationhelper.h>

#include <QWidget>

QColor ThemeColor::text(int alpha)
{
    const bool light = LGuiApplicationHelper::instance()->themeType() == LGuiApplicationHelper::LightType;
    QColor color = light ? Qt::black : Qt::white;
    color.setAlpha(alpha);
    return color;
}

void ThemeColor::applyText(QWidget &widget, int alpha)
{
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::All, QPalette::WindowText, text(alpha));
    widget.setPalette(palette);
}
