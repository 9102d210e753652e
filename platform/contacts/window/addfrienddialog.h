// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

class ContactsBook;
class ResultLabel;

/// Asks somebody to become a friend, by account or by a name that only one person has. Stays open, with the
/// reason, when that did not work.
class AddFriendDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit AddFriendDialog(ContactsBook &book, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The request is on its way; something to tell the user.
    void told(const QString &text);

private:
    void send();

    ContactsBook &m_book;
    QLineEdit *m_said; ///< children, all of them
    ResultLabel *m_result;
    QPushButton *m_send;
};
