// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardwait.h"

#include <QGuiApplication>
#include <QLayout>
#include <QPushButton>

CardWait::CardWait(QWidget &card, QPushButton *button)
{
    if (button != nullptr) {
        // Not disabled: that would move the focus.
        button->setText(QStringLiteral("请稍候…"));
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    // Rows that were just added have no geometry yet.
    if (card.layout() != nullptr) {
        card.layout()->activate();
    }
    card.repaint();
}

CardWait::~CardWait()
{
    QGuiApplication::restoreOverrideCursor();
}
