#!/usr/bin/env python3
"""Paints the materials of the windows beside this file, and the table's satin: cloths and felt as JPEG files of twice the
size in which they are shown, all that has edges as SVG. `paint.py NAME...` paints the named ones, without names all.

Needs ImageMagick's `convert` and librsvg's `rsvg-convert`.
"""
import math
import pathlib
import random
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path[:0] = [str(HERE.parent), str(HERE.parent / "Background/source")]

import cloths
import damask
from brush import HEIGHT, Noise, WIDTH
from svg import circle, defs, linear, path, picture, polygon, radial, rect, stop_list, write

BRASS = (0, "#a87c34"), (0.25, "#f2d48a"), (0.48, "#bd8c3c"), (0.72, "#ecca7c"), (1, "#f6e2a8")
GRAIN = "#34180d", "#4a2817", "#5b3420", "#6d4128", "#7d4c2f"


def satin():
    cloths.jpeg(HERE.parent / "Background/Satin.jpg", cloths.pearl(), 72)  # the first that is decoded: within the start
    (HERE.parent / "Background/Satin.clr").write_text("0\n", encoding="ascii")


def navy():
    cloths.jpeg(HERE / "navy.jpg", cloths.navy(), 82)


def below(distance, sigma):
    """How much of a soft edge lies behind, 0 to 1."""
    return 0.5 + 0.5 * math.erf(distance / sigma / math.sqrt(2))


def felt():
    """A grey one, to be dyed: light from the upper left, fibres, and the shadow of the rim."""
    width, height = 718, 100
    fine, mottle, chance = Noise(3), Noise(4), random.Random(9)
    dots = bytearray()
    for y in range(height):
        for x in range(width):
            u, v = x / 2, y / 2
            tone = 1.12 - 0.20 * min(1, math.hypot(u - 110, (v - 10) * 2) / 250)
            tone *= 1 - 0.16 * (1 - below(min(u, 359 - u) - 10, 9)) - 0.10 * (1 - below(50 - v - 4, 4))
            tone *= 1 + 0.030 * fine.at(x * 0.9, y * 0.9) + 0.026 * fine.at(x * 0.24 + 40, y * 0.24) + 0.02 * mottle.at(x / 34, y / 34)
            tone += chance.uniform(-0.02, 0.02)
            tone *= 1 - 0.50 * (1 - below(v - 3.5, 3.6) * below(u - 2.4, 3.6))
            tone *= 1 - 0.45 * (1 - below(v - 0.8, 1.1) * below(u - 0.6, 1.1))
            dots.append(max(0, min(255, int(168 * tone))))
    subprocess.run(["convert", "pgm:-", "-quality", "86", str(HERE / "felt.jpg")],
                   input=f"P5 {width} {height} 255\n".encode() + bytes(dots), check=True)


# --- the tray ------------------------------------------------------------------------------------------------------

LEFT, TOP, RIGHT, FOOT = 3, 18, 388, 157  # the body of wood
OPENINGS = (12, 29, 379, 82), (12, 92, 379, 145)
RADIUS = 6.5


