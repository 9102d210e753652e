// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/answer.h"

#include "actions/membermatch.h"

#include "core/displaytext.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"

namespace {

QJsonObject conferenceToJson(const Conference &conference, qint64 nowMsecs)
{
    QJsonArray participants;
    for (const Participant &participant : conference.participants) {
        participants.append(QJsonObject{{JsonKey::UserId, participant.userId},
                                        {JsonKey::Account, participant.account},
                                        {JsonKey::Name, cleanDisplayText(participant.name)}});
    }
    return {
        {JsonKey::ConfId, conference.confId},
        {JsonKey::ConferenceDialNumber, conference.dialNumber},
        {JsonKey::Title, cleanDisplayText(conference.title)},
        {JsonKey::StartTime, conference.startMsecs},
        {JsonKey::Duration, conference.durationMsecs},
        {JsonKey::ParticipantLimit, conference.participantLimit},
        // The state is sent as a decimal text.
        {JsonKey::Status, QString::number(static_cast<int>(conference.stateAt(nowMsecs)))},
        {JsonKey::IsPayingUser, conference.paid},
        {JsonKey::Participants, participants},
    };
}

QJsonObject foundToJson(const MemberMatch &match)
{
    const Person &person = match.people.constFirst();
    return {{JsonKey::Name, cleanDisplayText(match.asked.name)},
            {JsonKey::Status, MemberStatus::Ok},
            {JsonKey::RemarkName, cleanDisplayText(person.shownName())},
            {JsonKey::UserId, person.userId},
            {JsonKey::Account, person.account}};
}

QJsonObject duplicateToJson(const MemberMatch &match)
{
    QJsonArray candidates;
    for (const Person &person : match.people) {
        candidates.append(QJsonObject{{JsonKey::Name, cleanDisplayText(person.shownName())},
                                      {JsonKey::UserId, person.userId},
                                      {JsonKey::Account, person.account}});
    }
    return {{JsonKey::Name, cleanDisplayText(match.asked.name)},
            {JsonKey::Status, MemberStatus::Duplicate},
            {JsonKey::DuplicateList, candidates}};
}

QJsonObject matchToJson(const MemberMatch &match)
{
    if (match.isFound()) {
        return foundToJson(match);
    }
    if (match.isDuplicate()) {
        return duplicateToJson(match);
    }
    return {{JsonKey::Name, cleanDisplayText(match.asked.name)}, {JsonKey::Status, MemberStatus::NotFound}};
}

} // namespace

QJsonObject answerWord(QLatin1String word)
{
    return {{JsonKey::Ret, word}};
}

QJsonObject answerConferences(QLatin1String word, const QVector<Conference> &conferences, qint64 nowMsecs)
{
    return {{JsonKey::Ret, word}, {JsonKey::List, conferencesToJson(conferences, nowMsecs)}};
}

QJsonObject answerUsers(const MemberMatches &matches)
{
    return {{JsonKey::Ret, Outcome::Return}, {JsonKey::Users, matchesToJson(matches.all())}};
}

QJsonArray conferencesToJson(const QVector<Conference> &conferences, qint64 nowMsecs)
{
    QJsonArray list;
    for (const Conference &conference : conferences) {
        list.append(conferenceToJson(conference, nowMsecs));
    }
    return list;
}

QJsonArray matchesToJson(const QVector<MemberMatch> &matches)
{
    QJsonArray users;
    for (const MemberMatch &match : matches) {
        users.append(matchToJson(match));
    }
    return users;
}
