// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

class CardRowLayout;

/// The rows of a card, from top to bottom: its layout, and the rows to remove when the card is rebuilt.
class CardRowList
{
public:
    /// Gives @p card its layout. @p card outlives the list.
    explicit CardRowList(QWidget *card);

    /// Lists @p row without adding it to a layout, because rows may be nested.
    QWidget *listed(QWidget *row);
    /// Adds @p row to the card's layout.
    void add(QWidget *row);
    void addSpacing(int height);
    /// Lists @p rows and adds them to the layout of @p panel, which is a row itself.
    void addInside(QWidget &panel, const QVector<QWidget *> &rows);

    /// Forgets the listed rows; they stay on the card.
    void clear() { m_rows.clear(); }
    /// Removes every listed row from the card. If one has the focus, the card takes it with @p focusReason.
    void removeAll(Qt::FocusReason focusReason);
    /// Removes @p row from the card and from the list.
    void remove(QWidget *row, Qt::FocusReason focusReason);

    /// Resizes the card to fit its rows.
    void adjustSize();

private:
    /// Gives a card that nobody sees its size without placing its rows, only what is inside them: the rows
    /// are placed once, in the size in which the host shows the card.
    void measure();
    void takeOff(QWidget *row, Qt::FocusReason focusReason);

    QWidget *m_card;
    CardRowLayout *m_layout;
    QVector<QWidget *> m_rows;
};
