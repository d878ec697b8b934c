"""Plants: Autumn, Evergreen and Strawberries, drawn as SVG."""
import math
import random

from brush import HEIGHT, Noise, WIDTH, blade, blur, curve, linear, mix, radial, ramp, rgb, save_svg, sheet, stroke

# Half the outline of a maple leaf, from the tip down to the stem, in a leaf about 200 high.
MAPLE = [(0, -100), (15, -70), (32, -78), (25, -34), (50, -58), (57, -46), (92, -52), (80, -28), (94, -14), (54, 12), (62, 30), (14, 26), (3, 34)]
OAK = [(0, -104), (16, -96), (20, -78), (15, -66), (34, -58), (38, -40), (22, -26), (42, -14), (44, 6), (24, 16), (34, 30), (30, 46), (12, 52), (3, 66)]
BEECH = [(0, -100), (14, -78), (30, -46), (38, -10), (35, 22), (22, 50), (8, 66), (2, 72)]


def leaf(kind, x, y, size, turn, colours, rng, opacity=1.0, shadow=6):
    """One fallen leaf: its shadow, the blade in two halves of unlike light, veins, stem and age spots."""
    half = {"maple": MAPLE, "oak": OAK, "beech": BEECH}[kind]
    right = [(a * rng.uniform(0.92, 1.08), b + rng.uniform(-2, 2)) for a, b in half]
    left = [(-a * rng.uniform(0.92, 1.08), b + rng.uniform(-2, 2)) for a, b in half]

    def side(points):
        if kind == "maple":
            text = f"M{points[0][0]:.1f} {points[0][1]:.1f}"
            for (ax, ay), (bx, by) in zip(points, points[1:]):
                mx, my = (ax + bx) / 2 * 0.95, (ay + by) / 2 * 0.95 + 1
                text += f"Q{mx:.1f} {my:.1f} {bx:.1f} {by:.1f}"
            return text + "L0 34Z"
        return curve(points, closed=False) + f"L0 {points[-1][1]:.1f}Z"
    a, b = rng.sample(range(len(colours)), 2)
    name = f"l{rng.getrandbits(40):x}"
    base = half[-1][1]
    light, dark = colours[a], mix(colours[b], (40, 14, 4), 0.15)
    out = (f'<radialGradient id="{name}" gradientUnits="userSpaceOnUse" cx="0" cy="{base - 30:.0f}" r="120"><stop offset="0" stop-color="{rgb(mix(light, (255, 220, 120), 0.25))}"/>'
           f'<stop offset="0.5" stop-color="{rgb(light)}"/><stop offset="1" stop-color="{rgb(dark)}"/></radialGradient>')
    veins, fine = "", ""
    if kind == "maple":
        tips = [(0, -94), (86, -48), (-86, -48), (56, 27), (-56, 27)]
        for tx, ty in tips:
            veins += f"M0 32Q{tx * 0.4:.0f} {ty * 0.5 + 8:.0f} {tx} {ty}"
            for t in (0.35, 0.55, 0.75):
                px, py = tx * t, 32 + (ty - 32) * t
                direction = math.atan2(ty - 32, tx)
                for s in (-1, 1):
                    ln = 26 * (1.05 - t)
                    fine += f"M{px:.1f} {py:.1f}l{math.cos(direction + s * 0.7) * ln:.1f} {math.sin(direction + s * 0.7) * ln:.1f}"
    else:
        veins += f"M0 {base}Q2 0 0 -98"
        for k in range(9):
            py = base - 14 - k * (base + 76) / 9
            reach = min(34, 12 + 5 * min(k + 2, 10 - k))
            for s in (-1, 1):
                fine += f"M0 {py:.0f}q{s * reach * 0.5:.0f} -4 {s * reach * 0.9:.0f} {-reach * 0.75:.0f}"
    both = side(right) + side(left)
    spots = "".join(f'<circle cx="{rng.gauss(0, 24):.0f}" cy="{rng.gauss(-15, 26):.0f}" r="{rng.uniform(0.8, 3):.1f}" fill="#3a1c08" opacity="0.35"/>' for _ in range(9))
    soft = f' filter="url(#b{shadow})"' if shadow > 1 else ""
    lifted = f'<path d="{both}" fill="#120804" opacity="{0.55 if shadow > 1 else 0.35}"{soft} transform="rotate({-turn:.0f}) translate(6 10) rotate({turn:.0f})"/>' if shadow else ""
    out += (f'<g transform="translate({x:.0f} {y:.0f}) rotate({turn:.0f}) scale({size / 200:.3f})" opacity="{opacity:.2f}">{lifted}'
            f'<path d="M0 {base - 6:.0f}Q{rng.uniform(-8, 8):.0f} {base + 22:.0f} {rng.uniform(-16, 16):.0f} {base + 46:.0f}" stroke="{rgb(mix(dark, (60, 24, 10), 0.4))}" stroke-width="4" fill="none" stroke-linecap="round"/>'
            f'<path d="{side(right)}" fill="url(#{name})"/><path d="{side(left)}" fill="url(#{name})"/><path d="{side(left)}" fill="#2a0c00" opacity="0.18"/>'
            f'<path d="{both}" fill="none" stroke="{rgb(mix(dark, (30, 10, 0), 0.5))}" stroke-width="1.4" opacity="0.6" stroke-linejoin="round"/>{spots}'
            f'<path d="{fine}" stroke="{rgb(mix(light, (255, 236, 170), 0.45))}" stroke-width="1.1" fill="none" opacity="0.55"/>'
            f'<path d="{veins}" stroke="{rgb(mix(light, (255, 236, 170), 0.6))}" stroke-width="2.4" fill="none" opacity="0.8" stroke-linecap="round"/></g>')
    return out