def cast(x0, y0, x1, y1, sigma, strength):
    """The shadow of a box on the cloth, with a soft edge all round."""
    reach = 2.6 * sigma
    stops = [(i / 12, "#33261a", strength * (1 - below((i / 12 - 0.5) * 2 * reach, sigma))) for i in range(13)]
    name = f"s{int(sigma * 10)}"
    inner = x0 + reach, y0 + reach, x1 - reach, y1 - reach
    back = [(1 - o, c, a) for o, c, a in stops[::-1]]
    gradients = [linear(f"{name}r", *stops, x2=1, y2=0), linear(f"{name}l", *back, x2=1, y2=0), linear(f"{name}b", *stops),
                 linear(f"{name}t", *back)]
    parts = [rect(inner[2], inner[1], 2 * reach, inner[3] - inner[1], fill=f"url(#{name}r)"),
             rect(inner[0] - 2 * reach, inner[1], 2 * reach, inner[3] - inner[1], fill=f"url(#{name}l)"),
             rect(inner[0], inner[3], inner[2] - inner[0], 2 * reach, fill=f"url(#{name}b)"),
             rect(inner[0], inner[1] - 2 * reach, inner[2] - inner[0], 2 * reach, fill=f"url(#{name}t)")]
    for cx, x in ((inner[2], inner[2]), (inner[0], inner[0] - 2 * reach)):
        for cy, y in ((inner[3], inner[3]), (inner[1], inner[1] - 2 * reach)):
            gradients.append(f'<radialGradient id="{name}c{len(parts)}" gradientUnits="userSpaceOnUse" cx="{cx}" cy="{cy}" '
                             f'r="{2 * reach}" fx="{cx}" fy="{cy}">{stop_list(stops)}</radialGradient>')
            parts.append(rect(x, y, 2 * reach, 2 * reach, fill=f"url(#{name}c{len(parts)})"))
    return defs(*gradients) + "".join(parts)


def grain(x0, y0, x1, y1, rng, count):
    """Long dark and light veins along the longer side."""
    upright = y1 - y0 > x1 - x0
    length, width = (y1 - y0, x1 - x0) if upright else (x1 - x0, y1 - y0)
    veins = []
    for _ in range(count):
        long, thick = rng.uniform(14, 90) if length > 60 else length * 0.8, rng.uniform(0.35, 1.0)
        a, b = rng.uniform(0, max(1, length - long)), rng.uniform(0.8, width - 0.8)
        bow = max(0.4, min(width - 0.4, b + rng.uniform(-1.4, 1.4))) - b
        places = [(a, b), (a + long / 2, b + bow + thick), (a + long, b), (a + long / 2, b + bow - thick)]
        (p, q, r, s) = [(x0 + v, y0 + u) if upright else (x0 + u, y0 + v) for u, v in places]
        d = f"M{p[0]:.1f} {p[1]:.1f}Q{q[0]:.1f} {q[1]:.1f} {r[0]:.1f} {r[1]:.1f}Q{s[0]:.1f} {s[1]:.1f} {p[0]:.1f} {p[1]:.1f}Z"
        dark = rng.random() < 0.62
        veins.append(path(d, fill="#220d05" if dark else "#a8703f", fill_opacity=rng.uniform(0.25, 0.6) if dark else rng.uniform(0.2, 0.45)))
    return "".join(veins)


def rail(name, shape, box, lit, rng, count):
    """A mitred rail; `lit` are the strengths of light from its outer to its inner edge, below 0 of shade."""
    x0, y0, x1, y1 = box
    upright = y1 - y0 > x1 - x0
    stops = [(o, "#ffcb96" if k > 0 else "#120500", abs(k)) for o, k in lit]
    body = linear(f"{name}w", (0, GRAIN[2]), (0.5, GRAIN[3]), (1, GRAIN[2]), x2=1, y2=0) if not upright else \
        linear(f"{name}w", (0, GRAIN[2]), (0.5, GRAIN[3]), (1, GRAIN[2]))
    light = linear(f"{name}l", *stops, x2=1, y2=0) if upright else linear(f"{name}l", *stops)
    return (defs(body, light) + polygon(shape, fill=f"url(#{name}w)") + grain(*box, rng, count)
            + polygon(shape, fill=f"url(#{name}l)"))


def stud(x, y):
    """A lamp that doesn't burn: a brass ring round a dark bowl."""
    return (circle(x + 0.5, y + 1, 4.6, fill="#120500", fill_opacity=0.5) + circle(x, y, 4.3, fill="url(#stud)")
            + circle(x, y, 2.9, fill="#2a1a0a") + circle(x, y, 2.5, fill="url(#bowl)")
            + circle(x - 0.8, y - 0.9, 0.7, fill="#ffffff", fill_opacity=0.35))


