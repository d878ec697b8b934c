"""Building blocks for the generated pictures.

Every file is made for QtSvg, which knows gradients, paths and opacity, but no filters, clips, masks or patterns;
letters are outlines, so that they look alike whatever fonts are installed. Light comes from the upper left. Sizes are
logical pixels.
"""
import math

# The digits 1 to 6 of a bold sans serif, 100 units high, about their middle.
DIGITS = {
    1: "M-34 50L-34 35L-9 35L-9 -33L-33 -18L-33 -34L-8 -50L11 -50L11 35L34 35L34 50L-34 50Z",
    2: "M-35 51L-35 37C-32 31 -29 26 -24 20C-19 15 -13 9 -6 3C1 -3 6 -7 9 -11C12 -15 13 -18 13 -22"
       "C13 -30 9 -35 0 -35C-4 -35 -7 -34 -10 -31C-12 -29 -13 -26 -14 -21L-34 -22C-33 -31 -30 -39 -24 -43"
       "C-18 -48 -10 -51 0 -51C11 -51 19 -48 25 -43C31 -38 33 -32 33 -23C33 -18 33 -14 31 -10C29 -6 26 -3 24 1"
       "C21 4 17 7 14 10C10 12 7 15 4 18C0 20 -3 23 -5 26C-8 28 -10 31 -11 34L35 34L35 51L-35 51Z",
    3: "M36 22C36 32 33 39 27 44C21 49 12 52 1 52C-10 52 -19 49 -25 44C-31 39 -35 32 -36 23L-16 21C-15 31 -9 35 1 35"
       "C5 35 9 34 12 32C14 29 16 26 16 21C16 17 14 13 11 11C8 8 3 7 -3 7L-10 7L-10 -9L-4 -9C2 -9 6 -10 9 -12"
       "C12 -15 13 -18 13 -22C13 -27 12 -30 10 -32C8 -34 4 -36 0 -36C-4 -36 -8 -35 -10 -32C-13 -30 -14 -27 -14 -23"
       "L-34 -24C-33 -33 -30 -39 -24 -44C-18 -49 -10 -52 0 -52C11 -52 19 -49 25 -45C31 -40 34 -33 34 -25"
       "C34 -19 32 -14 28 -10C24 -6 19 -3 12 -2L12 -1C20 0 26 2 30 6C34 10 36 16 36 22Z",
    4: "M26 30L26 50L7 50L7 30L-39 30L-39 15L3 -50L26 -50L26 15L39 15L39 30L26 30M7 -18L7 -32C6 -29 4 -25 1 -20"
       "L-23 15L7 15Z",
    5: "M36 16C36 27 33 35 26 41C20 48 11 51 -1 51C-11 51 -19 48 -25 44C-31 39 -35 33 -36 24L-16 23"
       "C-15 27 -13 30 -11 32C-8 34 -5 35 -1 35C4 35 8 33 11 30C14 27 16 22 16 16C16 11 14 7 11 4C9 1 5 -1 0 -1"
       "C-6 -1 -10 1 -14 6L-33 6L-30 -51L30 -51L30 -36L-12 -36L-13 -11C-8 -15 -2 -17 5 -17C14 -17 22 -14 28 -8"
       "C33 -2 36 6 36 16Z",
    6: "M35 17C35 28 32 36 26 42C20 48 12 51 1 51C-10 51 -19 47 -26 39C-32 31 -35 19 -35 2C-35 -15 -32 -29 -26 -38"
       "C-19 -47 -10 -51 2 -51C10 -51 17 -50 22 -46C27 -42 30 -36 32 -28L14 -26C12 -32 8 -36 2 -36"
       "C-4 -36 -8 -33 -11 -28C-14 -22 -16 -14 -16 -3C-13 -7 -11 -10 -7 -11C-3 -13 1 -14 6 -14C15 -14 22 -11 27 -6"
       "C33 0 35 8 35 17M15 18C15 12 14 8 11 5C9 2 5 0 0 0C-4 0 -8 2 -10 5C-13 7 -14 11 -14 16C-14 22 -13 26 -10 30"
       "C-7 34 -4 36 1 36C5 36 9 34 11 31C14 28 15 24 15 18Z",
}


