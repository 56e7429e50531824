"""The twelve icon marks, each drawn in a 256-unit square around its middle.

Marks use white with two lower tones so that they stay readable on any tile;
TILE stands for the tile's own deep colour where a mark has to be cut through.
"""

import math

TILE = "{deep}"
BRIGHT = "#FFFFFF"
SOFT = "rgba(255,255,255,.72)"


def disc():
    return (
        f'<circle cx="128" cy="128" r="76" fill="{BRIGHT}"/>'
        f'<path d="M128 128 L62 90 A76 76 0 0 1 112 54 Z" fill="#5CC8C6" opacity=".75"/>'
        f'<path d="M128 128 L194 166 A76 76 0 0 1 144 202 Z" fill="#F4B355" opacity=".8"/>'
        f'<circle cx="128" cy="128" r="30" fill="#D9E8EE"/>'
        f'<circle cx="128" cy="128" r="13" fill="{TILE}"/>'
    )


def music():
    return (
        f'<path d="M100 88 L186 68 L186 94 L100 114 Z" fill="{BRIGHT}"/>'
        f'<rect x="100" y="90" width="13" height="90" fill="{BRIGHT}"/>'
        f'<rect x="173" y="74" width="13" height="90" fill="{BRIGHT}"/>'
        f'<ellipse cx="88" cy="180" rx="27" ry="20" transform="rotate(-18 88 180)" fill="{BRIGHT}"/>'
        f'<ellipse cx="161" cy="164" rx="27" ry="20" transform="rotate(-18 161 164)" fill="{BRIGHT}"/>'
    )


def film():
    holes = "".join(
        f'<rect x="{x}" y="{y}" width="15" height="14" rx="4" fill="{TILE}"/>'
        for x in (64, 92, 120, 149, 177)
        for y in (72, 170)
    )
    return (
        f'<rect x="52" y="60" width="152" height="136" rx="16" fill="{BRIGHT}"/>{holes}'
        f'<rect x="64" y="96" width="128" height="64" rx="8" fill="{TILE}" opacity=".14"/>'
        f'<path d="M112 103 L156 128 L112 153 Z" fill="#EE7A5C" stroke="#EE7A5C" '
        f'stroke-width="8" stroke-linejoin="round"/>'
    )


def camera():
    return (
        f'<path d="M98 84 L110 66 H146 L158 84 Z" fill="{SOFT}" stroke="{SOFT}" stroke-width="6" stroke-linejoin="round"/>'
        f'<rect x="50" y="82" width="156" height="108" rx="22" fill="{BRIGHT}"/>'
        f'<circle cx="128" cy="136" r="40" fill="{TILE}"/>'
        f'<circle cx="128" cy="136" r="27" fill="#5CC8C6"/>'
        f'<circle cx="118" cy="126" r="9" fill="{BRIGHT}" opacity=".85"/>'
        f'<circle cx="184" cy="104" r="8" fill="#EE7A5C"/>'
    )


def book():
    return (
        f'<path d="M128 88 C104 68 74 66 52 72 V176 C76 170 104 174 128 192 Z" fill="{BRIGHT}"/>'
        f'<path d="M128 88 C152 68 182 66 204 72 V176 C180 170 152 174 128 192 Z" fill="#E9EEF2"/>'
        f'<path d="M72 98 C86 96 98 99 110 106 M72 122 C86 120 98 123 110 130 '
        f'M72 146 C86 144 98 147 110 154" fill="none" stroke="{TILE}" stroke-opacity=".45" '
        f'stroke-width="8" stroke-linecap="round"/>'
        f'<path d="M164 71 L188 69 V122 L176 111 L164 124 Z" fill="#D9537A"/>'
    )


def game():
    return (
        f'<path d="M88 86 H168 C196 86 206 120 211 150 C215 178 190 190 172 170 L158 156 H98 '
        f'L84 170 C66 190 41 178 45 150 C50 120 60 86 88 86 Z" fill="{BRIGHT}"/>'
        f'<path d="M92 104 V140 M74 122 H110" stroke="{TILE}" stroke-width="15" stroke-linecap="round"/>'
        f'<circle cx="160" cy="134" r="10" fill="#F4B355"/><circle cx="182" cy="114" r="10" fill="#EE7A5C"/>'
    )


