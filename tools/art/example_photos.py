"""The photo album: a picture-led menu (template Marquee) with a splash screen,
a fade and background music."""

import math

import scenes
from artlib import PROGRAM, colour_value, drawn, mix, put_text, save_gif, save_jpg
from artlib import AMBER, CORAL, NIGHT
from disc_pages import page
from music import tide
from project_file import command, save_project
from tone import save_wav

NAME = "Photo album"
FOLDER = PROGRAM / "Examples" / NAME
DISC = FOLDER / "Disc"
HERE = f"%Examples\\{NAME}\\"
PHOTO = (960, 600)

# file, title, where and when
PHOTOS = (
    ("harbour", "The lamp is lit", "Cape house, the last evening of May"),
    ("lake", "Five summits", "North shore, seven in the morning"),
    ("forest", "Before the birds", "Upper woods, October"),
    ("dunes", "Wind from the left", "Long dune, an hour before dark"),
    ("city", "Across the river", "Old quay, shortly after midnight"),
    ("aurora", "Somebody is home", "The hut above the pass, January"),
)

INK = dict(ground="#14122B", ink="#E9E3F0", head="#FFD9A0")


def logo():
    """A shutter: six blades that leave a six-cornered opening."""
    def corner(k, radius=11):
        turn = math.radians(60 * k)
        return 36 + radius * math.sin(turn), 36 - radius * math.cos(turn)

    def outer(k):
        """Where the edge through two corners of the opening meets the rim."""
        (x1, y1), (x2, y2) = corner(k - 1), corner(k)
        return x2 + (x2 - x1) * 5, y2 + (y2 - y1) * 5

    blades = ""
    for k, tone in enumerate(("#FFD9A0", "#F7C46A", AMBER, CORAL, "#E0637A", "#F2A56B")):
        points = [corner(k), corner(k + 1), outer(k + 1), outer(k)]
        shape = " ".join(f"{x:.2f},{y:.2f}" for x, y in points)
        blades += f'<polygon points="{shape}" fill="{tone}" stroke="#1B1838" stroke-width="1.6" stroke-linejoin="round"/>'
    clip = '<clipPath id="rim"><circle cx="36" cy="36" r="31"/></clipPath>'
    body = f'<circle cx="36" cy="36" r="35" fill="#1B1838"/><g clip-path="url(#rim)">{blades}</g>'
    return drawn(72, 72, body, clip, scale=4)


def gallery():
    cards = "\n".join(
        f'<figure><a href="photos/{name}.jpg"><img src="photos/{name}.jpg" alt="{title}"></a>'
        f"<figcaption><b>{title}</b><br>{where}</figcaption></figure>"
        for name, title, where in PHOTOS
    )
    style = (
        "  .wall { display: flex; flex-wrap: wrap; gap: 26px; }\n  figure { margin: 0; width: 412px; }\n"
        "  img { width: 100%; display: block; border-radius: 4px; }\n  figcaption { padding-top: 8px; font-size: 14px; }\n"
    )
    page(
        DISC / "gallery.html", "Light on the water",
        '<h1>Light on the water</h1>\n<p class="lead">Six pictures from one year. Click on a picture to see it full size.</p>\n'
        f'<div class="wall">\n{cards}\n</div>',
        style=style, **INK,
    )


def slide_show():
    seconds = 6 * len(PHOTOS)
    frames = "\n".join(
        f'<div style="background-image:url(photos/{name}.jpg);animation-delay:{6 * k}s"><span>{title}</span></div>'
        for k, (name, title, _) in enumerate(PHOTOS)
    )
    share = 100 / len(PHOTOS)
    style = (
        "  main { max-width: none; padding: 0; }\n"
        "  div { position: fixed; inset: 0; background: center/cover; opacity: 0; "
        f"animation: show {seconds}s infinite; }}\n"
        "  span { position: absolute; left: 40px; bottom: 34px; font: italic 30px Georgia, serif; "
        "text-shadow: 0 1px 6px #000; }\n"
        f"  @keyframes show {{ 0% {{ opacity: 0 }} 3% {{ opacity: 1 }} {share:.1f}% {{ opacity: 1 }} "
        f"{share + 4:.1f}% {{ opacity: 0 }} 100% {{ opacity: 0 }} }}\n"
    )
    page(DISC / "slide-show.html", "Light on the water - slide show", frames, style=style, **INK)


