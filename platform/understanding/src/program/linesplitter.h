// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <vector>

namespace understanding {

/// Splits a stream of bytes into lines as it arrives. Truncates lines well beyond the longest sentence that
/// is read: an endless line takes no memory, and a truncated one is still refused as too long.
class LineSplitter final
{
public:
    /// Adds @p bytes and returns the lines that they complete, without line ends.
    std::vector<QByteArray> add(const char *bytes, qint64 count);

    /// Takes the last line once the stream has ended without a line break; false if there is none.
    bool takeRest(QByteArray &line);

private:
    void append(const char *bytes, qint64 count);
    QByteArray take();

    QByteArray m_pending;
    bool m_hasPending = false;
};

} // namespace understanding
