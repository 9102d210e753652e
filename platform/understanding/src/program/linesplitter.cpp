// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "program/linesplitter.h"

#include <cstring>
#include <utility>

namespace understanding {

namespace {

constexpr int LongestLine = 4096; // more than twice the bytes of the longest sentence

} // namespace

std::vector<QByteArray> LineSplitter::add(const char *bytes, qint64 count)
{
    std::vector<QByteArray> lines;
    const char *end = bytes + count;
    while (bytes < end) {
        const auto *lineEnd =
            static_cast<const char *>(std::memchr(bytes, '\n', static_cast<std::size_t>(end - bytes)));
        append(bytes, (lineEnd != nullptr ? lineEnd : end) - bytes);
        if (lineEnd == nullptr) {
            break;
        }
        lines.push_back(take());
        bytes = lineEnd + 1;
    }
    return lines;
}

bool LineSplitter::takeRest(QByteArray &line)
{
    if (!m_hasPending) {
        return false;
    }
    line = take();
    return true;
}

void LineSplitter::append(const char *bytes, qint64 count)
{
    m_hasPending = true;
    const qint64 room = LongestLine - m_pending.size();
    m_pending.append(bytes, static_cast<int>(qMin(count, room)));
}

QByteArray LineSplitter::take()
{
    QByteArray line = std::exchange(m_pending, QByteArray());
    m_hasPending = false;
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    return line;
}

} // namespace understanding
