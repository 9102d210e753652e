// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QObject;
class QPushButton;
QT_END_NAMESPACE

/// What a card's action buttons have in common.
namespace CardButtons {

/// Gives @p button its font and colour. @p card filters its events, so that Return presses it.
void prepare(QPushButton &button, QObject *card);

} // namespace CardButtons
