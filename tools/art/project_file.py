"""Writes a project file: the fixed order of its sections and keys, with the
new-project values standing wherever an example sets nothing of its own.

An example is a mapping from section to {key: value}; the repeated records
(additional commands, buttons, texts, videos) are lists of such mappings.
"""

import re

from artlib import put

WINDOW_COLOUR = -2147483643  # the system's window colour
BUTTON_TEXT_COLOUR = -2147483630  # the system's button text colour
NO_SHADOW_COLOUR = 14284027  # stands in the file while the shadow is off
VALUE_LIMIT = 1023  # longer values are cut when a project is opened


# Keys whose values may hold line breaks and ampersands; numbered keys stand without their number.
FREE_TEXT = frozenset(
    ("Tasknaslov", "Logotekst", "Glavninaslov", "GlavniOpisnaslov", "GlavniOpis", "Exitdesctitle", "Exitdescription",
     "Sounddesctitle", "Sounddescription", "Opis", "C", "O", "addname", "adddesctitle", "adddescription", "TitleMain",
     "Titleinfo", "Titleprog", "Titleaddit", "Komanda", "Poruka", "Tekst", "TekstBoxCaption()")
)


def encoded(text):
    """Line breaks and ampersands as the tokens that keep a value on its line."""
    text = text.replace("\n", "\r\n")
    return text.replace("\n", "Chr$(10)").replace("\r", "Chr$(13)").replace("&", "Chr$(38)")


