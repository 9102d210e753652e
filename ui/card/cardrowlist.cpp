// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardrowlist.h"

#include "card/cardmeasures.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

CardRowList::CardRowList(QWidget *card) : m_card(card), m_layout(new QVBoxLayout(card))
{
    CardMeasures::apply(*m_layout);
}

QWidget *CardRowList::listed(QWidget *row)
{
    m_rows.append(row);
    return row;
}

void CardRowList::add(QWidget *row)
{
    m_layout->addWidget(row);
    // On a visible card a new row would otherwise be shown only later and not count towards the card's size.
    if (m_card->isVisible()) {
        row->show();
    }
}

void CardRowList::addSpacing(int height)
{
    m_layout->addSpacing(height);
}

void CardRowList::addInside(QWidget &panel, const QVector<QWidget *> &rows)
{
    for (QWidget *row : rows) {
        panel.layout()->addWidget(listed(row));
    }
}

void CardRowList::removeAll(Qt::FocusReason focusReason)
{
    while (!m_rows.isEmpty()) {
        takeOff(m_rows.takeLast(), focusReason);
    }
}

void CardRowList::remove(QWidget *row, Qt::FocusReason focusReason)
{
    m_rows.removeOne(row);
    takeOff(row, focusReason);
}

void CardRowList::adjustSize()
{
    m_card->adjustSize();
    // If the host has a layout, that layout has the last word.
    m_card->updateGeometry();
    m_card->update();
}

void CardRowList::takeOff(QWidget *row, Qt::FocusReason focusReason)
{
    const QWidget *focused = QApplication::focusWidget();
    if (focused != nullptr && (focused == row || row->isAncestorOf(focused))) {
        // Hiding the row would move the focus as Tab does and frame whatever comes next.
        m_card->setFocus(focusReason);
    }
    row->hide();
    // The row lives until control returns to the event loop, and must not send a second request.
    row->disconnect(m_card);
    const auto buttons = row->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        button->disconnect(m_card);
    }
    m_layout->removeWidget(row);
    row->deleteLater();
}
