// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <functional>
#include <vector>

class ConferenceMsgStaticWidget;

/// Cards of a hostile or a very large answer, and what they cost until they are on the screen: for the test
/// that bounds it and the benchmark that prints it.
namespace CardCosts {

/// Fills a card that shows @p text somewhere.
using BuildWithText = void (*)(ConferenceMsgStaticWidget &card, const QString &text);

struct LongText
{
    const char *place;
    BuildWithText build;
};

/// Every place of a card with a text that somebody else wrote.
const std::vector<LongText> &longTexts();

/// Of about as many @p characters, with markup in it.
QString textOfLength(int characters);

ContactInviteMemberDetail people(int count, const QString &name);

/// Milliseconds of this thread until a card filled by @p build is painted in a host's list; its end does not
/// count, and neither does other work of the machine.
double untilPainted(const std::function<void(ConferenceMsgStaticWidget &card)> &build);

/// For the first card of a process, which pays for its fonts.
void warmUp();

} // namespace CardCosts