def opening(x0, y0, x1, y1, number):
    """Brass round it, its dark bed, and the two inner walls that face the light, right and below."""
    right, low = x1 - 7, y1 - 3
    return (rect(x0 - 2, y0 - 2, x1 - x0 + 4, y1 - y0 + 4, 3, fill="#1e0e06")
            + rect(x0 - 1.5, y0 - 1.5, x1 - x0 + 3, y1 - y0 + 3, 2.5, fill="none", stroke="url(#brass)", stroke_width=1.1)
            + rect(x0 - 0.5, y0 - 0.5, x1 - x0 + 1, y1 - y0 + 1, 1.5, fill="#160803")
            + polygon([(x1, y0), (x1, y1), (right, low), (right, y0)], fill="url(#wallr)")
            + polygon([(x0, y1), (x1, y1), (right, low), (x0, low)], fill="url(#wallf)"))


def tray():
    rng = random.Random(12)
    (ax, ay, bx, by), (_, cy, _, dy) = OPENINGS
    top = [(LEFT, TOP), (RIGHT, TOP), (bx, ay), (ax, ay)]
    foot = [(ax, dy), (bx, dy), (RIGHT, FOOT), (LEFT, FOOT)]
    left = [(LEFT, TOP), (ax, ay), (ax, dy), (LEFT, FOOT)]
    right = [(RIGHT, TOP), (RIGHT, FOOT), (bx, dy), (bx, ay)]
    middle = [(ax, by), (bx, by), (bx, cy), (ax, cy)]
    facing, away = [(0, 0.36), (0.22, 0.26), (0.6, 0.05), (1, -0.5)], [(0, 0.34), (0.35, 0.13), (0.7, -0.10), (1, -0.45)]
    corner = RADIUS
    # The corners of the rails are rounded by the outline, which lies over their tips.
    body = f"M{LEFT + corner} {TOP}H{RIGHT - corner}A{corner} {corner} 0 0 1 {RIGHT} {TOP + corner}V{FOOT - corner}" \
           f"A{corner} {corner} 0 0 1 {RIGHT - corner} {FOOT}H{LEFT + corner}A{corner} {corner} 0 0 1 {LEFT} {FOOT - corner}" \
           f"V{TOP + corner}A{corner} {corner} 0 0 1 {LEFT + corner} {TOP}Z"

    def cut(shape):
        """The tips of a mitred rail lie within the rounded corner."""
        k = corner * 0.3
        mx, my = (LEFT + RIGHT) / 2, (TOP + FOOT) / 2
        return [(x + (k if x == LEFT else -k if x == RIGHT else 0), y + (k if y == TOP else -k if y == FOOT else 0))
                for x, y in shape] if shape is not middle else shape
    rails = []
    for name, shape, box, lit, count in (
            ("a", top, (LEFT + 6, TOP, RIGHT - 6, ay), facing, 60), ("b", foot, (LEFT + 6, dy, RIGHT - 6, FOOT), away, 60),
            ("c", left, (LEFT, TOP + 8, ax, FOOT - 8), facing, 24), ("d", right, (bx, TOP + 8, RIGHT, FOOT - 8), away, 24),
            ("e", middle, (ax, by, bx, cy), [(0, 0.34), (0.25, 0.22), (0.65, 0.02), (1, -0.5)], 54)):
        rails.append(rail(name, cut(shape), box, lit, rng, count))
    seams = "".join(path(f"M{x0} {y0}L{x1} {y1}", fill="none", stroke="#1c0c05", stroke_opacity=0.7, stroke_width=0.8)
                    for x0, y0, x1, y1 in ((LEFT + 2, TOP + 2, ax, ay), (RIGHT - 2, TOP + 2, bx, ay),
                                           (LEFT + 2, FOOT - 2, ax, dy), (RIGHT - 2, FOOT - 2, bx, dy)))
    shade = picture(391, 200, cast(LEFT, TOP + 6, RIGHT, FOOT + 7, 8, 0.48), cast(LEFT + 0.4, TOP + 2, RIGHT + 0.4, FOOT + 3.6, 2.4, 0.5))
    subprocess.run(["rsvg-convert", "-w", "130", "-h", "67", "-o", HERE / "shadow.png"], input=shade.encode(), check=True)
    wood = picture(391, 200, rect(0, 0, 391, 200, fill="#1e0e06"),
          defs(linear("brass", *BRASS, x2=1, y2=1), linear("side", (0, "#3a2012"), (1, "#1e0e06")),
               linear("bevel", (0, "#c08654"), (0.5, "#8f5a35", 0.6), (0.75, "#8f5a35", 0), (1, "#8f5a35", 0), x2=1, y2=1),
               linear("wallr", (0, "#4a2412"), (1, "#a4693c"), x2=1, y2=0), linear("wallf", (0, "#4a2412"), (1, "#a4693c")),
               radial("stud", (0, "#fff0c0"), (0.45, "#d9a94e"), (1, "#6f4f22"), cx=0.32, cy=0.28, r=0.8),
               radial("bowl", (0, "#5a4020"), (1, "#8e6a34"), cx=0.3, cy=0.25, r=0.8)),
          path(body, fill="url(#side)", ).replace("<path", '<path transform="translate(0 2)"'),
          path(body, fill=GRAIN[2]), *rails, seams,
          path(body, fill="none", stroke="#2a160c", stroke_width=1),
          rect(LEFT + 1, TOP + 1, RIGHT - LEFT - 2, FOOT - TOP - 2, corner - 1, fill="none", stroke="url(#bevel)", stroke_width=1),
          *[opening(*place, number) for number, place in enumerate(OPENINGS)],
          *[stud(x + 1.5, 23) for x in (40, 100, 159, 219, 279, 338)])
    for scale in (1, 2, 4):
        png = subprocess.run(["rsvg-convert", "-z", str(scale)], input=wood.encode(), stdout=subprocess.PIPE, check=True).stdout
        cut = f"{(RIGHT - LEFT) * scale}x{(FOOT + 2 - TOP) * scale}+{LEFT * scale}+{TOP * scale}"
        subprocess.run(["convert", "png:-", "-crop", cut, "+repage", "-sampling-factor", "4:4:4" if scale < 4 else "4:2:0", "-quality", "84",
                        HERE / f"tray_{scale}.jpg"], input=png, check=True)


