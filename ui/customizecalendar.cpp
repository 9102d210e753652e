// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "customizecalendar.h"

#include "defaultlog.h"

CustomizeCalendar::CustomizeCalendar(QWidget *parent) : QCalendarWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setWindowFlags(Qt::Tool | Qt::WindowStaysOnTopHint);
}

void CustomizeCalendar::focusInEvent(QFocusEvent *event)
{
    qCDebug(defaultLog) << "focusInEvent";
    QCalendarWidget::focusInEvent(event);
}

void CustomizeCalendar::showEvent(QShowEvent *event)
{
    QCalendarWidget::showEvent(event);
}
