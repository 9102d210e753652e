// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "answer/answeranalysers.h"

#include "answer/abilityanswer.h"
#include "answer/answerrecords.h"
#include "defaultlog.h"
#include "wire/answerwords.h"
#include "wire/resultcodes.h"

#include <QJsonArray>

namespace {

// The same word means different things to different requests: one table each.

constexpr OutcomeTable GeneralCodes = {
    {OutcomeWord::Ok, ResultCode::Success},
    {OutcomeWord::Success, ResultCode::Success},
    {OutcomeWord::NoConference, ResultCode::NoConference},
    {OutcomeWord::NotFound, ResultCode::NotFound},
    {OutcomeWord::AlreadyFriend, ResultCode::AlreadyFriend},
    {OutcomeWord::FriendLimit, ResultCode::FriendLimit},
    {OutcomeWord::False, ResultCode::False},
    {OutcomeWord::True, ResultCode::True},
    {OutcomeWord::NotLoggedIn, ResultCode::NotLoggedIn},
    {OutcomeWord::Oneself, ResultCode::Oneself},
};

constexpr OutcomeTable InviteCodes = {
    {OutcomeWord::Ok, ResultCode::Success},
    {OutcomeWord::NotFound, ResultCode::NobodyFound},
    {OutcomeWord::NotStarted, ResultCode::NoConference},
    {OutcomeWord::MembersLimit, ResultCode::MembersLimit},
    {OutcomeWord::TooFrequent, ResultCode::TooFrequent},
    {OutcomeWord::InOtherConference, ResultCode::InOtherConference},
    {OutcomeWord::NotLoggedIn, ResultCode::NotLoggedIn},
};

constexpr OutcomeTable JoinCodes = {
    {OutcomeWord::Ok, ResultCode::Success},
    {OutcomeWord::NotStarted, ResultCode::NoConference},
    {OutcomeWord::NotFound, ResultCode::ConferenceNotFound},
    {OutcomeWord::InvalidPasscode, ResultCode::InvalidPasscode},
    {OutcomeWord::InOtherConference, ResultCode::InOtherConference},
    {OutcomeWord::TimeOverlap, ResultCode::TimeOverlap},
    {OutcomeWord::NotLoggedIn, ResultCode::NotLoggedIn},
    {OutcomeWord::ParticipantsFull, ResultCode::ParticipantsFull},
};

constexpr OutcomeTable QueryCodes = {
    {OutcomeWord::NotLoggedIn, ResultCode::NotLoggedIn},
    {OutcomeWord::NotFound, ResultCode::ConferenceNotFound},
    {OutcomeWord::Ok, ResultCode::Success},
};

constexpr OutcomeTable UpdateCodes = {
    {OutcomeWord::Ok, ResultCode::Success},
    {OutcomeWord::NotFound, ResultCode::ConferenceNotFound},
    {OutcomeWord::UpdateFailed, ResultCode::Malformed},
    {OutcomeWord::NotLoggedIn, ResultCode::NotLoggedIn},
};

constexpr const char *ReadErrorText = "response error.error:";
constexpr const char *MemberReadErrorText = "response ret error.error:";

QVector<ContactDetailMsg> conferencesOf(const AbilityAnswer &answer)
{
    return AnswerRecords::conferences(answer.object().value(AnswerKey::Conferences).toArray());
}

/// The code for "Return", decided name by name.
int codeOf(const ContactInviteMemberDetail &detail)
{
    if (!detail.duplicateUsers.isEmpty()) {
        return ResultCode::DuplicateNames;
    }
    if (detail.notExistUsers.isEmpty()) {
        return ResultCode::Success;
    }
    return detail.normalUsers.isEmpty() ? ResultCode::NobodyFound : ResultCode::SomeNotFound;
}

int analyseMembers(const AbilityAnswer &answer, ContactInviteMemberDetail &detail)
{
    if (answer.outcome() == OutcomeWord::Return) {
        detail = AnswerRecords::members(answer.object().value(AnswerKey::Users).toArray());
        return codeOf(detail);
    }
    const int code = answer.code(InviteCodes, ResultCode::Malformed);
    if (code == ResultCode::MembersLimit) {
        detail = AnswerRecords::members(answer.object().value(AnswerKey::NotJoined).toArray());
        detail.canInviteNum = answer.object().value(AnswerKey::CanInvite).toInt();
    }
    return code;
}

} // namespace

int AnswerAnalyser::general(const QString &answer)
{
    const AbilityAnswer parsed(answer, ReadErrorText);
    return parsed.isReadable() ? parsed.code(GeneralCodes, ResultCode::Malformed) : ResultCode::Malformed;
}

int AnswerAnalyser::create(const QString &answer, bool isSchedule, qint64 startMsecs,
                           ContactCreatedConferenceDetail &detail)
{
    const AbilityAnswer parsed(answer, MemberReadErrorText);
    if (!parsed.isReadable()) {
        return ResultCode::Malformed;
    }
    detail.isSchedule = isSchedule;
    detail.scheduleTimeMsecs = startMsecs;
    if (parsed.outcome() == OutcomeWord::Ok) {
        // An immediate conference is already on the screen; only a booked one is shown.
        if (isSchedule) {
            detail.conferences = conferencesOf(parsed);
        }
        return ResultCode::Success;
    }
    if (parsed.outcome() == OutcomeWord::TimeOverlap) {
        detail.conferences = conferencesOf(parsed);
        return ResultCode::TimeOverlap;
    }
    if (parsed.outcome() == OutcomeWord::Return) {
        detail.conferences = conferencesOf(parsed);
    }
    return analyseMembers(parsed, detail.inviteDetail);
}

int AnswerAnalyser::invite(const QString &answer, ContactInviteMemberDetail &detail)
{
    const AbilityAnswer parsed(answer, MemberReadErrorText);
    return parsed.isReadable() ? analyseMembers(parsed, detail) : ResultCode::Malformed;
}

int AnswerAnalyser::join(const QString &answer, QVector<ContactDetailMsg> &conferences)
{
    const AbilityAnswer parsed(answer, ReadErrorText);
    if (!parsed.isReadable()) {
        return ResultCode::Malformed;
    }
    // Unlike everywhere else, an unknown word means that there is nothing to join.
    const int code = parsed.code(JoinCodes, ResultCode::NoConference);
    if (code == ResultCode::TimeOverlap) {
        conferences = conferencesOf(parsed); // several are running: the user chooses
    }
    return code;
}

int AnswerAnalyser::query(const QString &answer, QVector<ContactDetailMsg> &conferences)
{
    const AbilityAnswer parsed(answer, ReadErrorText);
    if (!parsed.isReadable()) {
        return ResultCode::Malformed;
    }
    const int code = parsed.code(QueryCodes, ResultCode::Malformed);
    if (code != ResultCode::Success) {
        return code;
    }
    const QVector<ContactDetailMsg> found = conferencesOf(parsed);
    if (found.isEmpty()) {
        return ResultCode::ConferenceNotFound;
    }
    conferences = found;
    return ResultCode::Success;
}

int AnswerAnalyser::update(const QString &answer, ContactCreatedConferenceDetail &detail)
{
    const AbilityAnswer parsed(answer, ReadErrorText);
    if (!parsed.isReadable()) {
        return ResultCode::Malformed;
    }
    const int code = parsed.code(UpdateCodes, ResultCode::Malformed);
    if (code == ResultCode::Success) {
        detail.conferences = conferencesOf(parsed);
        qCDebug(defaultLog) << "MeetingDetail size() =" << detail.conferences.size();
    }
    return code;
}
