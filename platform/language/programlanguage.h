// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

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
    Q_DECLARE_TR_FUNCTIONS(ProgramLanguage)

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

    /// The option --language, described in the current language. @p valueName stands for the code in the
    /// help text.
    static QCommandLineOption option(const QString &valueName);

    /// Chooses the language that --language names in the parsed @p line, or the user's. Returns what is wrong
    /// with the name, or an empty string. Texts of @p line stay in the language it was made in.
    [[nodiscard]] QString follow(const QCommandLineParser &line);

private:
    void install(const QString &code);

    const QString m_program;
    QString m_code;
    QTranslator m_texts;
    QTranslator m_toolkitTexts;
};
