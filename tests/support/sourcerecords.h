// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logcapture.h"

#include <QDebug>

/// A log record that a source file is expected to write.
struct SourceRecord
{
    QtMsgType level;
    QString text;
    QString function; ///< the whole signature
};

/// Fails the running test unless the records in @p log from @p file (relative to the tree) are exactly
/// @p expected, in this order and in the category "default".
void compareRecords(const LogCapture &log, const char *file, const QVector<SourceRecord> &expected);

/// @p values as QDebug writes them.
template <typename... Values>
QString streamed(const Values &...values)
{
    QString text;
    (QDebug(&text) << ... << values);
    return text.trimmed();
}
