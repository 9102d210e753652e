#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# cmake-packages.sh SOURCE BUILD COMPILER: builds the plugin with CONTACT_PLATFORM=system through the CMake packages of an
# installed platform. system-platform.sh takes the other way, from headers and libraries that no package describes. Keeps the
# build for the next run.
set -eu
source=$1
build=$2
compiler=$3
scratch=$build/cmake-packages
fail() { echo "FAIL: $*" >&2; exit 1; }

rm -rf "$scratch/desktop"
mkdir -p "$scratch"
scratch=$(cd "$scratch" && pwd)
cmake --install "$build" --prefix "$scratch/desktop" >"$scratch/install.log"

# Not optimised, which is faster to build: what is missing is missing either way.
cmake -G Ninja -S "$source" -B "$scratch/build" -DCONTACT_PLATFORM=system -DBUILD_TESTING=OFF -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O0 -DCMAKE_PREFIX_PATH="$scratch/desktop" >"$scratch/configure.log" 2>&1 ||
    { tail -n 40 "$scratch/configure.log"; fail "the plugin cannot be configured"; }
for package in Speakmate::speakmate=Speakmate Lumo::lumo=Lumo Kelvane::system-ability=KelvaneSystemAbility; do
    grep -q -- "-- ${package%=*} of $scratch/desktop/.*/${package#*=}Config.cmake\$" "$scratch/configure.log" ||
        { cat "$scratch/configure.log"; fail "the package ${package#*=} is installed and not used"; }
done
cmake --build "$scratch/build" --target contact-plugin >"$scratch/build.log" 2>&1 ||
    { tail -n 40 "$scratch/build.log"; fail "the plugin does not build"; }
plugin=$scratch/build/plugin/libcontact-plugin.so
for library in liblumo.so libkelvane-system-ability.so; do
    readelf --dynamic --wide "$plugin" | grep -q "NEEDED.*\[$library" || fail "the plugin is not linked with $library"
done
LD_LIBRARY_PATH=$(dirname "$(find "$scratch/desktop" -name liblumo.so)") ldd -r "$plugin" >"$scratch/ldd" 2>&1 ||
    { cat "$scratch/ldd"; fail "the plugin cannot be loaded"; }
! grep -E 'undefined symbol|not found' "$scratch/ldd" || fail "the plugin lacks symbols"
echo "The plugin builds through the installed CMake packages."
