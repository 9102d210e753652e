// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusError>

/// The code (see AbilityCode) for an error that ended a call before its time-out.
int codeOf(const QDBusError &error);
