// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "options.h"

#include <programlanguage.h>

#include <QCommandLineParser>

namespace devhost {

namespace {

class Parser
{
public:
    Parser()
    {
        m_parser.setApplicationDescription(
            Options::tr("Development host for plugins of the voice assistant: a window to talk to a plugin "
                        "and to see what it does, or the same in a terminal."));
        m_parser.addOptions({batch, converse, script, service, plugin, screenshots, contacts, theme, language,
                             verbose, help, version});
        m_parser.addPositionalArgument(QStringLiteral("file"),
                                       Options::tr("With --converse: the conversation to play. Without it, "
                                                   "or with \"-\", sentences come from standard input."),
                                       QStringLiteral("[file]"));
    }

    QCommandLineParser *operator->() { return &m_parser; }
    QCommandLineParser &operator*() { return m_parser; }

    const QCommandLineOption batch{QStringLiteral("batch"),
                                   Options::tr("One semantic JSON per line in FILE (\"-\": standard input), "
                                               "one JSON reply per line on standard output."),
                                   QStringLiteral("FILE")};
    const QCommandLineOption converse{QStringLiteral("converse"),
                                      Options::tr("A conversation in the terminal: one sentence or semantic "
                                                  "JSON per line.")};
    const QCommandLineOption script{QStringLiteral("script"),
                                    Options::tr("Play the conversation in FILE in the window; with "
                                                "--screenshots, picture the window after each turn and end."),
                                    QStringLiteral("FILE")};
    const QCommandLineOption service{
        QStringLiteral("service"),
        Options::tr("Serve the search of the desktop's launchers, without a window until a reply needs "
                    "one.")};
    const QCommandLineOption plugin{QStringLiteral("plugin"),
                                    Options::tr("The plugin's file, or its name in the installed folder "
                                                "(contact-plugin unless told otherwise)."),
                                    QStringLiteral("PATH"), QStringLiteral("contact-plugin")};
    const QCommandLineOption screenshots{QStringLiteral("screenshots"),
                                         Options::tr("Write a PNG of every card to DIR."),
                                         QStringLiteral("DIR")};
    const QCommandLineOption contacts{QStringLiteral("contacts"),
                                      Options::tr("Names that sentences may mention, one per line of FILE."),
                                      QStringLiteral("FILE")};
    const QCommandLineOption theme{QStringLiteral("theme"),
                                   Options::tr("light, dark or system. The window remembers its own choice."),
                                   QStringLiteral("THEME")};
    const QCommandLineOption language = ProgramLanguage::option(QStringLiteral("CODE"));
    const QCommandLineOption verbose{QStringLiteral("verbose"),
                                     Options::tr("Also write the log, the plugin's too, to standard error.")};
    const QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, Options::tr("This text.")};
    const QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                                     Options::tr("The version.")};

private:
    QCommandLineParser m_parser;
};

Options::Mode modeOf(Parser &parser)
{
    if (parser->isSet(parser.help)) {
        return Options::Mode::Help;
    }
    if (parser->isSet(parser.version)) {
        return Options::Mode::Version;
    }
    if (parser->isSet(parser.batch)) {
        return Options::Mode::Batch;
    }
    if (parser->isSet(parser.converse)) {
        return Options::Mode::Converse;
    }
    if (parser->isSet(parser.service)) {
        return Options::Mode::Service;
    }
    return Options::Mode::Window;
}

bool readTheme(const QString &word, Options::Theme &theme)
{
    const struct
    {
        QLatin1String word;
        Options::Theme theme;
    } themes[] = {{QLatin1String("light"), Options::Theme::Light},
                  {QLatin1String("dark"), Options::Theme::Dark},
                  {QLatin1String("system"), Options::Theme::System}};
    for (const auto &known : themes) {
        if (word == known.word) {
            theme = known.theme;
            return true;
        }
    }
    return false;
}

} // namespace

Options Options::read(const QStringList &arguments)
{
    Parser parser;
    Options options;
    if (!parser->parse(arguments)) {
        options.usageError = parser->errorText();
        return options;
    }
    options.mode = modeOf(parser);
    options.plugin = parser->value(parser.plugin);
    options.screenshots = parser->value(parser.screenshots);
    options.contacts = parser->value(parser.contacts);
    options.isVerbose = parser->isSet(parser.verbose);
    const QStringList files = parser->positionalArguments();
    if (options.mode == Mode::Batch) {
        options.input = parser->value(parser.batch);
    } else if (options.mode == Mode::Window) {
        options.input = parser->value(parser.script);
    } else if (options.mode == Mode::Converse) {
        options.input = files.value(0, QStringLiteral("-"));
    }

    const int modes = int(parser->isSet(parser.batch)) + int(parser->isSet(parser.converse)) +
                      int(parser->isSet(parser.script)) + int(parser->isSet(parser.service));
    if (modes > 1) {
        options.usageError = tr("--batch, --converse, --script and --service exclude each other.");
    } else if (files.size() > (options.mode == Mode::Converse ? 1 : 0)) {
        options.usageError = tr("Unexpected argument '%1'.").arg(files.last());
    } else if (parser->isSet(parser.theme) && !readTheme(parser->value(parser.theme), options.theme)) {
        options.usageError = tr("--theme takes light, dark or system.");
    }
    return options;
}

Options Options::read(const QStringList &arguments, ProgramLanguage &language)
{
    Parser parser;
    parser->parse(arguments);
    const QString problem = language.follow(*parser);
    Options options = read(arguments);
    if (!problem.isEmpty()) {
        options.usageError = problem;
    }
    return options;
}

QString Options::helpText()
{
    Parser parser;
    return parser->helpText();
}

bool Options::wantsWindow(const QStringList &arguments)
{
    const Mode mode = read(arguments).mode;
    return mode == Mode::Window || mode == Mode::Service;
}

} // namespace devhost
