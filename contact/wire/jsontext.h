// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

/// @p object without blanks and line breaks, as requests carry it.
inline QString compactText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}
