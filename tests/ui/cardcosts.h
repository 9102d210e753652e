// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <functional>
#include <vector>

class ConferenceMsgStaticWidget;

/// Cards for hostile or very large answers, and the CPU time until they are painted: bounded by a test and
/// printed by a benchmark.
namespace CardCosts {

/// Fills a card that shows @p text somewhere.
using BuildWithText = void (*)(ConferenceMsgStaticWidget &card, const QString &text);

struct LongText
{
    const char *place;
    BuildWithText build;
};

/// Every place where a card shows text from outside.
const std::vector<LongText> &longTexts();

/// A text with markup, about @p characters long.
QString textOfLength(int characters);

ContactInviteMemberDetail people(int count, const QString &name);

/// CPU time of this thread (ms) until a card filled by @p build is painted in a host's list, without the
/// card's destruction.
double untilPainted(const std::function<void(ConferenceMsgStaticWidget &card)> &build);

/// Paints a first card, which pays for loading the fonts.
void warmUp();

} // namespace CardCosts
