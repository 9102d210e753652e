// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCalendarWidget>

/// A calendar in a tool window that stays on top. The date field does not use it; it is kept beside it.
class CustomizeCalendar : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit CustomizeCalendar(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
};
