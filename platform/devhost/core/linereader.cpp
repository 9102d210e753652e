// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "linereader.h"

#include <QByteArray>
#include <QTextCodec>

namespace devhost {

LineReader::LineReader(std::istream &input, int longest) : m_input(input), m_longest(longest) {}

LineReader::Outcome LineReader::read(QString &line)
{
    line.clear();
    QByteArray bytes;
    bool isTooLong = false;
    bool isAnything = false;
    constexpr int end = std::istream::traits_type::eof();
    for (int c = m_input.rdbuf()->sbumpc(); c != end; c = m_input.rdbuf()->sbumpc()) {
        isAnything = true;
        if (c == '\n') {
            break;
        }
        if (bytes.size() < m_longest) {
            bytes.append(static_cast<char>(c));
        } else {
            isTooLong = true;
        }
    }
    if (!isAnything) {
        return End;
    }
    ++m_lineNumber;
    if (isTooLong) {
        return TooLong;
    }
    if (bytes.endsWith('\r')) {
        bytes.chop(1);
    }
    QTextCodec::ConverterState state; // makes the codec strip a byte order mark
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        return NotUtf8;
    }
    line = text;
    return Line;
}

} // namespace devhost
