"""The music evening: a menu laid out by hand in the visual editor, with buttons
in a column and in a row, free texts, a video and an exit screen.

The canvas is 800 x 500 px; its values are twips, 15 to the pixel. Everything
stays above 460 px, since a window's own title bar can take the last 40.
"""

import backdrops
import scenes
from artlib import AMBER, AQUA, CORAL, PROGRAM, ROSE, colour_value, drawn, gradient, put, put_text, save_jpg
from disc_pages import page
from music import evening_round, first_light, quiet_street
from project_file import added, command, save_project
from video import film

NAME = "Music evening"
FOLDER = PROGRAM / "Examples" / NAME
DISC = FOLDER / "Disc"
HERE = f"%Examples\\{NAME}\\"
PICTURES = "%Pictures\\Buttons\\"

TWIPS = 15
EXIT, SOUND = 0, 9999999
FIXED = (1093303, 4399733, 2133823, 5093223, 7093523, 9493723)
PIECES = (
    ("First light", "first-light", 318446, "Guitar, flute and bass. Slow, about a minute long."),
    ("Quiet street", "quiet-street", 604571, "A waltz for guitar and strings."),
    ("Evening round", "evening-round", 857209, "A round: harp first, then the strings, four bars behind."),
)

WHITE, CREAM, GOLD = colour_value("#FFFFFF"), colour_value("#FFE9CF"), colour_value(AMBER)
CURTAIN, FLOOR = colour_value("#3B1A42"), colour_value("#150B1E")


def logo():
    """Five strings over a sound hole, on a tile of the curtain's colours."""
    defs = gradient("tile", (0, "#8C3B5C"), (1, "#2A1236"), angle=-30)
    tones = (AMBER, CORAL, ROSE, AQUA, "#FFE3B4")
    lines = "".join(
        f'<path d="M{14 + 11 * k} 4 C{14 + 11 * k + 5 - 2.5 * k} 24 {14 + 11 * k - 5 + 2.5 * k} 48 {14 + 11 * k} 68" fill="none" '
        f'stroke="{tone}" stroke-width="{3.2 - 0.4 * k:.1f}" stroke-linecap="round"/>'
        for k, tone in enumerate(tones)
    )
    body = f'<rect width="72" height="72" fill="url(#tile)"/><circle cx="36" cy="36" r="21" fill="#12091C" opacity=".75"/>{lines}'
    return drawn(72, 72, body, defs, scale=4)


def texts():
    rows = "\n".join(
        f'<tr><td>{k}</td><td><a href="music/{file}.mid">{title}</a></td><td>{told}</td></tr>'
        for k, (title, file, _, told) in enumerate(PIECES, 1)
    )
    page(
        DISC / "programme.html", "Music evening",
        '<h1>Music evening</h1>\n<p class="lead">Five strings and one room. Saturday, half past seven.</p>\n'
        f"<h2>Programme</h2>\n<table>\n{rows}\n</table>\n"
        "<h2>After the music</h2>\n<p>There is tea in the back room, and the instruments may be tried.</p>",
        ground="#1E1028", ink="#F0E4EA", head="#F4B355",
    )
    put_text(
        DISC / "players.txt",
        "THE PLAYERS\n\n"
        "  Guitar      plays every evening, and brings the chairs\n"
        "  Flute       joined us in spring\n"
        "  Strings     three of them, never all on time\n"
        "  Harp        lives upstairs\n"
        "  Bass        holds it all together\n",
    )
    put_text(
        DISC / "notes.txt",
        "NOTES ON THE MUSIC\n\n"
        "First light\n  Four chords that come round and round; the flute enters when the\n"
        "  guitar has found its pace.\n\n"
        "Quiet street\n  A waltz in a minor key. Listen for the bar where the strings climb\n"
        "  to the top and come down in steps.\n\n"
        "Evening round\n  Sixteen beats, sung by one and answered by another. When both are\n"
        "  at it, every bar fits every other.\n",
    )
    put_text(
        DISC / "tools" / "play-all.bat",
        "@echo off\n"
        "rem Hands the three pieces to the player one after the other.\n"
        'cd /d "%~dp0..\\music"\n'
        + "".join(f"echo {title}\nstart /wait {file}.mid\n" for title, file, _, _ in PIECES)
    )


