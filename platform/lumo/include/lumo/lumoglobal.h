// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

/// Exports a symbol of the toolkit's library; all others are hidden.
#if defined(LUMO_LIBRARY)
#define LUMO_EXPORT Q_DECL_EXPORT
#else
#define LUMO_EXPORT Q_DECL_IMPORT
#endif
