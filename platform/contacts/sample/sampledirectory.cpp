// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sample/sampledirectory.h"

#include "core/conferencerepository.h"
#include "core/databaseerror.h"
#include "core/peoplerepository.h"
#include "core/sessionrepository.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// Static libraries do not register their resources themselves. The macro must be outside any namespace.
static void registerSample()
{
    Q_INIT_RESOURCE(sample);
}

namespace {

QJsonObject readSample()
{
    registerSample();
    QFile file(QStringLiteral(":/contacts/sample.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        throw DatabaseError(QStringLiteral("the sample directory is missing"));
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        throw DatabaseError(QStringLiteral("the sample directory cannot be read: ") + error.errorString());
    }
    return document.object();
}

/// {"startsIn": minutes} from now, or {"day": days from today, "at": "hh:mm"}.
qint64 startOf(const QJsonObject &conference, qint64 nowMsecs)
{
    const QJsonValue startsIn = conference.value(QLatin1String("startsIn"));
    if (startsIn.isDouble()) {
        return nowMsecs + startsIn.toInt() * MinuteMsecs;
    }
    const QDate day = QDateTime::fromMSecsSinceEpoch(nowMsecs).date().addDays(
        conference.value(QLatin1String("day")).toInt());
    const QTime time =
        QTime::fromString(conference.value(QLatin1String("at")).toString(), QStringLiteral("hh:mm"));
    return QDateTime(day, time).toMSecsSinceEpoch();
}

/// Reads one sample; like the file, refers to people by account.
class SampleLoader
{
public:
    SampleLoader(PeopleRepository &people, ConferenceRepository &conferences, qint64 nowMsecs)
        : m_people(people)
        , m_conferences(conferences)
        , m_nowMsecs(nowMsecs)
    {
    }

    void addPerson(const QJsonObject &entry)
    {
        Person person;
        person.userId = entry.value(QLatin1String("userId")).toString();
        person.account = entry.value(QLatin1String("account")).toString();
        person.name = entry.value(QLatin1String("name")).toString();
        person.kind = entry.value(QLatin1String("kind")).toString() == QLatin1String("paying")
                          ? AccountKind::Paying
                          : AccountKind::Free;
        m_people.addPerson(person);
        m_userIds.insert(person.account, person.userId);
    }

    void addContacts(const QString &owner, const QJsonArray &entries)
    {
        for (const QJsonValue &value : entries) {
            const QJsonObject entry = value.toObject();
            m_people.setContact(userId(owner), userId(entry.value(QLatin1String("account")).toString()),
                                entry.value(QLatin1String("remark")).toString(),
                                entry.value(QLatin1String("friend")).toBool());
        }
    }

    void addConference(const QJsonObject &entry)
    {
        Conference conference;
        conference.dialNumber = entry.value(QLatin1String("number")).toString();
        conference.title = entry.value(QLatin1String("title")).toString();
        conference.hostId = userId(entry.value(QLatin1String("host")).toString());
        conference.startMsecs = startOf(entry, m_nowMsecs);
        conference.durationMsecs = entry.value(QLatin1String("minutes")).toInt() * MinuteMsecs;
        conference.participantLimit = entry.value(QLatin1String("limit")).toInt();
        conference.passcode = entry.value(QLatin1String("passcode")).toString();
        conference = m_conferences.add(conference);
        const QJsonArray there = entry.value(QLatin1String("there")).toArray();
        for (const QJsonValue &account : there) {
            m_conferences.setAttendance(conference.id, userId(account.toString()), Attendance::Joined);
        }
        const QJsonArray invited = entry.value(QLatin1String("invited")).toArray();
        for (const QJsonValue &account : invited) {
            m_conferences.setAttendance(conference.id, userId(account.toString()), Attendance::Invited);
        }
    }

    QString userId(const QString &account) const
    {
        const auto found = m_userIds.constFind(account);
        if (found == m_userIds.constEnd()) {
            throw DatabaseError(QStringLiteral("the sample directory has no account ") + account);
        }
        return *found;
    }

private:
    PeopleRepository &m_people;
    ConferenceRepository &m_conferences;
    qint64 m_nowMsecs;
    QHash<QString, QString> m_userIds;
};

} // namespace

void SampleDirectory::load(PeopleRepository &people, ConferenceRepository &conferences,
                           SessionRepository &session, qint64 nowMsecs)
{
    const QJsonObject sample = readSample();
    SampleLoader loader(people, conferences, nowMsecs);
    const QJsonArray personEntries = sample.value(QLatin1String("people")).toArray();
    for (const QJsonValue &entry : personEntries) {
        loader.addPerson(entry.toObject());
    }
    const QJsonObject contacts = sample.value(QLatin1String("contacts")).toObject();
    for (auto owner = contacts.constBegin(); owner != contacts.constEnd(); ++owner) {
        loader.addContacts(owner.key(), owner.value().toArray());
    }
    const QJsonArray conferenceEntries = sample.value(QLatin1String("conferences")).toArray();
    for (const QJsonValue &entry : conferenceEntries) {
        loader.addConference(entry.toObject());
    }
    session.login(loader.userId(sample.value(QLatin1String("user")).toString()));
}