BASE = (
    ("Glavni direktorijum", ""), ("Sablon", ""), ("Pozadinska slika", ""), ("Boja prozora", WINDOW_COLOUR),
    ("Podesi velicinu", "Ne"), ("PodesiSirinu", 0), ("PodesiVisinu", 0), ("CeoEkran", "Ne"), ("BojaEkrana", 0),
    ("backscreenslika", ""), ("Backscrpredpos", "Ne"), ("backscreenpicpozicija", "Ne"), ("PozicijaX", 0), ("PozicijaY", 0),
)
MAIN = (
    ("exename", ""), ("Tasknaslov", ""), ("Logotekst", ""), ("Logotekstboja", 0), ("Logoslika", ""),
    ("Glavninaslov", ""), ("GlavninaslovFont", "Arial"), ("GlnaslovVel", 10), ("GlnaslovBoja", 0),
    ("GlavniOpisnaslov", ""), ("GlavniOpisnaslovFont", "Arial"), ("GlavniOpisnaslovVel", 10),
    ("GlavniOpisnaslovBoja", 0), ("GlavniOpisnaslovBold", False), ("GlavniOpisnaslovItalic", False),
    ("GlavniOpis", ""), ("GlavniOpisFont", "Arial"), ("GlavniOpisVel", 10), ("GlavniOpisBoja", 0),
    ("GlavniOpisBold", False), ("GlavniOpisItalic", False), ("Opis providan", 0), ("Ikona", ""),
    ("Font", "Arial"), ("Velicina", 10), ("Stil", ""), ("Efekti", ""),
    ("Vertekst", ""), ("Vertfont", ""), ("Vertfontvelicina", 10),
)
COMMAND_HEAD = (
    ("Izlaz", "Exit"), ("Exitdesctitle", ""), ("Exitdescription", ""), ("Sounddesctitle", ""), ("Sounddescription", ""),
)
COMMAND = (("Fajl", ""), ("Opis", ""), ("Parametar", ""), ("Vrsta", ""), ("Zatvara", 0))
# The back colour of the commands stands twice, first under a key with two blanks.
COMMAND_LOOK = (
    ("Boja slova", BUTTON_TEXT_COLOUR), ("Boja pozadine  komandi", 0), ("Boja pozadine", 0xFFFFFF),
    ("Boja pozadine komandi", 0), ("Font", "Arial"), ("Velicina", 9), ("Add shadow", 0), ("Boja senke", NO_SHADOW_COLOUR),
)
ADDITIONAL = (
    ("addname", ""), ("adddesctitle", ""), ("adddescription", ""), ("addtarget", ""), ("addparam", ""),
    ("addtype", "Open file"), ("addclose", 0), ("addStopBackgroundMusic", 0), ("AddID", 0),
)
MENUS = (("TitleMain", "Main"), ("Titleinfo", "Info"), ("Titleprog", "Program"), ("Titleaddit", "Additional"))
SOUND = (("Fajl", ""), ("Akcija", 0), ("Ponovi", 1), ("Pauza", 1), ("Komanda", "Sound on/off"), ("Signal", 0))
SPLASH = (
    ("Prikazi", 0), ("ClickThrough", 0), ("Poruka", ""), ("Font", "Arial"), ("Fontvelicina", 10), ("Bold", 0),
    ("Italic", 0), ("Underline", 0), ("Bojateksta", 0), ("Slika", ""), ("Opcija", 1), ("Bojaprozora", 0x808080),
    ("Vreme", 5), ("Visina", 0), ("Sirina", 0), ("Polozajteksta", ""), ("Polozajslike", ""),
)
FAREWELL = (
    ("Prikazi", 0), ("ClickThroughExit", 0), ("Tekst", ""), ("Font", "Arial"), ("Fontvelicina", 10), ("Bojateksta", 0),
    ("Bold", 0), ("Italic", 0), ("Underline", 0), ("Slika", ""), ("Opcija", 1), ("Bojaprozora", BUTTON_TEXT_COLOUR),
    ("Vreme", 5), ("Visina", 0), ("Sirina", 0), ("Polozajteksta", ""), ("Polozajslike", ""),
)
EFFECTS = (
    ("Splash fade in", False), ("Splash fade out", False), ("Main fade in", False), ("Main fade out", False),
    ("Exit fade in", False), ("Exit fade out", False), ("esplashenter", 0), ("emainenter", 0), ("eexitenter", 0),
    ("esplashleave", 0), ("emainleave", 0), ("eexitleave", 0),
)
MESSAGES = (
    ("Vrsta", 0), ("Naslov", ""), ("Tekst", ""), ("Dugme1", ""), ("Komanda1", -1), ("Dugme2", ""), ("Komanda2", -1),
    ("Meta1", ""), ("Meta2", ""), ("Par1", ""), ("Par2", ""),
)
EXPIRY = (
    ("Enabled", False), ("Godina", ""), ("Mesec", ""), ("Dan", ""), ("Naslov", ""), ("Poruka", ""), ("Vrsta", ""),
    ("Dugme1Naslov", ""), ("Dugme2Naslov", ""), ("Dugme1Komanda", -1), ("Dugme2Komanda", -1),
    ("IsticanjeDugme1Meta", ""), ("IsticanjeDugme2Meta", ""), ("IsticanjeDugme1Param", ""), ("IsticanjeDugme2Param", ""),
)
CANVAS = (
    ("AutorunWidth", 0), ("AutorunHeight", 0), ("AutorunFixedSize", False), ("LogoTekstTop", 0), ("LogoTekstLeft", 0),
    ("MainAutorunTekstTop", 0), ("MainAutorunTekstLeft", 0), ("SlikaLogoX", 0), ("SlikaLogoY", 0),
    ("GlavniOpisNaslovX", 0), ("GlavniOpisNaslovY", 0), ("GlavniOpisNaslovWidth", 0),
    ("GlavniOpisX", 0), ("GlavniOpisY", 0), ("GlavniOpisWidth", 0), ("GlavniOpisHeight", 0),
)
FIXED_TEXT = (("TekstUnderline", False), ("TekstBackgroundStyle", 0), ("TekstBackgroundColor", 0), ("Poravnanje", 0))
BUTTON = (
    ("DugmeX", 0), ("DugmeY", 0), ("DugmeForeBoja", 0), ("DugmeBackBoja", 0), ("DugmeBorderBoja", 0),
    ("DugmeFontName", "Arial"), ("DugmeFontSize", 10), ("DugmeItalic", False), ("DugmeBold", False),
    ("DugmeBorderVisible", True), ("DugmeResizeManual", False), ("DugmeWidth", 0), ("DugmeID", 0),
    ("DugmePictureFile", ""), ("DugmeStretchToPicture", 0),
)
TEXT = (
    ("TekstBoxX", 0), ("TekstBoxY", 0), ("TekstBoxCaption", ""), ("TekstBoxVisible", True), ("TekstBoxW", 0),
    ("TekstBoxH", 0), ("TekstBoxFontName", "Arial"), ("TekstBoxFontSize", 10), ("TekstBoxFontB", False),
    ("TekstBoxFontU", False), ("TekstBoxFontI", False), ("TekstBoxTransparent", False),
    ("tekstBoxForeColor", 0), ("tekstBoxBackColor", 0), ("tekstBoxAlign", 0),
)
VIDEO = (
    ("VideoFajl", ""), ("videoAutoplay", False), ("videoLeft", 0), ("videoTop", 0), ("Volume", 20), ("videorepeat", False),
)


