"""The faults that a single call can have, and the classes of calls at which each is tried."""

import errno
import signal
from dataclasses import dataclass

ALL = ("open", "create", "read", "write", "sync", "close", "rename", "unlink", "mkdir", "stat",
       "dir", "space", "copy", "link", "mode", "lock")
LOOKING = ("open", "read", "stat", "dir")  # these change nothing
ROOM = ("create", "write", "mkdir", "space", "copy", "link")  # these need some
NAMES = ("open", "create", "rename", "unlink", "mkdir", "stat", "dir", "link", "mode")


@dataclass(frozen=True)
class Kind:
    """`fault` in the words of the preloaded library."""

    fault: str
    classes: tuple
    lasting: bool = False
    ends_by: int | None = None  # a signal
    only: str = ""  # commands whose name starts so


def error(number, classes, **options):
    return Kind(f"error {number}", classes, **options)


KINDS = {
    "EIO": error(errno.EIO, ALL),
    "EACCES": error(errno.EACCES, NAMES),
    "ENOSPC": error(errno.ENOSPC, (*ROOM, "sync", "close", "rename")),
    "EXDEV": error(errno.EXDEV, ("rename", "link")),
    "full-from": error(errno.ENOSPC, ROOM, lasting=True),
    "gone-from": error(errno.EIO, ALL, lasting=True),
    "short": Kind("short", ("read", "write", "copy")),
    "kill-before": Kind(f"before {signal.SIGKILL:d}", ALL, ends_by=signal.SIGKILL),
    "kill-after": Kind(f"after {signal.SIGKILL:d}", ALL, ends_by=signal.SIGKILL),
    "interrupt": Kind(f"before {signal.SIGINT:d}", ALL, only="build"),
    "another-run": Kind(f"before {signal.SIGSTOP:d}", ALL),
}
