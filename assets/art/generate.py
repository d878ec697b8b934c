#!/usr/bin/env python3
"""Draws the pictures of the dialogs and the icon beside this file; only the greeting is a drawing of its own."""
import math
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE.parent))

from svg import (BLACK_PIP, BLUE, BLUE_PIP, IVORY, RED, RED_PIP, around, circle, defs, die_body, ellipse, group,
                 hollow, line,
                 linear, mix, num, path, pip_places, polygon, radial, rect, shadow, write)

OUTLINE = "#6e4604"
# The dice of the pictures: cream, navy and wine, as the table's own materials.
CREAM, CREAM_PIP = ("#ffffff", "#f6efdd", "#b09a6c", "#5a4826"), ((0, "#060c1f"), (0.55, "#0e1b3d"), (1, "#3c5288"))
NAVY, NAVY_PIP = ("#8ea6dc", "#24427f", "#0b1738", "#070f26"), ((0, "#b98a3a"), (0.4, "#f6dc9a"), (1, "#fff6d8"))
WINE, WINE_PIP = ("#ea9a88", "#96161f", "#43070d", "#2a0408"), ((0, "#c9b48e"), (0.4, "#fbf3df"), (1, "#ffffff"))
LIGHT = (-0.5, -0.72, 0.48)  # towards the light: right, down, towards the eye


# --- dice in space -------------------------------------------------------------------------------------------------

def turned(place, turn, tilt, roll):
    """Turns about the upright axis, tips towards the eye and rolls in the picture; degrees."""
    x, y, z = place
    a, b, c = (math.radians(v) for v in (turn, tilt, roll))
    x, z = x * math.cos(a) + z * math.sin(a), z * math.cos(a) - x * math.sin(a)
    y, z = y * math.cos(b) + z * math.sin(b), z * math.cos(b) - y * math.sin(b)
    return x * math.cos(c) - y * math.sin(c), x * math.sin(c) + y * math.cos(c), z


def hull(places):
    """The convex outline of places in the plane."""
    places = sorted(places)

    def half(row):
        chain = []
        for p in row:
            while len(chain) > 1 and ((chain[-1][0] - chain[-2][0]) * (p[1] - chain[-2][1]) -
                                      (chain[-1][1] - chain[-2][1]) * (p[0] - chain[-2][0])) <= 0:
                chain.pop()
            chain.append(p)
        return chain[:-1]
    return half(places) + half(places[::-1])


def cube(name, x, y, half, angles, colours, pip, faces):
    """A die in space about (x, y); `faces` are the numbers in front, at the right and on top before it is turned."""
    lit, mid, dark, rim = colours
    front, right, top = faces
    sides = [((0, 0, 1), (1, 0, 0), (0, 1, 0), front), ((0, 0, -1), (-1, 0, 0), (0, 1, 0), 7 - front),
             ((1, 0, 0), (0, 0, -1), (0, 1, 0), right), ((-1, 0, 0), (0, 0, 1), (0, 1, 0), 7 - right),
             ((0, -1, 0), (1, 0, 0), (0, 0, 1), top), ((0, 1, 0), (1, 0, 0), (0, 0, -1), 7 - top)]
    bend = 0.2 * half
    corners = [turned((sx, sy, sz), *angles) for sx in (-1, 1) for sy in (-1, 1) for sz in (-1, 1)]
    outline = hull([(x + cx * (half - bend), y + cy * (half - bend)) for cx, cy, _ in corners])
    body = [polygon(outline, fill=rim, stroke=rim, stroke_width=2 * bend + 1.4, stroke_linejoin="round"),
            polygon(outline, fill=f"url(#{name}e)", stroke=f"url(#{name}e)", stroke_width=2 * bend - 0.4,
                    stroke_linejoin="round")]
    gradients = [linear(f"{name}e", (0, lit), (0.5, mix(mid, lit, 0.35)), (1, mix(mid, dark, 0.7)), x2=1),
                 linear(f"{name}p", *pip, x1=0.2, x2=0.8)]
    for number, (normal, across, down, count) in enumerate(sides):
        n, u, v = (turned(a, *angles) for a in (normal, across, down))
        if n[2] < 0.05:
            continue
        shine = max(0.0, sum(a * b for a, b in zip(n, LIGHT)))
        near = mix(mix(dark, mid, min(1, 0.55 + shine)), lit, 0.75 * shine ** 1.3)
        far = mix(dark, mid, min(1, 0.25 + shine * 0.95))
        gradients.append(linear(f"{name}{number}", (0, near), (1, far), x2=1))
        matrix = " ".join(num(w) for w in (half * u[0] / 10, half * u[1] / 10, half * v[0] / 10, half * v[1] / 10,
                                           x + half * n[0], y + half * n[1]))
        r = 2.3 if count > 1 else 2.8
        body.append(group(rect(-9.1, -9.1, 18.2, 18.2, 2.4, fill=f"url(#{name}{number})", fill_opacity=0.5),
                          rect(-8.4, -8.4, 16.8, 16.8, 2.8, fill=f"url(#{name}{number})"),
                          *[circle(px + 0.25, py + 0.3, r + 0.2, fill=lit, fill_opacity=0.5) +
                            circle(px, py, r, fill=f"url(#{name}p)")
                            for px, py in pip_places(count, (0, 0), (5, 5))],
                          transform=f"matrix({matrix})"))
    return defs(*gradients) + "".join(body)


