// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "palettes.h"

namespace {

struct RoleColors
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr RoleColors Colors[] = {
    {QPalette::Window, 0xfff8f8f8, 0xff232427},
    {QPalette::WindowText, 0xff1f2328, 0xffe8eaed},
    {QPalette::Base, 0xffffffff, 0xff2c2d31},
    {QPalette::AlternateBase, 0xfff2f3f5, 0xff333539},
    {QPalette::Text, 0xff1f2328, 0xffe8eaed},
    {QPalette::Button, 0xffe9ebee, 0xff3d3f45},
    {QPalette::ButtonText, 0xff1f2328, 0xffe8eaed},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::ToolTipBase, 0xffffffff, 0xff34363a},
    {QPalette::ToolTipText, 0xff1f2328, 0xffe8eaed},
    {QPalette::Light, 0xffffffff, 0xff55585f},
    {QPalette::Midlight, 0xfff1f2f4, 0xff484b51},
    {QPalette::Mid, 0xff838991, 0xff888c94},
    {QPalette::Dark, 0xff747a82, 0xff17181a},
    {QPalette::Shadow, 0xff5c6168, 0xff000000},
    {QPalette::Highlight, 0xff0071e3, 0xff0071e3},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link, 0xff0067ce, 0xff5eb0ff},
    {QPalette::LinkVisited, 0xff6a4fb3, 0xffb39cf0},
    {QPalette::PlaceholderText, 0xff666d76, 0xffa0a6ae},
};

constexpr QPalette::ColorRole TextRoles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                             QPalette::HighlightedText, QPalette::ToolTipText};
constexpr qreal DisabledTextOpacity = 0.4;

QPalette make(QRgb RoleColors::*theme)
{
    QPalette palette;
    for (const RoleColors &colors : Colors) {
        palette.setColor(QPalette::All, colors.role, QColor::fromRgb(colors.*theme));
    }
    for (const QPalette::ColorRole role : TextRoles) {
        QColor faint = palette.color(QPalette::Active, role);
        faint.setAlphaF(DisabledTextOpacity);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

} // namespace

QPalette Palettes::light()
{
    return make(&RoleColors::light);
}

QPalette Palettes::dark()
{
    return make(&RoleColors::dark);
}
