"""The painted scenes. Each is a pair of definitions and body in a field of
800 x 500 units, so that one scene serves as photo, background or thumbnail."""

import random

from PIL import Image

from artlib import blur, gradient, raster, svg
from landforms import beam, boat, forest, glints, glow, haze, height_at, hills, lamp_of, land
from landforms import lee_side, lighthouse, peaks, pine, profile, sky, stars, vignette

W, H = 800, 500


def joined(*parts):
    """Takes plain body texts and (definitions, body) pairs, in painting order."""
    pairs = [("", p) if isinstance(p, str) else p for p in parts]
    return "".join(p[0] for p in pairs), "".join(p[1] for p in pairs)


def harbour_dusk():
    water = gradient("water", (0, "#F0A77B"), (0.18, "#B9697A"), (0.6, "#4B3F6B"), (1, "#1D2447"))
    back = hills(W, 300, 16, 5)
    cape = (
        "M452 352 C474 338 492 338 512 331 L536 318 C552 310 566 311 580 302 L606 284 C620 274 636 271 652 268 "
        "L700 267 C716 268 726 276 744 280 L800 288 V360 H452 Z"
    )
    lamp = lamp_of(676, 268, 120)
    return joined(
        sky(W, H, (0, "#26305E"), (0.28, "#6B4D86"), (0.47, "#DD7C7B"), (0.6, "#FBC98B")),
        stars(W, 130, 60, 2),
        glow("sun", 250, 306, 330, "#FFE3AE", 0.95),
        '<circle cx="250" cy="300" r="30" fill="#FFF4D6"/>',
        land(hills(W, 296, 22, 9), 320, "#A8647F"),
        land(back, 322, "#7C4A72"),
        (water, f'<rect y="316" width="{W}" height="184" fill="url(#water)"/>'),
        glints(130, 370, 319, 500, "#FFE6B8", 150, 4, 1.6),
        glints(0, 800, 324, 500, "#F3B5A0", 90, 8, 1.0),
        boat(402, 340, 26, "#2A2147", "#F8DDBE"),
        boat(478, 330, 13, "#3A2A55", "#F3CFB4"),
        beam("beam", *lamp, 420, 46, 184),
        (gradient("cape", (0, "#4A3260"), (1, "#1D1A3A")), f'<path d="{cape}" fill="url(#cape)"/>'),
        cottage(738, 281),
        lighthouse(676, 270, 120),
        glow("lamp", *lamp, 46, "#FFF1C9", 0.95),
        '<path d="M420 366 C450 352 476 350 506 342 C546 332 560 330 600 322 C660 312 720 318 800 306 V376 '
        'C700 364 560 378 420 366 Z" fill="#151431"/>',
        vignette(W, H, 0.38),
    )


def mountain_lake():
    summits = [(96, 190), (246, 112), (372, 182), (522, 158), (700, 206)]
    valleys = [(-30, 270), (164, 236), (312, 214), (446, 232), (610, 246), (830, 268)]
    corners = [p for pair in zip(valleys, summits) for p in pair] + valleys[-1:]
    far, near = peaks(corners, 5), hills(W, 306, 14, 3)
    mid = peaks([(-20, 262), (90, 288), (190, 262), (330, 292), (470, 266), (590, 286), (700, 250), (830, 282)], 9, 0.06)
    snow = gradient("snow", (0, "#F6FAFC"), (0.45, "#B9D0DF"), (1, "#7FA3BC"))
    lake = gradient("lake", (0, "#BFD9DF"), (0.25, "#5E9AAC"), (1, "#154050"))
    flanks = "".join(lee_side(x, y, 320, -0.62, "#5F8CAA", 0.5) for x, y in summits)
    mirror = "".join([land(far, 320, "url(#snow)"), flanks, land(mid, 320, "#5A829A"), land(near, 322, "#2B5663")])
    return joined(
        (snow + lake + blur("still", 2.2), ""),
        sky(W, H, (0, "#4D8FBE"), (0.35, "#9FCBE0"), (0.6, "#F3EBDD")),
        glow("sun", 610, 120, 260, "#FFF5DC", 0.8),
        mirror,
        forest(near, "#1E4450", 150, 44, 7),
        haze(W, 270, 330, "#E9F3F3", "mist", 0.75),
        f'<rect y="318" width="{W}" height="182" fill="url(#lake)"/>',
        f'<g transform="translate(0 638) scale(1 -1)" opacity=".34" filter="url(#still)">{mirror}</g>',
        f'<rect y="318" width="{W}" height="182" fill="url(#lake)" opacity=".45"/>',
        glints(380, 820, 322, 470, "#F7FBFA", 110, 5, 1.1),
        land([(0, 430), (110, 446), (230, 474), (330, 500)], 500, "#10303A"),
        "".join(
            pine(x, y, tall, "#0D2830", random.Random(x))
            for x, y, tall in ((26, 452, 190), (74, 462, 140), (118, 470, 168), (178, 486, 110))
        ),
        vignette(W, H, 0.25),
    )


