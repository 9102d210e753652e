// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCalendarWidget>

/// A calendar in a tool window that stays on top. Not used by the date field.
class CustomizeCalendar : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit CustomizeCalendar(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
};
