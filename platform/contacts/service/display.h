// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Whether a window can be shown: a platform was asked for by name, or a display server answers. Looked at
/// before the application object exists, because a GUI application without a display server aborts.
bool canShowWindows();
