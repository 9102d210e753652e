// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <functional>

class ContactsBook;
class QWidget;

/// Asks for a file and writes the conference with that number into it, as an iCalendar file; @p tell gets
/// what became of it. Does not wait: the assistant's requests go on meanwhile. Both must outlive @p parent.
void askForCalendarFile(QWidget *parent, ContactsBook &book, const QString &dialNumber,
                        std::function<void(const QString &)> tell);
