// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/question.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

void askFirst(QWidget *parent, const QString &question, const QString &yes, std::function<void()> act)
{
    auto *box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Question);
    box->setTextFormat(Qt::PlainText);
    box->setText(question);
    QPushButton *agree = box->addButton(yes, QMessageBox::DestructiveRole);
    agree->setObjectName(QStringLiteral("agree"));
    QPushButton *refuse =
        box->addButton(QCoreApplication::translate("Question", "No, Keep"), QMessageBox::RejectRole);
    refuse->setObjectName(QStringLiteral("refuse"));
    box->setDefaultButton(refuse);
    box->setEscapeButton(refuse);
    QObject::connect(agree, &QPushButton::clicked, parent, [act = std::move(act)] { act(); });
    box->open();
}