def autumn():
    rng = random.Random(14)
    kinds = {"maple": [(196, 62, 22), (170, 38, 24), (214, 104, 26), (222, 142, 36), (140, 28, 26)],
             "oak": [(150, 92, 36), (122, 70, 28), (178, 118, 46), (160, 76, 26)],
             "beech": [(222, 160, 44), (206, 128, 30), (190, 150, 50), (224, 178, 74)]}
    defs = (linear("ground", (0, "#3a2415"), (0.35, "#4e2d17"), (0.62, "#6b3d1a"), (0.8, "#5a3015"), (1, "#2e180c")) + blur(3) + blur(6) + blur(9) + blur(60)
            + radial("sun", (0, "#d48c34", 0.34), (1, "#e09a3c", 0)) + linear("dim", (0, "#2a160a", 0), (1, "#2a160a", 0.75)))
    body = sheet("url(#ground)") + '<ellipse cx="560" cy="420" rx="520" ry="420" fill="url(#sun)"/>'
    # Light through far trees: trunks and discs out of focus.
    for _ in range(7):
        x, w = rng.uniform(0, WIDTH), rng.uniform(14, 44)
        body += f'<path d="M{x:.0f} -20q{rng.uniform(-20, 20):.0f} 400 {rng.uniform(-14, 14):.0f} 860h{w:.0f}q{rng.uniform(-16, 16):.0f} -400 0 -860Z" fill="#22120a" opacity="0.38" filter="url(#b9)"/>'
    for _ in range(90):
        x, y, r = rng.uniform(0, WIDTH), rng.uniform(-20, 760), rng.uniform(10, 42)
        body += (f'<circle cx="{x:.0f}" cy="{y:.0f}" r="{r:.0f}" fill="{rng.choice(["#c8742a", "#b2521e", "#cc9438", "#8f3c1a", "#a89040"])}" '
                 f'opacity="{rng.uniform(0.10, 0.30):.2f}" filter="url(#b3)"/>')

    def one(x, y, size, **more):
        kind = rng.choice(["maple", "maple", "oak", "beech"])
        return leaf(kind, x, y, size, rng.uniform(0, 360), kinds[kind], rng, **more)
    # A few that still fall, soft and dim.
    falling = ""
    for x, y, s in ((70, 360, 60), (700, 566, 76), (96, 560, 84), (668, 640, 92), (360, 540, 46), (560, 350, 50), (730, 250, 54), (40, 170, 50), (610, 36, 44)):
        falling += one(x + rng.uniform(-10, 10), y, s, opacity=0.40, shadow=0)
    body += f'<g filter="url(#b3)">{falling}</g>'
    body += '<ellipse cx="393" cy="1010" rx="620" ry="250" fill="#1c0d06" opacity="0.85" filter="url(#b60)"/>'
    heap = []
    for _ in range(170):
        x = rng.uniform(-30, WIDTH + 30)
        rise = 1 - 0.55 * math.exp(-((x - 410) / 260) ** 2)
        y = 1060 - (1060 - 770) * rng.random() ** 0.85 * (0.72 + 0.28 * rise)
        heap.append((y, x))
    for y, x in sorted(heap):
        near = (y - 760) / 300
        body += one(x, y, 78 + 62 * near + rng.uniform(-10, 14), shadow=1)
    for x, y, s, kind, turn in ((170, 832, 168, "maple", -24), (272, 862, 150, "maple", -70), (402, 866, 190, "maple", 14), (622, 826, 172, "maple", 38), (286, 930, 140, "oak", 66),
                                (520, 936, 140, "beech", -58), (712, 918, 132, "oak", -20), (70, 926, 130, "beech", 40)):
        body += leaf(kind, x, y, s, turn, kinds[kind], rng)
    body += '<rect x="0" y="930" width="786" height="96" fill="url(#dim)"/>'
    save_svg("Autumn", 3, defs, body)


