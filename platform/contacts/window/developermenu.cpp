// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/developermenu.h"

#include "window/question.h"

#include "book/administration.h"
#include "book/contactsbook.h"

#include <QMenu>

DeveloperMenu::DeveloperMenu(ContactsBook &book, Administration &administration, QWidget *parent)
    : QPushButton(tr("De&veloper"), parent)
    , m_book(book)
    , m_administration(administration)
{
    setObjectName(QStringLiteral("developer"));
    setAutoDefault(false);
    auto *menu = new QMenu(this);
    m_elsewhere = menu->addAction(tr("In a Conference on Another D&evice"));
    m_elsewhere->setObjectName(QStringLiteral("elsewhere"));
    m_elsewhere->setCheckable(true);
    menu->addSeparator();
    QAction *sample = menu->addAction(tr("&Restore Sample Data…"));
    sample->setObjectName(QStringLiteral("sample"));
    setMenu(menu);
    connect(m_elsewhere, &QAction::triggered, &m_administration, &Administration::SetEngagedElsewhere);
    connect(sample, &QAction::triggered, this, &DeveloperMenu::askForSample);
    connect(&m_book, &ContactsBook::changedLately, this, &DeveloperMenu::reload);
    reload();
}

void DeveloperMenu::askForSample()
{
    askFirst(this,
             tr("Restore the sample data? All contacts and conferences that are there now are replaced."),
             tr("Restore Sample Data"), [this] {
                 Q_EMIT told(m_administration.LoadSample() ? tr("The sample data was restored.")
                                                           : tr("That failed."));
             });
}

void DeveloperMenu::reload()
{
    try {
        m_elsewhere->setChecked(m_book.session().isEngagedElsewhere());
    } catch (const std::exception &error) {
        qWarning("What is for developers cannot be shown: %s", error.what());
        m_book.noteFailure(error);
    }
}