def command(title, kind, target, told, parameter="", heading=None):
    """One of the six fixed commands, with the description it shows under the pointer."""
    return dict(Fajl=target, Opis=title, Parametar=parameter, Vrsta=kind, C=heading or title, O=told)


def added(title, target, told, identity, stops_music=0):
    """An additional command that opens a file; the identity ties it to its button."""
    return dict(
        addname=title, adddesctitle=title, adddescription=told, addtarget=target,
        addStopBackgroundMusic=stops_music, AddID=identity,
    )


class Lines:
    """The file as it grows; every value is checked on its way in."""

    def __init__(self, project):
        self.project = project
        self.lines = []

    def section(self, name):
        self.lines.append(f"[{name}]")
        return self.project.get(name, {})

    def keys(self, table, values, form="{}"):
        unknown = set(values) - {k for k, _ in table}
        if unknown:
            raise ValueError(f"no such keys: {sorted(unknown)}")
        for key, default in table:
            self.line(form.format(key), values.get(key, default))

    def line(self, key, value):
        text = str(value)
        if re.sub("[0-9]", "", key) in FREE_TEXT:
            text = encoded(text)
        elif set(text) & set("\r\n&"):
            raise ValueError(f"{key} takes no line breaks and no ampersands")
        if len(text) > VALUE_LIMIT:
            raise ValueError(f"{key} is too long: {len(text)}")
        self.lines.append(f"{key}={text}")


def save_project(path, project):
    out = Lines(project)
    out.keys(BASE, out.section("Osnovna podesavanja"))
    out.keys(MAIN, out.section("Osnovni podaci"))
    write_commands(out)
    out.section("Dodatne komande")
    for i, command in enumerate(project.get("additional", ())):
        out.keys(ADDITIONAL, command, "{}" + str(i))
    out.keys(MENUS, out.section("Menu titles"))
    out.keys(SOUND, out.section("Zvuk"))
    out.keys(SPLASH, out.section("Uvod"))
    out.keys(FAREWELL, out.section("Izlaz"))
    out.section("Fontovi")
    out.keys(EFFECTS, out.section("Efekti"))
    out.keys(MESSAGES, out.section("Poruke"))
    out.keys(EXPIRY, out.section("Expiration"))
    out.section("Precice")
    write_canvas(out)
    put(path, "".join(line + "\r\n" for line in out.lines).encode("cp1252"))


def write_commands(out):
    values = dict(out.section("Izvrsne komande"))
    if "Boja pozadine komandi" in values:
        values["Boja pozadine  komandi"] = values["Boja pozadine komandi"]
    head = {k: values.pop(k) for k, _ in COMMAND_HEAD if k in values}
    out.keys(COMMAND_HEAD, head)
    commands = list(out.project.get("commands", ()))
    commands += [{}] * (6 - len(commands))
    for n, command in enumerate(commands, 1):
        told = {k: v for k, v in command.items() if k not in ("C", "O")}
        out.keys(COMMAND, told, "{}" + str(n))
    out.keys(COMMAND_LOOK, values)
    out.section("Opis komandi")
    for n, command in enumerate(commands, 1):
        out.line(f"C{n}", command.get("C", ""))
        out.line(f"O{n}", command.get("O", ""))


def write_canvas(out):
    project = out.project
    out.keys(CANVAS, out.section("Napredni sabloni"))
    for i in range(4):
        out.keys(FIXED_TEXT, {}, f"{{}}({i})")
    for i, button in enumerate(project.get("buttons", ())):
        out.keys(BUTTON, button, f"{{}}({i})")
    out.line("WindowMaximized", False)
    out.section("ObjTekst")
    for i, text in enumerate(project.get("texts", ()), 1):
        out.keys(TEXT, text, f"{{}}({i})")
    out.section("Video")
    for i, video in enumerate(project.get("videos", ()), 1):
        out.keys(VIDEO, video, "{}" + str(i))
