// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/windowfocus.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QTabWidget;
QT_END_NAMESPACE

class Administration;
class ContactsBook;
class ResultLabel;

/**
 * The application's window: conferences and people, and everything that decides outcomes, to be tried by
 * hand. Closing it only hides it. Whether the application then goes on serving is not its decision: see
 * endWithLastWindowUnless().
 */
class ContactsWindow : public QWidget
{
    Q_OBJECT

public:
    /// What only somebody who tries things out needs: the sample directory and being in another conference.
    enum class Tools { ForUsers, ForDevelopers };

    /// Both must outlive it.
    ContactsWindow(ContactsBook &book, Administration &administration, Tools tools = Tools::ForUsers);

    /// Shows it above the others. Without the focus it asks for attention in the task bar.
    void bringUp(WindowFocus focus);

private:
    QWidget *makeNotice(ContactsBook &book);
    void tell(const QString &text);
    void addShortcuts();

    QTabWidget *m_pages; ///< children
    ResultLabel *m_told;
};