def num(x):
    text = f"{x:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def css(style):
    return "".join(f' {k.replace("_", "-")}="{v if isinstance(v, str) else num(v)}"' for k, v in style.items())


def mix(a, b, t):
    """The colour between "#rrggbb" a (t = 0) and b (t = 1)."""
    pairs = [(int(a[i:i + 2], 16), int(b[i:i + 2], 16)) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(p + (q - p) * t):02x}" for p, q in pairs)


# --- gradients: stops are (offset, colour) or (offset, colour, opacity) --------------------------------------------

def stop_list(stops):
    return "".join(f'<stop offset="{num(o)}" stop-color="{c}"' + (f' stop-opacity="{num(a[0])}"' if a else "") + "/>"
                   for o, c, *a in stops)


def linear(name, *stops, x1=0, y1=0, x2=0, y2=1):
    return (f'<linearGradient id="{name}" x1="{num(x1)}" y1="{num(y1)}" x2="{num(x2)}" y2="{num(y2)}">'
            f"{stop_list(stops)}</linearGradient>")


def radial(name, *stops, cx=0.5, cy=0.5, r=0.5, fx=None, fy=None):
    fx, fy = cx if fx is None else fx, cy if fy is None else fy
    return (f'<radialGradient id="{name}" cx="{num(cx)}" cy="{num(cy)}" r="{num(r)}" fx="{num(fx)}" fy="{num(fy)}">'
            f"{stop_list(stops)}</radialGradient>")


def defs(*gradients):
    return f"<defs>{''.join(gradients)}</defs>"


# --- shapes --------------------------------------------------------------------------------------------------------

def rect(x, y, w, h, r=0, **style):
    corner = f' rx="{num(r)}" ry="{num(r)}"' if r else ""
    return f'<rect x="{num(x)}" y="{num(y)}" width="{num(w)}" height="{num(h)}"{corner}{css(style)}/>'


def circle(x, y, r, **style):
    return f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(r)}"{css(style)}/>'


def ellipse(x, y, rx, ry, **style):
    return f'<ellipse cx="{num(x)}" cy="{num(y)}" rx="{num(rx)}" ry="{num(ry)}"{css(style)}/>'


def path(d, **style):
    return f'<path d="{d}"{css(style)}/>'


def points(places):
    return "M" + " L".join(f"{num(x)} {num(y)}" for x, y in places)


def polygon(places, **style):
    return path(points(places) + " Z", **style)


def line(x1, y1, x2, y2, **style):
    style.setdefault("stroke_linecap", "round")
    return path(points([(x1, y1), (x2, y2)]), fill="none", **style)


def smooth(places, closed=True):
    """Path data of a soft curve through the places."""
    n = len(places)
    at = (lambda i: places[i % n]) if closed else (lambda i: places[max(0, min(n - 1, i))])
    d = f"M{num(places[0][0])} {num(places[0][1])}"
    for i in range(n if closed else n - 1):
        (px, py), (x1, y1), (x2, y2), (nx, ny) = at(i - 1), at(i), at(i + 1), at(i + 2)
        d += " C" + " ".join(num(v) for v in (x1 + (x2 - px) / 6, y1 + (y2 - py) / 6, x2 - (nx - x1) / 6,
                                              y2 - (ny - y1) / 6,
                                              x2, y2))
    return d + (" Z" if closed else "")


def around(x, y, r, degrees):
    """The place at a distance from (x, y), clockwise from twelve o'clock."""
    a = math.radians(degrees)
    return x + r * math.sin(a), y - r * math.cos(a)


def star(x, y, r, **style):
    return polygon([around(x, y, r if i % 2 == 0 else r * 0.42, i * 36) for i in range(10)], **style)


def digit(value, x, y, height, **style):
    k = height / 100
    return f'<g transform="translate({num(x)} {num(y)}) scale({k:.4f})">{path(DIGITS[value], **style)}</g>'


def group(*parts, transform):
    return f'<g transform="{transform}">{"".join(parts)}</g>'


