"""Drawings: Blueprints and Nautical, drawn as SVG."""
import math
import random

from brush import HEIGHT, Noise, WIDTH, blur, curve, linear, radial, save_svg, sheet

# Digits and letters of a draughtsman's stencil, as strokes in a box of 6 by 10.
STENCIL = {
    "0": "M3 0Q6 0 6 5T3 10Q0 10 0 5T3 0", "1": "M1 2L3.5 0V10", "2": "M0 2.5Q0 0 3 0T6 2.8Q6 5 0 10H6", "3": "M0 1Q6 -2 5.6 2.6Q5 5 2 4.8Q6 4.6 6 7.4Q5.6 11 0 9",
    "4": "M4.5 10V0L0 7H6", "5": "M5.5 0H1L.5 4.5Q6 3 6 6.6Q5.8 11 0 9.2", "6": "M5.5 .8Q0 -1 0 6Q0 10 3 10T6 7T3 4.2Q.5 4.4 0 6.6", "7": "M0 0H6L2 10",
    "8": "M3 0Q5.6 0 5.6 2.4T3 4.8T.4 2.4T3 0M3 4.8Q6 4.8 6 7.4T3 10T0 7.4T3 4.8", "9": "M6 4Q5.4 5.8 3 5.8T0 3T3 0T6 3Q6 9 1 10",
    "A": "M0 10L3 0L6 10M1 6.6H5", "B": "M0 0V10H3.4Q6 10 6 7.4T3.4 4.8H0H3Q5.4 4.8 5.4 2.4T3 0H0", "C": "M6 1.4Q5 0 3 0Q0 0 0 5T3 10Q5 10 6 8.6", "D": "M0 0V10H2.6Q6 10 6 5T2.6 0H0",
    "E": "M6 0H0V10H6M0 5H4.6", "F": "M6 0H0V10M0 5H4.6", "G": "M6 1.6Q5 0 3 0Q0 0 0 5T3 10Q5.4 10 6 8V5.6H3.4", "H": "M0 0V10M6 0V10M0 5H6", "I": "M3 0V10", "L": "M0 0V10H6", "N": "M0 10V0L6 10V0", "O": "M3 0Q6 0 6 5T3 10T0 5T3 0",
    "P": "M0 10V0H3.4Q6 0 6 2.8T3.4 5.6H0", "R": "M0 10V0H3.4Q6 0 6 2.7T3.4 5.2H0M3 5.2L6 10", "S": "M5.8 1.2Q4 -.6 2 .2T1 4Q6 5.4 5.6 7.8Q4.6 11 0 9", "T": "M0 0H6M3 0V10", "U": "M0 0V7Q0 10 3 10T6 7V0", "V": "M0 0L3 10L6 0",
    "W": "M0 0L1.5 10L3 3L4.5 10L6 0", "X": "M0 0L6 10M6 0L0 10", ":": "M3 3V3.6M3 7.4V8", "-": "M1 5H5", ".": "M3 9.4V10", "+": "M0 5H6M3 2V8", "/": "M0 10L6 0", " ": "",
}


def lettering(text, x, y, size, colour="#fff", weight=1.6, anchor=0.0, turn=0, opacity=0.9):
    """Stencil letters with their top left at (x, y); anchor 0.5 centres the text on x."""
    s = size / 10
    x0 = -anchor * (len(text) * 8.4 - 2.4) * s
    glyphs = "".join(f'<path d="{STENCIL[c]}" transform="translate({x0 + k * 8.4 * s:.1f} 0) scale({s:.2f})" vector-effect="non-scaling-stroke" stroke-width="{weight / s:.2f}"/>'
                     for k, c in enumerate(text) if c != " ")
    return f'<g transform="translate({x:.1f} {y:.1f}) rotate({turn})" fill="none" stroke="{colour}" stroke-linecap="round" stroke-linejoin="round" opacity="{opacity}">{glyphs}</g>'