# --- gold ----------------------------------------------------------------------------------------------------------

def leaf(x, y, length, degrees):
    """A laurel leaf that grows from (x, y), at 0 degrees to the right; its half towards the light is the brighter."""
    a = math.radians(degrees)
    bright = math.sin(a) * LIGHT[0] - math.cos(a) * LIGHT[1]  # how far the upper side looks to the light

    def half(bow):
        return f"M0 0 C{num(length * 0.25)} {num(-bow)} {num(length * 0.7)} {num(-bow)} {num(length)} 0"
    bow = length * 0.27
    upper, lower = mix("#d09a1c", "#fff2ae", 0.5 + 0.5 * bright), mix("#d09a1c", "#fff2ae", 0.5 - 0.5 * bright)
    whole = f"{half(bow)} C{num(length * 0.7)} {num(bow)} {num(length * 0.25)} {num(bow)} 0 0 Z"
    return group(path(whole, fill=lower, stroke=OUTLINE, stroke_width=1, stroke_linejoin="round"),
                 path(half(bow) + " Z", fill=upper),
                 line(0, 0, length * 0.86, 0, stroke="#8a5a06", stroke_width=0.6),
                 transform=f"translate({num(x)} {num(y)}) rotate({num(degrees)})")


def bezier(p, t):
    """The place and the direction in degrees on a cubic curve."""
    s = 1 - t
    x, y = (s ** 3 * p[0][i] + 3 * s * s * t * p[1][i] + 3 * s * t * t * p[2][i] + t ** 3 * p[3][i] for i in (0, 1))
    dx, dy = (s * s * (p[1][i] - p[0][i]) + 2 * s * t * (p[2][i] - p[1][i]) + t * t * (p[3][i] - p[2][i])
              for i in (0, 1))
    return x, y, math.degrees(math.atan2(dy, dx))


def branch(p, pairs, first, last):
    """A laurel branch along a cubic curve; the leaves shrink from first to last."""
    d = f"M{num(p[0][0])} {num(p[0][1])} C" + " ".join(f"{num(a)} {num(b)}" for a, b in p[1:])
    parts = [path(d, fill="none", stroke=OUTLINE, stroke_width=3, stroke_linecap="round"),
             path(d, fill="none", stroke="#e6b333", stroke_width=1.6, stroke_linecap="round")]
    for i in range(pairs):
        t = 0.06 + 0.9 * i / pairs
        x, y, along = bezier(p, t)
        size = first + (last - first) * t
        parts += [leaf(x, y, size, along - 38), leaf(x, y, size, along + 38)]
        if i % 2:
            bx, by, _ = bezier(p, t + 0.04)
            parts.append(circle(bx, by - 1, 1.9, fill="url(#berry)", stroke=OUTLINE, stroke_width=0.7))
    x, y, along = bezier(p, 1)
    return "".join(parts) + leaf(x, y, last, along)


