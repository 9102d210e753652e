// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

class ConferenceRepository;
class PeopleRepository;
class SessionRepository;

/// The sample directory, sample.json: enough people and conferences for every outcome.
namespace SampleDirectory {
/// Adds it to an empty database and logs its user in. Times are relative to @p nowMsecs, in local time.
/// Throws DatabaseError.
void load(PeopleRepository &people, ConferenceRepository &conferences, SessionRepository &session,
          qint64 nowMsecs);
} // namespace SampleDirectory
