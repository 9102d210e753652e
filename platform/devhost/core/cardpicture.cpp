// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardpicture.h"

#include <QPainter>
#include <QWidget>

namespace devhost {

namespace {

constexpr QSize LargestCard(1200, 4000);

} // namespace

void giveCardItsSize(QWidget &card)
{
    card.ensurePolished();
    QSize size = card.sizeHint().expandedTo(card.minimumSizeHint()).boundedTo(LargestCard);
    if (card.hasHeightForWidth()) {
        size.setHeight(qBound(1, card.heightForWidth(size.width()), LargestCard.height()));
    }
    card.resize(size);
}

QImage cardPicture(QWidget &card)
{
    const qreal scale = card.devicePixelRatioF();
    QImage image(card.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(card.palette().color(QPalette::Window));
    // grab() lays out what has never been shown; render() alone leaves the children unplaced.
    const QPixmap grabbed = card.grab();
    QPainter painter(&image);
    painter.drawPixmap(0, 0, grabbed);
    return image;
}

} // namespace devhost
