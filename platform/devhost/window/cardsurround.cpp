// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsurround.h"

#include <QEvent>
#include <QPainter>

namespace devhost {

namespace {

constexpr qreal Radius = 8; ///< the cards' own
constexpr qreal EdgeOpacity = 0.28;
constexpr qreal VeilOpacity = 0.55;

} // namespace

CardSurround::CardSurround(QWidget *card) : QWidget(card->parentWidget()), m_card(card)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    card->installEventFilter(this);
    connect(card, &QObject::destroyed, this, &QObject::deleteLater);
    follow();
}

void CardSurround::follow()
{
    setGeometry(m_card->geometry().adjusted(-1, -1, 1, 1));
    setVisible(m_card->isVisibleTo(parentWidget()));
    raise();
    update();
}

bool CardSurround::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange:
    case QEvent::ZOrderChange:
        if (watched == m_card) {
            follow();
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void CardSurround::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::Active, QPalette::WindowText);
    edge.setAlphaF(EdgeOpacity);
    painter.setPen(edge);
    if (m_card != nullptr && !m_card->isEnabled()) {
        QColor veil = palette().color(QPalette::Active, QPalette::Window);
        veil.setAlphaF(VeilOpacity);
        painter.setBrush(veil);
    }
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
}

} // namespace devhost
