// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"
#include "core/person.h"

#include <QJsonArray>
#include <QJsonObject>

struct MemberMatch;
class MemberMatches;

/// {"ret": word}
QJsonObject answerWord(QLatin1String word);
/// {"ret": word, "list": [...]}
QJsonObject answerConferences(QLatin1String word, const QVector<Conference> &conferences, qint64 nowMsecs);
/// {"ret": "Return", "users": [...]}: the result for each name.
QJsonObject answerUsers(const MemberMatches &matches);
QJsonArray conferencesToJson(const QVector<Conference> &conferences, qint64 nowMsecs);
/// One entry per name, in the order of the request.
QJsonArray matchesToJson(const QVector<MemberMatch> &matches);
