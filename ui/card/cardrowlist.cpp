// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardrowlist.h"

#include "card/cardmeasures.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

/// A layout that can leave the rows where they are while it measures them.
class CardRowLayout : public QVBoxLayout
{
public:
    using QVBoxLayout::QVBoxLayout;

    void setPlacesRows(bool placesRows) { m_placesRows = placesRows; }

    void setGeometry(const QRect &place) override
    {
        if (m_placesRows) {
            QVBoxLayout::setGeometry(place);
        }
    }

private:
    bool m_placesRows = true;
};

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

CardRowList::CardRowList(QWidget *card) : m_card(card), m_layout(new CardRowLayout(card))
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
    m_layout->setPlacesRows(false);
    // Activates the layout, which also gives a card in its own window its minimum size: Qt caps the window at
    // two thirds of the screen here, but not below that.
    m_card->adjustSize();
    m_layout->setPlacesRows(true);
    // The rows still wait for their places.
    m_layout->update();
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
