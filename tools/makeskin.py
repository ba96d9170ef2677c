#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
"""Writes the pictures of the program into its EPHE tree.

    makeskin.py DATA_DIR EPHE_DIR

Every icon is drawn once, in DATA_DIR/skin/src; its three states are made here, so that they cannot drift apart. A file whose
content has not changed is left alone. The first fault ends the run with one line and exit code 1, and nothing is written.
"""
import math
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

INK = "#2B2320"
ACCENT = "#B9540F"
SELECTION = "#F4E7D3"
CARD = "#FFFDF9"
DARK_INK = "#F2E9DE"
# The Moon looks the same in a light and a dark scheme: its colours are none of those that the program exchanges.
MOON_DARK = "#4B3D35"
MOON_LIGHT = "#F6EAD6"
INK_PLACEHOLDER = "currentColor"

# Pictures that are one drawing under two names, so that a page's icon is the icon of the button that leads to it.
ALIASES = {
    "page01": "flpChartList",
    "page02": "flpPrediList",
    "page05": "flpCredits",
    "page18": "fflpHome",
    "framKundaliStyle": "flpCharts",
    "optNorthKundli": "flpCharts",
    "msgInfo": "flpCredits",
    "msgQuestion": "flpHelp",
}

WAIT_FRAMES = 12
NAKSHATRAS = 27
WAIT_CENTRE = 60.0
RING_RADIUS = 46.0
MOON_RADIUS = 8.5

SVG_NAMESPACE = "http://www.w3.org/2000/svg"
ICON_HEAD = (
    f'<svg xmlns="{SVG_NAMESPACE}" viewBox="0 0 24 24" width="24" height="24" fill="none" stroke="{INK_PLACEHOLDER}"'
    ' stroke-width="1.6" stroke-linecap="round" stroke-linejoin="round">'
)


class SkinError(Exception):
    """A source that cannot be used; the sentence names the file."""


def read_svg(path):
    """The text of an SVG file, without its comments."""
    try:
        text = path.read_text(encoding="utf-8")
        root = ElementTree.fromstring(text)
    except OSError as fault:
        raise SkinError(f"{path}: {fault.strerror}") from fault
    except (ElementTree.ParseError, UnicodeDecodeError) as fault:
        raise SkinError(f"{path}: {fault}") from fault
    if root.tag != f"{{{SVG_NAMESPACE}}}svg" or not root.get("viewBox"):
        raise SkinError(f"{path}: this is no SVG picture with a viewBox")
    for element in root.iter():
        # Words in a picture could not be translated, and a face that is missing would spoil it.
        if element.tag == f"{{{SVG_NAMESPACE}}}text":
            raise SkinError(f"{path}: a picture holds no text")
    return re.sub(r"<!--.*?-->\s*", "", text, flags=re.DOTALL).strip() + "\n"


def read_icon(path):
    """The drawing of an icon: what stands inside its svg element."""
    text = read_svg(path)
    if ElementTree.fromstring(text).get("viewBox") != "0 0 24 24":
        raise SkinError(f"{path}: an icon stands on the grid 0 0 24 24")
    strange = set(re.findall(r"#[0-9A-Fa-f]{3,8}", text)) - {ACCENT}
    if strange:
        raise SkinError(f"{path}: an icon knows only {INK_PLACEHOLDER} and {ACCENT}, not {min(strange)}")
    inside = re.search(r"<svg[^>]*>(.*)</svg>", text, re.DOTALL)
    return " ".join(inside.group(1).split()).replace("> <", "><")


def icon_states(name, drawing):
    """File names and texts of the normal, hover and down states."""
    plate = f'<rect x="0" y="0" width="24" height="24" rx="6" fill="{SELECTION}" stroke="none"/>'
    normal = f"{ICON_HEAD}{drawing}</svg>\n".replace(INK_PLACEHOLDER, INK)
    hover = f"{ICON_HEAD}{plate}{drawing}</svg>\n".replace(INK_PLACEHOLDER, INK)
    down = f"{ICON_HEAD}{plate}{drawing}</svg>\n".replace(INK_PLACEHOLDER, ACCENT)
    return {f"{name}.svg": normal, f"{name}-hover.svg": hover, f"{name}-down.svg": down}


