// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <istream>

namespace devhost {

/// Reads lines of UTF-8 text of bounded length. Skips lines that are too long without storing them.
class LineReader
{
public:
    enum Outcome { Line, TooLong, NotUtf8, End };

    /// @p input must outlive the reader. @p longest is in bytes.
    explicit LineReader(std::istream &input, int longest = 1024 * 1024);

    /// Reads the next line into @p line, without its end; empty unless the outcome is Line.
    Outcome read(QString &line);
    /// Number of the line read last, counted from 1.
    int lineNumber() const { return m_lineNumber; }

private:
    std::istream &m_input;
    const int m_longest;
    int m_lineNumber = 0;
};

} // namespace devhost
