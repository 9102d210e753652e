// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/formdialog.h"

#include "window/resultlabel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

FormDialog::FormDialog(const QString &title, int leastWidth, QWidget *parent)
    : QDialog(parent)
    , m_column(new QVBoxLayout(this))
    , m_form(new QFormLayout)
    , m_result(new ResultLabel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    setMinimumWidth(leastWidth);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_form->setSpacing(10);
    m_column->setContentsMargins(16, 16, 16, 16);
    m_column->setSpacing(10);
    m_column->addLayout(m_form);
    m_column->addWidget(m_result);
}

void FormDialog::addBelowForm(QWidget *widget)
{
    m_column->insertWidget(m_column->indexOf(m_result), widget, 1);
}

void FormDialog::addButtons(QPushButton *act, const QString &closeText, QPushButton *other)
{
    auto *buttons = new QDialogButtonBox;
    act->setDefault(true);
    buttons->addButton(act, QDialogButtonBox::AcceptRole);
    if (other) {
        buttons->addButton(other, QDialogButtonBox::ActionRole);
    }
    QPushButton *close = buttons->addButton(closeText, QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("close"));
    m_column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FormDialog::submit);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}
