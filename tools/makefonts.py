#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
"""Draws the four symbol fonts of the program.

    makefonts.py DATA_DIR FONT_DIR

The signs and planets are the strokes of DATA_DIR/skin/src, so that a symbol is the same on the screen and in a font; only the
weight of the pen differs from face to face. A stroke becomes an outline of quadratic curves. The same sources give the same bytes.
The program keeps a font file under the extension IFT.
"""
import math
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.recordingPen import DecomposingRecordingPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.svgLib.path import parse_path

MAKER = "Brivanta Works"
LICENCE = "AGPL-3.0-or-later"
VERSION = "Version 1.000"
# A fixed date in seconds since 1904, the epoch of the head table: 2026-01-01.
DATE = 3850070400

UNITS = 2048
GRID = 24.0
SCALE = UNITS / 28.0
DESCENT = 300
ASCENT = 1748
SIDE = 1.6  # room on each side of a glyph, in the grid's units

# Face, file and pen in the grid's units: text, fine text, headings, charts.
FACES = (
    ("Kruti Astro", "KRTIASTR", 1.7),
    ("Kruti Hindi Astro", "HINASTRO", 1.4),
    ("Kruti Dev Head", "DRDVHEAD", 2.5),
    ("Astro 570", "ASTRO570", 2.0),
)

# Code points of the bodies in the order of their index in the chart, 1 Sun to 12 Pluto.
PLANETS = (0x2609, 0x263F, 0x2640, 0x2642, 0x2643, 0x2644, 0x263D, 0x260A, 0x260B, 0x2645, 0x2646, 0x2647)
FIRST_SIGN = 0x2648
MARK = 0xE000

# Digits on the same grid, from y 4 to y 20.
DIGITS = (
    "M12 4C8.9 4 7.2 7 7.2 12S8.9 20 12 20S16.8 17 16.8 12S15.1 4 12 4z",
    "M8.6 7.2L12.6 4V20M8.8 20H16",
    "M7.4 8.2C7.6 5.6 9.4 4 12 4C14.7 4 16.5 5.7 16.5 8.2C16.5 12.4 7.2 14.6 7.2 20H16.8",
    "M7.5 6.3C8.5 4.8 10 4 12 4C14.6 4 16.2 5.5 16.2 7.7C16.2 10 14.5 11.5 11.4 11.5C14.8 11.5 16.8 13.1 16.8 15.7C16.8 18.3 14.8 20 12 20C9.7 20 7.9 19 7.1 17.1",
    "M14.4 20V4L6.8 15.4H17.4",
    "M16 4H8.6L7.8 11.2C8.8 10.3 10.2 9.8 11.8 9.8C14.8 9.8 16.8 11.8 16.8 14.8C16.8 17.9 14.8 20 11.8 20C9.7 20 8 19.1 7.1 17.4",
    "M15.8 6C14.9 4.7 13.6 4 12 4C8.8 4 7.2 7.4 7.2 12.6C7.2 17.4 8.9 20 12 20C14.9 20 16.8 18 16.8 15.1C16.8 12.2 14.9 10.3 12.1 10.3C9.6 10.3 7.8 11.7 7.3 14",
    "M7.2 4H16.8L10.4 20",
    "M12 11.4C9.4 11.4 7.8 9.9 7.8 7.7S9.4 4 12 4S16.2 5.5 16.2 7.7S14.6 11.4 12 11.4C9.1 11.4 7.2 13.1 7.2 15.7S9.1 20 12 20S16.8 18.3 16.8 15.7S14.9 11.4 12 11.4z",
    "M8.2 18C9.1 19.3 10.4 20 12 20C15.2 20 16.8 16.6 16.8 11.4C16.8 6.6 15.1 4 12 4C9.1 4 7.2 6 7.2 8.9C7.2 11.8 9.1 13.7 11.9 13.7C14.4 13.7 16.2 12.3 16.7 10",
)

SMALLEST = 1e-6


class FontError(Exception):
    """A source that cannot be used; the sentence names the file."""


# A piece of a pen's way is (start, start direction, end, end direction, is straight); directions have the length 1.


def _unit(dx, dy):
    length = math.hypot(dx, dy)
    return (dx / length, dy / length)


