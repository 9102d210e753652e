// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardinput.h"

#include <utility>

bool CardInput::isConfirmKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool CardInput::isActivationKey(const QKeyEvent &event)
{
    return isConfirmKey(event) || event.key() == Qt::Key_Space;
}

bool CardInput::isPress(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto &key = static_cast<const QKeyEvent &>(event);
    return isConfirmKey(key) && !key.isAutoRepeat();
}

bool CardInput::focusIn(const QFocusEvent &event)
{
    m_isFramed = m_isFramed || event.reason() == Qt::TabFocusReason;
    return m_isFramed;
}

void CardInput::focusOut()
{
    m_isFramed = false;
    m_ignoresNextRelease = false;
}

Qt::FocusReason CardInput::reasonToInheritFocus() const
{
    return m_controlReason == Qt::MouseFocusReason ? Qt::OtherFocusReason : Qt::TabFocusReason;
}

bool CardInput::takeRelease()
{
    return !std::exchange(m_ignoresNextRelease, false);
}
