// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Asks before something that cannot be undone, and calls @p act when the user wants it. Does not wait: the
/// assistant's requests go on meanwhile. Return and Escape leave things as they are. @p act is not called any
/// more when @p parent has gone.
void askFirst(QWidget *parent, const QString &question, const QString &yes, std::function<void()> act);
