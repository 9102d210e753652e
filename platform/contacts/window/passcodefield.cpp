// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/passcodefield.h"

#include "actions/conferencetexts.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

PasscodeField::PasscodeField(QWidget *parent)
    : QWidget(parent)
    , m_edit(new QLineEdit)
    , m_reveal(new QPushButton(tr("Sho&w")))
{
    m_edit->setObjectName(QStringLiteral("passcodeText"));
    m_edit->setAccessibleName(tr("Conference passcode"));
    m_edit->setPlaceholderText(tr("Leave empty for none"));
    m_edit->setEchoMode(QLineEdit::Password);
    m_edit->setMaxLength(MaxPasscodeLength);
    m_reveal->setObjectName(QStringLiteral("reveal"));
    m_reveal->setAccessibleName(tr("Show the conference passcode"));
    m_reveal->setCheckable(true);
    m_reveal->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_reveal);
    setFocusProxy(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &PasscodeField::edited);
    connect(m_reveal, &QPushButton::toggled, m_edit,
            [this](bool shown) { m_edit->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); });
}

QString PasscodeField::text() const
{
    return m_edit->text();
}

void PasscodeField::setText(const QString &text)
{
    m_edit->setText(text);
}

void PasscodeField::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
}
