"""What a host offers in Python, and what becomes of its exceptions."""

import pytest
from hosts import MapINIFile, MapRegistry, Person, click, type_over

import quorconversions as quor
from quorconversions import Conversion, ConversionType


class Boom(Exception):
    pass


def failing(name, error):
    """A method that raises that very exception."""

    def method(self, *arguments):
        raise error

    return {name: method}


def raised_by(call):
    """What the call raises, without the objects in its frames: the host that has raised it may keep it."""
    try:
        call()
    except BaseException as error:
        return error.with_traceback(None)
    return None


def test_an_ini_file_holds_a_record():
    file = MapINIFile()
    conversion = Conversion(ConversionType.CVD)
    conversion.settings.R0 = 100.0123
    conversion.write(file, "Probe")
    assert file.values["Probe", "Version"] == "1.0"
    assert file.values["Probe", "ConversionType"] == 2
    assert file.values["Probe - Settings", "UsePolynomial"] is False
    assert file.values["Probe - Settings", "Coefficients0"] == 100.0123
    assert file.brackets == ["hold", "hold", "release", "release"]
    other = Conversion()
    assert other.read(file, "Probe")
    assert other.settings.R0 == 100.0123


@pytest.mark.parametrize("method, text", [("read_boolean", "False"), ("read_double", "1_00"), ("read_double", b"100"),
                                          ("read_integer", "4")])
def test_a_text_that_its_ini_file_gives_for_a_number_or_flag_is_a_type_error(method, text):
    file = type("File", (MapINIFile,), {method: lambda self, key: text})()
    conversion = Conversion(ConversionType.CVD, platform=Person())
    Conversion(ConversionType.CVD).write(file, "Probe")
    with pytest.raises(TypeError, match=repr(text) if method != "read_integer" else "integer"):
        conversion.read(file, "Probe")
    assert conversion.settings.R0 == 0


@pytest.mark.parametrize("method", ["read_integer", "read_double", "read_boolean"])
@pytest.mark.parametrize("raises", [lambda: Boom("the disk is on fire"), KeyboardInterrupt,
                                    lambda: quor.QuorError(4711, "Store", "no", "h.hlp", 7)],
                         ids=["Boom", "KeyboardInterrupt", "QuorError"])
def test_an_exception_of_its_ini_file_comes_back_as_itself(method, raises):
    error = raises()
    person = Person()
    file = type("File", (MapINIFile,), failing(method, error))()
    Conversion(ConversionType.CVD).write(file, "Probe")
    assert raised_by(lambda: Conversion(platform=person).read(file, "Probe")) is error
    number = error.number if isinstance(error, quor.QuorError) else -2147467259
    assert str(number) in person.messages[0].text  # the user was told, too


@pytest.mark.parametrize("method", ["write_integer", "write_double", "write_string", "hold", "release"])
def test_an_exception_of_a_write_comes_back_as_itself(method):
    error = Boom(method)
    file = type("File", (MapINIFile,), failing(method, error))()
    assert raised_by(lambda: Conversion(ConversionType.CVD, Person()).write(file, "Probe")) is error


@pytest.mark.parametrize("method", ["run_dialog", "show_message", "ask_for_file", "call_help", "create_ini_file"])
def test_an_exception_of_its_platform_comes_back_as_itself(method):
    error = Boom(method)

    def run(dialog):
        if method == "call_help":
            dialog.Help()
        dialog.Escape()

    platform = type("Host", (Person,), failing(method, error))(run)
    conversion = Conversion(ConversionType.CVD, platform)
    calls = {"ask_for_file": lambda: conversion.settings.OpenFile(0, ""),
             "create_ini_file": lambda: conversion.read("no such file.ini", "Probe"),
             "show_message": lambda: conversion.read("no such file.ini", "Probe")}
    assert raised_by(calls.get(method, conversion.edit)) is error


def test_a_value_that_is_none_of_its_kind_is_an_error_of_the_host():
    file = MapINIFile()
    Conversion(ConversionType.CVD).write(file, "Probe")
    file.values["Probe", "ConversionType"] = 70000
    with pytest.raises(OverflowError):
        Conversion(platform=Person()).read(file, "Probe")


