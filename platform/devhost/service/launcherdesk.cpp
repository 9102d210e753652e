// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherdesk.h"

#include "inputline.h"
#include "mainwindow.h"

namespace devhost {

namespace {

/// The action of a click on the notification itself.
const QLatin1String Click("default");

} // namespace

LauncherDesk::LauncherDesk(Conversation &conversation, const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_conversation(conversation)
    , m_notifier(bus, {tr("Voice Assistant"), QStringLiteral("speakmate-devhost"),
                       QStringLiteral("speakmate-devhost")})
{
    connect(&m_conversation, &Conversation::finished, this,
            [this](int turn) { showReply(m_conversation.turn(turn)); });
    connect(&m_notifier, &Notifier::actionInvoked, this, [this](quint32 id, const QString &action) {
        if (action == Click && m_notifications.contains(id)) {
            showWindow();
        }
    });
    connect(&m_notifier, &Notifier::closed, this, [this](quint32 id) { m_notifications.remove(id); });
    connect(&m_notifier, &Notifier::serverWent, this, [this] { m_notifications.clear(); });
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
        notify(tr("Not carried out"), tr("This entry has expired; please type it again."), Told::NowhereElse);
        return;
    }
    // Cards belong to the window from the start, whether it is shown or not.
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

void LauncherDesk::notify(const QString &title, const QString &text, Told told)
{
    Notification notification;
    notification.summary = title;
    notification.body = text;
    notification.actions = QStringList{Click, tr("Open")};
    m_notifier.show(notification, [this, text, told](Notifier::Result result, quint32 id) {
        if (result == Notifier::Result::Shown) {
            m_notifications.insert(id);
        } else {
            showWindow();
            if (told == Told::NowhereElse) {
                window().showProblem(text);
            }
        }
    });
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
        notify(title, turn.failure.isEmpty() ? turn.display : turn.failure, Told::InConversation);
    }
}

} // namespace devhost
