// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "service/contactrequests.h"

#include "book/contactsbook.h"
#include "book/useroverview.h"
#include "busnames.h"

ContactRequests::ContactRequests(ContactsBook &book, QObject *parent) : QObject(parent), m_book(book)
{
    connect(&book, &ContactsBook::changed, this, &ContactRequests::ContactNamesChanged);
}

QString ContactRequests::Request(const QString &action, const QString &parameters, qlonglong deadlineMsecs,
                                 const QString &requestId)
{
    constexpr int longestId = 64;
    const QString answer = m_book.perform(action, parameters, {deadlineMsecs, requestId.left(longestId)});
    if (answer.isNull() && calledFromDBus()) {
        sendErrorReply(BusName::deadlinePassedError(),
                       QStringLiteral("the deadline has passed; nothing was done"));
    }
    return answer;
}

bool ContactRequests::WasPerformed(const QString &requestId)
{
    return m_book.wasPerformed(requestId);
}

QStringList ContactRequests::ContactNames()
{
    return m_book.contactNames();
}

QString ContactRequests::Overview()
{
    return userOverview(m_book);
}
