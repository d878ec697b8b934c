#!/usr/bin/env python3
"""Draws the dice sets: writes one SVG per bitmap number beside this file.

Every file is made for QtSvg, which knows gradients, paths and opacity, but no filters, clips, masks or patterns. Light
comes from the upper left in all sets. Sizes are logical pixels.
"""
import math
import pathlib
import random

HERE = pathlib.Path(__file__).parent


# --- building blocks ---------------------------------------------------------------------------------------------

def num(x):
    return f"{x:.2f}".rstrip("0").rstrip(".")


def linear(name, *stops, x1=0, y1=0, x2=0, y2=1):
    return (f'<linearGradient id="{name}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}">{stop_list(stops)}</linearGradient>')


def radial(name, *stops, cx=0.5, cy=0.5, r=0.5):
    return f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}" fx="{cx}" fy="{cy}">{stop_list(stops)}</radialGradient>'


def stop_list(stops):
    return "".join(f'<stop offset="{o}" stop-color="{c}"' + (f' stop-opacity="{a[0]}"' if a else "") + "/>"
                   for o, c, *a in stops)


def rect(x, y, w, h, r, **style):
    return f'<rect x="{num(x)}" y="{num(y)}" width="{num(w)}" height="{num(h)}" rx="{num(r)}" ry="{num(r)}"{css(style)}/>'


def circle(x, y, r, **style):
    return f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(r)}"{css(style)}/>'


def ellipse(x, y, rx, ry, **style):
    return f'<ellipse cx="{num(x)}" cy="{num(y)}" rx="{num(rx)}" ry="{num(ry)}"{css(style)}/>'


def path(d, **style):
    return f'<path d="{d}"{css(style)}/>'


def polygon(points, **style):
    return path("M" + " L".join(f"{num(x)} {num(y)}" for x, y in points) + " Z", **style)


def line(x1, y1, x2, y2, **style):
    style.setdefault("stroke_linecap", "round")
    return path(f"M{num(x1)} {num(y1)} L{num(x2)} {num(y2)}", fill="none", **style)


def css(style):
    return "".join(f' {k.replace("_", "-")}="{v if isinstance(v, str) else num(v)}"' for k, v in style.items())


def group(*parts, transform=None, opacity=None):
    head = (f' transform="{transform}"' if transform else "") + (f' opacity="{opacity}"' if opacity else "")
    return f"<g{head}>{''.join(parts)}</g>"


def write(number, width, height, *parts):
    text = (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n' + "\n".join(parts) + "\n</svg>\n")
    (HERE / f"{number}.svg").write_text(text, encoding="ascii")


def pip_places(face, size, spread):
    """Centres of the pips of a face on a square of the given side; `spread` is their distance from the middle."""
    m, a, b = size / 2, size / 2 - spread, size / 2 + spread
    return {1: [(m, m)],
            2: [(a, a), (b, b)],
            3: [(a, a), (m, m), (b, b)],
            4: [(a, a), (b, a), (a, b), (b, b)],
            5: [(a, a), (b, a), (m, m), (a, b), (b, b)],
            6: [(a, a), (b, a), (a, m), (b, m), (a, b), (b, b)]}[face]


# --- sets --------------------------------------------------------------------------------------------------------

def cube(light, mid, dark, rim, shine=0.55):
    """The body of a rounded die, lit from the upper left, with a soft shadow on the felt."""
    return [
        "<defs>" + linear("b", (0, light), (0.5, mid), (1, dark), x2=1, y2=1) +
        linear("t", (0, "#ffffff", shine), (1, "#ffffff", 0), x2=0.2, y2=1) + "</defs>",
        rect(2.5, 3.5, 44, 43.5, 10, fill="#000000", fill_opacity=0.28),
        rect(2, 3, 44, 43, 9.5, fill="#000000", fill_opacity=0.22),
        rect(1.5, 1.5, 44, 44, 9, fill="url(#b)", stroke=rim, stroke_width=1),
        rect(2.6, 2.6, 41.8, 41.8, 8, fill="none", stroke="#ffffff", stroke_opacity=shine * 0.7, stroke_width=1.1),
        rect(5, 4.5, 37, 19, 8, fill="url(#t)"),
    ]


def sunk_pip(x, y, r, top, bottom, glint):
    """A pip that lies deep in the face: dark at its upper edge, a glint at its lower one."""
    return (circle(x + 0.5, y + 0.8, r + 0.5, fill=glint, fill_opacity=0.75) +
            circle(x, y, r, fill="url(#p)", stroke=top, stroke_width=0.5) +
            ellipse(x + r * 0.3, y + r * 0.45, r * 0.4, r * 0.28, fill=bottom, fill_opacity=0.55))


def pipped(base, body, pip, glint):
    light, mid, dark, rim, shine = body
    top, bottom = pip
    for face in range(1, 7):
        r = 5.2 if face == 1 else 4.2
        write(base + face, 48, 48, *cube(light, mid, dark, rim, shine),
              "<defs>" + linear("p", (0, top), (1, bottom)) + "</defs>",
              *[sunk_pip(x, y, r, top, bottom, glint) for x, y in pip_places(face, 47, 12)])


def blue():
    pipped(100, ("#5b7fe0", "#2443a8", "#13246b", "#0b1540", 0.45), ("#c9cfdf", "#ffffff"), "#0b1745")


def red():
    pipped(106, ("#e2626a", "#ab1722", "#640a12", "#3c0509", 0.45), ("#dccfc4", "#fffaf0"), "#4a060c")


def antique():
    pipped(112, ("#fbfaf5", "#e3e1d8", "#b9b5a8", "#6d6a60", 0.8), ("#14120f", "#4d473d"), "#ffffff")


def divider():
    write(198, 4, 42, "<defs>" + linear("d", (0, "#fff3c4"), (0.45, "#e0b040"), (1, "#7d5a10"), x2=1, y2=0) + "</defs>",
          rect(0, 0, 4, 42, 1.8, fill="#3a2a08"), rect(0.5, 0.5, 3, 41, 1.4, fill="url(#d)"))


def marker():
    write(199, 5, 5, "<defs>" + radial("m", (0, "#b8ffb0"), (0.5, "#2fe03a"), (1, "#0a9a1c"), cx=0.4, cy=0.35, r=0.7) +
          "</defs>", circle(2.5, 2.5, 2.5, fill="#063d0c"), circle(2.5, 2.5, 2.1, fill="url(#m)"))


if __name__ == "__main__":
    for draw in (blue, red, antique, divider, marker):
        draw()
