// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QStringView>

/// The phrases about matched and missing people that creating and inviting share.
namespace MemberPhrases {

/// The names that were asked for, with an ideographic comma between them.
QString joinedNames(const QVector<UserInfo> &users);

/// Asks which of several people of one name is meant, naming first those that were not found.
QString choicePrompt(const QVector<QString> &notExistUsers);

/// %1 is who was found, %2 who was not. Inviting uses it too, although the conference runs already.
constexpr QStringView StartedWithSome = u"好的，已为您发起和%1的视频会议，未找到%2。";

} // namespace MemberPhrases
