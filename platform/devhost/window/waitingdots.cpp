// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "waitingdots.h"

#include <QPainter>
#include <QTimerEvent>

namespace devhost {

namespace {

constexpr int StepMsecs = 220;
constexpr int Dots = 3;
constexpr QSize Extent(66, 36);

} // namespace

WaitingDots::WaitingDots(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Waiting for the answer"));
    resize(sizeHint());
}

QSize WaitingDots::sizeHint() const
{
    return Extent;
}

void WaitingDots::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().brush(QPalette::Base));
    painter.drawRoundedRect(rect(), 12, 12);
    for (int i = 0; i < Dots; ++i) {
        QColor colour = palette().color(QPalette::Text);
        colour.setAlphaF(i == m_step ? 0.85 : 0.3);
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(width() / 2.0 + (i - 1) * 14, height() / 2.0), 3.5, 3.5);
    }
}

void WaitingDots::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        return QWidget::timerEvent(event);
    }
    m_step = (m_step + 1) % Dots;
    update();
}

void WaitingDots::showEvent(QShowEvent *)
{
    m_timer.start(StepMsecs, this);
}

void WaitingDots::hideEvent(QHideEvent *)
{
    m_timer.stop();
}

} // namespace devhost
