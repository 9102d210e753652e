// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/friendrequests.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

/// Who wants to become the user's friend, one after the other; there only while somebody does.
class RequestBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit RequestBar(ContactsBook &book, QWidget *parent = nullptr);

    /// The last one in the order of Tab.
    QWidget *lastControl() const;

Q_SIGNALS:
    /// Something to tell the user.
    void told(const QString &text);

private:
    void reload();
    void answer(QString (FriendRequests::*reply)(const QString &), const QString &success);

    ContactsBook &m_book;
    FriendRequests m_requests;
    QString m_account; ///< of whom is shown
    QLabel *m_text;    ///< children
    QPushButton *m_accept;
    QPushButton *m_decline;
};
