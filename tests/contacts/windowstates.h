// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>
#include <QVector>

struct WindowFixture;

/// A state of the window that is measured and, in most cases, pictured in the documents.
struct WindowState
{
    const char *name;
    void (*arrange)(WindowFixture &);
};
Q_DECLARE_METATYPE(WindowState)

/// Returns the pictured states. Each starts from a newly opened window on the sample directory.
QVector<WindowState> windowStates();
