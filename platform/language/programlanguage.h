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
 * change with it.
 *
 * Lives on the GUI thread; create it after the application object and destroy it before. Texts are fetched
 * when a window is built, so choose the language before the first one.
 */
class ProgramLanguage final
{
public:
    /// @p program prefixes the file names of its translations.
    explicit ProgramLanguage(const QString &program);
    Q_DISABLE_COPY(ProgramLanguage)

    /// All available languages, first English, which needs no translation.
    QStringList codes() const;

    /// The current language.
    QString code() const { return m_code; }

    /// The first of the user's languages that is available, or English.
    void followUser();

    /// Accepts one of codes() and its variants: "zh", "zh-CN", "en_GB". Returns false, changing nothing, for
    /// others.
    [[nodiscard]] bool choose(const QString &code);

private:
    void install(const QString &code);

    const QString m_program;
    QString m_code;
    QTranslator m_texts;
    QTranslator m_toolkitTexts;
};
