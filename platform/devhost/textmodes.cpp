// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "textmodes.h"

#include "batch.h"
#include "knownnames.h"
#include "terminalconversation.h"

#include <QCoreApplication>
#include <QFile>

#include <fstream>
#include <iostream>

#include <unistd.h>

namespace devhost {

namespace {

/// As the man page says: colour on a terminal unless NO_COLOR is set.
bool isColoured()
{
    return isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR") &&
           qgetenv("TERM") != QByteArrayLiteral("dumb");
}

int complain(const QString &message)
{
    std::cerr << "speakmate-devhost: " << qUtf8Printable(message) << std::endl;
    return WrongUsage;
}

} // namespace

bool readContactNames(const QString &file, QStringList &names)
{
    if (file.isEmpty()) {
        return true;
    }
    std::ifstream input(QFile::encodeName(file).constData(), std::ios::binary);
    if (!input) {
        return false;
    }
    constexpr int longestName = 400;
    LineReader reader(input, longestName);
    QString line;
    for (LineReader::Outcome outcome = reader.read(line); outcome != LineReader::End;
         outcome = reader.read(line)) {
        const QString name = line.trimmed();
        if (!name.isEmpty() && !name.startsWith(QLatin1Char('#'))) {
            names.append(name);
        }
    }
    return true;
}

ExitStatus runTextMode(const Options &options, PluginHost &host, LogRecorder &logs)
{
    std::ios::sync_with_stdio(false);
    std::ifstream file;
    const bool isStandardInput = options.input == QLatin1String("-");
    if (!isStandardInput) {
        file.open(QFile::encodeName(options.input).constData(), std::ios::binary);
        if (!file || file.peek() == std::ifstream::traits_type::eof()) {
            // A folder can be opened but not read; an empty file has nothing to answer.
            if (!file.eof() || !QFile::exists(options.input)) {
                complain(Options::tr("%1 cannot be read.").arg(options.input));
                return WrongUsage;
            }
        }
        file.clear();
    }
    std::istream &input = isStandardInput ? std::cin : file;
    const Screenshots screenshots(options.screenshots);
    if (!screenshots.prepare()) {
        complain(Options::tr("The folder %1 cannot be created.").arg(options.screenshots));
        return WrongUsage;
    }
    QStringList names;
    if (!readContactNames(options.contacts, names)) {
        complain(Options::tr("%1 cannot be read.").arg(options.contacts));
        return WrongUsage;
    }

    ExitStatus status = EverythingAnswered;
    const auto end = [&status](ExitStatus ended) {
        status = ended;
        QCoreApplication::quit();
    };
    if (options.mode == Options::Mode::Batch) {
        Batch batch(host, {input, std::cout, std::cerr}, screenshots);
        QObject::connect(&batch, &Batch::finished, &batch, end);
        batch.start();
        QCoreApplication::exec();
        return status;
    }
    Conversation conversation(host, logs);
    KnownNames knownNames;
    constexpr int longestWaitMsecs = 500;
    conversation.setContactNames(names + knownNames.firstNames(longestWaitMsecs));
    QObject::connect(
        &knownNames, &KnownNames::changed, &conversation,
        [&conversation, names](const QStringList &known) { conversation.setContactNames(names + known); });
    const bool isPrompting = isStandardInput && isatty(STDIN_FILENO) == 1;
    TerminalConversation terminal(conversation, {input, std::cout, std::cerr, isColoured(), isPrompting},
                                  screenshots);
    QObject::connect(&terminal, &TerminalConversation::finished, &terminal, end);
    terminal.start();
    QCoreApplication::exec();
    return status;
}

} // namespace devhost
