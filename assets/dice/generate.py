#!/usr/bin/env python3
"""Draws the dice sets, the divider and the scoring mark: one SVG per bitmap number beside this file, and the die of the
about box. The faces of a set have the numbers base + 1 to base + 6.
"""
import pathlib
import random
import subprocess
import sys

HERE = pathlib.Path(__file__).parent
sys.dont_write_bytecode = True
sys.path[:0] = [str(HERE.parent), str(HERE)]

import scenes
from scenes import FACES, MARGIN
from svg import (BLACK_PIP, BLUE, BLUE_PIP, IVORY, RED, RED_PIP, around, circle, defs, die_body, hollow, linear, path,
                 picture, pip_places, radial, rect, smooth, star, write)


# --- turned and moulded dice ---------------------------------------------------------------------------------------

def moulded(colours, pip, edge, glint, face, **shape):
    r = 6.6 if face == 1 else 4.6
    return (*die_body("d", *colours, **shape), defs(linear("pip", *pip, x1=0.2, y1=0.1, x2=0.8, y2=0.95)),
            *[hollow(x, y, r, "pip", edge, glint) for x, y in pip_places(face, (22, 22), (11, 11))])


def moulded_set(base, *look, **shape):
    for face in FACES:
        write(HERE / f"{base + face}.svg", 48, 48, *moulded(*look, face, **shape), left=MARGIN)


BLUE_LOOK = BLUE, BLUE_PIP, "#0c1850", ("#6f8eea", 0.55)


def blue():
    moulded_set(100, *BLUE_LOOK)


def red():
    moulded_set(106, RED, RED_PIP, "#4c060d", ("#ee7a78", 0.55))


def antique():
    moulded_set(112, ("#fffffc", "#f8f2e5", "#a8966e", "#74654a"), ((0, "#060c1f"), (0.5, "#0e1b3d"), (1, "#3c5288")), "#060c1f",
                ("#ffffff", 0.95), r=9.8, gloss=0.75)


def green():
    """Small dice seen a little from above: a face and the front edge under it."""
    for face in FACES:
        write(HERE / f"{130 + face}.svg", 29, 31,
              defs(linear("side", (0, "#0a6a22"), (1, "#043a10")),
                   linear("rim", (0, "#b6ffbe"), (0.5, "#2fc04a"), (1, "#0c8a2a"), x2=1),
                   linear("top", (0, "#3fd05a"), (0.5, "#17a336"), (1, "#0a7a26"), x2=1),
                   radial("glow", (0, "#ffffff", 0.5), (1, "#ffffff", 0), cx=0.25, cy=0.2, r=0.6),
                   radial("pip", (0, "#ffffff"), (0.6, "#ffffff"), (1, "#d2ead6"), cx=0.45, cy=0.45, r=0.55)),
              rect(0, 3, 29, 28, 6, fill="url(#side)"), rect(0, 0, 29, 28, 6, fill="url(#rim)"),
              rect(1, 1, 27, 26, 5.2, fill="url(#top)"), rect(1, 1, 27, 26, 5.2, fill="url(#glow)"),
              *[circle(x + 0.3, y + 0.5, 3.2, fill="#04420f") + circle(x, y, 3 if face > 1 else 3.6, fill="url(#pip)")
                for x, y in pip_places(face, (14.5, 14), (7.5, 7.5))])


# --- stars and stripes ---------------------------------------------------------------------------------------------

