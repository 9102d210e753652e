// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardbuttons.h"

#include "card/cardtheme.h"

#include <lumo/lfontsizemanager.h>

#include <QPushButton>

void CardButtons::prepare(QPushButton &button, QObject *card)
{
    button.setFont(LFontSizeManager::instance()->get(LFontSizeManager::T6, button.font()));
    CardTheme::setText(button, CardTheme::ValueAlpha);
    // In a dialog the button would otherwise handle Return in addition to the card's event filter.
    button.setAutoDefault(false);
    // A click on a disabled button must not reach the card behind it.
    button.setAttribute(Qt::WA_NoMousePropagation);
    button.installEventFilter(card);
}
