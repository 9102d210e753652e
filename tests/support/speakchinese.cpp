// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include SPEAKER_HEADER

#include <QCoreApplication>

#include <memory>

/// Switches the program under test to Chinese, the language of most users, before the first test.
static void speakChinese()
{
    static std::unique_ptr<ProgramLanguage> language;
    language.reset(new ProgramLanguage(SPEAKER_LANGUAGE()));
    if (!language->choose(QStringLiteral("zh_CN"))) {
        qFatal("The program has no Chinese translation");
    }
    qAddPostRoutine([] { language.reset(); });
}

Q_COREAPP_STARTUP_FUNCTION(speakChinese)
