"""The probes of a file."""

from __future__ import annotations

import os
import weakref
from array import array
from dataclasses import dataclass
from functools import partial
from types import TracebackType
from typing import Any, Callable, Dict, Iterator, List, MutableMapping, NoReturn, Optional, Tuple, Type, TypeVar, Union

from . import _low
from ._host import PathText, Platform
from ._low import ConversionType, ProbeFileError as ProbeFileErrorCode, ProbeProblem
from ._runtime import QuorError, known
from ._settings import Conversion

_Result = TypeVar("_Result")
_LOWER = str.maketrans("ABCDEFGHIJKLMNOPQRSTUVWXYZ", "abcdefghijklmnopqrstuvwxyz")


@dataclass(frozen=True)
class Problem:
    """What is wrong with a probe, or with the file around it."""

    kind: Union[ProbeProblem, int]
    line: int  #: from 1; 0 for what stands beside the file
    section: str  #: empty where it has no name
    key: str  #: empty where it is not that of one key
    text: str  #: what is wrong, for a person, without the place

    @property
    def is_warning(self) -> bool:
        """The value can be read, and can hardly be meant."""
        return self.kind >= ProbeProblem.WARNING_R0_NOT_POSITIVE


@dataclass(frozen=True)
class Conflict:
    """A value that another program has changed as well since it was read. Empty is a value that is not there."""

    section: str
    key: str
    read: str
    theirs: str
    ours: str


class ProbeFileError(QuorError):
    """What cannot be done with a probe of a file, and why: `code`, with `other`, another probe or section, or a type."""

    def __init__(self, error: QuorError, code: int, other: str, problems: Tuple[Problem, ...]) -> None:
        super().__init__(error.number, error.source, error.description, error.help_file, error.help_context)
        self.code = known(ProbeFileErrorCode, code)
        self.other = other
        self.problems = problems


class IncompleteProbeError(ProbeFileError):
    """A probe of which something is missing or cannot be read. `conversion` has default values in these places."""

    def __init__(self, error: QuorError, problems: Tuple[Problem, ...], conversion: Conversion) -> None:
        super().__init__(error, ProbeFileErrorCode.INCOMPLETE, "", problems)
        self.conversion = conversion


class ConflictError(QuorError):
    """Another program has changed the same values meanwhile. Nothing was written."""

    def __init__(self, error: QuorError, conflicts: Tuple[Conflict, ...]) -> None:
        values = "; ".join(f"[{one.section}] {one.key}: {one.read or '(none)'} was read, theirs is "
                           f"{one.theirs or '(none)'}, ours {one.ours or '(none)'}" for one in conflicts)
        super().__init__(error.number, error.source, f"{error.description}: {values}", error.help_file,
                         error.help_context)
        self.conflicts = conflicts


class ProbeTable:
    """The numbers of all probes of a file, one array behind the other, as they were when it was made.

    `values[ends[i - 1]:ends[i]]` are those of probe i, whose names are `key_lists[key_list_of[i]]`. Booleans are 1.0 and
    0.0; texts, such as units, are not among them."""

    def __init__(self, table: _low.ProbeTable) -> None:
        self.sections: List[str] = table.Sections.split("\n")[:-1]
        self.types: array[int] = table.Types
        self.problem_counts: array[int] = table.ProblemCounts  #: -1 for a probe whose type cannot be read
        self.key_lists: List[Tuple[str, ...]] = [tuple(filter(None, line.split("\t")))
                                                 for line in table.KeyLists.split("\n")[:-1]]
        self.key_list_of: array[int] = table.KeyListOf
        self.ends: array[int] = table.ValueEnds
        self.values: array[float] = table.Values

    def __len__(self) -> int:
        return len(self.sections)

    def __getitem__(self, index: int) -> Dict[str, Any]:
        """A probe as a row: "section", "type", "problems", and each number under its key."""
        place = range(len(self))[index]
        begin = self.ends[place - 1] if place > 0 else 0
        row: Dict[str, Any] = {"section": self.sections[place], "type": known(ConversionType, self.types[place]),
                               "problems": self.problem_counts[place]}
        row.update(zip(self.key_lists[self.key_list_of[place]], self.values[begin:self.ends[place]]))
        return row

    def __iter__(self) -> Iterator[Dict[str, Any]]:
        return (self[place] for place in range(len(self)))


def _folded(section: str) -> str:
    """Names of sections are the same in any case of ASCII letters."""
    return section.translate(_LOWER)


def _section(section: object) -> str:
    if not isinstance(section, str):
        raise TypeError(f"probes are named by their sections, texts, and not by {section!r}")
    return section


