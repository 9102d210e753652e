// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "appearance.h"
#include "conversationview.h"
#include "inputline.h"
#include "logrecorder.h"
#include "mainwindow.h"
#include "redirectedfile.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

/**
 * The whole desk: the real window, plugin and application on a private bus, driven as a user would. Create
 * it inside a test function: Qt Test installs its own message handler before that.
 */
class RealDesk
{
public:
    RealDesk();

    /// Types and sends @p text, then waits for the answer.
    void say(const QString &text);
    /// Returns the visible control with this text; null if there is none.
    template <typename Control>
    Control *shown(const QString &text) const;
    /// Returns the newest bubble's text.
    QString lastText() const;
    /// Returns the newest card; null if there is none.
    QWidget *lastCard() const;
    devhost::Turn lastTurn() const { return m_conversation.turn(m_conversation.lastTurn()); }

    /// Restores the application's sample data over the bus.
    static bool loadSample();

    devhost::Conversation &conversation() { return m_conversation; }
    devhost::MainWindow &window() { return m_window; }

    /// Loads the plugin with its configuration, once per process.
    static devhost::PluginHost &host();

private:
    devhost::LogRecorder m_logs;
    devhost::Appearance m_appearance;
    devhost::Conversation m_conversation;
    devhost::MainWindow m_window;
};

template <typename Control>
Control *RealDesk::shown(const QString &text) const
{
    for (Control *control : m_window.view()->findChildren<Control *>()) {
        if (control->isVisible() && control->text() == text) {
            return control;
        }
    }
    return nullptr;
}
