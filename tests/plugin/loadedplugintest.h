// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logcapture.h"
#include "scriptedability.h"
#include "semantictext.h"

#include <speakmate/iserviceplugin.h>

#include <QApplication>
#include <QPluginLoader>
#include <QTest>
#include <QWidget>

#include <memory>
#include <thread>

constexpr char Tomorrow[] =
    "{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}";

inline QString contact()
{
    return QStringLiteral("contact");
}

/// Returns @p json with double instead of single quotes.
inline QString quoted(const QByteArray &json)
{
    return QString::fromUtf8(json).replace(QLatin1Char('\''), QLatin1Char('"'));
}

/// Counts the existing cards, shown or not.
inline int cardsAlive()
{
    int count = 0;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        count += widget->inherits("ConferenceMsgStaticWidget") ? 1 : 0;
    }
    return count;
}

/**
 * Base class of tests: a host as others would write it. It knows only the public headers, loads the plugin
 * like any other, asks on a worker thread and takes the reply on the GUI thread. The contacts application is
 * scripted; the clock stands at 2026-03-07 10:20.
 */
class LoadedPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        m_plugin = qobject_cast<IServicePlugin *>(m_loader.instance());
        QVERIFY(m_plugin != nullptr);
    }
    void init()
    {
        ScriptedAbility::instance().reset();
        m_log.reset(new LogCapture);
    }
    void cleanup()
    {
        QCOMPARE(ScriptedAbility::instance().alive(), 0);
        m_log.reset();
    }

protected:
    /// Calls service() on a worker thread and waits for it.
    static IRet ask(IService *service, const QString &semantic)
    {
        IRet result = 1;
        std::thread worker([&result, service, &semantic] { result = service->service(semantic); });
        worker.join();
        return result;
    }

    QPluginLoader m_loader{QStringLiteral(CONTACT_PLUGIN_FILE)};
    IServicePlugin *m_plugin = nullptr;
    std::unique_ptr<LogCapture> m_log;
};
