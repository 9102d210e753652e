// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "programlanguage.h"

#include <QCommandLineParser>
#include <QDir>
#include <QLibraryInfo>

#include <algorithm>

namespace {

const QLatin1String English("en");
const QLatin1String Folder(":/translations");
const QLatin1String OptionName("language");

/// The user's own country when its language is @p code: the first day of the week and the dates follow it.
QLocale localeOf(const QString &code)
{
    const QLocale user = QLocale::system();
    const QLocale language(code);
    return user.language() == language.language() && user.script() == language.script() ? user : language;
}

/// The C locale, which scripts ask for, means English even when a list of languages is set. Qt knows it by
/// its bare name only.
bool isLocaleOfNobody()
{
    QByteArray locale;
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.isEmpty()) {
            locale = qgetenv(variable);
        }
    }
    return locale == "C" || locale == "POSIX" || locale.startsWith("C.");
}

} // namespace

ProgramLanguage::ProgramLanguage(const QString &program) : m_program(program), m_code(English) {}

QStringList ProgramLanguage::codes() const
{
    QStringList codes{English};
    const QStringList files = QDir(Folder).entryList({m_program + QStringLiteral("_*.qm")});
    for (const QString &file : files) {
        codes << file.mid(m_program.size() + 1).chopped(int(qstrlen(".qm")));
    }
    return codes;
}

void ProgramLanguage::followUser()
{
    if (isLocaleOfNobody()) {
        install(English);
        return;
    }
    const QStringList known = codes();
    const QStringList wanted = QLocale::system().uiLanguages();
    for (const QString &name : wanted) {
        // Another script is fine too: its readers prefer it to English.
        const auto found = std::find_if(known.begin(), known.end(), [&name](const QString &code) {
            return QLocale(code).language() == QLocale(name).language();
        });
        if (found != known.end()) {
            install(*found);
            return;
        }
    }
    install(English);
}

bool ProgramLanguage::choose(const QString &code)
{
    const QLocale wanted(code);
    const QStringList known = codes();
    const auto found = std::find_if(known.begin(), known.end(), [&wanted](const QString &candidate) {
        const QLocale locale(candidate);
        return locale.language() == wanted.language() && locale.script() == wanted.script();
    });
    if (found == known.end()) {
        return false;
    }
    install(*found);
    return true;
}

QCommandLineOption ProgramLanguage::option(const QString &valueName)
{
    return {OptionName,
            tr("The language of the window and of these texts, such as en or zh_CN; without it, the user's."),
            valueName};
}

QString ProgramLanguage::follow(const QCommandLineParser &line)
{
    followUser(); // also what a complaint is written in
    const QString code = line.value(OptionName);
    if (!line.isSet(OptionName) || choose(code)) {
        return {};
    }
    return tr("There is no translation to '%1'; --language takes one of: %2.")
        .arg(code, codes().join(QStringLiteral(", ")));
}

void ProgramLanguage::install(const QString &code)
{
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_toolkitTexts);
    m_code = code;
    QLocale::setDefault(localeOf(code));
    if (code == English) {
        return;
    }
    if (m_toolkitTexts.load(QStringLiteral("qtbase_") + code,
                            QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_toolkitTexts);
    } else {
        qWarning("Qt's own texts stay English: there is no translation to %s.", qUtf8Printable(code));
    }
    if (m_texts.load(m_program + QLatin1Char('_') + code, Folder)) {
        QCoreApplication::installTranslator(&m_texts);
    } else {
        qWarning("The translation to %s cannot be read.", qUtf8Printable(code));
    }
}
