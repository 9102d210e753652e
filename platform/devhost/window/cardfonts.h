// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// Scales every font that @p card has set in pixels to @p scale times its original size; other fonts follow
/// the application's by themselves. Call again when the card has new rows.
void scaleCardFonts(QWidget &card, qreal scale);

} // namespace devhost
