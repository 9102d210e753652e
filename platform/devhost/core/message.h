// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCoreApplication>

namespace devhost {

/// A text for a person, written in English: the text modes print it so, the window installs a translation.
inline QString message(const char *english)
{
    return QCoreApplication::translate("devhost", english);
}

} // namespace devhost
