// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lsystempalette.h>

#include <QObject>

namespace devhost {

/// Theme and font size of the whole application, remembered between runs. GUI thread.
class Appearance final : public QObject
{
    Q_OBJECT

public:
    /// System: the toolkit's light or dark palette, whichever the desktop's is nearer to.
    enum Theme { System, Light, Dark };

    /// Applies what was remembered.
    explicit Appearance(QObject *parent = nullptr);

    Theme theme() const { return m_theme; }
    void setTheme(Theme theme);

    /// Steps from the desktop's font size, from SmallestStep to LargestStep.
    int fontStep() const { return m_fontStep; }
    void setFontStep(int step);

    /// How much larger than planned the texts on cards are, from the desktop's font, its resolution and the
    /// step.
    qreal cardScale() const;

    static constexpr int SmallestStep = -2;
    static constexpr int LargestStep = 8;

Q_SIGNALS:
    void fontChanged();

private:
    void applyTheme();
    void applyFont();

    LSystemPalette m_systemPalette;
    Theme m_theme = System;
    int m_fontStep = 0;
    qreal m_desktopPointSize;
};

} // namespace devhost