def test_a_registry_that_was_handed_in_comes_back_as_itself_and_lives_as_long_as_it_is_held():
    conversion = Conversion(ConversionType.CVD)
    conversion.SetRegistry(MapRegistry())
    registry = conversion.Registry
    assert isinstance(registry, MapRegistry)
    assert conversion.settings.Registry is registry
    conversion.SetRegistry(None)
    assert conversion.Registry is None


def test_a_built_in_registry_comes_back_as_itself(tmp_path):
    conversion = Conversion()
    registry = quor.FileRegistry("app", str(tmp_path))
    conversion.SetRegistry(registry)
    assert conversion.Registry is registry


def test_a_person_edits_a_probe():
    def edit(dialog):
        assert dialog.Name == "frmPT100Settings"
        type_over(dialog, "txtCoefficients(0)", "100.0x123")
        click(dialog, "cmdOKCancelHelp(0)")

    conversion = Conversion(ConversionType.PT100R0, Person(edit))
    assert conversion.edit()
    assert conversion.settings.R0 == 100.0123
    assert conversion.changed


def test_handles_of_a_dialog_that_has_ended_lead_nowhere():
    kept = []

    def keep(dialog):
        kept.extend([dialog, dialog.FindControl("txtCoefficients(0)")])
        dialog.Escape()

    assert not Conversion(ConversionType.CVD, Person(keep)).edit()
    for ended in kept:
        with pytest.raises(quor.QuorError) as raised:
            ended.Name
        assert raised.value.number == 91
    kept.clear()


def test_a_platform_is_told_what_changes_in_a_dialog():
    class Watcher(Person):
        def __init__(self, run):
            super().__init__(run)
            self.seen = []

        def control_changed(self, dialog, control):
            self.seen.append(control.Name)

        def dialog_hidden(self, dialog):
            self.seen.append("hidden")

    def edit(dialog):
        dialog.Paste(dialog.FindControl("txtCoefficients(0)"), "100 ohm")
        click(dialog, "cmdOKCancelHelp(0)")

    watcher = Watcher(edit)
    conversion = Conversion(ConversionType.PT100R0, watcher)
    assert conversion.edit()
    assert "txtCoefficients(0)" in watcher.seen
    assert watcher.seen[-1] == "hidden"


def test_a_file_dialog_asks_the_platform(tmp_path):
    person = Person(file=tmp_path / "probe.cvd")
    cvd = Conversion(ConversionType.CVD, person).settings
    cvd.R0 = 25.5
    assert cvd.SaveFileAs(0, "") == (True, str(tmp_path / "probe.cvd"))
    assert person.requests[0].kind == quor.FileDialogKind.SAVE
    assert "Coefficients0=25.5\n" in (tmp_path / "probe.cvd").read_text()
    person.file = None
    assert cvd.OpenFile(0, "") == (False, "")


def test_the_mouse_pointer_is_busy_while_a_file_is_read(tmp_path):
    class Mouse(Person):
        shapes = []

        @property
        def mouse_pointer(self):
            return 3

        @mouse_pointer.setter
        def mouse_pointer(self, shape):
            self.shapes.append(shape)

    Conversion(ConversionType.OHMS, Mouse()).write(tmp_path / "x.ini", "P")
    assert Mouse.shapes == [quor.MousePointer.HOURGLASS, 3]


def test_calls_from_within_a_message_do_not_get_the_exception_of_the_dialog():
    class Burnt(Person):
        def run_dialog(self, dialog):
            raise Boom("no screen today")

        def show_message(self, message):
            self.seen = self.conversion.type
            raise Boom("the second")

    person = Burnt()
    person.seen = None
    person.conversion = Conversion(ConversionType.CVD, person)
    assert str(raised_by(person.conversion.edit)) == "no screen today"
    assert person.seen == ConversionType.CVD
    del person.conversion  # each keeps the other
