// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "configmanager.h"

#include "defaultlog.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr QLatin1Char PathSeparator('/');
constexpr QLatin1Char ListSeparator('|');

} // namespace

ConfigManager::ConfigManager(QObject *parent) : QObject(parent) {}

ConfigManager *ConfigManager::instance()
{
    static ConfigManager manager;
    return &manager;
}

bool ConfigManager::contains(const QString &key)
{
    return m_values.contains(key);
}

bool ConfigManager::query(const QString &key, QString &value)
{
    const auto found = m_values.constFind(key);
    if (found == m_values.constEnd()) {
        qCDebug(defaultLog) << "Cannot find config: " << key;
        return false;
    }
    value = found.value();
    return true;
}

bool ConfigManager::query(const QString &key, QStringList &values)
{
    QString text;
    if (!query(key, text)) {
        return false;
    }
    values = text.split(ListSeparator);
    return true;
}

bool ConfigManager::fromJson(const QJsonValue &root)
{
    return createMap(QString(PathSeparator), root);
}

bool ConfigManager::createMap(const QString &prefix, const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        const QString key = prefix + member.key();
        if (member.value().isObject()) {
            if (!createMap(key + PathSeparator, member.value())) {
                return false;
            }
        } else if (member.value().isString()) {
            m_values.insert(key, member.value().toString());
        } else {
            qCCritical(defaultLog) << "This config can only contain string&dict";
            return false;
        }
    }
    return true;
}

bool ConfigManager::init(const QString &path)
{
    const QJsonDocument *document = m_loader.load(path);
    if (document == nullptr || !document->isObject()) {
        qCCritical(defaultLog) << "config root must be a object."; // hosts search for this wording
        return false;
    }
    const bool parsed = fromJson(document->object());
    if (parsed) {
        qCInfo(defaultLog) << "Load config successfully: " << path;
    } else {
        qCCritical(defaultLog) << "Parse Config failed: " << path;
    }
    return parsed;
}

void ConfigManager::dump()
{
    for (auto entry = m_values.constBegin(); entry != m_values.constEnd(); ++entry) {
        qCCritical(defaultLog) << "{" << entry.key() << ", " << entry.value() << "}";
    }
}
