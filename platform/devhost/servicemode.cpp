// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "servicemode.h"

#include "knownnames.h"
#include "launcherbus.h"
#include "launcherdesk.h"
#include "textmodes.h"
#include "warmup.h"

#include <QApplication>
#include <QTimer>

#include <iostream>

namespace devhost {

namespace {

constexpr int IdleMsecs = 2000;

ExitStatus complain(ExitStatus status, const QString &message)
{
    std::cerr << "speakmate-devhost: " << qUtf8Printable(message) << std::endl;
    return status;
}

} // namespace

ExitStatus runService(const Options &options, PluginHost &host, LogRecorder &logs)
{
    QStringList names;
    if (!readContactNames(options.contacts, names)) {
        return complain(WrongUsage, Options::tr("%1 cannot be read.").arg(options.contacts));
    }
    QApplication::setQuitOnLastWindowClosed(false);
    LauncherBus bus;
    if (bus.connectToBus() != LauncherBus::Start::Done) {
        return complain(SomethingBroken, Options::tr("There is no session bus."));
    }
    Conversation conversation(host, logs);
    LauncherDesk desk(conversation, bus.bus());
    desk.setContactNames(names);
    // Updated in the background, so that no match waits for the contacts application.
    const KnownNames knownNames;
    QObject::connect(&knownNames, &KnownNames::changed, &desk,
                     [&desk, names](const QStringList &known) { desk.setContactNames(names + known); });
    QObject::connect(&bus, &LauncherBus::disconnected, &desk, &QCoreApplication::quit);
    switch (bus.offer(desk)) {
    case LauncherBus::Start::Done:
        break;
    case LauncherBus::Start::AlreadyRunning:
        return complain(EverythingAnswered, Options::tr("Another instance already serves the launchers."));
    case LauncherBus::Start::NoBus:
    case LauncherBus::Start::Refused:
        return complain(SomethingBroken, Options::tr("The session bus refuses the service."));
    }
    QTimer::singleShot(IdleMsecs, &desk, &warmUp);
    QApplication::exec();
    return EverythingAnswered;
}

} // namespace devhost