def _require_name(name: str) -> None:
    """ValueError for a name that a file cannot give back, or that other programs take for something else."""
    reason = ("a name needs a character" if not name else
              'a "]" ends the name in the file' if "]" in name else
              "it has a line break" if "\n" in name or "\r" in name else
              "what begins so is a comment to other programs" if name[0] in "#;" else
              "blanks around it are lost in the file" if name != name.strip() else None)
    if reason is not None:
        raise ValueError(f"no section can have the name {name!r}: {reason}")


class ProbeFile(MutableMapping[str, Conversion]):
    """The probes of a host's file, or the one of a stand-alone settings file ("prt-1188.cvd"): sections to conversions.

        with ProbeFile("laboratory.ini") as file:
            file["Probe 9 PRT-1182"].settings.R0 = 100.0123

    What was changed, added and removed is saved together at the end of the block, or by `save`: all of it or nothing,
    and nothing when an exception leaves the block. Of a probe that was read the values that differ are written, so that
    what another program has written meanwhile stays; where both have changed a value, ConflictError is raised. No other
    line of the file changes.

    A probe is read when it is first looked at. One that is not whole raises IncompleteProbeError, which has its values;
    `read` gives them without. `platform` is that of the conversions."""

    def __init__(self, path: PathText, create: bool = False, platform: Optional[Platform] = None) -> None:
        """Loads the file. Without `create` it must be there; with it the first save makes it."""
        self._path = os.path.abspath(os.fspath(path))
        self._create = create
        self._platform = platform
        self._file = _low.ProbeFile(self._path, create)
        self._probes: Dict[str, Tuple[str, Optional[Conversion], bool]] = {}  # folded -> section, None: removed, read
        self._before: Dict[str, int] = {}  # the types that were read

    @property
    def path(self) -> str:
        return self._path

    @property
    def store(self) -> _low.INIFile:
        """The file itself, for its other sections. What is written through it is saved at once."""
        store = self._file.Store
        assert isinstance(store, _low.INIFile)
        return store

    # The probes

    def _call(self, call: Callable[[], _Result]) -> _Result:
        try:
            return call()
        except QuorError as error:
            self._raise(self._file, error)

    @staticmethod
    def _raise(file: _low.ProbeFile, error: QuorError) -> NoReturn:
        if file.ErrorCode:
            raise ProbeFileError(error, file.ErrorCode, file.ErrorOther, _problems(file)) from None
        if file.ConflictCount:
            raise ConflictError(error, _conflicts(file)) from None
        raise error

    def __getitem__(self, section: str) -> Conversion:
        _section(section)
        pending = self._probes.get(_folded(section))
        if pending is not None:
            if pending[1] is None:
                raise KeyError(section)
            return pending[1]
        if self._file.FindProbe(section) < 0:
            raise KeyError(section)
        conversion, problems = self.read(section)
        if self._file.ProblemCount or self._file.MessageCount:
            words = "; ".join(f"[{p.section}] {p.key}: {p.text}" for p in problems) or self._file.get_Messages(0)
            raise IncompleteProbeError(QuorError(75, "QuorProbeFile", f"{self._path}: {words}"), problems, conversion)
        self._remember(section, conversion)
        return conversion

    def read(self, section: str) -> Tuple[Conversion, Tuple[Problem, ...]]:
        """The probe as it stands in the file, with default values where something is missing, and what is wrong with
        it. It is one of the caller's own: nothing is saved of it unless it is put into this mapping."""
        _section(section)
        conversion = Conversion(platform=self._platform)
        self._call(lambda: self._file.Read(section, conversion))
        return conversion, _problems(self._file)

    def __setitem__(self, section: str, conversion: Conversion) -> None:
        if not isinstance(conversion, Conversion):
            raise TypeError(f"a Conversion is needed, not {conversion!r}")
        if _section(section) not in self:
            _require_name(section)
        other_file = getattr(conversion, "_file", lambda: None)()
        if other_file is not None and other_file is not self:
            for other, known_conversion, _ in other_file._probes.values():
                if known_conversion is conversion:
                    raise ValueError(f"this conversion is that of [{other}] in {other_file.path} already; "
                                     "read gives another one")
        folded = _folded(section)
        for name, (other, known_conversion, _) in self._probes.items():
            if known_conversion is conversion and name != folded:
                raise ValueError(f"this conversion is that of [{other}] already; duplicate makes another one")
        there = self._probes.get(folded)
        if there is None or there[1] is not conversion:
            self._probes[folded] = section, conversion, False
            conversion._file = weakref.ref(self)

    def duplicate(self, section: str, name: str) -> None:
        """Writes the probe again under another name, as it stands in the file, at once. What is not saved yet must be
        saved or discarded before: ValueError."""
        if any(True for _ in self._steps()):
            raise ValueError("there are changes that are not saved")
        if _section(name) not in self:
            _require_name(name)
        self._call(lambda: self._file.Copy(_section(section), name))
        self._probes = {}
        self._before = {}

    def __delitem__(self, section: str) -> None:
        if _section(section) not in self:
            raise KeyError(section)
        if self._file.FindProbe(section) < 0:
            del self._probes[_folded(section)]  # it was only added here
        else:
            self._probes[_folded(section)] = section, None, False

    def _in_file(self) -> Iterator[str]:
        return (self._file.get_ProbeSection(place) for place in range(self._file.ProbeCount))

    def __iter__(self) -> Iterator[str]:
        stand = list(self._in_file())
        for section in stand:
            if self._probes.get(_folded(section), (section, True))[1] is not None:
                yield section
        names = {_folded(section) for section in stand}
        yield from [section for folded, (section, conversion, _) in list(self._probes.items())
                    if folded not in names and conversion is not None]

    def __len__(self) -> int:
        return sum(1 for _ in self)

    def __contains__(self, section: object) -> bool:
        if not isinstance(section, str):
            return False
        pending = self._probes.get(_folded(section))
        return self._file.FindProbe(section) >= 0 if pending is None else pending[1] is not None

    def table(self) -> ProbeTable:
        """The numbers of all probes as they stand in the file, at once: for a hundred thousand of them."""
        return ProbeTable(self._call(self._file.ReadAll))  # type: ignore[arg-type]

    def check(self) -> List[Problem]:
        """All that is wrong with the file and its probes, and warnings of values that can hardly be meant."""
        self._call(self._file.Check)
        return list(_problems(self._file))

    # Saving

    def save(self) -> None:
        """Writes what was changed, added and removed, all of it or nothing."""
        steps = list(self._steps())
        if not steps:
            return
        self._file.Hold()
        try:
            for step in steps:
                step()
        except BaseException as error:
            self._file.Abandon()
            if isinstance(error, QuorError):
                self._raise(self._file, error)
            raise
        self._call(self._file.Release)
        probes = [(section, conversion) for section, conversion, _ in self._probes.values() if conversion is not None]
        self._probes = {}
        self._before = {}
        for section, conversion in probes:
            if self._file.FindProbe(section) >= 0:  # what others have written of it is no change of ours
                self._call(lambda: self._file.Read(section, conversion))  # noqa: B023, called at once
                self._remember(section, conversion)

    def _remember(self, section: str, conversion: Conversion) -> None:
        self._probes[_folded(section)] = section, conversion, True
        self._before[_folded(section)] = conversion.ConversionType
        conversion._file = weakref.ref(self)

    def _steps(self) -> Iterator[Callable[[], object]]:
        for folded, (section, conversion, was_read) in self._probes.items():
            if conversion is None:
                yield partial(self._file.Remove, section)
            elif not was_read or conversion.ConversionType != self._before[folded]:
                yield partial(self._file.Write, section, conversion)
            elif self._file.Differs(section, conversion):
                yield partial(self._file.WriteChanges, section, conversion)

    def discard(self) -> None:
        """Forgets what was not saved, and loads the file as it is now."""
        self._probes = {}
        self._before = {}
        self._file.Reload()

    @property
    def changed_by_others(self) -> bool:
        """Whether another program has changed or removed the file since it was loaded or saved."""
        return self._file.Changed

    def save_as(self, path: PathText) -> None:
        """Gives another file the text of this one as it was loaded or saved last."""
        self._file.SaveAs(os.path.abspath(os.fspath(path)))

    def rename(self, section: str, name: str) -> None:
        """Gives a probe another name, and so the sections of its settings, at once. What is not saved yet must be saved
        or discarded before: ValueError."""
        if any(True for _ in self._steps()):
            raise ValueError("there are changes that are not saved")
        _require_name(_section(name))
        self._call(lambda: self._file.Rename(_section(section), name))
        self._probes = {}
        self._before = {}

    def __enter__(self) -> ProbeFile:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        if kind is None:
            self.save()
        else:
            self._probes = {}
            self._before = {}

    def __repr__(self) -> str:
        return f"ProbeFile({self._path!r}, {len(self)} probes)"

    __hash__ = object.__hash__

    def __eq__(self, other: object) -> bool:
        return self is other


def _problems(file: _low.ProbeFile) -> Tuple[Problem, ...]:
    return tuple(Problem(file.get_ProblemKind(i), file.get_ProblemLine(i), file.get_ProblemSection(i),
                         file.get_ProblemKey(i), file.get_ProblemText(i)) for i in range(file.ProblemCount))


def _conflicts(file: _low.ProbeFile) -> Tuple[Conflict, ...]:
    return tuple(Conflict(file.get_ConflictSection(i), file.get_ConflictKey(i), file.get_ConflictRead(i),
                          file.get_ConflictTheirs(i), file.get_ConflictOurs(i)) for i in range(file.ConflictCount))