def mirrored(p, width):
    return [(width - x, y) for x, y in p]


BERRY = radial("berry", (0, "#fff8d0"), (0.5, "#f2c53a"), (1, "#a06c08"), cx=0.4, cy=0.35, r=0.65)
GOLD = linear("gold", (0, "#a8700a"), (0.14, "#e8b62e"), (0.3, "#fff3b0"), (0.46, "#f2c53a"), (0.74, "#c88d12"),
              (0.9, "#f0c64a"),
              (1, "#8a5a06"), x2=1, y2=0)


def crown(x, y, k):
    """A crown whose band stands at (x, y)."""
    spikes = [(-24, -19), (-12.5, -8), (-12, -24), (-5.5, -9.5), (0, -28), (5.5, -9.5), (12, -24), (12.5, -8),
              (24, -19)]
    tips = [(-24, -19), (-12, -24), (0, -28), (12, -24), (24, -19)]
    body = "M-19 0 " + " ".join(f"L{a} {b}" for a, b in spikes) + " L19 0 Q0 5 -19 0 Z"
    return group(path(body, fill="url(#gold)", stroke=OUTLINE, stroke_width=1.3, stroke_linejoin="round"),
                 path("M-19 0 Q0 5 19 0 L18.4 5 Q0 10 -18.4 5 Z", fill="url(#gold)", stroke=OUTLINE, stroke_width=1.3,
                      stroke_linejoin="round"),
                 path("M-18 1.2 Q0 6 18 1.2", fill="none", stroke="#fff8d0", stroke_width=0.9),
                 *[circle(a, b, 2.4, fill="url(#berry)", stroke=OUTLINE, stroke_width=0.9) for a, b in tips],
                 *[ellipse(a, b, 2.1, 1.7, fill=c, stroke="#4a2c02", stroke_width=0.6) +
                   circle(a - 0.6, b - 0.5, 0.6, fill="#ffffff", fill_opacity=0.8)
                   for a, b, c in ((-11.5, 4.6, "#1c3cc0"), (0, 5.4, "#d0121e"), (11.5, 4.6, "#1c3cc0"))],
                 transform=f"translate({num(x)} {num(y)}) scale({num(k)})")


def gold_star(x, y, r):
    """A star of ten facets."""
    places = [around(x, y, r if i % 2 == 0 else r * 0.42, i * 36) for i in range(10)]
    facets = []
    for i, (place, after) in enumerate(zip(places, places[1:] + places[:1])):
        a = math.radians(i * 36 + (30 if i % 2 == 0 else 6))  # the way that the facet looks
        light = 0.5 + 0.5 * (math.sin(a) * LIGHT[0] - math.cos(a) * LIGHT[1]) / math.hypot(*LIGHT[:2])
        facets.append(polygon([(x, y), place, after], fill=mix("#b87c0c", "#fff8d0", light)))
    return polygon(places, fill="#e6b333", stroke=OUTLINE, stroke_width=2.4, stroke_linejoin="round") + "".join(facets)


# --- the pictures --------------------------------------------------------------------------------------------------

WARM = ("#ffffff", "#f4ecd8", "#b09a6c", "#5a4826")
NAVY_PIP = (0, "#060c1f"), (0.55, "#0e1b3d"), (1, "#3c5288")


