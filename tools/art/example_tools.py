"""The software sampler: an orderly menu (template Nexus) with grouped commands,
additional commands, a text shadow and slide effects. Its "software" is three
small pages that work in any browser."""

import backdrops
import scenes
from artlib import AMBER, AQUA, NIGHT, OCEAN, PROGRAM, colour_value, drawn, gradient, put_text, save_bmp, save_jpg
from example_tools_pages import make_pages
from music import welcome
from project_file import added, command, save_project
from tone import save_wav

NAME = "Software sampler"
FOLDER = PROGRAM / "Examples" / NAME
DISC = FOLDER / "Disc"
HERE = f"%Examples\\{NAME}\\"


def logo():
    """A four-pointed star on a dark tile; a bitmap has no clear pixels, so the tile fits the window's top."""
    defs = gradient("tile", (0, OCEAN), (1, NIGHT), angle=-30)
    body = (
        '<rect width="64" height="64" fill="url(#tile)"/>'
        '<path d="M32 6 C34 24 40 30 58 32 C40 34 34 40 32 58 C30 40 24 34 6 32 C24 30 30 24 32 6 Z" fill="#FFFFFF"/>'
        f'<path d="M32 6 C34 24 40 30 58 32 L32 32 Z" fill="{AQUA}"/><circle cx="51" cy="13" r="4" fill="{AMBER}"/>'
    )
    return drawn(64, 64, body, defs, scale=4)


def texts():
    put_text(
        DISC / "docs" / "readme.txt",
        "NORTHLIGHT SAMPLER\n\n"
        "Three small tools that need no installation, a handbook, and a picture\n"
        "for your desktop. Everything runs from the disc.\n\n"
        "  apps\\converter.html    lengths, weights and temperatures\n"
        "  apps\\mixer.html        find a colour and copy its number\n"
        "  apps\\timer.html        a timer for tea and other short waits\n"
        "  docs\\handbook.html     what each tool does, on one page\n"
        "  docs\\licence.txt       what you may do with them\n"
        "  tools\\list-disc.bat    writes a list of the disc to the screen\n"
        "  extras\\wallpaper.jpg   1280 by 800 pixels\n\n"
        "The tools keep nothing on your computer.\n",
    )
    put_text(
        DISC / "docs" / "licence.txt",
        "LICENCE\n\n"
        "You may use the tools on this disc for any purpose, copy the disc, and\n"
        "give it away, as long as this text stays with it.\n\n"
        "The tools come as they are. Whoever uses them does so at their own risk.\n",
    )
    put_text(
        DISC / "tools" / "list-disc.bat",
        "@echo off\n"
        "rem Lists the files of the disc this program lies on.\n"
        "rem With /w the names are shown in several columns.\n"
        "title What is on this disc\n"
        'cd /d "%~dp0.."\n'
        'if /i "%1"=="/w" (dir /s /w /a-d) else (dir /s /b /a-d)\n'
        "echo.\n"
        "pause\n",
    )


def project():
    white, mist, deep = colour_value("#FFFFFF"), colour_value("#DCE9EF"), colour_value("#0E1F30")
    return {
        "Osnovna podesavanja": {
            "Sablon": "%Templates\\Nexus\\Nexus.tavt",
            "Pozadinska slika": HERE + "back.jpg",
            "Boja prozora": deep,
        },
        "Osnovni podaci": {
            "exename": "sampler.exe",
            "Tasknaslov": "Northlight Sampler",
            "Logotekst": "Three tools, no installation",
            "Logotekstboja": colour_value("#8CC7CF"),
            "Logoslika": HERE + "northlight.bmp",
            "Glavninaslov": "Northlight Sampler",
            "GlavninaslovFont": "Verdana",
            "GlnaslovVel": 22,
            "GlnaslovBoja": white,
            "GlavniOpisnaslov": "Welcome",
            "GlavniOpisnaslovFont": "Verdana",
            "GlavniOpisnaslovVel": 14,
            "GlavniOpisnaslovBoja": colour_value(AMBER),
            "GlavniOpisnaslovBold": True,
            "GlavniOpis": (
                "This disc holds three small tools that run in your browser, a handbook and a picture for your desktop."
                "\n\nRest the pointer on a command to read what it does; click to start it."
            ),
            "GlavniOpisFont": "Tahoma",
            "GlavniOpisVel": 11,
            "GlavniOpisBoja": mist,
            "Opis providan": 1,
            "Font": "Verdana",
            "Velicina": 10,
        },
        "Izvrsne komande": {
            "Izlaz": "Exit",
            "Exitdesctitle": "Exit",
            "Exitdescription": "Close this window. You can open it again from the disc at any time.",
            "Sounddesctitle": "Sound",
            "Sounddescription": "Play the greeting once more, or stop it.",
            "Boja slova": white,
            "Boja pozadine komandi": colour_value("#1C4A63"),
            "Boja pozadine": deep,
            "Font": "Tahoma",
            "Velicina": 11,
            "Add shadow": 1,
            "Boja senke": colour_value("#050D16"),
        },
        "commands": (
            command("Read me first", "Open file", "docs\\readme.txt",
                    "One page about what is on the disc and where to find it."),
            command("Handbook", "Open file", "docs\\handbook.html",
                    "The three tools explained, with an example for each."),
            command("List this disc", "Run program", "tools\\list-disc.bat",
                    "Runs a small program that shows every file on the disc.\nIt changes nothing.", parameter="/w"),
            command("Our web page", "Visit web page", "http://www.example.com/northlight",
                    "Newer versions and more tools. You need to be online."),
            command("Write to us", "Send mail", "tools@example.com",
                    "Questions, faults, wishes: opens a letter in your mail program.", parameter="Northlight Sampler"),
            command("Licence", "Open file", "docs\\licence.txt",
                    "Use them, copy them, give them away."),
        ),
        "additional": (
            added("Converter", "apps\\converter.html", "Lengths, weights and temperatures, both ways.", 214607),
            added("Colour mixer", "apps\\mixer.html", "Three sliders, one colour, and the number to copy.", 386152),
            added("Tea timer", "apps\\timer.html", "Three, four or five minutes, or as many as you like.", 571938, stops_music=1),
            added("Wallpaper", "extras\\wallpaper.jpg", "A winter night for your desktop, 1280 by 800 pixels.", 742269),
        ),
        "Menu titles": {"TitleMain": "Start here", "Titleinfo": "Contact", "Titleprog": "Program", "Titleaddit": "Tools and extras"},
        "Zvuk": {"Fajl": HERE + "welcome.wav", "Ponovi": 1, "Pauza": 1, "Komanda": "Sound on/off"},
        "Efekti": {"emainenter": 3, "emainleave": 4},
    }


def make():
    save_jpg(scenes.picture(backdrops.currents, 800, 500), FOLDER / "back.jpg", 92)
    save_bmp(logo(), FOLDER / "northlight.bmp")
    save_wav(welcome(), FOLDER / "welcome.wav")
    save_jpg(scenes.picture(scenes.northern_lights, 1280, 800), DISC / "extras" / "wallpaper.jpg", 88)
    texts()
    make_pages(DISC)
    save_project(PROGRAM / "Examples" / f"{NAME}.tavp", project())


if __name__ == "__main__":
    make()
