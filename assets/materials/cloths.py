"""Satin, pearl and navy: height fields with broad folds, lit from the upper left, and a damask woven into them."""
import math
import random
import subprocess

import damask
from brush import HEIGHT, Noise, WIDTH, smooth

STEP = 3  # dots between the places where the folds are reckoned
LIGHT = (-0.52, -0.60, 0.61)
HALF = (-0.29, -0.335, 0.897)  # between the light and the eye

PEARL = ((0, "#93826a"), (0.2, "#a5937a"), (0.3, "#bcab90"), (0.4, "#d2c4a8"), (0.5, "#e0d5be"), (0.62, "#ebe3d3"),
         (0.76, "#f4eee2"), (0.88, "#fbf8f0"), (1, "#fffefc"))
NAVY = ((0, "#040a1c"), (0.2, "#081433"), (0.4, "#0f2250"), (0.58, "#183166"), (0.74, "#25447f"), (0.88, "#3c61a0"),
        (1, "#7095cb"))
# The spine of each fold in the table's pixels, its width to the left and to the right, and how high it is.
PEARL_FOLDS = (
    (((440, 318), (320, 372), (170, 392), (-50, 452)), 46, 40, 13), (((440, 398), (330, 440), (210, 452), (20, 580)), 46, 36, 15),
    (((440, 462), (392, 494), (340, 516), (262, 600)), 44, 40, 10), (((440, 226), (320, 262), (180, 262), (-40, 316)), 62, 50, 3),
    (((120, -60), (60, 20), (10, 70), (-60, 120)), 40, 44, 5))
NAVY_FOLDS = (
    (((180, -60), (120, 90), (40, 170), (-60, 260)), 34, 28, 9), (((300, -60), (240, 150), (120, 280), (-60, 400)), 44, 32, 11),
    (((440, 40), (330, 220), (200, 330), (-20, 560)), 40, 34, 10), (((480, 210), (380, 320), (300, 400), (160, 590)), 46, 34, 12),
    (((500, 360), (430, 430), (380, 480), (300, 600)), 40, 30, 8))


def colours(stops):
    """The ramp in 1024 steps."""
    parsed = [(t, tuple(int(c[i:i + 2], 16) for i in (1, 3, 5))) for t, c in stops]
    table = []
    for i in range(1025):
        t = i / 1024
        (t0, a), (t1, b) = next((p, q) for p, q in zip(parsed, parsed[1:]) if t <= q[0])
        table.append(tuple(x + (y - x) * (t - t0) / (t1 - t0) for x, y in zip(a, b)))
    return table


