// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendar/calendarexport.h"

#include "book/contactsbook.h"
#include "calendar/conferencecalendar.h"
#include "core/conferencerules.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

bool fail(const QString &text)
{
    std::fprintf(stderr, "meetlynx: %s\n", qPrintable(text));
    return false;
}

bool hasSeat(const Conference &conference, const QString &userId)
{
    return std::any_of(conference.participants.cbegin(), conference.participants.cend(),
                       [&userId](const Participant &participant) { return participant.userId == userId; });
}

std::optional<Conference> nextConference(ContactsBook &book, const QString &userId)
{
    const QVector<Conference> conferences = book.conferences().ofUser(
        userId, book.nowMsecs(), std::numeric_limits<qint64>::max(), ConferenceRules::ListLimit);
    const auto found = std::find_if(conferences.cbegin(), conferences.cend(),
                                    [&userId](const Conference &each) { return hasSeat(each, userId); });
    return found == conferences.cend() ? std::nullopt : std::make_optional(*found);
}

} // namespace

bool exportConference(ContactsBook &book, const QString &dialNumber, const QString &fileName)
{
    try {
        const std::optional<Person> user = book.session().user();
        if (!user) {
            return fail(QStringLiteral("nobody is logged in"));
        }
        const std::optional<Conference> conference =
            dialNumber.isEmpty() ? nextConference(book, user->userId)
                                 : book.conferences().byDialNumber(dialNumber, user->userId);
        if (!conference || !hasSeat(*conference, user->userId)) {
            return fail(dialNumber.isEmpty() ? QStringLiteral("no conference is to come")
                                             : QStringLiteral("no conference of yours has that number"));
        }
        const QByteArray calendar = calendarOf(*conference, book.reminders().settings().leadMinutes);
        if (fileName == QLatin1String("-")) {
            const size_t size = static_cast<size_t>(calendar.size());
            const bool isWritten =
                std::fwrite(calendar.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
            return isWritten || fail(QStringLiteral("the standard output cannot be written"));
        }
        const QString error = writeCalendar(calendar, fileName);
        return error.isEmpty() || fail(fileName + QStringLiteral(": ") + error);
    } catch (const std::exception &error) {
        book.noteFailure(error);
        return fail(QString::fromUtf8(error.what()));
    }
}
