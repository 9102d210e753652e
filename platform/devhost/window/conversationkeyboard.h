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

/// Where the keyboard is in a conversation: the bubble that the arrows have come to, and the way of the Tab
/// key through the cards.
class ConversationKeyboard
{
public:
    /// @p view outlives it.
    explicit ConversationKeyboard(ConversationView &view) : m_view(view) {}

    /// The current bubble's entry, the last one at first; -1 when there is none.
    int currentPosition() const;
    /// Whether the ring is to be around the bubble of @p entry.
    bool isAt(const ConversationEntry &entry) const;
    /// Goes @p step bubbles on and scrolls there.
    void moveCurrent(int step);
    void setCurrent(int position);

    /// False for a key that is none of its own.
    bool press(const QKeyEvent &event);
    /// The menu of the current bubble's turn.
    void openMenu();

    /// See ConversationView::moveFocus().
    bool moveFocus(bool forward);

private:
    /// Scrolls so that @p place, in the viewport, is in sight; what is higher than the page, from its top on.
    void ensureVisible(const QRect &place);

    ConversationView &m_view;
    int m_serial = 0; ///< of the current bubble's entry, 0 for none
};

} // namespace devhost
