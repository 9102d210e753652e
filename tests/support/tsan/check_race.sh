#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# check_race.sh reported|silent PROGRAM NAME: checks ThreadSanitizer's verdict on one of the programs in
# races.cpp.
report=$("$2" "$3" 2>&1)
status=$?
printf '%s\n' "$report"
case $1 in
reported)
    [ "$status" = 66 ] || { echo "ended with $status, not with the sanitizer's 66"; exit 1; }
    printf '%s\n' "$report" | grep -q 'WARNING: ThreadSanitizer: data race' || exit 1
    printf '%s\n' "$report" | grep -Eq "Location is global '.*shared'" || exit 1
    ;;
silent)
    [ "$status" = 0 ] || { echo "ended with $status"; exit 1; }
    ! printf '%s\n' "$report" | grep -q ThreadSanitizer || exit 1
    printf '%s\n' "$report" | grep -q "^$3 ended" || exit 1
    ;;
*) exit 2 ;;
esac
