// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardlabel.h"

#include "card/cardtext.h"
#include "card/cardtheme.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

/// More than fits on a line of the widest row.
constexpr int WidestHint = 260;
constexpr QChar Dots(0x2026);
constexpr QMargins ChipPadding(8, 1, 8, 1);

} // namespace

CardLabel::CardLabel(const QString &text, QWidget *parent) : LLabel(parent)
{
    // Before the text is set: a label takes it for markup otherwise.
    setTextFormat(Qt::PlainText);
    setText(CardText::oneLine(text));
    if (CardText::isLong(text)) {
        // Otherwise the whole text is the name.
        setAccessibleName(CardText::beginning(this->text()));
    }
}

void CardLabel::setTextAlpha(int alpha)
{
    m_textAlpha = alpha;
    setPalette(CardTheme::textPalette(alpha));
}

void CardLabel::disableEliding()
{
    m_elides = false;
    updateGeometry();
    update();
}

void CardLabel::capAtText()
{
    m_isCapped = true;
    setMaximumWidth(qMin(QWIDGETSIZE_MAX, wholeWidth()));
}

QSize CardLabel::sizeHint() const
{
    return wholeSize().boundedTo({WidestHint, QWIDGETSIZE_MAX});
}

QSize CardLabel::minimumSizeHint() const
{
    const QSize whole = wholeSize();
    if (!m_elides || text().isEmpty()) {
        return whole;
    }
    // A layout may shrink the label to one character and the ellipsis.
    const int least =
        fontMetrics().horizontalAdvance(text().at(0)) + fontMetrics().horizontalAdvance(Dots) + 2 * margin();
    return {qMin(least, whole.width()), whole.height()};
}

bool CardLabel::event(QEvent *event)
{
    // Only on demand, because the width may have changed since the text was set. A tool tip that was set
    // explicitly stays.
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownText() != text()) {
        const auto *help = static_cast<const QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), CardText::plainToolTip(text()), this);
        return true;
    }
    return LLabel::event(event);
}

void CardLabel::changeEvent(QEvent *event)
{
    LLabel::changeEvent(event);
    if (m_isCapped && event->type() == QEvent::FontChange) {
        capAtText();
    }
}

void CardLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text()) {
        LLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    // The ellipsis rarely ends at the edge, so elided text is always aligned to its start.
    const Qt::Alignment aligned = (alignment() & Qt::AlignVertical_Mask) | Qt::AlignLeading;
    const auto flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), aligned));
    style()->drawItemText(&painter, room, flags | Qt::TextSingleLine, palette(), isEnabled(), shown,
                          foregroundRole());
}

QString CardLabel::shownText() const
{
    // The base class caches its size hint; eliding would shape the text once more.
    if (!CardText::isLong(text()) && (!m_elides || LLabel::sizeHint().width() <= width())) {
        return text();
    }
    return fontMetrics().elidedText(CardText::beginning(text()), Qt::ElideRight,
                                    contentsRect().width() - 2 * margin());
}

QSize CardLabel::wholeSize() const
{
    if (!CardText::isLong(text())) {
        return LLabel::sizeHint();
    }
    const QMargins around = contentsMargins() + margin();
    const QSize size = fontMetrics().size(Qt::TextSingleLine, CardText::beginning(text()));
    return size + QSize(around.left() + around.right(), around.top() + around.bottom());
}

ColoredCardLabel::ColoredCardLabel(const QString &text, const QColor &color, QWidget *parent)
    : CardLabel(text, parent)
{
    QPalette colored = palette();
    colored.setBrush(QPalette::All, QPalette::WindowText, color);
    setPalette(colored);
    CardTheme::follow(this, [this] { followTheme(); });
    followTheme();
}

void ColoredCardLabel::followTheme()
{
    m_coats = CardTheme::coatsOnChip(palette().color(foregroundRole()));
    setContentsMargins(m_coats > 0 ? ChipPadding : QMargins());
    update();
}

void ColoredCardLabel::paintEvent(QPaintEvent *event)
{
    if (m_coats > 0) {
        QPainter painter(this);
        CardTheme::paintChip(painter, rect());
    }
    for (int coat = 0; coat < qMax(1, m_coats); ++coat) {
        CardLabel::paintEvent(event);
    }
}
