// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "card/conferencedraft.h"
#include "card/conferencedurations.h"
#include "card/conferencehours.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The rows of a card in which a conference is edited, and what they have been set to.
class ConferenceEditor final : public QObject
{
    Q_OBJECT

public:
    /// The window titles by which the two combo boxes with a list are known.
    static QString hourBoxTag();
    static QString durationBoxTag();

    /// @p widthScale is what the planned widths of the controls are multiplied by.
    explicit ConferenceEditor(double widthScale, QObject *parent);

    /// Takes the values of @p conference as those that an edit is compared with.
    void setReference(const ContactDetailMsg &conference) { m_draft.setReference(conference); }
    [[nodiscard]] bool isChanged() const { return m_draft.isChanged(); }
    /// Writes what the controls were set to into @p conference.
    void applyTo(ContactDetailMsg &conference) const { m_draft.applyTo(conference); }

    // Each row belongs to @p card, which also filters the events of the combo boxes.
    QWidget *beginTime(const ContactDetailMsg &conference, QWidget *card);
    QWidget *timeLength(const ContactDetailMsg &conference, QWidget *card);
    QWidget *personNum(const ContactDetailMsg &conference, QWidget *card);

Q_SIGNALS:
    /// A value was set, by a person or while a row was filled.
    void signalEdited();

private:
    QWidget *datePicker(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter);
    QWidget *hourBox(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter);
    [[nodiscard]] int scaled(int width) const;

    const double m_widthScale;
    ConferenceDurations m_durations;
    ConferenceHours m_hours;
    ConferenceDraft m_draft;
};
