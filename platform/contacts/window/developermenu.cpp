// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/developermenu.h"

#include "window/question.h"

#include "book/administration.h"
#include "book/contactsbook.h"

#include <QMenu>

DeveloperMenu::DeveloperMenu(ContactsBook &book, Administration &administration, QWidget *parent)
    : QPushButton(QStringLiteral("开发者(&V)"), parent)
    , m_book(book)
    , m_administration(administration)
{
    setObjectName(QStringLiteral("developer"));
    setAutoDefault(false);
    auto *menu = new QMenu(this);
    m_elsewhere = menu->addAction(QStringLiteral("正在其他设备上开会(&E)"));
    m_elsewhere->setObjectName(QStringLiteral("elsewhere"));
    m_elsewhere->setCheckable(true);
    menu->addSeparator();
    QAction *sample = menu->addAction(QStringLiteral("恢复示例数据(&R)…"));
    sample->setObjectName(QStringLiteral("sample"));
    setMenu(menu);
    connect(m_elsewhere, &QAction::triggered, &m_administration, &Administration::SetEngagedElsewhere);
    connect(sample, &QAction::triggered, this, &DeveloperMenu::askForSample);
    connect(&m_book, &ContactsBook::changedLately, this, &DeveloperMenu::reload);
    reload();
}

void DeveloperMenu::askForSample()
{
    askFirst(this, QStringLiteral("要恢复示例数据吗？现有的联系人和会议都会被替换。"),
             QStringLiteral("恢复示例数据"), [this] {
                 Q_EMIT told(m_administration.LoadSample() ? QStringLiteral("示例数据已恢复。")
                                                           : QStringLiteral("操作失败。"));
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
