// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "appearance.h"
#include "bubble.h"
#include "conversationview.h"
#include "inputline.h"
#include "logrecorder.h"
#include "mainwindow.h"
#include "styledtest.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>

/// A window assembled as in main(), by default without a plugin. One at a time: it records the log.
struct Desk
{
    devhost::LogRecorder logs;
    devhost::PluginHost host;
    bool isLoaded;
    devhost::Appearance appearance;
    devhost::Conversation conversation{host, logs};
    devhost::MainWindow window{conversation, appearance};

    explicit Desk(const QString &plugin = QString()) : isLoaded(!plugin.isEmpty() && host.load(plugin)) {}

    devhost::ConversationView &view() { return *window.view(); }

    void type(const QString &text)
    {
        window.input()->setText(text);
        QTest::keyClick(window.input(), Qt::Key_Return);
    }

    bool isIdle() const { return !conversation.isBusy(); }

    QStringList shownTexts() const
    {
        QVector<QPair<int, QString>> placed;
        const auto bubbles = window.view()->findChildren<devhost::Bubble *>();
        for (const devhost::Bubble *bubble : bubbles) {
            if (bubble->isVisible()) {
                placed.append({bubble->y(), bubble->text()});
            }
        }
        std::sort(placed.begin(), placed.end());
        QStringList texts;
        for (const auto &bubble : placed) {
            texts << bubble.second;
        }
        return texts;
    }
};

/// Base class of window tests: gives each test function its own settings.
class WindowTest : public StyledTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("test"));
        QCoreApplication::setApplicationName(QString::fromLatin1(QTest::currentTestFunction()));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        prepare();
    }

protected:
    /// Runs before each test function.
    virtual void prepare() {}

private:
    QTemporaryDir m_settings;
};