def lamp():
    """A lamp that burns, over a stud of the tray, and its light on the die below; among the numbered bitmaps, for the table draws it round a mark."""
    x, y, die = 22.5, 11, 20  # px, where the die below begins
    write(HERE.parent / "dice/200.svg", 45, 44,
          defs(radial("halo", (0, "#7dff90", 1), (0.42, "#46e868", 0.72), (0.7, "#2fd850", 0.26), (1, "#2fd850", 0)),
               radial("ring", (0, "#fff4c8"), (0.5, "#dcb054"), (1, "#7a5826"), cx=0.32, cy=0.28, r=0.8),
               radial("jewel", (0, "#f4fff4"), (0.3, "#9dffab"), (0.66, "#37dd58"), (1, "#159232"), cx=0.38, cy=0.34, r=0.66),
               f'<radialGradient id="cast" gradientUnits="userSpaceOnUse" cx="{x}" cy="{y}" r="26" fx="{x}" fy="{y}">'
               + stop_list(((0.3, "#8fe85c", 0.9), (0.5, "#a4e05c", 0.42), (0.75, "#b4ec74", 0.12), (1, "#b4ec74", 0)))
               + "</radialGradient>"),
          rect(0, die, 45, 24, fill="url(#cast)"), circle(x, y, 10, fill="url(#halo)"), circle(x, y, 4.4, fill="url(#ring)"), circle(x, y, 3.6, fill="#0a3a14"),
          circle(x, y, 3.3, fill="url(#jewel)"))


# --- behind the cup ------------------------------------------------------------------------------------------------

