// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QString>

/**
 * @p text as a tool tip that shows every character literally. Tool tips have no plain format: Qt guesses, and
 * a text from outside the program must not be taken for markup. Long texts wrap.
 */
LUMO_EXPORT QString plainToolTip(const QString &text);
