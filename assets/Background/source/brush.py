"""What the background pictures share: the canvas, colours, noise, strokes and the way into a JPEG file.

A picture is made either as an SVG text (rsvg-convert draws it) or pixel by pixel. Every random number comes from a
seeded generator, so that a picture comes out the same each time.
"""
import math
import pathlib
import random
import subprocess

OUT = pathlib.Path(__file__).resolve().parent.parent
WIDTH, HEIGHT = 786, 1026


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def ramp(stops, t):
    """The colour at t (0 to 1) of a list of colours at equal distances."""
    t = max(0.0, min(0.9999, t)) * (len(stops) - 1)
    return mix(stops[int(t)], stops[int(t) + 1], t - int(t))


def rgb(colour):
    return "#%02x%02x%02x" % tuple(max(0, min(255, int(c + 0.5))) for c in colour)


def smooth(a, b, x):
    """0 at a and before, 1 at b and beyond, with soft ends; a may be the greater one."""
    t = max(0.0, min(1.0, (x - a) / (b - a)))
    return t * t * (3 - 2 * t)


class Noise:
    """Smooth value noise between -1 and 1."""

    def __init__(self, seed):
        rng = random.Random(seed)
        self.grid = [[rng.uniform(-1, 1) for _ in range(64)] for _ in range(64)]

    def at(self, x, y):
        i, j = math.floor(x), math.floor(y)
        u, v = x - i, y - j
        u, v = u * u * (3 - 2 * u), v * v * (3 - 2 * v)
        above, below = self.grid[j & 63], self.grid[(j + 1) & 63]
        i0, i1 = i & 63, (i + 1) & 63
        top = above[i0] + (above[i1] - above[i0]) * u
        return top + (below[i0] + (below[i1] - below[i0]) * u - top) * v

    def fractal(self, x, y, octaves=4):
        total, weight = 0.0, 0.5
        for _ in range(octaves):
            total += weight * self.at(x, y)
            x, y, weight = x * 2.03 + 7.1, y * 2.03 + 3.7, weight / 2
        return total


# --- strokes and shapes, as SVG ---

def blade(x, y, angle, length, width, bend=0.0):
    """The outline of a tapering stroke from its root at (x, y); the angle is in radians, bend pushes the middle aside."""
    c, s = math.cos(angle), math.sin(angle)
    tip = (x + c * length - s * bend * length, y + s * length + c * bend * length)
    mx, my = x + c * length * 0.5, y + s * length * 0.5
    w = width / 2
    return (f"M{x - s * w:.1f} {y + c * w:.1f}Q{mx - s * w:.1f} {my + c * w:.1f} {tip[0]:.1f} {tip[1]:.1f}"
            f"Q{mx + s * w:.1f} {my - c * w:.1f} {x + s * w:.1f} {y - c * w:.1f}Z")


def stroke(x, y, angle, length, width, colour, bend=0.0, opacity=1.0):
    seen = "" if opacity == 1.0 else f' opacity="{opacity:.2f}"'
    return f'<path d="{blade(x, y, angle, length, width, bend)}" fill="{rgb(colour)}"{seen}/>'


LIGHT = (-0.45, -0.68, 0.58)


class Ball:
    """An ellipse that is lit as a round body."""

    def __init__(self, x, y, rx, ry, turn=0.0):
        self.x, self.y, self.rx, self.ry = x, y, rx, ry
        self.c, self.s = math.cos(turn), math.sin(turn)

    def inside(self, x, y):
        """The place within the ball, both coordinates from -1 to 1, and the distance from the middle (1 is the rim)."""
        dx, dy = x - self.x, y - self.y
        u, v = (dx * self.c + dy * self.s) / self.rx, (dy * self.c - dx * self.s) / self.ry
        return u, v, math.hypot(u, v)

    def light(self, x, y):
        """How light the ball is at a point, about 0 to 1."""
        u, v, r = self.inside(x, y)
        if r > 0.999:
            u, v, r = u / r * 0.999, v / r * 0.999, 0.999
        nz = math.sqrt(1 - r * r)
        nx, ny = u * self.c - v * self.s, u * self.s + v * self.c
        return 0.5 + 0.5 * (nx * LIGHT[0] + ny * LIGHT[1] + nz * LIGHT[2])

    def spot(self, rng, reach=1.0):
        """A random point within the ball."""
        r, a = reach * math.sqrt(rng.random()), rng.uniform(0, 2 * math.pi)
        u, v = r * math.cos(a) * self.rx, r * math.sin(a) * self.ry
        return self.x + u * self.c - v * self.s, self.y + u * self.s + v * self.c