def _turn(a, b):
    """The angle from direction a to direction b, in (-pi, pi]."""
    return math.atan2(a[0] * b[1] - a[1] * b[0], a[0] * b[0] + a[1] * b[1])


def _line(start, end):
    if math.dist(start, end) < SMALLEST:
        return []
    way = _unit(end[0] - start[0], end[1] - start[1])
    return [(start, way, end, way, True)]


def _curve(p0, p1, p2, p3, depth=0):
    """A cubic curve as pieces that bend by no more than 25 degrees and in one sense."""
    away = next((p for p in (p1, p2, p3) if math.dist(p, p0) > SMALLEST), None)
    if away is None:
        return []
    back = next(p for p in (p2, p1, p0) if math.dist(p, p3) > SMALLEST)
    start_way = _unit(away[0] - p0[0], away[1] - p0[1])
    end_way = _unit(p3[0] - back[0], p3[1] - back[1])
    bend = _turn(start_way, end_way)
    chord = _unit(p3[0] - p0[0], p3[1] - p0[1]) if math.dist(p0, p3) > SMALLEST else start_way
    first, second = _turn(start_way, chord), _turn(chord, end_way)
    if depth > 0 and (depth > 7 or (abs(bend) < math.radians(25) and first * second >= -1e-9)):
        return [(p0, start_way, p3, end_way, abs(bend) < 1e-4)]
    middle = lambda a, b: ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)
    a, b, c = middle(p0, p1), middle(p1, p2), middle(p2, p3)
    d, e = middle(a, b), middle(b, c)
    f = middle(d, e)
    return _curve(p0, a, d, f, depth + 1) + _curve(f, e, c, p3, depth + 1)


def _ways(svg_path):
    """The pen's ways of an SVG path: pairs of pieces and whether the way is closed."""
    pen = DecomposingRecordingPen({})
    parse_path(svg_path, pen)
    ways, pieces, start, at = [], [], None, None
    for action, points in pen.value:
        if action == "moveTo":
            pieces, start, at = [], points[0], points[0]
        elif action == "lineTo":
            pieces += _line(at, points[0])
            at = points[0]
        elif action == "curveTo":
            pieces += _curve(at, *points)
            at = points[2]
        elif action == "qCurveTo":
            control, end = points
            to = lambda p: (p[0] + (control[0] - p[0]) * 2 / 3, p[1] + (control[1] - p[1]) * 2 / 3)
            pieces += _curve(at, to(at), to(end), end)
            at = end
        elif action == "closePath":
            pieces += _line(at, start)
            ways.append((pieces, True))
        elif action == "endPath":
            ways.append((pieces, False))
    return [way for way in ways if way[0]]


def _circle(cx, cy, r):
    k = 0.5522847498 * r
    quarter = [
        ((cx + r, cy), (cx + r, cy + k), (cx + k, cy + r), (cx, cy + r)),
        ((cx, cy + r), (cx - k, cy + r), (cx - r, cy + k), (cx - r, cy)),
        ((cx - r, cy), (cx - r, cy - k), (cx - k, cy - r), (cx, cy - r)),
        ((cx, cy - r), (cx + k, cy - r), (cx + r, cy - k), (cx + r, cy)),
    ]
    return [piece for curve in quarter for piece in _curve(*curve)]


def _meet(p, way_p, q, way_q):
    """Where two tangents meet: the control point of a quadratic curve; None when they run alike."""
    cross = way_p[0] * way_q[1] - way_p[1] * way_q[0]
    if abs(cross) < 1e-6:
        return None
    along = ((q[0] - p[0]) * way_q[1] - (q[1] - p[1]) * way_q[0]) / cross
    return (p[0] + way_p[0] * along, p[1] + way_p[1] * along)


def _arc(outline, centre, start_way, turn, radius):
    """A round turn of the pen's right edge about a point, in steps of at most 45 degrees."""
    steps = max(1, math.ceil(abs(turn) / (math.pi / 4)))
    way = start_way
    for _ in range(steps):
        step = turn / steps
        after = (way[0] * math.cos(step) - way[1] * math.sin(step), way[0] * math.sin(step) + way[1] * math.cos(step))
        end = (centre[0] + after[1] * radius, centre[1] - after[0] * radius)
        here = (centre[0] + way[1] * radius, centre[1] - way[0] * radius)
        control = _meet(here, way, end, after)
        outline.append((control, end))
        way = after


