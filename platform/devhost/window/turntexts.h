// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "turn.h"

#include <QString>

/// The texts that the inspector shows of a turn.
namespace devhost {
namespace turntexts {

/// The semantic JSON, indented; unchanged when it is not valid.
QString semantic(const Turn &turn);
/// Each request with its parameters, answer, code and duration, and how the turn's time was spent.
QString requests(const Turn &turn);
QString reply(const Turn &turn);
QString log(const Turn &turn);

} // namespace turntexts
} // namespace devhost
