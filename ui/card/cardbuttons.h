// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QObject;
class QPushButton;
QT_END_NAMESPACE

/// What the buttons with which a card acts have in common.
namespace CardButtons {

/// Gives @p button its font and colour. @p card filters its events and so makes Return press it.
void prepare(QPushButton &button, QObject *card);

} // namespace CardButtons
