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
    setEnabled(false); // under a veil, as cards whose buttons are dead for other reasons
    setAccessibleName(record.text());
    setToolTip(tr("Of older cards only a picture is kept; to use it again, ask again."));
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
