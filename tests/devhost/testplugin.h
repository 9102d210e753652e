// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/iserviceplugin.h>

#include <functional>

/**
 * A plugin that does what the name of the first intent says: "ECHO" answers its slot "text", "SLOW" sleeps
 * for the slot "msecs" first, "WAIT" waits until the file in the slot "file" is there, "CARD" answers with a
 * card whose button answers later, "LATE" answers and then once more from another thread, "ASKPASSWORD"
 * answers like a conference that wants one, "THROW" and "THROWREPLY" throw, "NOREPLY" gives none; anything
 * else counts how often its service was used. The environment decides how it starts: TESTPLUGIN_INIT is
 * "fail", "partly" or "throw", TESTPLUGIN_SERVICES is "none".
 */
class TestPlugin : public QObject, public IServicePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IServicePlugin_iid)
    Q_INTERFACES(IServicePlugin)

public:
    int init() override;
    void uninit() override {}
    QStringList getSupportService() override;
    IService *createService(const QString &name) override;
    void releaseService(IService *service) override;

    void answerLater(const Reply &reply);
    /// answerLater() for another thread, with the host of now: a new one may come while that thread runs.
    std::function<void(const Reply &)> answerer();
};
