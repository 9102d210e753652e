// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QPushButton>

/**
 * A button that looks like a line of text: no frame, the text in the palette's ButtonText colour, underlined
 * under the mouse, framed while it has the keyboard focus. If the button is too narrow, the text shrinks down
 * to the smallest size class and is then elided, with the full text as tool tip.
 */
class LUMO_EXPORT LCommandLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LCommandLinkButton(QWidget *parent = nullptr);
    explicit LCommandLinkButton(const QString &text, QWidget *parent = nullptr);
};
