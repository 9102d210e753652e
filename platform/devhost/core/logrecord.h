// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace devhost {

/// One record of the Qt message logger. Source fields are empty when the record carried none.
struct LogRecord
{
    QtMsgType level = QtDebugMsg;
    QByteArray category;
    QString text;
    QByteArray file;
    QByteArray function;
    int line = 0;
    qint64 atMsecs = 0; ///< since the epoch

    /// "warning default: text (plugin/contactservice.cpp:40)"
    QString toText() const;
};

} // namespace devhost
