// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

/// What the buttons of a card send to the contacts application, as compact JSON texts.
namespace CardRequests {

/// {"conferenceId":"7","duration":900000,"participantLimit":5,"startTime":1709775000000}; times in
/// milliseconds.
QString update(const ContactDetailMsg &conference);

/// {"members":[{"name":"张三","userId":"u1"}],"startTime":0}; @p startTime in milliseconds since the epoch,
/// 0 for now.
QString create(const QVector<UserInfo> &members, qint64 startTime);

/// {"members":[{"name":"张三","userId":"u1"}]}
QString invite(const QVector<UserInfo> &members);

} // namespace CardRequests
