#!/usr/bin/env python3
"""Drives the built program by keys and clicks on a screen of its own, from its start to a built
disc folder, and reads the result back with tavmoor-cli.

usage: build_a_disc.py PROGRAM_FOLDER CONTROL_MAP AUTORUN_PROGRAMS

AUTORUN_PROGRAMS is the program folder that has the autorun programs of the templates, which are
built for Windows: another build than that of the program."""
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds for one step; sanitizers and a busy machine are slow


def fail(text):
    sys.exit(f"FAILED: {text}")


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.1)
    fail(f"waited {PATIENCE} s for {what}")


class Screen:
    """A virtual screen without a window manager."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1000x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as numbers:
            self.name = ":" + numbers.readline().strip()

    def xdotool(self, *arguments):
        done = subprocess.run(["xdotool", *map(str, arguments)], text=True, capture_output=True,
                              env={**os.environ, "DISPLAY": self.name})
        return done.stdout

    def windows(self):
        """The visible windows: {identity: (left, top, width, height)}."""
        found = {}
        for window in self.xdotool("search", "--onlyvisible", "--name", ".").split():
            lines = self.xdotool("getwindowgeometry", "--shell", window).splitlines()
            values = dict(line.split("=") for line in lines if "=" in line)
            if "WIDTH" in values:
                found[window] = tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))
        return found

    def close(self):
        self.server.terminate()
        self.server.wait()


class Hands:
    """Clicks and types in the program's windows, which are told apart by their sizes."""

    def __init__(self, screen, controls):
        self.screen = screen
        self.controls = controls

    def place_of(self, window):
        size = tuple(self.controls[window, "."][2:])

        def find():
            for place in self.screen.windows().values():
                if place[2:] == size:
                    return place
            return None

        return wait_for(f"the window {window} of {size}", find)

    def click(self, window, control, row=None):
        """Clicks in the middle of a control, or on a row of a list, counted from 0."""
        place = self.place_of(window)
        left, top, width, height = self.controls[window, control]
        x = place[0] + left + width // 2
        y = place[1] + top + (height // 2 if row is None else 12 + row * 18)
        self.screen.xdotool("mousemove", "--sync", x, y)
        time.sleep(0.1)
        self.screen.xdotool("click", 1)
        time.sleep(0.3)

    def type(self, text):
        self.screen.xdotool("type", "--delay", 15, text)
        time.sleep(0.2)

    def key(self, *keys):
        self.screen.xdotool("key", "--delay", 30, *keys)
        time.sleep(0.2)

    def fill(self, window, control, text):
        self.click(window, control)
        self.key("ctrl+a")
        self.type(text)


def read_controls(control_map, program_folder):
    """The places of all controls: {(window, control): (left, top, width, height)}."""
    lines = subprocess.run([control_map, program_folder], text=True, capture_output=True, check=True,
                           env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}).stdout.splitlines()
    controls = {}
    for line in lines:
        window, control, *numbers = line.split()
        controls[window, control] = tuple(map(int, numbers))
    return controls


def drive(hands, disc, project):
    hands.fill("Frame2", "Text23", disc)
    hands.key("Tab")
    hands.click("Frame2", "Command11")
    hands.click("Form7", "Option2")
    hands.click("Form7", "List1", row=0)
    hands.click("Form7", "Command1")

    hands.click("Frame2", "Command3")
    hands.fill("Frame3", "Text1", "Made from outside")
    hands.click("Frame2", "Command4")
    hands.fill("Frame4", "Text24", "Read me")
    hands.fill("Frame4", "Text11", "readme.txt")
    hands.click("Frame4", "Check9")
    hands.click("Frame4", "Command10")
    hands.click("Frame9", "Check1")

    hands.key("ctrl+s")
    time.sleep(1.5)
    hands.type(project)
    hands.key("Return")
    wait_for("the saved project", lambda: os.path.exists(project))

    hands.click("Frame9", "Command6")
    hands.fill("Form8", "Text1", "start")
    hands.click("Form8", "Command1")
    wait_for("Autorun.inf", lambda: os.path.exists(os.path.join(disc, "Autorun.inf")))
    time.sleep(1)
    hands.key("Escape")
    hands.place_of("Frame2")
    hands.key("ctrl+s")
    hands.click("Frame2", "Label24")
    hands.click("menu1", "Entry5")