def number(value):
    """A coordinate as short text."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def ring_point(turn):
    """A place on the ring; 0 is the top, and a turn of 1 leads clockwise back to it."""
    angle = 2 * math.pi * turn
    return WAIT_CENTRE + RING_RADIUS * math.sin(angle), WAIT_CENTRE - RING_RADIUS * math.cos(angle)


def lit_part(phase, x, y):
    """The lit part of the Moon as a path: phase 0 is new, 0.5 is full."""
    bulge = MOON_RADIUS * math.cos(2 * math.pi * phase)
    waxing = phase < 0.5
    limb = 1 if waxing else 0
    # The terminator is half an ellipse: it bends towards the lit limb before the half Moon and away from it after.
    terminator = (0 if bulge > 0 else 1) if waxing else (1 if bulge > 0 else 0)
    top, bottom = number(y - MOON_RADIUS), number(y + MOON_RADIUS)
    radius = number(MOON_RADIUS)
    return (
        f"M{number(x)} {top}A{radius} {radius} 0 0 {limb} {number(x)} {bottom}"
        f"A{number(abs(bulge))} {radius} 0 0 {terminator} {number(x)} {top}z"
    )


def wait_frame(template, frame):
    """One picture of the Moon's walk through the nakshatras: it goes round once, and through its phases."""
    turn = frame / WAIT_FRAMES
    parts = []
    for dot in range(NAKSHATRAS):
        behind = (turn - dot / NAKSHATRAS) % 1.0
        x, y = ring_point(dot / NAKSHATRAS)
        # The dots that the Moon has just passed keep a glow that fades over a third of the ring.
        glow = max(0.0, 1.0 - behind * 3)
        colour, opacity = (ACCENT, 0.35 + 0.65 * glow) if glow > 0 else (INK, 0.28)
        parts.append(f'<circle cx="{number(x)}" cy="{number(y)}" r="{number(1.7 + 0.7 * glow)}" fill="{colour}" fill-opacity="{number(opacity)}"/>')
    x, y = ring_point(turn)
    parts.append(f'<circle cx="{number(x)}" cy="{number(y)}" r="{number(MOON_RADIUS + 3)}" fill="{CARD}"/>')
    parts.append(f'<circle cx="{number(x)}" cy="{number(y)}" r="{number(MOON_RADIUS)}" fill="{MOON_DARK}" stroke="{INK}" stroke-width="1.4"/>')
    # The walk starts a little after new Moon, so that no frame shows an empty disc.
    phase = (turn + 0.5 / WAIT_FRAMES) % 1.0
    parts.append(f'<path d="{lit_part(phase, x, y)}" fill="{MOON_LIGHT}"/>')
    return template.replace("</svg>", "".join(parts) + "</svg>")


def collect(data_dir):
    """All files to write, by their path under EPHE."""
    files = {}
    sources = sorted((data_dir / "skin" / "src").glob("*.svg"))
    if not sources:
        raise SkinError(f"{data_dir / 'skin' / 'src'}: there are no icons")
    drawings = {path.stem: read_icon(path) for path in sources}
    for alias, base in ALIASES.items():
        if alias in drawings:
            raise SkinError(f"{data_dir}: '{alias}' is both a drawing and another name of '{base}'")
        if base not in drawings:
            raise SkinError(f"{data_dir}: there is no drawing '{base}' for '{alias}'")
        drawings[alias] = drawings[base]
    for name, drawing in drawings.items():
        for file_name, text in icon_states(name, drawing).items():
            files[f"SKIN/{file_name}"] = text
    # The style sheet names these files and cannot exchange their colours.
    for name in ("ctlDown", "ctlTick"):
        files[f"SKIN/{name}-dark.svg"] = f"{ICON_HEAD}{drawings[name]}</svg>\n".replace(INK_PLACEHOLDER, DARK_INK)
    for name in ("mark", "splash"):
        files[f"SKIN/{name}.svg"] = read_svg(data_dir / "skin" / f"{name}.svg")
    template = read_svg(data_dir / "pictures" / "wait" / "wait.svg")
    for frame in range(WAIT_FRAMES):
        files[f"SKIN/wait-{frame + 1:02}.svg"] = wait_frame(template, frame)
    for name in ("trishul", "punditji"):
        files[f"COMMON/{name}.svg"] = read_svg(data_dir / "pictures" / f"{name}.svg")
    labels = data_dir / "pictures" / "trishul-labels.tsv"
    try:
        files["COMMON/trishul-labels.tsv"] = labels.read_text(encoding="utf-8")
    except OSError as fault:
        raise SkinError(f"{labels}: {fault.strerror}") from fault
    return files


def write(ephe_dir, files):
    """Writes what has changed, and drops states whose drawing is gone."""
    for relative, text in files.items():
        path = ephe_dir / relative
        content = text.encode("utf-8")
        if path.exists() and path.read_bytes() == content:
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
    for path in (ephe_dir / "SKIN").glob("*.svg"):
        if f"SKIN/{path.name}" not in files:
            path.unlink()


def main(arguments):
    if len(arguments) != 3:
        print("usage: makeskin.py DATA_DIR EPHE_DIR", file=sys.stderr)
        return 1
    try:
        write(pathlib.Path(arguments[2]), collect(pathlib.Path(arguments[1])))
    except (SkinError, OSError) as fault:
        print(fault, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
