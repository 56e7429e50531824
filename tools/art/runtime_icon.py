"""The icon of the autorun program itself: a disc with a compass rose on its label.

The hub hole is left clear, so the disc also reads as one on a busy desktop.
"""

from artlib import AQUA, CORAL, NAVY, OCEAN, ROOT, RUNTIME
from artlib import blur, gradient, mix, put, radial, save_icon, svg
from icons import SIZES, at_size

SOURCE = ROOT / "tools" / "art" / "autorun.svg"


def needle(angle, length, width, lit, shaded):
    """One point of the rose, folded along its middle into a lit and a shaded half."""
    half = (
        f'<path d="M128 {128 - length} L{128 - width} 118 H128 Z" fill="{lit}"/>'
        f'<path d="M128 {128 - length} L{128 + width} 118 H128 Z" fill="{shaded}"/>'
    )
    return f'<g transform="rotate({angle} 128 128)">{half}</g>'


def rose(length, width, minor):
    small = "".join(needle(a, length * 0.68, width * 0.8, "#7FBFCB", "#4F97AB") for a in (45, 135, 225, 315))
    major = "".join(needle(a, length, width, "#FFFFFF", "#B4D0DA") for a in (90, 180, 270))
    return (small if minor else "") + major + needle(0, length, width, "#FFA57E", CORAL)


def wedge(angle, spread, colour, opacity, radius):
    """A sheen on the disc's silver: a slice from the middle to the edge."""
    return (
        f'<path d="M128 128 L{128 - spread} {128 - radius} H{128 + spread} Z" fill="{colour}" '
        f'opacity="{opacity}" transform="rotate({angle} 128 128)"/>'
    )


def drawing(small):
    radius, hub, hole, band = (124, 38, 20, 16) if small else (117, 34, 15, 22)
    defs = (
        gradient("silver", (0, "#FFFFFF"), (0.45, "#B9CAD4"), (1, "#EAF1F4"), angle=-40)
        + gradient("label", (0, "#2E8CAB"), (0.5, OCEAN), (1, NAVY), angle=-30)
        + radial("gleam", (0, "#FFFFFF", 0.3), (1, "#FFFFFF", 0), cx=0.3, cy=0.15, r=0.65)
        + blur("soft", 5)
        + blur("melt", 9)
        + f'<clipPath id="edge"><circle cx="128" cy="128" r="{radius}"/></clipPath>'
        + f'<mask id="cut"><rect width="256" height="256" fill="#FFF"/><circle cx="128" cy="128" r="{hole}" fill="#000"/></mask>'
    )
    shadow = "" if small else '<circle cx="128" cy="133" r="116" fill="#04101A" opacity=".38" filter="url(#soft)"/>'
    sheen = "".join(
        wedge(a, 30, colour, 0.9, 128)
        for a, colour in ((-38, AQUA), (-12, "#9DB8EA"), (14, "#F2B9CC"), (142, AQUA), (168, "#9DB8EA"), (194, "#F2B9CC"))
    )
    points = rose(102, 22, False) if small else rose(89, 18, True)
    body = (
        f'{shadow}<g mask="url(#cut)"><g clip-path="url(#edge)">'
        f'<circle cx="128" cy="128" r="{radius}" fill="url(#silver)"/><g filter="url(#melt)">{sheen}</g></g>'
        f'<circle cx="128" cy="128" r="{radius - band}" fill="url(#label)"/>'
        f'<circle cx="128" cy="128" r="{radius - band}" fill="url(#gleam)"/>{points}'
        f'<circle cx="128" cy="128" r="{hub}" fill="url(#silver)"/>'
        f'<circle cx="128" cy="128" r="{hub}" fill="none" stroke="{mix(NAVY, "#000000", 0.2)}" '
        f'stroke-width="3" opacity=".45"/>'
        f'<circle cx="128" cy="128" r="{radius - 1}" fill="none" stroke="#6E8795" stroke-width="2" opacity=".6"/></g>'
    )
    return svg(256, 256, body, defs)


def make():
    put(SOURCE, drawing(False).encode())
    save_icon([at_size(drawing(s <= 32), s) for s in SIZES], RUNTIME / "autorun.ico")


if __name__ == "__main__":
    make()
