// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/llabel.h"

#include "lumo/plaintooltip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

LLabel::LLabel(QWidget *parent, Qt::WindowFlags flags) : QLabel(parent, flags)
{
    setTextFormat(Qt::PlainText);
}

LLabel::LLabel(const QString &text, QWidget *parent, Qt::WindowFlags flags) : LLabel(parent, flags)
{
    // Not through QLabel's own constructor: there the text would still be taken for markup.
    setText(text);
}

void LLabel::setElideMode(Qt::TextElideMode mode)
{
    if (m_elideMode == mode) {
        return;
    }
    m_elideMode = mode;
    updateGeometry();
    update();
}

Qt::TextElideMode LLabel::elideMode() const
{
    return m_elideMode;
}

QSize LLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    if (m_elideMode == Qt::ElideNone || text().isEmpty() || wordWrap()) {
        return whole;
    }
    // Room for one character and the dots: whoever lays the label out may go down to that.
    const int least = fontMetrics().horizontalAdvance(text().at(0)) +
                      fontMetrics().horizontalAdvance(QChar(0x2026)) + 2 * margin();
    return QSize(qMin(least, whole.width()), whole.height());
}

bool LLabel::event(QEvent *event)
{
    // Only when it is asked for, because the width may have changed since the text was set. A tool tip that
    // somebody set stays.
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownText() != text()) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), plainToolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void LLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    // The dots rarely end at the edge; what is cut off starts where all texts start, however it is aligned.
    const Qt::Alignment aligned = (alignment() & Qt::AlignVertical_Mask) | Qt::AlignLeading;
    const auto flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), aligned));
    style()->drawItemText(&painter, room, flags | Qt::TextSingleLine, palette(), isEnabled(), shown,
                          foregroundRole());
}

QString LLabel::shownText() const
{
    if (m_elideMode == Qt::ElideNone || wordWrap()) {
        return text();
    }
    // QLabel remembers its size, and eliding would shape the text once more.
    if (QLabel::sizeHint().width() <= width()) {
        return text();
    }
    return fontMetrics().elidedText(text(), m_elideMode, contentsRect().width() - 2 * margin());
}
