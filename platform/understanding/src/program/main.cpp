// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/answers.h"
#include "dialogue/semanticwriter.h"
#include "meaning/interpreter.h"
#include "program/linesplitter.h"
#include "words/contactindex.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <array>
#include <cerrno>
#include <cstdio>
#include <optional>

#include <unistd.h>

using namespace understanding;

namespace {

constexpr int ExitWrongUsage = 2;
constexpr int ExitFailed = 1;

struct Options
{
    QDateTime now; ///< if invalid, each line's current time
    QStringList contacts;
};

int complain(const QString &text, int exitCode)
{
    std::fprintf(stderr, "speakmate-understand: %s\n", qPrintable(text));
    return exitCode;
}

QByteArray answerTo(const QByteArray &line, const ContactIndex &contacts, const QDateTime &now)
{
    const QString sentence = QString::fromUtf8(line);
    Outcome outcome;
    // Invalid UTF-8 would come back as names.
    if (sentence.contains(QChar::ReplacementCharacter) && sentence.size() <= LongestSentence) {
        outcome.answer = QStringLiteral("not-understood");
    } else {
        outcome = interpret(sentence, now, contacts).outcome;
    }
    const QString json =
        outcome.isCommand() ? commandJson(outcome) : answerJson(answerText(outcome, now.date()));
    return json.toUtf8() + '\n';
}

bool writeAll(const QByteArray &bytes)
{
    return std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout) ==
               static_cast<std::size_t>(bytes.size()) &&
           std::fflush(stdout) == 0;
}

/// Answers each line as soon as it arrives, so that the program works through pipes.
int run(const Options &options)
{
    const ContactIndex contacts(options.contacts);
    LineSplitter lines;
    std::array<char, 65536> buffer{};
    const auto moment = [&] {
        return options.now.isValid() ? options.now : QDateTime::currentDateTime();
    };
    while (true) {
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return complain(QStringLiteral("cannot read the sentences: %1").arg(qt_error_string(errno)),
                            ExitFailed);
        }
        QByteArray answers;
        if (count == 0) {
            QByteArray rest;
            if (lines.takeRest(rest)) {
                answers = answerTo(rest, contacts, moment());
            }
            return writeAll(answers) ? 0 : ExitFailed;
        }
        const std::vector<QByteArray> complete = lines.add(buffer.data(), count);
        for (const QByteArray &line : complete) {
            answers += answerTo(line, contacts, moment());
        }
        if (!writeAll(answers)) {
            return ExitFailed;
        }
    }
}

std::optional<QStringList> readNames(const QString &fileName, QString &error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString());
        return std::nullopt;
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("speakmate-understand"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SPEAKMATE_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reads Chinese sentences about conferences, one a line, and prints the semantic JSON of "
        "each, one a line. Each sentence stands alone."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption now(
        QStringLiteral("now"),
        QStringLiteral("Resolve times against this local time instead of the clock's."),
        QStringLiteral("yyyy-MM-ddThh:mm:ss"));
    const QCommandLineOption contacts(QStringLiteral("contacts"),
                                      QStringLiteral("The known names, one a line, in UTF-8."),
                                      QStringLiteral("FILE"));
    parser.addOptions({now, contacts});
    parser.process(application);

    if (!parser.positionalArguments().isEmpty()) {
        return complain(QStringLiteral("sentences are read from standard input, not from arguments"),
                        ExitWrongUsage);
    }
    Options options;
    if (parser.isSet(now)) {
        options.now = QDateTime::fromString(parser.value(now), Qt::ISODate);
        if (!options.now.isValid()) {
            return complain(QStringLiteral("--now wants a time like 2026-03-07T10:20:00"), ExitWrongUsage);
        }
        options.now = options.now.toLocalTime();
    }
    if (parser.isSet(contacts)) {
        QString error;
        const std::optional<QStringList> names = readNames(parser.value(contacts), error);
        if (!names) {
            return complain(error, ExitFailed);
        }
        options.contacts = *names;
    }
    return run(options);
}
