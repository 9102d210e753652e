// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/windowtitle.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"

#include <QRegularExpression>
#include <QTabWidget>

namespace {

/// "会议(&1)" or "&Conferences" without its shortcut.
QString pageName(const QString &tabText)
{
    static const QRegularExpression shortcut(QStringLiteral("\\(&.\\)"));
    QString name = tabText;
    return name.remove(shortcut).remove(QLatin1Char('&'));
}

} // namespace

WindowTitle::WindowTitle(QWidget &window, QTabWidget &pages, ContactsBook &book)
    : QObject(&window)
    , m_window(window)
    , m_pages(pages)
    , m_book(book)
{
    connect(&pages, &QTabWidget::currentChanged, this, &WindowTitle::show);
    connect(&book, &ContactsBook::changedLately, this, &WindowTitle::readUser);
    readUser();
}

void WindowTitle::readUser()
{
    try {
        const std::optional<Person> user = m_book.session().user();
        m_user = user ? cleanDisplayText(user->name) : tr("Not logged in");
        m_user.replace(QLatin1String("[*]"),
                       QLatin1String("[*][*]")); // "[*]" is Qt's sign of unsaved changes
    } catch (const std::exception &error) {
        qWarning("It cannot be shown who is logged in: %s", error.what());
        m_book.noteFailure(error);
    }
    show();
}

void WindowTitle::show()
{
    const QString page = pageName(m_pages.tabText(m_pages.currentIndex()));
    const QStringList parts{page, m_user, tr("Contacts and Conferences")};
    m_window.setWindowTitle(parts.join(QStringLiteral(" – ")));
}
