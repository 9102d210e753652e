// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QPushButton>

/**
 * A button that looks like a line of text: no frame, the text in the palette's ButtonText colour, underlined
 * under the mouse, with a frame when the keyboard's focus is on it. In a button that is too narrow the text
 * becomes smaller, down to the smallest size class, and is elided after that; then the tool tip shows it
 * whole.
 */
class LUMO_EXPORT LCommandLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LCommandLinkButton(QWidget *parent = nullptr);
    explicit LCommandLinkButton(const QString &text, QWidget *parent = nullptr);
};
