// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "options.h"

#include <programlanguage.h>

#include <QCommandLineParser>

namespace {

/// Its texts are in the language of the moment in which it is made.
class Parser
{
public:
    Parser()
    {
        m_parser.setApplicationDescription(
            Options::tr("Contacts and video conferences, for the user and for the voice assistant."));
        m_parser.addHelpOption();
        m_parser.addVersionOption();
        m_parser.addOptions({service, reminders, developer, exported, conference, language});
    }

    QCommandLineParser *operator->() { return &m_parser; }
    QCommandLineParser &operator*() { return m_parser; }

    const QCommandLineOption service{
        QStringLiteral("service"),
        Options::tr("Serve other programs and show no window until it is asked for.")};
    const QCommandLineOption reminders{
        QStringLiteral("reminders"),
        Options::tr("As --service, for the start of a session: end at once when reminders are switched off "
                    "or the application has never been used.")};
    const QCommandLineOption developer{
        QStringLiteral("developer"),
        Options::tr("Put the administration on the session bus, which shows every passcode and can empty "
                    "everything, and show what only a developer needs.")};
    const QCommandLineOption exported{
        QStringLiteral("export"),
        Options::tr("Write one of your conferences to an iCalendar file, '-' for the standard output, and "
                    "end."),
        QStringLiteral("file")};
    const QCommandLineOption conference{
        QStringLiteral("conference"),
        Options::tr("The number of the conference to export; without it the running or the next one."),
        QStringLiteral("number")};
    const QCommandLineOption language = ProgramLanguage::option(QStringLiteral("code"));

private:
    QCommandLineParser m_parser;
};

} // namespace

Options Options::read(const QCoreApplication &application, ProgramLanguage &language)
{
    Options options;
    {
        Parser parser; // the other options are looked at in the language that is chosen here
        parser->parse(QCoreApplication::arguments());
        options.usageError = language.follow(*parser);
    }
    Parser parser;
    parser->process(application);
    if (parser->isSet(parser.exported)) {
        options.exportFile = parser->value(parser.exported);
    }
    options.conference = parser->value(parser.conference);
    if (parser->isSet(parser.reminders)) {
        options.starter = Starter::Login;
    } else if (parser->isSet(parser.service)) {
        options.starter = Starter::Bus;
    }
    options.audience = parser->isSet(parser.developer) ? Audience::Developers : Audience::Users;
    return options;
}
