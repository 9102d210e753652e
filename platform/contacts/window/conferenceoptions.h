// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"

#include <optional>

class ContactsBook;

/// Who looks at the conferences.
struct Viewer
{
    QString userId;              ///< empty: nobody is logged in
    bool isInConference = false; ///< in any, also on another device

    bool isLoggedIn() const { return !userId.isEmpty(); }
    /// Throws DatabaseError.
    static Viewer of(ContactsBook &book);
};

/// What the viewer can do with one conference, as the application's rules have it. A request can still fail:
/// the passcode may be wrong, the time taken.
struct ConferenceOptions
{
    bool join = false;
    bool needsPasscode = false; ///< for joining
    bool start = false;
    bool end = false;
    bool cancel = false;
    bool edit = false;

    /// @p seat is the viewer's own, nothing for a stranger.
    static ConferenceOptions of(const Conference &conference, std::optional<Attendance> seat,
                                const Viewer &viewer, qint64 nowMsecs);
};