def evergreen():
    rng = random.Random(77)
    defs = (linear("sky", (0, "#1f4246"), (0.35, "#376163"), (0.62, "#486f6f"), (0.8, "#3e6966"), (1, "#16302f")) + blur(2) + blur(5) + blur(12) + blur(30)
            + linear("cone", (0, "#a57448"), (1, "#5a3820"), x2=1, y2=0) + radial("moon", (0, "#a9c4bc", 0.18), (1, "#a9c4bc", 0)))
    body = sheet("url(#sky)") + '<circle cx="540" cy="470" r="420" fill="url(#moon)"/>'

    def fir(x, base, high, colour, snow):
        """A fir of drooping boughs, with snow on the lit side."""
        out, n = [], max(9, int(high / 17))
        out.append(f'<path d="M{x - high * 0.012:.1f} {base}L{x:.1f} {base - high:.1f}L{x + high * 0.012:.1f} {base}Z" fill="{rgb(mix(colour, (10, 20, 20), 0.3))}"/>')
        for k in range(n, 0, -1):
            t = k / n
            y, w = base - high + high * t * 0.97, high * 0.24 * t ** 0.85
            for s in (-1, 1):
                ww = w * rng.uniform(0.8, 1.12)
                drop = ww * 0.42
                fringe = "".join(f"L{x + s * ww * (1 - q / 5):.1f} {y + drop * (1 - q / 5) + rng.uniform(0.4, 0.8) * high / n:.1f}"
                                 f"L{x + s * ww * (1 - (q + 0.5) / 5):.1f} {y + drop * (1 - (q + 0.5) / 5) + 0.15 * high / n:.1f}" for q in range(5))
                out.append(f'<path d="M{x:.1f} {y - high / n * 1.1:.1f}Q{x + s * ww * 0.45:.1f} {y + drop * 0.2:.1f} {x + s * ww:.1f} {y + drop:.1f}{fringe}L{x:.1f} {y + high / n * 0.3:.1f}Z" '
                           f'fill="{rgb(mix(colour, (0, 10, 10) if s > 0 else (120, 160, 150), 0.12 + rng.random() * 0.10))}"/>')
                if snow and rng.random() < 0.9:
                    out.append(f'<path d="M{x + s * ww * 0.12:.1f} {y - high / n * 0.75:.1f}Q{x + s * ww * 0.5:.1f} {y + drop * 0.2:.1f} {x + s * ww * 0.96:.1f} {y + drop * 0.92:.1f}'
                               f'Q{x + s * ww * 0.5:.1f} {y + drop * 0.55:.1f} {x + s * ww * 0.12:.1f} {y - high / n * 0.75:.1f}Z" fill="{rgb(snow)}" opacity="{0.9 if s < 0 else 0.6}"/>')
        return "".join(out)
    # Far ridges, each nearer one darker, mist between.
    layers = (((520, 130, 30, (82, 118, 114), None, 5), (600, 170, 20, (68, 104, 101), None, 2), (700, 230, 13, (56, 94, 90), (84, 116, 112), 2),
               (836, 300, 8, (32, 70, 64), (126, 154, 150), 0)))
    for base, high, n, colour, snow, soft in layers:
        trees = ""
        for k in range(n):
            x = (k + rng.uniform(0.05, 0.95)) * WIDTH / n
            h = high * rng.uniform(0.55, 1.0)
            if base == 836:
                h *= 0.55 + 0.6 * abs(x - 393) / 393
            trees += fir(x, base + rng.uniform(-10, 20), h, colour, snow)
        extra = f' filter="url(#b{soft})"' if soft else ""
        body += f'<g{extra}>{trees}</g>'
        if base < 800:
            body += f'<ellipse cx="393" cy="{base + 22}" rx="600" ry="52" fill="#56797a" opacity="0.42" filter="url(#b30)"/>'
    body += '<path d="M-10 850Q180 806 393 836T800 822V1040H-10Z" fill="#a9c2c6"/><path d="M-10 880Q200 830 420 866T800 850V1040H-10Z" fill="#d5e3e6"/>'
    for _ in range(60):
        y = rng.uniform(866, 1020)
        body += f'<ellipse cx="{rng.uniform(0, WIDTH):.0f}" cy="{y:.0f}" rx="{rng.uniform(30, 110):.0f}" ry="{rng.uniform(3, 8):.0f}" fill="{rng.choice(["#9db9c2", "#eef5f6", "#b7ced4"])}" opacity="0.5" filter="url(#b5)"/>'

    noise = Noise(8)

    # Boughs in the foreground: needles along twigs, snow lying on top, cones.
    def bough(x, y, turn, length, needle=34):
        out, snow = [], []
        steps = int(length / 3)
        for k in range(steps):
            t = k / steps
            a = turn + 0.35 * t
            x += math.cos(a) * 3
            y += math.sin(a) * 3
            for s in (-1, 1):
                tone = rng.random() * 0.7 + (0.3 if s * math.cos(a) < 0 else 0)
                out.append(stroke(x, y, a + s * (1.0 - 0.45 * t) + rng.gauss(0, 0.13), needle * (1.05 - 0.5 * t) * rng.uniform(0.75, 1.15), 3.0,
                                  ramp([(14, 42, 36), (26, 66, 52), (48, 98, 72), (92, 138, 102)], tone), s * 0.12))
            if k % 2 == 0 and rng.random() < 0.85 - 0.25 * t and noise.at(k * 0.11, turn * 9) > -0.35:
                snow.append((x + rng.gauss(0, 4), y - needle * 0.22 + rng.gauss(0, 2.5), rng.uniform(7, 13) * (1.1 - 0.6 * t)))
        heap = "".join(f'<ellipse cx="{a:.0f}" cy="{b + 4:.0f}" rx="{r:.0f}" ry="{r * 0.6:.0f}" fill="#8fb0bb"/>' for a, b, r in snow)
        heap += "".join(f'<ellipse cx="{a:.0f}" cy="{b:.0f}" rx="{r:.0f}" ry="{r * 0.58:.0f}" fill="#f2f8f9"/>' for a, b, r in snow)
        return "".join(out), heap

    def cone(x, y, turn, size):
        out = f'<g transform="translate({x} {y}) rotate({turn}) scale({size})"><ellipse cx="4" cy="38" rx="22" ry="40" fill="#0c1c18" opacity="0.5" filter="url(#b5)"/>'
        for row in range(11, -1, -1):
            w = 22 * math.sin(math.pi * (row + 1.6) / 14.5)
            for k in (-1.5, -0.5, 0.5, 1.5) if row % 2 else (-1, 0, 1):
                cx = w * k * 0.56
                out += (f'<path d="M{cx - w * 0.38:.1f} {row * 6:.1f}Q{cx:.1f} {row * 6 + 15} {cx + w * 0.38:.1f} {row * 6:.1f}Q{cx:.1f} {row * 6 - 7} {cx - w * 0.38:.1f} {row * 6:.1f}Z" '
                        f'fill="{rgb(mix((150, 104, 64), (70, 42, 24), 0.5 + k * 0.28))}" stroke="#352012" stroke-width="1"/>')
        return out + "</g>"
    left = [(-20, 760, 0.30, 250), (-20, 850, 0.02, 300), (-20, 930, 0.05, 240), (60, 800, 0.75, 120), (110, 862, -0.5, 100), (120, 868, 0.55, 130)]
    right = [(-20, 730, 0.42, 220), (-20, 838, 0.12, 270), (-20, 935, -0.02, 260), (50, 770, 0.95, 110), (100, 850, -0.42, 90), (110, 852, 0.62, 120)]
    for twigs, flip in ((left, False), (right, True)):
        needles, heaps = "", ""
        for x, y, a, n in twigs:
            one, heap = bough(x, y, a, n)
            needles += one
            heaps += heap
        mirror = ' transform="translate(786 0) scale(-1 1)"' if flip else ""
        body += f'<g{mirror}>{needles}{heaps}</g>'
    body += cone(150, 880, 8, 0.95) + cone(206, 866, -14, 0.8) + cone(640, 868, -6, 0.95)
    for _ in range(110):
        y = HEIGHT * rng.random()
        body += f'<circle cx="{rng.uniform(0, WIDTH):.0f}" cy="{y:.0f}" r="{rng.uniform(0.9, 2.2):.1f}" fill="#fff" opacity="{rng.uniform(0.2, 0.55):.2f}"/>'
    save_svg("Evergreen", 7, defs, body)


