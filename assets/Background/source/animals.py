"""Animals: Blonde Chick, Baby Seal, Quacker and CC Moose, drawn as SVG, their down and fur of many fine strokes."""
import math
import random

from brush import Ball, HEIGHT, WIDTH, blur, curve, fur, linear, mix, radial, ramp, rgb, save_svg, sheet, stroke


def eye(x, y, r, colour="#1c1210"):
    """A dark round eye with a lit rim and two highlights."""
    return (f'<circle cx="{x}" cy="{y}" r="{r}" fill="{colour}"/>'
            f'<path d="M{x - r * 0.7:.1f} {y + r * 0.25:.1f}A{r * 0.75:.1f} {r * 0.75:.1f} 0 0 0 {x + r * 0.7:.1f} {y + r * 0.25:.1f}'
            f'A{r:.1f} {r * 0.8:.1f} 0 0 1 {x - r * 0.7:.1f} {y + r * 0.25:.1f}Z" fill="#7a5a48" opacity="0.55"/>'
            f'<circle cx="{x - r * 0.32:.1f}" cy="{y - r * 0.38:.1f}" r="{r * 0.30:.1f}" fill="#fff"/>'
            f'<circle cx="{x + r * 0.30:.1f}" cy="{y + r * 0.35:.1f}" r="{r * 0.12:.1f}" fill="#fff" opacity="0.8"/>')


def daisy(x, y, r, turn, rng):
    petals = ""
    for k in range(13):
        a = turn + k * 2 * math.pi / 13 + rng.uniform(-0.06, 0.06)
        c, s = math.cos(a), math.sin(a) * 0.62
        w = r * 0.2
        tip = (x + c * r, y + s * r)
        petals += (f'<path d="M{x:.1f} {y:.1f}Q{x + c * r * 0.6 - s * w:.1f} {y + s * r * 0.6 + c * w:.1f} {tip[0]:.1f} {tip[1]:.1f}'
                   f'Q{x + c * r * 0.6 + s * w:.1f} {y + s * r * 0.6 - c * w:.1f} {x:.1f} {y:.1f}Z" '
                   f'fill="{rgb(mix((255, 255, 255), (222, 228, 236), rng.random() * 0.7))}" stroke="#c3ccd6" stroke-width="0.5"/>')
    return petals + (f'<ellipse cx="{x}" cy="{y}" rx="{r * 0.27:.1f}" ry="{r * 0.2:.1f}" fill="#eeb21e"/>'
                     f'<ellipse cx="{x - r * 0.06:.1f}" cy="{y - r * 0.05:.1f}" rx="{r * 0.14:.1f}" ry="{r * 0.09:.1f}" fill="#fbd75a"/>')


def meadow(rng, top, count, colours, length=60):
    """Grass from `top` to the bottom edge, far blades first."""
    out = []
    for y in sorted(top + (HEIGHT + 60 - top) * rng.random() ** 0.8 for _ in range(count)):
        near = (y - top) / (HEIGHT + 60 - top)
        tone = rng.random() * 0.6 + 0.4 * (1 - near) * rng.random()
        out.append((y, stroke(rng.uniform(-10, WIDTH + 10), y, -math.pi / 2 + rng.gauss(0, 0.25),
                              length * (0.45 + near) * rng.uniform(0.6, 1.2), 4 + 4 * near, ramp(colours, tone), rng.gauss(0, 0.12))))
    return out


