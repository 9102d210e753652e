// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// Gives every font that @p card has set in pixels @p scale times the size it was made with; others follow
/// the application's font by themselves. To be called again when the card has got new rows.
void scaleCardFonts(QWidget &card, qreal scale);

} // namespace devhost
