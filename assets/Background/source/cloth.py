"""Cloth: Old Glory, computed pixel by pixel from a height field with folds."""
import math

from brush import HEIGHT, Noise, WIDTH, mix, save_pixels, smooth


def old_glory():
    """The stars and stripes waving, in muted evening colours: the blue field above, the stripes flow below."""
    noise = Noise(4)
    seam = 744
    navy, red, cream = (44, 62, 108), (150, 50, 56), (214, 205, 188)
    # Stars stand in alternating rows of the field.
    spacing_x, spacing_y, radius = 112, 70, 21

    def star(u, v):
        """1 within a star, 0 outside, soft at the rim."""
        row = math.floor(v / spacing_y + 0.5)
        shift = spacing_x / 2 if row & 1 else 0
        column = math.floor((u - shift) / spacing_x + 0.5)
        dx, dy = u - shift - column * spacing_x, v - row * spacing_y
        r = math.hypot(dx, dy)
        if r > radius + 2:
            return 0.0
        turn = (math.atan2(dx, -dy) + 2 * math.pi) % (2 * math.pi / 5)
        turn = min(turn, 2 * math.pi / 5 - turn)
        # The rim of a five-pointed star: the line from a tip to the notch beside it.
        tip, notch, half = radius, radius * 0.382, math.pi / 5
        nx, ny = notch * math.cos(half), notch * math.sin(half)
        px, py = r * math.cos(turn), r * math.sin(turn)
        outside = ((px - tip) * -ny - py * (tip - nx)) / math.hypot(nx - tip, ny)
        return smooth(-1.2, 1.2, outside)

    def wave(x, y):
        u, v = x / WIDTH, y / WIDTH
        bend = u + 0.20 * v + 0.06 * noise.at(1.5 * u + 2, 1.8 * v)
        return math.sin(2 * math.pi * 1.35 * bend + 0.5) * 0.62 \
            + math.sin(2 * math.pi * 2.7 * (bend + 0.15 * v) + 2.1) * 0.30 \
            + 0.22 * noise.at(3 * u + 1, 2.2 * v + 4)

    def field(u, v, y):
        # Where the texts stand the stars are dimmer still.
        colour = mix(navy, cream, star(u, v - 9) * (0.36 - 0.08 * smooth(330, 420, y)))
        return mix(colour, (24, 33, 60), 0.55 * math.exp(min(0.0, v - seam) / 7))

    def stripes(v):
        k = max(0, int(v / 47))
        edge = max(0.0, min(v - 47 * k, 47 * (k + 1) - v))
        colour, other = (cream, red) if k & 1 else (red, cream)
        if edge < 0.8 and k:
            colour = mix(mix(colour, other, 0.5), colour, edge / 0.8)
        return mix(colour, (60, 40, 40), 0.30 * math.exp(-edge / 2.2))

    def pixel(x, y):
        w = wave(x, y)
        dx, dy = wave(x + 3, y) - wave(x - 3, y), wave(x, y + 3) - wave(x, y - 3)
        amplitude = 14 + 26 * smooth(560, 1000, y)
        u, v = x + 9 * w, y + amplitude * w + 0.04 * x
        colour = mix(field(u, v, y), stripes(v - seam), smooth(-0.8, 0.8, v - seam))
        shade = 0.86 - 5.2 * dx - 1.6 * dy + 0.12 * w
        shade = max(0.34, min(1.22, shade))
        weave = 1 + 0.022 * math.sin(u * 2.1) * math.sin(v * 2.1) + 0.015 * noise.at(x * 0.35, y * 0.35)
        colour = [c * shade * weave for c in colour]
        edge = smooth(0, 1, math.hypot(x / WIDTH - 0.5, (y / HEIGHT - 0.5)) * 1.25)
        return mix(colour, [c * 0.66 for c in colour], edge)

    save_pixels("Old Glory", 7, pixel, quality=90)
