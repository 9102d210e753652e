// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "wheelguard.h"

#include <QEvent>
#include <QWidget>

void WheelGuard::watch(QWidget &widget)
{
    widget.installEventFilter(new WheelGuard(widget)); // the widget's
}

WheelGuard::WheelGuard(QWidget &widget) : QObject(&widget) {}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (event->type() != QEvent::Wheel || widget == nullptr || widget->hasFocus()) {
        return false;
    }
    event->ignore(); // for what is around it
    return true;
}
