"""What lies in a folder: a dictionary from each path below it to what is there."""

import os
import stat

PACKAGE_HEAD_END = b"[Kraj]"
PACKAGE_LINE_END = b"\r\n\r\n\r\n"


def package_content(data):
    """A package without the random bytes of its head: each third byte alone means something."""
    head, mark, files = data.partition(PACKAGE_HEAD_END)
    lines = [line[::3] if line[:1] >= b"\x80" else line for line in head.split(PACKAGE_LINE_END)]
    return (len(data), tuple(lines), mark, files)


def entry(path):
    mode = os.lstat(path).st_mode
    if stat.S_ISLNK(mode):
        return ("link", os.readlink(path))
    if stat.S_ISDIR(mode):
        return ("folder",)
    if not stat.S_ISREG(mode):
        return ("special", stat.S_IFMT(mode))
    with open(path, "rb") as file:
        data = file.read()
    return package_content(data) if path.lower().endswith(".arn") else data


def read(root):
    found = {}
    for folder, folders, files in os.walk(root):
        for name in folders + files:
            path = os.path.join(folder, name)
            found[os.path.relpath(path, root)] = entry(path)
    return found


def through_links(root, name):
    """What a reader of `name` finds; nothing where that is no regular file."""
    path = os.path.join(root, name)
    return entry(os.path.realpath(path)) if os.path.isfile(path) else None
