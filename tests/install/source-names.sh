#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# source-names.sh SOURCE SCRATCH COMPILER: builds a one-file project with the tree's compiler settings in
# several build folders, with and without a ccache base directory, and checks the file name that log records
# would carry.
set -eu
source=$1
scratch=$2
compiler=$3
if ! command -v ccache >/dev/null; then
    echo "SKIPPED: ccache is not installed, and without it the compiler gets full paths"
    exit 77
fi
rm -rf "$scratch"
mkdir -p "$scratch/tree/folder" "$scratch/cache"
scratch=$(cd "$scratch" && pwd)
cat >"$scratch/tree/CMakeLists.txt" <<TEXT
cmake_minimum_required(VERSION 3.16)
project(names LANGUAGES CXX)
include("$source/cmake/CompilerSettings.cmake")
set(CMAKE_AUTOMOC OFF)
set(CMAKE_AUTORCC OFF)
add_executable(names folder/names.cpp)
TEXT
cat >"$scratch/tree/folder/names.cpp" <<'TEXT'
#include <cstdio>
int main()
{
    return std::puts(__FILE__) < 0 ? 1 : 0;
}
TEXT

failed=0
check() { # check WHERE BUILD BASE-DIRECTORY
    if ! cmake -G Ninja -S "$scratch/tree" -B "$2" -DCMAKE_CXX_COMPILER="$compiler" >"$scratch/log" 2>&1 ||
        ! CCACHE_DIR="$scratch/cache" CCACHE_BASEDIR="$3" CCACHE_NODISABLE=1 cmake --build "$2" >>"$scratch/log" 2>&1; then
        cat "$scratch/log"
        exit 1
    fi
    name=$("$2/names")
    [ "$name" = folder/names.cpp ] || { echo "FAIL: $1: $name"; failed=1; }
    echo "$1: $name"
}
for base in "" "$scratch" /; do
    suffix=$(printf %s "$base" | cksum | cut -d' ' -f1)
    check "beside the tree, base directory '$base'" "$scratch/build-$suffix" "$base"
    check "far from the tree, base directory '$base'" "$scratch/a/b/build-$suffix" "$base"
    check "in the tree, base directory '$base'" "$scratch/tree/build/dev-$suffix" "$base"
done
check "the tree itself, base directory '$scratch'" "$scratch/tree" "$scratch"
# If ccache was not used, none of this proved anything.
CCACHE_DIR="$scratch/cache" ccache --print-stats | grep -qE '^cache_miss[[:space:]]+[1-9]' ||
    { echo "FAIL: ccache was not used"; failed=1; }
exit $failed
