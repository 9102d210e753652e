// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/formdialog.h"

QT_BEGIN_NAMESPACE
class QDateTimeEdit;
class QLineEdit;
class QRadioButton;
QT_END_NAMESPACE

class ContactsBook;
class InviteeField;
class PasscodeField;

/// Asks for a new conference and makes it. Stays open, with the reason, when the application refuses.
class ConferenceDialog : public FormDialog
{
    Q_OBJECT

public:
    /// @p book must outlive it; somebody must be logged in.
    explicit ConferenceDialog(ContactsBook &book, QWidget *parent = nullptr);

Q_SIGNALS:
    /// A conference with that number is there.
    void made(const QString &dialNumber);

private:
    void arrange();
    void addWhen();
    /// Makes the conference.
    void submit() override;
    /// The names of those chosen who have no seat in the conference that was made.
    QStringList notInvited(const QString &number) const;
    QJsonObject parameters() const;

    ContactsBook &m_book;
    QLineEdit *m_title; ///< children, all of them
    QRadioButton *m_now;
    QRadioButton *m_later;
    QDateTimeEdit *m_start;
    InviteeField *m_people;
    PasscodeField *m_passcode;
};
