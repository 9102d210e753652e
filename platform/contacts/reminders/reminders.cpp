// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "reminders/reminders.h"

#include "actionnames.h"
#include "book/contactsbook.h"
#include "core/conference.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"
#include "core/outcometext.h"
#include "reminders/remindertext.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Pause before trying again, after the server has refused something or the database has failed.
constexpr qint64 RetryMsecs = MinuteMsecs;
/// Looks at least this often, as a safety net.
constexpr qint64 LongestWaitMsecs = HourMsecs;

} // namespace

Reminders::Reminders(ContactsBook &book, const QDBusConnection &connection, QObject *parent)
    : QObject(parent)
    , m_book(book)
    , m_notifier(connection,
                 {tr("Contacts"), QStringLiteral("meetlynx"), QStringLiteral("com.kelvane.meetlynx")})
{
    m_afterChange.setSingleShot(true);
    connect(&m_afterChange, &QTimer::timeout, this, &Reminders::look);
    // After the request that changes something: its answer goes first. Once for many.
    connect(&m_book, &ContactsBook::changed, &m_afterChange, QOverload<>::of(&QTimer::start));
    connect(&m_timer, &WallTimer::timeout, this, &Reminders::look);
    connect(&m_notifier, &Notifier::serverCame, this, [this] {
        m_refusedMsecs.reset();
        look();
    });
    connect(&m_notifier, &Notifier::serverWent, this, [this] { m_shown.clear(); });
    connect(&m_notifier, &Notifier::closed, this, [this](quint32 id) { m_shown.remove(id); });
    connect(&m_notifier, &Notifier::actionInvoked, this, &Reminders::onAction);
    m_afterChange.start();
}

void Reminders::look()
{
    waitUntil(m_book.nowMsecs() + LongestWaitMsecs);
    try {
        const std::optional<Person> user = m_book.session().user();
        const QString userId = user ? user->userId : QString();
        withdrawStale(userId);
        if (user) {
            lookAs(userId, m_book.reminders().settings());
        }
    } catch (const std::exception &error) {
        qWarning("Reminders cannot be looked for: %s", error.what());
        m_book.noteFailure(error);
        waitUntil(m_book.nowMsecs() + RetryMsecs);
    }
}

void Reminders::lookAs(const QString &userId, const ReminderSettings &settings)
{
    if (!settings.isOn) {
        // Events that arrived while reminders were off are not shown later.
        if (!write([this, &userId] { m_book.reminders().forgetNews(userId); })) {
            waitUntil(m_book.nowMsecs() + RetryMsecs);
        }
        return;
    }
    const qint64 now = m_book.nowMsecs();
    const qint64 leadMsecs = settings.leadMinutes * MinuteMsecs;
    const ReminderPlan plan =
        planReminders(m_book.reminders().awaited(userId, now, now + leadMsecs),
                      m_book.reminders().untoldInvitations(userId, now), settings.leadMinutes, now);
    if (!isHeldBack()) {
        m_refusedMsecs.reset();
        for (const Reminder &reminder : plan.due) {
            showReminder(userId, reminder);
        }
        const QVector<Person> askers = m_book.reminders().untoldRequests(userId);
        for (const Person &asker : askers) {
            showRequest(userId, asker);
        }
    }

    qint64 next = plan.nextMsecs.value_or(now + LongestWaitMsecs);
    if (const std::optional<qint64> start = m_book.reminders().nextStart(userId, now + leadMsecs + 1)) {
        next = qMin(next, *start - leadMsecs);
    }
    if (m_refusedMsecs) {
        next = qMin(next, *m_refusedMsecs + RetryMsecs);
    }
    waitUntil(qMin(next, now + LongestWaitMsecs));
}

void Reminders::showReminder(const QString &userId, const Reminder &reminder)
{
    const AwaitedConference &conference = reminder.conference;
    const bool isInvitation = reminder.occasion == Reminder::Occasion::Invitation;
    Notification notification = notificationFor(reminder, m_book.nowMsecs());
    notification.replacesId = shownFor(conference.id);
    const QString key = QStringLiteral("%1 %2 %3 %4")
                            .arg(userId)
                            .arg(conference.id)
                            .arg(static_cast<int>(reminder.occasion))
                            .arg(conference.startMsecs);
    const Shown shown{
        userId, QString(), conference.id, conference.dialNumber, conference.title, conference.startMsecs};
    send(key, notification, shown, [this, userId, reminder, isInvitation] {
        if (isInvitation) {
            m_book.reminders().noteInvitationTold(userId, reminder.conference.id);
        }
        if (reminder.covers) {
            m_book.reminders().noteShown(userId, reminder.conference.id, *reminder.covers,
                                         reminder.conference.startMsecs);
        }
    });
}

void Reminders::showRequest(const QString &userId, const Person &asker)
{
    const QString askerId = asker.userId;
    Shown shown;
    shown.userId = userId;
    shown.askerId = askerId;
    send(userId + QLatin1Char('\n') + askerId, notificationFor(asker), shown,
         [this, userId, askerId] { m_book.reminders().noteRequestTold(userId, askerId); });
}

