// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QVector>

#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * A named state of a card. The cards come through the dispatcher, as in the plugin, and reach their state by
 * mouse and keyboard. Requires the scripted ability library.
 */
struct CardScene
{
    const char *name; ///< the stem of the picture's file name, too

    /// Creates the card, without a parent.
    std::unique_ptr<QWidget> (*make)();
    /// Brings the shown card into its state. Null where it starts out in that state.
    void (*act)(QWidget &card);
};

QVector<CardScene> cardScenes();
