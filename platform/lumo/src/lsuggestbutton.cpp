// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lsuggestbutton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

LSuggestButton::LSuggestButton(QWidget *parent) : QPushButton(parent) {}

LSuggestButton::LSuggestButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {}

void LSuggestButton::paintEvent(QPaintEvent * /*event*/)
{
    // Sets the colours while painting rather than in the widget's palette, which stays free for the user.
    QStyleOptionButton option;
    initStyleOption(&option);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        option.palette.setBrush(group, QPalette::Button, palette().brush(group, QPalette::Highlight));
        option.palette.setBrush(group, QPalette::ButtonText,
                                palette().brush(group, QPalette::HighlightedText));
    }
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);
}
