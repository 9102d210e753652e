// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "appearancemenus.h"

#include "appearance.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace devhost {

namespace {

void buildThemeMenu(QMenu &menu, Appearance &appearance)
{
    const struct
    {
        QString text;
        Appearance::Theme theme;
    } themes[] = {
        {QCoreApplication::translate("devhost::AppearanceMenus", "Follow the System"), Appearance::System},
        {QCoreApplication::translate("devhost::AppearanceMenus", "Light"), Appearance::Light},
        {QCoreApplication::translate("devhost::AppearanceMenus", "Dark"), Appearance::Dark}};
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
        QCoreApplication::translate("devhost::AppearanceMenus", "Larger"), &menu,
        [&appearance] { appearance.setFontStep(appearance.fontStep() + 1); },
        QKeySequence(QKeySequence::ZoomIn));
    menu.addAction(
        QCoreApplication::translate("devhost::AppearanceMenus", "Smaller"), &menu,
        [&appearance] { appearance.setFontStep(appearance.fontStep() - 1); },
        QKeySequence(QKeySequence::ZoomOut));
    menu.addAction(
        QCoreApplication::translate("devhost::AppearanceMenus", "Original Size"), &menu,
        [&appearance] { appearance.setFontStep(0); }, QKeySequence(int(Qt::CTRL) + int(Qt::Key_0)));
}

} // namespace

void addAppearanceMenus(QMenu &menu, Appearance &appearance)
{
    buildThemeMenu(*menu.addMenu(QCoreApplication::translate("devhost::AppearanceMenus", "&Theme")),
                   appearance);
    buildFontMenu(*menu.addMenu(QCoreApplication::translate("devhost::AppearanceMenus", "&Font Size")),
                  appearance);
}

} // namespace devhost
