"""Parts that the painted scenes are put together from: skies, ridges, water,
trees and lights. All take the scene's own units and return SVG text."""

import math
import random

from artlib import gradient


def sky(width, height, *stops, name="sky"):
    return gradient(name, *stops), f'<rect width="{width}" height="{height}" fill="url(#{name})"/>'


def stars(width, height, count, seed, fill="#FFFFFF"):
    dice = random.Random(seed)
    parts = []
    for _ in range(count):
        x, y = dice.uniform(0, width), height * dice.random() ** 1.4
        parts.append(
            f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{dice.choice((0.5, 0.6, 0.8, 1.2))}" '
            f'opacity="{dice.uniform(0.25, 0.95):.2f}"/>'
        )
    return f'<g fill="{fill}">{"".join(parts)}</g>'


def glow(name, x, y, radius, colour, strength=1.0):
    """A soft light around a point: its definition and the disc that shows it."""
    defs = (
        f'<radialGradient id="{name}"><stop offset="0" stop-color="{colour}" stop-opacity="{strength}"/>'
        f'<stop offset=".35" stop-color="{colour}" stop-opacity="{strength * 0.38:.2f}"/>'
        f'<stop offset="1" stop-color="{colour}" stop-opacity="0"/></radialGradient>'
    )
    return defs, f'<circle cx="{x}" cy="{y}" r="{radius}" fill="url(#{name})"/>'


def profile(width, base, height, seed, rough=0.55, steps=7):
    """The y values of a rocky skyline, by repeated halving with smaller jolts."""
    dice = random.Random(seed)
    line = [dice.uniform(-0.5, 0.5), dice.uniform(-0.5, 0.5)]
    jolt = 1.0
    for _ in range(steps):
        halves = []
        for a, b in zip(line, line[1:]):
            halves += [a, (a + b) / 2 + dice.uniform(-0.5, 0.5) * jolt]
        line = halves + [line[-1]]
        jolt *= rough
    return [(k * width / (len(line) - 1), base - y * height) for k, y in enumerate(line)]


def peaks(corners, seed, jolt=0.09, steps=4):
    """A rocky skyline through given corners: every side is halved and jolted."""
    dice, line = random.Random(seed), list(corners)
    for _ in range(steps):
        finer = []
        for (x1, y1), (x2, y2) in zip(line, line[1:]):
            side = math.hypot(x2 - x1, y2 - y1)
            finer += [(x1, y1), ((x1 + x2) / 2, (y1 + y2) / 2 + dice.uniform(-jolt, jolt) * side)]
        line = finer + [line[-1]]
    return line


def lee_side(x, y, floor, lean, fill, opacity):
    """The shaded flank below a summit, with a broken edge towards the light."""
    drop = floor - y
    edge = [(0, 0), (0.05, 0.14), (-0.05, 0.26), (0.07, 0.42), (-0.02, 0.56), (0.1, 0.74), (0.02, 1)]
    near = " ".join(f"{x + a * drop * 0.9:.1f},{y + b * drop:.1f}" for a, b in edge)
    return f'<polygon points="{near} {x + lean * drop:.1f},{floor} {x:.1f},{y:.1f}" fill="{fill}" opacity="{opacity}"/>'


def hills(width, base, height, seed, waves=3):
    """The y values of a rounded skyline: a few slow waves laid over each other."""
    dice = random.Random(seed)
    terms = [(dice.uniform(0.4, 1.1) * (k + 1), dice.uniform(0, 6.3), 1 / (k + 1)) for k in range(waves)]
    total = sum(t[2] for t in terms)
    points = []
    for k in range(97):
        x = k / 96
        y = sum(a * math.sin(2 * math.pi * f * x + p) for f, p, a in terms) / total
        points.append((x * width, base - y * height))
    return points


def land(points, floor, fill):
    """Fills from a skyline down to the floor."""
    line = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
    return f'<polygon points="{points[0][0]:.1f},{floor} {line} {points[-1][0]:.1f},{floor}" fill="{fill}"/>'


def height_at(points, x):
    for (x1, y1), (x2, y2) in zip(points, points[1:]):
        if x1 <= x <= x2:
            return y1 + (y2 - y1) * (x - x1) / (x2 - x1 or 1)
    return points[-1][1]


def pine(x, foot, tall, fill, dice):
    """One conifer: stacked, slightly uneven skirts around a thin stem."""
    tiers, half = 6, tall * 0.2
    left, right = [], []
    for k in range(1, tiers + 1):
        y = foot - tall * (1 - k / tiers * 0.94)
        reach = half * (k / tiers) * dice.uniform(0.85, 1.15)
        left += [(x - reach, y), (x - reach * 0.5, y - tall * 0.03)]
        right += [(x + reach, y), (x + reach * 0.5, y - tall * 0.03)]
    outline = [(x, foot - tall)] + right + [(x + half * 0.1, foot)] + [(x - half * 0.1, foot)] + left[::-1]
    return f'<polygon points="{" ".join(f"{a:.1f},{b:.1f}" for a, b in outline)}" fill="{fill}"/>'


def forest(points, fill, count, tall, seed, span=(0, 1)):
    """Conifers along a skyline, taller and shorter by turns."""
    dice = random.Random(seed)
    width = points[-1][0]
    trees = []
    for _ in range(count):
        x = dice.uniform(*span) * width
        trees.append(pine(x, height_at(points, x) + tall * 0.08, tall * dice.uniform(0.55, 1.1), fill, dice))
    return "".join(trees)


