// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

namespace understanding {

/// Turns 邀请 into a report where it calls nobody (会议邀请我收到了), and call into a word that calls
/// somebody before a name (call Nick). Before names are looked for.
void settleInvitations(const QString &text, Tokens &tokens);

/// Turns 连上 into a word that joins where one's own conference follows: 连上我三点那个会.
void settleJoins(const QString &text, Tokens &tokens);

} // namespace understanding
