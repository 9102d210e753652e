// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

/// What a card says when one of its buttons has done its work. A result code of 0 is success.
namespace CardReplies {

/// What the people picked on a selection card were picked for.
enum class Purpose {
    Create,
    Invite,
    InviteWithinLimit,
};

QString modified(int code);
QString cancelled(int code);
QString confirmed(Purpose purpose, const QStringList &names, int code);

/// A、B和C
QString joined(const QStringList &names);

} // namespace CardReplies
