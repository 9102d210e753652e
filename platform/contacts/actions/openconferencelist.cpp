// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/actions.h"

#include "actions/actioncontext.h"
#include "actions/answer.h"
#include "actions/requestparameters.h"

#include "core/outcome.h"

QJsonObject openConferenceList(const ActionContext &context, const RequestParameters &)
{
    context.openWindow();
    return answerWord(Outcome::Success);
}
