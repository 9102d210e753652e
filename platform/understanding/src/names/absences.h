// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/contactindex.h"

#include <QString>
#include <QStringList>

namespace understanding {

// Regular expressions, without groups that capture.

/// What calls somebody: 约, 叫.
QString callPattern();
/// What may stand before a clause about people: 那, 不过, 算了.
QString leadPattern();
/// What follows a name where somebody is not to come: 不叫, 算了, 来不了.
QString leftOutPattern();
/// What stands before a name then: 别叫, 不包括.
QString leavingOutPattern();
/// What follows a name where somebody cannot come: 没空, 请假. It may as well be a reason for another time.
QString busyPattern();

/// True if @p text holds a character of any of these words, which is found faster.
bool hasWordOfAbsence(const QString &text);

/// The names that @p text consists of; empty if it says anything else: 小凯和李楠, but not 老公逛街.
QStringList namesOf(const QString &text, const ContactIndex &contacts);

} // namespace understanding