def blueprints():
    rng = random.Random(9)
    defs = (linear("paper", (0, "#1b477f"), (0.5, "#1d4f8c"), (1, "#163f74"), x2=0.4) + radial("fade", (0, "#3a76b4", 0.45), (1, "#3a76b4", 0))
            + blur(2) + blur(26) + '<filter id="chalk" x="-2%" y="-2%" width="104%" height="104%"><feTurbulence type="fractalNoise" baseFrequency="0.9" numOctaves="2" seed="3"/>'
            '<feDisplacementMap in="SourceGraphic" scale="1.6"/></filter>'
            '<filter id="pulp" x="0" y="0" width="100%" height="100%"><feTurbulence type="fractalNoise" baseFrequency="0.012 0.016" numOctaves="5" seed="8"/>'
            '<feColorMatrix values="0 0 0 0 0.75  0 0 0 0 0.85  0 0 0 0 1  0 0.55 0 0 -0.18"/></filter>'
            '<filter id="fibre" x="0" y="0" width="100%" height="100%"><feTurbulence type="fractalNoise" baseFrequency="0.5" numOctaves="3" seed="5"/>'
            '<feColorMatrix values="0 0 0 0 1  0 0 0 0 1  0 0 0 0 1  0 0.5 0 0 -0.19"/></filter>'
            '<pattern id="hatch" width="9" height="9" patternUnits="userSpaceOnUse" patternTransform="rotate(45)"><path d="M0 0V9" stroke="#fff" stroke-width="1.5" opacity="0.55"/></pattern>')
    body = sheet("url(#paper)") + sheet("#fff", ' filter="url(#pulp)" opacity="0.35"') + sheet("#fff", ' filter="url(#fibre)" opacity="0.30"')
    body += '<ellipse cx="330" cy="780" rx="460" ry="330" fill="url(#fade)"/>'
    fine = "".join(f"M{k} 0V{HEIGHT}" for k in range(15, WIDTH, 18)) + "".join(f"M0 {k}H{WIDTH}" for k in range(9, HEIGHT, 18))
    bold = "".join(f"M{k} 0V{HEIGHT}" for k in range(15, WIDTH, 90)) + "".join(f"M0 {k}H{WIDTH}" for k in range(27, HEIGHT, 90))
    body += f'<path d="{fine}" stroke="#cfe4ff" stroke-width="1" opacity="0.10"/><path d="{bold}" stroke="#cfe4ff" stroke-width="1.4" opacity="0.20"/>'
    # Creases where the sheet was folded.
    for d, dx, dy in (("M0 545H786", 0, 2), ("M393 0V1026", 2, 0)):
        body += f'<path d="{d}" stroke="#0c2a52" stroke-width="3" opacity="0.45" filter="url(#b2)"/><path d="{d}" stroke="#bcd8f6" stroke-width="1.6" opacity="0.30" transform="translate({dx} {dy})"/>'
    body += '<rect x="10" y="10" width="766" height="1006" fill="none" stroke="#fff" stroke-width="2.4" opacity="0.5"/><rect x="18" y="18" width="750" height="990" fill="none" stroke="#fff" stroke-width="1" opacity="0.35"/>'

    main, thin, dash = 'stroke="#fff" stroke-width="2.8" opacity="0.92"', 'stroke="#fff" stroke-width="1.3" opacity="0.70"', 'stroke="#fff" stroke-width="1.3" opacity="0.55" stroke-dasharray="16 5 3 5"'
    ink = ""

    def dimension(x1, y1, x2, y2, text, off=-16):
        a = math.atan2(y2 - y1, x2 - x1)
        head = ""
        for x, y, t in ((x1, y1, a), (x2, y2, a + math.pi)):
            for s in (-0.22, 0.22):
                head += f"M{x} {y}l{13 * math.cos(t + s):.1f} {13 * math.sin(t + s):.1f}"
        mx, my = (x1 + x2) / 2, (y1 + y2) / 2
        turn = math.degrees(a)
        return (f'<path d="M{x1} {y1}L{x2} {y2}{head}" {thin} fill="none"/>'
                + lettering(text, mx - off * math.sin(a), my + off * math.cos(a), 11, weight=1.5, anchor=0.5, turn=turn))

    # Front view: face five, rounded corners, centre lines.
    x0, y0, side = 66, 764, 146
    c = (x0 + side / 2, y0 + side / 2)
    ink += f'<rect x="{x0}" y="{y0}" width="{side}" height="{side}" rx="21" fill="#fff" fill-opacity="0.05" {main}/>'
    for dx, dy in ((-40, -40), (40, -40), (0, 0), (-40, 40), (40, 40)):
        ink += f'<circle cx="{c[0] + dx}" cy="{c[1] + dy}" r="13.5" fill="url(#hatch)" {main}/><path d="M{c[0] + dx - 20} {c[1] + dy}h40M{c[0] + dx} {c[1] + dy - 20}v40" {thin}/>'
    ink += f'<path d="M{x0 - 18} {c[1]}H{x0 + side + 18}M{c[0]} {y0 - 16}V{y0 + side + 16}" {dash}/>'
    ink += f'<path d="M{x0} {y0 - 6}V{y0 - 36}M{x0 + side} {y0 - 6}V{y0 - 36}M{x0 - 6} {y0}H{x0 - 34}M{x0 - 6} {y0 + side}H{x0 - 34}" {thin}/>'
    ink += dimension(x0, y0 - 28, x0 + side, y0 - 28, "48.0") + dimension(x0 - 26, y0 + side, x0 - 26, y0, "48.0")
    ink += f'<path d="M{x0 + side - 6} {y0 + 6}l26 -26h26" {thin} fill="none"/>' + lettering("R7", x0 + side + 22, y0 - 36, 11, weight=1.5)

    # Isometric view with the faces 1, 2 and 3.
    ox, oy, e = 408, 782, 92
    ux, uy = (math.cos(math.pi / 6), -math.sin(math.pi / 6)), (-math.cos(math.pi / 6), -math.sin(math.pi / 6))

    def iso(a, b, z):
        return ox + (a * ux[0] + b * uy[0]) * e, oy + 58 + (a * ux[1] + b * uy[1]) * e + (1 - z) * e

    def face(corner, p, q, fill, pips):
        def at(s, t):
            return iso(*(corner[k] + p[k] * s + q[k] * t for k in range(3)))
        r, pts = 0.12, []
        for cs, ct, in1, in2 in ((0, 0, (0, r), (r, 0)), (1, 0, (1 - r, 0), (1, r)), (1, 1, (1, 1 - r), (1 - r, 1)), (0, 1, (r, 1), (0, 1 - r))):
            pts.append((at(*in1), at(cs, ct), at(*in2)))
        text = f"M{pts[0][0][0]:.1f} {pts[0][0][1]:.1f}" + "".join(
            f"L{a[0]:.1f} {a[1]:.1f}Q{b[0]:.1f} {b[1]:.1f} {d[0]:.1f} {d[1]:.1f}" for a, b, d in pts) + "Z"
        out = f'<path d="{text}" fill="#fff" fill-opacity="{fill}" {main}/>'
        for s, t in pips:
            ring = [at(s + 0.105 * math.cos(k * math.pi / 8), t + 0.105 * math.sin(k * math.pi / 8)) for k in range(16)]
            out += f'<path d="{curve(ring)}" fill="url(#hatch)" {main}/>'
        return out
    ink += face((0, 0, 1), (1, 0, 0), (0, 1, 0), 0.13, [(0.5, 0.5)])
    ink += face((0, 0, 0), (1, 0, 0), (0, 0, 1), 0.05, [(0.27, 0.27), (0.73, 0.73)])
    ink += face((0, 0, 0), (0, 1, 0), (0, 0, 1), 0.02, [(0.25, 0.25), (0.5, 0.5), (0.75, 0.75)])
    a, b = iso(0, 1, 0), iso(0, 1, 1)
    ink += f'<path d="M{a[0] - 6:.0f} {a[1]:.0f}h-28M{b[0] - 6:.0f} {b[1]:.0f}h-28" {thin}/>' + dimension(round(a[0] - 26), round(a[1]), round(b[0] - 26), round(b[1]), "48.0")

    # Section of a pip, with its bowl hatched.
    sx, sy = 664, 802
    ink += f'<circle cx="{sx}" cy="{sy}" r="78" fill="#fff" fill-opacity="0.04" {main}/><path d="M{sx - 96} {sy}H{sx + 96}M{sx} {sy - 24}V{sy + 90}" {dash}/>'
    ink += (f'<clipPath id="lens"><circle cx="{sx}" cy="{sy}" r="77"/></clipPath><g clip-path="url(#lens)"><path d="M{sx - 90} {sy - 14}H{sx - 42}A44 44 0 0 0 {sx + 42} {sy - 14}H{sx + 90}V{sy + 90}H{sx - 90}Z" fill="url(#hatch)"/>'
            f'<path d="M{sx - 90} {sy - 14}H{sx - 42}A44 44 0 0 0 {sx + 42} {sy - 14}H{sx + 90}" fill="none" {main}/></g>')
    ink += f'<path d="M{sx - 42} {sy - 20}V{sy - 48}M{sx + 42} {sy - 20}V{sy - 48}" {thin}/>' + dimension(sx - 42, sy - 42, sx + 42, sy - 42, "9.0", -15)
    ink += lettering("SECTION A-A", sx, sy + 96, 11, weight=1.5, anchor=0.5) + lettering("SCALE 5:1", sx, sy + 114, 9, weight=1.3, anchor=0.5, opacity=0.7)
    # Construction circles and arcs in the quiet part, barely there.
    faint = 'fill="none" stroke="#fff" stroke-width="1.4" opacity="0.16"'
    ink += f'<circle cx="600" cy="470" r="150" {faint}/><circle cx="600" cy="470" r="104" {faint} stroke-dasharray="14 6 3 6"/><path d="M420 470H780M600 300V650M494 364L706 576M706 364L494 576" {faint} stroke-dasharray="14 6 3 6"/>'
    ink += f'<path d="M60 620A260 260 0 0 1 320 360M60 620H330V350" {faint}/><circle cx="150" cy="520" r="62" {faint}/><path d="M88 520H212M150 458V582" {faint}/>'
    # The title block.
    ink += f'<path d="M18 944H768M330 944V1008M560 944V1008M18 976H768" {thin} fill="none"/>'
    ink += lettering("PIPPED CUBE", 34, 954, 12) + lettering("SIX FACES", 344, 954, 12) + lettering("SHEET 1", 574, 954, 12)
    ink += lettering("DRAWN", 34, 985, 10, opacity=0.7) + lettering("SCALE 2:1", 344, 985, 10, opacity=0.7) + lettering("REV B", 574, 985, 10, opacity=0.7)
    body += f'<g filter="url(#chalk)" stroke-linejoin="round">{ink}</g>'
    save_svg("Blueprints", 7, defs, body)


