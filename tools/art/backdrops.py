"""Abstract backgrounds in the same 800 x 500 field as the scenes."""

import math
import random

from artlib import AMBER, AQUA, CORAL, NAVY, NIGHT, PLUM, ROSE, blur, gradient
from landforms import glow, sky, vignette
from scenes import H, W, joined


def wave(base, swing, length, phase):
    """An open path across the field."""
    points = [(x, base + swing * math.sin(2 * math.pi * x / length + phase)) for x in range(-20, W + 41, 20)]
    return "M" + " L".join(f"{x} {y:.1f}" for x, y in points)


def currents():
    """Dark water with lines of flow and a few lit nodes; quiet at the left and the top."""
    dice = random.Random(17)
    lines, nodes = [], []
    for k in range(26):
        base, swing, length = 300 + 9 * k, 34 - k * 0.7, 640 + 11 * k
        phase = 0.9 + k * 0.085
        shade = AQUA if k % 5 else AMBER
        lines.append(f'<path d="{wave(base, swing, length, phase)}" stroke="{shade}" opacity="{0.16 + 0.02 * (k % 7):.3f}"/>')
        x = dice.uniform(330, 790)
        y = base + swing * math.sin(2 * math.pi * x / length + phase)
        nodes.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{dice.choice((1.4, 1.8, 2.6))}" fill="{shade}" opacity=".75"/>')
    return joined(
        (gradient("fade", (0, NIGHT, 0.9), (0.55, NIGHT, 0), across=True), ""),
        sky(W, H, (0, "#0C1B2B"), (0.5, "#10293E"), (1, "#123850")),
        glow("lift", 620, 420, 420, "#2FA6A8", 0.4),
        glow("warm", 780, 80, 300, "#3C6EA8", 0.3),
        f'<g fill="none" stroke-width="1.3">{"".join(lines)}</g>{"".join(nodes)}',
        f'<rect width="{W}" height="{H}" fill="url(#fade)"/>',
        vignette(W, H, 0.3),
    )


def stage():
    """A warm hall before the concert: curtain folds, lamps out of focus, a lit floor."""
    dice = random.Random(23)
    folds = "".join(
        f'<path d="M{x} 0 C{x + 14} 150 {x - 12} 260 {x + 8} 404 H{x + 42} C{x + 22} 260 {x + 46} 150 {x + 34} 0 Z" '
        f'fill="#000000" opacity="{0.1 + 0.07 * (k % 2):.2f}"/>'
        for k, x in enumerate(range(-30, W, 46))
    )
    lamps = "".join(
        f'<circle cx="{dice.uniform(-20, 820):.0f}" cy="{dice.uniform(20, 330):.0f}" r="{dice.uniform(9, 34):.0f}" '
        f'fill="{dice.choice((AMBER, CORAL, ROSE, "#FFD9A0"))}" opacity="{dice.uniform(0.06, 0.22):.2f}"/>'
        for _ in range(34)
    )
    floor = gradient("floor", (0, "#6B2F45"), (1, "#150B1E"))
    return joined(
        (floor + blur("lens", 1.6), ""),
        sky(W, H, (0, "#190E28"), (0.5, "#3B1A42"), (0.84, "#7A3050")),
        folds,
        glow("spot", 250, 110, 360, "#F08A6A", 0.42),
        glow("spot2", 640, 60, 340, "#C2507E", 0.4),
        f'<g filter="url(#lens)">{lamps}</g>',
        f'<path d="M0 412 C220 396 580 396 800 412 V500 H0 Z" fill="url(#floor)"/>',
        f'<path d="M0 412 C220 396 580 396 800 412" fill="none" stroke="#FFC98C" stroke-opacity=".45" stroke-width="1.6"/>',
        vignette(W, H, 0.42),
    )


def strings(phase=0.0):
    """Five sounding strings over a dark ground; the phase runs 0 to 1 through one cycle."""
    parts = []
    for k in range(5):
        base = 114 + 68 * k
        for echo in range(4):
            swing = (52 - 6 * k) * math.sin(2 * math.pi * (phase + 0.13 * k) + echo * 0.35)
            points = []
            for x in range(0, W + 1, 10):
                held = math.sin(math.pi * x / W)
                ripple = math.sin(2 * math.pi * (2 + k) * x / W + 2 * math.pi * phase * (1 + k % 2))
                points.append(f"{x} {base + swing * held * (0.45 + 0.55 * ripple):.1f}")
            tone = (AMBER, CORAL, ROSE, AQUA, "#FFE3B4")[k]
            parts.append(
                f'<path d="M{" L".join(points)}" stroke="{tone}" stroke-width="{4.5 - echo}" opacity="{0.85 - 0.22 * echo:.2f}"/>'
            )
    return joined(
        (blur("halo", 9), ""),
        sky(W, H, (0, "#1A1029"), (0.6, PLUM), (1, NAVY)),
        glow("lamp", 400, 250, 420, "#F2A56B", 0.35),
        f'<g fill="none" filter="url(#halo)" opacity=".7">{"".join(parts)}</g><g fill="none">{"".join(parts)}</g>',
        vignette(W, H, 0.4),
    )
