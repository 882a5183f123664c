"""What a host provides to the library, as Python classes: derive from them.

An exception that such a method raises ends the call of the library in which it was called, and comes back from that
call as itself: the same object. What the library tells its user of it, it has told before.
"""

from __future__ import annotations

import ctypes
import itertools
import os
from ctypes import CFUNCTYPE, POINTER, byref, c_double, c_int16, c_int32, c_size_t, c_uint32, c_uint64, c_void_p
from dataclasses import dataclass
from typing import Any, Callable, ClassVar, List, Optional, Tuple, Type, Union

from ._low import Control, Dialog, FileDialogKind, MessageIcon
from ._low import INIFile as _StoreOfLibrary
from ._runtime import (HostObject, View, borrowed, check, declare, double, exchanged, flag, hosted, int16, keep, known,
                       library, others_kept, text)

PathText = Union[str, "os.PathLike[str]"]
_keys = itertools.count(1)
_Fields = List[Tuple[str, Any]]


def _function(call: Callable[..., object], *types: Any) -> Any:
    """A C function that calls a method of the host, and tells by a number when that raises."""

    def called(user: int, *arguments: Any) -> int:
        with others_kept():
            try:
                call(hosted[user], *arguments)
                return 0
            except BaseException as error:  # comes back from the call that is running
                return keep(error)

    return CFUNCTYPE(c_int32, c_void_p, *types)(called)


def _notice(call: Callable[..., object], *types: Any) -> Any:
    """The same for a function that cannot fail."""

    def called(user: int, *arguments: Any) -> None:
        with others_kept():
            try:
                call(hosted[user], *arguments)
            except BaseException as error:
                keep(error)

    return CFUNCTYPE(None, c_void_p, *types)(called)


def _answer(value: str) -> None:
    library.quor_answer(text(value))


def _path(value: Optional[PathText]) -> str:
    return "" if value is None else os.fspath(value)


_destroyed = CFUNCTYPE(None, c_void_p)(lambda user: hosted.pop(user, None) and None)


class _Offered(HostObject):
    """Offers a table of functions. What a class does not override, where it need not, is not in its table."""

    _table: ClassVar[Type[ctypes.Structure]]
    _functions: ClassVar[Any]
    _make: ClassVar[str]
    _optional: ClassVar[Any] = {}  # function -> method

    def _offer(self) -> int:
        table = self._table()
        setattr(table, "size", ctypes.sizeof(table))
        setattr(table, "destroyed", _destroyed)
        for name, function in self._functions.items():
            method = self._optional.get(name)
            if method is None or any(method in vars(c) for c in type(self).__mro__ if c.__module__ != __name__):
                setattr(table, name, function)
        key = next(_keys)
        handle = c_uint64()
        hosted[key] = self
        try:
            check(getattr(library, self._make)(byref(table), key, byref(handle)))
        except BaseException:
            del hosted[key]
            raise
        return handle.value


def _table_of(name: str, functions: Any) -> Type[ctypes.Structure]:
    fields: _Fields = [("size", c_size_t), ("destroyed", CFUNCTYPE(None, c_void_p))]
    fields += [(field, type(function)) for field, function in functions.items()]
    return type(name, (ctypes.Structure,), {"_fields_": fields})


# ---- An INI file


def _put_file_name(file: INIFile, name: View) -> None:
    file.file_name = str(name)


def _put_section(file: INIFile, name: View) -> None:
    file.section = str(name)


def _reader(read: Callable[[INIFile, str], Any], convert: Callable[[Any], Any]) -> Callable[..., None]:
    def call(file: INIFile, key: View, value: Any, found: Any) -> None:
        given = read(file, str(key))
        if given is not None:
            value[0] = convert(given)
            found[0] = -1

    return call


def _read_string(file: INIFile, key: View, found: Any) -> None:
    given = file.read_string(str(key))
    if given is not None:
        _answer(given)
        found[0] = -1