def nautical():
    rng = random.Random(12)
    noise = Noise(5)
    cx, cy = 393, 828
    defs = (linear("deep", (0, "#12304a"), (0.5, "#174059"), (1, "#0f2c44"), x2=0.3) + radial("shoal", (0, "#3c8390", 0.65), (1, "#3c8390", 0)) + blur(2) + blur(5) + blur(14)
            + linear("brass", (0, "#f3dfa2"), (0.5, "#cda24e"), (1, "#8a6424"), x2=1) + linear("brassDark", (0, "#8d6a2c"), (1, "#5b4018"), x2=1)
            + linear("ring", (0, "#f2dfa6"), (0.45, "#a67c34"), (1, "#e0c27c"), x2=0.7)
            + radial("plate", (0, "#1f4f69"), (0.8, "#143950"), (1, "#0c2739"))
            + '<filter id="paper" x="0" y="0" width="100%" height="100%"><feTurbulence type="fractalNoise" baseFrequency="0.014" numOctaves="5" seed="4"/><feColorMatrix values="0 0 0 0 0.6  0 0 0 0 0.85  0 0 0 0 0.9  0 0.6 0 0 -0.2"/></filter>')
    body = sheet("url(#deep)") + sheet("#fff", ' filter="url(#paper)" opacity="0.30"')
    body += f'<circle cx="{cx}" cy="{cy}" r="330" fill="url(#shoal)"/>'
    # Depth lines round two shoals, with soundings.
    for ox, oy, first, count in ((640, 470, 40, 6), (120, 560, 34, 6), (330, 190, 46, 4)):
        for k in range(count):
            ring = []
            for j in range(36):
                a = j * math.pi / 18
                r = (first + k * 30) * (1 + 0.34 * noise.at(2 + 1.3 * math.cos(a) + ox, 2 + 1.3 * math.sin(a) + k * 0.12))
                ring.append((ox + 1.25 * r * math.cos(a), oy + 0.8 * r * math.sin(a)))
            dashes = ' stroke-dasharray="7 5"' if k % 2 else ""
            body += f'<path d="{curve(ring)}" fill="#6fc0c4" fill-opacity="{0.05 if k < 3 else 0}" stroke="#9fd4d8" stroke-width="1.5" opacity="{0.42 - k * 0.04:.2f}"{dashes}/>'
    soundings = []
    for _ in range(120):
        x, y = rng.uniform(50, 736), rng.uniform(330, 700)
        if any(abs(x - a) < 50 and abs(y - b) < 36 for a, b in soundings):
            continue
        soundings.append((x, y))
        body += lettering(str(rng.randint(3, 48)), x, y, 10, "#a9d8dc", 1.1, 0.5, opacity=0.28)
    # The net of meridians, and the rhumb lines that run out of the rose.
    net = "".join(f"M{x} 0V{HEIGHT}" for x in range(83, WIDTH, 155)) + "".join(f"M0 {y}H{WIDTH}" for y in range(51, HEIGHT, 155))
    body += f'<path d="{net}" stroke="#9fd0d8" stroke-width="1" opacity="0.22"/>'
    rays = "".join(f"M{cx} {cy}L{cx + 1300 * math.sin(k * math.pi / 16):.0f} {cy - 1300 * math.cos(k * math.pi / 16):.0f}" for k in range(32))
    body += f'<path d="{rays}" stroke="#d8c48a" stroke-width="1" opacity="0.20"/>'

    # The compass rose on its plate.
    chart, body = body, ""
    body += f'<circle cx="{cx + 5}" cy="{cy + 12}" r="118" fill="#020b14" opacity="0.65" filter="url(#b14)"/>'
    body += (f'<circle cx="{cx}" cy="{cy}" r="117" fill="url(#plate)" stroke="url(#ring)" stroke-width="9"/><circle cx="{cx}" cy="{cy}" r="111.5" fill="none" stroke="#4a3412" stroke-width="1.6" opacity="0.7"/>'
             f'<circle cx="{cx}" cy="{cy}" r="122" fill="none" stroke="#fbf0c8" stroke-width="1.2" opacity="0.6"/>')
    ticks, strong = "", ""
    for k in range(72):
        a = k * math.pi / 36
        inner = 98 if k % 3 == 0 else 103
        part = f"M{cx + 109 * math.sin(a):.1f} {cy - 109 * math.cos(a):.1f}L{cx + inner * math.sin(a):.1f} {cy - inner * math.cos(a):.1f}"
        strong, ticks = (strong + part, ticks) if k % 3 == 0 else (strong, ticks + part)
    body += f'<path d="{ticks}" stroke="#e6d39c" stroke-width="1.1" opacity="0.75"/><path d="{strong}" stroke="#f4e6b8" stroke-width="2"/>'
    body += f'<circle cx="{cx}" cy="{cy}" r="46" fill="none" stroke="#e6d39c" stroke-width="1.1" opacity="0.6"/>'

    def points(offset, reach, waist, step, count):
        """Pointed rays of two facets, one lit and one in shade."""
        out = ""
        for k in range(count):
            a = math.radians(offset + k * step)
            tip = (cx + reach * math.sin(a), cy - reach * math.cos(a))
            for s in (-1, 1):
                b = a + s * math.radians(step / 2)
                side = (cx + waist * math.sin(b), cy - waist * math.cos(b))
                out += (f'<path d="M{cx} {cy}L{tip[0]:.1f} {tip[1]:.1f}L{side[0]:.1f} {side[1]:.1f}Z" fill="url(#{"brass" if s < 0 else "brassDark"})" '
                        f'stroke="#2b1d08" stroke-width="0.9" stroke-linejoin="round"/>')
        return out
    body += points(22.5, 54, 14, 45, 8) + points(45, 66, 18, 90, 4) + points(0, 76, 20, 90, 4)
    body += f'<circle cx="{cx}" cy="{cy}" r="12" fill="url(#ring)" stroke="#3a280c" stroke-width="1.4"/><circle cx="{cx - 2}" cy="{cy - 3}" r="5" fill="#fff6d2" opacity="0.8"/>'
    for letter, dx, dy in (("N", 0, -96), ("S", 0, 80), ("E", 87, -8), ("W", -87, -8)):
        body += lettering(letter, cx + dx, cy + dy, 16, "#071a2a", 5, 0.5, opacity=0.7) + lettering(letter, cx + dx, cy + dy, 16, "#f4e6b8", 2.6, 0.5, opacity=1)

    body = f'{chart}<g transform="translate({cx} {cy}) scale(0.92) translate({-cx} {-cy})">{body}</g>'

    # A ship left, an anchor right, in the fine lines of the chart.
    line = 'fill="none" stroke="#e2d3a0" stroke-linecap="round" stroke-linejoin="round"'

    def sail(x, y, k, top, foot, height, bulge=5):
        """A square sail whose yard is at (x, y), hatched along its lee side."""
        def side(half, low):
            return f"{half} 0Q{half + bulge} {height / 2} {low} {height}"
        hatch = "".join(f"M{side(top - 2.6 * i, foot - 2.6 * i)}" for i in range(1, 5))
        return (f'<g transform="translate({x} {y}) scale({k})"><path d="M{-top} 0Q0 5 {side(top, foot)}Q0 {height + 6} {-foot} {height}'
                f'Q{-top + bulge} {height / 2} {-top} 0Z" fill="#12384f" {line[12:]} stroke-width="1.7"/><path d="M{-top - 4} -1H{top + 4}" {line} stroke-width="2.2"/>'
                f'<path d="{hatch}" {line} stroke-width="0.9" opacity="0.75"/></g>')

    ship = f'<path d="M-38 36V-58M0 42V-98M38 38V-70M66 34L104 10M-66 38L-38 -56L0 -96L38 -68L102 11" {line} stroke-width="1.4"/>'
    ship += f'<path d="M44 -52Q62 -18 99 12Q74 14 50 24Q56 -14 44 -52Z" fill="#12384f" {line[12:]} stroke-width="1.6"/><path d="M49 -34Q62 -10 90 11M51 -14Q62 2 80 13" {line} stroke-width="0.9" opacity="0.75"/>'
    for x, y, k in ((-38, 0, 0.66), (38, -6, 0.8), (0, -14, 1)):
        ship += sail(x, y, k, 20, 21, 42) + sail(x, y - 38 * k, k, 15, 18, 34) + sail(x, y - 64 * k, k, 10, 13, 23, 3)
    ship += (f'<path d="M-70 20L-44 26L-42 40Q10 46 66 32Q60 60 44 68H-46Q-58 66 -60 56Z" fill="#12384f" {line[12:]} stroke-width="1.9"/>'
             f'<path d="M-64 36Q0 56 64 40M-62 46Q0 64 61 48M-58 60Q0 70 52 60" {line} stroke-width="1"/>'
             f'<path d="{"".join(f"M{x} {51 - 0.002 * x * x:.1f}v4.4" for x in range(-48, 50, 12))}" {line} stroke-width="3.4"/>'
             f'<path d="M0 -98q9 -5 18 0t16 -1q-8 6 -16 5t-18 1" {line} stroke-width="1.3"/>')
    for y, left, count in ((74, -88, 8), (82, -64, 6), (90, -84, 7)):
        ship += f'<path d="M{left} {y}{"q6 -8 12 0t12 0" * count}" {line} stroke-width="1.2" opacity="0.7"/>'
    body += f'<g transform="translate(124 826) scale(1.08)" opacity="0.85">{ship}</g>'

    iron = "M0 -54V54M-30 -32H30M-54 12Q-46 56 0 63Q46 56 54 12"
    flukes = "M-70 24L-55 -8L-38 22Q-54 15 -70 24ZM70 24L55 -8L38 22Q54 15 70 24Z"
    body += f'<g transform="translate(660 836) rotate(14)" opacity="0.85" {line}>'
    for colour, width in (("#e2d3a0", 12), ("#12384f", 8.8)):
        body += f'<path d="{iron}" stroke="{colour}" stroke-width="{width}"/><circle cy="-70" r="13" stroke="{colour}" stroke-width="{width * 0.62:.1f}"/>'
    body += f'<path d="{flukes}" fill="#12384f" stroke-width="1.7"/><path d="M1 -50V50M3 -50V48M-30 -30.6H29M-50 18Q-41 53 0 60.6Q43 54 51 18M-47 19Q-38 50 0 58.4Q40 51 48 19" stroke-width="0.9" opacity="0.75"/>'
    cable = "M11 -64C34 -52 26 -40 0 -36S-30 -12 -4 -4S34 20 4 28S-34 50 -10 72"
    body += f'<path d="{cable}" stroke-width="6.4"/><path d="{cable}" stroke="#12384f" stroke-width="3.6"/><path d="{cable}" stroke-width="3.2" stroke-dasharray="1 4"/></g>'

    # A rope round the picture: strand by strand.
    def rope(points):
        out = ""
        walked, last = 0.0, points[0]
        for x, y in points[1:]:
            a = math.atan2(y - last[1], x - last[0])
            walked += math.hypot(x - last[0], y - last[1])
            last = (x, y)
            if walked >= 8:
                walked -= 8
                out += (f'<g transform="translate({x:.1f} {y:.1f}) rotate({math.degrees(a):.0f}) scale(0.8)"><path d="M-9 7C-7 0 0 -6 8 -7.5C13 -6 12 -1 8 1C3 3 -1 8 -3 8Z" fill="#7d6540" stroke="#33240f" stroke-width="1.2"/>'
                        '<path d="M-6 5C-4 0 2 -4 8 -5.5" stroke="#b0945c" stroke-width="2" fill="none" stroke-linecap="round"/><path d="M-4 6.5C-2 2 3 -1 9 -2.5" stroke="#6a5228" stroke-width="1" fill="none"/></g>')
        return out
    frame, r, m = [], 40, 7
    x1, y1 = WIDTH - m, HEIGHT - m
    for k in range(0, WIDTH - 2 * m - 2 * r):
        frame.append((m + r + k, m))
    frame += [(x1 - r + r * math.sin(k / 72 * math.pi / 2), m + r - r * math.cos(k / 72 * math.pi / 2)) for k in range(73)]
    frame += [(x1, m + r + k) for k in range(0, HEIGHT - 2 * m - 2 * r)]
    frame += [(x1 - r + r * math.cos(k / 72 * math.pi / 2), y1 - r + r * math.sin(k / 72 * math.pi / 2)) for k in range(73)]
    frame += [(x1 - r - k, y1) for k in range(0, WIDTH - 2 * m - 2 * r)]
    frame += [(m + r - r * math.sin(k / 72 * math.pi / 2), y1 - r + r * math.cos(k / 72 * math.pi / 2)) for k in range(73)]
    frame += [(m, y1 - r - k) for k in range(0, HEIGHT - 2 * m - 2 * r)]
    frame += [(m + r - r * math.cos(k / 72 * math.pi / 2), m + r - r * math.sin(k / 72 * math.pi / 2)) for k in range(73)]
    frame += frame[:8]  # closes the round
    body += f'<rect x="{m + 3}" y="{m + 6}" width="{WIDTH - 2 * m}" height="{HEIGHT - 2 * m}" rx="{r}" fill="none" stroke="#020b14" stroke-width="15" opacity="0.5" filter="url(#b5)"/>{rope(frame)}'
    save_svg("Nautical", 6, defs, body)
