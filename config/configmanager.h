// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "iconfig.h"
#include "jsonconfigloader.h"

#include <QMap>
#include <QObject>

/**
 * The plugin's configuration: a JSON object of strings and objects, kept as a flat map from paths to strings.
 *
 * @code{.json}
 * {"Contact": {"TimeOut": "5000", "MaxTimeOut": "15000"}}
 * @endcode
 * becomes the two keys "/Contact/TimeOut" and "/Contact/MaxTimeOut". Written only by init(), which the host
 * calls before the first request; after that it may be read on any thread. The order of functions and members
 * is fixed.
 */
class ConfigManager : public QObject, public IConfig
{
    Q_OBJECT

public:
    explicit ConfigManager(QObject *parent = nullptr);

    /// The process's configuration; empty until its init().
    static ConfigManager *instance();

    bool contains(const QString &key) override;
    bool query(const QString &key, QString &value) override;
    bool query(const QString &key, QStringList &values) override;
    bool fromJson(const QJsonValue &root) override;
    /// Adds the members of the object @p value under @p prefix, which ends with a slash. What was added
    /// before a failure stays.
    virtual bool createMap(const QString &prefix, const QJsonValue &value);
    /// Adds the file's values to the map, replacing equal keys. False if the file cannot be read or does not
    /// have this form.
    virtual bool init(const QString &path);
    /// Writes every entry to the log, for debugging.
    virtual void dump();

private:
    JsonConfigLoader m_loader;
    QMap<QString, QString> m_values;
};
