"""Calls of libquor: texts, errors, handles, and the exceptions that a host's functions raise."""

from __future__ import annotations

import ctypes
import operator
import os
import sys
import threading
import weakref
from array import array
from contextlib import contextmanager
from ctypes import POINTER, byref, c_char_p, c_double, c_int16, c_int32, c_size_t, c_uint64, c_void_p
from enum import IntEnum
from pathlib import Path
from types import TracebackType
from typing import Any, Dict, Iterable, Iterator, List, Optional, Tuple, Type, TypeVar, Union

UNEXPECTED = -2147467259  # 0x80004005


def flag(value: object) -> int:
    """True is -1. A text is refused: "False" would be True."""
    if isinstance(value, (str, bytes)):
        raise TypeError(f"expected True or False, not {value!r}")
    return -1 if value else 0


class _Library:
    """The functions of the library. Their calls keep Python's global lock, so that threads which share an object by mistake
    do not end the process; but in those that open a dialog other threads go on."""

    _WAITING = ("_Edit", "_OpenFile", "_SaveFileAs")

    def __init__(self, path: str) -> None:
        self._quick = ctypes.PyDLL(path)
        self._waiting = ctypes.CDLL(path)

    def __getattr__(self, name: str) -> Any:
        function = getattr(self._waiting if name.endswith(self._WAITING) else self._quick, name)
        setattr(self, name, function)
        return function


def _load() -> _Library:
    """The library that the variable QUORCONVERSIONS_LIBRARY names, or the one beside the package, or that of the system."""
    given = os.environ.get("QUORCONVERSIONS_LIBRARY")
    if given:
        return _Library(given)
    name = {"win32": "quor.dll", "darwin": "libquor.1.dylib"}.get(sys.platform, "libquor.so.1")
    beside = Path(__file__).parent / name
    try:
        return _Library(str(beside) if beside.exists() else name)
    except OSError as error:
        raise ImportError(f"quorconversions needs {name}: beside the package, where the system finds libraries, or "
                          f"named by the variable QUORCONVERSIONS_LIBRARY ({error})") from error


library = _load()


# ---- Texts and numbers


class Text(ctypes.Structure):
    """A text that the library gives out."""

    _fields_ = [("bytes", c_void_p), ("size", c_size_t)]

    def take(self) -> str:
        """The text, which is freed."""
        try:
            return ctypes.string_at(self.bytes, self.size).decode() if self.size else ""
        finally:
            library.quor_text_free(byref(self))

    def __del__(self) -> None:
        if self.bytes:  # an exception has come before take
            library.quor_text_free(byref(self))


class View(ctypes.Structure):
    """A text that stays the library's."""

    _fields_ = [("bytes", c_void_p), ("size", c_size_t)]

    def __str__(self) -> str:
        return ctypes.string_at(self.bytes, self.size).decode() if self.size else ""


class TextIn(ctypes.Structure):
    """A text that goes in."""

    _fields_ = [("bytes", c_char_p), ("size", c_size_t)]


def text(value: str) -> TextIn:
    if not isinstance(value, str):
        raise TypeError(f"expected a str, not {value!r}")
    encoded = value.encode()
    return TextIn(encoded, len(encoded))


def _checked(value: Any, bits: int) -> int:
    number = operator.index(value)
    if not -(1 << bits - 1) <= number < 1 << bits - 1:
        raise OverflowError(f"{number} does not fit into {bits} bits")
    return number


def int16(value: Any) -> int:
    """A number of 16 bits. OverflowError for a larger one, which is never cut."""
    return _checked(value, 16)


def int32(value: Any) -> int:
    return _checked(value, 32)


def double(value: Any) -> float:
    if isinstance(value, (str, bytes, bytearray)):
        raise TypeError(f"expected a number, not {value!r}")
    return float(value)


class Int32s(ctypes.Structure):
    """Numbers that belong to the object which has given them."""

    _fields_ = [("values", c_void_p), ("size", c_size_t)]

    def take(self) -> array[int]:
        """A copy of them."""
        copy = array("i")
        if self.size:
            copy.frombytes(ctypes.string_at(self.values, self.size * copy.itemsize))
        return copy


