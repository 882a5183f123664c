"""Every member of every class, through the functions of the library and through the classes of the package."""

import ctypes
import importlib.machinery
import importlib.util
import re
import sys

import pytest
from conftest import ROOT
from hosts import MapINIFile, MapRegistry, Person

import quorconversions as quor
from quorconversions import _low, _runtime

loader = importlib.machinery.SourceFileLoader("generate", str(ROOT / "component/generate"))
generate = importlib.util.module_from_spec(importlib.util.spec_from_loader("generate", loader))
sys.modules["generate"] = generate
loader.exec_module(generate)
TABLE = generate.read_table()

# It has a problem, of which the reading of its probe knows nothing.
PROBES = ("[sample]\nVersion=1.0\nConversionType=2\nNoKey=1\n[sample - Settings]\nVersion=1.0\nNumCoefficients=4\n"
          "UsePolynomial=False\nCoefficients0=100\nCoefficients1=0.0039\nCoefficients2=1.5\nCoefficients3=0.1\n")
PLAIN = {"bool": True, "int16": 2, "int32": -2, "double": 2.5, "text": "sample"}
CTYPES = {"bool": ctypes.c_int16, "int16": ctypes.c_int16, "int32": ctypes.c_int32, "double": ctypes.c_double,
          "text": _runtime.Text, "int32s": _runtime.Int32s, "doubles": _runtime.Doubles}


class Calls:
    """Calls each member by both ways and compares what they give."""

    def __init__(self, references):
        self.references = references
        self.outcomes = {}  # function -> whether it has succeeded
        self.file = None

    def sample(self, of_type, name=""):
        if name in ("Index", "Row", "Place", "SelStart", "SelLength"):
            return 0
        if of_type in PLAIN:
            return PLAIN[of_type]
        return 1 if TABLE.enumeration(of_type) else self.references[of_type]

    def reset(self):
        """The file of probes is as it was before the call before."""
        if self.file is not None and open("probes.ini").read() != PROBES:
            with open("probes.ini", "w") as file:
                file.write(PROBES)
            self.file.Reload()

    def ctype(self, of_type):
        if of_type in CTYPES:
            return CTYPES[of_type]
        return ctypes.c_int32 if TABLE.enumeration(of_type) else ctypes.c_uint64

    def value(self, of_type, result):
        if of_type in ("text", "int32s", "doubles"):
            return result.take()
        if of_type == "bool":
            return result.value != 0
        return _runtime.taken(result.value) if self.ctype(of_type) is ctypes.c_uint64 else result.value

    def by_function(self, c, member, kind, target):
        """What the C function gives, as the class would."""
        name, _ = generate.c_function(TABLE, c, member, kind)
        arguments, outs, scopes = [target._handle], [], []
        for p in member.parameters:
            value = self.sample(p.type, p.name)
            ctype = self.ctype(p.type)
            if ctype is ctypes.c_uint64:
                scope = (_runtime.exchanged if p.inout else _runtime.lent)(value)
                scopes.append(scope)
                entered = scope.__enter__()
                arguments.append(ctypes.byref(entered) if p.inout else entered)
            elif p.inout and p.type == "text":
                outs.append((p.type, _runtime.Text()))
                arguments += [_runtime.text(value), ctypes.byref(outs[-1][1])]
            elif p.inout:
                outs.append((p.type, ctype(-1 if value is True else value)))
                arguments.append(ctypes.byref(outs[-1][1]))
            else:
                arguments.append(_runtime.text(value) if p.type == "text" else value)
        if kind == "put":
            value = self.sample(member.result)
            arguments.append(_runtime.text(value) if member.result == "text" else value)
        elif member.result:
            outs.insert(0, (member.result, self.ctype(member.result)()))
            arguments.append(ctypes.byref(outs[0][1]))
        code = getattr(_runtime.library, name)(*arguments)
        for scope in scopes:
            scope.__exit__(None, None, None)
        _runtime.check(code)
        given = tuple(self.value(of_type, out) for of_type, out in outs)
        return given[0] if len(given) == 1 else given or None

    def by_class(self, c, member, kind, target):
        arguments = [self.sample(p.type, p.name) for p in member.parameters]
        if kind == "call":
            return getattr(target, member.name)(*arguments)
        if kind == "put":
            arguments.append(self.sample(member.result))
        if member.parameters or member.kinds == ("put",):
            return getattr(target, f"{kind}_{member.name}")(*arguments)
        return getattr(target, member.name) if kind == "get" else setattr(target, member.name, arguments[0])

    def all_of(self, target):
        c = TABLE.class_named(target.library_class)
        for member, kind in generate.functions_of(c):
            if member is None:
                continue
            gives = []
            for way in (self.by_function, self.by_class):
                self.reset()
                try:
                    gives.append(way(c, member, kind, target.object))
                except quor.QuorError as error:
                    gives.append((error.number, error.source, error.description))
            failed = isinstance(gives[0], tuple) and len(gives[0]) == 3
            name = generate.c_function(TABLE, c, member, kind)[0]
            if member.name == "ReadAll":
                assert type(gives[0]) is type(gives[1]) is _low.ProbeTable
            else:
                assert gives[0] == gives[1], name
                assert type(gives[0]) is type(gives[1]) or isinstance(gives[1], int), name
            self.outcomes[name] = self.outcomes.get(name, False) or not failed


