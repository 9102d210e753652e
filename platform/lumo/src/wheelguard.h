// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Lets wheel events pass a widget without the focus. An event filter, because an override in a header would
/// tie derived classes to this build of the toolkit.
class WheelGuard final : public QObject
{
    Q_OBJECT

public:
    /// Lives as long as the widget.
    static void watch(QWidget &widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit WheelGuard(QWidget &widget);
};
