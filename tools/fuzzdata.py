#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Brivanta Works
# SPDX-License-Identifier: AGPL-3.0-or-later
"""Makes the small data folder that the fuzz targets spoil: the real one with few places, three persons, their residences and short texts,
in small pages. Fuzzing a store of megabytes would change nothing but places that nobody looks at.

    fuzzdata.py EPHE OUT    writes OUT/EPHE, and OUT/seeds with each store as a first input
"""
import os
import shutil
import sqlite3
import sys

PERSONS = [
    # Name, Sex, Day, Month, Year, Hour, Minutes, seconds, AMPM, City, Country, LatDeg, LatMT, TextNS, LongDeg, LongMT, TextEW, GMTDIFF, TCorrVal, Tcorrinde
    ("Anvik Telvar", 1, 23, 7, 1980, 10, 50, 0, 1, "Agra", "India", 27, 9, "N", 78, 0, "E", "+05.30", None, 0),
    ("Liora O'Brien", 2, 29, 2, 1904, 23, 59, 59, 2, "Reykjavik", "Iceland", 64, 9, "N", 21, 57, "W", "-01.28", "+00.30", 2),
    ("Meera", 2, 1, 1, 2000, 0, 0, 0, 1, "Suva", "Fiji", 18, 8, "S", 178, 26, "E", "+12.00", "-01.00", 1),
]
RESIDENCES = [
    # Name, City, Country, GMTDIFF, LatDeg, LatMT, LongDeg, LongMT, TextNS, TextEW
    ("Anvik Telvar", "Delhi", "India", "+05.30", 28, 40, 77, 13, "N", "E"),
    ("Meera", "Auckland", "New Zealand", "+12.00", 36, 51, 174, 46, "S", "E"),
]


def change(path, work):
    store = sqlite3.connect(path, isolation_level=None)
    work(store)
    store.execute("PRAGMA page_size = 512")
    store.execute("VACUUM")
    store.close()


def persons(store):
    store.execute("DELETE FROM City WHERE City NOT IN ('Agra', 'Delhi', 'Suva', 'Springfield')")
    store.execute("DELETE FROM Country WHERE Name NOT IN ('India', 'Fiji', 'Iceland', 'United States of America')")
    store.execute("DELETE FROM Person")
    store.executemany(f"INSERT INTO Person VALUES ({','.join('?' * 20)})", PERSONS)


def residences(store):
    store.executemany(f"INSERT INTO PERSON VALUES ({','.join('?' * 10)})", RESIDENCES)


def texts(store):
    for (table,) in store.execute("SELECT name FROM sqlite_master WHERE type = 'table' AND name <> 'Origin'").fetchall():
        store.execute(f"UPDATE {table} SET Val = substr(Val, 1, 24)")


def main(ephe, out):
    target = os.path.join(out, "EPHE")
    shutil.rmtree(out, ignore_errors=True)
    for folder in ("COMMON", "ENGLISH", "INIFILES"):
        os.makedirs(os.path.join(target, folder))
        for entry in os.scandir(os.path.join(ephe, folder)):
            if entry.stat().st_size < 1000 or entry.name in ("RECOS.Dat", "Daily.dat", "LANGS.Dat", "ENGLISH.DAT"):
                shutil.copyfile(entry.path, os.path.join(target, folder, entry.name))
    stores = {
        "persons_store": ("COMMON/RECOS.Dat", persons),
        "residences_store": ("COMMON/Daily.dat", residences),
        "languages_store": ("COMMON/LANGS.Dat", lambda store: None),
        "texts_store": ("ENGLISH/ENGLISH.DAT", texts),
    }
    for seed, (path, work) in stores.items():
        change(os.path.join(target, path), work)
        os.makedirs(os.path.join(out, "seeds", seed))
        shutil.copyfile(os.path.join(target, path), os.path.join(out, "seeds", seed, "sound"))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