class Target:
    def __init__(self, library_class, target):
        self.library_class = library_class
        self.object = target


SETTINGS = {quor.ConversionType.ITS90: "CQuorITS90", quor.ConversionType.IPTS68: "CQuorIPTS68",
            quor.ConversionType.CVD: "CQuorCVD", quor.ConversionType.PT100R0: "CQuorPT100",
            quor.ConversionType.HTPRT: "CQuorHTPRT", quor.ConversionType.WT90: "CQuorWT90",
            quor.ConversionType.THERMISTORR_T: "CQuorThermistor", quor.ConversionType.POLYNOMIAL: "CQuorPolynomial",
            quor.ConversionType.TCPOLYNOMIAL: "CQuorTCPolynomial", quor.ConversionType.TCTABLE: "CQuorTCTable",
            quor.ConversionType.TCTYPEX: "CQuorTCTypeX", quor.ConversionType.TCTYPEPOLY: "CQuorTCTypePoly"}
ERRORS_ONLY = {
    "quor_its90_high_range_put_Range",  # the sample of a range, 1, is none of the high side
    "quor_probe_file_get_Messages", "quor_probe_file_get_ConflictSection", "quor_probe_file_get_ConflictKey",
    "quor_probe_file_get_ConflictRead", "quor_probe_file_get_ConflictTheirs", "quor_probe_file_get_ConflictOurs"}


