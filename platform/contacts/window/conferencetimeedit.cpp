// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencetimeedit.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QDateTimeEdit>

QDateTimeEdit *makeConferenceTimeEdit()
{
    auto *edit = new QDateTimeEdit;
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd hh:mm"));
    edit->setAccessibleName(QCoreApplication::translate("ConferenceTimeEdit", "Start time"));
    edit->setCalendarPopup(true);
    // A form would make it narrower than its text.
    constexpr int arrowAndEdges = 52;
    const QString longest = edit->dateTime().toString(edit->displayFormat());
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(longest) + arrowAndEdges);
    edit->calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    return edit;
}
