#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
"""Writes what an installed copy says of its release, all of it drawn from CHANGELOG.md.

Use: makerelease.py SOURCE_DIR OUT_DIR

OUT_DIR gets the man pages, the metainfo with its releases, the Debian changelog, the changelog and the copyright file,
packed as Debian wants them. A heading of CHANGELOG.md is "## VERSION, YEAR-MONTH-DAY", the newest first, and a list
of one level under each.
"""

import datetime
import gzip
import re
import sys
import textwrap
from pathlib import Path
from xml.sax.saxutils import escape

MAINTAINER = "Brivanta Works <hello@orvani.example>"
HEADING = re.compile(r"## (\d+\.\d+\.\d+), (\d{4}-\d{2}-\d{2})")


class Release:
    def __init__(self, version, day):
        self.version, self.day, self.changes = version, day, []


def read_changelog(path):
    """The releases, newest first. Ends with file, line and what is right where the form is not kept."""
    releases = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("## "):
            match = HEADING.fullmatch(line)
            try:
                releases.append(Release(match[1], datetime.date.fromisoformat(match[2])))
            except (TypeError, ValueError):
                sys.exit(f"{path.name}:{number}: '{line}' tells no release; give version and day, as in '## 1.0.0, 2026-11-21'")
        elif line.startswith("- ") and releases:
            releases[-1].changes.append(line[2:].strip())
        elif line.startswith("  ") and releases and releases[-1].changes:
            releases[-1].changes[-1] += " " + line.strip()
        elif line.strip() and releases:
            sys.exit(f"{path.name}:{number}: '{line}' is neither a change, which begins with '- ', nor goes on with one")
    if not releases:
        sys.exit(f"{path.name}: no release; begin with a heading as in '## 1.0.0, 2026-11-21'")
    return releases


def plain(change):
    """A change without the marks of Markdown."""
    return change.replace("`", "").replace("**", "")


def debian_changelog(releases):
    entries = []
    for release in releases:
        items = [textwrap.fill(plain(change), 78, initial_indent="  * ", subsequent_indent="    ") for change in release.changes]
        entries.append(
            f"orvani ({release.version}-1) stable; urgency=medium\n\n"
            + "\n".join(items)
            + f"\n\n -- {MAINTAINER}  {release.day.strftime('%a, %d %b %Y')} 00:00:00 +0000\n"
        )
    return "\n".join(entries)


def metainfo_releases(releases):
    lines = []
    for release in releases:
        lines.append(f'    <release version="{release.version}" date="{release.day}">')
        lines.append("      <description>\n        <ul>")
        lines += [f"          <li>{escape(plain(change))}</li>" for change in release.changes]
        lines.append("        </ul>\n      </description>\n    </release>")
    return "\n".join(lines)


def licence_field(text):
    """A licence as a field of a Debian copyright file: indented by one, empty lines as dots."""
    return "\n".join(" " + line if line.strip() else " ." for line in text.rstrip().splitlines())


def pack(path, text):
    """Without a name and a time inside, so that the same text is the same file."""
    path.parent.mkdir(parents=True, exist_ok=True)
    with path.open("wb") as raw, gzip.GzipFile("", "wb", 9, raw, mtime=0) as packed:
        packed.write(text.encode("utf-8"))


def main():
    if len(sys.argv) != 3:
        sys.exit("makerelease.py: give the folder of the sources and the folder to write to")
    source, out = Path(sys.argv[1]), Path(sys.argv[2])
    releases = read_changelog(source / "CHANGELOG.md")
    newest = releases[0]
    words = {"@VERSION@": newest.version, "@DATE@": str(newest.day), "@RELEASES@": metainfo_releases(releases)}

    def filled(path):
        text = path.read_text(encoding="utf-8")
        for mark, word in words.items():
            text = text.replace(mark, word)
        return text

    for page in (source / "packaging/man").glob("*.1.in"):
        pack(out / "man" / (page.stem + ".gz"), filled(page))
    metainfo = source / "packaging/org.brivanta.orvani.metainfo.xml.in"
    (out / metainfo.stem).write_text(filled(metainfo), encoding="utf-8")
    copyright_file = (source / "packaging/debian/copyright.in").read_text(encoding="utf-8")
    licence = licence_field((source / "LICENSE").read_text(encoding="utf-8"))
    (out / "copyright").write_text(copyright_file.replace("@AGPL@", licence), encoding="utf-8")
    pack(out / "changelog.Debian.gz", debian_changelog(releases))
    pack(out / "changelog.gz", (source / "CHANGELOG.md").read_text(encoding="utf-8"))


main()
