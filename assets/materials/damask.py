"""Damask: the ornaments that are woven into the cloths, as masks of a grey for every dot (0 bare, 255 full)."""
import math
import subprocess

from brush import HEIGHT, WIDTH

W, H = 393, 513  # the picture in the table's pixels; its ornaments are laid out round the window's middle
MIDDLE = 195.5


def mask(*parts):
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {W} {H}">'
           f'<rect width="{W}" height="{H}"/>{"".join(parts)}</svg>')
    png = subprocess.run(["rsvg-convert"], input=svg.encode(), stdout=subprocess.PIPE, check=True).stdout
    return subprocess.run(["convert", "png:-", "-colorspace", "Gray", "-depth", "8", "gray:-"], input=png,
                          stdout=subprocess.PIPE, check=True).stdout


def at_bezier(p, t):
    s = 1 - t
    return tuple(s ** 3 * p[0][i] + 3 * s * s * t * p[1][i] + 3 * s * t * t * p[2][i] + t ** 3 * p[3][i] for i in (0, 1))


def ribbon(places, width):
    """A band along the places; width(t) is what it measures at t, 0 to 1."""
    left, right = [], []
    for i, (x, y) in enumerate(places):
        (ax, ay), (bx, by) = places[max(0, i - 1)], places[min(len(places) - 1, i + 1)]
        length = math.hypot(bx - ax, by - ay) or 1
        half = width(i / (len(places) - 1)) / 2
        nx, ny = -(by - ay) / length * half, (bx - ax) / length * half
        left.append(f"{x + nx:.2f} {y + ny:.2f}")
        right.append(f"{x - nx:.2f} {y - ny:.2f}")
    return f'<path fill="#fff" d="M{"L".join(left + right[::-1])}Z"/>'


def scroll(p, radius, turns=1.15, side=1, widest=2.8):
    """A stem along a cubic curve that curls up at its end, thick in the middle and with a bud at the heart."""
    places = [at_bezier(p, i / 24) for i in range(25)]
    (ax, ay), (bx, by) = places[-2:]
    way = math.atan2(by - ay, bx - ax)
    x, y = bx, by
    steps = int(40 * turns)
    for i in range(1, steps + 1):
        r = radius * (1 - 0.8 * i / steps)
        way += side * 2 * math.pi * turns / steps
        x, y = x + math.cos(way) * r * 2 * math.pi * turns / steps, y + math.sin(way) * r * 2 * math.pi * turns / steps
        places.append((x, y))
    band = ribbon(places, lambda t: 0.8 + (widest - 0.8) * math.sin(math.pi * min(1, t * 1.15)) ** 0.8 * (1 - 0.35 * t))
    return band + f'<circle cx="{x:.2f}" cy="{y:.2f}" r="{widest * 0.52:.2f}" fill="#fff"/>'


def leaf(x, y, length, degrees, width=0.36):
    a = math.radians(degrees)
    c, s = math.cos(a), math.sin(a)

    def place(u, v):
        return f"{x + c * u - s * v:.2f} {y + s * u + c * v:.2f}"
    w = length * width
    return (f'<path fill="#fff" d="M{place(0, 0)}C{place(length * 0.2, -w)} {place(length * 0.65, -w)} {place(length, 0)}'
            f'C{place(length * 0.65, w * 0.7)} {place(length * 0.2, w * 0.7)} {place(0, 0)}Z"/>'
            f'<path stroke="#000" stroke-width="{length * 0.045:.2f}" fill="none" '
            f'd="M{place(length * 0.1, 0)}Q{place(length * 0.5, -w * 0.12)} {place(length * 0.86, 0)}"/>')


def mirrored(text, axis=MIDDLE):
    return text + f'<g transform="translate({2 * axis} 0) scale(-1 1)">{text}</g>'


def rosette(x, y, k):
    petals = "".join(leaf(0, -1.2, 9.5, turn, 0.42) for turn in (-90, -35, -145))
    foot = "".join(leaf(0, 2, 7.5, turn, 0.36) for turn in (55, 125)) + leaf(0, 1.5, 11, 90, 0.24)
    return f'<g transform="translate({x:.2f} {y:.2f}) scale({k})">{petals}{foot}<circle r="1.7" fill="#fff"/></g>'


def net(dx, dy, size, hole="", shift=0.0):
    """Ogee meshes of dx by dy with a flower in each; nothing where `hole`, a part of a drawing, lies."""
    parts = []
    for row in range(-1, int(H / dy * 2) + 3):
        for column in range(-1, int(W / dx) + 3):
            x, y = MIDDLE + shift + (column - int(W / dx / 2) - 1 + (row % 2) / 2) * dx, (row - 1) * dy / 2
            parts.append(rosette(x, y, size))
            for side in (-1, 1):  # two sides of the mesh above the flower
                parts.append(f'<path fill="none" stroke="#fff" stroke-width="1.1" d="M{x:.1f} {y - dy / 2:.1f}'
                             f'C{x + side * dx * 0.02:.1f} {y - dy * 0.3:.1f} {x + side * dx * 0.48:.1f} {y - dy * 0.2:.1f}'
                             f' {x + side * dx / 2:.1f} {y:.1f}"/>'
                             f'<path fill="none" stroke="#fff" stroke-width="1.1" d="M{x + side * dx / 2:.1f} {y:.1f}'
                             f'C{x + side * dx * 0.48:.1f} {y + dy * 0.2:.1f} {x + side * dx * 0.02:.1f} {y + dy * 0.3:.1f}'
                             f' {x:.1f} {y + dy / 2:.1f}"/>')
    return "".join(parts) + hole


