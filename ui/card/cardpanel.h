// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The background of a card.
namespace CardPanel {

enum class Frame { None, Focus };

/// Paints it. For the paintEvent() of @p card.
void paint(QWidget &card, Frame frame);

} // namespace CardPanel
