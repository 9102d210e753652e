// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "dialogue/yesno.h"
#include "meaning/outcome.h"
#include "meaning/reading.h"
#include "words/contactindex.h"

#include <QDateTime>
#include <QStringList>

namespace understanding {

/// The clauses of @p reading as typed; empty if there is only one, or too many.
QStringList clausesOf(const Reading &reading);

/// Takes one clause of @p reading as the answer to @p question if the others only say why: 周五，周四她请假.
/// Otherwise like takeAnswer().
bool takeAnsweringClause(const QString &question, const Reading &reading, const QDateTime &now,
                         const TimeExpression &timeBefore, const ContactIndex &contacts, Outcome &outcome);

/// 会议号错了 应该是778899001, instead of the password that was asked for: puts the number into @p outcome.
/// Returns false if @p reading says nothing of the kind.
bool takeOtherNumber(const Reading &reading, const ContactIndex &contacts, Outcome &outcome);

/// Like readYesNo() for the first clause, if what follows only says why, or the same as what was asked about:
/// 好，她正好在; 对，散了吧. The question was about @p intent.
YesNo readYesNoBeforeReason(const Reading &reading, const QString &intent, const ContactIndex &contacts);

/// 好啊，再叫上小葛: a yes, and more.
bool beginsWithYes(const Reading &reading);

} // namespace understanding
