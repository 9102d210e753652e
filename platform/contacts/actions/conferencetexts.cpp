// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/conferencetexts.h"

#include "actions/requestparameters.h"

#include "core/displaytext.h"
#include "core/jsonkeys.h"

bool canBePasscode(const QString &passcode)
{
    return passcode.size() <= MaxPasscodeLength && cleanDisplayText(passcode) == passcode;
}

std::optional<QString> requestedTitle(const RequestParameters &parameters)
{
    if (!parameters.has(JsonKey::Title)) {
        return std::nullopt;
    }
    const QString title = cleanDisplayText(parameters.text(JsonKey::Title));
    if (title.isEmpty()) {
        throw InvalidParameters("the title is empty");
    }
    return title;
}

std::optional<QString> requestedPasscode(const RequestParameters &parameters)
{
    if (!parameters.has(JsonKey::Password)) {
        return std::nullopt;
    }
    const QString passcode = parameters.text(JsonKey::Password);
    if (!canBePasscode(passcode)) {
        throw InvalidParameters("the passcode cannot be typed");
    }
    return passcode;
}