class INIFile(_Offered):
    """A host's own INI file. It stores values under the keys of the selected section. A read returns None if there is no
    such key, or if its value has another type; a text where a number or flag is read raises TypeError. Keys are compared without regard to the case of ASCII letters."""

    file_name: str = ""
    """The file that the object is bound to."""
    section: str = ""
    """The section that reads and writes use."""

    def read_boolean(self, key: str) -> Optional[bool]:
        raise NotImplementedError

    def read_double(self, key: str) -> Optional[float]:
        raise NotImplementedError

    def read_integer(self, key: str) -> Optional[int]:
        """A number of 16 bits."""
        raise NotImplementedError

    def read_string(self, key: str) -> Optional[str]:
        raise NotImplementedError

    def write_boolean(self, key: str, value: bool) -> None:
        raise NotImplementedError

    def write_double(self, key: str, value: float, comment: str) -> None:
        raise NotImplementedError

    def write_integer(self, key: str, value: int, comment: str) -> None:
        raise NotImplementedError

    def write_string(self, key: str, value: str) -> None:
        raise NotImplementedError

    def hold(self) -> None:
        """Opens a bracket: what is written in it becomes durable with the outermost release."""

    def release(self) -> None:
        """Closes a bracket that hold has opened."""

    def abandon(self) -> None:
        """Closes a bracket instead of release: nothing written since the outermost hold is saved."""

    _functions = {
        "put_file_name": _function(_put_file_name, View),
        "get_file_name": _function(lambda file: _answer(file.file_name)),
        "put_section": _function(_put_section, View),
        "get_section": _function(lambda file: _answer(file.section)),
        "read_boolean": _function(_reader(lambda f, k: f.read_boolean(k), flag), View,
                                  POINTER(c_int16), POINTER(c_int16)),
        "read_double": _function(_reader(lambda f, k: f.read_double(k), double), View, POINTER(c_double),
                                 POINTER(c_int16)),
        "read_integer": _function(_reader(lambda f, k: f.read_integer(k), int16), View, POINTER(c_int16),
                                  POINTER(c_int16)),
        "read_string": _function(_read_string, View, POINTER(c_int16)),
        "write_boolean": _function(lambda f, k, value: f.write_boolean(str(k), value != 0), View, c_int16),
        "write_double": _function(lambda f, k, value, c: f.write_double(str(k), value, str(c)), View, c_double, View),
        "write_integer": _function(lambda f, k, value, c: f.write_integer(str(k), value, str(c)), View, c_int16, View),
        "write_string": _function(lambda f, k, value: f.write_string(str(k), str(value)), View, View),
        "hold": _function(lambda f: f.hold()),
        "release": _function(lambda f: f.release()),
        "abandon": _function(lambda f: f.abandon()),
    }
    _table = _table_of("quor_inifile_functions", _functions)
    _make = "quor_inifile_from_host"


# ---- A registry


def _read_value(registry: Registry, section: View, name: View, found: Any) -> None:
    given = registry.read_value(str(section), str(name))
    if given is not None:
        _answer(given)
        found[0] = -1


class Registry(_Offered):
    """A host's own registry, in which the dialogs store, for example, their positions."""

    def read_value(self, section: str, name: str) -> Optional[str]:
        """The value, or None if there is none."""
        raise NotImplementedError

    def write_value(self, section: str, name: str, value: str) -> None:
        raise NotImplementedError

    _functions = {
        "read_value": _function(_read_value, View, View, POINTER(c_int16)),
        "write_value": _function(lambda r, section, name, value: r.write_value(str(section), str(name), str(value)),
                                 View, View, View),
    }
    _table = _table_of("quor_registry_functions", _functions)
    _make = "quor_registry_from_host"


# ---- A list


def _get_new_index(items: ListControl, index: Any) -> None:
    index[0] = items.new_index()


class ListControl(_Offered):
    """A list that FillRangeCombo and similar calls fill: pairs of a text and a number."""

    def __init__(self) -> None:
        self.items: List[Tuple[str, int]] = []

    def clear(self) -> None:
        self.items.clear()

    def add_item(self, item: str) -> None:
        self.items.append((item, 0))

    def new_index(self) -> int:
        """The index of the item that was added last."""
        return len(self.items) - 1

    def set_item_data(self, index: int, data: int) -> None:
        self.items[index] = (self.items[index][0], data)

    _functions = {
        "clear": _function(lambda items: items.clear()),
        "add_item": _function(lambda items, item: items.add_item(str(item)), View),
        "get_new_index": _function(_get_new_index, POINTER(c_int32)),
        "put_item_data": _function(lambda items, index, data: items.set_item_data(index, data), c_int32, c_int32),
    }
    _table = _table_of("quor_list_control_functions", _functions)
    _make = "quor_list_control_from_host"


# ---- A platform


@dataclass(frozen=True)
class Message:
    """A message with the button OK and, if there is a help file, the button Help."""

    text: str
    title: str
    help_file: str
    help_context: int
    icon: int  #: MessageIcon


@dataclass(frozen=True)
class FileRequest:
    """A file dialog to be shown."""

    title: str
    filter: str  #: "PT100 Files (*.pt1)|*.pt1"
    default_extension: str  #: without a point
    file_name: str  #: shown first: a name, or a pattern
    folder: str
    kind: int  #: FileDialogKind
    owner: int  #: window handle of the owner
    flags: int


class _MessageView(ctypes.Structure):
    _fields_ = [("text", View), ("title", View), ("help_file", View), ("help_context", c_int32), ("icon", c_int32)]


