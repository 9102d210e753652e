// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lcommandlinkbutton.h"

#include "linkstyle.h"

LCommandLinkButton::LCommandLinkButton(QWidget *parent) : LCommandLinkButton(QString(), parent) {}

LCommandLinkButton::LCommandLinkButton(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    LinkStyle::giveTo(*this);
}