def shadow(x, y, w, h, r, depth, strength):
    """The soft shadow of a rounded body, thrown down by depth and to the right by half of it."""
    steps = 2 * depth
    return "".join(rect(x + i / 4, y + i / 2, w, h, r, fill="#000000", fill_opacity=strength * (1.25 - i / steps))
                   for i in range(steps, 0, -1))


def picture(width, height, *parts, left=0):
    """The text of a picture; all its parts are moved to the right by `left`."""
    return (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{width}" '
            f'height="{height}" viewBox="{-left} 0 {width} {height}">\n' + "\n".join(parts) + "\n</svg>\n")


def write(file, *what, **where):
    file.write_text(picture(*what, **where), encoding="ascii")


def pip_places(face, middle, spread):
    """Centres of the pips of a face; `spread` is the distance of the outer rows from the middle."""
    (mx, my), (sx, sy) = middle, spread
    left, right, up, down = mx - sx, mx + sx, my - sy, my + sy
    return {1: [(mx, my)],
            2: [(left, up), (right, down)],
            3: [(left, up), (mx, my), (right, down)],
            4: [(left, up), (right, up), (left, down), (right, down)],
            5: [(left, up), (right, up), (mx, my), (left, down), (right, down)],
            6: [(left, up), (right, up), (left, my), (right, my), (left, down), (right, down)]}[face]


# --- dice ----------------------------------------------------------------------------------------------------------

IVORY = ("#ffffff", "#e6e4dc", "#98948a", "#6a655c")
RED = ("#f58a86", "#b3141f", "#560710", "#3a040a")
BLUE = ("#7d9cf2", "#2344b4", "#0d1a5a", "#0a1240")
BLACK_PIP = ((0, "#0c0b09"), (0.55, "#2e2a24"), (1, "#6e675a"))
RED_PIP = ((0, "#c9aaa2"), (0.4, "#fbf1ea"), (1, "#ffffff"))
BLUE_PIP = ((0, "#9aa6c8"), (0.4, "#eef1fa"), (1, "#ffffff"))


def die_body(name, lit, face, shaded, rim, r=10.0, gloss=0.42):
    """A rounded die of 44 x 44. Its edge is a stack of rings that go from full light and shade to the calm face. The
    name sets its gradients apart from those of another die in the same file.
    """
    rings = 6
    parts = [rect(0, 0, 44, 44, r, fill=f"url(#{name}rim)")]
    gradients = [linear(f"{name}rim", (0, mix(rim, lit, 0.3)), (0.5, rim), (1, rim), x2=1)]
    for i in range(rings):
        inset, edge = 1 + i * 0.72, 0.35 + 0.65 * (1 - i / (rings - 1)) ** 1.5
        gradients.append(linear(f"{name}{i}", (0, mix(face, lit, edge)), (0.45, face), (1, mix(face, shaded, edge)),
                                x2=1))
        parts.append(rect(inset, inset, 44 - 2 * inset, 44 - 2 * inset, r - inset * 0.6, fill=f"url(#{name}{i})"))
    gradients += [radial(f"{name}glow", (0, "#ffffff", gloss), (0.55, "#ffffff", gloss * 0.22), (1, "#ffffff", 0),
                         cx=0.27, cy=0.2, r=0.62),
                  linear(f"{name}glint", (0, "#ffffff", min(1, gloss * 1.6)), (0.4, "#ffffff", gloss),
                         (1, "#ffffff", 0),
                         x2=0.75, y2=0.75)]
    parts += [rect(4.6, 4.6, 34.8, 34.8, r - 2.8, fill=f"url(#{name}glow)"),
              path(f"M2.4 34 V{num(r)} Q2.4 2.4 {num(r)} 2.4 H34", fill="none", stroke=f"url(#{name}glint)",
                   stroke_width=1.2)]
    return defs(*gradients), *parts


def hollow(x, y, r, fill, edge, glint):
    """A pip drilled into the face: its upper edge lies in the shade, its lower edge catches the light."""
    return (circle(x + 0.55, y + 0.65, r + 0.45, fill=glint[0], fill_opacity=glint[1]) +
            circle(x, y, r + 0.15, fill=edge) + circle(x, y, r - 0.35, fill=f"url(#{fill})"))
