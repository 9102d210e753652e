// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/conferenceoptions.h"
#include "window/formdialog.h"

QT_BEGIN_NAMESPACE
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTreeWidget;
QT_END_NAMESPACE

class PasscodeField;

/// One conference with everybody who has or had a seat in it; its host can change it here, and anybody
/// can export it. Follows who is in it.
class ConferenceDetail : public FormDialog
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    ConferenceDetail(ContactsBook &book, const Conference &conference, QWidget *parent = nullptr);

private:
    void arrange();
    void addFields();
    void showValues();
    /// What can be changed in the conference as it is now. Leaves alone what somebody has typed.
    void showEditable(const Conference &current);
    void reload();
    void showSeats(const QVector<Participant> &seats);
    QJsonObject changes() const;
    void showWhetherChanged();
    void exportCalendar();
    /// Saves what was edited.
    void submit() override;

    ContactsBook &m_book;
    Conference m_conference;
    Viewer m_viewer;
    std::optional<QString> m_openedFor; ///< the viewer's user id at first
    QString m_shownPasscode;            ///< as the field first held it, which may have cut it
    int m_mostMinutes = 0;
    int m_mostPeople = 0;
    QLineEdit *m_title; ///< children, all of them
    QLabel *m_number;
    QLabel *m_host;
    QDateTimeEdit *m_start;
    QSpinBox *m_minutes;
    QSpinBox *m_limit;
    PasscodeField *m_passcode;
    QLabel *m_passcodeNote;
    QTreeWidget *m_seats;
    QPushButton *m_save;
    QPushButton *m_export;
};
