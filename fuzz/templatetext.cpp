// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "templatetext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace {

constexpr int RareFault = 60;
constexpr int VeryRareFault = 250;
constexpr int MostElements = 5;
constexpr int Deepest = 40;

/// Texts that cause trouble anywhere.
const Words Oddities = {
    "",        "0",           "2",           "-1",         "\\ud800",
    "\\u0000", "\\u202e周会", "<b>周会</b>", "2147483648", "{\\\"suggestDatetime\\\":\\\"2026-03-08\\\"}"};

QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

QByteArray TemplateText::after(const char *text)
{
    const QByteArray json = QByteArray(text).replace('\'', '"');
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    require(error.error == QJsonParseError::NoError); // a broken template would test nothing
    QByteArray result = object(document.object(), 0);
    if (oneIn(RareFault)) {
        result.truncate(m_bytes.ConsumeIntegralInRange(0, result.size()));
    }
    if (!result.isEmpty() && oneIn(RareFault)) {
        const int index = m_bytes.ConsumeIntegralInRange(0, result.size() - 1);
        result[index] = m_bytes.ConsumeIntegral<char>();
    }
    return result;
}

QByteArray TemplateText::written(const QJsonValue &value, int depth)
{
    if (depth > Deepest || oneIn(RareFault)) {
        return otherValue(depth);
    }
    switch (value.type()) {
    case QJsonValue::Object:
        return object(value.toObject(), depth);
    case QJsonValue::Array:
        return array(value.toArray(), depth);
    case QJsonValue::String: {
        const QStringList choices = value.toString().split(QLatin1Char('|'));
        return quoted(choices.at(m_bytes.ConsumeIntegralInRange(0, choices.size() - 1)));
    }
    case QJsonValue::Bool:
        return value.toBool() != m_bytes.ConsumeBool() ? "true" : "false";
    case QJsonValue::Double:
        return m_bytes.ConsumeIntegralInRange(0, 3) < 3 ? QByteArray::number(value.toDouble(), 'f', 0)
                                                        : number();
    default:
        return "null";
    }
}

QByteArray TemplateText::object(const QJsonObject &object, int depth)
{
    QByteArray result;
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        if (oneIn(RareFault)) {
            continue;
        }
        const QString key = oneIn(VeryRareFault) ? member.key() + QLatin1Char('?') : member.key();
        const QByteArray value = written(member.value(), depth + 1);
        result += (result.isEmpty() ? "" : ",") + quoted(key) + ":" + value;
        if (oneIn(VeryRareFault)) {
            result += "," + quoted(key) + ":" + (m_bytes.ConsumeBool() ? number() : otherValue(depth + 1));
        }
    }
    return "{" + result + "}";
}

QByteArray TemplateText::array(const QJsonArray &array, int depth)
{
    QByteArray result;
    // One element, the usual case, once the bytes are used up.
    const int count = (m_bytes.ConsumeIntegralInRange(0, MostElements) + 1) % (MostElements + 1);
    for (int element = 0; element < count; ++element) {
        result += (element == 0 ? "" : ",") + written(array.first(), depth + 1);
    }
    return "[" + result + "]";
}

QByteArray TemplateText::otherValue(int depth)
{
    switch (m_bytes.ConsumeIntegralInRange(0, depth < Deepest ? 7 : 4)) {
    case 0:
        return "null";
    case 1:
        return m_bytes.ConsumeBool() ? "true" : "false";
    case 2:
        return number();
    case 3:
        return QByteArray("\"") + pick(m_bytes, Oddities) + "\"";
    case 4: // includes quotes and broken UTF-8
        return "\"" + QByteArray::fromStdString(m_bytes.ConsumeRandomLengthString(32)) + "\"";
    case 5:
        return "{}";
    case 6:
        return "[]";
    default:
        return "[" + otherValue(depth + 1) + "]";
    }
}

QByteArray TemplateText::number()
{
    static const Words edges = {"0",
                                "-0",
                                "-1",
                                "1.5",
                                "900000",
                                "2147483647",
                                "2147483648",
                                "-2147483649",
                                "1700000000000",
                                "9007199254740993",
                                "9223372036854775807",
                                "-9223372036854775808",
                                "18446744073709551615",
                                "1e308",
                                "-1e308",
                                "1e-320",
                                "1e999"};
    return m_bytes.ConsumeBool() ? QByteArray::number(m_bytes.ConsumeIntegral<qint64>())
                                 : QByteArray(pick(m_bytes, edges));
}

bool TemplateText::oneIn(int count)
{
    return m_bytes.ConsumeIntegralInRange(0, count) == count;
}