def check(cli, disc, project):
    for name in ("start.exe", "Autorun.arn", "Autorun.inf", "readme.txt"):
        if not os.path.exists(os.path.join(disc, name)):
            fail(f"{name} is missing in the disc folder: {os.listdir(disc)}")
    shown = json.loads(subprocess.run([cli, "show", project, "--json"], check=True, text=True,
                                      capture_output=True).stdout)
    flat = json.dumps(shown)
    for expected in ("Made from outside", "Read me", "readme.txt", "start.exe"):
        if expected not in flat:
            fail(f"the project does not hold {expected!r}: {flat}")
    listed = subprocess.run([cli, "package", "list", os.path.join(disc, "Autorun.arn")], check=True,
                            text=True, capture_output=True).stdout
    if "tavmoor.cfg" not in listed:
        fail(f"the package holds no configuration: {listed}")
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([cli, "package", "extract", os.path.join(disc, "Autorun.arn"), folder],
                       check=True, capture_output=True)
        with open(os.path.join(folder, "tavmoor.cfg"), encoding="latin-1") as file:
            configuration = file.read()
    for line in ("Tasknaslov=Made from outside", "Opis1=Read me", "Fajl1=readme.txt", "Zatvara1=1"):
        if line not in configuration.splitlines():
            fail(f"the configuration lacks {line!r}")


def copy_program(program_folder, autorun_programs, program):
    """A copy, since the program keeps its settings beside itself."""
    shutil.copytree(program_folder, program)
    if os.path.exists(os.path.join(program, "tavmoor.ini")):
        os.remove(os.path.join(program, "tavmoor.ini"))
    for template in os.listdir(os.path.join(program, "Templates")):
        name = os.path.join("Templates", template, "template.tavexe")
        if not os.path.exists(os.path.join(program, name)):
            shutil.copy(os.path.join(autorun_programs, name), os.path.join(program, name))


def main():
    program_folder, control_map, autorun_programs = sys.argv[1:]
    controls = read_controls(control_map, program_folder)
    with tempfile.TemporaryDirectory(prefix="tavmoor-end-to-end-") as folder:
        program = os.path.join(folder, "program")
        copy_program(program_folder, autorun_programs, program)
        disc = os.path.join(folder, "disc")
        os.mkdir(disc)
        with open(os.path.join(disc, "readme.txt"), "w", encoding="ascii") as file:
            file.write("Welcome\n")
        project = os.path.join(folder, "made.tavp")
        screen = Screen()
        try:
            environment = {**os.environ, "DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb",
                           "HOME": folder, "XDG_CONFIG_HOME": folder, "XDG_DATA_HOME": folder,
                           "LC_ALL": "C.UTF-8", "LSAN_OPTIONS": "suppressions=" + os.path.join(
                               os.path.dirname(os.path.abspath(__file__)), "foreign_leaks.txt")}
            running = subprocess.Popen([os.path.join(program, "tavmoor")], env=environment,
                                       cwd=folder)
            drive(Hands(screen, controls), disc, project)
            if running.wait(PATIENCE) != 0:
                fail(f"the program ended with {running.returncode}")
        finally:
            running.kill()
            screen.close()
        check(os.path.join(program, "tavmoor-cli"), disc, project)
        if not os.path.exists(os.path.join(program, "tavmoor.ini")):
            fail("no settings were written at the end")
    print("A disc was built from outside.")


if __name__ == "__main__":
    main()