void Reminders::send(const QString &key, const Notification &notification, const Shown &shown,
                     const std::function<void()> &note)
{
    if (m_sending.contains(key)) {
        return;
    }
    if (m_unnoted.contains(key)) {
        if (write(note)) {
            m_unnoted.remove(key);
        }
        return;
    }
    m_sending.insert(key);
    m_notifier.show(notification, [this, key, shown, note](Notifier::Result result, quint32 id) {
        m_sending.remove(key);
        if (result == Notifier::Result::Refused) {
            m_refusedMsecs = m_book.nowMsecs();
            waitUntil(qMin(m_nextLookMsecs, *m_refusedMsecs + RetryMsecs));
            return; // tried again when a server comes, or then
        }
        // A shown notification that cannot be recorded is at least not repeated by this process.
        if (note && !write(note)) {
            m_unnoted.insert(key);
        }
        if (result == Notifier::Result::Shown) {
            m_shown.insert(id, shown);
            m_afterChange.start(); // it may have become stale meanwhile
        }
    });
}

bool Reminders::write(const std::function<void()> &note)
{
    try {
        Transaction transaction(m_book.database().handle());
        note();
        transaction.commit();
        return true;
    } catch (const std::exception &error) {
        qWarning("It cannot be noted what was shown: %s", error.what());
        m_book.noteFailure(error);
        return false;
    }
}

void Reminders::withdrawStale(const QString &userId)
{
    for (auto shown = m_shown.begin(); shown != m_shown.end();) {
        if (isTrue(*shown, userId)) {
            ++shown;
        } else {
            m_notifier.close(shown.key());
            shown = m_shown.erase(shown);
        }
    }
}

bool Reminders::isTrue(const Shown &shown, const QString &userId) const
{
    if (shown.userId != userId) {
        return false;
    }
    if (!shown.askerId.isEmpty()) {
        return m_book.people().friendship(shown.askerId, userId) == Friendship::Requested;
    }
    return shown.conferenceId == 0 ||
           m_book.reminders().isAwaited(userId, shown.conferenceId, shown.startMsecs, m_book.nowMsecs());
}

quint32 Reminders::shownFor(qint64 conferenceId) const
{
    for (auto shown = m_shown.cbegin(); shown != m_shown.cend(); ++shown) {
        if (shown->conferenceId == conferenceId) {
            return shown.key();
        }
    }
    return 0;
}

bool Reminders::isHeldBack() const
{
    // A clock that was set back delays nothing.
    const qint64 now = m_book.nowMsecs();
    return m_refusedMsecs && now >= *m_refusedMsecs && now < *m_refusedMsecs + RetryMsecs;
}

void Reminders::waitUntil(qint64 msecs)
{
    m_nextLookMsecs = msecs;
    m_timer.start(msecs - m_book.nowMsecs());
}

void Reminders::onAction(quint32 id, const QString &action)
{
    const auto found = m_shown.constFind(id);
    if (found == m_shown.cend()) {
        return; // another program's
    }
    const Shown shown = *found;
    if (action == ReminderAction::Join) {
        join(shown);
    } else if (action == ReminderAction::Decline) {
        decline(shown);
    } else if (action == ReminderAction::Show) {
        Q_EMIT windowWanted();
    }
}

void Reminders::join(const Shown &shown)
{
    if (!isPresentUsers(shown)) {
        return; // somebody else has logged in since, and it is about to be withdrawn
    }
    // Like the assistant's requests.
    const QJsonObject parameters{{JsonKey::ConferenceId, shown.dialNumber}, {JsonKey::Password, QString()}};
    const QString answer =
        m_book.perform(ActionName::JoinConference,
                       QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact)));
    const QString word = QJsonDocument::fromJson(answer.toUtf8()).object().value(JsonKey::Ret).toString();
    if (word == Outcome::Ok) {
        Q_EMIT windowWanted();
        return;
    }
    const QString text = word == Outcome::ConferenceNotStarted
                             ? tr("The conference has not started. You will be reminded when it does.")
                             : outcomeText(word);
    Shown told;
    told.userId = shown.userId;
    send(QStringLiteral("join %1").arg(shown.conferenceId), notificationAbout(shown.title, text), told, {});
}

bool Reminders::isPresentUsers(const Shown &shown) const
{
    try {
        const std::optional<Person> user = m_book.session().user();
        return user && user->userId == shown.userId;
    } catch (const std::exception &error) {
        qWarning("Cannot tell whose notification was clicked: %s", error.what());
        m_book.noteFailure(error);
        return false;
    }
}

void Reminders::decline(const Shown &shown)
{
    m_book.change([this, &shown] {
        const bool isInvited =
            m_book.conferences().attendance(shown.conferenceId, shown.userId) == Attendance::Invited;
        if (isInvited) {
            m_book.conferences().setAttendance(shown.conferenceId, shown.userId, Attendance::Left);
        }
        return isInvited;
    });
}
