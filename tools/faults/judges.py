"""What must hold after a command was disturbed. Each judge takes a trial and says what is wrong, or
nothing."""

import os
import signal
from dataclasses import dataclass, field



@dataclass
class Trial:
    """One disturbed run of a command and the same command run again behind it. `old`, `new` and
    `other_new` are what lies in the folder before, after a run of the command and after one of its
    like; `after` and `again` what lay there in truth."""

    command: object
    root: str
    old: dict
    new: dict
    other_new: dict
    after: dict
    code: int | None  # nothing when it had to be ended
    said: str
    wanted_signal: int | None = None  # that the fault itself ended the process with
    fault: tuple | None = None  # class, function and path of the call that had it
    fault_expected: bool = True
    lasting: bool = False
    must_refuse: bool = False
    other: tuple | None = None  # exit code and errors of a second run in the middle
    again: dict | None = None
    again_result: tuple | None = None
    written_through: dict = field(default_factory=dict)  # of outputs that are links: what they show
    ignored: tuple = ()  # names that the disturbance itself laid
    calls: tuple = ()  # class, function and paths of each call of an undisturbed run

    @property
    def killed(self):
        return self.wanted_signal is not None

    def outputs(self, state):
        return {name: state[name] for name in self.command.outputs if name in state}

    def shown(self):
        return {**self.outputs(self.after), **self.written_through}


def comes_to_an_end(trial):
    """No crash and no endless wait; a run in the middle neither."""
    for code in [trial.code, *(trial.other[:1] if trial.other else ())]:
        if code is None:
            return "it did not end"
    if trial.killed:
        if trial.code != -trial.wanted_signal:
            return f"it ended with {trial.code} and not by the signal that it was sent"
    elif trial.code not in (0, 1):
        return f"it ended with {ended(trial.code)}"
    return None


def ended(code):
    return signal.Signals(-code).name if code < 0 else str(code)


def fault_comes(trial):
    """Else the sweep would pass over what it cannot reach."""
    missing = trial.fault_expected and trial.fault is None
    return "the call that was to fail was not reached" if missing else None


def code_tells_the_truth(trial):
    """0 only for whole output; any other code with an error line."""
    if trial.killed or trial.code is None or trial.other:
        return None
    if trial.code == 0:
        wrong = differing(trial.shown(), trial.outputs(trial.new))
        return f"it ended with 0 and not whole: {', '.join(wrong)}" if wrong else None
    return None if trial.said.strip() else f"it ended with {trial.code} and said nothing"


def differing(one, other):
    return sorted(name for name in one.keys() | other.keys() if one.get(name) != other.get(name))


def outputs_are_whole(trial):
    """Each output is the old or the new one, byte for byte; missing only where one of them is."""
    states = [trial.old, trial.new, *([trial.other_new] if trial.other else [])]
    shown = trial.shown()
    wrong = [name for name in trial.command.outputs
             if shown.get(name) not in [state.get(name) for state in states]]
    return "neither old nor new: " + ", ".join(
        f"{name} ({'cut or mixed' if name in shown else 'missing'})" for name in wrong) \
        if wrong else None


def old_or_new_together(trial):
    """After a failure all is old or all is new; an extraction may stop between two files, a build
    also, when it says what it placed and the disc starts."""
    if trial.killed or trial.code in (0, None) or trial.other:
        return None
    shown = trial.shown()
    placed = differing(shown, trial.outputs(trial.old))
    if not placed or not differing(shown, trial.outputs(trial.new)):
        return None
    if trial.command.is_extraction:
        return None
    names = [name.split("/")[-1] for name in placed]
    if trial.command.is_build and all(name in trial.said for name in names) \
            and not disc_starts(trial):
        return None
    return f"a failure left old and new mixed and did not name {', '.join(placed)}"


def refusal_changes_nothing(trial):
    """What cannot be done is refused, before anything is touched."""
    if not trial.must_refuse:
        return None
    if trial.code == 0:
        return "it was not refused"
    wrong = differing(trial.shown(), trial.outputs(trial.old))
    return f"it was refused and changed {', '.join(wrong)}" if wrong else None


