// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/peoplemodel.h"
#include "window/tablepage.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>

/// The people of whoever is logged in: search them, and add friends.
class PeoplePage : public TablePage
{
    Q_OBJECT

public:
    /// @p model becomes a child, @p book must outlive it.
    PeoplePage(PeopleModel *model, ContactsBook &book, QWidget *parent = nullptr);

Q_SIGNALS:
    /// Something to tell the user.
    void told(const QString &text);

private:
    void addControls();
    void addMenu();
    void connectControls();
    void openDialog();
    void addSelected();
    void showWhatIsPossible();
    void showHint();

    PeopleModel *m_model;
    ContactsBook &m_book;
    QComboBox *m_scope; ///< children, all of them
    QPushButton *m_add;
    QPushButton *m_befriend;
    QAction *m_befriendEntry;
    QAction *m_copyAccount;
};
