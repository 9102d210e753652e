// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class ContactsBook;

/**
 * Writes one of the user's conferences to an iCalendar file, "-" for the standard output: the one with @p
 * dialNumber, or the running or next one when that is empty. On failure writes the reason to standard error
 * and returns false.
 */
bool exportConference(ContactsBook &book, const QString &dialNumber, const QString &fileName);
