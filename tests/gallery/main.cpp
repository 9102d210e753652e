// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardframe.h"
#include "cardscenes.h"

#include <lumo/lguiapplicationhelper.h>
#include <lumo/lstyle.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>
#include <QtTest>

/**
 * @file
 * Paints every state of the cards for people to look at: one PNG file per scene and theme, at the scale set
 * by QT_SCALE_FACTOR.
 */

namespace {

struct Theme
{
    const char *name;
    LGuiApplicationHelper::ColorType type;
};

constexpr Theme Themes[] = {
    {"light", LGuiApplicationHelper::LightType},
    {"dark", LGuiApplicationHelper::DarkType},
};

QString fileName(const CardScene &scene, const Theme &theme)
{
    return QStringLiteral("%1-%2.png").arg(QString::fromLatin1(scene.name), QString::fromLatin1(theme.name));
}

bool paint(const CardScene &scene, const QString &path)
{
    CardFrame frame(scene.make());
    frame.show();
    frame.activateWindow();
    if (!QTest::qWaitForWindowActive(&frame)) {
        return false;
    }
    if (scene.act != nullptr) {
        scene.act(frame.card());
    }
    // Widgets that a button removed from its card are deleted later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    frame.fit();
    return frame.grab().save(path);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setStyle(new LStyle);
    QApplication::setFont(QFont(QStringLiteral("Noto Sans CJK SC")));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Paints the states of the conference cards."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where the PNG files go."));
    parser.addPositionalArgument(QStringLiteral("names"),
                                 QStringLiteral("Only these files, as \"create-light.png\"."),
                                 QStringLiteral("[names...]"));
    const QCommandLineOption list(QStringLiteral("list"),
                                  QStringLiteral("Only say which files there would be."));
    parser.addOption(list);
    parser.process(application);
    QStringList wanted = parser.positionalArguments();
    const bool onlyList = parser.isSet(list);
    if (wanted.isEmpty() && !onlyList) {
        parser.showHelp(2);
    }
    const QDir folder(wanted.isEmpty() ? QStringLiteral(".") : wanted.takeFirst());
    if (!folder.mkpath(QStringLiteral("."))) {
        qFatal("Cannot make the folder %s", qPrintable(folder.path()));
    }
    const bool all = wanted.isEmpty();

    QTextStream out(stdout);
    const QVector<CardScene> scenes = cardScenes();
    for (const Theme &theme : Themes) {
        LGuiApplicationHelper::instance()->setPaletteType(theme.type);
        for (const CardScene &scene : scenes) {
            const QString name = fileName(scene, theme);
            const bool isWanted = all || wanted.removeAll(name) > 0;
            if (!isWanted) {
                continue;
            }
            if (!onlyList && !paint(scene, folder.filePath(name))) {
                qFatal("Cannot paint %s", qPrintable(name));
            }
            out << name << '\n';
        }
    }
    if (!wanted.isEmpty()) {
        qCritical("There is no picture %s", qPrintable(wanted.join(QLatin1String(", "))));
        return 1;
    }
    return 0;
}
