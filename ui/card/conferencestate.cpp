// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencestate.h"

#include "card/cardicons.h"
#include "card/cardtheme.h"

namespace {
constexpr int NotStarted = 0;
constexpr int Ended = 2;
} // namespace

ConferenceState ConferenceState::of(int status)
{
    switch (status) {
    case NotStarted:
        return {QStringLiteral("未开始"), CardIcons::Waiting, CardTheme::notStarted()};
    case Ended:
        return {QStringLiteral("已结束"), CardIcons::Ended, CardTheme::ended()};
    default:
        return {QStringLiteral("进行中"), CardIcons::InProgress, CardTheme::inProgress()};
    }
}
