// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kelvane/contactability.h>
#include <kelvane/kelvaneabilitymanager.h>
#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>
#include <lumo/lfontsizemanager.h>
#include <lumo/lguiapplicationhelper.h>
#include <lumo/llabel.h>
#include <lumo/lspinbox.h>
#include <lumo/lsuggestbutton.h>
#include <speakmate/iservice.h>
#include <speakmate/iserviceplugin.h>
#include <speakmate/reply.h>

#include <QApplication>

#include <memory>

/// Uses a bit of every header. Returns 0 if all of it works.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    LLabel label(QStringLiteral("text"), &window);
    const LSuggestButton suggested(QStringLiteral("text"), &window);
    const LCommandLinkButton link(QStringLiteral("text"), &window);
    LSpinBox spinBox(&window);
    spinBox.setEnabledEmbedStyle(true);
    const LComboBox comboBox(&window);
    label.setFont(LFontSizeManager::instance()->get(LFontSizeManager::T6, label.font()));
    const bool knowsTheme =
        LGuiApplicationHelper::instance()->themeType() == LGuiApplicationHelper::LightType ||
        LGuiApplicationHelper::instance()->themeType() == LGuiApplicationHelper::DarkType;
    const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
    const Reply reply(0, label.text(), Reply::Texts);
    return knowsTheme && ability != nullptr && reply.displayText == label.text() ? 0 : 1;
}