def blonde_chick():
    rng = random.Random(7)
    down = [(176, 112, 12), (222, 158, 24), (246, 194, 48), (255, 219, 92), (255, 238, 150), (255, 248, 200)]
    defs = (linear("sky", (0, "#cfe8ee"), (0.4, "#e2f1e6"), (0.72, "#f3f2d4"), (1, "#d8e6a8")) + blur(5) + blur(14) + blur(30)
            + linear("beak", (0, "#ffb257"), (0.55, "#f08a24"), (1, "#c96410"))
            + radial("cheek", (0, "#ff8d5c", 0.55), (1, "#ff8d5c", 0)) + radial("glow", (0, "#fffbe0", 0.9), (1, "#fffbe0", 0)))
    body = sheet("url(#sky)") + f'<circle cx="400" cy="780" r="330" fill="url(#glow)"/>'
    # Blossoms far out of focus.
    for _ in range(60):
        x, y = rng.uniform(0, WIDTH), rng.uniform(20, 900)
        r, c = rng.uniform(12, 46), rng.choice(["#ffffff", "#fff2b8", "#cfe6b4", "#f9dfe4", "#bfe0e2"])
        body += f'<circle cx="{x:.0f}" cy="{y:.0f}" r="{r:.0f}" fill="{c}" opacity="{rng.uniform(0.15, 0.45):.2f}" filter="url(#b5)"/>'
    body += '<ellipse cx="393" cy="985" rx="560" ry="110" fill="#a9cf72" filter="url(#b30)"/>'
    grass = [(74, 122, 40), (104, 158, 54), (142, 192, 78), (178, 214, 108)]
    blades = meadow(rng, 880, 1500, grass, 50)
    body += "".join(b for y, b in blades if y < 930)
    body += '<ellipse cx="400" cy="948" rx="150" ry="20" fill="#3d5a1c" opacity="0.55" filter="url(#b14)"/>'

    ground, body = body, ""

    # Feet.
    for fx, s in ((362, -1), (424, 1)):
        for dx in (-22, 0, 22):
            body += (f'<path d="M{fx} 912Q{fx + dx * 0.2:.0f} 935 {fx + dx:.0f} {946 - abs(dx) * 0.25:.0f}" fill="none" stroke="#d9761c" '
                     f'stroke-width="9" stroke-linecap="round"/><path d="M{fx - 1} 912Q{fx + dx * 0.2 - 1:.0f} 934 {fx + dx - 1:.0f} '
                     f'{943 - abs(dx) * 0.25:.0f}" fill="none" stroke="#f7a64a" stroke-width="3" stroke-linecap="round"/>')

    trunk, head = Ball(400, 846, 104, 84), Ball(384, 752, 70, 66)
    body += f'<ellipse cx="400" cy="846" rx="104" ry="84" fill="{rgb(down[2])}"/>'
    body += fur(rng, Ball(494, 822, 34, 26, -0.5), down, 420, 24, 3.2, lambda x, y: -0.45, (450, 850))
    body += fur(rng, trunk, down, 4600, 21, 2.6, lambda x, y: math.atan2(y - 752, x - 384) * 0.75 + math.pi * 0.5 * 0.25, (384, 752))
    wing = Ball(446, 846, 54, 38, 0.35)
    body += f'<ellipse cx="450" cy="856" rx="52" ry="34" fill="#a8660a" opacity="0.35" filter="url(#b14)"/>'
    body += fur(rng, wing, down[:1] + down[1:5], 1500, 26, 3.0, lambda x, y: 0.42, (396, 826), 0.2)
    body += f'<ellipse cx="386" cy="806" rx="58" ry="16" fill="#9a5e08" opacity="0.35" filter="url(#b14)"/>'
    body += f'<circle cx="384" cy="752" r="62" fill="{rgb(down[3])}"/>'
    body += fur(rng, head, down, 4200, 17, 2.3, lambda x, y: math.atan2(y - 756, x - 366), (366, 764), 0.4)
    # A few long soft hairs on the crown and at the rim of the body.
    for _ in range(70):
        a = rng.gauss(-math.pi / 2, 0.5)
        body += stroke(384 + 62 * math.cos(a), 752 + 60 * math.sin(a), a + rng.gauss(0, 0.3), rng.uniform(10, 26), 1.6,
                       ramp(down, rng.uniform(0.6, 1)), rng.gauss(0, 0.2))
    for _ in range(420):
        a = rng.uniform(0, 2 * math.pi)
        x, y = 400 + 100 * math.cos(a), 846 + 80 * math.sin(a)
        if y > 790:
            body += stroke(x, y, a + rng.gauss(0, 0.4), rng.uniform(9, 20), 1.6, ramp(down, trunk.light(x, y) + rng.gauss(0.1, 0.1)),
                           rng.gauss(0, 0.2))
    body += '<circle cx="338" cy="782" r="20" fill="url(#cheek)"/><circle cx="418" cy="784" r="22" fill="url(#cheek)"/>'
    body += eye(349, 750, 10.5) + eye(413, 751, 11.5)
    body += ('<path d="M349 776Q372 752 398 777Q376 788 349 776Z" fill="url(#beak)"/>'
             '<path d="M353 778Q374 788 394 779Q377 801 372 800Q366 800 353 778Z" fill="#b4560c"/>'
             '<path d="M349 776Q372 785 398 777" fill="none" stroke="#8c4208" stroke-width="1.6"/>'
             '<path d="M358 772Q372 759 384 767" fill="none" stroke="#ffe0b0" stroke-width="3" stroke-linecap="round" opacity="0.8"/>')
    body = f'{ground}<g transform="translate(400 930) scale(0.92) translate(-400 -930)">{body}</g>'
    flowers = [(92, 905, 26), (170, 955, 32), (655, 915, 28), (716, 960, 34), (590, 965, 24), (50, 975, 30), (262, 985, 26), (500, 995, 30)]
    for y, b in blades:
        if y >= 930:
            body += b
    for x, y, r in flowers:
        body += f'<path d="M{x} {y}q6 50 0 120" stroke="#6f9f3a" stroke-width="4" fill="none"/>' + daisy(x, y, r, rng.random(), rng)
    save_svg("Blonde Chick", 0, defs, body)


