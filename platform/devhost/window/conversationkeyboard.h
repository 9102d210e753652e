// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QRect;
QT_END_NAMESPACE

namespace devhost {

struct ConversationEntry;
class ConversationView;

/// Keyboard navigation of a conversation: the bubble reached with the arrow keys, and the Tab order through
/// the cards.
class ConversationKeyboard
{
public:
    /// @p view must outlive it.
    explicit ConversationKeyboard(ConversationView &view) : m_view(view) {}

    /// The current bubble's entry, initially the last; -1 when there is none.
    int currentPosition() const;
    /// Whether the bubble of @p entry shows the ring.
    bool isAt(const ConversationEntry &entry) const;
    /// Moves on by @p step bubbles and scrolls there.
    void moveCurrent(int step);
    void setCurrent(int position);

    /// Returns false for a key it does not handle.
    bool press(const QKeyEvent &event);
    /// Opens the menu of the current bubble's turn.
    void openMenu();

    /// See ConversationView::moveFocus().
    bool moveFocus(bool forward);

private:
    /// Scrolls @p place, in viewport coordinates, into sight; its top when it is taller than the viewport.
    void ensureVisible(const QRect &place);

    ConversationView &m_view;
    int m_serial = 0; ///< of the current bubble's entry, 0 for none
};

} // namespace devhost
