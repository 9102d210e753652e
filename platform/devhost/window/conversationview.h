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
 * The conversation from top to bottom: what was said on the right, answers and their cards on the left. What
 * belongs to a turn stands together, so a late answer stands above what waits in the queue.
 *
 * It stays at its end while it is there, and keeps its position once the user has scrolled away. Widgets
 * exist only for the bubbles in sight and for the newest cards; older cards are kept as pictures. So
 * thousands of turns cost little.
 *
 * With the keyboard one goes from bubble to bubble with the arrows, opens the menu of its turn with the Menu
 * key, and comes to the cards' controls with Tab, also to those out of sight.
 */
class ConversationView final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit ConversationView(QWidget *parent = nullptr);
    ~ConversationView() override;

    /// @p isQueued: it waits for its turn.
    void addSaid(int turn, const QString &text, bool isQueued);
    void changeSaid(int turn, const QString &text);
    void setStarted(int turn);
    /// Takes over @p card, which may be null.
    void addReply(int turn, const QString &text, QWidget *card);
    /// Something about the turn that nobody has said.
    void addNotice(int turn, const QString &text);
    /// Dots after @p turn; 0 for none.
    void setWaiting(int turn);

    /// Of the texts on cards, those to come too.
    void setCardScale(qreal scale);

    /// Forgets everything, cards included.
    void clear();

    int count() const { return m_entries.size(); }
    bool isWaiting() const { return m_waitingTurn != 0; }
    bool isAtEnd() const;
    void scrollToEnd();

    /// Moves the focus to the next or the previous control of a card, from above the first or from below the
    /// last one if it is elsewhere, and scrolls there. False when there is none.
    bool moveFocus(bool forward) { return m_keyboard.moveFocus(forward); }

    const EntryList &entries() const { return m_entries; }
    /// Where the text, or the card, of the entry at @p position stands in the viewport, in sight or not.
    QRect textPlace(int position) const;
    QRect cardPlace(int position) const;
    /// Puts the widgets of what is in sight on their places.
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
    /// Gives the entries from @p first on their places. Keeps the position, or the end when @p wasAtEnd.
    void layOut(int first, bool wasAtEnd);
    void placeEntry(int position);
    /// Lets go of what shows @p entry. A card with the focus stays, out of sight: hiding it would hand the
    /// focus to another one, and the view would go there.
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
