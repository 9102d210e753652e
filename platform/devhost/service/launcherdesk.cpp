// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherdesk.h"

#include "inputline.h"
#include "mainwindow.h"
#include "notifier.h"

namespace devhost {

LauncherDesk::LauncherDesk(Conversation &conversation, Notifier &notifier, QObject *parent)
    : QObject(parent)
    , m_conversation(conversation)
    , m_notifier(notifier)
{
    connect(&m_conversation, &Conversation::finished, this,
            [this](int turn) { showReply(m_conversation.turn(turn)); });
    connect(&m_notifier, &Notifier::clicked, this, &LauncherDesk::showWindow);
    connect(&m_notifier, &Notifier::refused, this, &LauncherDesk::showWindow);
}

LauncherDesk::~LauncherDesk() = default;

void LauncherDesk::setContactNames(const QStringList &names)
{
    m_matcher.setContactNames(names);
    m_conversation.setContactNames(names);
}

void LauncherDesk::run(const QString &id, Place place)
{
    const LauncherAct act = m_matcher.take(id);
    if (act.isEmpty()) {
        m_notifier.notify(QStringLiteral("没有执行"), QStringLiteral("这一条已经失效，请重新输入。"));
        return;
    }
    // Cards belong to the window from the start, shown or not.
    window();
    if (place == Place::Window) {
        showWindow();
    }
    const int turn = m_conversation.sayAsOf(act.sentence, act.when);
    m_lines.insert(turn, act.line);
}

void LauncherDesk::openWith(const QString &text)
{
    showWindow();
    if (!m_conversation.expectsSecret()) {
        window().input()->setText(text.left(LauncherMatcher::LongestText));
    }
}

MainWindow &LauncherDesk::window()
{
    if (m_window == nullptr) {
        m_appearance = std::make_unique<Appearance>();
        m_window = std::make_unique<MainWindow>(m_conversation, *m_appearance);
    }
    return *m_window;
}

void LauncherDesk::showWindow()
{
    window().show();
    window().setWindowState(window().windowState() & ~Qt::WindowMinimized);
    window().raise();
    window().activateWindow();
}

void LauncherDesk::showReply(const Turn &turn)
{
    const auto line = m_lines.find(turn.id);
    if (line == m_lines.end()) {
        return;
    }
    const QString title = *line;
    m_lines.erase(line);
    if (!turn.cardClass.isEmpty() || !turn.endOfSession || m_conversation.expectsSecret()) {
        showWindow();
    } else if (!window().isActiveWindow()) {
        m_notifier.notify(title, turn.failure.isEmpty() ? turn.display : turn.failure);
    }
}

} // namespace devhost
