// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationview.h"

#include "cardfonts.h"
#include "cardstops.h"
#include "cardsurround.h"
#include "conversationaccessible.h"
#include "conversationpage.h"
#include "endbutton.h"
#include "picturedcard.h"
#include "waitingdots.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace devhost {

namespace {

constexpr int Margin = EntryList::Margin;
constexpr int Gap = EntryList::Gap;
constexpr int NarrowestCard = 360; ///< a card with an editor; one with candidates takes 350
constexpr int WidestColumn = 860;

} // namespace

ConversationView::ConversationView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_dots(new WaitingDots(this))
    , m_endButton(new EndButton(this))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumWidth(NarrowestCard + 2 * Margin + verticalScrollBar()->sizeHint().width());
    setAccessibleName(tr("Conversation"));
    setViewport(new ConversationPage(*this));
    m_dots->setParent(viewport());
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(true);
    m_dots->hide();
    m_endButton->hide();
    m_endButton->raise();
    connect(m_endButton, &EndButton::clicked, this, &ConversationView::scrollToEnd);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ConversationView::updateEndButton);
}

ConversationView::~ConversationView()
{
    // The base class deletes the cards, when there are no entries left to update; released cards may still
    // exist, too.
    const QObjectList shown = viewport()->children();
    for (QObject *child : shown) {
        child->removeEventFilter(this);
        disconnect(child, nullptr, this, nullptr);
    }
}

void ConversationView::addSaid(int turn, const QString &text, bool isQueued)
{
    Entry entry(turn, Bubble::Said, text);
    entry.isQueued = isQueued;
    insert(entry);
    scrollToEnd();
}

void ConversationView::changeSaid(int turn, const QString &text)
{
    const int position = m_entries.saidPosition(turn);
    if (position < 0) {
        return;
    }
    const bool wasAtEnd = isAtEnd();
    m_entries[position].text = text;
    ConversationAccessible::renamed(*this, m_entries.at(position));
    m_entries[position].isSized = false;
    layOut(position, wasAtEnd);
}

void ConversationView::setStarted(int turn)
{
    const int position = m_entries.saidPosition(turn);
    if (position < 0) {
        return;
    }
    m_entries[position].isQueued = false;
    place();
}

void ConversationView::addReply(int turn, const QString &text, QWidget *card)
{
    Entry entry(turn, Bubble::Reply, text);
    entry.card = card;
    if (card != nullptr) {
        card->hide();
        card->setParent(viewport());
        card->ensurePolished();
        scaleCardFonts(*card, m_cardScale);
        card->installEventFilter(this);
        new CardSurround(card);
        connect(card, &QObject::destroyed, this, [this] { cardChanged(); });
    }
    insert(entry);
}

void ConversationView::addNotice(int turn, const QString &text)
{
    insert(Entry(turn, Bubble::Notice, text));
}

void ConversationView::setWaiting(int turn)
{
    const bool wasAtEnd = isAtEnd();
    m_waitingTurn = turn;
    m_dots->setVisible(turn != 0);
    layOut(0, wasAtEnd);
}

void ConversationView::clear()
{
    const EntryList gone = std::exchange(m_entries, {});
    ConversationAccessible::forget(*this);
    for (Entry entry : gone) {
        release(entry);
        delete entry.card;
    }
    setWaiting(0);
}

bool ConversationView::isAtEnd() const
{
    return verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void ConversationView::scrollToEnd()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void ConversationView::insert(Entry entry)
{
    const bool wasAtEnd = isAtEnd();
    entry.serial = ++m_lastSerial;
    const int position = m_entries.positionAfter(entry.turn);
    m_entries.insert(position, entry);
    layOut(position, wasAtEnd);
    if (entry.card != nullptr) {
        m_entries.letOldCardsGo(LiveCards,
                                [](const QWidget &card) { return card.isVisible() || hasFocusWithin(card); });
    }
    ConversationAccessible::announce(*this, m_entries.at(position));
}

QRect ConversationView::textPlace(int position) const
{
    const Entry &entry = m_entries.at(position);
    const int left =
        entry.role == Bubble::Said ? columnLeft() + columnWidth() - entry.textSize.width() : columnLeft();
    return {QPoint(left, entry.top - verticalScrollBar()->value()), entry.textSize};
}

QRect ConversationView::cardPlace(int position) const
{
    const Entry &entry = m_entries.at(position);
    const int top = entry.bottom() - entry.cardSize.height() - verticalScrollBar()->value();
    return {QPoint(columnLeft(), top), entry.cardSize};
}

int ConversationView::columnWidth() const
{
    return qBound(1, viewport()->width() - 2 * Margin, WidestColumn);
}

int ConversationView::contentHeight() const
{
    const int end = m_entries.isEmpty() ? Margin : m_entries.last().bottom() + Gap;
    const bool areDotsLast = m_waitingTurn != 0 && m_entries.positionAfter(m_waitingTurn) == m_entries.size();
    return end + (areDotsLast ? m_dots->height() + Gap : 0) + Margin - Gap;
}

void ConversationView::layOut(int first, bool wasAtEnd)
{
    // Keeps what is at the upper edge in place.
    const int offset = verticalScrollBar()->value();
    const auto anchor = std::find_if(m_entries.begin(), m_entries.end(), [offset](const Entry &entry) {
        return entry.isSized && entry.bottom() > offset;
    });
    const int anchorIndex = anchor == m_entries.end() ? -1 : int(anchor - m_entries.begin());
    const int anchorTop = anchorIndex < 0 ? 0 : anchor->top;

    m_entries.measure(first, columnWidth(), font(), m_waitingTurn, m_dots->height());
    const int height = contentHeight();
    const int page = viewport()->height();
    int value = offset;
    if (wasAtEnd) {
        value = qMax(0, height - page);
    } else if (anchorIndex >= 0) {
        value += m_entries.at(anchorIndex).top - anchorTop;
    }
    m_isPlacing = true;
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setSingleStep(QFontMetrics(font()).lineSpacing() * 2);
    verticalScrollBar()->setRange(0, qMax(0, height - page));
    verticalScrollBar()->setValue(value);
    m_isPlacing = false;
    place();
}

void ConversationView::place()
{
    const int offset = verticalScrollBar()->value();
    const int page = viewport()->height();
    const auto firstShown = std::lower_bound(m_entries.begin(), m_entries.end(), offset,
                                             [](const Entry &entry, int y) { return entry.bottom() < y; });
    const auto endShown = std::lower_bound(firstShown, m_entries.end(), offset + page,
                                           [](const Entry &entry, int y) { return entry.top < y; });
    // Releases bubbles first, then reuses them.
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        if (entry < firstShown || entry >= endShown) {
            release(*entry);
            if (entry->card != nullptr && entry->card->isVisibleTo(viewport())) {
                entry->card->setGeometry(cardPlace(int(entry - m_entries.begin())));
            }
        }
    }
    for (auto entry = firstShown; entry != endShown; ++entry) {
        placeEntry(int(entry - m_entries.begin()));
    }
    if (m_waitingTurn != 0) {
        const int position = m_entries.positionAfter(m_waitingTurn);
        const int top = position == 0 ? Margin : m_entries.at(position - 1).bottom() + Gap;
        m_dots->move(columnLeft(), top - offset);
    }
    updateEndButton();
}

