// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QDateTime;
class QGridLayout;
class QPushButton;
QT_END_NAMESPACE
class LComboBox;
class LSpinBox;

/**
 * An older form for a conference's start, duration and head count. The plugin does not show it. Confirming
 * asks the contacts application for the change and blocks until it has answered; the outcome only goes to the
 * debug log.
 */
class ContactDetailWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ContactDetailWidget(QWidget *parent = nullptr);

    /// Does nothing: the constructor does it all.
    void init();
    /// Builds the form for the first conference; an empty form if there is none. Call once.
    void gridLayout(const QVector<ContactDetailMsg> &list);

    // The rows' controls, all children of the form.

    QWidget *createMeetingTimeWidget(const ContactDetailMsg &conference);
    QWidget *createMeetingTimeLengthWidget(const ContactDetailMsg &conference);
    /// The spelling is the interface's.
    QWidget *createMeegtingPersonNumWidget(const ContactDetailMsg &conference);
    QWidget *createConferenceInvite(const QVector<ContactDetailMsg> &list);

public Q_SLOTS:
    /// Sends the form's values; does nothing without a form.
    void slotsClickConfirm();
    void slotsClickCancel();

private:
    void addRow(const QString &caption, QWidget *control);
    void addButtons();
    void fillDays();
    [[nodiscard]] QDateTime chosenStart() const;
    [[nodiscard]] ContactDetailMsg changedConference(const QDateTime &start) const;

    QGridLayout *m_grid;
    LComboBox *m_month = nullptr;
    LComboBox *m_day = nullptr;
    LComboBox *m_hour = nullptr;
    LComboBox *m_duration = nullptr;
    LSpinBox *m_personNum = nullptr;
    ContactDetailMsg m_conference;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_confirm = nullptr;
};
