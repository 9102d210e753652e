# shellcheck shell=bash disable=SC2034,SC2154
# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Shared by benchmarks/run and benchmarks/compare: which programs there are. Source it with $root set.

# A test, which ends on Google Benchmark's arguments.
desk_benchmark=bench_desk

# benchmark_programs TREE: prints the names of the benchmarks built in TREE that take Google Benchmark's arguments.
benchmark_programs() {
    local program
    for program in "$1"/build/bench/benchmarks/bench_*; do
        case ${program##*/} in
        *.so | "$desk_benchmark") continue ;;
        esac
        if [ -f "$program" ] && [ -x "$program" ]; then printf '%s\n' "${program##*/}"; fi
    done
}

# on_a_bus TREE NAME ARGUMENT...: runs a benchmark of TREE on a private session bus.
on_a_bus() {
    local tree=$1 name=$2
    shift 2
    "$tree/tests/support/bus/with-private-bus.sh" "$tree/build/bench/private-bus.conf" \
        "$tree/build/bench/benchmarks/$name" "$@"
}
