// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardrecord.h"

#include "cardsummary.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace devhost {

namespace {

constexpr auto Format = QImage::Format_RGB16; ///< half of what the screen has; nobody sees it on a card
constexpr int PackingLevel = 2;               ///< fast, and enough: a card is mostly uniform

} // namespace

CardRecord::CardRecord(QWidget &card) : m_text(cardSummary(card).join(QLatin1Char('\n')))
{
    // Includes what is behind the card, whose own background may be translucent.
    const QPixmap grabbed = card.grab();
    QImage image(grabbed.size(), QImage::Format_RGB32);
    image.setDevicePixelRatio(grabbed.devicePixelRatioF());
    const QWidget *desk = card.parentWidget() != nullptr ? card.parentWidget() : &card;
    image.fill(desk->palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.drawPixmap(0, 0, grabbed);
    painter.end();
    const QImage small = image.convertToFormat(Format);
    m_size = small.size();
    m_ratio = grabbed.devicePixelRatioF();
    m_pixels = qCompress(small.constBits(), small.bytesPerLine() * small.height(), PackingLevel);
    m_pixels.squeeze(); // packing has reserved room for the worst case
}

QImage CardRecord::picture() const
{
    const QByteArray pixels = qUncompress(m_pixels);
    QImage image(m_size, Format);
    if (pixels.size() != image.bytesPerLine() * image.height()) {
        return {};
    }
    std::copy(pixels.cbegin(), pixels.cend(), reinterpret_cast<char *>(image.bits()));
    image.setDevicePixelRatio(m_ratio);
    return image;
}

} // namespace devhost
