// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/contactslanguage.h"

#include <QDir>

ProgramLanguage contactsLanguage()
{
    // Nothing else asks for this part of the library.
    Q_INIT_RESOURCE(contacts_book_translations);
    return ProgramLanguage(QStringLiteral("kelvane-contacts"));
}
