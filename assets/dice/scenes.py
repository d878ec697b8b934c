"""The dice sets that show something other than a plain die: clocks, displays, clouds, marbles, keys and the like."""
import pathlib
import random

from svg import (around, circle, defs, digit, ellipse, group, line, linear, mix, num, path, pip_places, points,
                 polygon, radial,
                 rect, smooth, write)

HERE = pathlib.Path(__file__).parent
FACES = range(1, 7)
MARGIN = 2  # to the left of a body of 44, so that it stands in the middle of its 48 pixels


def clocks():
    """A broad hand shows the hour, a thin one stands at twelve; a framed window names the hour where no hand comes."""
    x = y = 24
    for face in FACES:
        ticks = [line(*around(x, y, 17.7, 30 * h), *around(x, y, 15.6 if h % 3 else 14.4, 30 * h), stroke="#2c2a33",
                      stroke_width=1.1 if h % 3 else 2, stroke_linecap="butt") for h in range(12) if h != 9]

        def hand(degrees, *outline):
            """An outline of (distance from the middle, half width), from the middle to the tip, and its shadow."""
            ring = ([around(*around(x, y, r, degrees), w, degrees + 90) for r, w in outline] +
                    [around(*around(x, y, r, degrees), -w, degrees + 90) for r, w in outline[::-1]])
            return (polygon([(px + 0.7, py + 0.9) for px, py in ring], fill="#000000", fill_opacity=0.22) +
                    polygon(ring, fill="#1b2350"))

        write(HERE / f"{124 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#fff4c0"), (0.4, "#d9a63a"), (1, "#6b4508"), x2=1),
                   linear("bevel", (0, "#7a5210"), (0.6, "#e8bc50"), (1, "#fff0b0"), x2=1),
                   radial("dial", (0, "#ffffff"), (0.6, "#fbf8ee"), (1, "#d8d2c0"), cx=0.42, cy=0.38, r=0.62),
                   linear("glass", (0, "#ffffff", 0.5), (1, "#ffffff", 0), x2=0.8, y2=1)),
              circle(25.2, 25.4, 22.6, fill="#000000", fill_opacity=0.18),
              circle(24.6, 24.8, 22.8, fill="#000000", fill_opacity=0.2),
              circle(x, y, 22.5, fill="#4a3006"), circle(x, y, 22, fill="url(#rim)"),
              circle(x, y, 19.6, fill="url(#bevel)"), circle(x, y, 18.6, fill="url(#dial)"), *ticks,
              path("M9 24 A15.5 15.5 0 0 1 31 10.2 C23 12 15 16 9 24 Z", fill="url(#glass)"),
              hand(30 * face, (0, 1.4), (9.6, 2.9), (13.4, 0)), hand(0, (-2.5, 0.8), (16.6, 0.5)),
              circle(x, y, 2.6, fill="#1b2350"), circle(x, y, 1.1, fill="#e8bc50"),
              rect(7.3, 17.2, 13.2, 13.6, 2.2, fill="url(#rim)"), rect(8.3, 18.2, 11.2, 11.6, 1.4, fill="#141a3c"),
              digit(face, 13.9, 24, 9, fill="#ffffff"))


def digi():
    """Every pip is a little display cell of four short strokes; cells that are off just glimmer."""
    def cell(x, y, lit):
        glow = circle(x + 4.5, y + 4.5, 6.2, fill="url(#g)") if lit else ""
        return glow + "".join(line(x + x1, y + y1, x + x2, y + y2, stroke="#3dff5c" if lit else "#08260e",
                                   stroke_width=2)
                              for x1, y1, x2, y2 in ((3, 1, 6, 1), (8, 3, 8, 6), (3, 8, 6, 8), (1, 3, 1, 6)))

    grid = [(x, y) for y in (0, 11, 22) for x in (0, 10, 20)]
    for face in FACES:
        lit = {(int(px), int(py)) for px, py in pip_places(face, (10, 11), (10, 11))}
        write(HERE / f"{136 + face}.svg", 29, 31,
              defs(radial("g", (0, "#22ff48", 0.8), (0.6, "#10c030", 0.4), (1, "#10c030", 0))),
              *[cell(*place, place in lit) for place in grid])


