// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/worldsnapshot.h"

#include "book/contactsbook.h"
#include "core/jsonkeys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString AttendanceWords[] = {QStringLiteral("invited"), QStringLiteral("joined"),
                                   QStringLiteral("left")};
const QString FriendshipWords[] = {QStringLiteral("colleague"), QStringLiteral("requested"),
                                   QStringLiteral("friend")};
const QString StateWords[] = {QStringLiteral("notStarted"), QStringLiteral("running"),
                              QStringLiteral("ended")};

constexpr int SnapshotLimit = 10000;

QJsonObject personToJson(const Person &person)
{
    return {{JsonKey::UserId, person.userId},
            {JsonKey::Account, person.account},
            {JsonKey::Name, person.name},
            {QStringLiteral("kind"),
             person.kind == AccountKind::Paying ? QStringLiteral("paying") : QStringLiteral("free")}};
}

QJsonArray contactsToJson(ContactsBook &book, const QString &ownerId)
{
    QJsonArray contacts;
    const QVector<Person> owned = book.people().contacts(ownerId);
    for (const Person &person : owned) {
        contacts.append(QJsonObject{
            {JsonKey::Account, person.account},
            {QStringLiteral("remark"), person.remarkName},
            {QStringLiteral("friendship"), FriendshipWords[static_cast<int>(person.friendship)]},
        });
    }
    return contacts;
}

QJsonObject conferenceToJson(const Conference &conference, const QString &hostAccount, qint64 nowMsecs)
{
    QJsonArray participants;
    for (const Participant &participant : conference.participants) {
        participants.append(QJsonObject{
            {JsonKey::Account, participant.account},
            {QStringLiteral("attendance"), AttendanceWords[static_cast<int>(participant.attendance)]},
        });
    }
    return {{JsonKey::ConferenceId, conference.confId},
            {QStringLiteral("number"), conference.dialNumber},
            {JsonKey::Title, conference.title},
            {QStringLiteral("host"), hostAccount},
            {JsonKey::StartTime, conference.startMsecs},
            {JsonKey::Duration, conference.durationMsecs},
            {JsonKey::ParticipantLimit, conference.participantLimit},
            {QStringLiteral("passcode"), conference.passcode},
            {QStringLiteral("state"), StateWords[static_cast<int>(conference.stateAt(nowMsecs))]},
            {JsonKey::Participants, participants}};
}

} // namespace

QString worldSnapshot(ContactsBook &book)
{
    QJsonObject contacts;
    QJsonArray people;
    const QVector<Person> everybody = book.people().all();
    for (const Person &person : everybody) {
        people.append(personToJson(person));
        contacts.insert(person.account, contactsToJson(book, person.userId));
    }
    QJsonArray conferences;
    const QVector<Conference> found = book.conferences().startingAfter(-1, QString(), SnapshotLimit);
    for (const Conference &conference : found) {
        const std::optional<Person> host = book.people().byUserId(conference.hostId);
        conferences.append(conferenceToJson(conference, host ? host->account : QString(), book.nowMsecs()));
    }
    const std::optional<Person> user = book.session().user();
    const QJsonObject world{{QStringLiteral("user"), user ? user->account : QString()},
                            {QStringLiteral("engagedElsewhere"), book.session().isEngagedElsewhere()},
                            {QStringLiteral("people"), people},
                            {QStringLiteral("contacts"), contacts},
                            {QStringLiteral("conferences"), conferences}};
    return QString::fromUtf8(QJsonDocument(world).toJson(QJsonDocument::Compact));
}