def patriot():
    """White stars for pips on the dark blue field, inside a white and a red band; the edge shines."""
    def band(inset, fill):
        return rect(inset, inset, 44 - 2 * inset, 44 - 2 * inset, 9.5 - inset * 0.8, fill=fill)

    def pip(x, y, r):
        shade = "".join(star(x + 0.3 * i, y + 0.4 + 0.5 * i, r, fill="#02061e", fill_opacity=0.3) for i in (3, 2, 1))
        return shade + star(x, y + 0.4, r, fill="#ffffff", stroke="#ffffff", stroke_width=0.7, stroke_linejoin="round")

    for face in FACES:
        write(HERE / f"{178 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#ffd8d8"), (0.4, "#f0646a"), (1, "#5c040e"), x2=1),
                   linear("r", (0, "#ee3a44"), (0.5, "#cc1424"), (1, "#900a18"), x2=1),
                   linear("w", (0, "#ffffff"), (0.6, "#f6f6fa"), (1, "#c4c6d4"), x2=1),
                   linear("u", (0, "#3a52c0"), (0.45, "#1a2b8c"), (1, "#0e185a"), x2=1),
                   radial("glow", (0, "#ffffff", 0.35), (1, "#ffffff", 0), cx=0.2, cy=0.15, r=0.6)),
              band(0, "url(#rim)"), band(0.8, "url(#r)"), band(3.4, "url(#w)"), band(5.2, "url(#u)"),
              band(5.2, "url(#glow)"),
              *[pip(x, y, 8.5 if face == 1 else 5.1) for x, y in pip_places(face, (22, 22), (9.8, 10.8))],
              left=MARGIN)


# --- drawn by hand -------------------------------------------------------------------------------------------------

PETAL = (3, 0), (9, 5.6), (17, 8), (23, 3), (23, -3), (17, -8), (9, -5.6)  # (along it, across)


def pablo():
    """Ink and washes by an unsteady hand. Each face is a motif of one studio: an eye, a face, a fish, a butterfly, a
    flower, a guitar; its pips are the spots that the motif has anyway.
    """
    ink, paper = "#2b2620", "#fbf7ea"
    for face in FACES:
        hand = random.Random(f"pablo {face}")

        def shaken(places, by):
            return [(x + hand.uniform(-by, by), y + hand.uniform(-by, by)) for x, y in places]

        def wash(colour, *places):
            return path(smooth(shaken(places, 0.4)), fill=colour, stroke=ink, stroke_width=1, stroke_linejoin="round")

        def stroke(*places, width=1.3):
            return path(smooth(shaken(places, 0.3), closed=False), fill="none", stroke=ink, stroke_width=width,
                        stroke_linecap="round")

        def blot(x, y, r):
            return path(smooth([around(x, y, r * hand.uniform(0.92, 1.08), 45 * i) for i in range(8)]), fill=ink)

        motif = {
            1: lambda: [wash("#ffd9a8", (6, 25), (14, 13), (26, 8), (38, 15), (42, 26), (34, 38), (22, 41), (11, 35)),
                        wash("#fffdf6", (9.5, 25), (16, 18.5), (24, 16.4), (32, 18.4), (38.5, 24.4), (32, 30.6),
                             (24, 32.4), (16, 31)),
                        *[stroke((x, y), (x + dx, y - 4.4))
                          for x, y, dx in ((15, 17, -2), (20.4, 14.6, -1), (26.4, 14.2, 0.6), (32.2, 16, 2))]],
            2: lambda: [wash("#bfe0f2", (24, 6), (36, 8), (42, 20), (41, 34), (32, 42), (22, 42), (27, 33), (21, 27),
                             (25, 18)),
                        wash("#ffe2c0", (24, 6), (25, 18), (21, 27), (27, 33), (22, 42), (12, 38), (6.4, 26), (7, 13),
                             (14, 7)),
                        wash("#fffdf6", (6, 14), (13, 8.6), (20.4, 13.6), (13.4, 18.6)),
                        wash("#fffdf6", (28, 34.4), (35, 29), (42, 33.6), (35.4, 39.4)),
                        stroke((12, 32), (16, 34.6), (21, 33))],
            3: lambda: [wash("#ff9d86", (29, 30), (43, 26), (42, 34), (43.4, 43.4), (34, 42), (26, 43), (30, 29)),
                        wash("#ff9d86", (21, 8), (29, 5.6), (37, 8), (35, 15), (31, 17)),
                        wash("#ffcdba", (7, 7), (12.4, 5.8), (22, 8), (31, 16), (33, 25), (30.6, 30.6), (25, 33),
                             (16, 31), (8, 22), (5.8, 12.4)),
                        stroke((23, 8.4), (21.4, 16), (16, 21.4), (8.4, 23))],
            4: lambda: [*[wash(colour, *[(24 + side * x, y) for x, y in wing])
                          for colour, wing in (("#cfe8b8", ((1, 22), (12, 6), (18, 10), (16, 20))),
                                               ("#f6e487", ((1, 25), (16, 28), (17, 38), (10, 42))))
                          for side in (-1, 1)],
                        stroke((24, 14), (23.7, 24), (24, 37), width=3.2),
                        *[stroke((24, 14), (24 + side * 3, 9), (24 + side * 4.6, 6.6), width=1) for side in (-1, 1)]],
            5: lambda: [*[wash("#dcc2f2", *[around(*around(24, 24, r, turn), w, turn + 90) for r, w in PETAL])
                          for turn in (45, 135, 225, 315)],
                        wash("#fbe27a", *[around(24, 24, 8.2, 30 * i) for i in range(12)])],
            6: lambda: [wash("#f2b872", (17, 4.6), (24, 6), (31, 4.6), (33, 14), (31, 24), (32, 35), (30, 43.4),
                             (18, 43.4), (16, 35), (17, 24), (15, 14)),
                        *[stroke((x, 8), (x + 0.3, 25), (x, 43), width=0.8) for x in (21, 24, 27)],
                        *[stroke((24 + 8 * d, y), (24 + 12 * d, y), width=1.6) for d in (-1, 1) for y in (12, 24, 36)]],
        }[face]()
        edge = [(8, 3.4), (24, 2.8), (40, 3.4), (44.6, 8), (45.1, 24), (44.6, 40), (40, 44.6), (24, 45.2), (8, 44.6),
                (3.4, 40), (2.8, 24), (3.4, 8)]
        outline = smooth(shaken(edge, 0.8))
        pips = [(24, 24)] if face == 1 else pip_places(face, (24, 24), (11, 12 if face == 6 else 11))
        write(HERE / f"{118 + face}.svg", 48, 48,
              path(outline, fill=paper), *motif,
              path(outline, fill="none", stroke=ink, stroke_width=1.9, stroke_linejoin="round"),
              stroke(*edge[1:10], width=0.9),
              *[blot(x, y, 5.6 if face == 1 else 4.4) for x, y in pips])