def baby_seal():
    rng = random.Random(21)
    coat = [(122, 146, 172), (170, 188, 206), (208, 219, 230), (233, 238, 243), (249, 250, 251), (255, 255, 255)]
    defs = (linear("sky", (0, "#b9d7ea"), (0.45, "#d3e6f1"), (0.66, "#eaf1f3"), (0.7, "#f6f1ea"))
            + linear("sea", (0, "#b6d3de"), (1, "#8dbacb")) + linear("ice", (0, "#fdfeff"), (0.4, "#e6f0f6"), (1, "#b9d3e3"))
            + linear("far", (0, "#eef5f9"), (1, "#cadfea")) + blur(2) + blur(6) + blur(16) + blur(34)
            + radial("nose", (0, "#5b5560"), (1, "#201c24")) + radial("sun", (0, "#fff8e6", 0.95), (1, "#fff8e6", 0)))
    body = sheet("url(#sky)") + '<circle cx="600" cy="560" r="330" fill="url(#sun)"/>'
    for _ in range(26):
        x, y = rng.uniform(-40, WIDTH), rng.uniform(60, 600)
        body += (f'<ellipse cx="{x:.0f}" cy="{y:.0f}" rx="{rng.uniform(70, 190):.0f}" ry="{rng.uniform(8, 22):.0f}" fill="#fff" '
                 f'opacity="{rng.uniform(0.12, 0.4):.2f}" filter="url(#b16)"/>')
    # Far ice hills, the sea, drifting floes.
    for base, shade, amp in ((704, "#dfebf2", 34), (716, "#cfe1eb", 22)):
        pts, x = [(-20, base + 30)], -20
        while x < WIDTH + 40:
            pts.append((x, base - amp * abs(math.sin(x * 0.011 + base)) * rng.uniform(0.4, 1)))
            x += rng.uniform(24, 60)
        pts.append((WIDTH + 40, base + 30))
        body += '<path d="M' + "L".join(f"{a:.0f} {b:.0f}" for a, b in pts) + f'Z" fill="{shade}" filter="url(#b2)"/>'
    body += '<rect x="0" y="720" width="786" height="120" fill="url(#sea)"/>'
    for _ in range(130):
        y = 722 + 100 * rng.random() ** 1.3
        w = rng.uniform(14, 60) * (0.4 + (y - 720) / 80)
        body += (f'<ellipse cx="{rng.uniform(0, WIDTH):.0f}" cy="{y:.0f}" rx="{w:.0f}" ry="{1 + (y - 720) / 60:.1f}" '
                 f'fill="{rng.choice(["#d8eaf0", "#eef7fa", "#7fadc0"])}" opacity="0.55"/>')
    for x, y, w in ((110, 742, 70), (620, 752, 95), (250, 766, 46)):
        body += (f'<path d="M{x - w} {y}L{x - w * 0.6:.0f} {y - 9}L{x + w * 0.3:.0f} {y - 12}L{x + w} {y - 2}L{x + w * 0.8:.0f} {y + 8}L{x - w * 0.8:.0f} {y + 9}Z" '
                 f'fill="url(#far)"/>')
    floe = [(-40, 842), (60, 826), (180, 834), (300, 824), (460, 830), (600, 820), (720, 830), (830, 822), (830, 1060), (-40, 1060)]
    body += '<path d="M' + "L".join(f"{a} {b}" for a, b in floe) + 'Z" fill="#7fa9c0" transform="translate(0 7)"/>'
    body += '<path d="M' + "L".join(f"{a} {b}" for a, b in floe) + 'Z" fill="url(#ice)"/>'
    for _ in range(70):
        y = rng.uniform(850, 1026)
        body += (f'<ellipse cx="{rng.uniform(0, WIDTH):.0f}" cy="{y:.0f}" rx="{rng.uniform(30, 120):.0f}" ry="{rng.uniform(3, 10):.0f}" '
                 f'fill="{rng.choice(["#ffffff", "#c4d9e6", "#d6e5ee"])}" opacity="0.5" filter="url(#b6)"/>')

    for _ in range(60):
        body += (f'<circle cx="{rng.uniform(0, WIDTH):.0f}" cy="{rng.uniform(0, HEIGHT):.0f}" r="{rng.uniform(1.5, 4.5):.1f}" fill="#fff" '
                 f'opacity="{rng.uniform(0.4, 0.9):.2f}"/>')

    ground, body = body, ""

    # The body lies to the right, the tail flippers at its end.
    def flipper(x, y, turn, length, wide):
        fan = ""
        for k in range(-2, 3):
            ball = Ball(x + math.cos(turn + k * 0.17) * length * 0.5, y + math.sin(turn + k * 0.17) * length * 0.5, length * 0.55, wide * 0.42,
                        turn + k * 0.17)
            fan += fur(rng, ball, coat[:5], 420, 13, 2.2, lambda a, b: turn + k * 0.17, (x, y), 0.2)
        return fan
    body += flipper(636, 892, -0.5, 78, 26) + flipper(632, 906, 0.02, 74, 26)
    rump, trunk = Ball(560, 886, 110, 48, 0.06), Ball(440, 868, 150, 72, 0.1)
    body += f'<ellipse cx="560" cy="886" rx="108" ry="46" fill="{rgb(coat[2])}"/><ellipse cx="440" cy="868" rx="146" ry="70" fill="{rgb(coat[3])}"/>'
    lie = lambda x, y: 0.12 + 0.010 * (y - 868)
    body += fur(rng, rump, coat, 2600, 17, 2.2, lie, (380, 850))
    body += fur(rng, trunk, coat, 5200, 19, 2.3, lie, (330, 800))
    for fx, fy, turn in ((430, 908, 0.75), (300, 912, 2.3)):
        body += f'<ellipse cx="{fx}" cy="{fy + 18}" rx="48" ry="13" fill="#6e90ab" opacity="0.4" filter="url(#b6)"/>'
        paw = Ball(fx, fy, 52, 21, turn if turn < 1.5 else turn - math.pi)
        body += fur(rng, paw, coat[:5], 900, 14, 2.2, lambda x, y, t=turn: t, (fx - 50 * math.cos(turn), fy - 50 * math.sin(turn)), 0.25)
        ex, ey = fx + 50 * math.cos(turn), fy + 50 * math.sin(turn)
        for k in (-1, 0, 1, 2):
            body += stroke(ex - k * 9 * math.sin(turn) - 4, ey + k * 6 - 12, turn + 0.3 * (1 if turn < 1.5 else -1), 9, 5, (104, 116, 132))
    body += '<ellipse cx="352" cy="868" rx="92" ry="26" fill="#54789a" opacity="0.4" filter="url(#b16)"/>'
    head = Ball(346, 798, 96, 86)
    body += f'<ellipse cx="346" cy="798" rx="92" ry="82" fill="{rgb(coat[4])}"/>'
    body += fur(rng, head, coat, 6200, 15, 2.1, lambda x, y: math.atan2(y - 826, x - 342), (342, 826), 0.35)
    for _ in range(500):
        a = rng.uniform(0, 2 * math.pi)
        x, y = 346 + 93 * math.cos(a), 798 + 83 * math.sin(a)
        body += stroke(x, y, a + rng.gauss(0, 0.4), rng.uniform(6, 15), 1.5, ramp(coat, head.light(x, y) + rng.gauss(0.12, 0.1)), rng.gauss(0, 0.2))
    # The face: soft grey round the eyes, muzzle of two cushions, nose, whiskers.
    for ex in (300, 388):
        body += f'<ellipse cx="{ex}" cy="800" rx="26" ry="25" fill="#8ba0b6" opacity="0.55" filter="url(#b6)"/>'
    body += eye(301, 800, 19, "#17141a") + eye(387, 800, 19, "#17141a")
    for ex in (306, 382):
        body += f'<path d="M{ex - 14} 768q14 -8 26 -1" stroke="#9fb1c4" stroke-width="5" fill="none" stroke-linecap="round" opacity="0.7" filter="url(#b2)"/>'
    for mx in (322, 366):
        muzzle = Ball(mx, 844, 29, 23)
        body += f'<ellipse cx="{mx}" cy="851" rx="28" ry="20" fill="#8ba3bb" opacity="0.5" filter="url(#b6)"/>'
        body += fur(rng, muzzle, coat[1:], 1100, 9, 1.7, lambda x, y, m=mx: math.atan2(y - 832, x - 344), (344, 832), 0.3)
        for k in range(9):
            body += f'<circle cx="{mx + (k % 3 - 1) * 11 + (4 if k // 3 == 1 else 0)}" cy="{840 + (k // 3) * 7}" r="1.2" fill="#5a6676" opacity="0.8"/>'
    for side in (-1, 1):
        for k in range(5):
            x, y = 344 + side * 38, 838 + k * 6
            body += (f'<path d="M{x} {y}q{side * 36} {-8 + k * 5} {side * (66 + 5 * (k % 3))} {-14 + k * 13}" stroke="#6b7888" '
                     f'stroke-width="1.3" fill="none" opacity="0.75"/>')
    body += ('<path d="M344 868q-14 13 -28 4M344 868q14 13 28 4M344 838v28" stroke="#6a6672" stroke-width="2.6" fill="none" stroke-linecap="round" opacity="0.8"/>'
             '<path d="M322 820Q344 808 366 820Q364 836 344 842Q324 836 322 820Z" fill="url(#nose)"/>'
             '<ellipse cx="337" cy="819" rx="9" ry="3.6" fill="#c9c6d2" opacity="0.75"/>')
    shadow = '<ellipse cx="440" cy="936" rx="270" ry="24" fill="#5f86a4" opacity="0.55" filter="url(#b16)"/>'
    body = f'{ground}<g transform="translate(410 918) scale(0.94) translate(-410 -932)">{shadow}{body}</g>'
    save_svg("Baby Seal", 4, defs, body)


