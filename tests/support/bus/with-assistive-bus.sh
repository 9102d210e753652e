#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# with-assistive-bus.sh LAUNCHER COMMAND...: runs COMMAND on a private display with an accessibility bus
# started by LAUNCHER, the path of at-spi-bus-launcher. Run it on a private session bus (with-private-bus.sh).
set -eu
launcher=$1
shift
display=0
bus=0
# shellcheck disable=SC2317 # the trap calls it
cleanup() {
    [ "$bus" = 0 ] || kill "$bus" 2>/dev/null || true
    [ "$display" = 0 ] || kill "$display" 2>/dev/null || true
}
trap cleanup EXIT

# The server writes its display number once it listens.
number=$XDG_RUNTIME_DIR/display
mkfifo "$number"
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$number" 2>"$XDG_RUNTIME_DIR/display.log" &
display=$!
read -r shown <"$number"
export DISPLAY=":$shown" QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GSETTINGS_BACKEND=memory

"$launcher" --launch-immediately >"$XDG_RUNTIME_DIR/launcher.log" 2>&1 &
bus=$!
# insist COMMAND...: repeats COMMAND until it succeeds: the bus's programs may still be starting, or
# restarting.
insist() {
    left=100
    until "$@" >/dev/null 2>&1; do
        left=$((left - 1))
        [ "$left" -gt 0 ] || { echo "this never succeeds: $*" >&2; exit 1; }
        sleep 0.1
    done
}
tries=0
address=
until [ -n "$address" ]; do
    address=$(dbus-send --session --print-reply=literal --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress 2>/dev/null |
        tr -d ' ') || true
    tries=$((tries + 1))
    [ "$tries" -lt 100 ] || { echo "$launcher does not answer" >&2; exit 1; }
    [ -n "$address" ] || sleep 0.1
done
# Waits for the registry before any program registers: calls made while it starts can get lost.
insist dbus-send --bus="$address" --print-reply --dest=org.a11y.atspi.Registry /org/a11y/atspi/accessible/root \
    org.a11y.atspi.Accessible.GetChildren
insist dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.freedesktop.DBus.Properties.Set \
    string:org.a11y.Status string:IsEnabled variant:boolean:true
export TEST_ASSISTIVE_BUS="$address"
# Qt 5.15 may register before it has connected, and never retries. A program that finds itself unregistered
# exits with 75 before it has tested anything.
status=75
tries=0
while [ "$status" = 75 ] && [ "$tries" -lt 100 ]; do
    tries=$((tries + 1))
    status=0
    "$@" || status=$?
done
exit "$status"
