// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversationentry.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <QVector>

namespace devhost {

class EndButton;
class WaitingDots;

/**
 * The conversation from top to bottom: what was said on the right, answers and their cards on the left. What
 * belongs to a turn stands together, so a late answer stands above what waits in the queue.
 *
 * It stays at its end while it is there, and keeps its position once the user has scrolled away. Widgets
 * exist only for the bubbles in sight and for the cards, so that thousands of turns cost little.
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

    /// Forgets everything, cards included.
    void clear();

    int count() const { return m_entries.size(); }
    bool isWaiting() const { return m_waitingTurn != 0; }
    bool isAtEnd() const;
    void scrollToEnd();

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

private:
    using Entry = ConversationEntry;

    void insert(const Entry &entry);
    int positionAfter(int turn) const;
    int saidPosition(int turn) const;
    int columnWidth() const;
    int columnLeft() const { return (viewport()->width() - columnWidth()) / 2; }
    int contentHeight() const;
    /// Gives the entries from @p first on their places. Keeps the position, or the end when @p wasAtEnd.
    void layOut(int first, bool wasAtEnd);
    void place();
    void placeEntry(Entry &entry, int offset);
    void release(Entry &entry);
    Bubble *takeBubble();
    void cardChanged();
    void updateEndButton();

    QVector<Entry> m_entries;
    QVector<Bubble *> m_bubbles; ///< all; children of the viewport
    QVector<Bubble *> m_spare;
    WaitingDots *m_dots;
    int m_waitingTurn = 0;
    EndButton *m_endButton;
    bool m_isPlacing = false;
    bool m_isRelayoutPending = false;
};

} // namespace devhost
