// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "customizeitem.h"

#include "card/cardtheme.h"

#include <QPainter>

CustomizeItem::CustomizeItem(QWidget *parent) : QWidget(parent), m_backGroundColor(CardTheme::panelGround())
{
    setFocusPolicy(Qt::TabFocus);
}

void CustomizeItem::setRaidus(int radius)
{
    m_radius = radius;
    update();
}

void CustomizeItem::setBackGroundColor(const QColor &color)
{
    m_hasGivenColor = true;
    m_backGroundColor = color;
    update();
}

void CustomizeItem::setDefaultBackGroundColor(const QColor &color)
{
    if (!m_hasGivenColor) {
        m_backGroundColor = color;
        update();
    }
}

void CustomizeItem::setBottomRadius(bool rounded)
{
    m_bottomRadius = rounded;
    update();
}

void CustomizeItem::setTopRadius(bool rounded)
{
    m_topRadius = rounded;
    update();
}

void CustomizeItem::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_backGroundColor);
    painter.setPen(Qt::transparent);
    painter.drawRoundedRect(rect(), m_radius, m_radius);
    if (!m_bottomRadius) {
        painter.drawRect(0, height() - m_radius, width(), m_radius);
    }
    painter.end();
    QWidget::paintEvent(event);
}