def digital():
    """Seven segments a to g that glow on a dark display."""
    segments = {"a": [(15, 7), (33, 7)], "b": [(34, 8), (33, 23)], "c": [(33, 25), (32, 40)], "d": [(13, 41), (31, 41)],
                "e": [(13, 25), (12, 40)], "f": [(14, 8), (13, 23)], "g": [(14, 24), (32, 24)]}
    on = {1: "bc", 2: "abged", 3: "abgcd", 4: "fgbc", 5: "afgcd", 6: "afgedc"}

    def bar(name, half, inset, **style):
        (x1, y1), (x2, y2) = segments[name]
        if name in "adg":
            x1, x2 = x1 + inset, x2 - inset
            places = [(x1, y1), (x1 + half, y1 - half), (x2 - half, y2 - half), (x2, y2), (x2 - half, y2 + half),
                      (x1 + half, y1 + half)]
        else:
            y1, y2 = y1 + inset, y2 - inset
            places = [(x1, y1), (x1 + half, y1 + half), (x2 + half, y2 - half), (x2, y2), (x2 - half, y2 - half),
                      (x1 - half, y1 + half)]
        return polygon(places, **style)

    for face in FACES:
        off = [s for s in segments if s not in on[face]]
        write(HERE / f"{142 + face}.svg", 48, 48,
              defs(linear("frame", (0, "#3e4640"), (0.5, "#1a1f1b"), (1, "#0c0f0d"), x2=1),
                   linear("panel", (0, "#020503"), (1, "#071009")),
                   radial("halo", (0, "#18ff50", 0.22), (0.7, "#18ff50", 0.1), (1, "#18ff50", 0))),
              rect(0, 0, 48, 48, 6, fill="url(#frame)"), rect(1, 1, 46, 46, 5.2, fill="url(#panel)"),
              rect(1, 1, 46, 46, 5.2, fill="url(#halo)"),
              *[bar(s, 3, 0.2, fill="#0a2a12") for s in off],
              *[bar(s, 3, 0, fill="none", stroke="#19ff4e", stroke_opacity=a, stroke_width=w, stroke_linejoin="round")
                for w, a in ((7, 0.1), (4.6, 0.16), (2.4, 0.25)) for s in on[face]],
              *[bar(s, 3, 0.2, fill="#2cff5a") for s in on[face]],
              *[bar(s, 0.9, 2.8, fill="#a8ffb8") for s in on[face]])


def clouds():
    """As many clouds as the face counts, on a tile of sky."""
    puffs = ((-0.62, 0.12, 0.3), (-0.25, -0.14, 0.4), (0.22, -0.04, 0.36), (0.62, 0.16, 0.27))

    def cloud(x, y, w):
        k = w / 1.82

        def shape(dx, dy, grow, **style):
            """All puffs and their flat ground as one outline: what overlaps isn't painted twice."""
            d = f"M{num(x + dx - 0.62 * k)} {num(y + dy)}h{num(1.24 * k)}v{num(0.42 * k + grow)}h{num(-1.24 * k)}z"
            for px, py, r in puffs:
                r = r * k + grow
                half = f"a{num(r)} {num(r)} 0 1 1"
                d += f"M{num(x + dx + px * k - r)} {num(y + dy + py * k)}{half} {num(2 * r)} 0{half} {num(-2 * r)} 0z"
            return path(d, **style)
        shade = "".join(shape(0.3 * i, 0.7 * i, 0.9 - 0.35 * i, fill="#06286e", fill_opacity=0.17) for i in (0, 1, 2))
        return shade + shape(0, 0, 0, fill="url(#cloud)")

    width = {1: 32, 2: 21, 3: 16.5, 4: 16, 5: 13.6, 6: 13}
    spread = {1: (0, 0), 2: (8.4, 9.4), 3: (10.8, 12), 4: (10, 9.5), 5: (11, 12), 6: (9.8, 12.2)}
    for face in FACES:
        write(HERE / f"{148 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#d8ecff"), (0.5, "#6aa8ee"), (1, "#123c90"), x2=1),
                   linear("sky", (0, "#1450c0"), (0.6, "#3580e0"), (1, "#6cacf2")),
                   linear("cloud", (0, "#ffffff"), (0.6, "#ffffff"), (1, "#bfd6f0"))),
              rect(0, 0, 44, 44, 9, fill="url(#rim)"), rect(1.2, 1.2, 41.6, 41.6, 8, fill="url(#sky)"),
              *[cloud(x, y, width[face]) for x, y in pip_places(face, (22, 22), spread[face])],
              left=MARGIN)


