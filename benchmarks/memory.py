# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Prints each program's memory at rest, and the desk's memory and time over many turns.

memory.py BUILD_FOLDER, on a session bus that starts the contacts application. "own" is what the program has allocated
and written (anonymous pages, swapped out or not), "share" its proportional share of all its pages, libraries included (Pss).
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

REST_SECONDS = 3
LONGEST_SECONDS = 1800
TURNS = (1, 10, 100, 1000)
SENTENCE = "查询今天的会议\n"


def megabytes(pid):
    """Returns a process's own memory and its share in megabytes, or None once it has ended."""
    try:
        lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text(encoding="ascii").splitlines()
    except OSError:
        return None
    sizes = {name: int(value.split()[0]) for name, _, value in (line.partition(":") for line in lines[1:])}
    if not sizes:
        return None
    return (sizes["Anonymous"] + sizes["Swap"]) / 1024, sizes["Pss"] / 1024


def pid_of(program):
    """Returns the id of the process that the bus has started from PROGRAM."""
    for entry in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if os.readlink(entry / "exe") == str(program):
                return int(entry.name)
        except OSError:
            pass
    sys.exit(f"{program} does not run.")


def started(*command):
    return subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def ended(process):
    process.terminate()
    process.wait()


def print_at_rest(name, pid):
    own, share = megabytes(pid) or sys.exit(f"{name} ended at once.")
    print(f"{name:<45} {own:>8.1f} {share:>10.1f}", flush=True)


def play(devhost, plugin, turns):
    """Lets the desk play so many turns; returns the seconds it took and its peak memory."""
    with tempfile.NamedTemporaryFile("w", encoding="utf-8", suffix=".txt") as script:
        script.write(SENTENCE * turns)
        script.flush()
        begin = time.monotonic()
        desk = started(devhost, "--plugin", plugin, "--script", script.name)
        most = (0, 0)
        while desk.poll() is None and time.monotonic() - begin < LONGEST_SECONDS:
            most = max(most, megabytes(desk.pid) or most)
            time.sleep(0.02)
        if desk.poll() != 0:
            desk.kill()
            sys.exit(f"The desk did not play {turns} turns.")
        return time.monotonic() - begin, most


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    devhost = build / "platform/devhost/speakmate-devhost"
    meetlynx = build / "platform/contacts/meetlynx"
    plugin = next(build.glob("plugin/*contact-plugin*.so"))

    print(f"{'program at rest':<45} {'own MB':>8} {'share MB':>10}")
    window = started(devhost, "--plugin", plugin)
    service = started(devhost, "--service", "--plugin", plugin)
    understand = started(build / "platform/understanding/speakmate-understand")
    time.sleep(REST_SECONDS)
    print_at_rest("speakmate-devhost, its window", window.pid)
    print_at_rest("speakmate-devhost --service", service.pid)
    print_at_rest("speakmate-understand", understand.pid)
    for process in (window, service, understand):
        ended(process)
    play(devhost, plugin, 1)  # starts the application
    time.sleep(REST_SECONDS)
    application = pid_of(meetlynx)
    print_at_rest("meetlynx --service", application)

    print(f"\n{'turns with a card in the desk':<30} {'own MB':>8} {'share MB':>10} {'ms a turn':>10} {'meetlynx, own MB':>18}")
    begin, _ = play(devhost, plugin, 0)
    for turns in TURNS:
        seconds, (own, share) = play(devhost, plugin, turns)
        application_own, _ = megabytes(application) or sys.exit("The application ended.")
        print(f"{turns:<30} {own:>8.1f} {share:>10.1f} {(seconds - begin) * 1000 / turns:>10.1f} {application_own:>18.1f}",
              flush=True)


main()
