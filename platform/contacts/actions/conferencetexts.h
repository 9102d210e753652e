// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <optional>

class RequestParameters;

/// The longest passcode that a conference takes.
constexpr int MaxPasscodeLength = 20;

/// Whether a conference may have @p passcode: nobody could type another. Empty is none.
bool canBePasscode(const QString &passcode);
/// The title that a request gives its conference; nothing when it says none. Throws InvalidParameters for one
/// that would be shown as nothing.
std::optional<QString> requestedTitle(const RequestParameters &parameters);
/// The passcode that a request gives its conference, empty to lift it; nothing when it says none. Throws
/// InvalidParameters for one that nobody could type.
std::optional<QString> requestedPasscode(const RequestParameters &parameters);
