// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/conferencemodel.h"
#include "window/tablepage.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QSortFilterProxyModel>

class Administration;

/// The conferences, and what one can do with the selected one.
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
    ConferencePage(ConferenceModel *model, QSortFilterProxyModel *sorted, ContactsBook &book,
                   Administration &administration, QWidget *parent);
    QPushButton *addButton(const QString &name, const QString &text);
    QAction *addMenuEntry(const QString &name, const QString &text, const QKeySequence &shortcut);
    void addControls();
    void addMenu();
    void connectControls();
    void perform(const QString &action, const QJsonObject &parameters);
    void join();
    void setState(const QString &state);
    void showWhatIsPossible();

    void readEnough();

    ConferenceModel *m_model;
    QSortFilterProxyModel *m_sorted; ///< a child
    ContactsBook &m_book;
    Administration &m_administration;
    QComboBox *m_scope; ///< children, all of them
    QLineEdit *m_passcode;
    QPushButton *m_join;
    QPushButton *m_leave;
    QPushButton *m_create;
    QPushButton *m_start;
    QPushButton *m_end;
    QPushButton *m_delete;
    QAction *m_copyNumber;
    QAction *m_export;
};
