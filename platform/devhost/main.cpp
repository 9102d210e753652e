// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "abilitycall.h"
#include "desklanguage.h"
#include "hostapplication.h"
#include "logrecorder.h"
#include "options.h"
#include "pluginhost.h"
#include "servicemode.h"
#include "textmodes.h"
#include "windowmode.h"

#include <lumo/lguiapplicationhelper.h>

#include <QLoggingCategory>

#include <iostream>

using namespace devhost;

namespace {

/// The text modes show no window and need no display; a platform chosen by the user wins.
void choosePlatform(bool wantsWindow)
{
    if (!wantsWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
    }
}

/// A display server is named; Qt finds out whether it answers.
bool isDisplayNamed()
{
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void complain(const QString &message)
{
    std::cerr << "speakmate-devhost: " << qUtf8Printable(message) << std::endl;
}

void complainOfUsage(const QString &message)
{
    complain(Options::tr("%1 See --help.").arg(message));
}

/// QApplication would end the process without a display, with a message in English.
int complainOfDisplay(const QStringList &arguments, char *programName)
{
    int count = 1;
    char *values[] = {programName, nullptr};
    const QCoreApplication application(count, values);
    ProgramLanguage language = deskLanguage();
    const QString usageError = Options::read(arguments, language).usageError;
    complainOfUsage(usageError.isEmpty()
                        ? Options::tr("There is no display to open a window on. Use --converse or --batch.")
                        : usageError);
    return WrongUsage;
}

void applyTheme(Options::Theme theme)
{
    auto *helper = LGuiApplicationHelper::instance();
    if (theme == Options::Theme::Light) {
        helper->setPaletteType(LGuiApplicationHelper::LightType);
    } else if (theme == Options::Theme::Dark) {
        helper->setPaletteType(LGuiApplicationHelper::DarkType);
    }
}

int run(const Options &options)
{
    LogRecorder logs(options.isVerbose ? LogRecorder::Terminal::Verbose : LogRecorder::Terminal::Quiet);
    QLoggingCategory::setFilterRules(AbilityCall::category() + QStringLiteral(".debug=true"));
    PluginHost host;
    host.load(options.plugin);
    if (options.mode == Options::Mode::Window) {
        return runWindow(options, host, logs);
    }
    if (!host.isLoaded()) {
        complain(host.problem().toText());
        return NoPlugin;
    }
    if (options.mode == Options::Mode::Service) {
        return runService(options, host, logs);
    }
    // Pictures of cards look the same everywhere, whatever desktop the host runs on.
    applyTheme(options.theme == Options::Theme::Remembered ? Options::Theme::Light : options.theme);
    return runTextMode(options, host, logs);
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const bool wantsWindow = Options::wantsWindow(arguments);
    choosePlatform(wantsWindow);
    if (wantsWindow && !isDisplayNamed()) {
        return complainOfDisplay(arguments, argv[0]);
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    const HostApplication application(argv[0]);
    ProgramLanguage language = deskLanguage();
    const Options options = Options::read(arguments, language);
    QGuiApplication::setApplicationDisplayName(HostApplication::tr("Voice Assistant"));
    if (!options.usageError.isEmpty()) {
        complainOfUsage(options.usageError);
        return WrongUsage;
    }
    switch (options.mode) {
    case Options::Mode::Help:
        std::cout << qUtf8Printable(Options::helpText());
        return EverythingAnswered;
    case Options::Mode::Version:
        std::cout << "speakmate-devhost " DEVHOST_VERSION << std::endl;
        return EverythingAnswered;
    default:
        return run(options);
    }
}
