// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QImage>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// The size the host gives a card that has not been placed yet: its size hint, within what a desk has room
/// for.
void giveCardItsSize(QWidget &card);

/// The card as it looks on the host's window, in its present size, at the screen's scale.
QImage cardPicture(QWidget &card);

} // namespace devhost
