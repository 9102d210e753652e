// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/**
 * The texts of a card, line by line from the top, as a terminal shows them: texts as they are, "[按钮]" for
 * buttons, "<值>" for fields. Works on any card that has been laid out (see cardPicture()).
 */
QStringList cardSummary(const QWidget &card);

} // namespace devhost
