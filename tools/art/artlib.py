"""Shared ground of the art scripts: where results go, the house colours, and
the few ways a drawing leaves as a file.

Pictures are written as SVG text and rasterised by rsvg-convert; Pillow only
converts and packs. Nothing here draws on a clock or an unseeded generator, so
a second run gives the same bytes.
"""

import io
import pathlib
import struct
import subprocess

from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = ROOT / "program"
RUNTIME = ROOT / "runtime"

# The house palette; every picture that comes with the program is mixed from it.
NIGHT = "#0B1B2B"
NAVY = "#12304A"
OCEAN = "#1C5D7F"
TEAL = "#1F8A8C"
AQUA = "#5CC8C6"
FOAM = "#E8F4F2"
SAND = "#F4EADB"
AMBER = "#F4B355"
CORAL = "#EE7A5C"
ROSE = "#D9537A"
PLUM = "#5B3B76"
MOSS = "#6FA35B"
SLATE = "#52657A"

SANS = "DejaVu Sans"
LIGHT = "DejaVu Sans Light"
SERIF = "DejaVu Serif"


def put(path, data):
    """Writes bytes, making the folder when it is not there yet."""
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)


def put_text(path, text):
    """Writes a text the way the target platform keeps it: code page 1252, CR LF."""
    put(path, text.replace("\n", "\r\n").encode("cp1252"))


def svg(width, height, body, defs="", box=None):
    """A whole SVG document; box is the drawing's own coordinate area."""
    left, top, right, bottom = box or (0, 0, width, height)
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
        f'viewBox="{left} {top} {right - left} {bottom - top}">'
        f"<defs>{defs}</defs>{body}</svg>"
    )


def raster(document, width, height):
    """Rasterises an SVG text to an RGBA image of exactly the size given."""
    command = ["rsvg-convert", "-w", str(width), "-h", str(height), "-f", "png"]
    done = subprocess.run(command, input=document.encode(), capture_output=True, check=True)
    return Image.open(io.BytesIO(done.stdout)).convert("RGBA")


def drawn(width, height, body, defs="", scale=2):
    """Draws at a multiple of the size and shrinks, for calmer small details."""
    big = raster(svg(width, height, body, defs), width * scale, height * scale)
    return big if scale == 1 else big.resize((width, height), Image.LANCZOS)


def save_jpg(image, path, quality=88):
    out = io.BytesIO()
    image.convert("RGB").save(out, "JPEG", quality=quality, optimize=True, subsampling=0)
    put(path, out.getvalue())


def save_bmp(image, path):
    out = io.BytesIO()
    image.convert("RGB").save(out, "BMP")
    put(path, out.getvalue())


def save_gif(image, path):
    """Saves with a one-bit mask: what is at least half covered is opaque."""
    mask = image.getchannel("A").point(lambda a: 255 if a >= 128 else 0)
    flat = image.convert("RGB").quantize(255, method=Image.MEDIANCUT, dither=Image.NONE)
    flat.paste(255, mask.point(lambda a: 255 - a))
    out = io.BytesIO()
    flat.save(out, "GIF", transparency=255)
    put(path, out.getvalue())


def _icon_bitmap(image):
    """One icon image as a 32-bit bottom-up bitmap with its one-bit mask."""
    width, height = image.size
    header = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = image.transpose(Image.FLIP_TOP_BOTTOM).tobytes("raw", "BGRA")
    row_bytes = (width + 31) // 32 * 4
    alpha = image.getchannel("A").load()
    mask = bytearray()
    for y in reversed(range(height)):
        row = bytearray(row_bytes)
        for x in range(width):
            if alpha[x, y] < 128:
                row[x // 8] |= 0x80 >> (x % 8)
        mask += row
    return header + pixels + bytes(mask)


def _icon_png(image):
    out = io.BytesIO()
    image.save(out, "PNG", optimize=True)
    return out.getvalue()


def save_icon(images, path):
    """Packs square images into one icon; 256 px and above are stored as PNG."""
    blocks = [_icon_png(i) if i.width >= 256 else _icon_bitmap(i) for i in images]
    offset = 6 + 16 * len(images)
    directory = struct.pack("<HHH", 0, 1, len(images))
    for image, block in zip(images, blocks):
        side = image.width % 256  # a size of 256 is written as 0
        directory += struct.pack("<BBBBHHII", side, side, 0, 0, 1, 32, len(block), offset)
        offset += len(block)
    put(path, directory + b"".join(blocks))


def gradient(name, *stops, across=False, angle=None):
    """A linear gradient; stops are (offset, colour) or (offset, colour, opacity)."""
    x2, y2 = (1, 0) if across else (0, 1)
    turn = f' gradientTransform="rotate({angle} .5 .5)"' if angle is not None else ""
    inner = "".join(_stop(*s) for s in stops)
    return f'<linearGradient id="{name}" x1="0" y1="0" x2="{x2}" y2="{y2}"{turn}>{inner}</linearGradient>'


def radial(name, *stops, cx=0.5, cy=0.5, r=0.5):
    inner = "".join(_stop(*s) for s in stops)
    return f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}">{inner}</radialGradient>'


def _stop(offset, colour, opacity=1):
    return f'<stop offset="{offset}" stop-color="{colour}" stop-opacity="{opacity}"/>'


def blur(name, deviation):
    return (
        f'<filter id="{name}" x="-50%" y="-50%" width="200%" height="200%">'
        f'<feGaussianBlur stdDeviation="{deviation}"/></filter>'
    )


def label(x, y, text, size, fill="#FFFFFF", family=SANS, anchor="start", **more):
    """A line of text; more holds further attributes, with _ standing for -."""
    extra = "".join(f' {k.replace("_", "-")}="{v}"' for k, v in more.items())
    safe = text.replace("&", "&amp;").replace("<", "&lt;")
    return (
        f'<text x="{x}" y="{y}" font-family="{family}" font-size="{size}" fill="{fill}" '
        f'text-anchor="{anchor}"{extra}>{safe}</text>'
    )


def mix(first, second, share):
    """The colour that lies at the given share of the way from first to second."""
    a, b = (channels(c) for c in (first, second))
    return "#" + "".join(f"{round(x + (y - x) * share):02X}" for x, y in zip(a, b))


def channels(colour):
    return [int(colour[i : i + 2], 16) for i in (1, 3, 5)]


def colour_value(colour):
    """A colour as a project file keeps it: decimal, blue in the high byte."""
    red, green, blue = channels(colour)
    return blue << 16 | green << 8 | red
