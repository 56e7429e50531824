"""File systems in memory, for folders that are to be full or lie elsewhere. They need root."""

import functools
import os
import subprocess
import tempfile


@functools.cache
def can_mount():
    with tempfile.TemporaryDirectory() as folder:
        try:
            mount(folder)
            unmount(folder)
            return True
        except (subprocess.CalledProcessError, OSError):
            return False


def mount(folder):
    call("mount", "-t", "tmpfs", "tmpfs", folder)


def unmount(folder):
    call("umount", "--lazy", folder)


def unmount_all(folder):
    """What an interrupted sweep left below `folder`."""
    with open("/proc/mounts", encoding="utf-8") as mounts:
        for place in [line.split()[1] for line in mounts]:
            if place.startswith(folder + "/"):
                unmount(place)


def leave_room(folder, free):
    """Makes the file system at `folder` so small that `free` bytes, in whole pages, are left."""
    room = os.statvfs(folder)
    used = room.f_blocks - room.f_bfree
    pages = max(used + -(-free // room.f_frsize), 1)
    call("mount", "-o", f"remount,size={pages * room.f_frsize}", folder)


def call(*words):
    subprocess.run(words, capture_output=True, check=True)
