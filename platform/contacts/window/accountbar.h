// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QComboBox>
#include <QPushButton>

class AccountModel;
class Administration;
class ContactsBook;

/// Who uses the application: log in, log out and the account's kind.
class AccountBar : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive it.
    AccountBar(ContactsBook &book, Administration &administration, QWidget *parent = nullptr);

    void reload();

private:
    void addControls();
    void loginSelected();

    ContactsBook &m_book;
    Administration &m_administration;
    AccountModel *m_accounts; ///< children, all of them
    QComboBox *m_account;
    QPushButton *m_logout;
    QComboBox *m_kind;
};
