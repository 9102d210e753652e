// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

/// Marks what the toolkit's library gives to others; everything else stays hidden in it.
#if defined(LUMO_LIBRARY)
#define LUMO_EXPORT Q_DECL_EXPORT
#else
#define LUMO_EXPORT Q_DECL_IMPORT
#endif
