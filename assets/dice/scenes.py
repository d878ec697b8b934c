"""The dice sets that show something other than a plain die: clocks, displays, clouds, marbles, keys and the like."""
import pathlib
import random

from svg import (around, circle, defs, digit, ellipse, group, line, linear, mix, num, path, pip_places, points,
                 polygon, radial,
                 rect, shadow, smooth, write)

HERE = pathlib.Path(__file__).parent
FACES = range(1, 7)
MARGIN = 2  # to the left of a body of 44, so that it stands in the middle of its 48 pixels


def clocks():
    """The hands show the hour; a window where a watch has its date names it too."""
    x = y = 24
    for face in FACES:
        ticks = [line(*around(x, y, 17.6, 30 * h), *around(x, y, 15.2 if h % 3 else 13.6, 30 * h), stroke="#2c2a33",
                      stroke_width=1.2 if h % 3 else 2, stroke_linecap="butt") for h in range(12) if h != 9]

        def hand(degrees, length, width, dx=0.0, dy=0.0, **style):
            tip, tail = around(x + dx, y + dy, length, degrees), around(x + dx, y + dy, 3.2, degrees + 180)
            side, other = around(x + dx, y + dy, width, degrees + 90), around(x + dx, y + dy, width, degrees - 90)
            return polygon([tip, side, tail, other], stroke_linejoin="round", stroke_width=0.8, **style)

        hands = [(30 * face, 11.2, 2.3), (0, 16, 1.6)]
        write(HERE / f"{124 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#fff4c0"), (0.4, "#d9a63a"), (1, "#6b4508"), x2=1),
                   linear("bevel", (0, "#7a5210"), (0.6, "#e8bc50"), (1, "#fff0b0"), x2=1),
                   radial("dial", (0, "#ffffff"), (0.6, "#fbf8ee"), (1, "#d8d2c0"), cx=0.42, cy=0.38, r=0.62),
                   linear("glass", (0, "#ffffff", 0.55), (1, "#ffffff", 0), x2=0.8, y2=1)),
              circle(25.2, 25.4, 22.6, fill="#000000", fill_opacity=0.18),
              circle(24.6, 24.8, 22.8, fill="#000000", fill_opacity=0.2),
              circle(x, y, 22.5, fill="#4a3006"), circle(x, y, 22, fill="url(#rim)"),
              circle(x, y, 19.6, fill="url(#bevel)"),
              circle(x, y, 18.6, fill="url(#dial)"), *ticks,
              *[hand(*h, dx=0.7, dy=0.9, fill="#000000", fill_opacity=0.25) for h in hands],
              *[hand(*h, fill="#1c1a26", stroke="#1c1a26") for h in hands],
              circle(x, y, 2.3, fill="#1c1a26"), circle(23.6, 23.6, 1.1, fill="#d9a63a"),
              path("M9 24 A15.5 15.5 0 0 1 31 10.2 C23 12 15 16 9 24 Z", fill="url(#glass)"),
              rect(7, 18, 11, 12, 1.6, fill="#8a8474"), rect(7, 18, 10.4, 11.4, 1.4, fill="#1c1a26"),
              digit(face, 12.3, 23.8, 8.4, fill="#ffffff"))


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
        base = y + 0.42 * k

        def shape(dx, dy, grow, fill):
            return ("".join(circle(x + px * k + dx, y + py * k + dy, r * k + grow, fill=fill) for px, py, r in puffs) +
                    rect(x - 0.78 * k + dx, base - 0.3 * k + dy - grow, 1.56 * k, 0.3 * k + 2 * grow, 0.15 * k,
                         fill=fill))
        lights = "".join(circle(x + px * k - r * k * 0.16, y + py * k - r * k * 0.18, r * k * 0.82,
                                fill="#ffffff") for px, py, r in puffs)
        return shape(0.5, 1.1, 0.25, "#0c4aa8") + shape(0, 0, 0, "#d3e4f8") + lights

    width = {1: 33, 2: 22, 3: 18, 4: 18, 5: 16.5, 6: 17}
    spread = {1: (0, 0), 2: (8.4, 9.4), 3: (10.8, 12.4), 4: (10.2, 9.5), 5: (11.6, 12.6), 6: (10.2, 12.6)}
    for face in FACES:
        write(HERE / f"{148 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#d8ecff"), (0.5, "#6aa8ee"), (1, "#123c90"), x2=1),
                   linear("sky", (0, "#1450c0"), (0.6, "#3f86e4"), (1, "#7db8f6"))),
              shadow(0, 0, 44, 44, 9, 4, 0.09),
              rect(0, 0, 44, 44, 9, fill="url(#rim)"), rect(1.2, 1.2, 41.6, 41.6, 8, fill="url(#sky)"),
              *[cloud(x, y, width[face]) for x, y in pip_places(face, (22, 22), spread[face])],
              left=MARGIN)


