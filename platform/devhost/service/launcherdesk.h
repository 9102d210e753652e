// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "appearance.h"
#include "conversation.h"
#include "launchermatcher.h"

#include <notifier.h>

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>

namespace devhost {

class MainWindow;

/**
 * The assistant behind the launchers: recognises a command in what is typed, carries it out, and shows the
 * reply as a notification, or in the window when there is a card or a question. GUI thread.
 */
class LauncherDesk final : public QObject
{
    Q_OBJECT

public:
    /// @p conversation must outlive the desk; notifications are sent over @p bus.
    LauncherDesk(Conversation &conversation, const QDBusConnection &bus, QObject *parent = nullptr);
    ~LauncherDesk() override;

    void setContactNames(const QStringList &names);

    LauncherAct match(const QString &text) { return m_matcher.match(text, QDateTime::currentDateTime()); }
    LauncherAct find(const QString &id) const { return m_matcher.find(id); }

    enum class Place { WhereItFits, Window };
    /// Carries out once what match() found. Reports when the match is no longer known.
    void run(const QString &id, Place place);
    /// Opens the window with @p text in its input line.
    void openWith(const QString &text);

private:
    /// Where else the user can read the text of a notification.
    enum class Told { InConversation, NowhereElse };

    MainWindow &window();
    void showWindow();
    void showReply(const Turn &turn);
    /// Shows a notification, or the window where the desktop shows none.
    void notify(const QString &title, const QString &text, Told told);

    Conversation &m_conversation;
    Notifier m_notifier;
    QSet<quint32> m_notifications; ///< those that are shown
    LauncherMatcher m_matcher;
    QHash<int, QString> m_lines; ///< of the turns that came from a launcher
    std::unique_ptr<Appearance> m_appearance;
    std::unique_ptr<MainWindow> m_window; ///< made when it is first needed
};

} // namespace devhost