# --- small parts ---------------------------------------------------------------------------------------------------

def divider():
    write(HERE / "198.svg", 4, 42,
          defs(linear("d", (0, "#fff3c4"), (0.45, "#e0b040"), (1, "#7d5a10"), x2=1, y2=0)),
          rect(0, 0, 4, 42, 1.8, fill="#3a2a08"), rect(0.5, 0.5, 3, 41, 1.4, fill="url(#d)"))


def marker():
    """The flame of a lamp."""
    write(HERE / "199.svg", 5, 5,
          defs(radial("m", (0, "#ffffff"), (0.4, "#e6ffe6", 0.8), (1, "#9dffab", 0))), circle(2.5, 2.5, 2.5, fill="url(#m)"))


def about_die():
    """A GIF has no soft edges: the die has no shadow, and its dark rim ends sharply on whatever ground it stands."""
    drawing = picture(44, 44, *moulded(*BLUE_LOOK, 5))
    image = subprocess.run(["rsvg-convert", "-w", "96", "-h", "96"], input=drawing.encode(), check=True,
                           stdout=subprocess.PIPE).stdout
    data = HERE.parent / "Data"
    data.mkdir(exist_ok=True)
    subprocess.run(["convert", "png:-", "-channel", "A", "-threshold", "50%", "+channel", "+dither", "-colors", "250",
                    "-strip", data / "Dice_Blue_5.gif"], input=image, check=True)


if __name__ == "__main__":
    for draw in (blue, red, antique, pablo, green, patriot, divider, marker, *scenes.SETS):
        draw()
    about_die()
