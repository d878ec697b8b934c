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
from svg import (BLACK_PIP, BLUE, BLUE_PIP, IVORY, RED, RED_PIP, circle, defs, die_body, hollow, line, linear, path,
                 pip_places, radial, rect, shadow, smooth, star, write)


# --- turned and moulded dice ---------------------------------------------------------------------------------------

def moulded(base, colours, pip, edge, glint, **shape):
    die = shadow(0, 0, 44, 44, shape.get("r", 10), 4, 0.1), *die_body("d", *colours, **shape)
    for face in FACES:
        r = 5.6 if face == 1 else 4.4
        write(HERE / f"{base + face}.svg", 48, 48, *die,
              defs(linear("pip", *pip, x1=0.2, y1=0.1, x2=0.8, y2=0.95)),
              *[hollow(x, y, r, "pip", edge, glint) for x, y in pip_places(face, (22, 22), (11, 11))],
              left=MARGIN)


def blue():
    moulded(100, BLUE, BLUE_PIP, "#0c1850", ("#6f8eea", 0.55))


def red():
    moulded(106, RED, RED_PIP, "#4c060d", ("#ee7a78", 0.55))


def antique():
    moulded(112, IVORY, BLACK_PIP, "#15130f", ("#ffffff", 0.95), r=11, gloss=0.75)


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
    """Three bands, a star on each for a pip; a silver edge keeps the blue band off the blue tray."""
    def rounded(top, bottom):
        """A band of the face, round at its outer corners."""
        r, x1, x2 = 6.5, 3, 41
        up, down = f"M{x1} {top} H{x2}", f"V{bottom} H{x1} Z"
        if top == 3:
            up = f"M{x1} {top + r} Q{x1} {top} {x1 + r} {top} H{x2 - r} Q{x2} {top} {x2} {top + r}"
        if bottom == 41:
            down = f"V{bottom - r} Q{x2} {bottom} {x2 - r} {bottom} H{x1 + r} Q{x1} {bottom} {x1} {bottom - r} Z"
        return f"{up} {down}"

    def pip(x, y, colour):
        return star(x, y + 0.4, 5.6, fill=colour, stroke=colour, stroke_width=0.6, stroke_linejoin="round")

    for face in FACES:
        write(HERE / f"{178 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#ffffff"), (0.45, "#d4d8e4"), (1, "#7c8296"), x2=1),
                   linear("u", (0, "#3d55c4"), (0.5, "#1b2c8e"), (1, "#0e1a62"), x2=1, y2=0.6),
                   linear("w", (0, "#ffffff"), (0.5, "#f4f4f8"), (1, "#c8cad6"), x2=1, y2=0.6),
                   linear("d", (0, "#ee4a52"), (0.5, "#c81626"), (1, "#8c0a16"), x2=1, y2=0.6),
                   radial("glow", (0, "#ffffff", 0.5), (1, "#ffffff", 0), cx=0.25, cy=0.15, r=0.6)),
              shadow(0, 0, 44, 44, 9, 4, 0.12),
              rect(0, 0, 44, 44, 9, fill="#050a30"), rect(0.75, 0.75, 42.5, 42.5, 8.4, fill="url(#rim)"),
              path(rounded(3, 16), fill="url(#u)"), path(rounded(16, 28), fill="url(#w)"),
              path(rounded(28, 41), fill="url(#d)"),
              rect(3, 3, 38, 38, 6.5, fill="url(#glow)"),
              *[pip(x, y, "#14206e") if y == 22 else pip(x + 0.6, y + 0.8, "#060a2a") + pip(x, y, "#ffffff")
                for x, y in pip_places(face, (22, 22), (11.5, 12.4))],
              left=MARGIN)


# --- drawn by hand -------------------------------------------------------------------------------------------------

