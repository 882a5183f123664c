"""The probes of a file."""

from __future__ import annotations

import os
import weakref
from array import array
from contextlib import suppress
from dataclasses import dataclass
from functools import partial
from types import TracebackType
from typing import (Any, Callable, Dict, Iterable, Iterator, List, MutableMapping, NoReturn, Optional, Set, Tuple, Type,
                    TypeVar, Union)

from . import _low
from ._host import PathText, Platform
from ._low import ConversionType, ProbeFileError as ProbeFileErrorCode, ProbeProblem
from ._runtime import QuorError, _wrappers, _wrappers_lock, borrowed, known, library
from ._settings import Conversion

_Result = TypeVar("_Result")
_LOWER = str.maketrans("ABCDEFGHIJKLMNOPQRSTUVWXYZ", "abcdefghijklmnopqrstuvwxyz")


@dataclass(frozen=True)
class Problem:
    """A problem of a probe, or of the file around it."""

    kind: Union[ProbeProblem, int]
    line: int  #: from 1; 0 for a problem of a file next to it
    section: str  #: empty if it has no name
    key: str  #: empty if the problem does not concern a single key
    text: str  #: what is wrong, for people, without the place

    @property
    def is_warning(self) -> bool:
        """Whether the value can be read, but is probably not meant."""
        return self.kind >= ProbeProblem.WARNING_R0_NOT_POSITIVE


@dataclass(frozen=True)
class Conflict:
    """A value that another program has changed too since it was read. An empty text is a missing value."""

    section: str
    key: str  #: empty if the probe was to be replaced or removed as a whole, and so are the values then
    read: str
    theirs: str
    ours: str


class ProbeFileError(QuorError):
    """An operation on a probe of a file has failed. `code` is the reason (ProbeFileErrorCode); `other` is what else it
    concerns: another probe or section, or a type."""

    def __init__(self, error: QuorError, code: int, other: str, problems: Tuple[Problem, ...]) -> None:
        super().__init__(error.number, error.source, error.description, error.help_file, error.help_context)
        self.code = known(ProbeFileErrorCode, code)
        self.other = other
        self.problems = problems


class IncompleteProbeError(ProbeFileError):
    """Something of a probe is missing or cannot be read: `problems`. `conversion` has default values in these places; an
    error that comes from another process (pickle) does not have it."""

    def __init__(self, error: QuorError, problems: Tuple[Problem, ...], conversion: Conversion) -> None:
        super().__init__(error, ProbeFileErrorCode.INCOMPLETE, "", problems)
        self.conversion = conversion


class ConflictError(QuorError):
    """Another program has changed the same values, or a probe that was to be replaced or removed as a whole
    (`conflicts`). Nothing was written."""

    def __init__(self, error: QuorError, conflicts: Tuple[Conflict, ...]) -> None:
        values = "; ".join(f"[{one.section}] {one.key}: {one.read or '(none)'} was read, theirs is "
                           f"{one.theirs or '(none)'}, ours {one.ours or '(none)'}" for one in conflicts if one.key)
        super().__init__(error.number, error.source, f"{error.description}: {values}" if values else error.description,
                         error.help_file, error.help_context)
        self.conflicts = conflicts


class ProbeTable:
    """The numbers of all probes of a file, as they were when the table was made. Iterating over it gives a row for each
    probe: a dictionary with "section", "type", "problems" and each number under its key.

    The numbers themselves are in one array: those of probe i are `values[ends[i - 1]:ends[i]]`, and their keys are
    `key_lists[key_list_of[i]]`. Booleans are 1.0 and 0.0; texts, such as units, are not included. Numbers that are missing or
    cannot be read are NaN, and so are all of a record that is refused as a whole."""

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


def _absolute(path: PathText) -> str:
    """No path stays none, which the library refuses; it is not the current folder."""
    name = os.fspath(path)
    return os.path.abspath(name) if name else name


