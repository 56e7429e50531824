"""The commands that are swept: what lies in a folder before, how each is called, and what it writes.

A case has a folder of its own: `program` (templates, pictures), `tmp` and `home` of the process,
`outside` for what links lead to, and what the command needs. It lies there before as an earlier run
of the command on another project left it."""

import os
import shutil
import subprocess

PROJECT = "work/album.tavp"
OTHER_PROJECT = "work/other.tavp"
SOUND = "Fajl=%Examples\\Photo album\\tide.wav"
TEMPLATES = ("Marquee", "Nexus")
PROGRAM_PART = "template.tavexe"  # of a template: its autorun program
PATIENCE = 10  # seconds; a command takes some hundredths of one


class Tool:
    """Runs tavmoor-cli in the folder of a case."""

    def __init__(self, path, shim):
        self.path, self.shim = path, shim

    def start(self, root, arguments, fault=None, **options):
        environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8",
                       "TMPDIR": os.path.join(root, "tmp"), "HOME": os.path.join(root, "home"),
                       "XDG_CONFIG_HOME": os.path.join(root, "home")}
        if fault is not None:
            environment.update(fault, LD_PRELOAD=self.shim)
        return subprocess.Popen([self.path, *arguments], cwd=root, env=environment, text=True,
                                errors="replace", stdin=subprocess.DEVNULL,
                                **{"stdout": subprocess.DEVNULL, "stderr": subprocess.PIPE,
                                   **options})

    def run(self, root, arguments, fault=None, **options):
        """The exit code, or nothing when it had to be ended, and what it said of errors."""
        process = self.start(root, arguments, fault, **options)
        return finish(process)


def finish(process):
    try:
        said = process.communicate(timeout=PATIENCE)[1]
        return process.returncode, said
    except subprocess.TimeoutExpired:
        process.kill()
        return None, process.communicate()[1]


class Command:
    """`arguments` and `other` are the command and its like on another project, whose output lies
    there before where `lays_old`. `written` are the names that it writes, `outputs` those as well
    that only the other one does; `folders` can be a file system of their own, and `apart` always is
    one. With `follows_links` a link at an output is written through."""

    def __init__(self, name, arguments, other, written, folders, follows_links=False, lays_old=True,
                 others=(), apart=None):
        self.name, self.arguments, self.other = name, arguments, other
        self.written, self.outputs, self.folders = written, (*written, *others), folders
        self.follows_links, self.lays_old, self.apart = follows_links, lays_old, apart

    @property
    def is_build(self):
        return self.arguments[0] == "build"

    @property
    def is_extraction(self):
        return self.arguments[0] == "package"

    def prepare(self, root, program, tool):
        """Lays the folder out; what the command finds there is made by the tool itself. Some output
        holds the folder's path, so that a copy elsewhere would not do."""
        lay_program(program, os.path.join(root, "program"))
        for name in ("work", "tmp", "home", "outside", "disc/photos", "into"):
            os.makedirs(os.path.join(root, name))
        example = os.path.join(program, "Examples", "Photo album")
        shutil.copy(os.path.join(example, "Disc", "about.txt"), os.path.join(root, "disc"))
        shutil.copy(os.path.join(example, "Disc", "photos", "dunes.jpg"),
                    os.path.join(root, "disc", "photos"))
        write_projects(example + ".tavp", root)
        if self.is_extraction:
            pack(root, tool)
        if self.lays_old:
            must(tool.run(root, self.other), f"{self.name}: the earlier run")
        if not self.is_build:
            for template in TEMPLATES:  # they are large, and copied for each case
                os.remove(os.path.join(root, "program", "Templates", template, PROGRAM_PART))


def must(result, what):
    code, said = result
    if code != 0:
        raise SystemExit(f"sweep: {what} ended with {code}: {said}")


def lay_program(program, target):
    for template in TEMPLATES:
        source = os.path.join(program, "Templates", template)
        if not os.path.exists(os.path.join(source, PROGRAM_PART)):
            raise SystemExit(f"sweep: no autorun program in {source}: build autorun_programs with "
                             "the preset windows")
        os.makedirs(os.path.join(target, "Templates", template))
        for name in (template + ".tavt", PROGRAM_PART):
            shutil.copy(os.path.join(source, name), os.path.join(target, "Templates", template))
    pictures = os.path.join(target, "Examples", "Photo album")
    os.makedirs(pictures)
    for name in ("back.jpg", "shutter.gif"):
        shutil.copy(os.path.join(program, "Examples", "Photo album", name), pictures)
    os.makedirs(os.path.join(target, "Icons"))
    for name in ("book.ico", "camera.ico"):
        shutil.copy(os.path.join(program, "Icons", name), os.path.join(target, "Icons"))


