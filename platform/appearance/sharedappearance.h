// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "settingswatch.h"

#include <lumo/lsystempalette.h>

#include <QObject>

#include <memory>

/**
 * Theme and font size of the whole application, remembered in a settings file. The desk owns its file and
 * lets the user choose; the contacts application follows that file, so that both look alike. GUI thread.
 */
class SharedAppearance : public QObject
{
    Q_OBJECT

public:
    /// System: the toolkit's light or dark palette, whichever the desktop's is nearer to.
    enum Theme { System, Light, Dark };

    /// Applies what @p settingsFile remembers.
    explicit SharedAppearance(const QString &settingsFile, QObject *parent = nullptr);

    Theme theme() const { return m_theme; }
    void setTheme(Theme theme);

    /// Steps from the desktop's font size, from SmallestStep to LargestStep.
    int fontStep() const { return m_fontStep; }
    void setFontStep(int step);

    /// Follows what other programs write to the file from now on.
    void follow();

    /// The file in which the desk remembers the user's choice.
    static QString deskSettingsFile();

    static constexpr int SmallestStep = -2;
    static constexpr int LargestStep = 8;

Q_SIGNALS:
    void fontChanged();

protected:
    qreal desktopPointSize() const { return m_desktopPointSize; }
    /// The application's font at the current step.
    qreal pointSize() const;

private:
    void read();
    void applyTheme();
    void applyFont();

    QString m_settingsFile;
    LSystemPalette m_systemPalette;
    std::unique_ptr<SettingsWatch> m_watch;
    Theme m_theme = System;
    int m_fontStep = 0;
    qreal m_desktopPointSize;
};