def _folded(section: str) -> str:
    """Section names are compared without regard to the case of ASCII letters."""
    return section.translate(_LOWER)


def _section(section: object) -> str:
    if not isinstance(section, str):
        raise TypeError(f"the name of a section must be a str, not {section!r}")
    return section


def _require_name(name: str) -> None:
    """ValueError for a name that could not be read back, or that other programs would misread."""
    reason = ("it is empty" if not name else
              'a "]" ends the name in the file' if "]" in name else
              "it has a line break" if "\n" in name or "\r" in name else
              "other programs would take it for a comment" if name[0] in "#;" else
              "blanks around it would be lost" if name != name.strip() else None)
    if reason is not None:
        raise ValueError(f"a section cannot have the name {name!r}: {reason}")


@dataclass(eq=False)
class _Probe:
    """What the host has of a section."""

    section: str
    conversion: Optional[Conversion]  #: None: the probe is to be removed
    type_read: Optional[int] = None  #: of the conversion; None if it was not read from the section
    replaces: Optional[_Probe] = None  #: what was read and is to be replaced or removed by this

    def after(self, is_saved: bool) -> Iterator[Tuple[str, Conversion, Optional[int]]]:
        """The conversions, each with the type that its section should have once everything was saved or discarded; None
        for those that no longer belong to it."""
        if self.conversion is not None:
            yield self.section, self.conversion, self.conversion.ConversionType if is_saved else self.type_read
        if self.replaces is not None:
            for section, conversion, type_read in self.replaces.after(False):
                yield section, conversion, None if is_saved else type_read


class _Detached:
    """A conversion that no longer belongs to the file. Its objects are referenced here, not their wrappers, so that it is
    known whether the host can still reach one of them."""

    def __init__(self, section: str, conversion: Conversion) -> None:
        self.section = section
        settings = conversion.settings
        parts = [getattr(settings, part, None) for part in _RANGES]
        self._handles = [it._handle for it in (conversion, settings, *parts) if it is not None]
        for handle in self._handles:
            library.quor_add_ref(handle)
        conversion.Changed = False
        conversion._file = lambda: None
        self._form = _form(conversion)

    def __del__(self) -> None:
        for handle in self._handles:
            library.quor_release(handle)

    def is_reachable(self) -> bool:
        """Whether the host has an object of it, and no other file has taken it."""
        with _wrappers_lock:
            there = [_wrappers.get(handle) for handle in self._handles]
        if there[0] is not None and getattr(there[0], "_file", lambda: None)() is not None:
            return False
        return any(it is not None for it in there)

    def is_changed(self) -> bool:
        conversion = borrowed(self._handles[0])
        return conversion.Changed or _form(conversion) != self._form


_RANGES = ("LowRange", "HighRange")  # of an ITS-90


def _form(conversion: Conversion) -> object:
    """The only value of a record whose change sets no flag."""
    return getattr(conversion.settings, "UsePolynomial", None)


