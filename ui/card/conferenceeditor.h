// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "card/conferencedraft.h"
#include "card/conferencedurations.h"

#include <QObject>
#include <QPointer>
#include <QVector>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE

/**
 * Edits a conference on a card: the rows, the values they were set to, and the buttons that modify or cancel
 * the conference. Empty on the other kinds of card.
 */
class ConferenceEditor final : public QObject
{
    Q_OBJECT

public:
    explicit ConferenceEditor(QWidget *card);

    /// The first conference of @p list is the one to edit.
    void setConferences(const QVector<ContactDetailMsg> &list) { m_conferences = list; }
    [[nodiscard]] const QVector<ContactDetailMsg> &conferences() const { return m_conferences; }
    /// Writes what the controls were set to into the conference.
    void apply() { m_draft.applyTo(m_conferences.first()); }
    // Each blocks until the application has answered, and returns its code. The editor may be gone by then.
    [[nodiscard]] int sendChange() const;
    [[nodiscard]] int sendCancellation() const;

    /// Sets @p conference as the baseline that edits are compared against.
    void setReference(const ContactDetailMsg &conference) { m_draft.setReference(conference); }
    [[nodiscard]] bool isChanged() const { return m_draft.isChanged(); }

    // Each row belongs to @p card, which also filters the events of the combo boxes and buttons.
    QWidget *beginTime(const ContactDetailMsg &conference, QWidget *card);
    QWidget *timeLength(const ContactDetailMsg &conference, QWidget *card);
    QWidget *personNum(const ContactDetailMsg &conference, QWidget *card);
    /// The row with the buttons to cancel and to modify the conference.
    QWidget *buttons(QWidget *card);

    // Null before buttons() is called and after its row is gone.
    [[nodiscard]] QPushButton *cancelButton() const { return m_cancelButton; }
    [[nodiscard]] QPushButton *modifyButton() const { return m_modifyButton; }

    /// Whether @p button is one of those that buttons() made, and is still there.
    [[nodiscard]] bool owns(const QPushButton *button) const;

    /// Whether @p control is a combo box whose list Return opens.
    static bool isListBox(const QWidget &control);

private:
    QWidget *datePicker(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter);
    QWidget *hourBox(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter);
    void edited();

    QVector<ContactDetailMsg> m_conferences;
    ConferenceDurations m_durations;
    ConferenceDraft m_draft;
    QVector<QPointer<QPushButton>> m_buttons;
    QPointer<QPushButton> m_cancelButton;
    QPointer<QPushButton> m_modifyButton;
};