def fur(rng, ball, colours, count, length, width, flow, middle=None, spread=0.35, reach=1.0):
    """Covers a ball with fine hairs. flow(x, y) is the direction they lie in; hairs farther from `middle` lie below."""
    mx, my = middle or (ball.x, ball.y)
    roots = sorted((ball.spot(rng, reach) for _ in range(count)), key=lambda p: -math.hypot(p[0] - mx, p[1] - my))
    hairs = []
    for x, y in roots:
        tone = ball.light(x, y) + rng.gauss(0, 0.055)
        hairs.append(stroke(x, y, flow(x, y) + rng.gauss(0, spread), length * rng.uniform(0.6, 1.25),
                            width * rng.uniform(0.7, 1.3), ramp(colours, tone), rng.uniform(-0.25, 0.25)))
    return "".join(hairs)


def curve(points, closed=True):
    """A smooth path through the points."""
    n = len(points)
    text = f"M{points[0][0]:.1f} {points[0][1]:.1f}"
    for i in range(n if closed else n - 1):
        p0, p1, p2, p3 = (points[k % n if closed else max(0, min(n - 1, k))] for k in (i - 1, i, i + 1, i + 2))
        text += (f"C{p1[0] + (p2[0] - p0[0]) / 6:.1f} {p1[1] + (p2[1] - p0[1]) / 6:.1f} "
                 f"{p2[0] - (p3[0] - p1[0]) / 6:.1f} {p2[1] - (p3[1] - p1[1]) / 6:.1f} {p2[0]:.1f} {p2[1]:.1f}")
    return text + ("Z" if closed else "")


def linear(name, *stops, x2=0, y2=1):
    """A gradient from the top down, unless x2 and y2 say otherwise; a stop is (offset, colour) or (.., .., opacity)."""
    inner = "".join(f'<stop offset="{s[0]}" stop-color="{s[1]}" stop-opacity="{s[2] if len(s) > 2 else 1}"/>' for s in stops)
    return f'<linearGradient id="{name}" x1="0" y1="0" x2="{x2}" y2="{y2}">{inner}</linearGradient>'


def radial(name, *stops, cx=0.5, cy=0.5, r=0.5):
    inner = "".join(f'<stop offset="{s[0]}" stop-color="{s[1]}" stop-opacity="{s[2] if len(s) > 2 else 1}"/>' for s in stops)
    return f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}">{inner}</radialGradient>'


def blur(size):
    """A filter named b<size>."""
    return (f'<filter id="b{size}" x="-60%" y="-60%" width="220%" height="220%">'
            f'<feGaussianBlur stdDeviation="{size}"/></filter>')


def sheet(fill, extra=""):
    """A rectangle over the whole picture."""
    return f'<rect width="{WIDTH}" height="{HEIGHT}" fill="{fill}"{extra}/>'


# --- into the file ---

def write_jpeg(name, text_colour, pixels, quality):
    image = f"P6 {WIDTH} {HEIGHT} 255\n".encode() + bytes(pixels)
    subprocess.run(["convert", "ppm:-", "-sampling-factor", "4:2:0", "-quality", str(quality), str(OUT / f"{name}.jpg")],
                   input=image, check=True)
    (OUT / f"{name}.clr").write_text(f"{text_colour}\n", encoding="ascii")


def save_pixels(name, text_colour, pixel, quality=90):
    """Writes NAME.jpg from pixel(x, y) -> (r, g, b), with a grain that keeps slow gradients from banding."""
    grain = random.Random(1)
    rows = bytearray()
    for y in range(HEIGHT):
        for x in range(WIDTH):
            g = grain.random() * 2 - 0.5
            rows += bytes(max(0, min(255, int(c + g))) for c in pixel(x, y))
    write_jpeg(name, text_colour, rows, quality)


def save_svg(name, text_colour, defs, body, quality=90):
    """Writes NAME.jpg from the inner text of an SVG picture, with the same grain."""
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{WIDTH}" '
           f'height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}"><defs>{defs}</defs>{body}</svg>')
    png = subprocess.run(["rsvg-convert", "--unlimited", "--background-color=white"], input=svg.encode(), stdout=subprocess.PIPE,
                         check=True).stdout
    ppm = subprocess.run(["convert", "png:-", "-depth", "8", "ppm:-"], input=png, stdout=subprocess.PIPE, check=True).stdout
    flat = ppm[-3 * WIDTH * HEIGHT:]
    grain = random.Random(1)
    rows = bytearray(flat)
    for i in range(0, len(rows), 3):
        g = grain.choice((-1, 0, 1))
        for k in range(i, i + 3):
            rows[k] = max(0, min(255, rows[k] + g))
    write_jpeg(name, text_colour, rows, quality)
