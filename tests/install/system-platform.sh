#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# system-platform.sh SOURCE BUILD: installs the bundled platform from BUILD, then builds the plugin alone against it, from
# a copy of the tree without the platform. What the plugin takes from the tree besides would be missing.
set -eu
source=$1
build=$2
scratch=$build/system-platform
rm -rf "$scratch"
mkdir -p "$scratch/source"
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$scratch/desktop" >"$scratch/install.log"
for file in CMakeLists.txt cmake data plugin sys_semantic_inc intent config contact ui; do
    cp -R "$source/$file" "$scratch/source/"
done
cmake -G Ninja -S "$scratch/source" -B "$scratch/build" -DCONTACT_PLATFORM=system -DBUILD_TESTING=OFF \
    -DCMAKE_PREFIX_PATH="$scratch/desktop" >"$scratch/configure.log"
cmake --build "$scratch/build" >"$scratch/build.log" || { tail -n 40 "$scratch/build.log"; fail "the plugin does not build"; }
cmake --install "$scratch/build" --prefix "$scratch/plugin" >/dev/null

plugin=$(find "$scratch/plugin" -path '*/kelvane-speakmate-plugins/libcontact-plugin.so')
[ -n "$plugin" ] || fail "the plugin is not installed into the host's folder"
[ "$(find "$scratch/plugin" -type f -name '*.so*' | wc -l)" = 1 ] || fail "more than the plugin is installed"
needed=$(readelf -d "$plugin" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
for library in libkelvane-system-ability.so liblumo.so; do
    echo "$needed" | grep -qx "$library" || fail "the plugin does not need $library, but: $needed"
done
if echo "$needed" | grep -E 'libQt5' | grep -vE 'libQt5(Core|Gui|Widgets)\.so'; then
    fail "the plugin needs more of Qt than it may"
fi
echo "The plugin builds against an installed platform and needs:" $needed
