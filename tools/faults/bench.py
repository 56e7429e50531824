"""Runs one disturbed case after the other in a folder of its own, and gathers what is to be judged."""

import contextlib
import os
import shutil
import signal
import time
from dataclasses import dataclass

import folder_state
from commands import COMMANDS, PATIENCE, Tool, finish, must
from judges import Trial, judge
from kinds import KINDS
from file_system import mount, unmount
from surroundings import surroundings_of


@dataclass(frozen=True)
class Case:
    """`kind` is one of KINDS at a call, from 1 on, or names surroundings."""

    command: str
    kind: str
    call: int = 0


class Bench:
    """The prepared folder of each command, and the states before and after an undisturbed run. Each
    process has one of its own, since all its cases run under one path."""

    def __init__(self, options, scratch):
        self.tool = Tool(os.path.realpath(options.tool), os.path.realpath(options.shim))
        self.judges = options.judges
        self.scratch = os.path.join(scratch, str(os.getpid()))
        self.root = os.path.join(self.scratch, "case")
        self.trace = os.path.join(self.scratch, "trace")
        self.states, self.traces, self.surroundings = {}, {}, {}
        for name in options.commands:
            self.prepare(COMMANDS[name], os.path.realpath(options.program))

    def prepare(self, command, program):
        self.clear()
        command.prepare(self.root, program, self.tool)
        old = folder_state.read(self.root)
        os.makedirs(os.path.dirname(self.pristine(command)), exist_ok=True)
        os.rename(self.root, self.pristine(command))
        other_new = self.undisturbed(command, command.other)
        new = self.undisturbed(command, command.arguments)
        for state in (old, other_new):
            if all(state.get(name) == new.get(name) for name in command.outputs):
                raise SystemExit(f"sweep: {command.name}: old and new output are the same")
        self.states[command.name] = (old, new, other_new)
        self.traces[command.name] = read_trace(self.trace)
        need = sum(os.path.getsize(os.path.join(self.root, name))
                   for name in command.written if name in new)
        self.surroundings[command.name] = surroundings_of(command, need)

    def undisturbed(self, command, arguments):
        with self.fresh(command):
            must(self.tool.run(self.root, arguments, self.watching()),
                 command.name + ", undisturbed,")
            return folder_state.read(self.root)

    def pristine(self, command):
        return os.path.join(self.scratch, "before", command.name)

    def clear(self):
        shutil.rmtree(self.root, ignore_errors=True)
        if os.path.exists(self.trace):
            os.remove(self.trace)

    @contextlib.contextmanager
    def fresh(self, command):
        """The case's folder as the command is to find it; it stays until the next."""
        self.clear()
        shutil.copytree(self.pristine(command), self.root, symlinks=True)
        if command.apart:
            mount(os.path.join(self.root, command.apart))
        try:
            yield
        finally:
            if command.apart:
                unmount(os.path.join(self.root, command.apart))

    def watching(self):
        return {"TAVMOOR_FAULT_BELOW": self.root, "TAVMOOR_FAULT_TRACE": self.trace}

    def run(self, case):
        """The call that had the fault, and what the judges say."""
        command = COMMANDS[case.command]
        with self.fresh(command):
            trial = self.at_call(command, KINDS[case.kind], case.call) if case.call else \
                self.in_surroundings(command, self.surroundings[case.command][case.kind])
        return trial.fault, judge(trial, self.judges)

    def trial(self, command, result, **more):
        old, new, other_new = self.states[command.name]
        return Trial(**{"command": command, "root": self.root, "old": old, "new": new,
                        "other_new": other_new, "after": folder_state.read(self.root),
                        "code": result[0], "said": result[1], **more})

    def at_call(self, command, kind, call):
        fault = {**self.watching(), "TAVMOOR_FAULT_CALL": str(call),
                 "TAVMOOR_FAULT_KIND": kind.fault, "TAVMOOR_FAULT_CLASSES": ",".join(kind.classes)}
        if kind.lasting:
            fault["TAVMOOR_FAULT_LASTING"] = "1"
        process = self.tool.start(self.root, command.arguments, fault)
        meanwhile = kind is KINDS["another-run"]
        other = self.run_meanwhile(process, command) if meanwhile else None
        result = finish(process)
        struck = [tuple(one[1:5]) for one in read_trace(self.trace) if one[5] == "!"]
        trial = self.trial(command, result, wanted_signal=kind.ends_by, other=other,
                           lasting=kind is KINDS["gone-from"],
                           fault=struck[0] if struck else None)
        if result[0] != 0 and not meanwhile:
            self.run_again(trial)
        return trial

    def run_again(self, trial):
        trial.again_result = self.tool.run(self.root, trial.command.arguments)
        trial.again = folder_state.read(self.root)

    def run_meanwhile(self, process, command):
        """Once the process has stopped itself, or ended, its like runs to its end."""
        deadline = time.monotonic() + PATIENCE
        states = os.WSTOPPED | os.WEXITED | os.WNOHANG | os.WNOWAIT
        while os.waitid(os.P_PID, process.pid, states) is None and time.monotonic() < deadline:
            time.sleep(0.001)
        try:
            return self.tool.run(self.root, command.other)
        finally:
            process.send_signal(signal.SIGCONT)

    def in_surroundings(self, command, surroundings):
        with surroundings(self.root) as conditions:
            old = folder_state.read(self.root)
            result = self.tool.run(self.root, command.arguments,
                                   self.watching() if conditions.traced else None,
                                   **conditions.options)
            trial = self.trial(command, result, fault_expected=False, old=old,
                               must_refuse=conditions.must_refuse, ignored=conditions.ignored,
                               calls=tuple(tuple(one[1:5]) for one in read_trace(self.trace)))
            for name in conditions.ignored:
                trial.old.pop(name, None)
            for name in conditions.links:
                trial.written_through[name] = folder_state.through_links(self.root, name)
            if conditions.mends:
                self.run_again(trial)
            return trial


def read_trace(path):
    """Number, class, function, both paths and the mark of each call."""
    if not os.path.exists(path):
        return []
    with open(path, encoding="utf-8", errors="replace") as file:
        calls = [line.rstrip("\n").split("\t") for line in file]
    return [(int(call[0]), *call[1:]) for call in calls]
