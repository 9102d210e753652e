// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <optional>

class RequestParameters;

/// The longest valid passcode.
constexpr int MaxPasscodeLength = 20;

/// Whether @p passcode can be typed, and so may be a conference's passcode. Empty means none.
bool canBePasscode(const QString &passcode);
/// The title in a request; nothing when it has none. Throws InvalidParameters for a title without visible
/// characters.
std::optional<QString> requestedTitle(const RequestParameters &parameters);
/// The passcode in a request, empty to remove it; nothing when it has none. Throws InvalidParameters for a
/// passcode that nobody could type.
std::optional<QString> requestedPasscode(const RequestParameters &parameters);
