// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// The Tab stops of @p card in their order; the card itself may be one, and may be hidden.
QVector<QWidget *> cardStops(QWidget &card);

/// Whether Tab may stop at @p widget, given that @p shownTo is visible.
bool isTabStop(const QWidget &widget, const QWidget &shownTo);

/// Whether @p card has its window's focus, also while that window is inactive.
bool hasFocusWithin(const QWidget &card);

} // namespace devhost