def trophy():
    """The cup of the winner; the name stands on the navy plate."""
    def handle(d, glint, gold):
        return (path(d, fill="none", stroke=OUTLINE, stroke_width=16, stroke_linecap="round") +
                path(d, fill="none", stroke=gold, stroke_width=12.6, stroke_linecap="round") +
                path(glint, fill="none", stroke="#fff3b0", stroke_width=3.4, stroke_linecap="round"))

    def metal(d, fill):
        return path(d, fill=f"url(#{fill})", stroke=OUTLINE, stroke_width=1.6, stroke_linejoin="round")
    rim = linear("rim", (0, "#9c6a0a"), (0.25, "#fff7c8"), (0.6, "#e3ac24"), (1, "#8a5a06"), x2=1, y2=0)
    write(HERE / "trophy.svg", 391, 513,
          defs(GOLD, rim, linear("inside", (0, "#4a2f02"), (1, "#b5800f")),
               linear("back", (0, "#7a4f06"), (0.3, "#f6d878"), (0.65, "#d09a1c"), (1, "#6e4604"), x2=1, y2=0),
               linear("wood", (0, "#7a4a2c"), (0.45, "#5b3420"), (1, "#35190d")),
               linear("woodtop", (0, "#a06a40"), (1, "#6d4128")), linear("plate", (0, "#00003c"), (0.35, "#000072"), (1, "#000080"))),
          handle("M110 208 C52 196 44 262 76 292 C92 307 118 312 138 308", "M106 204.5 C58 197 50 254 75 284",
                 "#e6b333"),
          handle("M281 208 C339 196 347 262 315 292 C299 307 273 312 253 308", "M285 204.5 C328 197 338 240 322 274",
                 "#d9a325"),
          ellipse(195.5, 197, 95, 17, fill="url(#back)", stroke=OUTLINE, stroke_width=1.6),
          ellipse(195.5, 197.5, 87.5, 13, fill="url(#inside)", stroke=OUTLINE, stroke_width=1),
          cube("a", 148, 176, 24, (30, 26, -12), WARM, NAVY_PIP, (5, 3, 1)),
          cube("b", 243, 177, 24, (-34, 27, 14), WARM, NAVY_PIP, (4, 5, 6)),
          cube("c", 195.5, 172, 25.5, (-36, 28, 4), WARM, NAVY_PIP, (5, 4, 1)),
          metal("M100.5 197 A95 17 0 0 0 290.5 197 C292 262 262 318 222 332 L169 332 C129 318 99 262 100.5 197 Z",
                "gold"),
          path("M101.5 214 A94 17 0 0 0 289.5 214 L289 219 A93.5 17 0 0 1 102 219 Z", fill="#6e4604", fill_opacity=0.3),
          metal("M100.5 197 A95 17 0 0 0 290.5 197 L283 197.5 A87.5 13 0 0 1 108 197.5 Z", "rim"),
          metal("M100.5 197 A95 17 0 0 0 290.5 197 L290 206 A94.5 17 0 0 1 101 206 Z", "rim"),
          path("M121 238 C126 276 142 304 166 321", fill="none", stroke="#fff8d0", stroke_opacity=0.8, stroke_width=5,
               stroke_linecap="round"),
          gold_star(195.5, 274, 35),
          metal("M171 332 L220 332 C217 345 208 349 208 358 C208 368 226 374 236 380 L155 380 C165 374 183 368 183 358 "
                "C183 349 174 345 171 332 Z", "gold"),
          ellipse(195.5, 333, 27, 5, fill="url(#rim)", stroke=OUTLINE, stroke_width=1.2),
          ellipse(195.5, 356, 16, 4.5, fill="url(#rim)", stroke=OUTLINE, stroke_width=1.2),
          rect(139, 378, 113, 10, 4, fill="url(#gold)", stroke=OUTLINE, stroke_width=1.4),
          path("M98 388 L293 388 L301 398 L90 398 Z", fill="url(#woodtop)", stroke="#22120a", stroke_width=1.4,
               stroke_linejoin="round"),
          rect(90, 397, 211, 46, 2, fill="url(#wood)", stroke="#22120a", stroke_width=1.4),
          rect(82, 441, 227, 10, 3, fill="url(#woodtop)", stroke="#22120a", stroke_width=1.4),
          line(99, 389.6, 292, 389.6, stroke="#c89a70", stroke_opacity=0.6, stroke_width=1),
          line(85, 442.8, 306, 442.8, stroke="#c89a70", stroke_opacity=0.6, stroke_width=1),
          rect(104, 401, 189, 39, 4, fill="url(#rim)", stroke="#3c2606", stroke_width=1.2),
          rect(107, 404, 183, 33, 2.5, fill="url(#plate)", stroke="#2a1a02", stroke_width=1),
          path("M113 406.6H284A3.4 3.4 0 0 0 287.4 410V431A3.4 3.4 0 0 0 284 434.4H113A3.4 3.4 0 0 0 109.6 431V410"
               "A3.4 3.4 0 0 0 113 406.6Z", fill="none", stroke="#f2d48c", stroke_opacity=0.6, stroke_width=0.8))


