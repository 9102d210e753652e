// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

namespace devhost {

/// What the desk knows of the contacts application.
struct ApplicationState
{
    bool isReached = false;
    QString user;             ///< name and account; empty when nobody is logged in
    QString conferenceTitle;  ///< of the conference the user is in; empty outside
    QString conferenceNumber; ///< of the same
    QStringList names;        ///< of those whom the user may invite, each only once and nobody's namesake

    /// From what the application's Overview() answers.
    static ApplicationState read(const QString &overview);
};

/// Asks the contacts application on the session bus how things are, without waiting and without starting it.
/// GUI thread.
class ApplicationLink final : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationLink(QObject *parent = nullptr);

    const ApplicationState &state() const { return m_state; }
    /// changed() follows when something is different.
    void refresh();
    /// Brings up the application's window, and starts it when it does not run.
    void openWindow();

Q_SIGNALS:
    void changed();
    void windowRefused();

private:
    void take(const ApplicationState &state);

    QDBusServiceWatcher m_watcher;
    ApplicationState m_state;
};

} // namespace devhost
