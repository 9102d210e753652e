// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QVector>

#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * Every state that a card can be in, with a name. The cards come through the dispatcher, as in the plugin,
 * and are brought to their state with mouse and keys; the ability library has to be the scripted one.
 */
struct CardScene
{
    const char *name; ///< also the picture's file name

    /// Makes the card. It has no parent.
    std::unique_ptr<QWidget> (*make)();
    /// Brings the card, which is shown by now, to its state; null when it is in it already.
    void (*act)(QWidget &card);
};

QVector<CardScene> cardScenes();