def rollers_top():
    right = [(206, 70), (236, 76), (282, 66), (306, 30)]
    write(HERE / "rollers_top.svg", 330, 84,
          defs(BERRY, GOLD, radial("glow", (0, "#7fb2ff", 0.5), (0.55, "#4f86e0", 0.22), (1, "#3c61a0", 0)),
               radial("ground", (0, "#02060f", 0.8), (0.6, "#02060f", 0.45), (1, "#02060f", 0))),
          ellipse(165, 44, 150, 42, fill="url(#glow)"), ellipse(168, 77, 56, 6, fill="url(#ground)"),
          branch(mirrored(right, 330), 9, 19, 13), branch(right, 9, 19, 13),
          cube("a", 143, 56, 14.5, (28, 24, -7), CREAM, CREAM_PIP, (5, 3, 1)),
          cube("b", 187, 56, 14.5, (-32, 26, 8), WINE, WINE_PIP, (5, 4, 1)),
          crown(165, 35, 0.98))


def rollers_bottom():
    right = [(192, 27), (220, 40), (268, 42), (308, 18)]
    write(HERE / "rollers_bottom.svg", 330, 48,
          defs(BERRY, GOLD, radial("glow", (0, "#7fb2ff", 0.4), (0.55, "#4f86e0", 0.18), (1, "#3c61a0", 0))),
          ellipse(165, 24, 150, 23, fill="url(#glow)"),
          branch(mirrored(right, 330), 8, 16, 11), branch(right, 8, 16, 11),
          gold_star(165, 25.5, 22))


def net():
    """A mesh of the damask in the dialogs' satin: ogees with a rosette in each, to be laid side by side."""
    colour = "#9c8656"

    def rosette(x, y):
        leaf = "M0 -2.2 C3.2 -5 2.4 -8 0 -10.5 C-2.4 -8 -3.2 -5 0 -2.2 Z"
        small = "M0 -2 C1.4 -3.6 1.2 -4.8 0 -6.2 C-1.2 -4.8 -1.4 -3.6 0 -2 Z"
        return circle(x, y, 1.3, fill=colour) + "".join(
            group(path(leaf if turn % 90 == 0 else small, fill=colour),
                  transform=f"translate({x} {y}) rotate({turn})") for turn in range(0, 360, 45))
    ogee = "M20 0 C20 12 {0} 13 {0} 26 C{0} 39 20 40 20 52"
    write(HERE / "net.svg", 40, 52, '<g opacity="0.13">',
          *[path(ogee.format(x), fill="none", stroke=colour, stroke_width=1.1) for x in (0, 40)],
          *[rosette(x, y) for x, y in ((20, 26), (0, 0), (40, 0), (0, 52), (40, 52))], "</g>")


def tick():
    mark = ("M1.2 7 C1.9 6.2 2.9 5.6 3.7 5.6 C4.4 5.9 4.9 6.9 5.3 8.1 C6.7 5 8.7 2.5 11.6 0.8 L12 1.3 "
            "C9.5 3.9 7.7 7.3 6.4 11.4 C6 12 4.9 12.3 4.3 12.1 C3.6 10 2.6 8.2 1.2 7 Z")
    for name, colour in (("tick", "#000000"), ("tick_light", "#ffffff")):
        write(HERE / f"{name}.svg", 13, 13, path(mark, fill=colour))


