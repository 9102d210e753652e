// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/calendardialog.h"

#include "book/contactsbook.h"
#include "calendar/conferencecalendar.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QStandardPaths>

namespace {

QString exportTo(ContactsBook &book, const QString &dialNumber, const QString &fileName)
{
    try {
        // As it is by now, not as it was when the dialog opened.
        const std::optional<Person> user = book.session().user();
        const std::optional<Conference> conference =
            book.conferences().byDialNumber(dialNumber, user ? user->userId : QString());
        if (!conference) {
            return QCoreApplication::translate("CalendarDialog", "The conference no longer exists.");
        }
        const QString error =
            writeCalendar(calendarOf(*conference, book.reminders().settings().leadMinutes), fileName);
        return error.isEmpty()
                   ? QCoreApplication::translate("CalendarDialog", "Exported to %1.").arg(fileName)
                   : QCoreApplication::translate("CalendarDialog", "%1 cannot be written: %2")
                         .arg(fileName, error);
    } catch (const std::exception &error) {
        book.noteFailure(error);
        qWarning("A conference cannot be exported: %s", error.what());
        return QCoreApplication::translate("CalendarDialog", "That failed.");
    }
}

} // namespace

void askForCalendarFile(QWidget *parent, ContactsBook &book, const QString &dialNumber,
                        std::function<void(const QString &)> tell)
{
    auto *dialog =
        new QFileDialog(parent, QCoreApplication::translate("CalendarDialog", "Export Calendar File"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(QCoreApplication::translate("CalendarDialog", "Calendar files (*.ics)"));
    dialog->setDefaultSuffix(QStringLiteral("ics"));
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile(QStringLiteral("%1.ics").arg(dialNumber));
    QObject::connect(dialog, &QFileDialog::fileSelected, parent,
                     [&book, dialNumber, tell = std::move(tell)](const QString &fileName) {
                         tell(exportTo(book, dialNumber, fileName));
                     });
    dialog->open();
}
