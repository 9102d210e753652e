// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desklanguage.h"

#include <QDir>

/// Nothing else references this part of the library; the macro does not work inside a namespace.
static void keepTranslations()
{
    Q_INIT_RESOURCE(devhost_core_translations);
}

namespace devhost {

ProgramLanguage deskLanguage()
{
    keepTranslations();
    return ProgramLanguage(QStringLiteral("speakmate-devhost"));
}

} // namespace devhost