def rays():
    """Sixteen rays from behind the cup, whose shadow lies on them."""
    cup = (HERE.parent / "art/trophy.svg").read_text()
    cup = cup[cup.index(">") + 1:cup.rindex("</svg>")]
    shadows = [(strength, damask.mask(
        f'<filter id="f" x="-20%" y="-20%" width="140%" height="140%"><feOffset in="SourceAlpha" dx="{dx}" dy="{dy}"/>'
        f'<feGaussianBlur stdDeviation="{sigma}" result="soft"/><feFlood flood-color="#fff"/>'
        f'<feComposite operator="in" in2="soft"/></filter><g filter="url(#f)">{cup}</g>'))
        for dx, dy, sigma, strength in ((6, 10, 14, 0.55), (5, 8, 6, 0.42), (2, 3, 2.2, 0.35))]
    net, chance, thread = damask.mask(damask.net(39.1, 52, 0.86)), random.Random(3), Noise(7)
    middle = 195.5, 236
    dots = bytearray()
    for y in range(HEIGHT):
        for x in range(WIDTH):
            u, v = x / 2 - middle[0], y / 2 - middle[1]
            r, turn = math.hypot(u, v), (math.atan2(v, u) / (2 * math.pi) * 16) % 1
            edge = r * 2 * math.pi / 32  # px over half a ray
            ray = max(0.0, min(1.0, 0.5 + (0.25 - abs(turn - 0.5)) * 2 * edge)) * max(0.0, min(1.0, (r - 16) / 74))
            glow = 0.96 * math.exp(-(r / 138) ** 2.6)
            warm = 0.26 * math.exp(-(r / 235) ** 2)
            bright = tuple(a + (b - a) * warm for a, b in zip((22, 50, 116), (20, 110, 240)))
            colour = [a + (b - a) * ray for a, b in zip((10, 24, 64), bright)]
            colour = [a + (b - a) * glow * 0.9 for a, b in zip(colour, (47, 111, 216))]
            corner = min(1.0, (abs(u) / 196) ** 2.4 * (abs(v) / 260) ** 1.6)
            fall = (1 - 0.45 * corner) * (1 - 0.40 * max(0.0, (y / 2 - 400) / 113))
            weave = net[y * WIDTH + x] / 255 * 0.055
            colour = [a + (b - a) * weave for a, b in zip(colour, (156, 196, 255))]
            for strength, shade in shadows:
                fall *= 1 - strength * shade[y * WIDTH + x] / 255
            d = chance.random() - 0.2 + 1.3 * thread.at(x * 0.9, y * 0.08)
            dots += bytes(max(0, min(255, int(c * fall + d))) for c in colour)
    cloths.jpeg(HERE / "rays.jpg", dots, 82)


# --- small parts ---------------------------------------------------------------------------------------------------

def marks():
    """Indicators of the toolkit's own controls."""
    edge, ink = "#8f6a35", "#142a5c"
    body = defs(linear("b", (0, "#e2d8c2"), (1, "#fffdf6")))
    for name, dot in (("radio", ""), ("radio_on", circle(7, 7, 3, fill=ink))):
        write(HERE / f"{name}.svg", 14, 14, body, circle(7, 7, 6.4, fill="url(#b)", stroke=edge, stroke_width=1), dot)
    tick = path("M3.6 7.2L6 9.9L10.6 3.9", fill="none", stroke=ink, stroke_width=2, stroke_linecap="round", stroke_linejoin="round")
    for name, dot in (("check", ""), ("check_on", tick)):
        write(HERE / f"{name}.svg", 14, 14, body, rect(0.7, 0.7, 12.6, 12.6, 2.5, fill="url(#b)", stroke=edge, stroke_width=1), dot)
    write(HERE / "down.svg", 9, 9, polygon([(0.5, 2.5), (8.5, 2.5), (4.5, 7)], fill="#33497f"))


PICTURES = {paint.__name__: paint for paint in (satin, navy, felt, tray, lamp, rays, marks)}

if __name__ == "__main__":
    for wanted in sys.argv[1:] or PICTURES:
        PICTURES[wanted]()
