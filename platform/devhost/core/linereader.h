// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <istream>

namespace devhost {

/// Reads lines of UTF-8 text of bounded length. What is too long is skipped without being kept.
class LineReader
{
public:
    enum Outcome { Line, TooLong, NotUtf8, End };

    /// @p input must outlive the reader. @p longest is in bytes.
    explicit LineReader(std::istream &input, int longest = 1024 * 1024);

    /// The next line in @p line, without its end; empty unless the outcome is Line.
    Outcome read(QString &line);
    /// Of the line that was read last; the first is 1.
    int lineNumber() const { return m_lineNumber; }

private:
    std::istream &m_input;
    const int m_longest;
    int m_lineNumber = 0;
};

} // namespace devhost
