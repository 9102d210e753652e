#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# check_module.sh PLUGIN: what the plugin's file shows to a loader.
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
check "of Qt it needs Core, Gui and Widgets, nothing more" \
    "$(dynamic | sed -n 's/.*(NEEDED).*\[\(libQt5.*\)\.so\.5\].*/\1/p' | LC_ALL=C sort)" \
    "libQt5Core
libQt5Gui
libQt5Widgets"
check "it stays in memory once loaded" "$(dynamic | grep -c 'Flags:.*NODELETE')" 1
exit $failed
