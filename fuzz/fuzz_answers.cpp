// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The contacts application's answers, as hostile as they may be.

#include "contactutils.h"
#include "jsonsource.h"
#include "wire/resultcodes.h"

#include <QJsonDocument>

namespace {

const JsonSource::Words Keys = {"ret",           "ret",
                                "list",          "users",
                                "not_join_list", "can_invite_num",
                                "confId",        "conferenceDialNumber",
                                "duration",      "startTime",
                                "title",         "participantLimit",
                                "status",        "isPayingUser",
                                "participants",  "name",
                                "remarkName",    "userId",
                                "account",       "duplicate_list"};
const JsonSource::Words OutcomeWords = {"OK",
                                        "Success",
                                        "Return",
                                        "Duplicate",
                                        "Not Found",
                                        "No Conference",
                                        "Conference Not Start",
                                        "In Other Conference",
                                        "Conference Create Too Frequently",
                                        "Exceed Members Limit",
                                        "Participant Out Limit",
                                        "Time Overlap",
                                        "Invalid Passcode",
                                        "Update Failed",
                                        "Is Your Friend",
                                        "Exceed Friend Limit",
                                        "Is Yourself",
                                        "User Not Login",
                                        "True",
                                        "False",
                                        "2",
                                        "\\ud800",
                                        "周会"};

bool isCode(int code)
{
    return code == ResultCode::Success ||
           (ResultCode::ParticipantsFull <= code && code <= ResultCode::Malformed);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    silenceTheLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    JsonSource source(data, size, Keys, OutcomeWords);
    const QString answer = QString::fromUtf8(source.text());
    const bool isReadable = !QJsonDocument::fromJson(answer.toUtf8()).isNull();

    const int general = ContactUtils::analyzeReturnContext(answer);
    require(isCode(general));

    ContactCreatedConferenceDetail created;
    const int createCode = ContactUtils::analyzeResultContext(answer, {}, true, 5, created);
    require(isCode(createCode));
    require(created.isSchedule == isReadable); // written exactly when there was something to read

    ContactInviteMemberDetail invited;
    const int inviteCode = ContactUtils::analyzeResultContext(answer, {}, invited);
    require(isCode(inviteCode));
    require(inviteCode != ResultCode::DuplicateNames || !invited.duplicateUsers.isEmpty());
    require(inviteCode != ResultCode::SomeNotFound ||
            (!invited.notExistUsers.isEmpty() && !invited.normalUsers.isEmpty()));

    QVector<ContactDetailMsg> joinable;
    require(isCode(ContactUtils::analyzeJoinReturnContext(answer, joinable)));

    QVector<ContactDetailMsg> found;
    const int queryCode = ContactUtils::analyzeQueryResultContext(answer, 0, found);
    require(isCode(queryCode));
    require((queryCode == ResultCode::Success) == !found.isEmpty());

    ContactCreatedConferenceDetail updated;
    require(isCode(ContactUtils::analyzeUpdateReturnContext(answer, updated)));
    return 0;
}