def marbles():
    """Glass marbles with a swirl, each in a dish turned into a board of pale wood."""
    glass = {1: ("#1f7fd8", "#06204e", "#ffd23c"), 2: ("#d8362c", "#560a10", "#ffe8e0"),
             3: ("#1c9048", "#04301a", "#fff07a"), 4: ("#414a5e", "#0c0e16", "#ffb84a"),
             5: ("#7440d0", "#220850", "#8ff0ff"), 6: ("#0c8a98", "#022c36", "#ffc4b0")}
    radius = {1: 11.5, 2: 8, 3: 6.3, 4: 7.2, 5: 6, 6: 5.3}
    spread = {1: (0, 0), 2: (9.2, 9.2), 3: (12.1, 12.1), 4: (10, 10), 5: (11.9, 11.9), 6: (9.8, 13.2)}
    for face in FACES:
        lit, deep, band = glass[face]
        hand = random.Random(f"marbles {face}")

        def marble(x, y, r):
            def at(px, py):
                return f"{num(px * r)} {num(py * r)}"
            swirl = (f"M{at(-0.92, -0.12)} C{at(-0.4, -0.85)} {at(0.15, 0.7)} {at(0.92, -0.05)} "
                     f"C{at(0.4, 1.15)} {at(-0.3, 0)} {at(-0.92, -0.12)} Z")
            thin = f"M{at(-0.8, 0.35)} C{at(-0.3, 0.2)} {at(0.05, 0.95)} {at(0.55, 0.62)}"
            return (circle(x, y, r + 1.7, fill="url(#dish)") + circle(x + 0.2, y + 0.3, r + 0.6, fill="#1c0c02") +
                    circle(x, y, r, fill="url(#m)") +
                    group(path(swirl, fill=band, fill_opacity=0.9),
                          path(thin, fill="none", stroke="#ffffff", stroke_opacity=0.6, stroke_width=r * 0.11,
                               stroke_linecap="round"),
                          transform=f"translate({num(x)} {num(y)}) rotate({hand.randrange(-40, 40)})") +
                    circle(x, y, r, fill="url(#shade)") +
                    ellipse(x - r * 0.36, y - r * 0.42, r * 0.32, r * 0.22, fill="#ffffff", fill_opacity=0.95,
                            transform=f"rotate(-35 {num(x - r * 0.36)} {num(y - r * 0.42)})"))

        def vein(y):
            places = [(x, y + hand.uniform(0, 1.5) + hand.uniform(-1, 1)) for x in (1.5, 12, 22, 32, 42.5)]
            return path(smooth(places, closed=False), fill="none", stroke="#a8783c", stroke_opacity=0.22,
                        stroke_width=hand.uniform(0.5, 1.1))

        write(HERE / f"{154 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#fffaf0"), (0.5, "#d8b888"), (1, "#84582a"), x2=1),
                   linear("wood", (0, "#fff2da"), (0.5, "#f6e0ba"), (1, "#e2c292"), x2=1),
                   linear("dish", (0, "#3c1c06"), (0.5, "#7a4a1e"), (1, "#ffefd0"), x2=0.7),
                   radial("m", (0, mix(lit, "#ffffff", 0.4)), (0.6, lit), (1, deep), cx=0.55, cy=0.6, r=0.6),
                   radial("shade", (0, deep, 0), (0.7, deep, 0.08), (1, deep, 0.85), cx=0.45, cy=0.45, r=0.57)),
              rect(0, 0, 44, 44, 7, fill="url(#rim)"), rect(1.2, 1.2, 41.6, 41.6, 6, fill="url(#wood)"),
              *[vein(3 + 5.4 * i) for i in range(8)],
              *[marble(x, y, radius[face]) for x, y in pip_places(face, (22, 22), spread[face])],
              left=MARGIN)


def keys():
    for face in FACES:
        write(HERE / f"{160 + face}.svg", 32, 32,
              defs(linear("side", (0, "#c6c2b4"), (0.5, "#9a9688"), (1, "#605c50"), x2=0.6),
                   linear("edge", (0, "#ffffff"), (1, "#b9b5a6"), x2=1),
                   linear("top", (0, "#dcd9cc"), (1, "#f6f4ea"), x2=0.5)),
              rect(0, 0, 32, 32, 4, fill="#26241e"), rect(1, 1, 30, 30, 3.2, fill="url(#side)"),
              polygon([(1.8, 30.2), (5, 25), (27, 25), (30.2, 30.2)], fill="#4a463a", fill_opacity=0.45),
              polygon([(30.2, 2), (27, 5), (27, 25), (30.2, 30.2)], fill="#4a463a", fill_opacity=0.25),
              polygon([(2, 2), (30, 2), (27, 5), (5, 5)], fill="#ffffff", fill_opacity=0.3),
              rect(4, 2, 24, 24, 3.4, fill="url(#edge)"), rect(5, 3, 22, 22, 2.8, fill="url(#top)"),
              digit(face, 16, 14, 14, fill="#1c1a16"))


