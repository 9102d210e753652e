// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversationview.h"

#include <QTest>

/// A conversation by itself, on the screen.
struct ShownView
{
    devhost::ConversationView view;

    ShownView(int width, int height)
    {
        view.resize(width, height);
        view.show();
    }
    /// Gives it the keyboard.
    bool activate()
    {
        view.activateWindow();
        return QTest::qWaitForWindowActive(&view);
    }
};