def heights(folds, wobble, seed):
    noise = Noise(seed)
    spines = [([damask.at_bezier(spine, i / 30) for i in range(31)], *rest) for spine, *rest in folds]
    rows = []
    for j in range(HEIGHT // STEP + 4):
        row = []
        for i in range(WIDTH // STEP + 4):
            x, y = (i - 1) * STEP / 2, (j - 1) * STEP / 2
            h = 5 * wobble * (noise.at(x / 90, y / 120) + 0.5 * noise.at(x / 47 + 9, y / 66))
            for places, left, right, height in spines:
                best, k = min(((px - x) ** 2 + (py - y) ** 2, n) for n, (px, py) in enumerate(places))
                a, b = places[max(0, k - 1)], places[min(30, k + 1)]
                side = (b[0] - a[0]) * (y - a[1]) - (b[1] - a[1]) * (x - a[0])
                away = abs(side) / math.hypot(b[0] - a[0], b[1] - a[1]) if 0 < k < 30 else math.sqrt(best)
                wide = (left if side > 0 else right) * (0.55 + 0.9 * k / 30)
                h += height * math.exp(-1.6 * (away / wide) ** 1.5)
            row.append(h)
        rows.append(row)
    return rows


def softened(rows):
    for _ in range(3):
        rows = [[(r[max(0, i - 1)] + 2 * r[i] + r[min(len(r) - 1, i + 1)]) / 4 for i in range(len(r))] for r in rows]
        rows = [[(a + 2 * b + c) / 4 for a, b, c in zip(rows[max(0, j - 1)], rows[j], rows[min(len(rows) - 1, j + 1)])]
                for j in range(len(rows))]
    return rows


def light(rows, mean, gain, gleam):
    """How light the cloth is at each place of the grid."""
    lit = []
    for j in range(1, len(rows) - 1):
        line = []
        for i in range(1, len(rows[0]) - 1):
            dx, dy = (rows[j][i + 1] - rows[j][i - 1]) / STEP, (rows[j + 1][i] - rows[j - 1][i]) / STEP
            k = 1 / math.sqrt(dx * dx + dy * dy + 1)
            flat = (-dx * LIGHT[0] - dy * LIGHT[1] + LIGHT[2]) * k - LIGHT[2]
            shine = ((-dx * HALF[0] - dy * HALF[1] + HALF[2]) * k) ** 12 - HALF[2] ** 12
            line.append(mean + gain * flat + gleam * shine)
        lit.append(line)
    return lit


def weave(lit, stops, masks, pool, seed, fold, tint=(0.82, 1.0, 1.35)):
    """The dots of the cloth. `masks`: each damask with its strength; `pool`: where the light falls,
    how much it gives and the edges lose; `fold`: below it the weave turns."""
    ramp, noise, grain = colours(stops), Noise(seed + 1), random.Random(seed)
    px, py, give, take = pool
    dots = bytearray()
    for y in range(HEIGHT):
        j, fy = y // STEP, (y % STEP) / STEP
        for x in range(WIDTH):
            i, fx = x // STEP, (x % STEP) / STEP
            t = ((lit[j][i] * (1 - fx) + lit[j][i + 1] * fx) * (1 - fy) + (lit[j + 1][i] * (1 - fx) + lit[j + 1][i + 1] * fx) * fy)
            u, v = x / 2, y / 2
            t += give * math.exp(-((u - px) ** 2 + (v - py) ** 2) / 26000) - take * ((u - 196) ** 2 / 38000 + (v - 256) ** 2 / 66000) ** 2 / 2
            if t > 0.8:
                t = 0.8 + 0.2 * (1 - math.exp(-(t - 0.8) / 0.2))
            # The weave turns: what is darker in the light is lighter in the fold.
            turn = max(-0.8, min(1, 1 - 1.8 * (fold - t) / 0.08))
            thread = 0.006 * noise.at(x * 0.9, y * 0.07)
            r, g, b = ramp[max(0, min(1024, int((t + thread) * 1024)))]
            m = sum(strength * dot[y * WIDTH + x] for dot, strength in masks) / 255 * turn
            d = grain.random() * 1.4 - 0.2
            dots += bytes((max(0, min(255, int(r * (1 - m * tint[0]) + d))), max(0, min(255, int(g * (1 - m) + d))),
                           max(0, min(255, int(b * (1 - m * tint[2]) + d)))))
    return dots


def jpeg(path, dots, quality, crop=None):
    image = f"P6 {WIDTH} {HEIGHT} 255\n".encode() + bytes(dots)
    cut = ["-crop", crop, "+repage"] if crop else []
    subprocess.run(["convert", "ppm:-", *cut, "-sampling-factor", "4:2:0", "-quality", str(quality), str(path)], input=image,
                   check=True)


def pearl():
    lit = light(softened(heights(PEARL_FOLDS, 0.30, 21)), 0.665, 0.74, 0.24)
    return weave(lit, PEARL, [(damask.satin_net(), 0.060), (damask.mask(damask.cartouche()), 0.115),
                              (damask.mask(damask.ornament()), 0.145)], (165, 190, 0.06, 0.10), 5, 0.60)


def navy():
    lit = light(softened(heights(NAVY_FOLDS, 0.5, 8)), 0.46, 0.20, 0.16)
    return weave(lit, NAVY, [(damask.mask(damask.net(25, 35, 0.58)), -0.20)], (120, 120, 0.05, 0.08), 6, -9)