def billiards():
    for face in FACES:
        write(HERE / f"{166 + face}.svg", 29, 32,
              defs(radial("shadow", (0, "#000000", 0.6), (0.6, "#000000", 0.4), (1, "#000000", 0)),
                   radial("ball", (0, "#ff9a8a"), (0.22, "#f0352c"), (0.62, "#c60f14"), (0.88, "#7c0408"),
                          (1, "#4e0204"), cx=0.4, cy=0.36, r=0.66,
                          fx=0.33, fy=0.28),
                   radial("disc", (0, "#ffffff"), (0.7, "#f6f0e4"), (1, "#d6c8b4"), cx=0.42, cy=0.4, r=0.6)),
              ellipse(16, 26.2, 13, 5.8, fill="url(#shadow)"),
              circle(14.5, 14.5, 14.2, fill="url(#ball)"),
              path("M5.5 24.5 A13 13 0 0 0 26.2 19 A13.6 13.6 0 0 1 5.5 24.5 Z", fill="#ff8a70", fill_opacity=0.5),
              circle(14.7, 15, 8.3, fill="#5a0306", fill_opacity=0.35), circle(14.5, 14.7, 8, fill="url(#disc)"),
              digit(face, 14.4, 14.8, 10.6, fill="#15110e"),
              ellipse(9.2, 5.2, 3.6, 1.9, fill="#ffffff", fill_opacity=0.85, transform="rotate(-32 9.2 5.2)"))


def bubbles():
    """Bubbles of air that rise in a cube of deep water."""
    def bubble(x, y, r):
        return (circle(x, y, r, fill="url(#b)") +
                circle(x, y, r - 0.5, fill="none", stroke="#ffffff", stroke_width=1.1) +
                path(f"M{num(x + r * 0.6)} {num(y + r * 0.05)} A{num(r * 0.62)} {num(r * 0.62)} 0 0 1 "
                     f"{num(x + r * 0.02)} {num(y + r * 0.62)}",
                     fill="none", stroke="#ffffff", stroke_opacity=0.85, stroke_width=r * 0.16,
                     stroke_linecap="round") +
                ellipse(x - r * 0.34, y - r * 0.38, r * 0.32, r * 0.22, fill="#ffffff",
                        transform=f"rotate(-40 {num(x - r * 0.34)} {num(y - r * 0.38)})"))

    radius = {1: 10, 2: 7.4, 3: 6.2, 4: 6.5, 5: 5.6, 6: 5.4}
    spread = {1: (0, 0), 2: (9.2, 9.2), 3: (11, 11), 4: (9.8, 9.8), 5: (11.2, 11.2), 6: (9.8, 12)}
    for face in FACES:
        write(HERE / f"{172 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#ffffff"), (0.6, "#f2f9ff"), (1, "#b4d4f0"), x2=1),
                   linear("water", (0, "#0c4c94"), (0.5, "#06306c"), (1, "#021a44"), x2=1),
                   radial("glow", (0, "#38b0ff", 0.5), (1, "#38b0ff", 0), cx=0.8, cy=0.88, r=0.6),
                   radial("b", (0, "#9fdcff", 0.3), (0.6, "#8fd4ff", 0.5), (1, "#eefaff", 0.9), cx=0.55, cy=0.58,
                          r=0.55)),
              rect(0, 0, 44, 44, 13, fill="url(#rim)"),
              *[rect(2.2, 2.2, 39.6, 39.6, 10.8, fill=f"url(#{fill})") for fill in ("water", "glow")],
              *[bubble(x, y, radius[face]) for x, y in pip_places(face, (22, 22), spread[face])],
              left=MARGIN)