class Doubles(ctypes.Structure):
    _fields_ = [("values", c_void_p), ("size", c_size_t)]

    def take(self) -> array[float]:
        """A copy of them."""
        copy = array("d")
        if self.size:
            copy.frombytes(ctypes.string_at(self.values, self.size * copy.itemsize))
        return copy


_Enumeration = TypeVar("_Enumeration", bound=IntEnum)


def known(enumeration: Type[_Enumeration], value: int) -> Union[_Enumeration, int]:
    """The enumerator, or the number itself if there is none: an enumeration accepts any value of 32 bits."""
    try:
        return enumeration(value)
    except ValueError:
        return value


# ---- Errors


class QuorError(Exception):
    """An error of the library: its number, source and description, and a topic of the help file, if there is one. The
    description names the file, if one is concerned. Decide by the number, never by the text."""

    def __init__(self, number: int, source: str, description: str, help_file: str = "", help_context: int = 0) -> None:
        super().__init__(number, source, description, help_file, help_context)
        self.number = number
        self.source = source
        self.description = description
        self.help_file = help_file
        self.help_context = help_context

    def __str__(self) -> str:
        return f"{self.description} ({self.source}, error {self.number})"

    def __reduce__(self) -> Tuple[Any, ...]:
        """For another process; objects of the library stay in this one."""
        state = {name: value for name, value in self.__dict__.items() if not isinstance(value, Object)}
        return _unpickled, (type(self), self.args, state)


def _unpickled(error_class: Type[QuorError], arguments: Tuple[Any, ...], state: Dict[str, Any]) -> QuorError:
    error = error_class.__new__(error_class, *arguments)
    error.__dict__.update(state)
    return error


class _ErrorView(ctypes.Structure):
    _fields_ = [("number", c_int32), ("help_context", c_int32), ("source", View), ("description", View),
                ("help_file", View)]


class _Thread(threading.local):
    """What a host's function has raised inside the call that runs in this thread."""

    pending: Optional[BaseException] = None


_thread = _Thread()


def last_error() -> QuorError:
    error = _ErrorView()
    library.quor_last_error(byref(error))
    return QuorError(error.number, str(error.source), str(error.description), str(error.help_file),
                     error.help_context)


def check(code: int) -> None:
    """Raises the exception that a host's function has raised during the call, or else the error of the library."""
    pending = _thread.pending
    if pending is not None:
        _thread.pending = None
        raise pending
    if code:
        raise last_error()


@contextmanager
def others_kept() -> Iterator[None]:
    """While a host's function runs, what another one has raised in the same call is no business of the calls that it makes.
    Of several exceptions the first one comes back."""
    first = _thread.pending
    _thread.pending = None
    try:
        yield
    finally:
        if first is not None:
            _thread.pending = first


def keep(error: BaseException) -> int:
    """Keeps what a host's function has raised. Returns the number of the error, with its words set."""
    _thread.pending = error
    if not isinstance(error, QuorError):
        error = QuorError(UNEXPECTED, type(error).__name__, str(error) or type(error).__name__)
    number = error.number or UNEXPECTED
    library.quor_set_error(number, _replaced(error.source), _replaced(error.description), _replaced(error.help_file),
                           error.help_context)
    return number


def _replaced(words: str) -> TextIn:
    encoded = words.encode(errors="backslashreplace")
    return TextIn(encoded, len(encoded))


# ---- Objects

_wrappers: weakref.WeakValueDictionary[int, Object] = weakref.WeakValueDictionary()
_wrappers_lock = threading.RLock()
_classes: Dict[str, Type[Any]] = {}


