// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "busclient.h"

#include <QObject>
#include <QStringList>

namespace devhost {

class ApplicationAsker;

/// The state of the contacts application.
struct ApplicationState
{
    bool isReached = false;
    QString user;             ///< name and account; empty when nobody is logged in
    QString conferenceTitle;  ///< of the conference the user is in; empty outside
    QString conferenceNumber; ///< of the same
    QStringList names;        ///< of the people the user may invite; unique, without namesakes

    /// Reads the answer to Overview().
    static ApplicationState read(const QString &overview);
};

/**
 * Follows the state of the contacts application as it starts and stops. Asks on a thread of its own, so that
 * no bus can block the window. GUI thread.
 */
class ApplicationLink final : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationLink(QObject *parent = nullptr);

    const ApplicationState &state() const { return m_state; }
    /// changed() follows. Does not start the application.
    void refresh();
    /// Opens the application's window, starting the application if necessary.
    void openWindow();

Q_SIGNALS:
    void changed();
    void windowRefused();

private:
    ApplicationLink(ApplicationAsker *asker, QObject *parent);

    ApplicationAsker *m_asker; ///< the thread's
    BusThread m_thread;
    ApplicationState m_state;
};

} // namespace devhost
