// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <vector>

namespace understanding {

/// Cuts a stream of bytes into lines as it arrives. A line keeps no more bytes than any sentence that is read
/// at all can have, so that endless lines take no memory; what is cut off leaves the line too long to be
/// read.
class LineSplitter final
{
public:
    /// The lines that @p bytes completes, without their ends.
    std::vector<QByteArray> add(const char *bytes, qint64 count);

    /// The last line when the stream has ended without a line break; false when there is none.
    bool takeRest(QByteArray &line);

private:
    void append(const char *bytes, qint64 count);
    QByteArray take();

    QByteArray m_pending;
    bool m_hasPending = false;
};

} // namespace understanding