def quacker():
    rng = random.Random(5)
    defs = (linear("tile", (0, "#e3f3f3"), (1, "#c7e6e8")) + linear("water", (0, "#bfe6ec"), (0.25, "#8fd0dc"), (1, "#3f9fb8"))
            + radial("yellow", (0, "#fff6a0"), (0.35, "#ffe03c"), (0.75, "#f7bb0c"), (1, "#d98f00"), cx=0.36, cy=0.28, r=0.85)
            + radial("head", (0, "#fff9b4"), (0.35, "#ffe342"), (0.78, "#f8bf10"), (1, "#dd9604"), cx=0.38, cy=0.28, r=0.8)
            + linear("bill", (0, "#ffae4a"), (0.5, "#f5821c"), (1, "#cc5a08")) + blur(3) + blur(8) + blur(18)
            + radial("bubble", (0, "#ffffff", 0.05), (0.7, "#ffffff", 0.18), (0.92, "#ffffff", 0.75), (1, "#cfeef6", 0.9))
            + linear("fade", (0, "#fff", 0.55), (1, "#fff", 0))
            + '<clipPath id="dry"><path d="M0 0H786V860H566Q470 944 400 924Q300 932 226 890L0 880Z"/></clipPath>')
    body = sheet("#eef7f6")
    # A tiled wall, out of focus.
    size = 131
    for j in range(7):
        for i in range(6):
            body += (f'<rect x="{i * size + 3}" y="{j * size - 58 + 3}" width="{size - 6}" height="{size - 6}" rx="9" fill="url(#tile)" '
                     f'opacity="{rng.uniform(0.82, 1):.2f}"/>'
                     f'<path d="M{i * size + 12} {j * size - 58 + 34}q3 -22 30 -24" stroke="#fff" stroke-width="6" opacity="0.7" fill="none" stroke-linecap="round"/>')
    body = f'<g filter="url(#b3)">{body}</g>'
    body += '<rect x="0" y="640" width="786" height="180" fill="url(#fade)" transform="rotate(180 393 730)"/>'
    body += '<path d="M-20 812Q393 784 806 812V1040H-20Z" fill="url(#water)"/>'
    for _ in range(170):
        y = 806 + 215 * rng.random() ** 1.2
        d = (y - 800) / 215
        w = rng.uniform(18, 70) * (0.4 + d)
        x = rng.uniform(-30, WIDTH + 30)
        c = rng.choice(["#ffffff", "#d4f2f6", "#2d8ba6", "#e8fbfd", "#5bb6c9"])
        body += (f'<path d="M{x - w:.0f} {y:.0f}Q{x - w / 2:.0f} {y - 3 - 5 * d:.1f} {x:.0f} {y:.0f}T{x + w:.0f} {y:.0f}Q{x:.0f} {y + 5 + 4 * d:.1f} {x - w:.0f} {y:.0f}Z" '
                 f'fill="{c}" opacity="{rng.uniform(0.18, 0.5):.2f}"/>')

    room, body = body, ""
    trunk = ("M238 868C236 826 262 800 306 806C346 812 370 822 420 818C470 812 508 800 548 762C558 752 574 756 574 772"
             "C576 838 560 918 470 928C400 936 320 936 280 918C256 908 240 892 238 868Z")
    # The mirror image in the water, broken by the ripples.
    mirror = "".join(f'<path d="M{230 + rng.uniform(-14, 14):.0f} {930 + k * 11}q{170} {rng.uniform(6, 14):.0f} {330 - k * 24} 0q-{160 - k * 10} {rng.uniform(8, 16):.0f} -{330 - k * 24} 0Z" '
                     f'fill="#f6cf3a" opacity="{0.85 - k * 0.09:.2f}"/>' for k in range(8))
    body += f'<ellipse cx="400" cy="926" rx="200" ry="26" fill="#1d6e88" opacity="0.45" filter="url(#b18)"/><g filter="url(#b3)">{mirror}</g>'
    for k, (rx, op) in enumerate(((205, 0.8), (250, 0.5), (302, 0.33), (360, 0.2))):
        body += f'<ellipse cx="402" cy="{916 + k * 4}" rx="{rx}" ry="{22 + k * 12}" fill="none" stroke="#eafcff" stroke-width="{4 - k * 0.6:.1f}" opacity="{op}"/>'
    body += f'<g clip-path="url(#dry)"><path d="{trunk}" fill="url(#yellow)"/>'
    body += '<path d="M262 906C330 934 470 932 540 880C520 926 480 934 420 934C340 936 290 928 262 906Z" fill="#c67c00" opacity="0.55" filter="url(#b8)"/></g>'
    body += '<path d="M556 780C552 806 540 822 520 836" stroke="#fff7b8" stroke-width="9" stroke-linecap="round" fill="none" opacity="0.75" filter="url(#b3)"/>'
    # The wing, pressed into the rubber.
    wing = "M380 858C384 834 420 830 452 836C484 842 510 834 524 824C524 866 490 892 444 892C404 892 378 880 380 858Z"
    body += (f'<path d="{wing}" fill="#b87600" opacity="0.55" filter="url(#b8)" transform="translate(3 8)"/><path d="{wing}" fill="url(#yellow)"/>'
             '<path d="M398 846C420 838 450 846 484 846" stroke="#fffad0" stroke-width="7" stroke-linecap="round" fill="none" opacity="0.85" filter="url(#b3)"/>'
             '<path d="M414 872C440 880 470 874 494 858" stroke="#cf8f06" stroke-width="4" stroke-linecap="round" fill="none" opacity="0.7"/>')
    body += '<ellipse cx="316" cy="822" rx="62" ry="14" fill="#b87600" opacity="0.5" filter="url(#b8)"/>'
    body += '<circle cx="312" cy="762" r="73" fill="url(#head)"/>'
    body += '<path d="M262 812A73 73 0 0 0 384 772A80 80 0 0 1 262 812Z" fill="#c67c00" opacity="0.55" filter="url(#b8)"/>'
    body += '<ellipse cx="290" cy="722" rx="27" ry="15" fill="#fff" opacity="0.85" filter="url(#b3)" transform="rotate(-24 290 722)"/>'
    body += ('<path d="M204 784C214 764 246 754 282 766C288 776 284 788 272 792C246 798 222 800 204 784Z" fill="url(#bill)"/>'
             '<path d="M208 787C232 800 262 798 280 786C276 812 232 818 208 787Z" fill="#b44c06"/>'
             '<path d="M206 785C226 792 256 792 278 784" stroke="#9c4204" stroke-width="2.4" fill="none"/>'
             '<path d="M222 774C236 764 254 763 268 768" stroke="#ffd9a0" stroke-width="5" stroke-linecap="round" fill="none" opacity="0.85"/>')
    body += eye(268, 745, 12.5, "#141416") + eye(326, 748, 13.5, "#141416")
    body += '<path d="M240 903Q262 924 300 927Q350 932 400 926Q452 932 494 912Q520 902 534 888" stroke="#f4feff" stroke-width="4" fill="none" opacity="0.85" stroke-linecap="round"/>'

    body = f'{room}<g transform="translate(400 926) scale(0.95) translate(-400 -930)">{body}</g>'

    def bubble(x, y, r):
        return (f'<circle cx="{x:.0f}" cy="{y:.0f}" r="{r:.0f}" fill="url(#bubble)"/>'
                f'<path d="M{x - r * 0.6:.1f} {y - r * 0.15:.1f}A{r * 0.62:.1f} {r * 0.62:.1f} 0 0 1 {x - r * 0.1:.1f} {y - r * 0.6:.1f}" stroke="#fff" stroke-width="{max(1.5, r * 0.12):.1f}" fill="none" stroke-linecap="round"/>'
                f'<circle cx="{x + r * 0.4:.1f}" cy="{y + r * 0.42:.1f}" r="{r * 0.09:.1f}" fill="#fff" opacity="0.9"/>')
    for x, y, r in ((640, 640, 26), (700, 560, 16), (672, 500, 9), (110, 610, 20), (74, 690, 32), (150, 540, 11), (600, 730, 18), (720, 740, 34), (40, 480, 13)):
        body += bubble(x, y, r)
    for x in (20, 70, 130, 668, 730, 780):
        body += f'<ellipse cx="{x}" cy="936" rx="64" ry="30" fill="#f4fcfd" opacity="0.8" filter="url(#b8)"/>'
    for side in (0, 1):
        for _ in range(130):
            a = rng.random()
            x = (a ** 1.6) * 210 if not side else WIDTH - (a ** 1.6) * 170
            y = rng.gauss(930 + 40 * a, 26 * (1 - a) + 5)
            body += bubble(x, y, rng.uniform(6, 26) * (1.1 - 0.6 * a))
    save_svg("Quacker", 4, defs, body)


