// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/reply.h>

#include <QStringList>

namespace devhost {

/// Prepends to what @p reply shows and says that each of @p actions, reported as failed before, has been
/// carried out after all. Leaves the reply alone when there is none.
void correctFormerTurns(const QStringList &actions, Reply &reply);

} // namespace devhost
