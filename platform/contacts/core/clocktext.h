// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QDate;
class QDateTime;
QT_END_NAMESPACE

/// "10:00", or with its day where that is not @p today: a conference may run into the night.
QString clockText(const QDateTime &time, const QDate &today);