def strawberries():
    rng = random.Random(3)
    defs = (radial("berry", (0, "#ff6a5a"), (0.3, "#ea2c30"), (0.72, "#c4141f"), (1, "#84080f"), cx=0.38, cy=0.26, r=0.85)
            + linear("leaf", (0, "#7fb24a"), (0.5, "#4f8f34"), (1, "#2f6a26")) + linear("cap", (0, "#9aca5c"), (1, "#4a8a30"))
            + radial("petal", (0, "#f6efd0"), (0.45, "#ffffff"), (1, "#eceff2")) + radial("heart", (0, "#ffe680"), (1, "#d9a21a"))
            + radial("lit", (0, "#fffaf0", 0.9), (1, "#fffaf0", 0)) + blur(2) + blur(5) + blur(12) + blur(26))
    body = sheet("#f1e8d8")
    # Linen with a faint gingham of rose.
    for k in range(0, WIDTH, 96):
        body += f'<rect x="{k + 24}" y="0" width="48" height="{HEIGHT}" fill="#d98a86" opacity="0.13"/>'
    for k in range(0, HEIGHT, 96):
        body += f'<rect x="0" y="{k + 18}" width="{WIDTH}" height="48" fill="#d98a86" opacity="0.13"/>'
    threads = "".join(f"M{x} 0V{HEIGHT}" for x in range(0, WIDTH, 3))
    body += f'<path d="{threads}" stroke="#b9a88c" stroke-width="0.8" opacity="0.20"/>'
    body += f'<path d="{"".join(f"M0 {y}H{WIDTH}" for y in range(0, HEIGHT, 3))}" stroke="#fffaf0" stroke-width="0.9" opacity="0.40"/>'
    slubs = "".join(f"M{rng.uniform(0, WIDTH):.0f} {3 * rng.randrange(0, 342)}h{rng.uniform(20, 90):.0f}" for _ in range(420))
    body += f'<path d="{slubs}" stroke="#a8946f" stroke-width="1" opacity="0.20"/>'
    body += '<ellipse cx="250" cy="300" rx="520" ry="460" fill="url(#lit)"/>'

    def leaflet(x, y, turn, size):
        teeth_r, teeth_l = [], []
        for k in range(13):
            t = k / 12
            w = 42 * math.sin(math.pi * min(1, 0.08 + t * 0.92)) ** 0.8 * (1.12 - 0.3 * abs(t - 0.5))
            yy = -110 * t
            teeth_r += [(w, yy), (w * 0.93, yy - 3)]
            teeth_l += [(-w, yy), (-w * 0.93, yy - 3)]
        outline = "M0 0" + "".join(f"L{a:.1f} {b:.1f}" for a, b in teeth_r) + "L0 -116" + "".join(f"L{a:.1f} {b:.1f}" for a, b in reversed(teeth_l)) + "Z"
        side = "M0 0" + "".join(f"L{a:.1f} {b:.1f}" for a, b in teeth_l) + "L0 -116Z"
        veins = "M0 0L0 -112" + "".join(f"M0 {-8 - k * 12}q{s * 16} -6 {s * 27 * math.sin(math.pi * (0.22 + k * 0.085)):.0f} -20" for k in range(8) for s in (-1, 1))
        return (f'<g transform="translate({x} {y}) rotate({turn}) scale({size})"><path d="{outline}" fill="#2a2010" opacity="0.35" filter="url(#b5)" transform="rotate({-turn}) translate(6 10) rotate({turn})"/>'
                f'<path d="{outline}" fill="url(#leaf)" stroke="#28581f" stroke-width="1.2"/><path d="{side}" fill="#0e3a12" opacity="0.22"/>'
                f'<path d="{veins}" stroke="#bfdc8c" stroke-width="1.8" fill="none" opacity="0.65" stroke-linecap="round"/></g>')

    def trefoil(x, y, turn, size):
        return leaflet(x, y, turn - 62, size * 0.92) + leaflet(x, y, turn + 62, size * 0.92) + leaflet(x, y, turn, size)

    def berry(x, y, turn, size):
        shape = "M0 -46C26 -60 62 -52 68 -22C74 14 40 66 6 92C2 95 -2 95 -6 92C-40 66 -74 14 -68 -22C-62 -52 -26 -60 0 -46Z"
        out = (f'<g transform="translate({x} {y}) rotate({turn}) scale({size})"><path d="{shape}" fill="#3a1208" opacity="0.55" filter="url(#b12)" transform="rotate({-turn}) translate(10 20) rotate({turn})"/>'
               f'<path d="{shape}" fill="url(#berry)"/><path d="M-56 -30C-30 -56 30 -56 56 -30C40 -14 -40 -14 -56 -30Z" fill="#ffb49c" opacity="0.30" filter="url(#b5)"/>'
               f'<path d="M66 -20C66 20 30 70 0 94C40 74 78 16 66 -20Z" fill="#5c0408" opacity="0.5" filter="url(#b5)"/>')
        for row in range(9):
            v = -34 + row * 14.5
            half = 66 * math.sqrt(max(0, 1 - ((v + 14) / 108) ** 2)) * (1 - max(0, v) / 170)
            count = max(1, round(half / 11))
            for k in range(count):
                u = (k + (0.5 if row % 2 else 0.0) + 0.25) / count * 2 - 1
                if abs(u) > 0.93:
                    continue
                px = half * math.sin(u * 1.35) / math.sin(1.35)
                w = 2.5 * math.cos(u * 1.1)
                out += (f'<ellipse cx="{px:.1f}" cy="{v:.1f}" rx="{w + 1.8:.1f}" ry="5.4" fill="#7c060c" opacity="0.55"/>'
                        f'<ellipse cx="{px:.1f}" cy="{v + 0.8:.1f}" rx="{w:.1f}" ry="3.7" fill="#f3cf6a"/><ellipse cx="{px - 0.6:.1f}" cy="{v - 0.6:.1f}" rx="{w * 0.4:.1f}" ry="1.4" fill="#fff4c0"/>'
                        f'<path d="M{px - w - 1.5:.1f} {v + 5:.1f}q{w + 1.5:.1f} 3.4 {2 * w + 3:.1f} 0" stroke="#ff9a8c" stroke-width="1.1" fill="none" opacity="0.55"/>')
        out += '<ellipse cx="-30" cy="-14" rx="12" ry="20" fill="#fff" opacity="0.55" filter="url(#b5)" transform="rotate(22 -30 -14)"/><ellipse cx="-34" cy="-20" rx="4.5" ry="9" fill="#fff" opacity="0.75" filter="url(#b2)" transform="rotate(22 -34 -20)"/>'
        sepals = ""
        for k, a in enumerate((-2.95, -2.3, -0.85, -0.2, 0.35, 2.75, 1.0, 2.1, 1.55)):
            ln = (46, 40, 40, 46, 50, 50, 44, 44, 38)[k]
            sepals += (f'<path d="{blade(0, -50, a, ln, 23, 0.12 if math.cos(a) > 0 else -0.12)}" fill="#3a0a06" opacity="0.35" filter="url(#b2)" transform="translate(2 5)"/>'
                       f'<path d="{blade(0, -50, a, ln, 23, 0.12 if math.cos(a) > 0 else -0.12)}" fill="url(#cap)" stroke="#356a22" stroke-width="1.2"/>'
                       f'<path d="M0 -50L{math.cos(a) * ln * 0.7:.1f} {-50 + math.sin(a) * ln * 0.7:.1f}" stroke="#cfe8a0" stroke-width="1.4" opacity="0.7"/>')
        return out + sepals + '<path d="M0 -50q-3 -18 6 -34" stroke="#6a9c3e" stroke-width="7" fill="none" stroke-linecap="round"/><path d="M-1 -52q-3 -14 5 -30" stroke="#b5d67c" stroke-width="2" fill="none"/></g>'

    def blossom(x, y, size, turn):
        out = f'<g transform="translate({x} {y}) rotate({turn}) scale({size})"><circle cx="5" cy="8" r="40" fill="#3a2a14" opacity="0.35" filter="url(#b5)"/>'
        for k in range(5):
            out += (f'<g transform="rotate({k * 72})"><path d="M0 -4C-24 -14 -26 -44 0 -48C26 -44 24 -14 0 -4Z" fill="url(#petal)" stroke="#cfd4cc" stroke-width="1"/>'
                    '<path d="M0 -10V-36M-5 -12L-10 -32M5 -12L10 -32" stroke="#d5dad2" stroke-width="1" fill="none"/></g>')
        out += '<circle r="13" fill="url(#heart)"/>'
        for k in range(16):
            a = k * math.pi / 8
            out += f'<circle cx="{15 * math.cos(a):.1f}" cy="{15 * math.sin(a):.1f}" r="2.6" fill="#e3ad22"/>'
        return out + "".join(f'<circle cx="{rng.gauss(0, 5):.1f}" cy="{rng.gauss(0, 5):.1f}" r="1.6" fill="#b58a10" opacity="0.7"/>' for _ in range(14)) + "</g>"
    body += '<ellipse cx="393" cy="930" rx="380" ry="90" fill="#8c6a44" opacity="0.35" filter="url(#b26)"/>'
    cloth, body = body, ""
    body += trefoil(196, 850, -48, 1.12) + trefoil(596, 846, 44, 1.16) + trefoil(398, 836, -4, 1.02) + trefoil(90, 985, -20, 1.0) + trefoil(706, 990, 24, 1.0)
    body += berry(262, 846, 14, 0.92) + berry(532, 850, -16, 0.92) + berry(150, 920, 38, 0.80) + berry(648, 926, -36, 0.80) + berry(394, 868, -3, 1.12)
    body += berry(300, 972, 30, 0.85) + berry(500, 976, -26, 0.85)
    body += blossom(684, 806, 0.86, 10) + blossom(100, 800, 0.9, -20) + blossom(742, 880, 0.6, 40)
    # Dew.
    for x, y, r in ((360, 905, 5), (428, 890, 4), (250, 880, 4), (545, 880, 4.5), (206, 790, 5), (590, 780, 5)):
        body += f'<circle cx="{x}" cy="{y}" r="{r}" fill="#fff" opacity="0.35"/><circle cx="{x - r * 0.3:.1f}" cy="{y - r * 0.3:.1f}" r="{r * 0.35:.1f}" fill="#fff" opacity="0.95"/>'
    body = f'{cloth}<g transform="translate(393 716) scale(0.92) translate(-393 -716)">{body}</g>'
    save_svg("Strawberries", 0, defs, body)
