// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>

struct Conference;

/**
 * The conference as an iCalendar file: one event in the time zone of this moment, with that zone's rules and
 * an alarm @p leadMinutes before its start. The passcode stays out, because such files are passed on.
 */
QByteArray calendarOf(const Conference &conference, int leadMinutes);

/// Writes @p calendar to the file, wholly or not at all; returns why it could not, empty when it is done.
QString writeCalendar(const QByteArray &calendar, const QString &fileName);