void ConversationView::placeEntry(int position)
{
    Entry &entry = m_entries[position];
    if (!entry.textSize.isEmpty()) {
        if (entry.bubble == nullptr) {
            entry.bubble = takeBubble();
        }
        entry.bubble->setGeometry(textPlace(position));
        entry.bubble->setProperty("turn", entry.turn);
        entry.bubble->show(entry.role, entry.text, entry.isQueued);
        entry.bubble->setCurrent(m_keyboard.isAt(entry));
    }
    if (entry.card == nullptr && entry.hasCard()) {
        entry.card = new PicturedCard(entry.record, viewport());
        new CardSurround(entry.card);
    }
    if (entry.card != nullptr) {
        entry.card->setGeometry(cardPlace(position));
        entry.card->show();
    }
}

void ConversationView::release(Entry &entry)
{
    if (entry.bubble != nullptr) {
        entry.bubble->hide();
        m_spare.append(entry.bubble);
        entry.bubble = nullptr;
    }
    if (entry.card != nullptr && !entry.hasLiveCard()) {
        delete entry.card;
    } else if (entry.card != nullptr && entry.card->isVisibleTo(viewport()) && !hasFocusWithin(*entry.card)) {
        entry.card->hide();
    }
}

Bubble *ConversationView::takeBubble()
{
    if (!m_spare.isEmpty()) {
        return m_spare.takeLast();
    }
    auto *bubble = new Bubble(viewport());
    connect(bubble, &Bubble::clicked, this,
            [this, bubble] { Q_EMIT turnActivated(bubble->property("turn").toInt()); });
    connect(bubble, &Bubble::menuWanted, this, [this, bubble](const QPoint &place) {
        Q_EMIT turnMenuWanted(bubble->property("turn").toInt(), bubble->text(), place);
    });
    m_bubbles.append(bubble);
    return bubble;
}

void ConversationView::setCardScale(qreal scale)
{
    m_cardScale = scale;
    m_entries.scaleCards(scale);
    cardChanged();
}

void ConversationView::cardChanged()
{
    // A card changes several times before it is shown again; lay out once for all of it.
    if (m_isRelayoutPending) {
        return;
    }
    m_isRelayoutPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRelayoutPending = false;
            m_entries.scaleCards(m_cardScale); // there may be new rows
            layOut(0, isAtEnd());
        },
        Qt::QueuedConnection);
}

void ConversationView::updateEndButton()
{
    m_endButton->setVisible(!isAtEnd());
    m_endButton->move(viewport()->width() - m_endButton->width() - Margin,
                      height() - m_endButton->height() - Gap);
}

bool ConversationView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        cardChanged();
    }
    return QAbstractScrollArea::viewportEvent(event);
}

bool ConversationView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        cardChanged();
    }
    return QAbstractScrollArea::eventFilter(watched, event);
}

void ConversationView::resizeEvent(QResizeEvent *event)
{
    // The end before the resize may have been the end of a smaller range.
    const bool wasAtEnd = isAtEnd();
    QAbstractScrollArea::resizeEvent(event);
    layOut(0, wasAtEnd);
}

void ConversationView::scrollContentsBy(int, int)
{
    if (!m_isPlacing) {
        place();
    }
}

void ConversationView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() != QEvent::FontChange) {
        return;
    }
    const bool wasAtEnd = isAtEnd();
    for (Entry &entry : m_entries) {
        entry.isSized = false;
    }
    layOut(0, wasAtEnd);
}

void ConversationView::keyPressEvent(QKeyEvent *event)
{
    if (!m_keyboard.press(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void ConversationView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        m_keyboard.openMenu();
    } else {
        QAbstractScrollArea::contextMenuEvent(event);
    }
}

void ConversationView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        m_keyboard.moveCurrent(0);
    }
}

void ConversationView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    place();
}

} // namespace devhost
