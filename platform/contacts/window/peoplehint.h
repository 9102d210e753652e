// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/peoplereader.h"

#include <QString>

/// Why a list of people may have nobody in it.
struct PeopleView
{
    bool isLoggedIn = false;
    bool isReading = false;
    QString text;
    PeopleScope scope = PeopleScope::Everybody;
};

/// What an empty list of people says: the reason, and what to do about it.
QString peopleHint(const PeopleView &view);
