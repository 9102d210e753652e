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
 * The whole desk: the real window with the real plugin and the real application on a bus of its own, used as
 * a person would. Make it in the test function: the test framework takes the log records for itself before.
 */
class RealDesk
{
public:
    RealDesk();

    /// Types @p text, sends it, and waits until it is answered.
    void say(const QString &text);
    /// The visible control with this text; null when there is none.
    template <typename Control>
    Control *shown(const QString &text) const;
    /// The newest bubble's text.
    QString lastText() const;
    /// The newest card; null without one.
    QWidget *lastCard() const;
    devhost::Turn lastTurn() const { return m_conversation.turn(m_conversation.lastTurn()); }

    /// Puts the application's sample back, over the bus.
    static bool loadSample();

    devhost::Conversation &conversation() { return m_conversation; }
    devhost::MainWindow &window() { return m_window; }

    /// The plugin and its configuration: once per process.
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
