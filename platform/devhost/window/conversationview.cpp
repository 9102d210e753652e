// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationview.h"

#include "cardsurround.h"
#include "endbutton.h"
#include "waitingdots.h"

#include <QEvent>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace devhost {

namespace {

constexpr int Margin = 16;
constexpr int Gap = 10;
constexpr int WidestColumn = 860;

} // namespace

ConversationView::ConversationView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_dots(new WaitingDots(viewport()))
    , m_endButton(new EndButton(this))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("对话"));
    viewport()->setBackgroundRole(QPalette::Window);
    m_dots->hide();
    m_endButton->hide();
    connect(m_endButton, &EndButton::clicked, this, &ConversationView::scrollToEnd);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ConversationView::updateEndButton);
}

ConversationView::~ConversationView()
{
    for (const Entry &entry : qAsConst(m_entries)) {
        if (entry.card != nullptr) {
            // The base class deletes the cards, when there are no entries any more to note it in.
            entry.card->removeEventFilter(this);
            disconnect(entry.card, nullptr, this, nullptr);
        }
    }
}

void ConversationView::addSaid(int turn, const QString &text, bool isQueued)
{
    Entry entry;
    entry.turn = turn;
    entry.role = Bubble::Said;
    entry.text = text;
    entry.isQueued = isQueued;
    insert(entry);
    scrollToEnd();
}

void ConversationView::changeSaid(int turn, const QString &text)
{
    const int position = saidPosition(turn);
    if (position < 0) {
        return;
    }
    const bool wasAtEnd = isAtEnd();
    m_entries[position].text = text;
    m_entries[position].isSized = false;
    layOut(position, wasAtEnd);
}

void ConversationView::setStarted(int turn)
{
    const int position = saidPosition(turn);
    if (position < 0) {
        return;
    }
    m_entries[position].isQueued = false;
    place();
}

void ConversationView::addReply(int turn, const QString &text, QWidget *card)
{
    Entry entry;
    entry.turn = turn;
    entry.role = Bubble::Reply;
    entry.text = text;
    entry.card = card;
    if (card != nullptr) {
        card->hide();
        card->setParent(viewport());
        card->ensurePolished();
        card->installEventFilter(this);
        new CardSurround(card);
        connect(card, &QObject::destroyed, this, [this] { cardChanged(); });
    }
    insert(entry);
}

void ConversationView::addNotice(int turn, const QString &text)
{
    Entry entry;
    entry.turn = turn;
    entry.role = Bubble::Notice;
    entry.text = text;
    insert(entry);
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
    const QVector<Entry> gone = std::exchange(m_entries, {});
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

void ConversationView::insert(const Entry &entry)
{
    const bool wasAtEnd = isAtEnd();
    const int position = positionAfter(entry.turn);
    m_entries.insert(position, entry);
    layOut(position, wasAtEnd);
}

int ConversationView::positionAfter(int turn) const
{
    int position = m_entries.size();
    while (position > 0 && m_entries.at(position - 1).turn > turn) {
        --position;
    }
    return position;
}

int ConversationView::saidPosition(int turn) const
{
    for (int i = positionAfter(turn) - 1; i >= 0 && m_entries.at(i).turn == turn; --i) {
        if (m_entries.at(i).role == Bubble::Said) {
            return i;
        }
    }
    return -1;
}

int ConversationView::columnWidth() const
{
    return qBound(1, viewport()->width() - 2 * Margin, WidestColumn);
}

int ConversationView::contentHeight() const
{
    const int end = m_entries.isEmpty() ? Margin : m_entries.last().bottom() + Gap;
    const bool areDotsLast = m_waitingTurn != 0 && positionAfter(m_waitingTurn) == m_entries.size();
    return end + (areDotsLast ? m_dots->height() + Gap : 0) + Margin - Gap;
}

void ConversationView::layOut(int first, bool wasAtEnd)
{
    // What stands at the upper edge stays there.
    const int offset = verticalScrollBar()->value();
    const auto anchor = std::find_if(m_entries.begin(), m_entries.end(), [offset](const Entry &entry) {
        return entry.isSized && entry.bottom() > offset;
    });
    const int anchorIndex = anchor == m_entries.end() ? -1 : int(anchor - m_entries.begin());
    const int anchorTop = anchorIndex < 0 ? 0 : anchor->top;

    const int dotsAfter = m_waitingTurn == 0 ? -1 : positionAfter(m_waitingTurn) - 1;
    for (int i = first; i < m_entries.size(); ++i) {
        Entry &entry = m_entries[i];
        entry.measure(columnWidth(), font());
        const int above = i == 0 ? Margin : m_entries.at(i - 1).bottom() + Gap;
        entry.top = above + (i > 0 && i - 1 == dotsAfter ? m_dots->height() + Gap : 0);
    }
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
    // Bubbles first become free, then are used again.
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        if (entry < firstShown || entry >= endShown) {
            release(*entry);
        }
    }
    for (auto entry = firstShown; entry != endShown; ++entry) {
        placeEntry(*entry, offset);
    }
    if (m_waitingTurn != 0) {
        const int position = positionAfter(m_waitingTurn);
        const int top = position == 0 ? Margin : m_entries.at(position - 1).bottom() + Gap;
        m_dots->move(columnLeft(), top - offset);
    }
    updateEndButton();
}

void ConversationView::placeEntry(Entry &entry, int offset)
{
    const int top = entry.top - offset;
    const bool isSaid = entry.role == Bubble::Said;
    if (!entry.textSize.isEmpty()) {
        if (entry.bubble == nullptr) {
            entry.bubble = takeBubble();
        }
        const int left = isSaid ? columnLeft() + columnWidth() - entry.textSize.width() : columnLeft();
        entry.bubble->setGeometry(QRect(QPoint(left, top), entry.textSize));
        entry.bubble->setProperty("turn", entry.turn);
        entry.bubble->show(entry.role, entry.text, entry.isQueued);
    }
    if (entry.card != nullptr) {
        entry.card->setGeometry(
            QRect(QPoint(columnLeft(), top + entry.height() - entry.cardSize.height()), entry.cardSize));
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
    if (entry.card != nullptr && entry.card->isVisibleTo(viewport())) {
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

void ConversationView::cardChanged()
{
    // A card changes several times before it is shown again; one layout for all of it.
    if (m_isRelayoutPending) {
        return;
    }
    m_isRelayoutPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isRelayoutPending = false;
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
    // Before the resize the end may have been the end of a smaller range.
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
    if (event->key() == Qt::Key_End) {
        scrollToEnd();
    } else if (event->key() == Qt::Key_Home) {
        verticalScrollBar()->setValue(0);
    } else {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace devhost
