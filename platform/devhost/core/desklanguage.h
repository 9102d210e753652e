// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <programlanguage.h>

namespace devhost {

/// The language of the desk's own texts. What the assistant says is in the language it is spoken to, whatever
/// is chosen here.
ProgramLanguage deskLanguage();

} // namespace devhost
