// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// Where the Tab key stops on @p card, in its own order; the card itself may be one, and may be hidden.
QVector<QWidget *> cardStops(QWidget &card);

/// Whether Tab may stop at @p widget, which is shown to @p shownTo.
bool isTabStop(const QWidget &widget, const QWidget &shownTo);

/// Whether @p card has its window's focus, which comes back with the window when that is not active.
bool hasFocusWithin(const QWidget &card);

} // namespace devhost
