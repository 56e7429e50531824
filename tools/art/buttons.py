"""Button pictures: eight wide backs (160 x 40 px) and four round signs (48 x 48 px).

A label is laid over a wide back from about 13 px in, so backs keep that area
calm and put their accents at the ends.
"""

from artlib import AMBER, AQUA, CORAL, NAVY, NIGHT, OCEAN, PLUM, PROGRAM, ROSE, SAND, TEAL
from artlib import drawn, gradient, mix, save_bmp, save_gif, save_jpg

FOLDER = PROGRAM / "Pictures" / "Buttons"
WIDE = (160, 40)
ROUND = (48, 48)


def block(top, bottom, accent):
    """A flat-edged back with a lit top line and an accent bar at the left."""
    defs = gradient("fill", (0, top), (1, bottom))
    body = (
        '<rect width="160" height="40" fill="url(#fill)"/>'
        '<rect width="160" height="1" fill="#FFFFFF" opacity=".35"/>'
        '<rect y="39" width="160" height="1" fill="#000000" opacity=".35"/>'
        f'<rect width="5" height="40" fill="{accent}"/>'
    )
    return drawn(*WIDE, body, defs)


def glass(light, deep):
    """A glass bar: a bright upper half over a glow that rises from below."""
    defs = (
        gradient("fill", (0, mix(deep, "#FFFFFF", 0.12)), (0.5, deep), (1, light))
        + gradient("gleam", (0, "#FFFFFF", 0.55), (1, "#FFFFFF", 0.12))
    )
    body = (
        '<rect width="160" height="40" fill="url(#fill)"/>'
        '<path d="M0 0 H160 V17 C120 21 40 21 0 17 Z" fill="url(#gleam)"/>'
        f'<rect x=".5" y=".5" width="159" height="39" fill="none" stroke="{mix(deep, "#000000", 0.45)}"/>'
        '<rect x="1.5" y="1.5" width="157" height="37" fill="none" stroke="#FFFFFF" stroke-opacity=".28"/>'
    )
    return drawn(*WIDE, body, defs)


def outline(colour):
    """A see-through back: only the rounded line is drawn."""
    body = f'<rect x="2" y="2" width="156" height="36" rx="9" fill="none" stroke="{colour}" stroke-width="2.4"/>'
    return drawn(*WIDE, body, scale=4)


def pill(light, deep):
    """A capsule with see-through corners and a darker seat under it."""
    defs = gradient("fill", (0, light), (1, deep)) + gradient("gleam", (0, "#FFFFFF", 0.5), (1, "#FFFFFF", 0))
    body = (
        f'<rect x="0" y="0" width="160" height="40" rx="20" fill="{mix(deep, "#000000", 0.35)}"/>'
        '<rect x="1" y="1" width="158" height="37" rx="18.5" fill="url(#fill)"/>'
        '<rect x="9" y="3" width="142" height="14" rx="7" fill="url(#gleam)"/>'
    )
    return drawn(*WIDE, body, defs, scale=4)


def sign(light, deep, mark):
    """A round button with a white mark."""
    defs = gradient("fill", (0, light), (1, deep)) + gradient("gleam", (0, "#FFFFFF", 0.45), (1, "#FFFFFF", 0))
    body = (
        f'<circle cx="24" cy="24" r="23.6" fill="{mix(deep, "#000000", 0.4)}"/>'
        '<circle cx="24" cy="23.4" r="21.8" fill="url(#fill)"/>'
        '<ellipse cx="24" cy="13" rx="15" ry="9" fill="url(#gleam)"/>'
        f'<g fill="none" stroke="#FFFFFF" stroke-width="4" stroke-linecap="round" stroke-linejoin="round">{mark}</g>'
    )
    return drawn(*ROUND, body, defs, scale=4)


ARROW = '<path d="M14 24 H33 M25 15.5 L33.5 24 L25 32.5"/>'
PLAY = '<path d="M19.5 15 L34 24 L19.5 33 Z" fill="#FFFFFF"/>'
EXIT = '<path d="M17 17 L31 31 M31 17 L17 31"/>'
SOUND = (
    '<path d="M13 20 H17 L23 15 V33 L17 28 H13 Z" fill="#FFFFFF" stroke-width="2.5"/>'
    '<path d="M28.5 19 C31 22 31 26 28.5 29 M33 15.5 C37.5 20.5 37.5 27.5 33 32.5" stroke-width="3"/>'
)


def make():
    save_jpg(block(mix(NAVY, OCEAN, 0.5), NIGHT, AQUA), FOLDER / "block-navy.jpg", 94)
    save_bmp(block("#FFFFFF", SAND, CORAL), FOLDER / "block-sand.bmp")
    save_bmp(block(ROSE, PLUM, AMBER), FOLDER / "block-plum.bmp")
    save_jpg(glass(AQUA, OCEAN), FOLDER / "glass-ocean.jpg", 94)
    save_jpg(glass("#5A6B7E", "#1A2430"), FOLDER / "glass-dark.jpg", 94)
    save_gif(outline("#FFFFFF"), FOLDER / "outline-light.gif")
    save_gif(outline(NAVY), FOLDER / "outline-dark.gif")
    save_gif(pill("#FBCF84", "#E8923E"), FOLDER / "pill-amber.gif")
    save_gif(sign("#4FA3D1", OCEAN, ARROW), FOLDER / "arrow.gif")
    save_gif(sign("#57B9A8", TEAL, PLAY), FOLDER / "play.gif")
    save_gif(sign("#F59A7B", "#C9503A", EXIT), FOLDER / "exit.gif")
    save_gif(sign("#8B6BB8", PLUM, SOUND), FOLDER / "sound.gif")


if __name__ == "__main__":
    make()
