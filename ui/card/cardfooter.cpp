// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardfooter.h"

#include "card/cardtheme.h"

#include <lumo/lfontsizemanager.h>

#include <QPainter>

namespace {
constexpr int Width = 200;
} // namespace

CardFooter::CardFooter(int count, QWidget *parent)
    : LCommandLinkButton(QStringLiteral("在“联系人”中查看所有%1个结果…").arg(count), parent)
{
    setFont(LFontSizeManager::instance()->get(LFontSizeManager::T8, font()));
    setFixedWidth(Width);
    setAutoDefault(false);
    // paintEvent() paints the background; some toolkits would cover it with a dark one.
    setFlat(true);
    QPalette fixed = palette();
    fixed.setBrush(QPalette::All, QPalette::ButtonText, CardTheme::footer());
    fixed.setBrush(QPalette::All, QPalette::WindowText, CardTheme::footer());
    setPalette(fixed);
}

void CardFooter::paintEvent(QPaintEvent *event)
{
    const int coats = CardTheme::coatsOnChip(CardTheme::footer());
    if (coats > 0) {
        QPainter painter(this);
        CardTheme::paintChip(painter, rect());
    }
    for (int coat = 0; coat < qMax(1, coats); ++coat) {
        LCommandLinkButton::paintEvent(event);
    }
}
