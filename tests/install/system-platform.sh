#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# system-platform.sh SOURCE BUILD TOOLKIT COMPILER PROGRAM ABILITY: builds the plugin and its own tests from a copy of the
# tree without the platform, against the installed headers of the host, the installed ability library and a toolkit that
# has what the plugin may use and nothing else (TOOLKIT, the folder of its library; its headers are beside this script).
# Then runs those tests there, and PROGRAM (tst_othertoolkit.cpp) with that plugin beside the bundled toolkit, where ABILITY
# is the folder of the scripted ability library. Whatever the plugin took from the tree's platform besides would be missing.
# What was built stays for the next time.
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

# Tests that are not run there, as a pattern, each with its reason. None so far.
left_out='^$'

rm -rf "$scratch/source" "$scratch/bare/include" "$scratch/desktop" "$scratch/plugin"
mkdir -p "$scratch/source/tests" "$scratch/bare/include" "$scratch/bare/lib"
cmake --install "$build" --prefix "$scratch/desktop" >"$scratch/install.log"
installed=$(dirname "$(find "$scratch/desktop" -name libkelvane-system-ability.so)")
# -p: an unchanged file is not built again.
cp -Rp "$scratch/desktop/include/speakmate" "$scratch/desktop/include/kelvane" "$here/toolkit/include/lumo" "$scratch/bare/include/"
cp -p "$installed/libkelvane-system-ability.so" "$toolkit/liblumo.so" "$scratch/bare/lib/"
for file in CMakeLists.txt cmake data docs plugin sys_semantic_inc intent config contact ui; do
    cp -Rp "$source/$file" "$scratch/source/"
done
for folder in CMakeLists.txt support config contact semantic intent plugin ui; do
    cp -Rp "$source/tests/$folder" "$scratch/source/tests/"
done

# The headers, the libraries and the packages as they are installed serve whoever writes a plugin.
use_platform() {
    cmake -G Ninja -S "$here/consumer" -B "$scratch/consumer" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_PREFIX_PATH="$scratch/desktop" || return
    cmake --build "$scratch/consumer" || return
    QT_QPA_PLATFORM=offscreen "$scratch/consumer/consumer"
}
# The same without CMake, where the tree was moved to.
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

# Not optimised: what is looked for is there or not, and it builds in half the time.
cmake -G Ninja -S "$scratch/source" -B "$scratch/bare-build" -DCONTACT_PLATFORM=system -DBUILD_TESTING=ON \
    -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O0 -DCMAKE_PREFIX_PATH="$scratch/bare" >"$scratch/configure.log" ||
    fail "the plugin cannot be configured"
cmake --build "$scratch/bare-build" >"$scratch/bare-build.log" || { tail -n 40 "$scratch/bare-build.log"; fail "the plugin does not build"; }
cmake --install "$scratch/bare-build" --prefix "$scratch/plugin" >/dev/null
plugin=$(find "$scratch/plugin" -path '*/kelvane-speakmate-plugins/libcontact-plugin.so')
[ -n "$plugin" ] || fail "the plugin is not installed into the host's folder"
[ "$(find "$scratch/plugin" -type f -name '*.so*' | wc -l)" = 1 ] || fail "more than the plugin is installed"

# Every symbol is looked for at once, and not when it is first needed.
LD_BIND_NOW=1 ctest --test-dir "$scratch/bare-build" --parallel 2 --output-on-failure --exclude-regex "$left_out" \
    --no-tests=error >"$scratch/tests.log" || { tail -n 200 "$scratch/tests.log"; fail "the plugin's tests fail beside this toolkit"; }
tail -n 4 "$scratch/tests.log"

# And the other way round: the same plugin beside the bundled toolkit.
mkdir -p "$scratch/bundled"
cp -p "$installed/liblumo.so" "$scratch/bundled/"
LD_BIND_NOW=1 CONTACT_PLUGIN=$plugin TOOLKIT=$scratch/bundled/liblumo.so QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=Asia/Shanghai \
    LD_LIBRARY_PATH="$scratch/bundled:$ability" "$other_toolkit" >"$scratch/other-toolkit.log" 2>&1 ||
    { tail -n 60 "$scratch/other-toolkit.log"; fail "the plugin fails beside the bundled toolkit"; }
tail -n 2 "$scratch/other-toolkit.log"
echo "The plugin builds against an installed platform and works there, and beside the bundled one."