def texts():
    lines = "\n".join(f"  {title:<22}{where}\n  {'':<22}photos\\{name}.jpg\n" for name, title, where in PHOTOS)
    put_text(DISC / "captions.txt", f"LIGHT ON THE WATER\nThe pictures and where they were taken\n\n{lines}")
    put_text(
        DISC / "about.txt",
        "ABOUT THIS ALBUM\n\n"
        "Six pictures, six kinds of light. They were made over one year, most of\n"
        "them within an hour's walk of the cape house.\n\n"
        "You may copy the pictures for yourself and give them to friends. If you\n"
        "want to print one larger than a postcard, write to us: the disc holds a\n"
        "smaller copy of each, and we are glad to send the large one.\n",
    )


def project():
    white, cream, dusk = colour_value("#FFFFFF"), colour_value("#FFE3C2"), colour_value("#1D2447")
    return {
        "Osnovna podesavanja": {
            "Sablon": "%Templates\\Marquee\\Marquee.tavt",
            "Pozadinska slika": HERE + "back.jpg",
            "Boja prozora": dusk,
        },
        "Osnovni podaci": {
            "exename": "photos.exe",
            "Tasknaslov": "Light on the water",
            "Logotekst": "A year of photographs",
            "Logotekstboja": cream,
            "Logoslika": HERE + "shutter.gif",
            "Glavninaslov": "Light on the water",
            "GlavninaslovFont": "Georgia",
            "GlnaslovVel": 28,
            "GlnaslovBoja": white,
            "GlavniOpisnaslov": "Six pictures",
            "GlavniOpisnaslovFont": "Tahoma",
            "GlavniOpisnaslovVel": 12,
            "GlavniOpisnaslovBoja": colour_value(AMBER),
            "GlavniOpisnaslovBold": True,
            "GlavniOpis": "Harbour, lake, forest, dunes, city and snow.\nRest the pointer on a button to read what it does.",
            "GlavniOpisFont": "Tahoma",
            "GlavniOpisVel": 10,
            "GlavniOpisBoja": white,
            "Opis providan": 1,
            "Font": "Georgia",
            "Velicina": 13,
            "Stil": "Italic",
        },
        "Izvrsne komande": {
            "Izlaz": "Exit",
            "Exitdesctitle": "Exit",
            "Exitdescription": "Leave the album. The disc stays where it is.",
            "Sounddesctitle": "Music",
            "Sounddescription": "Stop the music, or start it again.",
            "Boja slova": white,
            "Boja pozadine komandi": colour_value(mix(CORAL, NIGHT, 0.35)),
            "Boja pozadine": dusk,
            "Font": "Tahoma",
            "Velicina": 11,
            "Add shadow": 1,
            "Boja senke": colour_value("#0C0A20"),
        },
        "commands": (
            command("Gallery", "Open file", "gallery.html",
                    "All six pictures on one page. A click on a picture shows it full size."),
            command("Slide show", "Open file", "slide-show.html",
                    "The pictures one after the other, six seconds each."),
            command("Captions", "Open file", "captions.txt",
                    "Where and when each picture was made."),
            command("About", "Open file", "about.txt",
                    "How the album came about and what you may do with it.", heading="About this album"),
            command("Our web page", "Visit web page", "http://www.example.com/album",
                    "New pictures every month. You need to be online."),
            command("Write to us", "Send mail", "album@example.com",
                    "Opens a letter to us in your mail program.", parameter="Light on the water"),
        ),
        "Zvuk": {"Fajl": HERE + "tide.wav", "Ponovi": 5, "Pauza": 2, "Komanda": "Music on/off"},
        "Uvod": {
            "Prikazi": 1, "ClickThrough": 1, "Poruka": "Light on the water\nA year of photographs", "Font": "Georgia",
            "Fontvelicina": 24, "Italic": 1, "Bojateksta": cream, "Opcija": 3, "Bojaprozora": dusk, "Vreme": 3,
            "Visina": 260, "Sirina": 520, "Polozajteksta": "Centered on window!",
        },
        "Efekti": {
            "Splash fade in": True, "Splash fade out": True, "Main fade in": True,
            "esplashenter": 5, "esplashleave": 5, "emainenter": 5,
        },
    }


def make():
    save_jpg(scenes.picture(scenes.harbour_dusk, 800, 500), FOLDER / "back.jpg", 90)
    save_gif(logo(), FOLDER / "shutter.gif")
    save_wav(tide(), FOLDER / "tide.wav")
    for name, _, _ in PHOTOS:
        save_jpg(scenes.picture(scenes.SCENES[name], *PHOTO), DISC / "photos" / f"{name}.jpg", 86)
    gallery()
    slide_show()
    texts()
    save_project(PROGRAM / "Examples" / f"{NAME}.tavp", project())


if __name__ == "__main__":
    make()