def pablo():
    """Ink on paper by an unsteady hand: no two strokes alike, the colour wash a little off its outline."""
    ink, washes = "#2b2620", ("#ffd9a8", "#bfe0f2", "#ffc4b8", "#cfe8b8", "#e2ccf0", "#fbe79a")
    for face in FACES:
        hand = random.Random(f"pablo {face}")

        def shake(x, y, by):
            return x + hand.uniform(-by, by), y + hand.uniform(-by, by)

        def box(inset, by):
            a, b, m, c = inset, 48 - inset, 24, 4.5
            return [shake(x, y, by) for x,
                    y in ((a + c, a), (m, a - 0.6), (b - c, a), (b, a + c), (b + 0.5, m), (b, b - c), (b - c, b),
                                                 (m, b + 0.6), (a + c, b), (a, b - c), (a - 0.6, m), (a, a + c))]

        def blot(x, y, r):
            ring = [(x + r * hand.uniform(0.9, 1.1) * dx, y + r * hand.uniform(0.9, 1.1) * dy)
                    for dx, dy in ((0, -1), (0.7, -0.7), (1, 0), (0.7, 0.7), (0, 1), (-0.7, 0.7), (-1, 0),
                                   (-0.7, -0.7))]
            return path(smooth(ring), fill=ink)

        outline = box(3.4, 0.9)
        parts = [path(smooth(outline), fill="#fbf7ea")]
        # the wash: one slanting patch of colour that leaves a corner of the paper bare
        cut, slant = hand.uniform(8, 15), hand.uniform(4, 12)
        wash = [shake(x, y, 0.8) for x,
                y in ((6 + cut, 6), (24 + cut / 2, 5.6), (42.5, 6), (42.8, 24), (42.5, 42.2), (26, 42.6),
                                              (6 + slant, 42), (5.8 + slant / 2, 33 + cut / 4), (6 + cut * 0.6, 20))]
        parts.append(path(smooth(wash), fill=washes[face - 1]))
        parts += [line(*shake(38.6 + i * 2, 43, 0.3), *shake(43, 38.2 + i * 2, 0.3), stroke=ink, stroke_opacity=0.5,
                       stroke_width=0.7) for i in range(-1, 2)]
        parts.append(path(smooth(outline), fill="none", stroke=ink, stroke_width=1.9, stroke_linejoin="round"))
        parts.append(path(smooth(box(3.0, 1.3)[1:11], closed=False), fill="none", stroke=ink, stroke_width=0.9,
                          stroke_linecap="round", stroke_opacity=0.85))
        if face == 1:
            parts += [path("M13 25.5 C17 17.5 30 16.5 35.5 23.5 C31 31 18.5 32 13 25.5 Z", fill="#fffdf6", stroke=ink,
                           stroke_width=1.7, stroke_linejoin="round"),
                      blot(24.4, 24.2, 5.2), circle(22.8, 22.4, 1.5, fill="#fffdf6"),
                      *[line(x, y, x + dx, y - 3.6, stroke=ink, stroke_width=1.2)
                        for x, y, dx in ((17, 18.5, -1.4), (21.6, 16.6, -0.6), (26.6, 16.2, 0.5), (31, 17.6, 1.5))]]
        else:
            parts += [blot(*shake(x, y, 0.9), 4.5) for x, y in pip_places(face, (24, 24), (10.8, 10.8))]
        write(HERE / f"{118 + face}.svg", 48, 48, *parts)


# --- small parts ---------------------------------------------------------------------------------------------------

def divider():
    write(HERE / "198.svg", 4, 42,
          defs(linear("d", (0, "#fff3c4"), (0.45, "#e0b040"), (1, "#7d5a10"), x2=1, y2=0)),
          rect(0, 0, 4, 42, 1.8, fill="#3a2a08"), rect(0.5, 0.5, 3, 41, 1.4, fill="url(#d)"))


def marker():
    write(HERE / "199.svg", 5, 5,
          defs(radial("m", (0, "#b8ffb0"), (0.5, "#2fe03a"), (1, "#0a9a1c"), cx=0.4, cy=0.35, r=0.7)),
          circle(2.5, 2.5, 2.5, fill="#063d0c"), circle(2.5, 2.5, 2.1, fill="url(#m)"))


def about_die():
    """A GIF has no soft edges: the die lies on the ground of the dialog, and what is pure ground is left out."""
    ground = "rgb(239,239,239)"
    image = subprocess.run(["rsvg-convert", "-w", "96", "-h", "96", HERE / "105.svg"], check=True,
                           capture_output=True).stdout
    data = HERE.parent / "Data"
    data.mkdir(exist_ok=True)
    subprocess.run(["convert", "png:-", "-background", ground, "-flatten", "-transparent", ground, "+dither",
                    "-colors", "250",
                    "-strip", data / "Dice_Blue_5.gif"], input=image, check=True)


if __name__ == "__main__":
    for draw in (blue, red, antique, pablo, green, patriot, divider, marker, *scenes.SETS):
        draw()
    about_die()
