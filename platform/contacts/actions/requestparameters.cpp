// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actions/requestparameters.h"

#include "core/conferencerules.h"
#include "core/jsonkeys.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {

// 9999-12-31T23:59:59.999Z; also far inside what a JSON number holds exactly.
constexpr double LargestNumber = 253402300799999.0;

QString textOf(const QJsonObject &object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined()) {
        return {};
    }
    if (!value.isString()) {
        throw InvalidParameters("a value is no text");
    }
    const QString text = value.toString();
    if (text.contains(QChar(QChar::Null))) {
        throw InvalidParameters("a text holds a NUL");
    }
    return text;
}

} // namespace

RequestParameters::RequestParameters(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    if (text.size() > MaxBytes) {
        throw InvalidParameters("the text is too long");
    }
    const QByteArray bytes = text.toUtf8();
    if (bytes.size() > MaxBytes) {
        throw InvalidParameters("the text is too long");
    }
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject()) {
        throw InvalidParameters("the text is no JSON object");
    }
    m_object = document.object();
}

QString RequestParameters::text(QLatin1String key) const
{
    return textOf(m_object, key);
}

std::optional<qint64> RequestParameters::number(QLatin1String key) const
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined()) {
        return std::nullopt;
    }
    const double number = value.toDouble(-1);
    if (number < 0 || number > LargestNumber || std::floor(number) < number) {
        throw InvalidParameters("a value is no number in its range");
    }
    return static_cast<qint64>(number);
}

QVector<RequestedMember> RequestParameters::members() const
{
    const QJsonValue value = m_object.value(JsonKey::Members);
    if (value.isUndefined()) {
        return {};
    }
    if (!value.isArray()) {
        throw InvalidParameters("the members are no list");
    }
    const QJsonArray array = value.toArray();
    if (array.size() > ConferenceRules::MaxMembers) {
        throw InvalidParameters("there are too many members");
    }
    QVector<RequestedMember> members;
    members.reserve(array.size());
    for (const QJsonValue &entry : array) {
        if (!entry.isObject()) {
            throw InvalidParameters("a member is no object");
        }
        const QJsonObject object = entry.toObject();
        members.append({textOf(object, JsonKey::Name), textOf(object, JsonKey::UserId)});
    }
    return members;
}
