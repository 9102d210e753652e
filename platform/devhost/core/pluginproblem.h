// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace devhost {

/// Why no plugin could be loaded, and what the user can do about it.
struct PluginProblem
{
    enum Kind { None, Missing, NotAPlugin, OtherInterface, CannotLoad, InitFailed, NoService };

    Kind kind = None;
    QString what;
    QString whatToDo;

    QString toText() const { return what + QLatin1Char('\n') + whatToDo; }
};

} // namespace devhost
