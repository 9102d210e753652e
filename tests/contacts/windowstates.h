// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>
#include <QVector>

struct WindowFixture;

/// A state of the window that one looks at: pictured in the documents, and measured.
struct WindowState
{
    const char *name;
    void (*arrange)(WindowFixture &);
};
Q_DECLARE_METATYPE(WindowState)

/// All of them begin with the window as it opens on the sample directory.
QVector<WindowState> windowStates();
