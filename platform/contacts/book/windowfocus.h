// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>

/// Whether the window takes the focus when it is shown.
enum class WindowFocus {
    Take,  ///< the user asked for the window itself
    Leave, ///< a program did, and the user may be typing into another one
};
Q_DECLARE_METATYPE(WindowFocus)
