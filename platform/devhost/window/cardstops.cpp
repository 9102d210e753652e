// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardstops.h"

#include <QWidget>

namespace devhost {

bool isTabStop(const QWidget &widget, const QWidget &shownTo)
{
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.focusProxy() == nullptr &&
           widget.isEnabled() && (&widget == &shownTo || widget.isVisibleTo(&shownTo));
}

bool hasFocusWithin(const QWidget &card)
{
    const QWidget *focus = card.window()->focusWidget();
    return focus != nullptr && (focus == &card || card.isAncestorOf(focus));
}

QVector<QWidget *> cardStops(QWidget &card)
{
    QVector<QWidget *> stops;
    QWidget *widget = &card;
    do {
        if ((widget == &card || card.isAncestorOf(widget)) && isTabStop(*widget, card)) {
            stops.append(widget);
        }
        widget = widget->nextInFocusChain();
    } while (widget != nullptr && widget != &card);
    return stops;
}

} // namespace devhost
