// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

/**
 * The language of a program's own texts: its window, its terminal, its command line. Texts are English in the
 * source; ":/translations/PROGRAM_CODE.qm" holds another language (see contact_add_translations() in
 * cmake/Translations.cmake). Qt's own dialogs and the default locale, which calendars and dates follow,
 * change together with them.
 *
 * Belongs to the GUI thread, is made after the application object and destroyed before it. Texts are fetched
 * when a window is built, so the language is chosen before the first one.
 */
class ProgramLanguage final
{
public:
    /// @p program is the name in front of the code in the names of its translations.
    explicit ProgramLanguage(const QString &program);
    Q_DISABLE_COPY(ProgramLanguage)

    /// Of all languages that there are; English, which needs no translation, is the first.
    QStringList codes() const;

    /// The language of the texts from now on.
    QString code() const { return m_code; }

    /// The first language of the user's that there is, or English.
    void followUser();

    /// @p code is one of codes(), or means one of them: "zh", "zh-CN", "en_GB". False, without any change,
    /// for others.
    [[nodiscard]] bool choose(const QString &code);

private:
    void install(const QString &code);

    const QString m_program;
    QString m_code;
    QTranslator m_texts;
    QTranslator m_toolkitTexts;
};
