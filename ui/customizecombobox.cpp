// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "customizecombobox.h"

#include "card/calendarlook.h"
#include "card/cardinput.h"
#include "defaultlog.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <array>

namespace {

/// A frameless window has no close button.
bool isDismissal(const QEvent &event)
{
    if (event.type() == QEvent::KeyPress) {
        return static_cast<const QKeyEvent &>(event).key() == Qt::Key_Escape;
    }
    return event.type() == QEvent::WindowDeactivate;
}

QString weekdayName(const QDate &date)
{
    static const std::array<QString, 6> fromMonday = {
        QStringLiteral("周一"), QStringLiteral("周二"), QStringLiteral("周三"),
        QStringLiteral("周四"), QStringLiteral("周五"), QStringLiteral("周六"),
    };
    const int day = date.dayOfWeek();
    if (day < Qt::Monday || day > Qt::Saturday) {
        return QStringLiteral("周日");
    }
    return fromMonday.at(static_cast<std::size_t>(day - Qt::Monday));
}

} // namespace

CustomizeComboBox::CustomizeComboBox(QWidget *parent)
    : LComboBox(parent)
    , m_calendar(std::make_unique<QCalendarWidget>())
{
    m_calendar->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    m_calendar->hide();
    CalendarLook::giveTo(*m_calendar);
    m_calendar->installEventFilter(this);
    connect(m_calendar.get(), &QCalendarWidget::clicked, this, &CustomizeComboBox::slotSelectionData);
}

CustomizeComboBox::~CustomizeComboBox()
{
    // Picking a day may delete the field while the calendar is still handling the click.
    m_calendar->removeEventFilter(this);
    if (m_selecting) {
        m_calendar.release()->deleteLater();
    }
}

QDate CustomizeComboBox::getConferenceDate() const
{
    return m_date;
}

void CustomizeComboBox::showPopup()
{
    openCalendar();
}

void CustomizeComboBox::hidePopup()
{
    m_calendar->hide();
    LComboBox::hidePopup();
}

void CustomizeComboBox::slotSelectionData(const QDate &date)
{
    const QPointer<CustomizeComboBox> self(this);
    m_selecting = true;
    Q_EMIT signalSelectionDate(date);
    if (self.isNull()) {
        return;
    }
    m_selecting = false;
    m_date = date;
    const QString text =
        QStringLiteral("%1月%2日 %3")
            .arg(QString::number(date.month()), QString::number(date.day()), weekdayName(date));
    if (count() == 0) {
        insertItem(0, text);
    } else {
        setItemText(0, text);
    }
    m_calendar->hide();
}

bool CustomizeComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_calendar.get()) {
        if (event->type() == QEvent::KeyRelease &&
            CardInput::isConfirmKey(static_cast<const QKeyEvent &>(*event))) {
            const QPointer<CustomizeComboBox> self(this);
            Q_EMIT m_calendar->clicked(m_calendar->selectedDate());
            if (self.isNull()) {
                return true;
            }
        } else if (isDismissal(*event)) {
            m_calendar->hide();
        }
    }
    return LComboBox::eventFilter(watched, event);
}

void CustomizeComboBox::focusInEvent(QFocusEvent *event)
{
    qCDebug(defaultLog) << "focusInEvent";
    LComboBox::focusInEvent(event);
}

void CustomizeComboBox::focusOutEvent(QFocusEvent *event)
{
    qCDebug(defaultLog) << "focusOutEvent";
    LComboBox::focusOutEvent(event);
}

void CustomizeComboBox::hideEvent(QHideEvent *event)
{
    // The calendar is a window and would stay behind without its field.
    m_calendar->hide();
    LComboBox::hideEvent(event);
}

void CustomizeComboBox::keyReleaseEvent(QKeyEvent *event)
{
    if (CardInput::isConfirmKey(*event) && !event->isAutoRepeat()) {
        openCalendar();
    }
    LComboBox::keyReleaseEvent(event);
}

void CustomizeComboBox::mousePressEvent(QMouseEvent *event)
{
    // The base class would open its list here; the calendar opens when the button is released.
    event->accept();
}

void CustomizeComboBox::mouseReleaseEvent(QMouseEvent *event)
{
    LComboBox::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !rect().contains(event->pos())) {
        return;
    }
    openCalendar();
    Q_EMIT signalMouseClicked();
}

void CustomizeComboBox::openCalendar()
{
    // pos() is in the parent's coordinates but mapToGlobal() expects this widget's, so the parent's offset is
    // counted twice. Kept: the calendar's position is part of the card's appearance.
    const QPoint anchor = mapToGlobal(pos());
    if (m_date.isValid()) {
        m_calendar->setSelectedDate(m_date);
    }
    CalendarLook::refresh(*m_calendar); // the day may have changed since it was last open
    m_calendar->move(anchor.x() - (m_calendar->width() - width()) / 2, anchor.y() + height());
    m_calendar->show();
    m_calendar->adjustSize();
    m_calendar->setFocus(Qt::OtherFocusReason);
}