def _edge(pieces, radius, closed):
    """The right edge of the pen's way, as a start point and (control or None, end) steps."""
    side = lambda point, way: (point[0] + way[1] * radius, point[1] - way[0] * radius)
    outline = [(None, side(pieces[0][0], pieces[0][1]))]
    follow = pieces + pieces[:1] if closed else pieces
    for number, (start, start_way, end, end_way, straight) in enumerate(pieces):
        here, there = side(start, start_way), side(end, end_way)
        control = None if straight else _meet(here, start_way, there, end_way)
        outline.append((control, there))
        if number + 1 == len(follow):
            break
        turn = _turn(end_way, follow[number + 1][1])
        # The edge lies on the right hand: a turn to the left opens a gap there, which the round pen fills.
        if turn > 1e-3:
            _arc(outline, end, end_way, turn, radius)
        elif turn < -1e-3:
            # On the inner side the edge goes through the corner, so that the outline never winds the other way.
            outline.append((None, end))
            outline.append((None, side(end, follow[number + 1][1])))
    return outline


def _backwards(pieces):
    return [(end, (-b[0], -b[1]), start, (-a[0], -a[1]), straight) for start, a, end, b, straight in reversed(pieces)]


def stroke(pieces, closed, radius):
    """The outlines of a stroke with round ends."""
    if closed:
        return [_edge(pieces, radius, True), _edge(_backwards(pieces), radius, True)]
    outline = _edge(pieces, radius, False)
    _arc(outline, pieces[-1][2], pieces[-1][3], math.pi, radius)
    back = _backwards(pieces)
    outline += _edge(back, radius, False)[1:]
    _arc(outline, back[-1][2], back[-1][3], math.pi, radius)
    return [outline]


def fill(pieces):
    """The outline of a filled shape, in the sense in which stroke() runs."""
    area = sum(p[0][0] * p[2][1] - p[2][0] * p[0][1] for p in pieces)
    return [_edge(pieces if area > 0 else _backwards(pieces), 0.0, True)]


def drawing(path):
    """The pen's ways of an icon: (pieces, is closed, is filled)."""
    try:
        root = ElementTree.parse(path).getroot()
    except (OSError, ElementTree.ParseError) as fault:
        raise FontError(f"{path}: {fault}") from fault
    if root.get("viewBox") != "0 0 24 24":
        raise FontError(f"{path}: a symbol stands on the grid 0 0 24 24")
    ways = []
    for element in root.iter():
        tag = element.tag.rsplit("}", 1)[-1]
        filled = element.get("stroke") == "none"
        if tag == "circle":
            ways.append((_circle(*(float(element.get(name)) for name in ("cx", "cy", "r"))), True, filled))
        elif tag == "path":
            ways += [(pieces, closed, filled) for pieces, closed in _ways(element.get("d"))]
        elif tag not in ("svg", "g"):
            raise FontError(f"{path}: a symbol is drawn with paths and circles, not with '{tag}'")
    return ways


def mark(path):
    """The program's mark, brought from its grid of 48 to the grid of the symbols."""
    root = ElementTree.parse(path).getroot()
    half = lambda point: (point[0] / 2, point[1] / 2)
    smaller = lambda pieces: [(half(a), b, half(c), d, e) for a, b, c, d, e in pieces]
    ways = []
    for element in root.iter():
        tag = element.tag.rsplit("}", 1)[-1]
        filled = element.get("fill") != "none"
        if tag == "circle":
            ways.append((smaller(_circle(*(float(element.get(name)) for name in ("cx", "cy", "r")))), True, filled))
        elif tag == "path":
            ways += [(smaller(pieces), closed, filled) for pieces, closed in _ways(element.get("d"))]
    return ways


def glyph(ways, pen_width):
    """A glyph and its advance in font units."""
    outlines = []
    for pieces, closed, filled in ways:
        outlines += fill(pieces) if filled else stroke(pieces, closed, pen_width / 2)
    every = [point for outline in outlines for step in outline for point in step if point is not None]
    left, right = min(p[0] for p in every), max(p[0] for p in every)
    # y grows upwards in a font: the grid's foot stands a little below the base line, as a capital's curve does.
    place = lambda p: (round((p[0] - left + SIDE) * SCALE), round((21.0 - p[1]) * SCALE))
    pen = TTGlyphPen(None)
    for outline in outlines:
        pen.moveTo(place(outline[0][1]))
        for control, end in outline[1:]:
            if control is None:
                pen.lineTo(place(end))
            else:
                pen.qCurveTo(place(control), place(end))
        pen.closePath()
    shape = pen.glyph()
    # Strokes cross: bit 6 of the first flag tells a rasteriser to fill them as one.
    shape.flags[0] |= 0x40
    return shape, round((right - left + 2 * SIDE) * SCALE)