class ProbeFile(MutableMapping[str, Conversion]):
    """The probes of a host's file, or the one of a stand-alone settings file ("prt-1188.cvd"): a mapping of sections to
    conversions::

        with ProbeFile("laboratory.ini") as file:
            file["Probe 9 PRT-1182"].settings.R0 = 100.0123

    All changes, additions and removals are saved together at the end of the block, or by `save`: all of them or none,
    and none if an exception leaves the block. Of a probe that was read, only the values that differ are written, so that
    values which another program has written in the meantime are kept; if both have changed the same value, ConflictError
    is raised. So it is if a probe was assigned, given another type or removed, and another program has changed it in the
    meantime, or has added one in its place: compared with what this mapping has read last from the section, has saved there
    itself or, if it has done neither, has loaded. No other line of the file changes.

    A probe is read when it is first accessed. An incomplete one raises IncompleteProbeError, which has its values; `read`
    returns them without raising. `platform` is passed to the conversions.

    After a `save`, `discard`, `rename` or `duplicate`, and after an exception that leaves the block, the probes that were
    accessed are read again into their conversions, which then have the values of the file and still belong to it. If one
    has become incomplete, or is refused by the range limits that the host has set (MinRange, MaxRange), the call raises
    IncompleteProbeError, once all others have been read (the changes are saved, or discarded), and its conversion keeps its
    values but no longer belongs to the file. Nor do conversions whose probes were removed, replaced or given another type,
    by the host and a save or by another program, and those that were assigned but not saved before `discard` or an
    exception. If one of them, or its settings, is changed afterwards, `save` raises ValueError, because the change would be
    lost."""

    def __init__(self, path: PathText, create: bool = False, platform: Optional[Platform] = None) -> None:
        """Loads the file. With `create` it need not exist: the first save creates it."""
        self._path = _absolute(path)
        self._create = create
        self._platform = platform
        self._file = _low.ProbeFile(self._path, create)
        self._probes: Dict[str, _Probe] = {}  # by folded sections
        self._is_read_again = True  # since the last call that writes, which loads the current file even if it fails
        self._has_given_store = False  # and may load the current file at any time
        self._reads = 0  # the number of the last read
        self._missing: Set[str] = set()  # folded sections that the host has removed, or had, and the file has no longer
        self._detached: Dict[int, _Detached] = {}  # no longer of the file, by the handles of the conversions

    @property
    def path(self) -> str:
        return self._path

    @property
    def store(self) -> _low.INIFile:
        """The store of the file, for its other sections. What is written through it is saved at once. Conversions that were
        accessed before get it, and what other programs have saved, with the next `save` or `discard`; a probe in which it
        has changed something is a conflict like any other until then."""
        self._has_given_store = True
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

    def _is_in_file(self, section: str) -> bool:
        try:
            return self._file.FindProbe(section) >= 0
        except UnicodeEncodeError:  # half of a surrogate pair, which no file has
            return False

    def _no_probe(self, section: str) -> KeyError:
        return KeyError(f"{self._path} has no probe [{section}]")

    def __getitem__(self, section: str) -> Conversion:
        _section(section)
        pending = self._probes.get(_folded(section))
        if pending is not None:
            if pending.conversion is None:
                raise self._no_probe(section)
            return pending.conversion
        if not self._is_in_file(section):
            raise self._no_probe(section)
        conversion = self._read_whole(section)
        self._remember(section, conversion)
        return conversion

    def _read_whole(self, section: str, like: Optional[Conversion] = None) -> Conversion:
        """The probe, newly read; IncompleteProbeError if something is missing, or if a conversion with the range limits of
        `like` refuses it."""
        conversion, problems = self._read(section, like)
        if self._file.ProblemCount or self._file.MessageCount:
            words = "; ".join(f"[{p.section}] {p.key}: {p.text}" for p in problems) or self._file.get_Messages(0)
            raise IncompleteProbeError(QuorError(75, "QuorProbeFile", f"{self._path}: {words}"), problems, conversion)
        return conversion

    def _read(self, section: str, like: Optional[Conversion] = None) -> Tuple[Conversion, Tuple[Problem, ...]]:
        conversion = Conversion(platform=self._platform)
        if like is not None:
            conversion.ConversionType = like.ConversionType
            for part in _RANGES:
                if hasattr(like.settings, part):
                    limited, limits = getattr(conversion.settings, part), getattr(like.settings, part)
                    limited.MinRange, limited.MaxRange = limits.MinRange, limits.MaxRange
        self._call(lambda: self._file.Read(section, conversion))
        problems = _problems(self._file)
        self._mark_read(section, conversion)
        return conversion, problems

    def _mark_read(self, section: str, conversion: Conversion) -> None:
        self._reads += 1
        conversion._read_from = self._file._handle, _folded(section), self._reads
        self._missing.discard(_folded(section))

    def read(self, section: str) -> Tuple[Conversion, Tuple[Problem, ...]]:
        """The probe as the file has it, with default values where something is missing, and its problems. The conversion
        does not belong to this mapping: changes to it are not saved unless it is assigned to a section."""
        return self._read(_section(section))

    def __setitem__(self, section: str, conversion: Conversion) -> None:
        if not isinstance(conversion, Conversion):
            raise TypeError(f"expected a Conversion, not {conversion!r}")
        if _section(section) not in self:
            _require_name(section)
        folded = _folded(section)
        owner: Any = getattr(conversion, "_file", lambda: None)()
        owned: Dict[str, _Probe] = {} if owner is None else owner._probes
        for name, probe in owned.items():
            if probe.conversion is conversion and (owner is not self or name != folded):
                advice = "; duplicate makes" if owner is self else f" in {owner.path}; copy_from makes"
                raise ValueError(f"this conversion already belongs to [{probe.section}]{advice} another one")
        there = self._probes.get(folded)
        if there is not None and there.conversion is conversion:
            return
        replaced = self._replaced(folded)
        if replaced is not None and replaced.conversion is conversion:
            self._probes[folded] = replaced
            return
        for probe in owned.values():
            if probe.replaces is not None and probe.replaces.conversion is conversion:
                probe.replaces = None
        self._probes[folded] = _Probe(section, conversion, replaces=replaced)
        conversion._file = weakref.ref(self)
        self._detached.pop(conversion._handle, None)

    def _replaced(self, folded: str) -> Optional[_Probe]:
        """What was read from this section, for its place to be taken. What was only assigned is detached."""
        there = self._probes.get(folded)
        if there is None or there.type_read is not None:
            return there
        if there.conversion is not None:
            self._detach(there.section, there.conversion)
        return there.replaces

    def copy_from(self, source: ProbeFile, section: str, name: Optional[str] = None) -> None:
        """Assigns a copy of a probe of another file, as that file has it, to the section `name`, or to that of the same name.
        It is saved with the other changes. IncompleteProbeError if something of it is missing."""
        self[section if name is None else name] = source._read_whole(_section(section))

    def duplicate(self, section: str, name: str) -> None:
        """Copies the probe, as the file has it, to another section, and saves at once. If that is a probe which was
        accessed, its conversion gets the new values. ValueError if there are unsaved changes; ConflictError, and nothing is
        written, if another program has added or changed a probe there."""
        if any(True for _ in self._steps()):
            raise ValueError("there are unsaved changes")
        if _section(name) not in self:
            _require_name(name)
        there = self._probes.get(_folded(name))
        known = Conversion() if there is None else self._last_read(_folded(name), there)
        copy = partial(self._file.Copy, _section(section), name)
        try:
            self._take([partial(self._file.RequireUnchanged, name, known), copy])
        except ConflictError:
            if self._is_in_file(name):
                raise
            self._let_go(name)  # another program has removed the probe that had it, so that nothing is overwritten
            self._call(self._file.Reload)
            self._take([partial(self._file.RequireUnchanged, name, Conversion()), copy])
        self._reread()

    def __delitem__(self, section: str) -> None:
        if _section(section) not in self:
            raise self._no_probe(section)
        self._probes[_folded(section)] = _Probe(section, None, replaces=self._replaced(_folded(section)))

    def _in_file(self) -> Iterator[str]:
        return (self._file.get_ProbeSection(place) for place in range(self._file.ProbeCount))

    def __iter__(self) -> Iterator[str]:
        stand = list(self._in_file())
        for section in stand:
            pending = self._probes.get(_folded(section))
            if pending is None or pending.conversion is not None:
                yield section
        names = {_folded(section) for section in stand}
        yield from [probe.section for folded, probe in list(self._probes.items())
                    if folded not in names and probe.conversion is not None]

    def __len__(self) -> int:
        return sum(1 for _ in self)

    def __contains__(self, section: object) -> bool:
        if not isinstance(section, str):
            return False
        pending = self._probes.get(_folded(section))
        return self._is_in_file(section) if pending is None else pending.conversion is not None

    def table(self) -> ProbeTable:
        """The numbers of all probes as the file has them, in one call: fast for a hundred thousand probes. Those that cannot
        be read are NaN."""
        return ProbeTable(self._call(self._file.ReadAll))  # type: ignore[arg-type]

    def check(self) -> List[Problem]:
        """All problems of the file and its probes, and warnings of values that are probably not meant."""
        self._call(self._file.Check)
        return list(_problems(self._file))

    # Saving

    def save(self) -> None:
        """Saves all changes, additions and removals, or none of them."""
        self._drop_unreachable()
        for one in self._detached.values():
            if one.is_changed():
                raise ValueError(f"the conversion of [{one.section}] was changed, but no longer belongs to {self._path}; "
                                 "get it from the file again")
        steps = list(self._steps())
        if steps:
            self._take(steps)
        elif self._file.Changed or self._has_given_store:
            self._call(self._file.Reload)
        elif self._is_read_again and not self._has_given_store:
            return
        self._reread(is_saved=True)

    def _take(self, steps: Iterable[Callable[[], object]]) -> None:
        """Takes all steps, or none."""
        self._is_read_again = False
        try:
            self._file.Hold()
            for step in steps:
                step()
            self._file.Release()
        except BaseException as error:
            # An interrupt may come before the bracket is open, or after it was saved: then this does nothing, and the next
            # save finds nothing more to write.
            self._file.Abandon()
            if isinstance(error, QuorError):
                self._raise(self._file, error)
            self._mark_written()
            raise

    def _mark_written(self) -> None:
        """Marks new conversions that were written, after an interrupt that came once the bracket was saved."""
        for probe in self._probes.values():
            if probe.conversion is None or hasattr(probe.conversion, "_read_from"):
                continue
            try:
                self._file.Hold()
                self._file.WriteChanges(probe.section, probe.conversion)  # fails for one that was not written
                self._mark_read(probe.section, probe.conversion)
            except QuorError:
                pass
            finally:
                self._file.Abandon()

    def _reread(self, is_saved: bool = False) -> None:
        """Reads the accessed conversions again, once everything was saved or discarded. One that cannot have the values of
        the file keeps its own, and is detached. ProbeFileError for those that are incomplete, once all have been read."""
        self._drop_unreachable()
        left = [one for probe in self._probes.values() for one in probe.after(is_saved)][::-1]
        incomplete: List[ProbeFileError] = []
        try:
            self._missing = {folded for folded in self._missing.union(self._probes) if not self._is_in_file(folded)}
            self._probes.clear()
            self._is_read_again = True
            while left:
                section, conversion, of_type = left[-1]
                try:
                    # Into another conversion first: this one must not get defaults for values that another program has
                    # broken, nor another type, for which it would drop the settings that the host holds.
                    if (of_type is not None and self._is_in_file(section)
                            and self._read_whole(section, conversion).ConversionType == of_type):
                        self._call(partial(self._file.Read, section, conversion))
                        self._remember(section, conversion)
                    else:
                        self._detach(section, conversion)
                except ProbeFileError as error:
                    self._detach(section, conversion)
                    incomplete.append(error)
                left.pop()
        except BaseException:
            for section, conversion, _ in left:
                self._detach(section, conversion)
            raise
        if incomplete:
            raise incomplete[0]

    def _remember(self, section: str, conversion: Conversion) -> None:
        self._mark_read(section, conversion)
        self._probes[_folded(section)] = _Probe(section, conversion, conversion.ConversionType)
        conversion._file = weakref.ref(self)

    def _detach(self, section: str, conversion: Conversion) -> None:
        self._detached[conversion._handle] = _Detached(section, conversion)

    def _drop_unreachable(self) -> None:
        self._detached = {handle: one for handle, one in self._detached.items() if one.is_reachable()}

    def _let_go(self, section: str) -> None:
        """Detaches what was accessed under this name."""
        probe = self._probes.pop(_folded(section), None)
        if probe is not None:
            for _, conversion, _ in probe.after(True):
                self._detach(section, conversion)

    def _last_read(self, folded: str, probe: _Probe) -> Conversion:
        """That into which the section was read last; a new one if it was not, or if the host knows that it is missing, which
        stands for the file as it was loaded."""
        if folded in self._missing and not self._is_in_file(folded):
            return Conversion()
        newest, of_read = Conversion(), 0
        for one in (probe, probe.replaces):
            if one is not None and one.conversion is not None:
                file, section, read = getattr(one.conversion, "_read_from", (0, "", 0))
                if (file, section) == (self._file._handle, folded) and read > of_read:
                    newest, of_read = one.conversion, read
        return newest

    def _steps(self) -> Iterator[Callable[[], object]]:
        """Removals, which leave their names to others, before what is written whole, and that before changes: the library
        takes steps of one kind that follow each other together."""
        removed: List[Callable[[], object]] = []
        written: List[Callable[[], object]] = []
        changed: List[Callable[[], object]] = []
        for folded, probe in self._probes.items():
            section, conversion = probe.section, probe.conversion
            if conversion is None:
                if self._is_in_file(section):
                    yield partial(self._file.RequireUnchanged, section, self._last_read(folded, probe))
                    removed.append(partial(self._file.Remove, section))
            elif conversion.ConversionType != probe.type_read:
                yield partial(self._file.RequireUnchanged, section, self._last_read(folded, probe))
                written.append(partial(self._file.Write, section, conversion))
            elif self._call(partial(self._file.Differs, section, conversion)):
                changed.append(partial(self._file.WriteChanges, section, conversion))
        yield from removed + written + changed

    def discard(self) -> None:
        """Discards unsaved changes and loads the current file: conversions of its probes get its values."""
        try:
            self._file.Reload()
        except BaseException:
            for section in list(self._probes):
                self._let_go(section)
            raise
        self._reread()

    @property
    def changed_by_others(self) -> bool:
        """Whether another program has changed or removed the file since it was loaded or saved."""
        return self._file.Changed

    def save_as(self, path: PathText) -> None:
        """Replaces another file with the text of this one as it was last loaded or saved."""
        self._file.SaveAs(_absolute(path))

    def rename(self, section: str, name: str) -> None:
        """Renames a probe and its settings sections, and saves at once. ValueError if there are unsaved changes."""
        if any(True for _ in self._steps()):
            raise ValueError("there are unsaved changes")
        _require_name(_section(name))
        self._is_read_again = False
        self._call(lambda: self._file.Rename(_section(section), name))
        known = self._probes.pop(_folded(section), None)
        self._missing.add(_folded(section))
        self._let_go(name)  # another program has removed the probe that had it
        if known is not None and known.conversion is not None:
            self._probes[_folded(name)] = _Probe(name, known.conversion, known.type_read)
        self._reread()

    def __enter__(self) -> ProbeFile:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        if kind is None:
            self.save()
            return
        with suppress(QuorError):  # which would hide the exception
            self.discard()

    def __repr__(self) -> str:
        return f"ProbeFile({self._path!r}, {len(self)} probes)"

    def __copy__(self) -> ProbeFile:
        raise TypeError("ProbeFile cannot be copied")

    __hash__ = object.__hash__

    def __eq__(self, other: object) -> bool:
        return self is other


def _problems(file: _low.ProbeFile) -> Tuple[Problem, ...]:
    return tuple(Problem(file.get_ProblemKind(i), file.get_ProblemLine(i), file.get_ProblemSection(i),
                         file.get_ProblemKey(i), file.get_ProblemText(i)) for i in range(file.ProblemCount))


def _conflicts(file: _low.ProbeFile) -> Tuple[Conflict, ...]:
    return tuple(Conflict(file.get_ConflictSection(i), file.get_ConflictKey(i), file.get_ConflictRead(i),
                          file.get_ConflictTheirs(i), file.get_ConflictOurs(i)) for i in range(file.ConflictCount))