def marbles():
    """Glass marbles with a swirl in the hollows of a wooden board."""
    glass = {1: ("#1f7fd8", "#082458", "#ffd23c"), 2: ("#d8362c", "#560a10", "#ffe8e0"),
             3: ("#1f9a4c", "#063a1c", "#fff07a"),
             4: ("#c8500c", "#4a1c02", "#ffe0a0"), 5: ("#7440d0", "#260a58", "#8ff0ff"),
             6: ("#0c8a98", "#02343f", "#ffb8a0")}
    radius = {1: 12, 2: 8.4, 3: 6.9, 4: 7.8, 5: 6.5, 6: 5.9}
    spread = {1: (0, 0), 2: (9, 9), 3: (11.5, 11.5), 4: (10, 10), 5: (11.8, 11.8), 6: (10, 13)}
    for face in FACES:
        lit, deep, band = glass[face]
        hand = random.Random(f"marbles {face}")

        def marble(x, y, r):
            def at(px, py):
                return f"{num(px * r)} {num(py * r)}"
            swirl = (f"M{at(-0.75, 0.5)} C{at(-0.35, -0.1)} {at(0.05, 0.75)} {at(0.35, 0.05)} "
                     f"C{at(0.5, -0.3)} {at(0.62, -0.5)} {at(0.72, -0.56)} "
                     f"C{at(0.95, -0.1)} {at(0.72, 0.62)} {at(0.28, 0.74)} "
                     f"C{at(-0.05, 0.85)} {at(-0.4, 0.72)} {at(-0.75, 0.5)} Z")
            thin = f"M{at(-0.85, 0.1)} C{at(-0.4, -0.5)} {at(0.1, 0.25)} {at(0.5, -0.72)}"
            return (circle(x, y, r + 1, fill="#3a1e06", fill_opacity=0.75) +
                    path(f"M{num(x - r * 0.9)} {num(y + r * 0.75)} A{num(r + 0.9)} {num(r + 0.9)} 0 0 0 "
                         f"{num(x + r * 0.75)} {num(y + r * 0.9)}",
                         fill="none", stroke="#ffdca6", stroke_opacity=0.6, stroke_width=0.8) +
                    circle(x, y, r, fill="url(#m)") +
                    group(path(swirl, fill=band, fill_opacity=0.8),
                          path(thin, fill="none", stroke="#ffffff", stroke_opacity=0.75, stroke_width=r * 0.13,
                               stroke_linecap="round"),
                          transform=f"translate({num(x)} {num(y)}) rotate({hand.randrange(-35, 35)})") +
                    circle(x, y, r, fill="url(#shade)") +
                    ellipse(x - r * 0.36, y - r * 0.42, r * 0.3, r * 0.22, fill="#ffffff", fill_opacity=0.95))

        def vein(y):
            places = [(x, y + hand.uniform(0, 1.5) + hand.uniform(-1, 1)) for x in (1.5, 12, 22, 32, 42.5)]
            return path(smooth(places, closed=False), fill="none", stroke="#8a5a26", stroke_opacity=0.28,
                        stroke_width=hand.uniform(0.5, 1.1))

        write(HERE / f"{154 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#fff0d0"), (0.5, "#c89a5c"), (1, "#6e4418"), x2=1),
                   linear("wood", (0, "#f0d2a0"), (0.5, "#dfb67c"), (1, "#bd8c50"), x2=1),
                   radial("m", (0, mix(lit, "#ffffff", 0.35)), (0.55, lit), (1, deep), cx=0.5, cy=0.55, r=0.55),
                   radial("shade", (0, deep, 0), (0.7, deep, 0.08), (1, deep, 0.85), cx=0.42, cy=0.42, r=0.6)),
              shadow(0, 0, 44, 44, 7, 4, 0.09),
              rect(0, 0, 44, 44, 7, fill="url(#rim)"), rect(1.2, 1.2, 41.6, 41.6, 6, fill="url(#wood)"),
              *[vein(2 + 4.4 * i) for i in range(10)],
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
    """Bubbles inside a cube of clear water."""
    def bubble(x, y, r):
        return (circle(x + 0.4, y + 0.6, r + 0.5, fill="#00285c", fill_opacity=0.55) + circle(x, y, r, fill="url(#b)") +
                circle(x, y, r - 0.4, fill="none", stroke="#ffffff", stroke_opacity=0.95, stroke_width=0.9) +
                path(f"M{num(x + r * 0.62)} {num(y + r * 0.02)} A{num(r * 0.64)} {num(r * 0.64)} 0 0 1 "
                     f"{num(x - r * 0.05)} {num(y + r * 0.64)}",
                     fill="none", stroke="#ffffff", stroke_opacity=0.9, stroke_width=r * 0.16, stroke_linecap="round") +
                ellipse(x - r * 0.36, y - r * 0.4, r * 0.32, r * 0.22, fill="#ffffff",
                        transform=f"rotate(-40 {num(x - r * 0.36)} {num(y - r * 0.4)})"))

    radius = {1: 10.5, 2: 7.6, 3: 6.3, 4: 6.6, 5: 5.7, 6: 5.5}
    spread = {1: (0, 0), 2: (9.5, 9.5), 3: (11.3, 11.3), 4: (10, 10), 5: (11.6, 11.6), 6: (10, 12.2)}
    for face in FACES:
        write(HERE / f"{172 + face}.svg", 48, 48,
              defs(linear("rim", (0, "#ffffff"), (0.45, "#7cc4ff"), (1, "#cfeaff"), x2=1),
                   linear("water", (0, "#2a8ce0"), (0.5, "#0a58b0"), (1, "#063a84"), x2=1),
                   radial("glow", (0, "#b8f4ff", 0.55), (1, "#b8f4ff", 0), cx=0.8, cy=0.85, r=0.55),
                   radial("b", (0, "#dff6ff", 0.2), (0.55, "#8fdcff", 0.45), (0.8, "#ffd8f6", 0.75),
                          (1, "#f2fdff", 0.95), cx=0.55, cy=0.58, r=0.55)),
              shadow(0, 0, 44, 44, 13, 4, 0.09),
              rect(0, 0, 44, 44, 13, fill="#04306c"), rect(0.6, 0.6, 42.8, 42.8, 12.6, fill="url(#rim)"),
              rect(1.9, 1.9, 40.2, 40.2, 11.4, fill="url(#water)"), rect(1.9, 1.9, 40.2, 40.2, 11.4, fill="url(#glow)"),
              path("M4.6 21 V14 Q4.6 4.6 14 4.6 H24 Q9 7 4.6 21 Z", fill="#ffffff", fill_opacity=0.5),
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
