# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Counts the instructions of turns, cards and loading, and of the floor that each is measured against.

instructions.py BUILD_FOLDER, which benchmarks/instructions builds first. Callgrind's counts don't depend on the machine's
load. Below each pair of figures are the steps that account for most of both, or of their difference.
"""

import os
import re
import subprocess
import sys
import tempfile
from collections import defaultdict

# How often a case runs, so that what only the first run pays counts for little.
TURNS = 100
CARDS = 4

# For each step, all calls that match one of its patterns, "caller > called".
SHORT_TURN_STEPS = {
    "reading the sentence's JSON": [r"(ContactService::service|parseOnce)\(.* > QJsonDocument::fromJson"],
    "its text as UTF-8, before that": [r"ContactService::service\(.* > QString::toUtf8"],
    "intents and slots": [r"> CloudSemantic::parse"],
    "the request's text": [r"> RequestText::"],
    "its log record": [r"inviteParamInit\(.* > (QDebug|QMessageLogger|QTextStream|QString::fromUtf8)"],
    "the application's answer": [r"> AnswerAnalyser::"],
    "the reply": [r"> ContactService::getServiceReply"],
    "ending what was made": [r"> ContactService::~", r"(service|parseOnce)\(.* > QJsonDocument::~"],
}
LONG_ANSWER_STEPS = {
    "reading the answer's JSON": [r"(AbilityAnswer|parseOnce)\(.* > QJsonDocument::fromJson"],
    "its text as UTF-8, before that": [r"AbilityAnswer\(.* > QString::toLocal8Bit"],
    "the records of the conferences": [r"> AnswerRecords::conferences"],
    "ending what was made": [r"> ContactService::~", r"(AbilityAnswer|parseOnce|AnswerAnalyser::join)\(.* > Q(Json|Cbor).*::~"],
}
CARD_STEPS = {
    "measuring the texts": [r"> QLabel::minimumSizeHint", r"> QFontMetrics::horizontalAdvance"],
    "painting": [r"QWidget::event\(.* > .*::paintEvent"],
    "the colours of the texts": [
        r"> (CardTheme::setText|CardLabel::setTextAlpha)",
        r"(ColoredCardLabel|PlainWidgets)::.* > Q(Widget::setPalette|Palette::)",
    ],
    "what assistive technology is told": [r"> QAccessible::updateAccessibility"],
}
LOADING_STEPS = {
    "reading the plugin's metadata": [r"> QPluginLoader::setFileName"],
    "finding the needed libraries among the loaded": [r"> _dl_map_object_deps"],
    "relocating, most of it looking up names": [r"> _dl_relocate_object"],
    "making the plugin's object": [r"> qt_plugin_instance"],
}


class Count:
    """What callgrind counted while one function ran: the total, and the cost of each call from one function to another."""

    def __init__(self, path):
        self.total = 0
        self.calls = defaultdict(int)
        names = {}
        caller = called = None
        with open(path, encoding="utf-8", errors="replace") as lines:
            for line in lines:
                function = re.match(r"(c?fn)=\((\d+)\)(?: (.*))?$", line)
                if function:
                    kind, number, name = function.groups()
                    name = names.setdefault(number, name)
                    caller, called = (name, None) if kind == "fn" else (caller, name)
                elif re.match(r"[+*\-\d]", line):
                    # The line after a call says what it took; any other line is the function's own.
                    cost = int(line.split()[1])
                    if called is None:
                        self.total += cost
                    else:
                        self.calls[f"{caller} > {called}"] += cost
                    called = None

    def of(self, patterns):
        return sum(cost for call, cost in self.calls.items() if any(re.search(pattern, call) for pattern in patterns))


def count(function, command, bind_now=True):
    """Counts all calls of FUNCTION while COMMAND runs. With BIND_NOW, symbols are resolved at the start."""
    environment = {**os.environ, "LD_BIND_NOW": "1"} if bind_now else os.environ
    with tempfile.NamedTemporaryFile() as file:
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={file.name}", f"--toggle-collect=*{function}*"] + command,
            env=environment, text=True, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        if run.returncode != 0:
            sys.exit(f"{run.stderr}{command[0]} failed under callgrind.")
        return Count(file.name)


def heading(what, measured, floor):
    print(f"\n{what:<49} {measured:>12} {floor:>14} {'ratio':>6}", flush=True)


def report(title, measured, floor, times, steps):
    if floor.total == 0:
        sys.exit(f"{title}: callgrind has counted nothing.")
    print(f"{title:<49} {measured.total / times:>12,.0f} {floor.total / times:>14,.0f} {measured.total / floor.total:>6.2f}")
    for step, patterns in steps.items():
        counts = [side.of(patterns) / times for side in (measured, floor)]
        if any(counts):
            print(f"  {step:<47} {counts[0]:>12,.0f} {counts[1]:>14,.0f}", flush=True)


def main(build):
    heading("instructions of one", "turn", "bare parse")
    for name, title, steps in (
        ("requestAgainstItsParse/addBuddy", "add a friend", SHORT_TURN_STEPS),
        ("requestAgainstItsParse/invite", "invite two people", SHORT_TURN_STEPS),
        ("answerAgainstItsParse/100", "an answer with 100 conferences", LONG_ANSWER_STEPS),
    ):
        command = [f"{build}/benchmarks/bench_requests", f"--benchmark_filter={name}$", "--benchmark_min_time=0"]
        report(title, count("answerOnce", command), count("parseOnce", command), TURNS, steps)

    heading("instructions of one", "card", "Qt's widgets")
    for name, title in (
        ("oneConference", "one conference"),
        ("listOfConferences/3", "three conferences"),
        ("listOfConferences/10000", "10,000 conferences"),
        ("editableConference", "a conference to be changed"),
        ("candidatesToPick/50", "50 people to pick from"),
    ):
        command = [f"{build}/benchmarks/bench_cards", f"--benchmark_filter={name}/manual_time$", "--benchmark_min_time=0",
                   f"--benchmark_repetitions={CARDS}"]
        report(title, count("paintedCard", command), count("paintedPlain", command), CARDS, CARD_STEPS)

    heading("instructions of loading", "the plugin", "an empty one")
    program = f"{build}/benchmarks/bench_loading"
    for option, title in (
        ("--load-on-desktop", "the platform's libraries are loaded already"),
        ("--load", "the platform's libraries come with it"),
    ):
        counts = [
            count("loadPlugin", [program, option, f"{build}/{file}"], bind_now=False)
            for file in ("plugin/libcontact-plugin.so", "benchmarks/libbench_emptyplugin.so")
        ]
        report(title, *counts, 1, LOADING_STEPS)


if __name__ == "__main__":
    main(sys.argv[1])
