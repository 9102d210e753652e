// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/accountbar.h"

#include "book/administration.h"
#include "book/contactsbook.h"
#include "window/accountmodel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

AccountBar::AccountBar(ContactsBook &book, Administration &administration, QWidget *parent)
    : QWidget(parent)
    , m_book(book)
    , m_administration(administration)
    , m_accounts(new AccountModel(book, this))
    , m_account(new QComboBox)
    , m_logout(new QPushButton(tr("Log &Out")))
    , m_kind(new QComboBox)
{
    addControls();
    connect(m_account, QOverload<int>::of(&QComboBox::activated), this, &AccountBar::loginSelected);
    connect(m_logout, &QPushButton::clicked, &m_administration, &Administration::Logout);
    connect(m_kind, QOverload<int>::of(&QComboBox::activated), this, [this] {
        m_administration.SetAccountKind(m_account->currentData().toString(),
                                        m_kind->currentData().toString());
    });
    connect(&m_book, &ContactsBook::changedLately, this, &AccountBar::reload);
    reload();
}

void AccountBar::addControls()
{
    m_account->setModel(m_accounts);
    m_account->setObjectName(QStringLiteral("account"));
    m_account->setAccessibleName(tr("Account to log in with"));
    m_account->setMinimumContentsLength(16);
    m_account->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_logout->setObjectName(QStringLiteral("logout"));
    m_kind->setObjectName(QStringLiteral("kind"));
    m_kind->setAccessibleName(tr("Kind of account"));
    m_kind->addItem(tr("Paying"), QStringLiteral("paying"));
    m_kind->addItem(tr("Free"), QStringLiteral("free"));
    auto *label = new QLabel(tr("&Account"));
    label->setBuddy(m_account);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_account);
    layout->addWidget(m_kind);
    layout->addWidget(m_logout);
    layout->addStretch(1);
}

void AccountBar::loginSelected()
{
    const QString account = m_account->currentData().toString();
    if (account.isEmpty()) {
        m_administration.Logout();
    } else if (!m_administration.Login(account)) {
        reload(); // the box already shows whom the user chose
    }
}

void AccountBar::reload()
{
    const QSignalBlocker blocker(m_account);
    try {
        m_accounts->reload();
        m_account->setCurrentIndex(m_accounts->currentRow());
        const std::optional<Person> &user = m_accounts->user();
        m_kind->setCurrentIndex(user && user->kind == AccountKind::Free ? 1 : 0);
        m_kind->setEnabled(user.has_value());
        m_logout->setEnabled(user.has_value());
    } catch (const std::exception &error) {
        qWarning("The accounts cannot be shown: %s", error.what());
        m_book.noteFailure(error);
    }
}
