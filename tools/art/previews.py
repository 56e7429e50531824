"""The picture of each template: what a menu made with it looks like."""

import backdrops
import scenes
from artlib import AMBER, AQUA, CORAL, FOAM, NAVY, OCEAN, PROGRAM, ROSE, SANS, SERIF, SLATE, TEAL
from artlib import drawn, gradient, label, save_jpg
from mockup import SIZE, button, desk, edge, heading, inside, paragraph, pointer, window
from scenes import joined

FOLDER = PROGRAM / "Templates"


def disc_mark(x, y, radius, light=AQUA, deep=OCEAN):
    """The little disc that stands for a publisher's logo."""
    return (
        f'<circle cx="{x}" cy="{y}" r="{radius}" fill="{deep}"/>'
        f'<path d="M{x} {y} L{x - radius * 0.87:.1f} {y - radius * 0.5:.1f} A{radius} {radius} 0 0 1 {x} {y - radius} Z" fill="{light}"/>'
        f'<path d="M{x} {y} L{x + radius * 0.87:.1f} {y + radius * 0.5:.1f} A{radius} {radius} 0 0 1 {x} {y + radius} Z" fill="{light}" opacity=".7"/>'
        f'<circle cx="{x}" cy="{y}" r="{radius * 0.3:.1f}" fill="#FFFFFF"/>'
    )


def nexus():
    x, y, w, h = 18, 14, 558, 290
    names = ("Install", "Handbook", "Screen tour", "Our web page", "Write to us", "Sound on/off")
    column = "".join(
        button(x + 22, y + 78 + 33 * k, 166, 27, name, "#1C7C86" if k == 1 else "#FFFFFF14", "#FFFFFF" if k == 1 else "#C9DAE4",
               accent=AMBER if k == 1 else "#3E8E9E")
        for k, name in enumerate(names)
    )
    told = ("Thirty pages on the first day with", "the tools: what to install, where", "your files go and how to undo", "each step.")
    return joined(
        desk("#34607A", "#16283A"),
        window(x, y, w, h, "#0E1F30"),
        inside("view", x, y, w, h, backdrops.currents),
        f'<rect x="{x}" y="{y}" width="{w}" height="58" rx="7" fill="#FFFFFF" opacity=".05"/>',
        disc_mark(x + 38, y + 29, 14),
        heading(x + 64, y + 38, "Northlight Tools", 25, "#FFFFFF"),
        label(x + w - 22, y + 35, "Exit", 12.5, "#9FC3D1", SANS, "end"),
        f'<rect x="{x + 22}" y="{y + 58}" width="{w - 44}" height="1" fill="{AQUA}" opacity=".5"/>',
        column,
        f'<rect x="{x + 212}" y="{y + 78}" width="{w - 234}" height="192" rx="6" fill="#061321" opacity=".55"/>',
        label(x + 232, y + 112, "Read the handbook", 18, AMBER, SANS, font_weight="bold"),
        paragraph(x + 232, y + 140, told, 13, "#DCE9EF"),
        pointer(x + 160, y + 126),
        edge(x, y, w, h),
    )


def harbor():
    x, y, w, h = 18, 14, 558, 290
    names = ("Start the guide", "Walks and maps", "Photo gallery", "Write to us", "Exit")
    column = "".join(
        button(x + w - 184, y + 84 + 38 * k, 162, 30, name, TEAL if k == 1 else "#FFFFFF", "#FFFFFF" if k == 1 else NAVY,
               "none" if k == 1 else "#C9D8DA", 6)
        for k, name in enumerate(names)
    )
    return joined(
        desk("#BFD5DA", "#7FA3AF"),
        window(x, y, w, h, "#F7FAF9"),
        disc_mark(x + 42, y + 36, 18, "#7FD0CE", TEAL),
        heading(x + 72, y + 46, "Lakeland Guide", 27, NAVY),
        label(x + w - 22, y + 44, "2nd edition", 12.5, SLATE, SANS, "end"),
        f'<rect x="{x + 22}" y="{y + 68}" width="{w - 44}" height="1" fill="#C9D8DA"/>',
        inside("view", x + 22, y + 84, 332, 124, scenes.mountain_lake, 5),
        label(x + 22, y + 235, "Walks and maps", 16, TEAL, SANS, font_weight="bold"),
        paragraph(x + 22, y + 256, ("Twelve walks from one to six hours,", "each with its map, ready to print."), 12.5, SLATE),
        column,
        pointer(x + w - 48, y + 142),
        edge(x, y, w, h, "#6E8A92", 0.5),
    )