def computer():
    """A grey-white box with a glowing screen; the digits are made of the screen's big dots."""
    dots = {1: ("..#..", ".##..", "..#..", "..#..", "..#..", "..#..", ".###."),
            2: (".###.", "#...#", "....#", "...#.", "..#..", ".#...", "#####"),
            3: (".###.", "#...#", "....#", "..##.", "....#", "#...#", ".###."),
            4: ("...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#."),
            5: ("#####", "#....", "####.", "....#", "....#", "#...#", ".###."),
            6: ("..##.", ".#...", "#....", "####.", "#...#", "#...#", ".###.")}
    for face in FACES:
        cells = [(14 + 4 * c, 8 + 3 * r) for r, row in enumerate(dots[face]) for c, dot in enumerate(row) if dot == "#"]
        write(HERE / f"{184 + face}.svg", 48, 48,
              defs(linear("case", (0, "#fbf8ec"), (0.5, "#d8d3c2"), (1, "#8e8876"), x2=1),
                   linear("foot", (0, "#8e8876"), (1, "#dcd7c6")),
                   linear("inset", (0, "#5e594b"), (1, "#f6f2e2"), x2=1),
                   radial("screen", (0, "#1d5cc0"), (0.6, "#0c3588"), (1, "#061a4c"), cx=0.5, cy=0.45, r=0.7),
                   linear("glass", (0, "#ffffff", 0.32), (1, "#ffffff", 0.02), x2=0.6, y2=1),
                   linear("base", (0, "#e8e4d4"), (1, "#8a8472"))),
              path("M17 39 H31 L33 44 H15 Z", fill="url(#foot)"), rect(8, 43, 32, 5, 2, fill="url(#base)"),
              rect(8, 43, 32, 1, 0.5, fill="#ffffff", fill_opacity=0.6),
              rect(2, 0, 44, 40, 4.5, fill="url(#case)"),
              path("M3 34 V5 Q3 1 7 1 H41", fill="none", stroke="#ffffff", stroke_opacity=0.8, stroke_width=1,
                   stroke_linecap="round"),
              rect(6, 3, 36, 30, 4, fill="url(#inset)"), rect(7, 4, 34, 28, 3.4, fill="#050d26"),
              rect(7.6, 4.6, 32.8, 26.8, 3, fill="url(#screen)"),
              *[rect(x - 0.9, y - 0.9, 5.8, 4.8, 1.4, fill="#7fd4ff", fill_opacity=0.16) for x, y in cells],
              path(" ".join(f"M{x} {y}h4v3h-4z" for x, y in cells), fill="#f2fbff"),
              path("M10 5.4 H26 C18 9 12 16 8.4 25 V8 Q8.4 5.4 10 5.4 Z", fill="url(#glass)"),
              *[rect(8 + 3 * i, 36, 2, 1, fill="#6e6858") for i in range(4)],
              circle(39.5, 36.5, 1.4, fill="#5a5546"), circle(39.5, 36.5, 1, fill="#5cff6a"))


def roman():
    """Grey stone tiles, the numerals cut in: dark on the side of the light, bright on the other."""
    top, bottom = 7, 22

    def stem(x):
        return points([(x - 2.6, top), (x + 2.6, top), (x + 2.6, top + 1.3), (x + 1.5, top + 2), (x + 1.5, bottom - 2),
                       (x + 2.6, bottom - 1.3),
                       (x + 2.6, bottom), (x - 2.6, bottom), (x - 2.6, bottom - 1.3), (x - 1.5, bottom - 2),
                       (x - 1.5, top + 2),
                       (x - 2.6, top + 1.3)]) + " Z"

    def vee(x):
        return points([(x - 7, top), (x - 1.6, top), (x - 1.6, top + 1.2), (x - 2.6, top + 1.7),
                       (x + 0.7, bottom - 5.4), (x + 3.4, top + 1.7),
                       (x + 2.2, top + 1.2), (x + 2.2, top), (x + 7, top), (x + 7, top + 1.2), (x + 5.6, top + 1.8),
                       (x + 0.8, bottom),
                       (x - 0.9, bottom), (x - 5.8, top + 1.8), (x - 7, top + 1.2)]) + " Z"

    numerals = {1: stem(14.5), 2: stem(11) + stem(18), 3: stem(7.7) + stem(14.5) + stem(21.3), 4: stem(7) + vee(17.5),
                5: vee(14.5),
                6: vee(11.5) + stem(22)}
    for face in FACES:
        d = numerals[face]
        write(HERE / f"{190 + face}.svg", 29, 31,
              defs(linear("side", (0, "#6c6c70"), (1, "#2e2e32")),
                   linear("edge", (0, "#ffffff"), (0.45, "#b4b4b8"), (1, "#68686e"), x2=1),
                   linear("stone", (0, "#cfcfd2"), (0.5, "#b6b6ba"), (1, "#96969c"), x2=1),
                   linear("cut", (0, "#141418"), (1, "#3c3c44"))),
              rect(0, 2, 29, 29, 3.5, fill="url(#side)"), rect(0, 0, 29, 29, 3.5, fill="url(#edge)"),
              rect(1, 1, 27, 27, 2.8, fill="#a2a2a8"),
              rect(1.6, 1.6, 25.8, 25.8, 2.4, fill="url(#stone)"),
              group(path(d, fill="#ffffff", fill_opacity=0.85), transform="translate(0.8 0.9)"),
              path(d, fill="url(#cut)"))


SETS = (clocks, digi, digital, clouds, marbles, keys, billiards, bubbles, computer, roman)
