#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# compare.sh check|update FOLDER [NAME LIBRARY]...: compares the public classes of each library with FOLDER/NAME.abi.xz, or
# writes that file.
set -eu
action=$1
folder=$2
shift 2
options=--exported-interfaces-only
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
changed=0
while [ $# -gt 0 ]; do
    name=$1 library=$2
    shift 2
    # A library without debugging information has no classes to compare.
    readelf --sections --wide "$library" | grep -q '[.]debug_info' || {
        echo "$library has no debugging information." >&2
        exit 1
    }
    if [ "$action" = update ]; then
        "$ABIDW" $options --no-corpus-path --no-comp-dir-path --no-show-locs "$library" | xz -9 >"$folder/$name.abi.xz"
        continue
    fi
    # Added symbols break nobody. Which of Qt's templates become functions of their own differs with the optimiser's choices.
    xz -dc "$folder/$name.abi.xz" >"$scratch/$name.abi"
    "$ABIDIFF" $options --no-added-syms --suppressions "$folder/public-classes.suppr" --harmless "$scratch/$name.abi" "$library" || {
        echo "The public classes of $name differ from platform/abi/$name.abi.xz, and programs that were built against them rely" >&2
        echo "on those. If that is meant: build the target update-abi, and say so in CHANGELOG.md." >&2
        changed=1
    }
done
exit $changed
