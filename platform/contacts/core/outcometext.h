// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// What the window says to its user about the outcome word of an action.
QString outcomeText(const QString &word);
