// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logcapture.h"

#include <QDebug>

/// What a log record must look like that a source file is expected to write.
struct SourceRecord
{
    QtMsgType level;
    QString text;
    QString function; ///< the whole signature
};

/// Fails the running test unless the records that @p log holds of @p file (relative to the tree) are exactly
/// @p expected, in this order and of category "default".
void compareRecords(const LogCapture &log, const char *file, const QVector<SourceRecord> &expected);

/// What a debug stream makes of @p values.
template <typename... Values>
QString streamed(const Values &...values)
{
    QString text;
    (QDebug(&text) << ... << values);
    return text.trimmed();
}