def welcome():
    """Three dice on their way from left to right: the first leaves the felt, the second flies, the third lands."""
    def shade(x, rx, strength):
        return ellipse(x, 87, rx, rx * 0.15, fill="url(#shade)", fill_opacity=strength)

    def swing(d, width):
        return path(d, fill="none", stroke="#f2d48a", stroke_opacity=0.6, stroke_width=width, stroke_linecap="round")
    write(HERE / "welcome.svg", 360, 96,
          defs(radial("shade", (0, "#120002", 0.8), (0.6, "#120002", 0.42), (1, "#120002", 0))),
          shade(80, 42, 1), shade(192, 28, 0.6), shade(299, 38, 0.9),
          swing("M13 62 C19 50 27 43 38 39", 2.4), swing("M22 74 C25 64 30 57 37 52", 1.8),
          swing("M112 40 C122 26 132 19 144 17", 2.4), swing("M118 56 C124 44 131 36 140 31", 1.8),
          swing("M226 18 C240 21 250 28 258 38", 2.4), swing("M228 32 C237 36 243 42 248 50", 1.8),
          cube("a", 76, 56, 23, (34, 28, -14), CREAM, CREAM_PIP, (2, 3, 6)),
          cube("b", 184, 40, 24, (-38, 32, 24), NAVY, NAVY_PIP, (5, 4, 1)),
          cube("c", 293, 55, 23, (40, 24, 12), CREAM, CREAM_PIP, (3, 1, 5)))


# The two marks, upright, 100 units high, about their middle.
QUESTION = ("M-18 38C-18 34 -17 31 -14 29C-12 27 -9 25 -6 25C-2 25 1 27 3 29C5 31 7 34 7 38C7 41 5 44 3 46C1 49 -2 50 "
            "-6 50C-9 50 -12 49 -14 46C-17 44 -18 41 -18 38ZM-31 -46C-26 -47 -21 -48 -16 -49C-11 -50 -7 -50 -2 -50"
            "C9 -50 17 -48 23 -43C29 -38 31 -31 31 -23C31 -14 29 -7 23 -2C17 3 9 6 -1 7L-1 20L-10 20L-10 1"
            "C-4 -1 0 -4 3 -8C6 -12 7 -17 7 -24C7 -30 6 -35 3 -38C1 -41 -3 -43 -8 -43C-13 -43 -17 -41 -19 -38"
            "C-22 -36 -23 -31 -24 -26L-31 -26L-31 -46Z")
EXCLAMATION = ("M-12 37C-12 34 -11 31 -9 29C-6 26 -3 25 0 25C3 25 6 26 9 29C11 31 12 34 12 37C12 41 11 44 9 46"
               "C6 49 3 50 0 50C-3 50 -6 49 -9 46C-11 44 -12 41 -12 37ZM-12 -50L12 -50L5 5L5 18L-5 18L-5 5L-12 -50Z")


def signs():
    """What the boxes bear: enamel in a brass rim, a navy disc that asks and a wine triangle that warns."""
    brass = linear("brass", (0, "#fff2c4"), (0.3, "#ecca7c"), (0.55, "#bd8c3c"), (0.78, "#f2d48a"), (1, "#8a5f22"), x2=1)

    def mark(d, x, y, height):
        k = height / 100
        return "".join(group(path(d, fill=fill), transform=f"translate({x} {num(y + dy)}) scale({num(k)})")
                       for dy, fill in ((-0.9, "#02060f"), (0.5, "#f2d48a"), (0, "#fff6e0")))

    def sign(name, shade, enamel, shape, letter):
        cast = radial("cast", (0, "#33261a", 0.6), (0.55, "#33261a", 0.34), (1, "#33261a", 0))
        write(HERE / f"{name}.svg", 48, 48, defs(cast, brass, enamel, linear("gloss", (0, "#ffffff", 0.5),
                                                                            (1, "#ffffff", 0.04))),
              shade, *shape, letter)
    disc = (circle(23, 23, 21.2, fill="#3a2408"), circle(23, 23, 20.6, fill="url(#brass)"),
            circle(23, 23, 17.4, fill="#120a04"), circle(23, 23, 16.7, fill="url(#enamel)"),
            path("M7.6 20.6 C8.6 12.6 15.2 7.4 23 7.4 C30.8 7.4 37.4 12.6 38.4 20.6 C34 17 28.6 15.6 23 15.6 "
                 "C17.4 15.6 12 17 7.6 20.6 Z", fill="url(#gloss)", fill_opacity=0.55))
    sign("question", ellipse(25, 26.5, 22.6, 21.4, fill="url(#cast)"),
         radial("enamel", (0, "#5478c4"), (0.55, "#213f82"), (1, "#0b1738"), cx=0.38, cy=0.3, r=0.78),
         disc, mark(QUESTION, 23.8, 23.2, 22))

    def triangle(k, **style):  # corners of one roundness, whatever its size
        return polygon([(23 + k * x, 28.2 + k * y) for x, y in ((0, -20.8), (18.2, 10.6), (-18.2, 10.6))],
                       stroke_linejoin="round", **style)
    sign("warning", ellipse(25, 32, 23, 15, fill="url(#cast)"),
         linear("enamel", (0, "#f6c04a"), (0.5, "#e39a1e"), (1, "#a85f0a")),
         (triangle(1, fill="#3a2408", stroke="#3a2408", stroke_width=7.4),
          triangle(1, fill="url(#brass)", stroke="url(#brass)", stroke_width=6),
          triangle(0.84, fill="#120a04", stroke="#120a04", stroke_width=4.6),
          triangle(0.84, fill="url(#enamel)", stroke="url(#enamel)", stroke_width=3.2)),
         "".join(group(path(EXCLAMATION, fill=fill), transform=f"translate(23 {y}) scale(0.21)")
                 for y, fill in ((27.4, "#fff2c4"), (26.6, "#1c0e04"))))


