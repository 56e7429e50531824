#!/usr/bin/python3 -B
"""Checks the finished content as the program will meet it: what the examples
name is there, nothing breaks the limits of a package, and files are sound.

Reads the files by itself and shares no code with the scripts that write them.
"""

import pathlib
import re
import struct
import sys
import wave

from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = ROOT / "program"
SIZE_LIMIT = 6_000_000
PACKAGE_LIMIT = 20  # files, the configuration among them
NAME_SET = re.compile(r"[0-9A-Za-z:\\().\-_!+@# ]+")
SECTIONS = (
    "Osnovna podesavanja", "Osnovni podaci", "Izvrsne komande", "Opis komandi", "Dodatne komande", "Menu titles", "Zvuk",
    "Uvod", "Izlaz", "Fontovi", "Efekti", "Poruke", "Expiration", "Precice", "Napredni sabloni", "ObjTekst", "Video",
)
# Only these keys have their leading % replaced by the program's folder.
HOME_KEYS = re.compile(r"Sablon|Pozadinska slika|Logoslika|Fajl|DugmePictureFile\(\d+\)|VideoFajl\d+")
FIXED_IDS = ("1093303", "4399733", "2133823", "5093223", "7093523", "9493723")
KINDS = {"Open file", "Run program", "Visit web page", "Send mail"}

faults = []


def expect(true, *words):
    if not true:
        faults.append(" ".join(str(w) for w in words))


def on_disk(home_path):
    return PROGRAM / home_path[1:].replace("\\", "/")


def read_project(path):
    data = path.read_bytes()
    expect(data.count(b"\n") == data.count(b"\r\n") == data.count(b"\r"), path.name, "has lines that do not end in CR LF")
    expect(data.isascii(), path.name, "is not plain ASCII")
    project, section = {}, None
    for line in data.decode("cp1252").split("\r\n")[:-1]:
        if line.startswith("["):
            section = line[1:-1]
            project[section] = {}
            continue
        key, _, value = line.partition("=")
        expect(key not in project[section], path.name, "repeats", key)
        expect(len(value) < 1024, path.name, key, "is too long")
        project[section][key] = value
    expect(tuple(project) == SECTIONS, path.name, "has its sections out of order")
    return project


def check_paths(name, project):
    """Files are found, and their bare names stay apart in the package."""
    packed = set()
    for section, values in project.items():
        for key, value in values.items():
            if not value.startswith("%"):
                continue
            expect(HOME_KEYS.fullmatch(key), name, key, "does not take the % form")
            expect(on_disk(value).is_file(), name, "names a missing file", value)
            if key != "Sablon":
                packed.add(value)
    names = [p.rsplit("\\", 1)[-1] for p in packed]
    expect(len(set(n.lower() for n in names)) == len(names), name, "packs two files of one name")
    expect(len(names) + 1 <= PACKAGE_LIMIT, name, "packs too many files")
    expect(all(NAME_SET.fullmatch(n) for n in names), name, "has a file name outside the permitted characters")


def commands_of(project):
    head, extra = project["Izvrsne komande"], project["Dodatne komande"]
    fixed = [(head[f"Opis{n}"], head[f"Vrsta{n}"], head[f"Fajl{n}"]) for n in range(1, 7) if head[f"Opis{n}"]]
    count = sum(k.startswith("addname") for k in extra)
    return fixed + [(extra[f"addname{i}"], extra[f"addtype{i}"], extra[f"addtarget{i}"]) for i in range(count)]


def check_targets(name, project):
    disc = PROGRAM / "Examples" / name.removesuffix(".tavp") / "Disc"
    for title, kind, target in commands_of(project):
        expect(kind in KINDS, name, title, "is of no known kind:", kind)
        if kind in ("Open file", "Run program"):
            expect((disc / target.replace("\\", "/")).is_file(), name, title, "has a missing target", target)
        else:
            expect(re.search(r"[@./]example\.com", target), name, title, "leads to a real address", target)


def check_canvas(name, project):
    """Every command has its one button, and all objects lie inside the window."""
    canvas, extra = project["Napredni sabloni"], project["Dodatne komande"]
    ids = [v for k, v in canvas.items() if k.startswith("DugmeID(")]
    if not ids:
        return
    added = [v for k, v in extra.items() if k.startswith("AddID")]
    fixed = [FIXED_IDS[n - 1] for n in range(1, 7) if project["Izvrsne komande"][f"Opis{n}"]]
    sound = ["9999999"] if project["Zvuk"]["Fajl"] else []
    expect(ids == ["0"] + sound + fixed + added, name, "ties its buttons wrongly:", ids)
    width, height = int(canvas["AutorunWidth"]), int(canvas["AutorunHeight"])
    for values in (canvas, project["ObjTekst"], project["Video"]):
        for key, value in values.items():
            if re.search(r"(X|Left)(\(|\d|$)", key):
                expect(0 <= int(value) < width, name, key, "is outside the window")
            elif re.search(r"(Y|Top)(\(|\d|$)", key):
                expect(0 <= int(value) < height, name, key, "is outside the window")


def check_examples():
    kinds = set()
    for path in sorted((PROGRAM / "Examples").glob("*.tavp")):
        project = read_project(path)
        check_paths(path.name, project)
        check_targets(path.name, project)
        check_canvas(path.name, project)
        kinds |= {kind for _, kind, _ in commands_of(project)}
    expect(kinds == KINDS, "no example uses", KINDS - kinds)


def check_templates():
    for path in sorted((PROGRAM / "Templates").rglob("*tavt")):
        text = path.read_bytes().decode("cp1252")
        expect(re.search(r"^\[Template\]\r\nName=.+\r\ncommand number=\d+\r\n", text), path.name, "is no descriptor")
        rich = (path.parent / "opis.rtf").read_text("cp1252")
        expect(rich.startswith("{\\rtf1") and rich.count("{") == rich.count("}"), path.name, "has a broken description")
        expect(Image.open(path.parent / "template.jpg").size == (594, 322), path.name, "has a preview of another size")


def check_icons():
    for path in sorted((PROGRAM / "Icons").glob("*.ico")) + [ROOT / "runtime" / "autorun.ico"]:
        data = path.read_bytes()
        count = struct.unpack_from("<H", data, 4)[0]
        entries = [struct.unpack_from("<BBBBHHII", data, 6 + 16 * k) for k in range(count)]
        expect([e[0] for e in entries] == [16, 32, 48, 0], path.name, "lacks a size")
        expect(entries[-1][7] + entries[-1][6] == len(data), path.name, "has a wrong directory")
        expect(Image.open(path).convert("RGBA").getextrema()[3][0] == 0, path.name, "has no clear corner")


def check_sounds():
    for path in sorted((PROGRAM / "Sound" / "Mouse over").glob("*.wav")):
        with wave.open(str(path)) as sound:
            form = sound.getnchannels(), sound.getsampwidth(), sound.getframerate()
            expect(form == (1, 2, 22050), path.name, "has the form", form)
            seconds = sound.getnframes() / sound.getframerate()
            expect(0.059 < seconds < 0.251, path.name, "lasts", seconds)


def check_all_files():
    total = 0
    for path in sorted(p for p in PROGRAM.rglob("*") if p.is_file()):
        total += path.stat().st_size
        if path.suffix in (".jpg", ".gif", ".bmp"):
            Image.open(path).load()
    expect(total < SIZE_LIMIT, "the program folder has grown to", total, "bytes")
    return total


def main():
    check_examples()
    check_templates()
    check_icons()
    check_sounds()
    total = check_all_files()
    for fault in faults:
        print("FAULT:", fault)
    print(f"{total} bytes, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