class Object:
    """An object of the library. Two are equal if they are the same object."""

    __slots__ = ("_handle", "__weakref__")
    _handle: int

    def __init__(self) -> None:
        raise TypeError(f"only the library creates objects of the class {type(self).__name__}")

    def _own(self, handle: int) -> None:
        self._handle = handle
        with _wrappers_lock:
            _wrappers[handle] = self

    def __del__(self) -> None:
        with _wrappers_lock:
            handle, self._handle = getattr(self, "_handle", 0), 0
        if handle:
            library.quor_release(handle)

    def __copy__(self) -> Object:
        raise TypeError(f"{type(self).__name__} cannot be copied")

    def __deepcopy__(self, memo: object) -> Object:
        raise TypeError(f"{type(self).__name__} cannot be copied")

    def __reduce__(self) -> str:
        raise TypeError(f"{type(self).__name__} cannot be pickled")


def wrap_as(class_name: str, python_class: Type[Any]) -> None:
    """Objects of that class of the library become objects of `python_class`."""
    _classes[class_name] = python_class


def taken(handle: int) -> Any:
    """The object of a reference that the library has given out; None for no reference."""
    if not handle:
        return None
    with _wrappers_lock:
        there = _wrappers.get(handle)
        if there is not None and there._handle == handle:
            library.quor_release(handle)
            return there
    user = c_void_p()
    library.quor_host_user(handle, byref(user))
    if user.value:
        host = hosted[user.value]
        library.quor_release(handle)
        return host
    name = c_char_p()
    library.quor_class_of(handle, byref(name))
    python_class = _classes[(name.value or b"").decode()]
    made: Object = object.__new__(python_class)
    made._own(handle)
    return made


def borrowed(handle: int) -> Any:
    """The object of a reference that stays the library's."""
    if handle:
        library.quor_add_ref(handle)
    return taken(handle)


class HostObject:
    """An object of the host, in Python. The library calls its methods as long as it has references to it."""

    def _offer(self) -> int:
        """A new reference to an object of the library that stands for this one."""
        raise NotImplementedError


hosted: Dict[int, HostObject] = {}  # what the library holds, by the pointer that it has


class lent:
    """The handle of an argument while a call lasts."""

    __slots__ = ("_object", "_made")

    def __init__(self, argument: Union[Object, HostObject, None]) -> None:
        self._object = argument
        self._made = 0

    def __enter__(self) -> int:
        if self._object is None:
            return 0
        if isinstance(self._object, Object):
            return self._object._handle
        if not isinstance(self._object, HostObject):
            raise TypeError(f"expected an object of quorconversions, not {self._object!r}")
        self._made = self._object._offer()
        return self._made

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        if self._made:
            library.quor_release(self._made)


class exchanged:
    """An in/out reference while a call lasts: one that the call may exchange."""

    __slots__ = ("_lent", "_reference")

    def __init__(self, argument: Union[Object, HostObject, None]) -> None:
        self._lent = lent(argument)
        self._reference = c_uint64()

    def __enter__(self) -> c_uint64:
        self._reference.value = handle = self._lent.__enter__()
        if handle:
            library.quor_add_ref(handle)
        return self._reference

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        if self._reference.value:
            library.quor_release(self._reference.value)
        self._lent.__exit__(kind, error, trace)


def version() -> str:
    """The version of the library."""
    return str(library.quor_version().decode())


def handle_count() -> int:
    """How many handles are in use in this process."""
    count = c_int32()
    check(library.quor_handle_count(byref(count)))
    return count.value


def declare(name: str, types: Iterable[Any], result: Any = c_int32) -> None:
    """Says what a function of the library takes."""
    function = getattr(library, name)
    function.argtypes = list(types)
    function.restype = result


_OWN: List[Any] = [
    ("quor_text_free", [c_void_p], None), ("quor_last_error", [POINTER(_ErrorView)], c_int32),
    ("quor_set_error", [c_int32, TextIn, TextIn, TextIn, c_int32], c_int32), ("quor_answer", [TextIn], c_int32),
    ("quor_add_ref", [c_uint64], c_int32), ("quor_release", [c_uint64], c_int32),
    ("quor_class_of", [c_uint64, POINTER(c_char_p)], c_int32), ("quor_handle_count", [POINTER(c_int32)], c_int32),
    ("quor_host_user", [c_uint64, POINTER(c_void_p)], c_int32), ("quor_version", [], c_char_p)]
for _name, _types, _result in _OWN:
    declare(_name, _types, _result)
