// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QStringView>

/// Phrases about found and missing people, shared by creating and inviting.
namespace MemberPhrases {

/// Joins the names that were asked for with an ideographic comma.
QString joinedNames(const QVector<UserInfo> &users);

/// Asks which of several people of one name is meant, after listing the names that were not found.
QString choicePrompt(const QVector<QString> &notExistUsers);

/// %1: the people found, %2: the names not found. Inviting says it too, although the conference has started.
constexpr QStringView StartedWithSome = u"好的，已为您发起和%1的视频会议，未找到%2。";

} // namespace MemberPhrases