def disc_starts(trial):
    """Autorun.inf names a program that is whole, beside a package that is whole."""
    if not trial.command.is_build:
        return None
    inf = trial.after.get("disc/Autorun.inf")
    if not isinstance(inf, bytes):
        same = inf == trial.old.get("disc/Autorun.inf")
        return None if same else "the disc had an Autorun.inf and has none"
    states = (trial.old, trial.new, trial.other_new)
    name = opened_program(inf)
    if name is None:
        return "Autorun.inf names no program"
    programs = [data for state in states for place, data in state.items()
                if place.startswith("disc/") and place.endswith(".exe")]
    if trial.after.get("disc/" + name) not in programs:
        return f"Autorun.inf names {name}, which is missing or not whole"
    if trial.after.get("disc/Autorun.arn") not in [state.get("disc/Autorun.arn", b"none")
                                                   for state in states]:
        return "the package is missing or not whole"
    return None


def opened_program(inf):
    for line in inf.decode("latin-1").splitlines():
        key, _, value = line.partition("=")
        if key.strip().lower() == "open":
            return value.strip()
    return None


def rest_is_untouched(trial):
    """Projects, pictures, templates, the disc's own files and what links lead to."""
    for state in (trial.after, trial.again or {}):
        wrong = [name for name, was in trial.old.items()
                 if name not in trial.command.outputs and state and state.get(name) != was]
        if wrong:
            return f"changed: {', '.join(wrong)}"
    return None


def left_behind(trial, state):
    known = {*trial.old, *trial.new, *trial.other_new, *trial.ignored}
    return sorted(name for name in state if name not in known)


def nothing_is_left(trial):
    """No working file, once the process came to its end by itself. What could not be deleted since
    that very call failed is forgiven."""
    if trial.killed or trial.code is None or trial.lasting:
        return None
    left = [name for name in left_behind(trial, trial.after)
            if not excused(f"{trial.root}/{name}", trial)]
    return f"left behind: {', '.join(left)}" if left else None


def excused(path, trial):
    """Whether the fault was in deleting `path`, or in listing a working folder for that."""
    if trial.fault is None:
        return False
    kind, _, place = trial.fault[:3]
    if kind == "unlink":
        return path == place or path.startswith(place + "/") or place.startswith(path + "/")
    name = os.path.relpath(place, trial.root)
    working_folder = name not in trial.old and trial.after.get(name) == ("folder",)
    return working_folder and kind in ("open", "dir", "stat") and \
        (path == place or path.startswith(place + "/"))


def again_mends(trial):
    """The same command once more, undisturbed, gives what it gives at once."""
    if trial.again is None:
        return None
    code, said = trial.again_result
    if code != 0:
        return f"again, it ended with {code}: {said.strip()}"
    wrong = differing(trial.outputs(trial.again), trial.outputs(trial.new))
    return f"again, it ended with 0 and not whole: {', '.join(wrong)}" if wrong else None


def leftovers_go(trial):
    """What a killed run left is gone after the next one."""
    if trial.again is None:
        return None
    left = left_behind(trial, trial.again)
    return f"still there after another run: {', '.join(left)}" if left else None


def one_of_two_holds(trial):
    """What two runs at once leave is whole of one that ended with 0, and as before where none did.
    Two extractions may mix their files."""
    if not trial.other or trial.command.is_extraction:
        return None
    good = [state for code, state in ((trial.code, trial.new), (trial.other[0], trial.other_new))
            if code == 0]
    left = trial.outputs(trial.after)
    if not any(left == trial.outputs(state) for state in good or [trial.old]):
        return f"two at once ended with {trial.code} and {trial.other[0]} and left neither's output"
    return None


def flushed_before_placed(trial):
    """Output comes into its place by a rename of a file that was flushed, lest a power cut leave an
    empty one. Extracted files can be extracted again."""
    if trial.command.is_extraction:
        return None
    flushed, wrong = set(), []
    places = [f"{trial.root}/{name}" for name in trial.command.written]
    for kind, _, path, target in trial.calls:
        if kind == "sync":
            flushed.add(path)
        elif kind == "create" and path in places:
            wrong.append(path)
        elif kind == "rename" and target in places and path not in flushed:
            wrong.append(target)
    return f"not flushed before it was placed: {', '.join(wrong)}" if wrong else None


JUDGES = (comes_to_an_end, fault_comes, code_tells_the_truth, outputs_are_whole,
          old_or_new_together, refusal_changes_nothing, disc_starts, rest_is_untouched,
          nothing_is_left, again_mends, leftovers_go, one_of_two_holds,
          flushed_before_placed)


def judge(trial, judges=JUDGES):
    return [f"{one.__name__}: {fault}" for one in judges if (fault := one(trial))]
