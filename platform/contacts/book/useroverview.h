// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class ContactsBook;

/// The state that concerns the user who is logged in, as a JSON object; see
/// com.kelvane.meetlynx.Contact1.xml. Without passcodes, because any program of the session may ask for it.
/// Never throws.
QString userOverview(ContactsBook &book);
