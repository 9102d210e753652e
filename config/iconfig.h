// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QJsonValue;
QT_END_NAMESPACE

/// String values under keys that are paths, like "/Contact/TimeOut". The order of the functions is fixed.
class IConfig
{
public:
    virtual ~IConfig() = default;
    /// False when there is no such key; @p value is then left as it is.
    virtual bool query(const QString &key, QString &value) = 0;
    /// The value's parts between "|", empty ones too. False as above.
    virtual bool query(const QString &key, QStringList &values) = 0;
    /// Adds the values of a tree of objects; false if it holds anything but objects and strings.
    virtual bool fromJson(const QJsonValue &root) = 0;
    virtual bool contains(const QString &key) = 0;
};
