// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace devhost {

class Appearance;

/// Adds theme and font size to @p menu. @p appearance must outlive it.
void addAppearanceMenus(QMenu &menu, Appearance &appearance);

} // namespace devhost
