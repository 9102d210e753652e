// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "service/contactrequests.h"

#include "book/contactsbook.h"

ContactRequests::ContactRequests(ContactsBook &book, QObject *parent) : QObject(parent), m_book(book) {}

QString ContactRequests::Request(const QString &action, const QString &parameters)
{
    return m_book.perform(action, parameters);
}
