#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# with-private-bus.sh CONFIG COMMAND...: runs COMMAND with a private session bus, home and XDG folders, and
# removes them afterwards. Programs started by the bus end with it.
set -eu
config=$1
shift
home=$(mktemp -d "${TMPDIR:-/tmp}/contact-test.XXXXXX")
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" XDG_CACHE_HOME="$home/cache"
export XDG_RUNTIME_DIR="$home/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
mkdir "$XDG_DATA_HOME" "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME"
unset DBUS_SESSION_BUS_ADDRESS DBUS_SESSION_BUS_PID
status=0
dbus-run-session --config-file="$config" -- "$@" || status=$?
exit "$status"
