// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "reminders/reminderplan.h"
#include "reminders/walltimer.h"

#include <notifier.h>

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

class ContactsBook;

/**
 * Shows desktop notifications for the user's conferences, invitations and friend requests. Looks when
 * something has changed, when something is due and when the clock was set. What the server has accepted is
 * recorded in the database, so it is shown once; what it has refused is tried again. Withdraws what no longer
 * holds. Owned by main, on the book's thread, with or without a window.
 */
class Reminders : public QObject
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    Reminders(ContactsBook &book, const QDBusConnection &connection, QObject *parent = nullptr);

    /// Shows what is due. Never throws.
    void look();
    /// The next time it looks by itself, in milliseconds since the epoch.
    qint64 nextLookMsecs() const { return m_nextLookMsecs; }
    /// Whether the server has answered everything and nothing has changed since.
    bool isSettled() const { return m_sending.isEmpty() && !m_afterChange.isActive(); }

Q_SIGNALS:
    /// The user has clicked something that the window handles.
    void windowWanted();

private:
    /// A notification on the screen; one without a conference is about something else.
    struct Shown
    {
        QString userId;
        QString askerId; ///< of a friend request; empty otherwise
        qint64 conferenceId = 0;
        QString dialNumber;
        QString title;
        qint64 startMsecs = 0;
    };

    void lookAs(const QString &userId, const ReminderSettings &settings);
    void showReminder(const QString &userId, const Reminder &reminder);
    void showRequest(const QString &userId, const Person &asker);
    /// Runs @p note once the server has accepted it; empty when nothing needs recording.
    void send(const QString &key, const Notification &notification, const Shown &shown,
              const std::function<void()> &note);
    /// Runs @p note in a transaction, without notifying whoever shows the state. Returns false on failure.
    bool write(const std::function<void()> &note);
    void withdrawStale(const QString &userId);
    /// Whether what it says to @p userId still holds.
    bool isTrue(const Shown &shown, const QString &userId) const;
    quint32 shownFor(qint64 conferenceId) const;
    bool isHeldBack() const;
    void waitUntil(qint64 msecs);
    void onAction(quint32 id, const QString &action);
    void join(const Shown &shown);
    bool isPresentUsers(const Shown &shown) const;
    void decline(const Shown &shown);

    ContactsBook &m_book;
    Notifier m_notifier;
    WallTimer m_timer;
    QTimer m_afterChange;
    QHash<quint32, Shown> m_shown;
    QSet<QString> m_sending; ///< what the server has not answered to yet
    QSet<QString> m_unnoted; ///< what was shown and could not be noted; tried again at each look
    qint64 m_nextLookMsecs = 0;
    std::optional<qint64> m_refusedMsecs; ///< when the server did not want something
};
