// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <exception>

namespace devhost {

/// Calls @p function, which is a plugin's, and returns what it threw: empty when nothing.
template <typename Function>
QString guarded(Function &&function)
{
    try {
        function();
        return QString();
    } catch (const std::exception &exception) {
        return QString::fromLocal8Bit(exception.what()) + QStringLiteral(" (exception)");
    } catch (...) {
        return QStringLiteral("an exception of unknown type");
    }
}

} // namespace devhost
