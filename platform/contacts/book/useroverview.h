// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class ContactsBook;

/// How things are for the user who is logged in, as a JSON object; see com.kelvane.meetlynx.Contact1.xml. Any
/// program of the session may ask for it, so there are no passcodes in it. Never throws.
QString userOverview(ContactsBook &book);