def notched(x, y, w, h, r):
    """A frame whose corners are hollow."""
    return (f"M{x + r} {y}H{x + w - r}A{r} {r} 0 0 0 {x + w} {y + r}V{y + h - r}A{r} {r} 0 0 0 {x + w - r} {y + h}"
            f"H{x + r}A{r} {r} 0 0 0 {x} {y + h - r}V{y + r}A{r} {r} 0 0 0 {x + r} {y}Z")


FIELD = 22.5, 206.5, 346, 158  # what the table's texts stand in


def cartouche():
    """The frame round the texts, with scrolls and a leaf in each corner."""
    x, y, w, h = FIELD

    def lines(inset, width):
        return (f'<path fill="none" stroke="#fff" stroke-width="{width}" '
                f'd="{notched(x + inset, y + inset, w - 2 * inset, h - 2 * inset, 14)}"/>')

    def corner(k):
        along = scroll([(12, 26), (20, 14), (34, 9), (52, 9)], 4.6, side=1, widest=2.7)
        down = scroll([(26, 12), (14, 20), (9, 32), (9, 46)], 4.2, side=-1, widest=2.5)
        return (f'<g transform="scale({k})">{along}{down}</g>' + leaf(9, 9, 23 * k, 45) + leaf(17 * k, 15 * k, 12 * k, 12)
                + leaf(15 * k, 17 * k, 12 * k, 78) + '<circle cx="8" cy="8" r="2" fill="#fff"/>')
    upper = f'<g transform="translate({x + 4.5} {y + 4.5})">{corner(1)}</g>'
    lower = f'<g transform="translate({x + 4.5} {y + h - 4.5}) scale(1 -1)">{corner(0.7)}</g>'
    crest = scroll([(MIDDLE + 3, y + 9), (MIDDLE + 14, y + 4), (MIDDLE + 30, y + 8), (MIDDLE + 44, y + 9)], 3.6, side=1,
                   widest=2.3)
    return (lines(0, 1.7) + lines(4.5, 0.9) + mirrored(upper + lower + crest) + leaf(MIDDLE, y + 3, 15, 90)
            + mirrored(leaf(MIDDLE + 1, y + 7, 10, 42)))


def die(x, y, side, degrees, face):
    spots = {3: ((-1, -1), (0, 0), (1, 1)), 5: ((-1, -1), (1, -1), (0, 0), (-1, 1), (1, 1))}[face]
    half, step, r = side / 2, side * 0.26, side * 0.085
    pips = "".join(f'<circle cx="{a * step:.2f}" cy="{b * step:.2f}" r="{r:.2f}" fill="#000"/>' for a, b in spots)
    return (f'<g transform="translate({x} {y}) rotate({degrees})">'
            f'<rect x="{-half - 3.2}" y="{-half - 3.2}" width="{side + 6.4}" height="{side + 6.4}" rx="8" fill="#000"/>'
            f'<rect x="{-half - 2.1}" y="{-half - 2.1}" width="{side + 4.2}" height="{side + 4.2}" rx="7.4" fill="none" '
            f'stroke="#fff" stroke-width="1.1"/>'
            f'<rect x="{-half}" y="{-half}" width="{side}" height="{side}" rx="5.6" fill="#fff"/>{pips}</g>')


def ornament(y=416):
    """Three dice between vines."""
    x = MIDDLE
    vine = "".join([
        scroll([(x + 50, y + 13), (x + 70, y + 32), (x + 100, y + 30), (x + 122, y + 14)], 10, side=-1, widest=3.4),
        scroll([(x + 52, y + 4), (x + 64, y - 14), (x + 84, y - 22), (x + 102, y - 16)], 7.5, side=1, widest=3),
        scroll([(x + 104, y + 24), (x + 124, y + 34), (x + 140, y + 26), (x + 152, y + 12)], 6.5, side=-1, widest=2.7),
        scroll([(x + 88, y - 19), (x + 104, y - 36), (x + 122, y - 30), (x + 132, y - 22)], 5, side=1, widest=2.3),
        scroll([(x + 62, y + 22), (x + 52, y + 34), (x + 36, y + 34), (x + 22, y + 30)], 4.4, side=1, widest=2.2),
        leaf(x + 70, y + 27, 17, 62), leaf(x + 96, y + 28, 16, 84), leaf(x + 126, y + 30, 14, 60),
        leaf(x + 150, y + 10, 14, -34), leaf(x + 70, y - 14, 15, -108), leaf(x + 102, y - 30, 13, -128),
        leaf(x + 132, y - 22, 15, 8), leaf(x + 122, y + 12, 15, -62), leaf(x + 40, y + 34, 12, 120)])
    return (mirrored(vine) + die(x - 33, y + 2, 29, -16, 5) + die(x + 33, y + 2, 29, 16, 5) + die(x, y - 7, 31, 45, 3)
            + mirrored(leaf(x + 4, y + 22, 13, 34)) + leaf(x, y + 21, 14, 90))


def satin_net():
    """The net keeps away from the menu, from the texts and from the ornament."""
    x, y, w, h = FIELD
    return mask(net(39.1, 52, 0.86), f'<rect width="{W}" height="18"/>',
                f'<rect x="{x - 3}" y="{y - 3}" width="{w + 6}" height="{h + 6}" rx="10"/>',
                f'<ellipse cx="{MIDDLE}" cy="416" rx="188" ry="50"/>')
