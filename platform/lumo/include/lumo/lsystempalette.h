// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QObject>

/**
 * Keeps the application in the toolkit's light or dark palette, whichever is nearer to the desktop's own, and
 * follows the desktop when it changes. A desktop's palette was not made for the toolkit's controls: button
 * plates may have the window's colour there. GUI thread; needs an application.
 */
class LUMO_EXPORT LSystemPalette : public QObject
{
    Q_OBJECT

public:
    explicit LSystemPalette(QObject *parent = nullptr);

    /// Takes effect at once and keeps following.
    void follow();
    /// Leaves the palette as it is and stops following.
    void stop();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void adopt();
    void paletteChanged();

    bool m_isFollowing = false;
    bool m_isAdopting = false; ///< the change is our own
};
