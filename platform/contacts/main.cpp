// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/administration.h"
#include "book/contactsbook.h"
#include "calendar/calendarexport.h"
#include "core/contactslanguage.h"
#include "core/databaseerror.h"
#include "options.h"
#include "reminders/reminders.h"
#include "service/busservice.h"
#include "service/display.h"
#include "window/contactswindow.h"
#include "window/lastwindow.h"

#include <lumo/lstyle.h>
#include <sharedappearance.h>

#include <QApplication>
#include <QDebug>
#include <QFileInfo>

#include <iostream>
#include <memory>

#include <sys/stat.h>

namespace {

enum ExitStatus {
    Served = 0,
    WrongUsage = 1,
    DatabaseUnusable = 1,
    NoSessionBus = 2,
    BusRefused = 3,
    NotExported = 4
};

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv, bool withWindow)
{
    if (withWindow) {
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

std::unique_ptr<ContactsBook> openBook()
{
    try {
        return std::make_unique<ContactsBook>(Database::defaultFileName());
    } catch (const DatabaseError &error) {
        qCritical() << "The contacts cannot be opened:" << error.what();
        return nullptr;
    }
}

/// Uses no bus: it may be called where there is none, and beside a running application.
int exportCalendar(const QString &fileName, const QString &dialNumber)
{
    const std::unique_ptr<ContactsBook> book = openBook();
    if (!book) {
        return DatabaseUnusable;
    }
    return exportConference(*book, dialNumber, fileName) ? Served : NotExported;
}

bool remindersAreOn(ContactsBook &book)
{
    try {
        return book.reminders().settings().isOn;
    } catch (const std::exception &error) {
        qWarning("Cannot tell whether reminders are wanted: %s", error.what());
        return true;
    }
}

int serve(QCoreApplication &application, Starter starter, Audience audience)
{
    // A user who has never used the application has nothing to be reminded of.
    if (starter == Starter::Login && !QFileInfo::exists(Database::defaultFileName())) {
        return Served;
    }
    const std::unique_ptr<ContactsBook> book = openBook();
    if (!book) {
        return DatabaseUnusable;
    }
    if (starter == Starter::Login && !remindersAreOn(*book)) {
        return Served;
    }
    const bool isForDevelopers = audience == Audience::Developers;
    BusService service(*book, isForDevelopers ? BusService::Interfaces::WithAdministration
                                              : BusService::Interfaces::RequestsOnly);
    QObject::connect(&service, &BusService::disconnected, &application, &QCoreApplication::quit);
    switch (service.start()) {
    case BusService::Start::NoBus:
        qCritical() << "There is no session bus. Start one, for instance with dbus-run-session.";
        return NoSessionBus;
    case BusService::Start::AlreadyRunning:
        if (starter == Starter::User) {
            service.askOtherForWindow();
        }
        return Served;
    case BusService::Start::Refused:
        return BusRefused;
    case BusService::Start::Done:
        break;
    }
    Administration administration(*book);
    Reminders reminders(*book, QDBusConnection::sessionBus());
    std::unique_ptr<SharedAppearance> appearance;
    std::unique_ptr<ContactsWindow> window; // made when it is first wanted: most of the time nobody looks
    if (qobject_cast<QApplication *>(&application)) {
        endWithLastWindowUnless([&book] { return remindersAreOn(*book); });
        const auto showWindow = [&](WindowFocus focus) {
            if (!window) {
                QApplication::setStyle(new LStyle);
                appearance = std::make_unique<SharedAppearance>(SharedAppearance::deskSettingsFile());
                appearance->follow();
                window = std::make_unique<ContactsWindow>(
                    *book, administration,
                    isForDevelopers ? ContactsWindow::Tools::ForDevelopers : ContactsWindow::Tools::ForUsers);
            }
            window->bringUp(focus);
        };
        // After the request that wants it: its answer goes first.
        QObject::connect(book.get(), &ContactsBook::windowWanted, book.get(), showWindow,
                         Qt::QueuedConnection);
        QObject::connect(&reminders, &Reminders::windowWanted, book.get(),
                         [showWindow] { showWindow(WindowFocus::Take); });
        if (starter == Starter::User) {
            showWindow(WindowFocus::Take);
        }
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    umask(077); // what is written holds passcodes
    const bool withWindow = canShowWindows();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv, withWindow);
    QCoreApplication::setApplicationName(QStringLiteral("kelvane-contacts"));
    // The desktop finds the window's name and icon by this.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kelvane.meetlynx"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CONTACTS_VERSION));

    ProgramLanguage language = contactsLanguage();
    const Options options = Options::read(*application, language);
    if (!options.usageError.isEmpty()) {
        std::cerr << qUtf8Printable(options.usageError) << std::endl;
        return WrongUsage;
    }
    if (options.exportFile) {
        return exportCalendar(*options.exportFile, options.conference);
    }
    return serve(*application, options.starter, options.audience);
}
