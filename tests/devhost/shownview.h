// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversationview.h"

#include <QTest>

/// A shown conversation view without its window.
struct ShownView
{
    devhost::ConversationView view;

    ShownView(int width, int height)
    {
        view.resize(width, height);
        view.show();
    }
    /// Activates the view, so that it gets key events.
    bool activate()
    {
        view.activateWindow();
        return QTest::qWaitForWindowActive(&view);
    }
};
