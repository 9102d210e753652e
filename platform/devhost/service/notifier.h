// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace devhost {

/// Shows texts through the desktop's notifications. Never blocks. GUI thread.
class Notifier final : public QObject
{
    Q_OBJECT

public:
    explicit Notifier(const QDBusConnection &bus, QObject *parent = nullptr);

    /// @p title and @p text are plain texts of any content.
    void notify(const QString &title, const QString &text);

Q_SIGNALS:
    /// The user has clicked on a notification of ours.
    void clicked();
    /// The desktop shows no notifications.
    void refused();

private Q_SLOTS:
    void noteAction(uint id, const QString &action);
    void noteClosed(uint id, uint reason);

private:
    void send(const QString &title, const QString &text, bool isMarkup);

    QDBusConnection m_bus;
    QVector<uint> m_shown;
};

} // namespace devhost
