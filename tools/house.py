#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
"""Draws the house: the floors of src/ with their rooms, and which room includes from which.

    tools/house.py SRC_DIR FILE.svg

An arrow's width grows with the number of includes it stands for. An include that points upward ends the run with 1 and
names itself, so that a test can hold the floors apart.
"""
import pathlib
import re
import sys

# Floors from the top; a room is a folder of src/ or, where a folder has two floors, the files that PREFIX names.
FLOORS = [
    ("5  programs", ["app"]),
    ("4  screens", ["screens", "people", "chart", "reports"]),
    ("3  pages as data", ["analysis"]),
    ("2  the chart object", ["engine", "attributes", "panchang", "dasha", "content", "persons"]),
    ("1  the outside", ["platform"]),
]
WHAT = {
    "app": "start, main screen, orvani-daily", "screens": "content/pages, Theme, settings", "people": "persons/frm*, places",
    "chart": "chart drawing", "reports": "paper and PDF", "analysis": "session, one struct a page", "engine": "positions, houses",
    "attributes": "signs, dignity, aspects, vargas", "panchang": "limbs, day divisions, exact day", "dasha": "Vimshottari, gochara",
    "content": "words of a language", "persons": "records, places, clocks", "platform": "store, settings, paths, notices, printer, PDF",
}
# What of content/ and persons/ belongs to the screens' floor.
SCREEN_FILES = re.compile(
    r"content/(pages/|DropDown|SetFonts|ShellFonts|Skin|Theme|contentManager|frmSettings|Role)|"
    r"persons/(frm|FormParts|PlaceCombo|PlaceEditor|UndoBar)")
INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)


def room_of(path):
    folder = path.split("/")[0]
    if SCREEN_FILES.match(path):
        return "people" if folder == "persons" else "screens"
    return folder


def floor_of(room):
    return next(i for i, (_, rooms) in enumerate(FLOORS) if room in rooms)


def read(source):
    files, arrows, upward = {}, {}, []
    for path in sorted(source.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(source).as_posix()
        text = path.read_text(encoding="utf-8")
        here = room_of(name)
        count, lines = files.get(here, (0, 0))
        files[here] = (count + 1, lines + text.count("\n"))
        for target in INCLUDE.findall(text):
            if "/" not in target or not (source / target).exists():
                continue
            there = room_of(target)
            if there == here:
                continue
            if floor_of(there) < floor_of(here):
                upward.append(f"{name} includes {target}")
            arrows[here, there] = arrows.get((here, there), 0) + 1
    return files, arrows, upward


def draw(files, arrows):
    width, left, floor_height, room_height = 1180, 150, 150, 74
    spots, out = {}, []
    height = floor_height * len(FLOORS) - 20
    for level, (title, rooms) in enumerate(FLOORS):
        y = 30 + level * floor_height
        out.append(f'<rect x="10" y="{y - 14}" width="{width - 20}" height="{room_height + 28}" rx="10" class="floor"/>')
        out.append(f'<text x="26" y="{y + 42}" class="title">{title}</text>')
        step = (width - left - 30) / len(rooms)
        room_width = min(step - 14, 330)
        for i, room in enumerate(rooms):
            x = left + 10 + step * i + (step - 14 - room_width) / 2
            spots[room] = (x + room_width / 2, y, room_width)
    for (here, there), count in sorted(arrows.items()):
        if floor_of(here) == floor_of(there):
            continue
        x1, y1, w1 = spots[here]
        x2, y2, w2 = spots[there]
        shift = max(-0.35, min(0.35, (x2 - x1) / 900))
        x1, x2 = x1 + shift * w1, x2 - shift * w2
        weight = min(1 + count / 25, 6)
        out.append(f'<path d="M{x1:.0f} {y1 + room_height} C{x1:.0f} {y1 + room_height + 46} {x2:.0f} {y2 - 46} {x2:.0f} {y2 - 5}" '
                   f'class="{"arrow" if floor_of(there) == floor_of(here) + 1 else "far arrow"}" stroke-width="{weight:.1f}"><title>{here} includes from {there} {count} times</title></path>')
    for room, (x, y, w) in spots.items():
        count, lines = files.get(room, (0, 0))
        out.append(f'<rect x="{x - w / 2:.0f}" y="{y}" width="{w:.0f}" height="{room_height}" rx="6" class="room"/>')
        out.append(f'<text x="{x:.0f}" y="{y + 24}" class="name">{room}</text>')
        words = WHAT[room]
        if len(words) * 5.6 > w - 8:
            cut = words.rfind(", ", 0, len(words) * 2 // 3) + 1 or words.find(" ")
            halves = [words[:cut], words[cut:].strip()]
        else:
            halves = [words]
        for i, half in enumerate(halves):
            out.append(f'<text x="{x:.0f}" y="{y + 41 + 13 * i}" class="what">{half}</text>')
        out.append(f'<text x="{x:.0f}" y="{y + 68}" class="size">{count} files, {lines:,} lines</text>')
    style = (".floor{fill:#f6efe3;stroke:none}.room{fill:#fffdf8;stroke:#7a1f2b}.arrow{fill:none;stroke:#b5813f;opacity:.6}.far{opacity:.22}"
             "text{font-family:Liberation Sans,Arial,sans-serif;fill:#3a2a24}.title{font-size:13px;font-weight:bold;fill:#7a1f2b}"
             ".name{font-size:15px;font-weight:bold;text-anchor:middle}.what{font-size:11px;text-anchor:middle}"
             ".size{font-size:10px;text-anchor:middle;fill:#7d6d63}")
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" role="img" aria-label="The floors and rooms of src">'
            f"<style>{style}</style><rect width=\"{width}\" height=\"{height}\" fill=\"#ffffff\"/>" + "".join(out) + "</svg>\n")


def main():
    if len(sys.argv) != 3:
        sys.exit("house.py SRC_DIR FILE.svg")
    files, arrows, upward = read(pathlib.Path(sys.argv[1]))
    pathlib.Path(sys.argv[2]).write_text(draw(files, arrows), encoding="utf-8")
    for fault in upward:
        print("points upward:", fault, file=sys.stderr)
    sys.exit(1 if upward else 0)


if __name__ == "__main__":
    main()