def folder():
    return (
        f'<path d="M56 80 C56 72 61 68 68 68 H104 L122 86 H186 C194 86 200 91 200 99 V116 H56 Z" fill="{SOFT}"/>'
        f'<path d="M50 110 H206 C210 110 212 113 211 117 L200 178 C198 187 193 190 186 190 H70 '
        f'C63 190 58 187 56 178 L45 117 C44 113 46 110 50 110 Z" fill="{BRIGHT}"/>'
        f'<rect x="100" y="140" width="56" height="12" rx="6" fill="{TILE}" opacity=".35"/>'
    )


def globe():
    lines = (
        '<ellipse cx="128" cy="128" rx="33" ry="76"/><path d="M52 128 H204 M61 92 H195 M61 164 H195"/>'
    )
    return (
        f'<clipPath id="ball"><circle cx="128" cy="128" r="76"/></clipPath>'
        f'<circle cx="128" cy="128" r="76" fill="{BRIGHT}"/>'
        f'<g clip-path="url(#ball)" fill="none" stroke="{TILE}" stroke-width="10">{lines}</g>'
    )


def star():
    points = []
    for k in range(10):
        radius = 84 if k % 2 == 0 else 39
        turn = math.pi * k / 5 - math.pi / 2
        points.append(f"{128 + radius * math.cos(turn):.1f},{133 + radius * math.sin(turn):.1f}")
    shape = " ".join(points)
    return (
        f'<polygon points="{shape}" fill="{BRIGHT}" stroke="{BRIGHT}" stroke-width="14" stroke-linejoin="round"/>'
        f'<polygon points="128,133 {points[0]} {points[1]}" fill="{TILE}" opacity=".12"/>'
        f'<polygon points="128,133 {points[4]} {points[5]}" fill="{TILE}" opacity=".12"/>'
        f'<polygon points="128,133 {points[2]} {points[3]}" fill="{TILE}" opacity=".12"/>'
        f'<polygon points="128,133 {points[6]} {points[7]}" fill="{TILE}" opacity=".12"/>'
        f'<polygon points="128,133 {points[8]} {points[9]}" fill="{TILE}" opacity=".12"/>'
    )


def toolbox():
    return (
        f'<path d="M98 92 V78 C98 68 104 64 112 64 H144 C152 64 158 68 158 78 V92" fill="none" '
        f'stroke="{SOFT}" stroke-width="14"/>'
        f'<rect x="48" y="90" width="160" height="44" rx="14" fill="{BRIGHT}"/>'
        f'<path d="M52 142 H204 V176 C204 185 198 190 190 190 H66 C58 190 52 185 52 176 Z" fill="{BRIGHT}"/>'
        f'<rect x="112" y="122" width="32" height="36" rx="8" fill="#F4B355" stroke="{TILE}" stroke-width="7"/>'
    )


def heart():
    return (
        f'<path d="M128 196 C70 156 50 130 50 104 C50 78 69 62 90 62 C106 62 120 71 128 85 '
        f'C136 71 150 62 166 62 C187 62 206 78 206 104 C206 130 186 156 128 196 Z" fill="{BRIGHT}"/>'
        f'<path d="M72 108 C71 94 80 84 92 83" fill="none" stroke="{TILE}" stroke-opacity=".3" '
        f'stroke-width="11" stroke-linecap="round"/>'
    )


def graduation():
    return (
        f'<path d="M82 128 V168 C82 184 174 184 174 168 V128" fill="{SOFT}"/>'
        f'<path d="M128 72 L214 112 L128 152 L42 112 Z" fill="{BRIGHT}" stroke="{BRIGHT}" '
        f'stroke-width="8" stroke-linejoin="round"/>'
        f'<path d="M128 112 L196 122 V164" fill="none" stroke="#F4B355" stroke-width="9" '
        f'stroke-linecap="round" stroke-linejoin="round"/>'
        f'<circle cx="196" cy="174" r="12" fill="#F4B355"/>'
    )
