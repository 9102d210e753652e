# shellcheck shell=bash disable=SC2034,SC2154
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Shared by ./run, ./test, .ci/run and the scripts: packages, quiet builds, the configuration file. Source it
# with $root set.

export LC_ALL=C.UTF-8
log=$root/build/setup.log

# Needed to build and run.
packages_run=(
    cmake ninja-build g++ ccache qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools
    qttranslations5-l10n libqt5svg5 libqt5sql5-sqlite libqt5texttospeech5-dev
    libkf5calendarcore-dev dbus dbus-daemon procps fonts-noto-cjk
)
# Also needed by the tests.
packages_test=(
    abigail-tools appstream at-spi2-core bash-completion binutils desktop-file-utils faketime libical-dev man-db pkgconf python3 sqlite3
    xvfb xz-utils
)
# Also needed to build the Debian packages.
packages_package=(abigail-tools binutils build-essential debhelper dpkg-dev lintian xz-utils)
# Needed by tst_krunner, which is skipped without them. Never installed automatically: they pull in 380
# packages.
packages_launcher=(plasma-workspace xdotool xvfb)
# Also needed by the benchmarks. callgrind needs libc6-dbg to resolve the dynamic linker's symbols.
packages_bench=(libbenchmark-dev libc6-dbg python3 valgrind xvfb)
# Also needed by .ci/run.
packages_ci=(clang clang-format-16 clang-tidy clazy libbenchmark-dev libclang-rt-14-dev llvm shellcheck)

say() { printf '%s\n' "$*" >&2; }
die() {
    say "$@"
    exit 1
}

# step TEXT COMMAND...: runs COMMAND, and shows its output only on failure.
step() {
    local text=$1
    shift
    mkdir -p "${log%/*}"
    [ -t 2 ] && printf '%s …\r' "$text" >&2
    if ! "$@" >"$log" 2>&1; then
        say "$text: failed. The end of $log:"
        tail -n 40 "$log" >&2
        exit 1
    fi
    [ -t 2 ] && printf '\033[K' >&2
    return 0
}

missing_packages() {
    local name
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || printf '%s ' "$name"
    done
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

may_become_root() { [ "$(id -u)" = 0 ] || command -v sudo >/dev/null; }

# need_packages NAME...: installs those that are missing.
need_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is no Debian system, so nothing is installed. These Debian packages are needed: $*"
        return 0
    fi
    local missing
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    may_become_root || die "These packages are missing, and installing them needs root:" \
        "    apt-get install --no-install-recommends $missing"
    say "Installing packages: $missing"
    # Ask for sudo's password before output goes to the log; apt itself asks nothing.
    [ "$(id -u)" = 0 ] || sudo -v || die "Installing the packages needs root."
    step "Reading the package lists" as_root apt-get update -qq
    # shellcheck disable=SC2086
    step "Installing packages" as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends $missing
}

# need_space MEGABYTES: a compiler on a full disk fails in the middle, with an error that may not name the disk.
need_space() {
    local free
    free=$(df --output=avail -BM "$root" | tail -n 1 | tr -dc 0-9)
    [ "$free" -ge "$1" ] || die "Building needs about $1 MB on the disk of $root, but only $free MB are free."
}

# build PRESET: configures PRESET if necessary, then builds it.
build() {
    local preset=$1
    if [ ! -f "$root/build/$preset/build.ninja" ]; then
        need_space 2000
        [ -t 2 ] || say "Building (the first time takes some minutes) …"
        step "Configuring" cmake -S "$root" --preset "$preset"
    fi
    step "Building (the first time takes some minutes)" cmake --build "$root/build/$preset"
}

config_file=/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json

# The plugin reads its configuration from a fixed path. Never replace the user's file.
need_configuration() {
    [ -e "$config_file" ] && return 0
    local install=(install -D -m 644 "$root/data/contact-plugin.json" "$config_file")
    if may_become_root && as_root "${install[@]}" 2>/dev/null; then
        say "Put the plugin's configuration into $config_file"
    else
        die "The plugin needs its configuration in $config_file. As root, once:" "    ${install[*]}"
    fi
}
