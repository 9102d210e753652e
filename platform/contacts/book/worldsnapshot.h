// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class ContactsBook;

/// The whole state as a JSON object, for tests and the curious. Throws DatabaseError.
QString worldSnapshot(ContactsBook &book);