def write_projects(example, root):
    """Two small projects that differ in all that their output shows. A comment, which no save keeps,
    tells a project from its resaved form. An icon's path is whole, and belongs to this folder."""
    with open(example, encoding="latin-1", newline="") as file:
        text = file.read()
    if SOUND not in text:
        raise SystemExit(f"sweep: {example} has changed: no {SOUND}")
    small = "; by hand\r\n" + text.replace(SOUND, "Fajl=")
    icon = "Ikona=Z:" + os.path.join(root, "program", "Icons").replace("/", "\\")
    album = small.replace("Ikona=", icon + "\\camera.ico")
    other = (small.replace("Ikona=", icon + "\\book.ico")
             .replace("Templates\\Marquee\\Marquee", "Templates\\Nexus\\Nexus")
             .replace("Logoslika=%Examples\\Photo album\\shutter.gif", "Logoslika=")
             .replace("Light on the water", "Another album, and one of a longer title"))
    for name, content in ((PROJECT, album), (OTHER_PROJECT, other)):
        with open(os.path.join(root, name), "w", encoding="latin-1", newline="") as file:
            file.write(content)


def pack(root, tool):
    """Two packages: album.arn and other.arn, and nothing else of a build."""
    for project in (PROJECT, OTHER_PROJECT):
        folder = os.path.join(root, "packed")
        os.makedirs(folder)
        must(tool.run(root, build(project, "packed", "packed")), "the build of a package")
        os.replace(os.path.join(folder, "Autorun.arn"),
                   os.path.join(root, os.path.splitext(project)[0] + ".arn"))
        shutil.rmtree(folder)


def build(project, folder, name):
    return ["build", project, "--cd-folder", folder, "--name", name, "--program-folder", "program"]


def on_project(command, project, target):
    return [command, project, target, "--program-folder", "program"]


def extract(package):
    return ["package", "extract", package, "into"]


DISC = ("disc/Autorun.arn", "disc/Autorun.ico", "disc/Autorun.inf")
BUILD = build(PROJECT, "disc", "photos")
SAME_NAME = build(OTHER_PROJECT, "disc", "photos")
OTHER_NAME = build(OTHER_PROJECT, "disc", "older")
PROGRAM, OLDER_PROGRAM = "disc/photos.exe", "disc/older.exe"

COMMANDS = {command.name: command for command in (
    Command("build", BUILD, SAME_NAME, (PROGRAM, *DISC), ("disc", "tmp")),
    Command("build-apart", BUILD, SAME_NAME, (PROGRAM, *DISC), ("disc",), apart="tmp"),
    Command("build-renamed", BUILD, OTHER_NAME, (PROGRAM, *DISC), ("disc", "tmp"),
            others=(OLDER_PROGRAM,)),
    Command("build-fresh", BUILD, OTHER_NAME, (PROGRAM, *DISC), ("disc", "tmp"),
            lays_old=False, others=(OLDER_PROGRAM,)),
    Command("resave", on_project("resave", PROJECT, "into/saved.tavp"),
            on_project("resave", OTHER_PROJECT, "into/saved.tavp"), ("into/saved.tavp",),
            ("into",), follows_links=True),
    Command("resave-own", on_project("resave", PROJECT, PROJECT),
            on_project("resave", OTHER_PROJECT, PROJECT), (PROJECT,), ("work",), follows_links=True,
            lays_old=False),
    Command("config", on_project("config", PROJECT, "into/tavmoor.cfg"),
            on_project("config", OTHER_PROJECT, "into/tavmoor.cfg"), ("into/tavmoor.cfg",),
            ("into",), follows_links=True),
    Command("extract", extract("work/album.arn"), extract("work/other.arn"),
            ("into/tavmoor.cfg", "into/back.jpg", "into/shutter.gif", "into/camera.ico"), ("into",),
            others=("into/book.ico",)),
)}
