// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/conferencemodel.h"
#include "window/tablepage.h"

QT_BEGIN_NAMESPACE
class QAction;
class QComboBox;
class QPushButton;
QT_END_NAMESPACE

class Administration;
class ConferenceCommands;
class CurrentConference;
class EndedConferences;
class SortedConferences;

/// The conferences: the one that the user is in, those that run or come, those that have ended, and what one
/// can do with the chosen one.
class ConferencePage : public TablePage
{
    Q_OBJECT

public:
    /// @p model becomes a child, @p administration must outlive it.
    ConferencePage(ConferenceModel *model, ContactsBook &book, Administration &administration,
                   QWidget *parent = nullptr);

Q_SIGNALS:
    /// Something to tell the user.
    void told(const QString &text);

private:
    ConferencePage(ConferenceModel *model, SortedConferences *sorted, ContactsBook &book,
                   Administration &administration, QWidget *parent);
    void arrange();
    void connectControls();
    void addButton(QPushButton *button, QAction *action);
    void setTabOrders();
    void addMenus();
    void chooseSelected();
    void openCurrent(QTableView *view);
    /// Selects a conference that has just been made.
    void selectMade(const QString &dialNumber);
    void readEnough();
    void showHint();

    ConferenceModel *m_model;
    SortedConferences *m_sorted; ///< children, all of them
    ConferenceCommands *m_commands;
    CurrentConference *m_current;
    EndedConferences *m_ended;
    QComboBox *m_scope;
    QLineEdit *m_passcode;
    QString m_lastChosenId;
};
