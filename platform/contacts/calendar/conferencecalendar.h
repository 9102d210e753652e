// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>

struct Conference;

/**
 * The conference as an iCalendar file: one event in the current time zone, with that zone's rules and an
 * alarm
 * @p leadMinutes before its start. Without the passcode, because such files are passed on.
 */
QByteArray calendarOf(const Conference &conference, int leadMinutes);

/// Writes @p calendar to the file, wholly or not at all. Returns the reason for a failure; empty on success.
QString writeCalendar(const QByteArray &calendar, const QString &fileName);
