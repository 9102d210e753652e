// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "appearance.h"

#include <lumo/lguiapplicationhelper.h>

#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QSettings>

namespace devhost {

namespace {

constexpr qreal SmallestPointSize = 6;
constexpr qreal PlannedPixelSize = 14;
constexpr qreal LeastCardScale = 0.8;
constexpr qreal MostCardScale = 1.45; ///< rows and captions have fixed sizes, which hold no more

const QLatin1String ThemeKey("appearance/theme");
const QLatin1String FontStepKey("appearance/fontStep");

} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
    , m_desktopPointSize(QApplication::font().pointSizeF())
{
    if (m_desktopPointSize <= 0) {
        m_desktopPointSize = QApplication::font().pixelSize() * 0.75;
    }
    const QSettings settings;
    m_theme = Theme(qBound(int(System), settings.value(ThemeKey, int(System)).toInt(), int(Dark)));
    m_fontStep = qBound(SmallestStep, settings.value(FontStepKey, 0).toInt(), LargestStep);
    applyTheme();
    applyFont();
}

void Appearance::setTheme(Theme theme)
{
    m_theme = theme;
    QSettings().setValue(ThemeKey, int(theme));
    applyTheme();
}

void Appearance::setFontStep(int step)
{
    m_fontStep = qBound(SmallestStep, step, LargestStep);
    QSettings().setValue(FontStepKey, m_fontStep);
    applyFont();
}

void Appearance::applyTheme()
{
    if (m_theme == System) {
        m_systemPalette.follow();
        return;
    }
    m_systemPalette.stop();
    LGuiApplicationHelper::instance()->setPaletteType(m_theme == Dark ? LGuiApplicationHelper::DarkType
                                                                      : LGuiApplicationHelper::LightType);
}

qreal Appearance::cardScale() const
{
    // Planned for a desktop's text of 14 pixels; a smaller one is no reason to shrink them.
    QFont desktop = QApplication::font();
    desktop.setPointSizeF(m_desktopPointSize);
    const qreal ofDesktop = qMax(1.0, QFontInfo(desktop).pixelSize() / PlannedPixelSize);
    const qreal ofStep = qMax(SmallestPointSize, m_desktopPointSize + m_fontStep) / m_desktopPointSize;
    return qBound(LeastCardScale, ofDesktop * ofStep, MostCardScale);
}

void Appearance::applyFont()
{
    QFont font = QApplication::font();
    font.setPointSizeF(qMax(SmallestPointSize, m_desktopPointSize + m_fontStep));
    QApplication::setFont(font);
    Q_EMIT fontChanged();
}

} // namespace devhost