def wide(x, y, identity):
    """A plain button of the left column."""
    return dict(
        DugmeX=x * TWIPS, DugmeY=y * TWIPS, DugmeForeBoja=CREAM, DugmeBackBoja=CURTAIN, DugmeBorderBoja=colour_value("#A8647F"),
        DugmeFontName="Tahoma", DugmeFontSize=11, DugmeWidth=220 * TWIPS, DugmeID=identity,
    )


def pictured(x, y, width, identity, picture, ink):
    """A button that takes its size from its picture."""
    return dict(
        DugmeX=x * TWIPS, DugmeY=y * TWIPS, DugmeForeBoja=ink, DugmeBackBoja=CURTAIN, DugmeBorderBoja=CURTAIN,
        DugmeFontName="Tahoma", DugmeFontSize=11, DugmeBold=True, DugmeBorderVisible=False, DugmeWidth=width * TWIPS,
        DugmeID=identity, DugmePictureFile=PICTURES + picture, DugmeStretchToPicture=1,
    )


def buttons():
    """In the order in which the canvas builds them: exit, sound, fixed commands, additional ones."""
    column = [wide(32, 118 + 37 * k, identity) for k, identity in enumerate(FIXED)]
    ink = colour_value("#4A2108")
    row = [pictured(32 + 172 * k, 410, 160, piece[2], "pill-amber.gif", ink) for k, piece in enumerate(PIECES)]
    return [pictured(720, 406, 48, EXIT, "exit.gif", WHITE), wide(32, 340, SOUND)] + column + row


def free_text(x, y, width, height, caption, size, colour, **more):
    return dict(
        TekstBoxX=x * TWIPS, TekstBoxY=y * TWIPS, TekstBoxCaption=caption, TekstBoxW=width * TWIPS, TekstBoxH=height * TWIPS,
        TekstBoxFontName="Tahoma", TekstBoxFontSize=size, tekstBoxForeColor=colour, tekstBoxBackColor=FLOOR, **more,
    )


