// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "appearancemenus.h"

#include "appearance.h"

#include <QActionGroup>
#include <QMenu>

namespace devhost {

namespace {

void buildThemeMenu(QMenu &menu, Appearance &appearance)
{
    const struct
    {
        QString text;
        Appearance::Theme theme;
    } themes[] = {{QStringLiteral("跟随系统"), Appearance::System},
                  {QStringLiteral("浅色"), Appearance::Light},
                  {QStringLiteral("深色"), Appearance::Dark}};
    auto *group = new QActionGroup(&menu);
    for (const auto &entry : themes) {
        QAction *action = menu.addAction(entry.text);
        action->setCheckable(true);
        action->setChecked(entry.theme == appearance.theme());
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &menu,
                         [&appearance, theme = entry.theme] { appearance.setTheme(theme); });
    }
}

void buildFontMenu(QMenu &menu, Appearance &appearance)
{
    menu.addAction(
        QStringLiteral("放大"), &menu, [&appearance] { appearance.setFontStep(appearance.fontStep() + 1); },
        QKeySequence(QKeySequence::ZoomIn));
    menu.addAction(
        QStringLiteral("缩小"), &menu, [&appearance] { appearance.setFontStep(appearance.fontStep() - 1); },
        QKeySequence(QKeySequence::ZoomOut));
    menu.addAction(
        QStringLiteral("原来大小"), &menu, [&appearance] { appearance.setFontStep(0); },
        QKeySequence(int(Qt::CTRL) + int(Qt::Key_0)));
}

} // namespace

void addAppearanceMenus(QMenu &menu, Appearance &appearance)
{
    buildThemeMenu(*menu.addMenu(QStringLiteral("主题(&T)")), appearance);
    buildFontMenu(*menu.addMenu(QStringLiteral("字号(&F)")), appearance);
}

} // namespace devhost
