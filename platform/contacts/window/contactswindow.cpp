// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/contactswindow.h"

#include "window/accountbar.h"
#include "window/applicationicon.h"
#include "window/conferencepage.h"
#include "window/developermenu.h"
#include "window/peoplepage.h"
#include "window/reminderpage.h"
#include "window/resultlabel.h"
#include "window/windowtitle.h"

#include "book/administration.h"
#include "book/contactsbook.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWindow>

ContactsWindow::ContactsWindow(ContactsBook &book, Administration &administration, Tools tools)
    : m_pages(new QTabWidget)
    , m_told(new ResultLabel)
{
    setWindowIcon(applicationIcon());
    new WindowTitle(*this, *m_pages, book);

    auto *conferences = new ConferencePage(new ConferenceModel(book), book, administration);
    connect(conferences, &ConferencePage::told, this, &ContactsWindow::tell);
    m_pages->addTab(conferences, tr("&Conferences"));
    auto *people = new PeoplePage(new PeopleModel(book), book);
    connect(people, &PeoplePage::told, this, &ContactsWindow::tell);
    m_pages->addTab(people, tr("P&eople"));
    m_pages->addTab(new ReminderPage(book), tr("&Reminders"));
    m_pages->setAccessibleName(tr("Conferences, people and reminders"));

    m_told->setObjectName(QStringLiteral("told"));
    auto *account = new QHBoxLayout;
    account->addWidget(new AccountBar(book, administration), 1);
    if (tools == Tools::ForDevelopers) {
        auto *developer = new DeveloperMenu(book, administration);
        connect(developer, &DeveloperMenu::told, this, &ContactsWindow::tell);
        account->addWidget(developer);
    }

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(makeNotice(book));
    layout->addLayout(account);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_told);
    addShortcuts();
    resize(1000, 640);
}

void ContactsWindow::bringUp(WindowFocus focus)
{
    // Qt looks at the attribute only when it makes the native window, and at its property each time.
    setAttribute(Qt::WA_ShowWithoutActivating, focus == WindowFocus::Leave);
    winId();
    windowHandle()->setProperty("_q_showWithoutActivating", focus == WindowFocus::Leave);
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    if (focus == WindowFocus::Take) {
        activateWindow();
    } else {
        QApplication::alert(this);
    }
}

QWidget *ContactsWindow::makeNotice(ContactsBook &book)
{
    auto *notice = new QWidget;
    notice->setObjectName(QStringLiteral("notice"));
    auto *text = new QLabel;
    text->setObjectName(QStringLiteral("noticeText"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setWordWrap(true);
    text->setAccessibleName(tr("Notice"));
    auto *read = new QPushButton(tr("O&K"));
    read->setObjectName(QStringLiteral("noticeRead"));
    auto *layout = new QHBoxLayout(notice);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text, 1);
    layout->addWidget(read);
    try {
        text->setText(book.session().notice());
    } catch (const std::exception &error) {
        book.noteFailure(error);
        qWarning("The notice cannot be shown: %s", error.what());
    }
    notice->setHidden(text->text().isEmpty());
    connect(read, &QPushButton::clicked, notice, [notice, &book] {
        const bool done = book.change([&book] {
            book.session().setNotice(QString());
            return true;
        });
        notice->setVisible(!done);
    });
    return notice;
}

void ContactsWindow::tell(const QString &text)
{
    m_told->tell(text);
}

void ContactsWindow::addShortcuts()
{
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] {
        if (const auto *page = qobject_cast<TablePage *>(m_pages->currentWidget())) {
            page->filter()->setFocus(Qt::ShortcutFocusReason);
        }
    });
    auto *hide = new QShortcut(QKeySequence(QStringLiteral("Ctrl+W")), this);
    connect(hide, &QShortcut::activated, this, &QWidget::close);
}
