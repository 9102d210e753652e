// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/administration.h"

#include "actions/conferencetexts.h"
#include "book/contactsbook.h"
#include "book/worldsnapshot.h"

#include "core/conferencerules.h"
#include "core/displaytext.h"
#include "sample/sampledirectory.h"

#include <QDebug>
#include <QUuid>

#include <algorithm>

namespace {

std::optional<AccountKind> kindOf(const QString &word)
{
    if (word == QLatin1String("paying")) {
        return AccountKind::Paying;
    }
    if (word == QLatin1String("free")) {
        return AccountKind::Free;
    }
    return std::nullopt;
}

bool isDialNumber(const QString &number)
{
    return !number.isEmpty() && number.size() <= 20 &&
           std::all_of(number.cbegin(), number.cend(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

/// Moves the conference in time so that it is in @p state at @p now; false for an unknown state.
bool moveTo(Conference &conference, const QString &state, qint64 now)
{
    if (state == QLatin1String("notStarted")) {
        conference.startMsecs = now + HourMsecs;
    } else if (state == QLatin1String("running")) {
        conference.startMsecs = now;
    } else if (state == QLatin1String("ended")) {
        if (conference.stateAt(now) == ConferenceState::NotStarted) {
            conference.startMsecs = now - conference.durationMsecs;
        } else if (conference.stateAt(now) == ConferenceState::Running) {
            conference.durationMsecs = now - conference.startMsecs;
        }
    } else {
        return false;
    }
    // A conference ended at its very start has no time left to run.
    if (state != QLatin1String("ended") && conference.durationMsecs < HourMsecs / 60) {
        conference.durationMsecs = ConferenceRules::forKind(AccountKind::Free).defaultDurationMsecs;
    }
    return true;
}

void removeEverything(ContactsBook &book)
{
    book.conferences().removeAll();
    book.people().removeAll();
    book.session().reset();
}

} // namespace

Administration::Administration(ContactsBook &book, QObject *parent) : QObject(parent), m_book(book) {}

bool Administration::Login(const QString &account)
{
    return m_book.change([this, &account] {
        const std::optional<Person> person = m_book.people().byAccount(account);
        if (person) {
            m_book.session().login(person->userId);
        }
        return person.has_value();
    });
}

void Administration::Logout()
{
    m_book.change([this] {
        m_book.session().logout();
        return true;
    });
}

bool Administration::SetAccountKind(const QString &account, const QString &kind)
{
    return m_book.change([this, &account, &kind] {
        const std::optional<Person> person = m_book.people().byAccount(account);
        const std::optional<AccountKind> known = kindOf(kind);
        if (!person || !known) {
            return false;
        }
        m_book.people().setKind(person->userId, *known);
        return true;
    });
}

bool Administration::Reset()
{
    return m_book.change([this] {
        removeEverything(m_book);
        return true;
    });
}

bool Administration::LoadSample()
{
    return m_book.change([this] {
        removeEverything(m_book);
        SampleDirectory::load(m_book.people(), m_book.conferences(), m_book.session(), m_book.nowMsecs());
        m_book.reminders().forgetNews();
        return true;
    });
}

bool Administration::AddPerson(const QString &account, const QString &name, const QString &kind)
{
    return m_book.change([this, &account, &name, &kind] {
        const std::optional<AccountKind> known = kindOf(kind);
        const QString cleanName = cleanDisplayText(name);
        const QString cleanAccount = cleanDisplayText(account);
        if (!known || cleanName.isEmpty() || cleanAccount.isEmpty() ||
            m_book.people().byAccount(cleanAccount)) {
            return false;
        }
        Person person;
        person.userId = QUuid::createUuid().toString(QUuid::WithoutBraces);
        person.account = cleanAccount;
        person.name = cleanName;
        person.kind = *known;
        m_book.people().addPerson(person);
        return true;
    });
}

bool Administration::AddContact(const QString &ownerAccount, const QString &account, const QString &remark,
                                const QString &friendship)
{
    return m_book.change([this, &ownerAccount, &account, &remark, &friendship] {
        const std::optional<Person> owner = m_book.people().byAccount(ownerAccount);
        const std::optional<Person> person = m_book.people().byAccount(account);
        if (!owner || !person || owner->userId == person->userId) {
            return false;
        }
        if (friendship == QLatin1String("requested")) {
            m_book.people().addFriendRequest(owner->userId, person->userId);
            return true;
        }
        const bool isFriend = friendship == QLatin1String("friend");
        if (!isFriend && friendship != QLatin1String("colleague")) {
            return false;
        }
        m_book.people().setContact(owner->userId, person->userId, cleanDisplayText(remark), isFriend);
        return true;
    });
}

QString Administration::AddConference(const QString &number, const QString &title, const QString &hostAccount,
                                      qlonglong startMsecs, qlonglong durationMsecs, int participantLimit,
                                      const QString &passcode, const QStringList &participants)
{
    Conference conference;
    const bool done = m_book.change([&] {
        const std::optional<Person> host = m_book.people().byAccount(hostAccount);
        if (!host || !isDialNumber(number) || startMsecs < 0 || durationMsecs < 0 ||
            durationMsecs > ConferenceRules::LongestMsecs || !canBePasscode(passcode) ||
            m_book.conferences().byDialNumber(number, QString()).has_value()) {
            return false;
        }
        conference.dialNumber = number;
        conference.title = cleanDisplayText(title);
        conference.hostId = host->userId;
        conference.startMsecs = startMsecs;
        conference.durationMsecs = durationMsecs;
        conference.participantLimit = participantLimit;
        conference.passcode = passcode;
        conference = m_book.conferences().add(conference);
        m_book.conferences().setAttendance(conference.id, host->userId, Attendance::Invited);
        for (const QString &account : participants) {
            const std::optional<Person> person = m_book.people().byAccount(account);
            if (!person) {
                return false;
            }
            if (person->userId != host->userId) {
                m_book.conferences().setAttendance(conference.id, person->userId, Attendance::Invited);
            }
        }
        return m_book.conferences().takenSeats(conference.id) <= participantLimit;
    });
    return done ? conference.confId : QString();
}

bool Administration::SetConferenceState(const QString &number, const QString &state)
{
    return m_book.change([this, &number, &state] {
        std::optional<Conference> conference = m_book.conferences().byDialNumber(number, QString());
        if (!conference || !moveTo(*conference, state, m_book.nowMsecs())) {
            return false;
        }
        m_book.conferences().setTimes(conference->id, conference->startMsecs, conference->durationMsecs);
        return true;
    });
}

void Administration::SetEngagedElsewhere(bool engaged)
{
    m_book.change([this, engaged] {
        m_book.session().setEngagedElsewhere(engaged);
        return true;
    });
}

void Administration::SetFriendLimit(int limit)
{
    m_book.change([this, limit] {
        m_book.session().setFriendLimit(limit);
        return true;
    });
}

void Administration::SetCreationLimit(int perMinute)
{
    m_book.change([this, perMinute] {
        m_book.session().setCreationsPerMinute(perMinute);
        return true;
    });
}

QString Administration::Snapshot()
{
    try {
        return worldSnapshot(m_book);
    } catch (const std::exception &error) {
        qCritical() << "The snapshot failed:" << error.what();
        m_book.noteFailure(error);
        return {};
    }
}
