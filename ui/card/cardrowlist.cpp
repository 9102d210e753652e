// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardrowlist.h"

#include "card/cardmeasures.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Does for the widgets in @p layout, inner ones first, what Qt would do when it shows them and in the first
/// round of the event loop: each time, everything around them would be laid out again.
void settle(const QLayout &layout)
{
    for (int index = 0; index < layout.count(); ++index) {
        QWidget *widget = layout.itemAt(index)->widget();
        if (qobject_cast<QPushButton *>(widget) != nullptr) {
            QCoreApplication::sendPostedEvents(widget, QEvent::PolishRequest);
        } else if (widget != nullptr && widget->layout() != nullptr) {
            settle(*widget->layout());
            widget->layout()->activate();
        }
    }
}

} // namespace

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
    if (m_card->isVisible()) {
        m_card->adjustSize();
    } else {
        measure();
    }
    // If the host has a layout, that layout has the last word.
    m_card->updateGeometry();
    m_card->update();
}

void CardRowList::measure()
{
    // Fonts and margins are final only now.
    m_card->ensurePolished();
    settle(*m_layout);
    m_layout->setEnabled(false);
    m_card->adjustSize();
    m_layout->setEnabled(true);
    // Large parts of a small screen are not enough for every card.
    m_card->resize(m_card->size().expandedTo(m_layout->totalMinimumSize()));
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
