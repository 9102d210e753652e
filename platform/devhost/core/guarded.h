// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCoreApplication>
#include <QString>

#include <exception>

namespace devhost {

/// Calls @p function, which belongs to a plugin, and returns the message of what it threw; empty for nothing.
template <typename Function>
QString guarded(Function &&function)
{
    try {
        function();
        return QString();
    } catch (const std::exception &exception) {
        return QCoreApplication::translate("devhost::guarded", "%1 (exception)")
            .arg(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        return QCoreApplication::translate("devhost::guarded", "an exception of unknown type");
    }
}

} // namespace devhost
