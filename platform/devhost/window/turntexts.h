// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "turn.h"

#include <QString>

/// What the inspector shows of a turn, as plain texts.
namespace devhost {
namespace turntexts {

/// The semantic JSON, indented; as it came when it is none.
QString semantic(const Turn &turn);
/// Each request with its parameters, answer, code and time, and where the turn's time went.
QString requests(const Turn &turn);
QString reply(const Turn &turn);
QString log(const Turn &turn);

} // namespace turntexts
} // namespace devhost
