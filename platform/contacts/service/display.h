// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Whether a window can be shown: a platform was chosen by name, or a display server answers. Call before
/// creating the application object, because a GUI application aborts without a display server.
bool canShowWindows();
