// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDebug>
#include <QLoggingCategory>

/// The category to which all of the plugin's records belong. In Qt 5, qDebug() and its like put the text of a
/// record together before anybody asks whether its level is on; qCDebug(defaultLog) and its like ask first.
inline const QLoggingCategory &defaultLog()
{
    if (const QLoggingCategory *category = QLoggingCategory::defaultCategory()) {
        return *category;
    }
    // While a program exits, Qt destroys its category before the last thread has logged. This one is never
    // destroyed, and writes everything, as qDebug() does then.
    static const QLoggingCategory &last = *new QLoggingCategory("default");
    return last;
}
