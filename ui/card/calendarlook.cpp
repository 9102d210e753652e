// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/calendarlook.h"

#include "card/cardtheme.h"

#include <QCalendarWidget>
#include <QDate>
#include <QIcon>
#include <QPainter>
#include <QTextCharFormat>
#include <QToolButton>

namespace {

/// A page shows the month and the days of its neighbours that fill its first and last week.
constexpr int DaysBeforeMonth = 7;
constexpr int DaysOnPage = 49;

constexpr int ArrowExtent = 16;
constexpr qreal ArrowWidth = 2;

QTextCharFormat colored(const QColor &color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

QPixmap arrow(bool pointsLeft, const QColor &color, qreal ratio)
{
    QPixmap pixmap(QSize(ArrowExtent, ArrowExtent) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, ArrowWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const qreal tip = pointsLeft ? 6 : 10;
    const qreal ends = ArrowExtent - tip;
    painter.drawPolyline(QPolygonF({QPointF(ends, 4), QPointF(tip, 8), QPointF(ends, 12)}));
    return pixmap;
}

/// The buttons lie on the accent colour; under the mouse they get a button's background.
void setArrow(const QCalendarWidget &calendar, const char *buttonName, bool pointsLeft)
{
    auto *button = calendar.findChild<QToolButton *>(QLatin1String(buttonName));
    if (button == nullptr) {
        return; // this Qt names its buttons differently; keep its arrows
    }
    const qreal ratio = calendar.devicePixelRatioF();
    QIcon icon;
    icon.addPixmap(arrow(pointsLeft, calendar.palette().color(QPalette::HighlightedText), ratio));
    icon.addPixmap(arrow(pointsLeft, calendar.palette().color(QPalette::ButtonText), ratio), QIcon::Active);
    button->setIcon(icon);
}

} // namespace

void CalendarLook::giveTo(QCalendarWidget &calendar)
{
    calendar.setLocale(QLocale(QLocale::Chinese, QLocale::China));
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    QCalendarWidget *const target = &calendar;
    QObject::connect(target, &QCalendarWidget::currentPageChanged, target, [target] { refresh(*target); });
    CardTheme::follow(target, [target] { refresh(*target); });
    refresh(calendar);
}

void CalendarLook::refresh(QCalendarWidget &calendar)
{
    const QTextCharFormat weekend = colored(calendar.palette().color(QPalette::Link));
    calendar.setWeekdayTextFormat(Qt::Saturday, weekend);
    calendar.setWeekdayTextFormat(Qt::Sunday, weekend);

    const QTextCharFormat past = colored(CardTheme::text(CardTheme::CaptionAlpha));
    const QDate today = QDate::currentDate();
    const QDate first = QDate(calendar.yearShown(), calendar.monthShown(), 1).addDays(-DaysBeforeMonth);
    calendar.setDateTextFormat(QDate(), QTextCharFormat()); // clears the previous page's formats
    for (int i = 0; i < DaysOnPage && first.addDays(i) < today; ++i) {
        calendar.setDateTextFormat(first.addDays(i), past);
    }

    setArrow(calendar, "qt_calendar_prevmonth", true);
    setArrow(calendar, "qt_calendar_nextmonth", false);
}
