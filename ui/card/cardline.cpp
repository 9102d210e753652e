// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardline.h"

#include "card/cardtheme.h"

CardLine::CardLine(QWidget *parent) : QPushButton(parent)
{
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("分隔线"));
    // A flat button shows nothing of its own.
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::WindowText);
    CardTheme::setText(*this, CardTheme::LineAlpha);
}
