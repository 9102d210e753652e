// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace devhost {

class Conversation;

/// The user's side of @p conversation, one finished turn per line, as WindowScript plays it. A comment
/// replaces passwords, which nobody has kept, and sentences that the script would read as something else.
QString scriptOf(const Conversation &conversation);

} // namespace devhost
