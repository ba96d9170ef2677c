# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
"""Prints the tables of docs/bench.md from the results of the benchmarks: benchtable.py FOLDER, called by bench.sh."""

import json
import os
import pathlib
import re
import sys

MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}

# Benchmark, its counter (- for the time itself), what is wanted at most (- for nothing), unit, and what is measured.
ROWS = [line.split(maxsplit=4) for line in """
CalculateBesideBareCalls               ratio         1.15  times  `Calculate` over the same library calls made bare
CalculateBesideBareCalls               calculate_ms  -     ms     `Calculate`, one chart
SunRiseTimeOfANewChart                 -             0.3   ms     sunrise search of a new chart
OverviewOfAYear                        -             1000  ms     overview of 365 days for one person
ScoresOfThirtyDays                     -             200   ms     seven day scores over thirty days
OneGetHeadValue                        -             0.01  ms     one text looked up
ExactDays/1                            -             10    ms     exact day
ExactDays/31                           -             300   ms     exact month
ExactDays/366                          -             4000  ms     exact year
StartToUsableWindow                    median_ms     400   ms     start to usable window, warm, whole process
PageSwitchToPainted                    worstFirst    16    ms     page switch to painted, first time on a day, worst page
PageSwitchToPainted                    worstAgain    16    ms     page switch to painted, again, worst page
PersonChangeToPaintedPage              -             50    ms     person change to painted page
DateChangeToPaintedPage                -             50    ms     date change to painted page
OpenListOf10000Persons                 -             200   ms     list of 10,000 persons opened and painted
TypeOneLetterInListOf10000Persons      -             50    ms     one letter typed in the list of 10,000 persons, to the painted list
OpenManagerOf10000Persons              -             200   ms     person screen opened over 10,000 persons
OpenNamesInManagerOf10000Persons       -             200   ms     names of the person screen dropped down, 10,000 of them
TypeOneLetterInManager/name_of_10000   -             50    ms     one letter of a name typed in the person screen, 10,000 persons
TypeOneLetterInManager/place_of_29000  -             10    ms     one letter of a place typed in the person screen, to the painted list
ListOf10000Persons                     -             -     ms     names of 10,000 persons read
OnePersonOf10000                       -             50    ms     one person of 10,000 found in the store
SaveOnePersonOf10000                   -             -     ms     one person of 10,000 saved
ReadAllPlaces                          -             -     ms     all 29,000 places read
TypeOneLetterOfAPlace                  -             10    ms     places of one typed letter found among 29,000
DailyJsonAsAProcess                    -             150   ms     `orvani-daily --json`, whole process
DailyPdfAsAProcess                     -             500   ms     `orvani-daily --pdf`, the full report, whole process
""".strip().splitlines()]
MEMORY_WANTED = 2  # MiB


def plain_name(name):
    return re.sub(r"/(iterations|repeats|real_time|process_time|manual_time)(:\d+)?", "", name)


def read(path):
    """Benchmark by name: its median over the repetitions, or its one run."""
    runs = {}
    for run in json.loads(path.read_text())["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"benchtable.py: {run['name']}: {run.get('error_message')}")
        name = plain_name(run["run_name"])
        if run.get("aggregate_name", "median") == "median" and not (name in runs and "aggregate_name" not in run):
            runs[name] = run
    return runs


def figure(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}" if value >= 0.001 else f"{value:.2g}"


def measured(run, counter):
    return run["real_time"] * MILLISECONDS[run["time_unit"]] if counter == "-" else run[counter]


def verdict(value, wanted):
    return "" if wanted is None else "met" if value <= wanted else f"missed by {figure(value - wanted)}"


def row(what, value, wanted, unit, charts):
    limit = "" if wanted is None else f"{figure(wanted)} {unit}"
    return f"| {what} | {limit} | {figure(value)} {unit} | {charts} | {verdict(value, wanted)} |"


def words(name):
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[a-z])(?=\d)", " ", name).replace("/", ", ").lower()


def processors():
    names = [line.split(":", 1)[1].strip() for line in open("/proc/cpuinfo") if line.startswith("model name")]
    kind = names[0] if names else os.uname().machine
    return f"{os.cpu_count()} processors ({kind})"


def main():
    folder = pathlib.Path(sys.argv[1])
    times = read(folder / "times.json")
    bare = times["CalculateBesideBareCalls"]["bare_ms"]
    pages = times["PageSwitchToPainted"]

    def worst(which):
        numbers = {int(m[1]): pages[key] for key in pages if (m := re.fullmatch(rf"page(\d+){which}", key))}
        return max(numbers, key=numbers.get), numbers

    print(f"Measured on {processors()}. A chart is what the ephemeris library's own calls for one chart took in the same run, "
          f"{figure(bare * 1000)} us: it makes figures of different machines alike.\n")
    print("| What | Wanted at most | Measured | In charts | |")
    print("|---|---|---|---|---|")
    for name, counter, wanted, unit, what in ROWS:
        if name not in times:
            sys.exit(f"benchtable.py: the benchmark {name} is missing")
        value = measured(times[name], counter)
        wanted = None if wanted == "-" else float(wanted)
        if name == "PageSwitchToPainted":
            what += f" ({worst(counter.removeprefix('worst'))[0]})"
        charts = figure(value / bare) if unit == "ms" else ""
        print(row(what, value, wanted, unit, charts))
    for name in sorted(set(times) - {r[0] for r in ROWS}):
        value = measured(times[name], "-")
        print(row(words(name), value, times[name].get("wanted_ms"), "ms", figure(value / bare)))
    for platform, what in (("offscreen", "without a screen"), ("xcb", "on an X server")):
        run = read(folder / f"{platform}.json")["WindowMemory"]
        for counter, of in (("heap_growth_MiB", "heap in use"), ("private_growth_MiB", "memory of the process alone")):
            print(row(f"growth of the {of} after 1,000 page switches and 1,000 day changes, {what}", max(run[counter], 0),
                      MEMORY_WANTED, "MiB", ""))
    print("\nPage switches in ms, each the middle of many, the first time on a day and again:\n")
    first, again = worst("First")[1], worst("Again")[1]
    print("| Page | First | Again | | Page | First | Again | | Page | First | Again |")
    print("|---|---|---|---|---|---|---|---|---|---|---|")
    numbers = sorted(first)
    height = -(-len(numbers) // 3)
    for line in range(height):
        cells = [f"{p} | {figure(first[p])} | {figure(again[p])}" for p in numbers[line::height]]
        cells += ["| | "] * (3 - len(cells))
        print("| " + " | | ".join(cells) + " |")


main()
