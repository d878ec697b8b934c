"""Cloth: Satin and Old Glory, computed pixel by pixel from a height field with folds."""
import math

from brush import HEIGHT, Noise, WIDTH, mix, ramp, save_pixels, smooth


def satin():
    """Shot satin. Behind the texts, which may be black or white, its folds change their hue and hardly their lightness;
    below them the cloth falls into full light and shade.
    """
    noise = Noise(11)
    tones = [(44, 84, 142), (57, 102, 159), (71, 119, 175), (92, 137, 190), (118, 158, 207)]

    def height(x, y):
        u, v = x / WIDTH, y / WIDTH
        # The cloth hangs in diagonal folds; noise bends them, and a second train lies between the first.
        wu = u + 0.17 * noise.at(1.6 * u + 0.3, 1.3 * v) + 0.05 * noise.at(3.4 * u, 2.9 * v + 9)
        wv = v + 0.14 * noise.at(1.3 * u + 5, 1.7 * v + 2)
        a = 3.1 * wu + 2.0 * wv
        b = 2.2 * wu - 1.1 * wv
        phase = 2 * math.pi * a * 0.72
        fold = math.sin(phase + 0.55 * math.sin(phase))
        small = math.sin(2 * math.pi * (a * 1.30 + 0.45 * b) + 1.3)
        return (0.082 + 0.030 * noise.at(1.9 * u + 8, 1.4 * v + 1)) * fold \
            + 0.030 * small * (0.5 + 0.5 * noise.at(2 * u + 3, 2 * v + 8)) + 0.016 * noise.at(5 * wu, 2 * wv)

    step = 3
    columns = WIDTH // step + 3
    rows = [[height(i * step, j * step) * 300 for i in range(columns)] for j in range(HEIGHT // step + 3)]

    def shade(x, y):
        i, j = min(x // step, columns - 2), y // step
        fx, fy = (x % step) / step, (y % step) / step

        def slope(i, j):
            return (rows[j][i + 1] - rows[j][i - 1 if i else 0]) / (2 * step), \
                (rows[j + 1][i] - rows[j - 1 if j else 0][i]) / (2 * step)

        s00, s10, s01, s11 = slope(i, j), slope(min(i + 1, columns - 2), j), slope(i, j + 1), slope(min(i + 1, columns - 2), j + 1)
        dx, dy = (s00[k] * (1 - fx) * (1 - fy) + s10[k] * fx * (1 - fy) + s01[k] * (1 - fx) * fy + s11[k] * fx * fy
                  for k in (0, 1))
        lit = -(dx * 0.80 + dy * 0.60)
        deep = rows[j][i] / 30
        # A fold's lit flank, the streak that satin shows along its crest, and the dusk at the bottom between two folds.
        flank = 0.5 + 0.36 * math.tanh(2.1 * lit)
        gleam = math.exp(-((lit - 0.17) / 0.17) ** 2) * smooth(-0.1, 1.0, deep)
        dusk = smooth(0.2, -1.0, deep) * smooth(0.5, -0.3, lit)
        return flank - 0.10 + 0.42 * gleam - 0.24 * dusk

    def pixel(x, y):
        thread = 0.014 * math.sin(x * 1.9 + y * 1.25) + 0.03 * noise.at(x * 0.9, y * 0.06)
        relief = 0.15 + 1.2 * smooth(690, 930, y)
        tone = shade(x, y) - 0.5
        # Red up and green down by these shares leave the luminance as it is.
        hue = -20 * max(-0.5, min(0.5, tone)) * (1 - smooth(690, 930, y))
        r, g, b = ramp(tones, 0.51 + relief * tone + thread)
        return r + hue, g - 0.18 * hue, b

    save_pixels("Satin", 7, pixel, quality=80)  # the first picture that is decoded: within the start


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
