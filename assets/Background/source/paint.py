#!/usr/bin/env python3
"""Paints the background pictures: JPEG files of 786 x 1026 pixels, twice the table's logical size, one folder up.

Needs ImageMagick's `convert` for the JPEG coding. `paint.py NAME...` paints the named ones, without names all.
"""
import math
import pathlib
import random
import subprocess
import sys

OUT = pathlib.Path(__file__).resolve().parent.parent
WIDTH, HEIGHT = 786, 1026


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def save(name, text_colour, pixel, quality=86):
    """Writes NAME.jpg from pixel(x, y) -> (r, g, b), with a grain that keeps slow gradients from banding."""
    grain = random.Random(1)
    rows = bytearray()
    for y in range(HEIGHT):
        for x in range(WIDTH):
            g = grain.random() * 2 - 1
            rows += bytes(max(0, min(255, int(c + g + 0.5))) for c in pixel(x, y))
    image = f"P6 {WIDTH} {HEIGHT} 255\n".encode() + bytes(rows)
    subprocess.run(["convert", "ppm:-", "-sampling-factor", "4:4:4", "-quality", str(quality), str(OUT / f"{name}.jpg")],
                   input=image, check=True)
    (OUT / f"{name}.clr").write_text(f"{text_colour}\n", encoding="ascii")


def satin():
    """Softly folded cloth of a middle tone, on which black and white texts can both be read."""
    dark, mid, light = (66, 104, 152), (84, 124, 172), (122, 160, 204)

    def pixel(x, y):
        u, v = x / WIDTH, y / HEIGHT
        bend = 0.16 * math.sin(5.1 * v + 1.9 * u) + 0.07 * math.sin(9.7 * v - 2.3 * u + 1)
        fold = math.sin(13 * (u + bend) + 4 * v) * 0.6 + math.sin(23 * (u * 0.8 + bend * 1.4) - 5 * v + 2) * 0.28
        fold += 0.22 * math.sin(6 * v + 3 * u)
        t = max(-1.0, min(1.0, fold))
        return mix(mid, light, t ** 1.6) if t > 0 else mix(mid, dark, -t)

    save("Satin", 7, pixel)


PICTURES = {"Satin": satin}

if __name__ == "__main__":
    for wanted in sys.argv[1:] or PICTURES:
        PICTURES[wanted]()
