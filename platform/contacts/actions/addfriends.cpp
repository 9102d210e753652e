// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/requestparameters.h"

#include "core/jsonkeys.h"
#include "core/outcome.h"

QJsonObject addFriends(const ActionContext &context, const RequestParameters &parameters)
{
    const std::optional<Person> person = context.people.meantBy(parameters.text(JsonKey::UserId).trimmed());
    if (!person) {
        return answerWord(Outcome::NotFound);
    }
    if (person->userId == context.user.userId) {
        return answerWord(Outcome::IsYourself);
    }
    if (context.people.friendship(context.user.userId, person->userId) != Friendship::None) {
        return answerWord(Outcome::IsYourFriend);
    }
    if (context.people.friendCount(context.user.userId) >= context.session.friendLimit()) {
        return answerWord(Outcome::ExceedFriendLimit);
    }
    context.people.addFriendRequest(context.user.userId, person->userId);
    return answerWord(Outcome::Ok);
}
