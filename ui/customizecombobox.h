// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lcombobox.h>

#include <QDate>

#include <memory>

QT_BEGIN_NAMESPACE
class QCalendarWidget;
QT_END_NAMESPACE

/**
 * A field for a day: one line with month, day and weekday, which opens a calendar on a click, on Return and
 * wherever a combo box opens its list.
 */
class CustomizeComboBox : public LComboBox
{
    Q_OBJECT

public:
    explicit CustomizeComboBox(QWidget *parent = nullptr);
    ~CustomizeComboBox() override;

    /// Invalid until a day is picked or set.
    [[nodiscard]] QDate getConferenceDate() const;

    /// Opens the calendar instead of the list, which has only the one line that is shown anyway.
    void showPopup() override;
    void hidePopup() override;

public Q_SLOTS:
    /// Takes over @p date as if it had been picked in the calendar.
    void slotSelectionData(const QDate &date);

Q_SIGNALS:
    /// Emitted for every selection, before anything else changes.
    void signalSelectionDate(const QDate &date);
    /// The field was clicked; the calendar is open.
    void signalMouseClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void openCalendar();

    std::unique_ptr<QCalendarWidget> m_calendar;
    QDate m_date;
    bool m_selecting = false;
};
