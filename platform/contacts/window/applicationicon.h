// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QIcon>

/// The icon of the desktop's theme, or the bundled one where nothing is installed.
QIcon applicationIcon();
