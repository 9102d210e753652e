// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lspinbox.h"

#include "wheelguard.h"

LSpinBox::LSpinBox(QWidget *parent) : QSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setEnabledEmbedStyle(false);
    WheelGuard::watch(*this);
}

void LSpinBox::setEnabledEmbedStyle(bool enabled)
{
    setButtonSymbols(enabled ? QAbstractSpinBox::UpDownArrows : QAbstractSpinBox::PlusMinus);
}

bool LSpinBox::enabledEmbedStyle() const
{
    return buttonSymbols() == QAbstractSpinBox::UpDownArrows;
}
