// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

/// A passcode that nobody reads over the user's shoulder: dots, until the button beside it is pressed.
class PasscodeField : public QWidget
{
    Q_OBJECT

public:
    explicit PasscodeField(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    void edited();

private:
    QLineEdit *m_edit; ///< children
    QPushButton *m_reveal;
};
