// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

/// What a card says after one of its buttons has done its work.
namespace CardReplies {

// After a change or a cancellation. A result code of 0 is success.
QString modified(int code);
QString cancelled(int code);

// After a confirmation, for the names of the people picked. The wording deliberately differs between purposes
// (和 or 与; an invitation says that it starts a conference): users know it that way.
QString created(const QStringList &names);
QString invited(const QStringList &names);
/// Names only the first two.
QString invitedWithinLimit(const QStringList &names);
QString notCreated();
QString notInvited();

/// A、B和C
QString joined(const QStringList &names);

} // namespace CardReplies
