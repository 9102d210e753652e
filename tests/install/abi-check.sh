#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# abi-check.sh SOURCE SCRATCH COMPILER MOC: compares the host's public classes with platform/abi as check-abi does, as they are and
# with changes planted in a copy of their headers. Programs built elsewhere break on such a change, so it must not pass.
set -eu
source=$1
scratch=$2
compiler=$3
moc=$4
for tool in abidiff abidw xz; do
    command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
done
[ "$(uname -m)" = x86_64 ] || { echo "SKIPPED: the layout is recorded for another architecture"; exit 77; }
export ABIDIFF=abidiff ABIDW=abidw
rm -rf "$scratch"
failed=0

# check WHAT SAYING HEADER EDIT [DEBUG-OPTION]: builds the library that platform/abi compares, from headers in which the sed script
# EDIT was applied to HEADER, and compares it, which has to fail SAYING that, or to pass if SAYING is empty.
check() {
    folder=$scratch/$(echo "$1" | tr ' ' -)
    mkdir -p "$folder"
    cp -R "$source/platform/speakmate/include" "$folder/"
    sed "$4" "$source/platform/speakmate/include/speakmate/$3" >"$folder/include/speakmate/$3"
    if [ -n "$4" ] && cmp -s "$source/platform/speakmate/include/speakmate/$3" "$folder/include/speakmate/$3"; then
        echo "FAIL: $1: nothing was planted in $3"
        failed=1
        return
    fi
    # shellcheck disable=SC2046 # several options
    "$moc" -I"$folder/include" $(pkg-config --cflags-only-I Qt5Widgets) "$folder/include/speakmate/iservice.h" -o "$folder/moc.cpp"
    # shellcheck disable=SC2046 # several options
    "$compiler" -std=c++17 -fPIC -shared -O2 "${5:--g}" -femit-class-debug-always -I"$folder/include" $(pkg-config --cflags Qt5Widgets) \
        -Wl,-soname,libspeakmate-abi.so "$source/platform/abi/speakmateabi.cpp" "$folder/moc.cpp" \
        -o "$folder/libspeakmate-abi.so" $(pkg-config --libs Qt5Widgets)
    result=passes
    "$source/platform/abi/compare.sh" check "$source/platform/abi" speakmate "$folder/libspeakmate-abi.so" >"$folder/log" 2>&1 || result=fails
    echo "$1: $result"
    if [ -z "$2" ] && [ $result = passes ]; then
        return
    fi
    if [ -z "$2" ] || [ $result = passes ] || ! grep -q "$2" "$folder/log"; then
        cat "$folder/log"
        echo "FAIL: $1: it $result${2:+, and should fail, saying \"$2\"}"
        failed=1
    fi
}
check "as it is" "" reply.h ""
check "a member more" "'int planted', at offset" reply.h 's/^    int type = 0;/    int planted = 0;\n&/'
check "a larger member" "type of 'int type' changed" reply.h 's/^    int type = 0;/    qint64 type = 0;/'
check "a virtual function more" "IServicePlugin::planted()' at .* virtual at" iserviceplugin.h 's/^    virtual bool isAutoDetectSession/    virtual void planted() {}\n&/'
check "nothing to compare" "has no debugging information" reply.h "" -g0
exit $failed