def project():
    return {
        "Osnovna podesavanja": {
            "Sablon": "%Templates\\Advanced visual editor\\Advanced visual editor.Atavt",
            "Pozadinska slika": HERE + "back.jpg",
            "Boja prozora": FLOOR,
        },
        "Osnovni podaci": {
            "exename": "music.exe",
            "Tasknaslov": "Music evening",
            "Logotekst": "Five strings and one room",
            "Logotekstboja": GOLD,
            "Logoslika": HERE + "strings.jpg",
            "Glavninaslov": "Music evening",
            "GlavninaslovFont": "Georgia",
            "GlnaslovVel": 28,
            "GlnaslovBoja": WHITE,
            "GlavniOpisnaslov": "Good evening",
            "GlavniOpisnaslovFont": "Georgia",
            "GlavniOpisnaslovVel": 13,
            "GlavniOpisnaslovBoja": GOLD,
            "GlavniOpisnaslovBold": True,
            "GlavniOpis": "Rest the pointer on a button to read about it.",
            "GlavniOpisFont": "Tahoma",
            "GlavniOpisVel": 10,
            "GlavniOpisBoja": CREAM,
            "Font": "Georgia",
            "Velicina": 13,
        },
        "Izvrsne komande": {
            "Izlaz": "#Empty#",
            "Exitdesctitle": "Good night",
            "Exitdescription": "Leave the evening.",
            "Sounddesctitle": "Background music",
            "Sounddescription": "Start the music, or stop it.",
            "Boja slova": CREAM,
            "Boja pozadine komandi": CURTAIN,
            "Boja pozadine": FLOOR,
            "Font": "Tahoma",
            "Velicina": 11,
        },
        "commands": (
            command("Programme", "Open file", "programme.html",
                    "The three pieces of the evening, and the tea."),
            command("The players", "Open file", "players.txt",
                    "Who plays what, and who brings the chairs."),
            command("Notes on the music", "Open file", "notes.txt",
                    "What to listen for in each piece."),
            command("Play all three", "Run program", "tools\\play-all.bat",
                    "Hands the three pieces to your player, one after the other."),
            command("More evenings", "Visit web page", "http://www.example.com/evenings",
                    "Dates and places. You need to be online."),
            command("Reserve a chair", "Send mail", "evenings@example.com",
                    "Opens a letter to us in your mail program.", parameter="A chair for Saturday"),
        ),
        "additional": tuple(
            added(title, f"music\\{file}.mid", told, identity, stops_music=1)
            for title, file, identity, told in PIECES
        ),
        "Zvuk": {"Fajl": HERE + "evening.mid", "Akcija": 1, "Ponovi": 3, "Pauza": 2, "Komanda": "Music on/off"},
        "Izlaz": {
            "Prikazi": 1, "ClickThroughExit": 1, "Tekst": "Good night, and thank you for listening.", "Font": "Georgia", "Fontvelicina": 18,
            "Bojateksta": CREAM, "Italic": 1, "Opcija": 3, "Bojaprozora": CURTAIN, "Vreme": 2, "Visina": 200, "Sirina": 520,
            "Polozajteksta": "Centered on window!",
        },
        "Napredni sabloni": {
            "AutorunWidth": 800 * TWIPS, "AutorunHeight": 500 * TWIPS, "AutorunFixedSize": True,
            "MainAutorunTekstTop": 22 * TWIPS, "MainAutorunTekstLeft": 118 * TWIPS,
            "LogoTekstTop": 72 * TWIPS, "LogoTekstLeft": 120 * TWIPS,
            "SlikaLogoX": 32 * TWIPS, "SlikaLogoY": 26 * TWIPS,
            "GlavniOpisNaslovX": 448 * TWIPS, "GlavniOpisNaslovY": 334 * TWIPS, "GlavniOpisNaslovWidth": 320 * TWIPS,
            "GlavniOpisX": 448 * TWIPS, "GlavniOpisY": 360 * TWIPS, "GlavniOpisWidth": 320 * TWIPS, "GlavniOpisHeight": 40 * TWIPS,
        },
        "buttons": buttons(),
        "texts": (
            free_text(32, 386, 320, 20, "Hear one piece", 10, GOLD, TekstBoxFontB=True),
            free_text(548, 32, 220, 22, "Saturday, half past seven", 11, CREAM, TekstBoxFontI=True, tekstBoxAlign=1),
            free_text(548, 54, 220, 20, "Old rope house, by the quay", 9, colour_value("#D9B8C4"), tekstBoxAlign=1),
        ),
        "videos": (
            dict(
                VideoFajl=HERE + "strings.mpg", videoAutoplay=True, videoLeft=448 * TWIPS, videoTop=86 * TWIPS,
                Volume=12, videorepeat=True,
            ),
        ),
    }


def make():
    save_jpg(scenes.picture(backdrops.stage, 800, 500), FOLDER / "back.jpg", 90)
    save_jpg(logo(), FOLDER / "strings.jpg", 94)
    put(FOLDER / "evening.mid", first_light())
    film(FOLDER / "strings.mpg")
    for piece in (first_light, quiet_street, evening_round):
        put(DISC / "music" / f"{piece.__name__.replace('_', '-')}.mid", piece())
    texts()
    save_project(PROGRAM / "Examples" / f"{NAME}.tavp", project())


if __name__ == "__main__":
    make()
