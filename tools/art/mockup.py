"""Pieces of a drawn menu window, for the pictures that introduce the templates."""

from artlib import LIGHT, NAVY, SANS, blur, gradient, label
from scenes import H, W

# The template window shows these pictures at half size too, so nothing in them is small.
SIZE = (594, 322)


def desk(top, bottom):
    """The desktop behind the window."""
    return gradient("desk", (0, top), (1, bottom), angle=-25) + blur("cast", 9), (
        f'<rect width="{SIZE[0]}" height="{SIZE[1]}" fill="url(#desk)"/>'
    )


def window(x, y, width, height, fill, radius=7):
    """A borderless window with its shadow."""
    shape = f'x="{x}" y="{y}" width="{width}" height="{height}" rx="{radius}"'
    return (
        f'<rect x="{x}" y="{y + 7}" width="{width}" height="{height}" rx="{radius}" fill="#020A12" opacity=".5" filter="url(#cast)"/>'
        f'<rect {shape} fill="{fill}"/>'
    )


def edge(x, y, width, height, colour="#FFFFFF", opacity=0.22, radius=7):
    return (
        f'<rect x="{x + 0.5}" y="{y + 0.5}" width="{width - 1}" height="{height - 1}" rx="{radius}" '
        f'fill="none" stroke="{colour}" stroke-opacity="{opacity}"/>'
    )


def inside(name, x, y, width, height, scene, radius=7):
    """A scene filling a rounded box, cut to its shape."""
    defs, body = scene()
    share = max(width / W, height / H)
    left, top = x + (width - W * share) / 2, y + (height - H * share) / 2
    clip = f'<clipPath id="{name}"><rect x="{x}" y="{y}" width="{width}" height="{height}" rx="{radius}"/></clipPath>'
    return defs + clip, (
        f'<g clip-path="url(#{name})"><g transform="translate({left:.2f} {top:.2f}) scale({share:.4f})">{body}</g></g>'
    )


def button(x, y, width, height, text, fill, ink, rim="none", radius=5, size=12.5, accent=None, centred=False):
    bar = f'<rect x="{x}" y="{y + 5}" width="3" height="{height - 10}" rx="1.5" fill="{accent}"/>' if accent else ""
    at, anchor = (x + width / 2, "middle") if centred else (x + 14, "start")
    return (
        f'<rect x="{x}" y="{y}" width="{width}" height="{height}" rx="{radius}" fill="{fill}" stroke="{rim}"/>{bar}'
        + label(at, y + height / 2 + size * 0.36, text, size, ink, SANS, anchor)
    )


def paragraph(x, y, lines, size, ink, leading=1.5, family=SANS):
    return "".join(label(x, y + k * size * leading, line, size, ink, family) for k, line in enumerate(lines))


def pointer(x, y):
    return (
        f'<path transform="translate({x} {y})" d="M0 0 V17 L4.4 13.2 L7.2 19.6 L10.2 18.3 L7.4 12.1 H13 Z" '
        f'fill="#FFFFFF" stroke="{NAVY}" stroke-width="1.1" stroke-linejoin="round"/>'
    )


def heading(x, y, text, size, ink, family=LIGHT, **more):
    return label(x, y, text, size, ink, family, **more)