def icon():
    """The front die lies on a grid of four units, so that its edges and pips are whole pixels at 48."""
    front = [(12 + 12 * c, 28 + 12 * r) for c, r in ((0, 0), (2, 0), (1, 1), (0, 2), (2, 2))]
    write(HERE / "icon.svg", 64, 64,
          defs(linear("p", *BLACK_PIP, x1=0.2, x2=0.8), linear("q", *RED_PIP, x1=0.2, x2=0.8)),
          group(*die_body("b", *RED),
                *[hollow(x, y, 5, "q", "#4c060d", ("#ee7a78", 0.55)) for x, y in ((11, 11), (33, 11), (33, 33))],
                transform="translate(26.6 0.2) rotate(12) scale(0.85)"),
          shadow(0, 16, 48, 48, 12, 3, 0.1),
          group(*die_body("f", *IVORY[:3], "#4e4a42", gloss=0.75), transform="translate(0 16) scale(1.0909)"),
          *[hollow(x, y, 4.3, "p", "#15130f", ("#ffffff", 0.9)) for x, y in front])


def small_icon(size, side, margin, pip, gap, r):
    """The icon drawn anew for one size: both dice upright, each edge and pip on whole pixels."""
    def die(x, y, name, side, rim, lit, shaded):
        return (defs(linear(name, (0, lit), (1, shaded), x2=0.6)) + rect(x, y, side, side, r, fill=rim) +
                rect(x + 1, y + 1, side - 2, side - 2, r - 1, fill=f"url(#{name})"))

    def pips(x, y, places, colour):
        step = pip + gap
        return "".join(rect(x + column * step, y + row * step, pip, pip, pip - 2, fill=colour)
                       for column, row in places)

    back, corner = side - 1, size - margin - pip  # the red die's side and its upper right pip
    write(HERE / f"icon-{size}.svg", size, size,
          die(size - back, 0, "b", back, RED[3], "#e8434b", "#a00f1a"),
          pips(corner, margin, ((0, 0), (-2, 0), (0, 2)), "#fff4ee"),
          die(0, size - side, "f", side, "#3c3830", "#ffffff", "#cfcabc"),
          pips(margin, size - side + margin, ((0, 0), (2, 0), (1, 1), (0, 2), (2, 2)), "#16130f"))


def icons():
    """The icon's pictures, from 48 pixels on drawn from the large one."""
    icon()
    for grid in ((16, 12, 2, 2, 1, 2), (24, 19, 3, 3, 2, 3.5), (32, 24, 4, 4, 2, 5)):
        small_icon(*grid)
    folder = HERE.parent / "icons"
    folder.mkdir(exist_ok=True)
    for size in (16, 24, 32, 48, 64, 128, 256):
        drawing = HERE / (f"icon-{size}.svg" if size < 48 else "icon.svg")
        subprocess.run(["rsvg-convert", "-w", f"{size}", "-h", f"{size}", drawing, "-o", folder / f"{size}.png"],
                       check=True)


if __name__ == "__main__":
    for draw in (trophy, rollers_top, rollers_bottom, net, tick, welcome, signs, icons):
        draw()
