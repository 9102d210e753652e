#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# check_module.sh PLUGIN: checks what the plugin's file shows to a loader.
set -eu
plugin=$1
failed=0

check() { # check WHAT ACTUAL EXPECTED
    if [ "$2" != "$3" ]; then
        printf 'FAIL %s\n--- is:\n%s\n--- should be:\n%s\n' "$1" "$2" "$3"
        failed=1
    fi
}
dynamic() { readelf --dynamic --wide "$plugin"; }

check "the module's file name" "$(basename "$plugin")" libcontact-plugin.so
check "only Qt's two entry points are exported" \
    "$(nm --dynamic --defined-only --format=posix "$plugin" | cut -d' ' -f1 | LC_ALL=C sort)" \
    "qt_plugin_instance
qt_plugin_query_metadata"
check "it needs the two platform libraries, under exactly these names" \
    "$(dynamic | sed -n 's/.*(NEEDED).*\[\(libkelvane.*\|liblumo.*\)\].*/\1/p' | LC_ALL=C sort)" \
    "libkelvane-system-ability.so
liblumo.so"
check "it needs only Core, Gui and Widgets of Qt" \
    "$(dynamic | sed -n 's/.*(NEEDED).*\[\(libQt5.*\)\.so\.5\].*/\1/p' | LC_ALL=C sort)" \
    "libQt5Core
libQt5Gui
libQt5Widgets"
# Symbols without a version are neither Qt's nor the C library's, so they come from the desktop. Every build
# of the desktop has those listed here, including the meta object, vtable and typeinfo of each class that the
# plugin derives from.
check "it uses exactly the documented symbols of the desktop" \
    "$(nm --dynamic --undefined-only "$plugin" | sed -n 's/^ *U \([^@]*\)$/\1/p' | c++filt | LC_ALL=C sort -u)" \
    "KelvaneAbilityManager::createContact()
KelvaneAbilityManager::instance()
LComboBox::LComboBox(QWidget*)
LComboBox::qt_metacall(QMetaObject::Call, int, void**)
LComboBox::qt_metacast(char const*)
LComboBox::staticMetaObject
LCommandLinkButton::LCommandLinkButton(QString const&, QWidget*)
LCommandLinkButton::qt_metacall(QMetaObject::Call, int, void**)
LCommandLinkButton::qt_metacast(char const*)
LCommandLinkButton::staticMetaObject
LFontSizeManager::get(LFontSizeManager::SizeType, QFont const&) const
LFontSizeManager::instance()
LGuiApplicationHelper::instance()
LGuiApplicationHelper::themeType() const
LLabel::LLabel(QWidget*)
LLabel::qt_metacall(QMetaObject::Call, int, void**)
LLabel::qt_metacast(char const*)
LLabel::staticMetaObject
LSpinBox::LSpinBox(QWidget*)
LSpinBox::setEnabledEmbedStyle(bool)
LSuggestButton::LSuggestButton(QString const&, QWidget*)
typeinfo for LComboBox
typeinfo for LCommandLinkButton
typeinfo for LLabel
vtable for LComboBox
vtable for LCommandLinkButton
vtable for LLabel"
check "it stays in memory once loaded" "$(dynamic | grep -c 'Flags:.*NODELETE')" 1
exit $failed
