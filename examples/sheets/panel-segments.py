#!/usr/bin/env python3
"""Makes texts/fonts/PanelSegments.otf, the font of the example's readouts: digits, letters and signs of 14 segments.

Only needed to change the font. Wants Debian's python3-fonttools.
"""

import math
import pathlib

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.t2CharStringPen import T2CharStringPen

# In units of which an em has 1000. A digit is WIDTH x HEIGHT, its segments are THICKNESS wide, GAP apart.
WIDTH, HEIGHT, THICKNESS, GAP = 480, 720, 84, 12
ADVANCE, LEFT, SLANT = 620, 60, 0.07

T, HALF, MIDDLE = THICKNESS / 2, HEIGHT / 2, WIDTH / 2


def bar(x1, y1, x2, y2):
    """A segment between two points, pointed at both ends."""
    length = math.hypot(x2 - x1, y2 - y1)
    ux, uy = (x2 - x1) / length, (y2 - y1) / length
    x1, y1, x2, y2 = x1 + ux * GAP, y1 + uy * GAP, x2 - ux * GAP, y2 - uy * GAP
    return [
        (x1, y1),
        (x1 + T * (ux - uy), y1 + T * (uy + ux)),
        (x2 - T * (ux + uy), y2 - T * (uy - ux)),
        (x2, y2),
        (x2 - T * (ux - uy), y2 - T * (uy + ux)),
        (x1 + T * (ux + uy), y1 + T * (uy - ux)),
    ]


def diagonal(x1, y1, x2, y2):
    """A slanted segment in the field between two corners, clear of the segments around it."""
    inset, cut = T + GAP, THICKNESS * 0.75
    sx, sy = (1 if x2 > x1 else -1), (1 if y2 > y1 else -1)
    x1, x2, y1, y2 = x1 + sx * inset, x2 - sx * inset, y1 + sy * inset, y2 - sy * inset
    return [(x1, y1), (x1 + sx * cut * 0.6, y1), (x2, y2 - sy * cut), (x2, y2), (x2 - sx * cut * 0.6, y2), (x1, y1 + sy * cut)]


def dot(y):
    return [(MIDDLE - T, y), (MIDDLE - T, y + THICKNESS), (MIDDLE + T, y + THICKNESS), (MIDDLE + T, y)]


RIGHT, TOP, BOTTOM, INNER = WIDTH - T, HEIGHT - T, T, T
SEGMENTS = {
    "a": bar(INNER, TOP, RIGHT, TOP),
    "b": bar(RIGHT, HALF, RIGHT, TOP),
    "c": bar(RIGHT, BOTTOM, RIGHT, HALF),
    "d": bar(INNER, BOTTOM, RIGHT, BOTTOM),
    "e": bar(INNER, BOTTOM, INNER, HALF),
    "f": bar(INNER, HALF, INNER, TOP),
    "g": bar(INNER, HALF, MIDDLE, HALF),
    "G": bar(MIDDLE, HALF, RIGHT, HALF),
    "h": diagonal(INNER, TOP, MIDDLE, HALF),
    "i": bar(MIDDLE, HALF, MIDDLE, TOP),
    "j": diagonal(RIGHT, TOP, MIDDLE, HALF),
    "k": diagonal(INNER, BOTTOM, MIDDLE, HALF),
    "l": bar(MIDDLE, BOTTOM, MIDDLE, HALF),
    "m": diagonal(RIGHT, BOTTOM, MIDDLE, HALF),
    ".": dot(0),
    ":": dot(HEIGHT * 0.62),
    ";": dot(HEIGHT * 0.2),
}

CHARACTERS = {
    "0": "abcdef", "1": "bc", "2": "abdegG", "3": "abcdgG", "4": "bcfgG", "5": "acdfgG", "6": "acdefgG", "7": "abc",
    "8": "abcdefgG", "9": "abcdfgG", "A": "abcefgG", "B": "abcdGil", "C": "adef", "D": "abcdil", "E": "adefgG",
    "F": "aefg", "G": "acdefG", "H": "bcefgG", "I": "adil", "J": "bcde", "K": "efgjm", "L": "def", "M": "bcefhj",
    "N": "bcefhm", "O": "abcdef", "P": "abefgG", "Q": "abcdefm", "R": "abefgGm", "S": "acdfgG", "T": "ail",
    "U": "bcdef", "V": "efjk", "W": "bcefkm", "X": "hjkm", "Y": "hjl", "Z": "adjk", "-": "gG", "+": "gGil",
    "*": "gGhijklm", "/": "jk", "=": "dgG", "_": "d", "'": "i", '"': "fi", "(": "jm", ")": "hk", "?": "abGl",
    "%": "fjkc", "°": "abfgG", "!": "i.", ".": ".", ",": ".", ":": ":;", " ": "",
}
NARROW = set(".,:")


def outline(segments, shift):
    return [[(LEFT - shift + x + SLANT * y, y) for x, y in SEGMENTS[s]] for s in segments]


def char_string(polygons, advance):
    pen = T2CharStringPen(advance, None)
    for polygon in polygons:
        points = [(round(x), round(y)) for x, y in polygon]
        # Postscript outlines run counter-clockwise.
        area = sum(p[0] * q[1] - q[0] * p[1] for p, q in zip(points, points[1:] + points[:1]))
        points = points if area > 0 else points[::-1]
        pen.moveTo(points[0])
        for point in points[1:]:
            pen.lineTo(point)
        pen.closePath()
    return pen.getCharString()


def main():
    glyphs, metrics, codes = {".notdef": char_string([], ADVANCE)}, {".notdef": (ADVANCE, 0)}, {}
    for character, segments in CHARACTERS.items():
        name = f"uni{ord(character):04X}"
        advance = 340 if character == " " else 240 if character in NARROW else ADVANCE
        shift = LEFT + MIDDLE - 120 if character in NARROW else 0
        glyphs[name] = char_string(outline(segments, shift), advance)
        metrics[name] = (advance, 0)
        codes[ord(character)] = name
        if character.isalpha():
            codes[ord(character.lower())] = name

    builder = FontBuilder(1000, isTTF=False)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap(codes)
    builder.setupHorizontalMetrics(metrics)
    builder.setupHorizontalHeader(ascent=860, descent=-160)
    builder.setupCFF("PanelSegments", {"FullName": "Panel Segments"}, glyphs, {})
    builder.setupNameTable({
        "familyName": "Panel Segments", "styleName": "Regular", "uniqueFontIdentifier": "Panel Segments 1.0",
        "fullName": "Panel Segments", "psName": "PanelSegments", "version": "Version 1.0",
        "licenseDescription": "Part of Meridane and under its licence.",
    }, mac=False)
    builder.setupOS2(sTypoAscender=860, sTypoDescender=-160, sTypoLineGap=0, usWinAscent=860, usWinDescent=160,
                     sCapHeight=HEIGHT, sxHeight=HEIGHT)
    builder.setupPost()
    # The same bytes each time.
    builder.setupHead(unitsPerEm=1000, created=3786912000, modified=3786912000)
    builder.font.recalcTimestamp = False
    builder.save(pathlib.Path(__file__).parent / "texts" / "fonts" / "PanelSegments.otf")


if __name__ == "__main__":
    main()
