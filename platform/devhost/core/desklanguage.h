// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <programlanguage.h>

namespace devhost {

/// Of the desk's own texts. What the assistant says, in its answers and about what it is asked to do, is in
/// the language in which it is spoken to, whatever the language here.
ProgramLanguage deskLanguage();

} // namespace devhost
