// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desklanguage.h"

#include <QCoreApplication>

#include <memory>

/// Lets the desk speak Chinese in the test program, as it does for most of its users, before its first test.
static void speakChinese()
{
    static std::unique_ptr<ProgramLanguage> language;
    language.reset(new ProgramLanguage(devhost::deskLanguage()));
    if (!language->choose(QStringLiteral("zh_CN"))) {
        qFatal("The desk does not speak Chinese");
    }
    qAddPostRoutine([] { language.reset(); });
}

Q_COREAPP_STARTUP_FUNCTION(speakChinese)