def marquee():
    x, y, w, h = 18, 14, 558, 290
    names = ("Harbour", "Mountains", "Northern lights", "About", "Sound on/off", "Exit")
    grid = "".join(
        button(x + 20 + 175 * (k % 3), y + 206 + 38 * (k // 3), 168, 32, name, CORAL if k == 0 else "#FFFFFF26", "#FFFFFF",
               "#FFFFFF66", 5, 13, centred=True)
        for k, name in enumerate(names)
    )
    return joined(
        desk("#5B4A77", "#1F1B3B"),
        (gradient("band", (0, "#0C0A20", 0), (0.28, "#0C0A20", 0.72), (1, "#0C0A20", 0.88)), ""),
        window(x, y, w, h, "#1D2447"),
        inside("view", x, y, w, h, scenes.harbour_dusk),
        f'<rect x="{x}" y="{y + 160}" width="{w}" height="{h - 160}" rx="7" fill="url(#band)"/>',
        heading(x + 24, y + 48, "Light on the water", 32, "#FFFFFF"),
        label(x + 26, y + 72, "A year of photographs", 14, "#FFE3C2", SANS),
        grid,
        pointer(x + 146, y + 228),
        edge(x, y, w, h),
    )


def panel_row(x, y, width, name, value, swatch=None):
    box = f'<rect x="{x + 46}" y="{y - 11}" width="{width - 54}" height="15" rx="3" fill="#FFFFFF" stroke="#C3CED6"/>'
    chip = f'<rect x="{x + width - 24}" y="{y - 8.5}" width="10" height="10" rx="2" fill="{swatch}"/>' if swatch else ""
    return label(x, y, name, 10, SLATE, SANS) + box + label(x + 51, y, value, 10, NAVY, SANS) + chip


def frame(x, y, width, height):
    """The selection frame with its eight grips."""
    grips = "".join(
        f'<rect x="{x + width * a - 3}" y="{y + height * b - 3}" width="6" height="6" fill="#FFFFFF" stroke="{CORAL}" stroke-width="1.4"/>'
        for a in (0, 0.5, 1)
        for b in (0, 0.5, 1)
        if (a, b) != (0.5, 0.5)
    )
    return (
        f'<rect x="{x}" y="{y}" width="{width}" height="{height}" fill="none" stroke="{CORAL}" '
        f'stroke-width="1.3" stroke-dasharray="4 3"/>{grips}'
    )


def editor():
    x, y, w, h = 14, 14, 414, 294
    p = x + w + 12
    rows = (("Caption", "Programme", None), ("Font", "Georgia", None), ("Text", "White", "#FFFFFF"), ("Back", "Coral", CORAL),
            ("Border", "None", None), ("Left", "24", None), ("Top", "118", None), ("Width", "140", None))
    panel = "".join(panel_row(p + 12, y + 54 + 22 * k, 124, *row) for k, row in enumerate(rows))
    dots = "".join(f'<circle cx="{p + 22 + 24 * k}" cy="{y + 256}" r="8" fill="{c}"/>' for k, c in enumerate((CORAL, AMBER, AQUA, ROSE, NAVY)))
    plain = "".join(
        button(x + 24, y + 160 + 36 * k, 140, 28, name, "#FFFFFF1C", "#FFFFFF", "#FFFFFF80", 4, 13)
        for k, name in enumerate(("The players", "Notes", "Exit"))
    )
    return joined(
        desk("#8FA9B8", "#4C6679"),
        window(x, y, w, h, "#1B0F2A"),
        inside("view", x, y, w, h, backdrops.stage),
        label(x + 24, y + 56, "Music evening", 31, "#FFFFFF", SERIF, font_style="italic"),
        label(x + 26, y + 80, "Five strings and one room", 14, "#FFD9A0", SANS),
        button(x + 24, y + 118, 140, 30, "Programme", CORAL, "#FFFFFF", radius=4, size=13),
        frame(x + 20, y + 114, 148, 38),
        plain,
        inside("video", x + 196, y + 112, 194, 124, strings_scene, 4),
        f'<circle cx="{x + 293}" cy="{y + 174}" r="20" fill="#000000" opacity=".45"/>'
        f'<path d="M{x + 287} {y + 164} L{x + 303} {y + 174} L{x + 287} {y + 184} Z" fill="#FFFFFF"/>',
        label(x + 196, y + 258, "Recorded in one take", 12.5, FOAM, SANS),
        edge(x, y, w, h),
        window(p, y, 140, h, "#F3F6F8"),
        f'<path d="M{p} {y + 7} a7 7 0 0 1 7 -7 h126 a7 7 0 0 1 7 7 v21 h-140 z" fill="{NAVY}"/>',
        label(p + 12, y + 19, "Properties", 12.5, "#FFFFFF", SANS, font_weight="bold"),
        panel + dots,
        pointer(x + 128, y + 136),
    )


def strings_scene():
    """The strings picture with its names made its own, as it shares a drawing with the stage."""
    defs, body = backdrops.strings(0.2)
    for name in ("sky", "lamp", "vignette", "halo"):
        defs = defs.replace(f'id="{name}"', f'id="s-{name}"')
        body = body.replace(f"url(#{name})", f"url(#s-{name})")
    return defs, body


PREVIEWS = {"Nexus": nexus, "Harbor": harbor, "Marquee": marquee, "Advanced visual editor": editor}


def make():
    for name, draw in PREVIEWS.items():
        defs, body = draw()
        save_jpg(drawn(*SIZE, body, defs, scale=3), FOLDER / name / "template.jpg", 92)


if __name__ == "__main__":
    make()
