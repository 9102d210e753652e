// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/iserviceplugin.h>

#include <functional>

/**
 * A plugin that echoes the value of the first slot or, without one, says how often its service was used. Some
 * names of the first intent do more: "SLOW" sleeps for the slot's milliseconds first, "WAIT" waits (20 s at
 * most) for the file the slot names, "CARD" adds a card whose button answers later, "LATE" answers once more
 * from another thread, "ASKPASSWORD" answers like a conference that wants one, "THROW" and "THROWREPLY"
 * throw, "NOREPLY" gives no reply. The environment overrides the intent's name (TESTPLUGIN_REPLIES) and the
 * start: TESTPLUGIN_INIT is "fail", "partly" or "throw", TESTPLUGIN_SERVICES is "none".
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
    /// Returns an answerLater() for another thread, bound to the current host, which may change meanwhile.
    std::function<void(const Reply &)> answerer();
};
