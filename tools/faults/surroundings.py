"""Disturbances that are none of a single call: full file systems, another user, links and special
files where output goes or input comes from. Each is a context that lays itself into the folder of a
case and yields how the command is run and judged there."""

import contextlib
import os
import pwd
import shutil
from dataclasses import dataclass, field

from commands import PROJECT
from file_system import can_mount, leave_room, mount, unmount

SHARES = 8  # steps in which a file system that is too small grows


@dataclass
class Conditions:
    """`links` are outputs that lead elsewhere; `ignored` what was laid and may change."""

    options: dict = field(default_factory=dict)  # of the process
    must_refuse: bool = False
    mends: bool = False  # run again once the disturbance is gone
    links: tuple = ()
    ignored: tuple = ()
    traced: bool = False  # the calls are noted


def surroundings_of(command, need):
    """Kind and context of each; `need` is what the command writes, in bytes."""
    found = {"undisturbed": undisturbed, "full output": full_output}
    for name in command.written:
        for kind, lay in PLACED.items():
            found[f"{kind} at {name}"] = placed(command, name, kind, lay)
    if command.name in ("build", "resave", "config"):
        for kind, lay in INPUTS.items():
            found[f"{kind} as project"] = unreadable_project(lay)
    if command.name == "config":
        found["project as output"] = project_as_output(command)
    if can_mount():
        for folder in command.folders:
            for share in range(SHARES + 1):
                free = need * share // SHARES
                found[f"room {share}/{SHARES} in {folder}"] = small_file_system(folder, free)
    if os.geteuid() == 0:
        for kind, change in users(command).items():
            found[f"another user, {kind}"] = change
    return found


@contextlib.contextmanager
def undisturbed(_root):
    yield Conditions(traced=True)


@contextlib.contextmanager
def full_output(_root):
    with open("/dev/full", "w", encoding="ascii") as output:
        yield Conditions(options={"stdout": output}, mends=True)


def make_link(path, outside):
    with open(outside, "wb") as file:
        file.write(b"kept outside\n")
    os.symlink(outside, path)


def make_folder(path, _outside):
    os.mkdir(path)
    with open(os.path.join(path, "kept.txt"), "wb") as file:
        file.write(b"kept inside\n")


def make_hard_link(path, outside):
    with open(outside, "wb") as file:
        file.write(b"kept outside\n")
    os.link(outside, path)


PLACED = {
    "link": make_link,
    "dangling link": lambda path, outside: os.symlink(outside, path),
    "hard link": make_hard_link,
    "folder": make_folder,
    "pipe": lambda path, outside: os.mkfifo(path),
    "link to a device": lambda path, outside: os.symlink("/dev/null", path),
}


def placed(command, name, kind, lay):
    """A build and an extraction replace what is no folder or end; the others follow links to files
    and refuse what is none. An own project that is no file cannot be read either."""
    own = command.name == "resave-own"

    @contextlib.contextmanager
    def context(root):
        path, outside = os.path.join(root, name), os.path.join(root, "outside", "kept")
        content = open(path, "rb").read() if own else None
        if os.path.exists(path):
            os.remove(path)
        lay(path, outside)
        leads_to_file = kind in ("link", "hard link")
        if own and leads_to_file:
            with open(path, "wb") as file:
                file.write(content)
        follows = command.follows_links and kind in ("link",) + (() if own else ("dangling link",))
        refused = command.follows_links and not (leads_to_file or follows)
        yield Conditions(must_refuse=refused, links=(name,) if follows else (),
                         ignored=("outside/kept",) if follows else ())

    return context


INPUTS = {
    "nothing": lambda path: None,
    "folder": lambda path: os.mkdir(path),
    "pipe": lambda path: os.mkfifo(path),
    "device": lambda path: os.symlink("/dev/zero", path),
    "memory of a process": lambda path: os.symlink("/proc/self/mem", path),
    "empty file": lambda path: open(path, "wb").close(),
    "picture": lambda path: shutil.copy(os.path.join(os.path.dirname(path), "..", "program",
                                                     "Icons", "book.ico"), path),
}


def unreadable_project(lay):
    @contextlib.contextmanager
    def context(root):
        path = os.path.join(root, PROJECT)
        os.remove(path)
        lay(path)
        yield Conditions(must_refuse=True)

    return context


def project_as_output(command):
    """The configuration would replace the project that it is made from."""
    @contextlib.contextmanager
    def context(root):
        os.remove(os.path.join(root, command.outputs[0]))
        os.link(os.path.join(root, PROJECT), os.path.join(root, command.outputs[0]))
        yield Conditions(must_refuse=True)

    return context


def small_file_system(folder, free):
    """`folder` as a file system with `free` bytes of room."""
    @contextlib.contextmanager
    def context(root):
        path = os.path.join(root, folder)
        aside = path + " aside"
        os.rename(path, aside)
        os.mkdir(path)
        mount(path)
        try:
            shutil.copytree(aside, path, symlinks=True, dirs_exist_ok=True)
            shutil.rmtree(aside)
            leave_room(path, free)
            yield Conditions()
        finally:
            unmount(path)

    return context


def users(command):
    """The command as another user than the one that most of the case belongs to."""
    other = pwd.getpwnam("nobody")
    as_other = {"user": other.pw_uid, "group": other.pw_gid, "extra_groups": []}
    target = os.path.dirname(command.outputs[0])

    def user(change, **conditions):
        @contextlib.contextmanager
        def context(root):
            for folder, folders, files in os.walk(root):
                for name in [".", *folders, *files]:
                    os.chown(os.path.join(folder, name), other.pw_uid, other.pw_gid)
            change(root)
            yield Conditions(options=as_other, **conditions)

        return context

    def foreign(*names, mode=None):
        def change(root):
            for name in names:
                os.chown(os.path.join(root, name), 0, 0)
                if mode is not None:
                    os.chmod(os.path.join(root, name), mode)
        return change

    def foreign_build_folders(root):
        for name in ("TAVMOORbuild", "TAVMOORBuild", "TAVMOORbuild-abcdef"):
            folder = os.path.join(root, "tmp", name)
            os.makedirs(folder)
            with open(os.path.join(folder, "Autorun.arn"), "wb") as file:
                file.write(b"another's\n")
        os.chmod(os.path.join(root, "tmp"), 0o1777)
        os.chown(os.path.join(root, "tmp"), 0, 0)

    def sticky(root):
        foreign(target, mode=0o1777)(root)
        foreign(*(name for name in command.outputs
                  if os.path.exists(os.path.join(root, name))))(root)

    found = {"that can write all": user(lambda root: None),
             "foreign target folder": user(foreign(target, mode=0o755), must_refuse=True)}
    if command.lays_old or command.name == "resave-own":
        found["foreign files in a shared target folder"] = user(sticky, must_refuse=True)
    if command.is_build:
        found["foreign build folders in a shared temporary folder"] = user(foreign_build_folders)
        found["unreadable program of the template"] = user(
            foreign("program/Templates/Marquee/template.tavexe", mode=0o600), must_refuse=True)
    if command.arguments[0] in ("resave", "config"):
        if command.lays_old or command.name == "resave-own":
            found["write-protected output"] = user(
                lambda root: os.chmod(os.path.join(root, command.outputs[0]), 0o444),
                must_refuse=True)
        found["unreadable project"] = user(foreign(PROJECT, mode=0o600), must_refuse=True)
    return found
