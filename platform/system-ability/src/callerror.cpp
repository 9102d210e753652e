// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "callerror.h"

#include <kelvane/abilitycodes.h>

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace {

struct NamedCode
{
    QLatin1String prefix;
    int code;
};

/// The first matching prefix counts.
const std::array<NamedCode, 11> NamedCodes{{
    // The application kept the request's deadline: nothing was done.
    {QLatin1String("com.kelvane.meetlynx.Error.DeadlinePassed"), AbilityCode::TimedOut},
    {QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown"), AbilityCode::NoService},
    {QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner"), AbilityCode::NoService},
    {QLatin1String("org.freedesktop.DBus.Error.Spawn."), AbilityCode::NoService},
    // The bus gave up starting the application.
    {QLatin1String("org.freedesktop.DBus.Error.TimedOut"), AbilityCode::NoService},
    {QLatin1String("org.freedesktop.DBus.Error.NoReply"), AbilityCode::Died},
    {QLatin1String("org.freedesktop.DBus.Error.Disconnected"), AbilityCode::Died},
    {QLatin1String("org.freedesktop.DBus.Error.NoServer"), AbilityCode::NoBus},
    {QLatin1String("org.freedesktop.DBus.Error.NoNetwork"), AbilityCode::NoBus},
    // QtDBus's own name for a reply of another signature.
    {QLatin1String("org.freedesktop.DBus.Error.InvalidSignature"), AbilityCode::MalformedAnswer},
    {QLatin1String("org.qtproject.QtDBus.Error.InvalidInterface"), AbilityCode::Refused},
}};

} // namespace

int codeOf(const QDBusError &error)
{
    const QString name = error.name();
    const auto *found = std::find_if(NamedCodes.cbegin(), NamedCodes.cend(),
                                     [&name](const NamedCode &row) { return name.startsWith(row.prefix); });
    return found == NamedCodes.cend() ? AbilityCode::Refused : found->code;
}
