// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QLatin1String>

struct ActionContext;
struct Conference;

/// Lets the user into a running conference: "OK", or "Participant Out Limit" for somebody without a seat when
/// all are taken.
QLatin1String takeSeat(const ActionContext &context, const Conference &conference);
