// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/requestparameters.h"

#include "core/jsonkeys.h"
#include "core/outcome.h"

QJsonObject openConferenceList(const ActionContext &context, const RequestParameters &parameters)
{
    const bool isUsersWish = parameters.text(JsonKey::AskedBy) == JsonKey::AskedByUser;
    context.openWindow(isUsersWish ? WindowFocus::Take : WindowFocus::Leave);
    return answerWord(Outcome::Success);
}
