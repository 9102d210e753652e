// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowmode.h"

#include "appearance.h"
#include "knownnames.h"
#include "mainwindow.h"
#include "textmodes.h"
#include "warmup.h"
#include "windowscript.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

#include <fstream>
#include <iostream>

namespace devhost {

namespace {

constexpr int IdleMsecs = 300;

void complain(const QString &message)
{
    std::cerr << "speakmate-devhost: " << qUtf8Printable(message) << std::endl;
}

void choose(Appearance &appearance, Options::Theme theme)
{
    switch (theme) {
    case Options::Theme::Remembered:
        return;
    case Options::Theme::System:
        return appearance.setTheme(Appearance::System);
    case Options::Theme::Light:
        return appearance.setTheme(Appearance::Light);
    case Options::Theme::Dark:
        return appearance.setTheme(Appearance::Dark);
    }
}

} // namespace

int runWindow(const Options &options, PluginHost &host, LogRecorder &logs)
{
    QStringList names;
    if (!readContactNames(options.contacts, names)) {
        complain(Options::tr("%1 cannot be read.").arg(options.contacts));
        return WrongUsage;
    }
    std::ifstream script;
    if (!options.input.isEmpty()) {
        script.open(QFile::encodeName(options.input).constData(), std::ios::binary);
        if (!script || (!options.screenshots.isEmpty() && !QDir().mkpath(options.screenshots))) {
            complain(Options::tr("%1 cannot be read, or the folder for the pictures cannot be created.")
                         .arg(options.input));
            return WrongUsage;
        }
    }
    Appearance appearance;
    choose(appearance, options.theme);
    Conversation conversation(host, logs);
    conversation.setContactNames(names);
    const KnownNames knownNames;
    QObject::connect(
        &knownNames, &KnownNames::changed, &conversation,
        [&conversation, names](const QStringList &known) { conversation.setContactNames(names + known); });
    MainWindow window(conversation, appearance);
    if (!host.isLoaded()) {
        window.showProblem(host.problem().toText());
    }
    window.show();
    QTimer::singleShot(IdleMsecs, &window, &warmUp);

    int status = EverythingAnswered;
    WindowScript player(window, conversation, script, options.screenshots);
    if (script.is_open()) {
        QObject::connect(&player, &WindowScript::finished, &player, [&status](bool isFine) {
            status = isFine ? EverythingAnswered : SomethingBroken;
            QApplication::quit();
        });
        player.start();
    }
    QApplication::exec();
    // Hides the window first: a pending request may take a moment to finish.
    window.hide();
    return status;
}

} // namespace devhost
