// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationkeyboard.h"

#include "cardstops.h"
#include "conversationaccessible.h"
#include "conversationview.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace devhost {

int ConversationKeyboard::currentPosition() const
{
    const EntryList &entries = m_view.entries();
    const int position = entries.positionOfSerial(m_serial);
    if (position >= 0) {
        return position;
    }
    // Reading starts at the end.
    for (int i = entries.size() - 1; i >= 0; --i) {
        if (!entries.at(i).text.isEmpty()) {
            return i;
        }
    }
    return -1;
}

bool ConversationKeyboard::isAt(const ConversationEntry &entry) const
{
    return entry.serial == m_serial && m_view.hasFocus();
}

void ConversationKeyboard::moveCurrent(int step)
{
    const EntryList &entries = m_view.entries();
    const int from = currentPosition();
    int to = from + step;
    while (to >= 0 && to < entries.size() && entries.at(to).text.isEmpty()) {
        to += step;
    }
    if (from >= 0) {
        setCurrent(to >= 0 && to < entries.size() ? to : from);
    }
}

void ConversationKeyboard::setCurrent(int position)
{
    m_serial = m_view.entries().at(position).serial;
    ensureVisible(m_view.textPlace(position));
    m_view.place();
    ConversationAccessible::focused(m_view, m_view.entries().at(position));
}

bool ConversationKeyboard::press(const QKeyEvent &event)
{
    const int current = currentPosition();
    switch (event.key()) {
    case Qt::Key_End:
        m_view.scrollToEnd();
        return true;
    case Qt::Key_Home:
        m_view.verticalScrollBar()->setValue(0);
        return true;
    case Qt::Key_Up:
        moveCurrent(-1);
        return true;
    case Qt::Key_Down:
        moveCurrent(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (current >= 0) {
            Q_EMIT m_view.turnActivated(m_view.entries().at(current).turn);
        }
        return true;
    default:
        return false;
    }
}

void ConversationKeyboard::openMenu()
{
    const int current = currentPosition();
    if (current < 0) {
        return;
    }
    ensureVisible(m_view.textPlace(current));
    const ConversationEntry &entry = m_view.entries().at(current);
    const QPoint corner = m_view.textPlace(current).bottomLeft();
    Q_EMIT m_view.turnMenuWanted(entry.turn, entry.text, m_view.viewport()->mapToGlobal(corner));
}

bool ConversationKeyboard::moveFocus(bool forward)
{
    const EntryList &entries = m_view.entries();
    const int step = forward ? 1 : -1;
    const QWidget *focus = QApplication::focusWidget();
    int position = focus == nullptr ? -1 : entries.positionOfCardWith(*focus);
    QVector<QWidget *> stops;
    int stop = -1;
    if (position >= 0) {
        stops = cardStops(*entries.at(position).card);
        stop = int(std::find(stops.cbegin(), stops.cend(), focus) - stops.cbegin()) + step;
    } else {
        position = forward ? -1 : entries.size();
    }
    while (stop < 0 || stop >= stops.size()) {
        position += step;
        if (position < 0 || position >= entries.size()) {
            return false;
        }
        const ConversationEntry &entry = entries.at(position);
        stops = entry.hasLiveCard() ? cardStops(*entry.card) : QVector<QWidget *>();
        stop = forward ? 0 : stops.size() - 1;
    }
    QWidget *const target = stops.at(stop);
    QWidget *const card = entries.at(position).card;
    ensureVisible(m_view.cardPlace(position));
    m_view.place();
    if (target != card) {
        // A card that comes into sight for the first time has no layout yet.
        QCoreApplication::sendPostedEvents(card, QEvent::LayoutRequest);
        const QPoint corner = m_view.cardPlace(position).topLeft() + target->mapTo(card, QPoint());
        ensureVisible(QRect(corner, target->size()));
    }
    target->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void ConversationKeyboard::ensureVisible(const QRect &place)
{
    constexpr int margin = EntryList::Margin;
    const int page = m_view.viewport()->height();
    const bool fromTop = place.top() < margin || place.height() > page;
    const int shift = fromTop ? place.top() - margin : qMax(0, place.bottom() + margin - page);
    QScrollBar *bar = m_view.verticalScrollBar();
    bar->setValue(bar->value() + shift);
}

} // namespace devhost
