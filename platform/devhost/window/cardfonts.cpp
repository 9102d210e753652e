// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardfonts.h"

#include <QVariant>
#include <QWidget>

namespace devhost {

namespace {

constexpr auto OwnSize = "deskOwnPixelSize";

} // namespace

void scaleCardFonts(QWidget &card, qreal scale)
{
    const auto widgets = card.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        QVariant own = widget->property(OwnSize);
        if (!own.isValid()) {
            if (!widget->testAttribute(Qt::WA_SetFont) || widget->font().pixelSize() <= 0) {
                continue;
            }
            own = widget->font().pixelSize();
            widget->setProperty(OwnSize, own);
        }
        QFont font = widget->font();
        const int size = qMax(1, qRound(own.toInt() * scale));
        if (font.pixelSize() != size) {
            font.setPixelSize(size);
            widget->setFont(font);
        }
    }
}

} // namespace devhost
