// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Fuzzes the reading of the contacts application's answers, however hostile.

#include "answertemplates.h"
#include "contactutils.h"
#include "templatetext.h"
#include "wire/resultcodes.h"

#include <QJsonDocument>

namespace {

bool isCode(int code)
{
    return code == ResultCode::Success ||
           (ResultCode::ParticipantsFull <= code && code <= ResultCode::Malformed);
}

void readInvitation(const QString &answer)
{
    ContactInviteMemberDetail invited;
    const int code = ContactUtils::analyzeResultContext(answer, {}, invited);
    require(isCode(code));
    require(code != ResultCode::DuplicateNames || !invited.duplicateUsers.isEmpty());
    require(code != ResultCode::NobodyFound || invited.normalUsers.isEmpty());
    require(code != ResultCode::SomeNotFound ||
            (!invited.notExistUsers.isEmpty() && !invited.normalUsers.isEmpty()));
    for (const DuplicateUsers &group : qAsConst(invited.duplicateUsers)) {
        for (const UserInfo &user : group.users) {
            require(user.name == group.name); // the name that was asked for
        }
    }
}

} // namespace

void prepareToFuzz(int & /*argc*/, char ** /*argv*/) {}

void fuzz(FuzzedDataProvider &bytes)
{
    const char *const chosen = pick(bytes, {AnswerTemplate::People, AnswerTemplate::TooMany,
                                            AnswerTemplate::Conferences, AnswerTemplate::Outcome});
    const QString answer = QString::fromUtf8(TemplateText(bytes).after(chosen));
    const bool isReadable = !QJsonDocument::fromJson(answer.toUtf8()).isNull();

    require(isCode(ContactUtils::analyzeReturnContext(answer)));

    ContactCreatedConferenceDetail created;
    require(isCode(ContactUtils::analyzeResultContext(answer, {}, true, 5, created)));
    require(created.isSchedule == isReadable); // set exactly if there was something to read

    readInvitation(answer);

    QVector<ContactDetailMsg> joinable;
    require(isCode(ContactUtils::analyzeJoinReturnContext(answer, joinable)));

    QVector<ContactDetailMsg> found;
    const int queryCode = ContactUtils::analyzeQueryResultContext(answer, 0, found);
    require(isCode(queryCode));
    require((queryCode == ResultCode::Success) == !found.isEmpty());

    ContactCreatedConferenceDetail updated;
    require(isCode(ContactUtils::analyzeUpdateReturnContext(answer, updated)));
}