def test_each_gives_the_same_through_the_library_and_through_its_class(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    host_list = quor.ListControl()
    library_list = _low.ListControl.__new__(_low.ListControl)
    library_list._own(host_list._offer())
    library_ini = _low.INIFile.__new__(_low.INIFile)
    library_ini._own(MapINIFile()._offer())
    calls = Calls({"Registry": MapRegistry(), "INIFile": MapINIFile(), "ListControl": host_list, "Control": None,
                   "ProbeFile": None, "CQuorConversion": quor.Conversion(quor.ConversionType.CVD)})

    def in_dialog(dialog):
        if dialog.Name != "frmITS90Settings" or calls.references["Control"] is not None:
            dialog.Escape()
            return
        dialog.SetPlace(3, 4)
        for index in range(dialog.ControlCount):
            calls.all_of(Target("Control", dialog.get_Controls(index)))
        for name in ("txtRTPW", "cmdOKCancelHelp(2)", "cboLowRange", "tabRange"):
            calls.references["Control"] = dialog.FindControl(name)
            calls.all_of(Target("Dialog", dialog))
        dialog.Close()

    person = Person(in_dialog, file="answer.ini")
    for _ in range(2):  # what was written in the first is found in the second
        with open("probes.ini", "w") as file:
            file.write(PROBES)
        calls.file = calls.references["ProbeFile"] = _low.ProbeFile("probes.ini")
        calls.all_of(Target("ProbeFile", calls.file))
        calls.all_of(Target("ProbeTable", calls.file.ReadAll()))
        calls.file = calls.references["ProbeFile"] = None
        for store in (_low.INIFile(), library_ini):
            calls.all_of(Target("INIFile", store))
        calls.all_of(Target("Registry", quor.FileRegistry("sample", "sample-folder")))
        calls.all_of(Target("ListControl", library_list))
        calls.references["Control"] = "no dialog yet"
        calls.all_of(Target("CQuorConversion", quor.Conversion(quor.ConversionType.CVD, person)))
        for kind, name in SETTINGS.items():
            conversion = quor.Conversion(kind, person)
            assert quor.Conversion(kind).settings.__class__.__module__ == "quorconversions._settings", name
            calls.all_of(Target(name, conversion.Settings))
        its90 = quor.Conversion(quor.ConversionType.ITS90, person).Settings
        its90.high_range.Range = quor.ITS90RangeNumber.RANGE_6
        calls.all_of(Target("CQuorITS90LowRange", its90.low_range))
        calls.all_of(Target("CQuorITS90HighRange", its90.high_range))
        calls.references["Control"] = None
        its90.Edit()
    quor.Conversion().HelpFile = ""

    every = {generate.c_function(TABLE, c, m, kind)[0] for c in TABLE.classes for m, kind in generate.functions_of(c)
             if m is not None}
    assert set(calls.outcomes) == every
    assert {name for name, succeeded in calls.outcomes.items() if not succeeded} == ERRORS_ONLY
    calls.references.clear()


@pytest.mark.parametrize("made", [c for c in TABLE.classes if c.made_with is None and c.name != "Platform"],
                         ids=lambda c: c.name)
def test_what_no_host_makes_cannot_be_made_here(made):
    with pytest.raises(TypeError, match="only the library creates objects"):
        getattr(_low, made.name)()


def test_tables_of_functions_have_the_fields_that_the_header_has():
    header = (ROOT / "component/quor.h").read_text()
    for offered in (quor.INIFile, quor.Registry, quor.ListControl, quor.Platform):
        name = offered._table.__name__
        fields = re.search(r"typedef struct %s \{(.*?)\} %s;" % (name, name), header, re.S)[1]
        fields = re.sub(r"/\*.*?\*/", "", fields, flags=re.S)
        declared = ["size", *re.findall(r"\(\*(\w+)\)", fields)]
        assert [field for field, _ in offered._table._fields_] == declared, name


CSHARP = {"int16_t": "short", "int32_t": "int", "uint64_t": "ulong", "double": "double", "void": "void", "quor_text": "Text",
          "quor_int32s": "Array", "quor_doubles": "Array", "quor_error": "ErrorView", "void*": "IntPtr",
          "const char*": "IntPtr", "const quor_platform_functions": "PlatformFunctions"}


def in_csharp(declared, typedefs):
    """The type of a parameter of C, as C# declares it: "quor_text* result" is "out Text"."""
    of_type, name = re.fullmatch(r"(.*?)\s*(\w+)", declared).groups()
    if of_type in CSHARP:
        return CSHARP[of_type]
    is_pointer = of_type.endswith("*")
    of_type = of_type[:-1] if is_pointer else of_type
    plain = CSHARP[typedefs.get(of_type, of_type)]
    if not is_pointer:
        return plain
    # What the library only gives out; a variable that is read, too, has the same type in C.
    is_out = name in ("result", "error", "count", "class_name", "platform") or name.endswith("_out")
    return f"{'out' if is_out else 'ref'} {plain}"


def test_the_functions_of_csharp_have_the_types_that_the_header_has():
    header = re.sub(r"/\*.*?\*/", "", (ROOT / "component/quor.h").read_text(), flags=re.S)
    typedefs = {name: of_type for of_type, name in re.findall(r"typedef (\w+) (\w+);", header)}
    prototypes = {name: (result, " ".join(parameters.split()).split(", "))
                  for result, name, parameters in re.findall(r"QUOR_API ([^;(]*?)\s*(\w+)\(([^)]*)\);", header)}
    native = re.findall(r"static extern (\w+) (\w+)\((.*?)\);", (ROOT / "bindings/csharp/Quor.cs").read_text())
    assert len(native) > 400
    for result, name, parameters in native:
        c_result, c_parameters = prototypes[name]
        types = [parameter.rpartition(" ")[0] for parameter in parameters.split(", ")]
        assert (name, result, types) == (name, CSHARP[c_result], [in_csharp(one, typedefs) for one in c_parameters])


def test_a_number_that_its_type_does_not_hold_is_refused_and_not_cut():
    cvd = quor.Conversion(quor.ConversionType.CVD).settings
    with pytest.raises(OverflowError, match="65540 does not fit into 16 bits"):
        cvd.NumCoefficients = 65540
    assert cvd.NumCoefficients == 4
    with pytest.raises(OverflowError, match="4294967296 does not fit into 32 bits"):
        cvd.get_Coefficients(2**32)
    with pytest.raises(OverflowError):
        _low.INIFile().ReadInteger("Key", 40000)
    with pytest.raises(TypeError):
        cvd.NumCoefficients = 1.5
    with pytest.raises(TypeError, match="expected a number, not '1'"):
        cvd.put_Coefficients(0, "1")
    with pytest.raises(TypeError, match="expected a str, not b'bytes'"):
        cvd.FilePath = b"bytes"