def font(face, pen_width, data_dir):
    source = data_dir / "skin" / "src"
    symbols = {".notdef": [(_ways("M6 4H18V20H6z")[0][0], True, False)]}
    cmap = {0x20: "space", 0xA0: "space"}
    for digit, path in enumerate(DIGITS):
        name = ("zero", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine")[digit]
        symbols[name] = [(pieces, closed, False) for pieces, closed in _ways(path)]
        cmap[ord("0") + digit] = name
    for number, code in enumerate(PLANETS, 1):
        name = f"uni{code:04X}"
        symbols[name] = drawing(source / f"planet{number:02}.svg")
        cmap[code] = name
        cmap[ord("A") + number - 1] = name
    for number in range(1, 13):
        code = FIRST_SIGN + number - 1
        name = f"uni{code:04X}"
        symbols[name] = drawing(source / f"sign{number:02}.svg")
        cmap[code] = name
        cmap[ord("a") + number - 1] = name
    symbols["uniE000"] = mark(data_dir / "skin" / "mark.svg")
    cmap[MARK] = "uniE000"

    glyphs, metrics = {}, {}
    for name, ways in symbols.items():
        glyphs[name], advance = glyph(ways, 0.9 if name == "uniE000" else pen_width)
        metrics[name] = advance
    # Figures of a column stand under each other.
    widest = max(metrics[cmap[ord("0") + d]] for d in range(10))
    for digit in range(10):
        name = cmap[ord("0") + digit]
        shift = (widest - metrics[name]) // 2
        glyphs[name].coordinates.translate((shift, 0))
        metrics[name] = widest
    glyphs["space"], metrics["space"] = TTGlyphPen(None).glyph(), widest // 2

    order = [".notdef", "space"] + [name for name in symbols if name != ".notdef"]
    builder = FontBuilder(UNITS, isTTF=True)
    builder.setupGlyphOrder(order)
    builder.setupCharacterMap(cmap)
    builder.setupGlyf(glyphs)
    table = builder.font["glyf"]
    for name in order:
        table[name].recalcBounds(table)
    builder.setupHorizontalMetrics({name: (metrics[name], getattr(table[name], "xMin", 0)) for name in order})
    builder.setupHorizontalHeader(ascent=ASCENT, descent=-DESCENT)
    short = face.replace(" ", "")
    builder.setupNameTable(
        {
            "copyright": f"Copyright 2026 {MAKER}",
            "familyName": face,
            "styleName": "Regular",
            "uniqueFontIdentifier": f"{MAKER}: {face}: 1.000",
            "fullName": face,
            "version": VERSION,
            "psName": f"{short}-Regular",
            "manufacturer": MAKER,
            "designer": MAKER,
            "licenseDescription": LICENCE,
        }
    )
    builder.setupOS2(
        sTypoAscender=ASCENT, sTypoDescender=-DESCENT, sTypoLineGap=0, usWinAscent=ASCENT, usWinDescent=DESCENT,
        usWeightClass=400, fsSelection=0x40, achVendID="BRVW", fsType=0,
    )
    builder.setupPost()
    builder.font["head"].created = DATE
    builder.font["head"].modified = DATE
    builder.font.recalcTimestamp = False
    return builder


def main(arguments):
    if len(arguments) != 3:
        print("usage: makefonts.py DATA_DIR FONT_DIR", file=sys.stderr)
        return 1
    data_dir, font_dir = pathlib.Path(arguments[1]), pathlib.Path(arguments[2])
    try:
        made = [(file, font(face, pen_width, data_dir)) for face, file, pen_width in FACES]
        font_dir.mkdir(parents=True, exist_ok=True)
        for file, builder in made:
            builder.save(font_dir / f"{file}.IFT")
    except (FontError, OSError) as fault:
        print(fault, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
