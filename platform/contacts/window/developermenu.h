// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPushButton>

class Administration;
class ContactsBook;

/// What only somebody who tries things out needs: the sample directory, and being in a conference on another
/// device.
class DeveloperMenu : public QPushButton
{
    Q_OBJECT

public:
    /// Both must outlive it.
    DeveloperMenu(ContactsBook &book, Administration &administration, QWidget *parent = nullptr);

Q_SIGNALS:
    /// Something to tell the user.
    void told(const QString &text);

private:
    void askForSample();
    void reload();

    ContactsBook &m_book;
    Administration &m_administration;
    QAction *m_elsewhere; ///< a child
};
