// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "jsonsource.h"

#include <QtGlobal>

#include <cstdlib>

namespace {

constexpr int Deepest = 6;
constexpr int MostMembers = 8;

} // namespace

JsonSource::JsonSource(const uint8_t *data, size_t size, Words keys, Words words)
    : m_bytes(data, size)
    , m_keys(keys)
    , m_words(words)
{
}

QByteArray JsonSource::text()
{
    QByteArray result = m_bytes.ConsumeIntegralInRange(0, 15) == 0 ? value(0) : object(0);
    if (m_bytes.ConsumeIntegralInRange(0, 15) == 0) {
        result.truncate(m_bytes.ConsumeIntegralInRange(0, result.size()));
    }
    if (!result.isEmpty() && m_bytes.ConsumeIntegralInRange(0, 15) == 0) {
        const int index = m_bytes.ConsumeIntegralInRange(0, result.size() - 1);
        result[index] = m_bytes.ConsumeIntegral<char>();
    }
    return result;
}

QByteArray JsonSource::value(int depth)
{
    switch (m_bytes.ConsumeIntegralInRange(0, depth < Deepest ? 9 : 5)) {
    case 0:
        return "null";
    case 1:
        return m_bytes.ConsumeBool() ? "true" : "false";
    case 2:
        return number();
    case 3:
    case 4:
    case 5:
        return string();
    case 6:
    case 7:
        return array(depth + 1);
    default:
        return object(depth + 1);
    }
}

QByteArray JsonSource::object(int depth)
{
    QByteArray result = "{";
    const int members = m_bytes.ConsumeIntegralInRange(0, MostMembers);
    for (int index = 0; index < members; ++index) {
        result += index == 0 ? "\"" : ",\"";
        result += pick(m_keys);
        result += "\":" + value(depth);
    }
    return result + "}";
}

QByteArray JsonSource::array(int depth)
{
    QByteArray result = "[";
    const int elements = m_bytes.ConsumeIntegralInRange(0, MostMembers);
    for (int index = 0; index < elements; ++index) {
        result += (index == 0 ? "" : ",") + value(depth);
    }
    return result + "]";
}

QByteArray JsonSource::string()
{
    if (m_bytes.ConsumeIntegralInRange(0, 7) != 0) {
        return QByteArray("\"") + pick(m_words) + "\"";
    }
    const std::string raw = m_bytes.ConsumeRandomLengthString(32);
    return "\"" + QByteArray::fromStdString(raw) +
           "\""; // with quotes and broken UTF-8 in it, if it so happens
}

QByteArray JsonSource::number()
{
    static const Words edges = {"0",
                                "-0",
                                "1.5",
                                "2147483647",
                                "2147483648",
                                "-2147483649",
                                "1700000000000",
                                "9007199254740993",
                                "9223372036854775807",
                                "18446744073709551615",
                                "1e308",
                                "-1e308",
                                "1e-320",
                                "1e999"};
    return m_bytes.ConsumeBool() ? QByteArray(pick(edges))
                                 : QByteArray::number(m_bytes.ConsumeIntegral<qint64>());
}

const char *JsonSource::pick(Words from)
{
    return *(from.begin() + m_bytes.ConsumeIntegralInRange<size_t>(0, from.size() - 1));
}

void silenceTheLog()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}
