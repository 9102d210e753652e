#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# system-platform.sh SOURCE BUILD TOOLKIT COMPILER PROGRAM ABILITY: builds the plugin and its own tests from a
# copy of the tree without the platform, against the host's installed headers, the installed ability library,
# and a toolkit that has only what the plugin may use (TOOLKIT: the folder of its library; its headers are
# beside this script). Runs those tests, then PROGRAM (tst_othertoolkit.cpp) with that plugin and the bundled
# toolkit; ABILITY is the folder of the scripted ability library. Anything else that the plugin takes from the
# tree's platform is missing here. Keeps the build for the next run.
set -eu
source=$1
build=$2
toolkit=$3
compiler=$4
other_toolkit=$5
ability=$6
here=$(cd "$(dirname "$0")" && pwd)
scratch=$build/system-platform
fail() { echo "FAIL: $*" >&2; exit 1; }

# A pattern of tests not to run there, each with its reason. None so far.
left_out='^$'

rm -rf "$scratch/source" "$scratch/bare/include" "$scratch/desktop" "$scratch/plugin"
mkdir -p "$scratch/source/tests" "$scratch/bare/include" "$scratch/bare/lib"
cmake --install "$build" --prefix "$scratch/desktop" >"$scratch/install.log"
installed=$(dirname "$(find "$scratch/desktop" -name libkelvane-system-ability.so)")
# -p keeps the times, so that unchanged files are not built again.
cp -Rp "$scratch/desktop/include/speakmate" "$scratch/desktop/include/kelvane" "$here/toolkit/include/lumo" "$scratch/bare/include/"
cp -p "$installed/libkelvane-system-ability.so" "$toolkit/liblumo.so" "$scratch/bare/lib/"
for file in CMakeLists.txt cmake data docs plugin sys_semantic_inc intent config contact ui; do
    cp -Rp "$source/$file" "$scratch/source/"
done
for folder in CMakeLists.txt support config contact semantic intent plugin ui; do
    cp -Rp "$source/tests/$folder" "$scratch/source/tests/"
done

# The installed headers, libraries and CMake packages are enough to write a plugin.
use_platform() {
    cmake -G Ninja -S "$here/consumer" -B "$scratch/consumer" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_PREFIX_PATH="$scratch/desktop" || return
    cmake --build "$scratch/consumer" || return
    QT_QPA_PLATFORM=offscreen "$scratch/consumer/consumer"
}
# The same without CMake: the .pc files work in the relocated tree.
use_pkg_config() {
    PKG_CONFIG_PATH=$(dirname "$(find "$scratch/desktop" -name lumo.pc)")
    export PKG_CONFIG_PATH
    flags=$(pkg-config --cflags --libs lumo kelvane-system-ability speakmate) || return
    unset PKG_CONFIG_PATH
    # shellcheck disable=SC2086
    "$compiler" -std=c++17 -fPIC "$here/consumer/main.cpp" -o "$scratch/by-pkg-config" $flags || return
    LD_LIBRARY_PATH=$installed QT_QPA_PLATFORM=offscreen "$scratch/by-pkg-config"
}
use_platform >"$scratch/consumer.log" 2>&1 || { tail -n 40 "$scratch/consumer.log"; fail "a project cannot use the installed platform"; }
use_pkg_config >"$scratch/by-pkg-config.log" 2>&1 ||
    { tail -n 40 "$scratch/by-pkg-config.log"; fail "pkg-config does not find the installed platform"; }

# Not optimised: symbols exist or not either way, and it builds in half the time.
cmake -G Ninja -S "$scratch/source" -B "$scratch/bare-build" -DCONTACT_PLATFORM=system -DBUILD_TESTING=ON \
    -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O0 -DCMAKE_PREFIX_PATH="$scratch/bare" >"$scratch/configure.log" ||
    fail "the plugin cannot be configured"
cmake --build "$scratch/bare-build" >"$scratch/bare-build.log" || { tail -n 40 "$scratch/bare-build.log"; fail "the plugin does not build"; }
cmake --install "$scratch/bare-build" --prefix "$scratch/plugin" >/dev/null
plugin=$(find "$scratch/plugin" -path '*/kelvane-speakmate-plugins/libcontact-plugin.so')
[ -n "$plugin" ] || fail "the plugin is not installed into the host's folder"
[ "$(find "$scratch/plugin" -type f -name '*.so*' | wc -l)" = 1 ] || fail "more libraries than the plugin are installed"

# LD_BIND_NOW: resolve every symbol at load time, not when it is first used.
LD_BIND_NOW=1 ctest --test-dir "$scratch/bare-build" --parallel 2 --output-on-failure --exclude-regex "$left_out" \
    --no-tests=error >"$scratch/tests.log" || { tail -n 200 "$scratch/tests.log"; fail "the plugin's tests fail with this toolkit"; }
tail -n 4 "$scratch/tests.log"

# And the reverse: the same plugin with the bundled toolkit.
mkdir -p "$scratch/bundled"
cp -p "$installed/liblumo.so" "$scratch/bundled/"
LD_BIND_NOW=1 CONTACT_PLUGIN=$plugin TOOLKIT=$scratch/bundled/liblumo.so QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=Asia/Shanghai \
    LD_LIBRARY_PATH="$scratch/bundled:$ability" "$other_toolkit" >"$scratch/other-toolkit.log" 2>&1 ||
    { tail -n 60 "$scratch/other-toolkit.log"; fail "the plugin fails with the bundled toolkit"; }
tail -n 2 "$scratch/other-toolkit.log"
echo "The plugin builds against an installed platform and works there, and beside the bundled one."
