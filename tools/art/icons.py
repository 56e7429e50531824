"""The icons a disc can carry: a white mark on a coloured, softly lit tile."""

from PIL import Image

import icon_glyphs as glyphs
from artlib import PROGRAM, blur, gradient, mix, raster, save_icon, svg
from artlib import AMBER, AQUA, CORAL, MOSS, NAVY, NIGHT, OCEAN, PLUM, ROSE, SLATE

SIZES = (16, 32, 48, 256)

# name: mark, light and deep colour of its tile
ICONS = {
    "disc": (glyphs.disc, OCEAN, NAVY),
    "music": (glyphs.music, ROSE, PLUM),
    "film": (glyphs.film, SLATE, NIGHT),
    "camera": (glyphs.camera, AQUA, "#155E6B"),
    "book": (glyphs.book, AMBER, "#B4552F"),
    "game": (glyphs.game, "#8B6BB8", "#3B2A66"),
    "folder": (glyphs.folder, "#F7C46A", "#C87A2A"),
    "globe": (glyphs.globe, "#4FA3D1", "#1B4F86"),
    "star": (glyphs.star, "#F9BE5B", "#D9652F"),
    "toolbox": (glyphs.toolbox, "#7E93A8", "#33475C"),
    "heart": (glyphs.heart, CORAL, "#B5305C"),
    "graduation": (glyphs.graduation, MOSS, "#1F5A4E"),
}


def tile(glyph, light, deep, small):
    """The whole drawing; small sizes fill the square and drop the shadow."""
    inset, radius, zoom = (4, 56, 1.24) if small else (12, 58, 1.0)
    side = 256 - 2 * inset
    defs = (
        gradient("tile", (0, light), (1, deep), angle=-35)
        + gradient("gleam", (0, "#FFFFFF", 0.34), (0.5, "#FFFFFF", 0.04), (1, "#FFFFFF", 0))
        + blur("soft", 5)
    )
    frame = f'x="{inset}" y="{inset}" width="{side}" height="{side}" rx="{radius}"'
    rim = (
        f'<rect x="{inset + 2}" y="{inset + 2}" width="{side - 4}" height="{side - 4}" rx="{radius - 2}" '
        f'fill="none" stroke="#FFFFFF" stroke-opacity=".22" stroke-width="3"/>'
    )
    mark = glyph().replace(glyphs.TILE, mix(deep, "#000000", 0.12))
    shadow = "" if small else f'<g filter="url(#soft)" opacity=".35" transform="translate(0 7)">{blacken(mark)}</g>'
    body = (
        f'<rect {frame} fill="url(#tile)"/><rect {frame} fill="url(#gleam)"/>{"" if small else rim}{shadow}'
        f'<g transform="translate(128 128) scale({zoom}) translate(-128 -128)">{mark}</g>'
    )
    return svg(256, 256, body, defs)


def blacken(mark):
    """The mark as one dark shape, for its shadow."""
    for colour in (glyphs.BRIGHT, glyphs.SOFT, "#E9EEF2", "#5CC8C6", "#F4B355"):
        mark = mark.replace(f'"{colour}"', '"#06121C"')
    return mark


def at_size(document, size):
    """Rasters at four times the size, so that thin parts keep their weight."""
    if size >= 256:
        return raster(document, size, size)
    return raster(document, size * 4, size * 4).resize((size, size), Image.LANCZOS)


def make():
    for name, (glyph, light, deep) in ICONS.items():
        images = [at_size(tile(glyph, light, deep, s <= 32), s) for s in SIZES]
        save_icon(images, PROGRAM / "Icons" / f"{name}.ico")


if __name__ == "__main__":
    make()
