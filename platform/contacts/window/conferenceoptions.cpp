// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferenceoptions.h"

#include "book/contactsbook.h"

Viewer Viewer::of(ContactsBook &book)
{
    const std::optional<Person> user = book.session().user();
    if (!user) {
        return {};
    }
    return {user->userId, book.session().isEngagedElsewhere() ||
                              book.conferences().joinedBy(user->userId, book.nowMsecs()).has_value()};
}

ConferenceOptions ConferenceOptions::of(const Conference &conference, std::optional<Attendance> seat,
                                        const Viewer &viewer, qint64 nowMsecs)
{
    ConferenceOptions options;
    if (!viewer.isLoggedIn()) {
        return options;
    }
    const ConferenceState state = conference.stateAt(nowMsecs);
    const bool hasSeat = seat.value_or(Attendance::Left) != Attendance::Left;
    const bool hasRoom = hasSeat || conference.participants.size() < conference.participantLimit;
    options.join = state == ConferenceState::Running && !viewer.isInConference && hasRoom;
    options.needsPasscode = options.join && !seat && !conference.passcode.isEmpty();
    const bool isHost = conference.hostId == viewer.userId;
    options.start = isHost && state == ConferenceState::NotStarted;
    options.end = isHost && state == ConferenceState::Running;
    options.cancel = isHost && state != ConferenceState::Ended;
    options.edit = options.cancel;
    return options;
}
