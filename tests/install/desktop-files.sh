#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# desktop-files.sh SOURCE BUILD: checks that the programs' desktop files are well formed, and that manual
# pages and completions know every option.
set -eu
source=$1
build=$2
failed=0
fail() { echo "FAIL: $*" >&2; failed=1; }
cd "$source/data"

for file in *.desktop autostart/*.desktop; do
    said=$(desktop-file-validate "$file" 2>&1) || true
    [ -z "$said" ] || fail "$file: $said"
    icon=$(sed -n 's/^Icon=//p' "$file")
    ls icons/48/"$icon".png >/dev/null || fail "$file has no icon of 48 pixels"
    find "$source/data/icons" "$source/platform/devhost/icons" -name "$icon.svg" | grep -q . || fail "$file has no scalable icon"
    program=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$file")
    [ -f "completions/$program" ] || fail "$file starts $program, which is not one of our programs"
done
# They are conffiles, which stay when the package is removed but not purged.
for file in autostart/*.desktop; do
    grep -q "^TryExec=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$file")\$" "$file" || fail "$file has no TryExec for its program"
done
appstreamcli validate --no-net --pedantic ./*.metainfo.xml || fail "the AppStream metadata is not valid"
for file in *.metainfo.xml; do
    launchable=$(sed -n 's/.*type="desktop-id">\(.*\)<.*/\1/p' "$file")
    [ -f "$launchable" ] || fail "$file names $launchable, which is not there"
    while read -r picture; do
        [ -f "$source/$picture" ] || fail "$file shows $picture, which is not there"
    done < <(sed -n 's,.*example\.org/\(docs/.*\)</image>.*,\1,p' "$file")
done

for page in *.1; do
    said=$(man --warnings --local-file "$page" 2>&1 >/dev/null) || true
    [ -z "$said" ] || fail "$page: $said"
    program=${page%.1}
    file=$(find "$build/platform" -type f -name "$program" -perm -u+x)
    options=$("$file" --help | grep -oE '(^|[ ,])--[a-z-]+' | tr -d ' ,' | grep -vx -e --help-all | sort -u)
    [ -n "$options" ] || fail "$program --help lists no options"
    for option in $options; do
        sed 's/\\-/-/g' "$page" | grep -qE -- "$option\b" || fail "$page lacks $option"
        grep -qE -- "$option\b" "completions/$program" || fail "the completion of $program lacks $option"
    done
    bash -c '. /usr/share/bash-completion/bash_completion; . "$1"; complete -p "$2"' bash "completions/$program" "$program" \
        >/dev/null || fail "the completion of $program does not load"
done
exit $failed
