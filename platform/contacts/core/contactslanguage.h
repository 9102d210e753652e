// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <programlanguage.h>

/// Of what the application says to its user: window, notifications, files, command line. Its answers on the
/// bus, and the names of conferences that programs make there without one, are the same in every language.
ProgramLanguage contactsLanguage();
