// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace devhost {

class Conversation;

/// What was said in @p conversation, one finished turn per line, as WindowScript plays it. A password was not
/// kept by anybody; a comment stands in its place, and in that of a sentence that the script would read as
/// something else.
QString scriptOf(const Conversation &conversation);

} // namespace devhost
