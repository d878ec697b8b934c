#!/usr/bin/env python3
"""Paints the background pictures: JPEG files of 786 x 1026 pixels, twice the size in which the table shows them, one folder up.

Needs ImageMagick's `convert` for the JPEG coding and librsvg's `rsvg-convert` for the drawn ones.
`paint.py NAME...` paints the named ones, without names all. Satin belongs to the materials of the windows, which have a
program of their own.
"""
import sys

import animals
import cloth
import drawings
import plants

PICTURES = {
    "Autumn": plants.autumn,
    "Baby Seal": animals.baby_seal,
    "Blonde Chick": animals.blonde_chick,
    "Blueprints": drawings.blueprints,
    "CC Moose": animals.moose,
    "Evergreen": plants.evergreen,
    "Nautical": drawings.nautical,
    "Old Glory": cloth.old_glory,
    "Quacker": animals.quacker,
    "Strawberries": plants.strawberries,
}

if __name__ == "__main__":
    for wanted in sys.argv[1:] or PICTURES:
        PICTURES[wanted]()
