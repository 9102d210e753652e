// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openconferencelist.h"

#include "actioncontext.h"
#include "answer.h"
#include "requestparameters.h"

#include "../core/outcome.h"

QJsonObject openConferenceList(const ActionContext &context, const RequestParameters &)
{
    context.openWindow();
    return answerWord(Outcome::Success);
}
