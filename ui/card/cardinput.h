// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QFocusEvent>
#include <QKeyEvent>

/// What a card remembers about focus and keys from one event to the next.
class CardInput
{
public:
    /// Return or Enter, which presses a button of a card.
    static bool isConfirmKey(const QKeyEvent &event);
    /// Whether @p event is such a key going down; holding it does not press again.
    static bool isPress(const QEvent &event);
    /// Return, Enter or Space, which activate the card itself or a row of it.
    static bool isActivationKey(const QKeyEvent &event);

    /// @return whether the card now shows its frame.
    [[nodiscard]] bool focusIn(const QFocusEvent &event);
    void focusOut();
    /// Whether the card got the focus from the keyboard, which is when it shows a frame.
    [[nodiscard]] bool isFramed() const { return m_isFramed; }

    void controlFocused(const QFocusEvent &event) { m_controlReason = event.reason(); }
    /// Why the card takes the focus of a control that goes: it shows its frame only to keyboard users.
    [[nodiscard]] Qt::FocusReason reasonToInheritFocus() const;

    /// The key that is down was meant for a button that may be gone; @p hasCardFocus tells whether the card
    /// will hear of its release.
    void keyPressedButton(bool hasCardFocus) { m_ignoresNextRelease = hasCardFocus; }
    /// Whether a released key was pressed on the card itself.
    [[nodiscard]] bool takeRelease();

private:
    bool m_isFramed = false;
    bool m_ignoresNextRelease = false;
    Qt::FocusReason m_controlReason = Qt::OtherFocusReason;
};