def misty_forest():
    layers, tones = [], ("#A9C3B7", "#86AA9F", "#5E8A83", "#3B6A68", "#1F4A4E", "#0E2F36")
    for k, tone in enumerate(tones):
        line = hills(W, 235 + 46 * k, 22 + 4 * k, 40 + k)
        layers.append(land(line, H, tone))
        layers.append(forest(line, tone, 90 - 9 * k, 38 + 24 * k, 70 + k))
        layers.append(haze(W, 245 + 46 * k, 330 + 46 * k, "#E7EFE3", f"mist{k}", 0.62 - 0.08 * k))
    return joined(
        sky(W, H, (0, "#C9DCD2"), (0.3, "#EEF0DF"), (0.6, "#F8E9C8")),
        glow("sun", 500, 150, 280, "#FFF3CF", 0.95),
        '<circle cx="500" cy="150" r="34" fill="#FFFBEA" opacity=".9"/>',
        *layers,
        vignette(W, H, 0.3),
    )


def dunes():
    def ridge(points, light, deep, name):
        return gradient(name, (0, light), (1, deep)), land(points, H, f"url(#{name})")
    crest = "M0 420 C160 360 260 330 380 352 C480 372 520 420 640 408 C720 400 770 380 800 372"
    return joined(
        sky(W, H, (0, "#3C5C93"), (0.3, "#C58BA0"), (0.52, "#F7C08A"), (0.62, "#FCE3B0")),
        glow("sun", 560, 262, 300, "#FFF0C4", 0.95),
        '<circle cx="560" cy="258" r="36" fill="#FFF8E2"/>',
        ridge(hills(W, 290, 18, 21), "#E8A576", "#C97D5C", "d1"),
        ridge(hills(W, 325, 30, 25, 2), "#E39A63", "#A85C48", "d2"),
        ridge(hills(W, 372, 36, 29, 2), "#D98552", "#853F3D", "d3"),
        (gradient("lee", (0, "#8C4540"), (1, "#4B2434")), f'<path d="{crest} V500 H0 Z" fill="url(#lee)"/>'),
        (gradient("face", (0, "#F0AE6E"), (1, "#B4633F"), across=True),
         '<path d="M0 420 C160 360 260 330 380 352 C330 392 250 430 210 500 H0 Z" fill="url(#face)"/>'),
        f'<path d="{crest}" fill="none" stroke="#FFDDA6" stroke-width="1.6" opacity=".7"/>',
        vignette(W, H, 0.3),
    )


def city_night():
    dice = random.Random(64)
    def blocks(low, high, tone, seed, lit):
        draw, x, out = random.Random(seed), 0, []
        while x < W:
            wide, tall = draw.uniform(22, 54), draw.uniform(low, high) * (0.55 + 0.6 * (1 - abs(x - 430) / 430))
            out.append(f'<rect x="{x:.0f}" y="{330 - tall:.0f}" width="{wide:.0f}" height="{tall:.0f}" fill="{tone}"/>')
            for wx in range(int(x) + 5, int(x + wide) - 6, 7):
                for wy in range(int(330 - tall) + 7, 324, 9):
                    if draw.random() < lit:
                        glass = draw.choice(("#FFD98E", "#FFE9BF", "#FFC06B", "#BFE3F0"))
                        shine = draw.uniform(0.4, 1)
                        out.append(
                            f'<rect x="{wx}" y="{wy}" width="3.4" height="4.6" fill="{glass}" opacity="{shine:.2f}"/>'
                        )
            x += wide + draw.choice((0, 0, 3))
        return "".join(out)
    skyline = blocks(60, 150, "#1C3150", 3, 0.16) + blocks(30, 95, "#11213A", 9, 0.3)
    streaks = "".join(
        f'<rect x="{dice.uniform(10, 790):.0f}" y="334" width="{dice.choice((2, 3, 4, 6))}" height="{dice.uniform(30, 130):.0f}" '
        f'fill="{dice.choice(("#FFD98E", "#FFB86B", "#8FD3E8", "#FF8F70"))}" opacity="{dice.uniform(0.1, 0.4):.2f}"/>'
        for _ in range(70)
    )
    return joined(
        (blur("wet", 3.2) + gradient("river", (0, "#23395A"), (1, "#060E1C")), ""),
        sky(W, H, (0, "#0A1430"), (0.35, "#213A66"), (0.62, "#6E6A8E"), (0.68, "#C99A86")),
        stars(W, 200, 120, 7),
        glow("moon", 150, 96, 120, "#EAF2FF", 0.5),
        '<circle cx="150" cy="96" r="22" fill="#F4F6FA"/>',
        glow("town", 430, 320, 360, "#FFC68A", 0.5),
        skyline,
        f'<rect y="330" width="{W}" height="170" fill="url(#river)"/><g filter="url(#wet)">{streaks}</g>',
        glints(0, 800, 336, 500, "#9FB8D0", 110, 12, 0.9),
        f'<rect y="328" width="{W}" height="3" fill="#0A1526"/>',
        vignette(W, H, 0.35),
    )


