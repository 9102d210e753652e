// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kelvane/kelvaneabilitymanager.h>

#include <QCoreApplication>

#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

/// Sends a request and prints its code; with an argument, sends another for each line of input. Later
/// requests go to the bus at GOOD_ADDRESS, if that variable is set. ONE_REQUEST_TIMEOUT is each one's
/// time-out (ms).
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::string line;
    do {
        const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
        if (qEnvironmentVariableIsSet("ONE_REQUEST_TIMEOUT")) {
            ability->setTimeout(qEnvironmentVariableIntValue("ONE_REQUEST_TIMEOUT"));
        }
        QString answer;
        std::printf("%d\n", ability->request(QStringLiteral("Echo"), QString(), answer));
        std::fflush(stdout);
        if (qEnvironmentVariableIsSet("GOOD_ADDRESS")) {
            qputenv("DBUS_SESSION_BUS_ADDRESS", qgetenv("GOOD_ADDRESS"));
        }
    } while (argc > 1 && std::getline(std::cin, line));
    return 0;
}