class _RequestView(ctypes.Structure):
    _fields_ = [("title", View), ("filter", View), ("default_extension", View), ("file_name", View), ("folder", View),
                ("kind", c_int32), ("owner", c_int32), ("flags", c_uint32)]


def _create_ini_file(platform: Platform, result: Any) -> None:
    with exchanged(platform.create_ini_file()) as reference:
        result[0] = reference.value
        reference.value = 0  # which the library takes


def _show_message(platform: Platform, view: Any) -> None:
    v = view[0]
    platform.show_message(Message(str(v.text), str(v.title), str(v.help_file), v.help_context,
                                  known(MessageIcon, v.icon)))


def _ask_for_file(platform: Platform, view: Any) -> None:
    v = view[0]
    _answer(_path(platform.ask_for_file(FileRequest(
        str(v.title), str(v.filter), str(v.default_extension), str(v.file_name), str(v.folder),
        known(FileDialogKind, v.kind), v.owner, v.flags))))


def _call_help(platform: Platform, help_file: View, command: int, data: int, result: Any) -> None:
    result[0] = flag(platform.call_help(str(help_file), command, data))


def _get_mouse_pointer(platform: Platform, shape: Any) -> None:
    shape[0] = platform.mouse_pointer


def _set_mouse_pointer(platform: Platform, shape: int) -> None:
    platform.mouse_pointer = shape


class Platform(_Offered):
    """The platform of a host. A method that a class does not override behaves as without a screen: messages go to the
    diagnostic stream, file dialogs are cancelled, dialogs fail, there is no help."""

    mouse_pointer: int = 0
    """The shape of the mouse pointer: MousePointer, or a shape of the host's own. It may be a property."""

    def create_ini_file(self) -> Union[_StoreOfLibrary, INIFile, None]:
        """Returns a new INI-file object, for a call that was passed the path of a file."""
        return _StoreOfLibrary()

    def run_dialog(self, dialog: Dialog) -> None:
        """Shows the dialog, reports to it what the user does, and returns when it is no longer open."""
        raise NotImplementedError

    def show_message(self, message: Message) -> None:
        """Shows the message and waits until it is closed."""
        raise NotImplementedError

    def ask_for_file(self, request: FileRequest) -> Optional[PathText]:
        """Returns the path that the user has chosen, or None if the user cancelled."""
        return None

    def call_help(self, help_file: str, command: int, data: int) -> bool:
        """Command 1 shows the topic with the context number `data`. Returns False on failure."""
        return False

    def decimal_separator(self) -> str:
        """The user's decimal separator. Called once per process."""
        return "."

    def control_changed(self, dialog: Dialog, control: Control) -> None:
        """Called while a dialog runs: a control may have changed."""

    def focus_moved(self, dialog: Dialog, control: Optional[Control]) -> None:
        """Called while a dialog runs: another control has the focus, or none has."""

    def title_changed(self, dialog: Dialog) -> None:
        """Called while a dialog runs: its title has changed."""

    def dialog_hidden(self, dialog: Dialog) -> None:
        """Called when the dialog was closed."""

    _functions = {
        "create_ini_file": _function(_create_ini_file, POINTER(c_uint64)),
        "run_dialog": _function(lambda p, dialog: p.run_dialog(borrowed(dialog)), c_uint64),
        "show_message": _function(_show_message, POINTER(_MessageView)),
        "ask_for_file": _function(_ask_for_file, POINTER(_RequestView)),
        "call_help": _function(_call_help, View, c_uint32, c_int32, POINTER(c_int32)),
        "decimal_separator": _function(lambda p: _answer(p.decimal_separator())),
        "get_mouse_pointer": _function(_get_mouse_pointer, POINTER(c_int32)),
        "set_mouse_pointer": _function(_set_mouse_pointer, c_int32),
        "control_changed": _notice(lambda p, d, c: p.control_changed(borrowed(d), borrowed(c)), c_uint64, c_uint64),
        "focus_moved": _notice(lambda p, d, c: p.focus_moved(borrowed(d), borrowed(c)), c_uint64, c_uint64),
        "title_changed": _notice(lambda p, d: p.title_changed(borrowed(d)), c_uint64),
        "dialog_hidden": _notice(lambda p, d: p.dialog_hidden(borrowed(d)), c_uint64),
    }
    _optional = {name: name for name in _functions if not name.endswith("mouse_pointer")}
    _table = _table_of("quor_platform_functions", _functions)
    _make = "quor_platform_from_host"


for _class in (INIFile, Registry, ListControl, Platform):
    declare(_class._make, [POINTER(_class._table), c_void_p, POINTER(c_uint64)])
