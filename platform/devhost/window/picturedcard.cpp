// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picturedcard.h"

#include <QPainter>
#include <QPainterPath>

namespace devhost {

namespace {

constexpr qreal Radius = 8; ///< the cards' own

} // namespace

PicturedCard::PicturedCard(const CardRecord &record, QWidget *parent)
    : QWidget(parent)
    , m_picture(record.picture())
{
    setAccessibleName(record.text());
    setToolTip(QStringLiteral("较早的卡片只保留画面；要再次使用，请重新询问。"));
}

void PicturedCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath card;
    card.addRoundedRect(rect(), Radius, Radius);
    painter.setClipPath(card);
    painter.drawImage(0, 0, m_picture);
}

} // namespace devhost