def moose():
    rng = random.Random(31)
    defs = (linear("sky", (0, "#20384a"), (0.45, "#2b505c"), (0.7, "#48696a"), (0.82, "#7f8f7c"), (1, "#a89f80"))
            + linear("antler", (0, "#b08d5c"), (0.6, "#8c6a42"), (1, "#64462a")) + linear("scarf", (0, "#d2473e"), (1, "#982824"))
            + blur(2) + blur(6) + blur(14) + blur(30))
    body = sheet("url(#sky)")
    for _ in range(70):
        body += (f'<circle cx="{rng.uniform(0, WIDTH):.0f}" cy="{rng.uniform(0, 560):.0f}" r="{rng.uniform(0.8, 2.0):.1f}" fill="#fff6d8" '
                 f'opacity="{rng.uniform(0.25, 0.7):.2f}"/>')

    def pine(x, base, high, colour):
        text, levels = f"M{x:.0f} {base - high:.0f}", 9
        right, left = [], []
        for k in range(1, levels + 1):
            y, w = base - high + high * k / levels, high * 0.23 * (k / levels) ** 0.9
            right += [(x + w * rng.uniform(0.88, 1.12), y), (x + w * 0.5, y - high * 0.018)]
            left += [(x - w * rng.uniform(0.88, 1.12), y), (x - w * 0.5, y - high * 0.018)]
        text += "".join(f"L{a:.1f} {b:.1f}" for a, b in right) + "".join(f"L{a:.1f} {b:.1f}" for a, b in reversed(left)) + "Z"
        return f'<path d="{text}" fill="{colour}"/>'
    for base, high, colour, n, soft in ((800, 150, "#4a6f6c", 22, 3), (850, 210, "#2f5450", 15, 2), (930, 270, "#1d3d3a", 9, 0)):
        layer = ""
        for k in range(n):
            x = (k + rng.uniform(0.1, 0.9)) * WIDTH / n
            if base == 930 and 170 < x < 620:
                continue
            layer += pine(x, base, high * rng.uniform(0.6, 1.05), colour)
        haze = ' filter="url(#b2)"' if soft else ""
        body += f'<g{haze}>{layer}<rect x="0" y="{base - 4}" width="786" height="240" fill="{colour}"/></g>'
        body += f'<ellipse cx="393" cy="{base}" rx="520" ry="34" fill="#9fb0a4" opacity="0.12" filter="url(#b30)"/>'
    body += '<path d="M-10 944Q200 900 400 930T800 920V1040H-10Z" fill="#b9c8cc"/><path d="M-10 960Q220 920 420 948T800 940V1040H-10Z" fill="#dbe4e6"/>'
    for _ in range(50):
        body += f'<ellipse cx="{rng.uniform(0, WIDTH):.0f}" cy="{rng.uniform(950, 1026):.0f}" rx="{rng.uniform(20, 90):.0f}" ry="4" fill="#9fb3bb" opacity="0.4" filter="url(#b2)"/>'

    scenery, body = body, ""

    # Antlers: the right one, mirrored for the left. They spread below the scores of the table.
    palm = [(424, 790), (452, 778), (482, 774), (500, 762), (504, 738), (518, 752), (531, 762), (543, 748), (552, 730), (561, 750), (575, 758),
            (592, 741), (607, 729), (609, 750), (618, 758), (636, 746), (655, 738), (650, 758), (645, 769), (664, 766), (677, 769), (660, 785),
            (634, 797), (596, 804), (552, 806), (510, 800), (470, 798), (430, 806)]
    shape = curve(palm)
    defs += f'<clipPath id="palm"><path d="{shape}"/></clipPath>'
    velvet = ""
    for _ in range(520):
        x, y = rng.uniform(424, 670), rng.uniform(735, 812)
        velvet += stroke(x, y, -0.62 * (x - 440) / 160 - 0.15 + rng.gauss(0, 0.12), rng.uniform(12, 26), 1.8,
                         ramp([(82, 58, 34), (140, 108, 68), (190, 158, 108), (222, 194, 146)], (800 - y) / 70 + rng.gauss(0, 0.22)), rng.gauss(0, 0.1), 0.55)
    one = (f'<path d="{shape}" fill="#160d06" opacity="0.45" transform="translate(3 8)" filter="url(#b6)"/>'
           f'<path d="{shape}" fill="url(#antler)" stroke="#432e1a" stroke-width="2.4" stroke-linejoin="round"/><g clip-path="url(#palm)">{velvet}</g>')
    body += f'{one}<g transform="translate(786 0) scale(-1 1)">{one}</g>'

    # Fur: shoulders, ears, brow, and the muzzle that is paler and shorter.
    coat = [(44, 25, 14), (74, 45, 26), (104, 67, 40), (134, 91, 57), (164, 118, 80), (196, 152, 110)]
    pale = [(84, 54, 34), (124, 86, 56), (162, 119, 83), (194, 153, 114), (220, 186, 148), (236, 212, 180)]
    body += f'<path d="M322 850C290 900 248 940 226 1040H560C538 940 496 900 464 850Z" fill="{rgb(coat[1])}"/>'
    body += fur(rng, Ball(393, 905, 86, 62), coat[:5], 1500, 24, 3.0, lambda x, y: math.pi / 2 - (x - 393) * 0.008, (393, 820), 0.25)
    body += fur(rng, Ball(393, 1010, 164, 150), coat[:5], 5200, 26, 3.0, lambda x, y: math.pi / 2 - (x - 393) * 0.005, (393, 820), 0.25)
    for s in (-1, 1):
        ear = Ball(393 + s * 84, 802, 50, 20, s * 0.18)
        away = 0.18 if s > 0 else math.pi - 0.18
        body += f'<ellipse cx="{ear.x}" cy="{ear.y}" rx="46" ry="17" fill="{rgb(coat[1])}" transform="rotate({s * 10} {ear.x} {ear.y})"/>'
        body += fur(rng, ear, coat, 1100, 15, 2.2, lambda x, y: away, (393, 795), 0.35)
        body += fur(rng, Ball(393 + s * 88, 805, 33, 9, s * 0.18), [(150, 104, 80), (206, 158, 128), (228, 190, 162)], 260, 13, 1.8,
                    lambda x, y: away, (393, 795), 0.3)
    body += '<ellipse cx="393" cy="916" rx="84" ry="26" fill="#120904" opacity="0.6" filter="url(#b14)"/>'
    brow, muzzle = Ball(393, 812, 62, 68), Ball(393, 878, 73, 48)
    body += f'<ellipse cx="393" cy="812" rx="58" ry="64" fill="{rgb(coat[2])}"/>'
    body += fur(rng, brow, coat, 4600, 17, 2.2, lambda x, y: math.atan2(y - 772, (x - 393) * 0.7), (393, 845), 0.3)
    body += '<ellipse cx="393" cy="864" rx="66" ry="34" fill="#1c0f06" opacity="0.4" filter="url(#b14)"/>'
    body += f'<ellipse cx="393" cy="878" rx="69" ry="44" fill="{rgb(pale[2])}"/>'
    body += fur(rng, muzzle, pale, 5200, 11, 1.9, lambda x, y: math.atan2(y - 826, x - 393), (393, 836), 0.35)
    for _ in range(320):  # a tuft between the antlers
        x = rng.gauss(393, 13)
        body += stroke(x, rng.uniform(742, 760), math.pi / 2 + (393 - x) * 0.03 + rng.gauss(0, 0.12), rng.uniform(10, 30), 2, ramp(coat, rng.gauss(0.42, 0.16)),
                       rng.gauss(0, 0.25))
    # The face: eyes with lids, nostrils, a smile.
    for s in (-1, 1):
        x = 393 + s * 30
        body += (f'<ellipse cx="{x}" cy="812" rx="22" ry="19" fill="{rgb(coat[0])}" opacity="0.55" filter="url(#b6)"/>' + eye(x, 812, 14.5, "#150d09")
                 + f'<path d="M{x - 17} 809Q{x} 790 {x + 17} 809" stroke="{rgb(coat[0])}" stroke-width="4" fill="none" stroke-linecap="round"/>')
        x = 393 + s * 31
        body += (f'<ellipse cx="{x}" cy="866" rx="13" ry="8.5" fill="#2c170c" transform="rotate({s * 26} {x} 866)"/>'
                 f'<path d="M{x - 10} 859q10 -8 20 0" stroke="#f2d8b6" stroke-width="2.6" fill="none" opacity="0.75"/>')
    body += ('<path d="M346 893Q368 913 393 912Q418 913 440 893" stroke="#4a2814" stroke-width="4" fill="none" stroke-linecap="round"/>'
             '<path d="M342 888q-2 7 5 9M444 888q2 7 -5 9" stroke="#4a2814" stroke-width="3.4" fill="none" stroke-linecap="round"/>')
    # The scarf.
    body += ('<path d="M280 944C320 972 466 972 506 944C528 962 526 992 512 1004C450 1030 336 1030 274 1004C260 992 258 962 280 944Z" fill="url(#scarf)" '
             'stroke="#6a1a18" stroke-width="2.4"/>')
    for k in range(15):
        x = 286 + k * 15.3
        body += (f'<path d="M{x:.0f} {958 + 8 * math.sin(k / 14 * math.pi):.0f}q{(7 - k) * 0.6:.1f} 24 {(k - 7) * 0.5:.1f} 48" '
                 f'stroke="{"#f0dcc0" if k % 4 == 1 else "#7c1f1c"}" stroke-width="{6 if k % 4 == 1 else 1.6}" fill="none" opacity="0.7"/>')
    for _ in range(120):
        y = HEIGHT * rng.random()
        r = rng.uniform(1.2, 3.4) * (0.5 if y < 60 or 360 < y < 730 else 1)
        scenery += f'<circle cx="{rng.uniform(0, WIDTH):.0f}" cy="{y:.0f}" r="{r:.1f}" fill="#fff" opacity="{rng.uniform(0.35, 0.8):.2f}"/>'
    save_svg("CC Moose", 3, defs, scenery + body)
