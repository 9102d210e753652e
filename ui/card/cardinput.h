// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QFocusEvent>
#include <QKeyEvent>

/// What a card remembers about focus and keys from one event to the next.
class CardInput
{
public:
    /// Return or Enter, which press a card's button.
    static bool isConfirmKey(const QKeyEvent &event);
    /// Whether @p event is the press of such a key; auto-repeat does not count.
    static bool isPress(const QEvent &event);
    /// Return, Enter or Space, which activate the card itself or a row of it.
    static bool isActivationKey(const QKeyEvent &event);

    /// @return whether the card now shows its frame.
    [[nodiscard]] bool focusIn(const QFocusEvent &event);
    void focusOut();
    /// Whether the card got the focus from the keyboard, which is when it shows a frame.
    [[nodiscard]] bool isFramed() const { return m_isFramed; }

    void controlFocused(const QFocusEvent &event) { m_controlReason = event.reason(); }
    /// The reason with which the card takes over the focus of a control that disappears: only keyboard users
    /// see its frame.
    [[nodiscard]] Qt::FocusReason reasonToInheritFocus() const;

    /// The key being held down was meant for a button that may be gone. @p hasCardFocus: the card will
    /// receive its release.
    void keyPressedButton(bool hasCardFocus) { m_ignoresNextRelease = hasCardFocus; }
    /// Whether a released key was pressed on the card itself.
    [[nodiscard]] bool takeRelease();

private:
    bool m_isFramed = false;
    bool m_ignoresNextRelease = false;
    Qt::FocusReason m_controlReason = Qt::OtherFocusReason;
};
