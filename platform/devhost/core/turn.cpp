// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "turn.h"

#include <numeric>

namespace devhost {

double Turn::requestMsecs() const
{
    return std::accumulate(calls.begin(), calls.end(), 0.0,
                           [](double sum, const AbilityCall &call) { return sum + call.msecs; });
}

} // namespace devhost
