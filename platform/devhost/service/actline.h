// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDate>
#include <QSet>
#include <QString>

namespace devhost {

/**
 * Describes in one line what carrying out @p semantic, understood on @p today, will do:
 *
 *     预约 11月22日 15:00 与张伟的视频会议
 *
 * Empty for anything that a launcher must not offer: questions and refusals, a conference whose hour would
 * have to be guessed, people outside @p knownNames (unless nobody is known yet), and passwords, because
 * launchers keep what was typed.
 */
QString actLine(const QString &semantic, const QDate &today, const QSet<QString> &knownNames);

} // namespace devhost
