// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/legiblecolor.h"

#include <lumo/lguiapplicationhelper.h>

#include <QGuiApplication>
#include <QPalette>

#include <cmath>

namespace {

constexpr double LeastContrast = 4.6; ///< a little more, for what rounding takes
constexpr int StepPercent = 105;

/// As the Web Content Accessibility Guidelines define it.
double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

} // namespace

QColor legibleInLists(const QColor &color)
{
    const QPalette palette = QGuiApplication::palette();
    const bool isDark = LGuiApplicationHelper::toColorType(palette) == LGuiApplicationHelper::DarkType;
    QColor shown = color;
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::AlternateBase}) {
        const QColor ground = palette.color(role);
        for (int step = 0; step < 100 && contrast(shown, ground) < LeastContrast; ++step) {
            shown = isDark ? QColor::fromHslF(shown.hslHueF(), shown.hslSaturationF(),
                                              qMin(1.0, shown.lightnessF() + 0.02))
                           : shown.darker(StepPercent);
        }
    }
    return shown;
}
