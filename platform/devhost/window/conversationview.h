// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversationkeyboard.h"
#include "entrylist.h"

#include <QAbstractScrollArea>
#include <QVector>

namespace devhost {

class EndButton;
class WaitingDots;

/**
 * The conversation from top to bottom: the user's words on the right, answers and their cards on the left. A
 * turn stays together, so a late answer appears above what is still queued.
 *
 * Follows the end while it is there, and keeps its position once the user has scrolled away. Widgets exist
 * only for the bubbles in sight and for the newest cards; older cards are kept as pictures, so that thousands
 * of turns cost little.
 *
 * The arrow keys move from bubble to bubble, the Menu key opens the menu of the current bubble's turn, and
 * Tab reaches the cards' controls, also those out of sight.
 */
class ConversationView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit ConversationView(QWidget *parent = nullptr);
    ~ConversationView() override;

    /// @p isQueued: still waits for its turn.
    void addSaid(int turn, const QString &text, bool isQueued);
    void changeSaid(int turn, const QString &text);
    void setStarted(int turn);
    /// Takes ownership of @p card, which may be null.
    void addReply(int turn, const QString &text, QWidget *card);
    /// Adds a note about the turn that neither side has said.
    void addNotice(int turn, const QString &text);
    /// Shows waiting dots after @p turn; 0 for none.
    void setWaiting(int turn);

    /// Scales the texts on cards, including future ones.
    void setCardScale(qreal scale);

    /// Clears the conversation, cards included.
    void clear();

    int count() const { return m_entries.size(); }
    bool isWaiting() const { return m_waitingTurn != 0; }
    bool isAtEnd() const;
    void scrollToEnd();

    /// Moves the focus to the next or the previous control of a card and scrolls there; with the focus
    /// elsewhere, starts before the first or behind the last. Returns false when there is none.
    bool moveFocus(bool forward) { return m_keyboard.moveFocus(forward); }

    const EntryList &entries() const { return m_entries; }
    /// The rectangle of the text, or of the card, of the entry at @p position in the viewport, in sight or
    /// not.
    QRect textPlace(int position) const;
    QRect cardPlace(int position) const;
    /// Places the widgets of what is in sight.
    void place();
    ConversationKeyboard &keyboard() { return m_keyboard; }

    /// How many cards stay alive.
    static constexpr int LiveCards = 100;

Q_SIGNALS:
    void turnActivated(int turn);
    /// The menu of one of its bubbles.
    void turnMenuWanted(int turn, const QString &text, const QPoint &globalPlace);

protected:
    bool viewportEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    using Entry = ConversationEntry;

    void insert(Entry entry);
    int columnWidth() const;
    int columnLeft() const { return (viewport()->width() - columnWidth()) / 2; }
    int contentHeight() const;
    /// Lays out the entries from @p first on. Keeps the position, or the end when @p wasAtEnd.
    void layOut(int first, bool wasAtEnd);
    void placeEntry(int position);
    /// Releases the widgets of @p entry. A card with the focus stays, out of sight: hiding it would pass the
    /// focus on, and the view would scroll there.
    void release(Entry &entry);
    Bubble *takeBubble();
    void cardChanged();
    void updateEndButton();

    EntryList m_entries;
    int m_lastSerial = 0;
    qreal m_cardScale = 1;
    ConversationKeyboard m_keyboard{*this};
    QVector<Bubble *> m_bubbles; ///< all; children of the viewport
    QVector<Bubble *> m_spare;
    WaitingDots *m_dots;
    int m_waitingTurn = 0;
    EndButton *m_endButton;
    bool m_isPlacing = false;
    bool m_isRelayoutPending = false;
};

} // namespace devhost