def northern_lights():
    def curtain(path, colour, width, opacity):
        return f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{width}" opacity="{opacity}"/>'
    ribbon = "M-40 210 C120 90 220 260 360 160 S620 40 860 150"
    ribbon2 = "M-40 150 C150 190 260 60 420 110 S700 190 860 60"
    hill = hills(W, 376, 26, 50)
    snow = gradient("drift", (0, "#B9D6DE"), (1, "#2B4B63"))
    return joined(
        (blur("veil", 26) + blur("thread", 8) + snow, ""),
        sky(W, H, (0, "#050D20"), (0.5, "#0E2A44"), (0.78, "#1F5262")),
        stars(W, 360, 190, 31),
        f'<g filter="url(#veil)">{curtain(ribbon, "#3BE0A6", 96, .55)}{curtain(ribbon2, "#5C8CF0", 70, .4)}'
        f'{curtain("M-40 290 C160 200 300 330 480 240 S700 180 860 260", "#34C3B0", 50, .4)}</g>',
        f'<g filter="url(#thread)">{curtain(ribbon, "#A8FFDB", 12, .7)}{curtain(ribbon2, "#C3B5FF", 8, .5)}</g>',
        land(profile(W, 352, 90, 77, 0.5), H, "#143247"),
        land(hill, H, "url(#drift)"),
        forest(hill, "#0B2230", 46, 58, 15, (0, 0.42)),
        forest(hill, "#0B2230", 34, 50, 16, (0.66, 1)),
        cabin(520, height_at(hill, 520)),
        vignette(W, H, 0.35),
    )


def cottage(x, foot):
    """The keeper's house beside a lighthouse, dark with one lit window."""
    return (
        f'<rect x="{x - 16}" y="{foot - 16}" width="32" height="18" fill="#EADBCB"/>'
        f'<rect x="{x}" y="{foot - 16}" width="16" height="18" fill="#2B2347" opacity=".4"/>'
        f'<path d="M{x - 20} {foot - 15} L{x - 12} {foot - 27} H{x + 12} L{x + 20} {foot - 15} Z" fill="#9E4450"/>'
        f'<rect x="{x - 10}" y="{foot - 11}" width="6" height="7" fill="#FFD27F"/>'
    )


def cabin(x, foot):
    """A hut with lit windows, half sunk in the snow."""
    light = glow("hearth", x, foot - 12, 70, "#FFC46B", 0.7)
    body = (
        f'<rect x="{x - 24}" y="{foot - 26:.1f}" width="48" height="30" fill="#3A2A2B"/>'
        f'<path d="M{x - 33} {foot - 24:.1f} L{x} {foot - 50:.1f} L{x + 33} {foot - 24:.1f} Z" fill="#E4F0F4"/>'
        f'<rect x="{x + 10}" y="{foot - 54:.1f}" width="8" height="16" fill="#3A2A2B"/>'
        f'<rect x="{x - 16}" y="{foot - 19:.1f}" width="11" height="11" fill="#FFD27F"/>'
        f'<rect x="{x + 5}" y="{foot - 19:.1f}" width="11" height="11" fill="#FFD27F"/>'
    )
    return light[0], light[1] + body


SCENES = {
    "harbour": harbour_dusk,
    "lake": mountain_lake,
    "forest": misty_forest,
    "dunes": dunes,
    "city": city_night,
    "aurora": northern_lights,
}


def picture(scene, width, height, scale=2):
    """Paints a scene to fill the size, cut evenly at the sides that run over."""
    defs, body = scene()
    share = min(W / width, H / height)
    used_w, used_h = width * share, height * share
    left, top = (W - used_w) / 2, (H - used_h) / 2
    document = svg(width, height, body, defs, (left, top, left + used_w, top + used_h))
    return raster(document, width * scale, height * scale).resize((width, height), Image.LANCZOS)
