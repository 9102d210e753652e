// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/addfrienddialog.h"

#include "core/outcome.h"
#include "core/outcometext.h"
#include "window/befriend.h"
#include "window/resultlabel.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

AddFriendDialog::AddFriendDialog(ContactsBook &book, QWidget *parent)
    : QDialog(parent)
    , m_book(book)
    , m_said(new QLineEdit)
    , m_result(new ResultLabel)
    , m_send(new QPushButton(tr("&Send Request")))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Add Friend"));
    m_said->setObjectName(QStringLiteral("friendAccount"));
    m_said->setMaxLength(100);
    m_result->setObjectName(QStringLiteral("friendResult"));
    m_send->setObjectName(QStringLiteral("sendRequest"));
    m_send->setDefault(true);
    m_send->setEnabled(false);
    auto *label = new QLabel(tr("Their &account, or a name that nobody else has"));
    label->setBuddy(m_said);
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(m_send, QDialogButtonBox::AcceptRole);
    QPushButton *cancel = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    cancel->setAutoDefault(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_said);
    layout->addWidget(m_result);
    layout->addStretch(1);
    layout->addWidget(buttons);
    setMinimumWidth(340);
    connect(m_said, &QLineEdit::textChanged, this,
            [this](const QString &text) { m_send->setEnabled(!text.trimmed().isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &AddFriendDialog::send);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void AddFriendDialog::send()
{
    const auto [word, text] = befriend(m_book, m_said->text().trimmed());
    if (word == Outcome::Ok) {
        Q_EMIT told(text);
        accept();
        return;
    }
    m_result->tell(word == Outcome::NotFound
                       ? tr("Nobody was found, or several people have that name. Please give the account.")
                       : outcomeText(word));
    m_said->selectAll();
    m_said->setFocus();
}