def glints(left, right, top, bottom, colour, count, seed, thick=1.3):
    """Light lying on water: short level strokes, wider towards the viewer."""
    dice = random.Random(seed)
    middle, parts = (left + right) / 2, []
    for _ in range(count):
        down = dice.random() ** 1.2
        y = top + (bottom - top) * down
        spread = (right - left) / 2 * (0.25 + 0.75 * down)
        x = middle + dice.gauss(0, 0.45) * spread
        length = dice.uniform(0.06, 0.34) * spread
        parts.append(
            f'<rect x="{x - length / 2:.1f}" y="{y:.1f}" width="{length:.1f}" height="{thick * (0.5 + down):.1f}" '
            f'rx="1" opacity="{dice.uniform(0.25, 0.9):.2f}"/>'
        )
    return f'<g fill="{colour}">{"".join(parts)}</g>'


def lighthouse(x, foot, tall, light="#FFE2A6", body="#F6EFE4", band="#D9573F", shade="#1B3147"):
    """A banded tower with its lamp room; the foot is on the given line."""
    w, top = tall * 0.11, foot - tall * 0.8
    def edge(share):  # half the width at a share of the way up
        return w * (1 - 0.38 * share)
    def part(low, high, fill):
        y1, y2 = foot - tall * 0.8 * low, foot - tall * 0.8 * high
        return (
            f'<polygon points="{x - edge(low):.1f},{y1:.1f} {x - edge(high):.1f},{y2:.1f} '
            f'{x + edge(high):.1f},{y2:.1f} {x + edge(low):.1f},{y1:.1f}" fill="{fill}"/>'
        )
    bands = "".join(part(k / 5, (k + 1) / 5, band if k % 2 else body) for k in range(5))
    dark = (
        f'<polygon points="{x},{foot} {x},{top} {x + edge(1):.1f},{top:.1f} {x + edge(0):.1f},{foot}" '
        f'fill="{shade}" opacity=".32"/>'
    )
    room = tall * 0.075
    lamp = (
        f'<rect x="{x - w * 0.78:.1f}" y="{top - room * 0.25:.1f}" width="{w * 1.56:.1f}" height="{room * 0.32:.1f}" fill="{shade}"/>'
        f'<rect x="{x - w * 0.46:.1f}" y="{top - room * 1.35:.1f}" width="{w * 0.92:.1f}" height="{room * 1.15:.1f}" fill="{light}"/>'
        f'<path d="M{x - w * 0.46:.1f} {top - room * 1.35:.1f} V{top:.1f} M{x} {top - room * 1.35:.1f} V{top:.1f} '
        f'M{x + w * 0.46:.1f} {top - room * 1.35:.1f} V{top:.1f}" stroke="{shade}" stroke-width="{tall * 0.007:.1f}"/>'
        f'<path d="M{x - w * 0.62:.1f} {top - room * 1.3:.1f} L{x} {top - room * 2.35:.1f} L{x + w * 0.62:.1f} {top - room * 1.3:.1f} Z" fill="{band}"/>'
    )
    return bands + dark + lamp


def lamp_of(x, foot, tall):
    """Where a lighthouse's light sits."""
    return x, foot - tall * 0.8 - tall * 0.06


def beam(name, x, y, length, spread, angle, colour="#FFE9BD"):
    """A cone of light that fades with the distance."""
    defs = gradient(name, (0, colour, 0.55), (1, colour, 0), across=True)
    return defs, (
        f'<path d="M0 0 L{length} {-spread} V{spread} Z" fill="url(#{name})" '
        f'transform="translate({x} {y}) rotate({angle})"/>'
    )


def boat(x, line, size, hull, sail):
    return (
        f'<path d="M{x - size * 0.5:.1f} {line:.1f} H{x + size * 0.55:.1f} L{x + size * 0.36:.1f} {line + size * 0.2:.1f} '
        f'H{x - size * 0.36:.1f} Z" fill="{hull}"/>'
        f'<path d="M{x:.1f} {line - size * 1.25:.1f} V{line - size * 0.08:.1f} H{x + size * 0.5:.1f} Z" fill="{sail}"/>'
        f'<path d="M{x - size * 0.05:.1f} {line - size * 1.05:.1f} V{line - size * 0.08:.1f} H{x - size * 0.4:.1f} Z" fill="{sail}" opacity=".82"/>'
    )


def haze(width, top, bottom, colour, name, strength=0.6):
    """A bank of mist, thickest in its middle."""
    defs = gradient(name, (0, colour, 0), (0.55, colour, strength), (1, colour, 0))
    return defs, f'<rect y="{top}" width="{width}" height="{bottom - top}" fill="url(#{name})"/>'


def vignette(width, height, strength=0.35):
    defs = (
        '<radialGradient id="vignette" cx=".5" cy=".46" r=".75"><stop offset=".55" stop-color="#000" stop-opacity="0"/>'
        f'<stop offset="1" stop-color="#000" stop-opacity="{strength}"/></radialGradient>'
    )
    return defs, f'<rect width="{width}" height="{height}" fill="url(#vignette)"/>'
