# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Prints what benchmarks/compare measured, from a folder of Google Benchmark's JSON files named PROGRAM.SIDE.ROUND."""

import collections
import json
import pathlib
import re
import statistics
import sys


# What Google Benchmark appends to a name for the clock that a benchmark uses.
CLOCK_SUFFIX = re.compile("/(process_time|real_time|manual_time)(?=/|$)")


def times(folder):
    """Returns times by name, without the suffix for the clock, and side: CPU time in nanoseconds, or wall-clock time for
    benchmarks with manual timing."""
    units = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    found = collections.defaultdict(lambda: collections.defaultdict(list))
    for path in sorted(pathlib.Path(folder).glob("*.*.*")):
        side = path.name.split(".")[1]
        text = path.read_text(encoding="utf-8")
        for run in json.loads(text)["benchmarks"] if text else []:
            if run.get("run_type") == "aggregate" or run.get("error_occurred"):
                continue
            clock = "real_time" if "manual_time" in run["name"] or "real_time" in run["name"] else "cpu_time"
            name = CLOCK_SUFFIX.sub("", run["name"])
            found[name][side].append(run[clock] * units[run["time_unit"]])
    return found


def spread(values):
    """Returns the range of the values in percent of their median."""
    return 100 * (max(values) - min(values)) / statistics.median(values)


def main():
    print(f"{'benchmark':<60} {'before µs':>12} {'now µs':>12} {'change':>8} {'spread':>8}")
    unmatched = []
    matches = 0
    for name, sides in times(sys.argv[1]).items():
        if not sides["before"] or not sides["now"]:
            unmatched.append(f"Only {'before' if sides['before'] else 'now'}: {name}")
            continue
        matches += 1
        before = statistics.median(sides["before"])
        now = statistics.median(sides["now"])
        widest = max(spread(sides["before"]), spread(sides["now"]))
        print(f"{name:<60} {before / 1e3:>12.1f} {now / 1e3:>12.1f} {100 * (now / before - 1):>+7.1f}% {widest:>7.1f}%")
    for line in unmatched:
        print(line)
    if matches == 0:
        sys.exit("Nothing was compared.")


main()
