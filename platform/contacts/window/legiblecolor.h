// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>

/// @p color, darker or lighter until a text in it has a contrast of 4.5 to 1 on both grounds of the
/// application's lists.
QColor legibleInLists(const QColor &color);
