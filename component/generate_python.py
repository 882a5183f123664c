"""What component/generate makes for Python: the low layer of the package quorconversions, and its types."""

import keyword
import re
import textwrap

NOTE = "# Made by component/generate from members.txt: change that.\n"
# What a value that goes in is checked by: ctypes itself would cut it, or say less.
CHECKED = {"c_int16": "int16", "c_int32": "int32", "c_double": "double", "Text": "text"}
CTYPES = {"bool": "c_int16", "int16": "c_int16", "int32": "c_int32", "double": "c_double", "text": "Text",
          "int32s": "Int32s", "doubles": "Doubles"}
TYPES = {"bool": "bool", "int16": "int", "int32": "int", "double": "float", "text": "str", "int32s": "array[int]",
         "doubles": "array[float]"}
DEFAULTS = {"None": "None", "False": "False", '""': '""', "-2": "-2"}


def enumeration_name(name):
    """EQuorConversionType -> ConversionType, ETCType -> TCType."""
    return re.sub(r"^E(Quor)?", "", name)


def short_names(e):
    """The enumerators without what all of them begin with."""
    names = [name for name, _, _ in e.values]
    parts = [name.split("_") for name in names]
    most = min(len(p) for p in parts) - 1
    length = 0
    while length < most and len({p[length] for p in parts}) == 1 and (len(names) > 1 or length < 1):
        length += 1
    return ["_".join(p[length:]) for p in parts]


def ctype(table, of_type):
    if of_type in CTYPES:
        return CTYPES[of_type]
    return "c_int32" if table.enumeration(of_type) else "c_uint64"


def is_reference(table, of_type):
    return ctype(table, of_type) == "c_uint64"


def python_type(table, of_type, out):
    """The annotation of a value that goes in, or comes out."""
    if of_type in TYPES:
        return TYPES[of_type]
    if table.enumeration(of_type):
        return "int" if not out else enumeration_name(of_type) + " | int"
    if of_type == "Settings":
        return "Object | None"
    if out:  # with the name behind a line: a member of the class may have it, too
        return f"_{of_type} | HostObject | None" if of_type in ("INIFile", "Registry") else f"_{of_type} | None"
    return f"_{of_type} | HostObject | None" if of_type in HOSTED else f"_{of_type}"


HOSTED = ("INIFile", "Registry", "ListControl", "Platform")


def argument_types(table, c, member, kind, own):
    types = [] if own is None else ["c_uint64"]
    given = c.made_with if kind == "create" else member.parameters
    for p in given:
        of_type = ctype(table, p.type)
        goes_in = "TextIn" if of_type == "Text" else of_type
        types += [goes_in, "POINTER(Text)"] if p.inout and p.type == "text" else [
            f"POINTER({of_type})" if p.inout else goes_in]
    if kind == "put":
        of_type = ctype(table, member.result)
        types.append("TextIn" if of_type == "Text" else of_type)
    elif kind == "create":
        types.append("POINTER(c_uint64)")
    elif member.result:
        types.append(f"POINTER({ctype(table, member.result)})")
    return types


def value_in(table, name, of_type):
    if of_type == "bool":
        return f"flag({name})"
    return f"{CHECKED[ctype(table, of_type)]}({name})"


def value_out(table, name, of_type):
    """What comes out, from the ctypes object `name`."""
    if of_type in ("text", "int32s", "doubles"):
        return f"{name}.take()"
    if of_type == "bool":
        return f"{name}.value != 0"
    if table.enumeration(of_type):
        return f"known({enumeration_name(of_type)}, {name}.value)"
    return f"taken({name}.value)" if is_reference(table, of_type) else f"{name}.value"


def parameters_of(parameters):
    """Names with their defaults, where Python lets a default stand."""
    given, may_lack = [], True
    for p in reversed(parameters):
        may_lack = may_lack and p.default is not None
        given.append((p, DEFAULTS[p.default] if may_lack else None))
    return given[::-1]


def argument_name(name):
    return name + "_" if keyword.iskeyword(name) else name


def body(table, c, member, kind, function):
    """The lines of a method."""
    given = c.made_with if kind == "create" else member.parameters
    before, arguments, outs, lent = [], [] if kind == "create" else ["self._handle"], [], []
    for p in given:
        name = argument_name(p.name)
        if is_reference(table, p.type):
            lent.append(f"{'exchanged' if p.inout else 'lent'}({name}) as {name}_handle")
            arguments.append(f"byref({name}_handle)" if p.inout else f"{name}_handle")
        elif p.inout and p.type == "text":
            before.append(f"{name}_out = Text()")
            arguments += [f"text({name})", f"byref({name}_out)"]
            outs.append(f"{name}_out.take()")
        elif p.inout:
            before.append(f"{name}_out = {ctype(table, p.type)}({value_in(table, name, p.type)})")
            arguments.append(f"byref({name}_out)")
            outs.append(value_out(table, f"{name}_out", p.type))
        else:
            arguments.append(value_in(table, name, p.type))
    if kind == "put":
        arguments.append(value_in(table, "value", member.result))
    elif kind == "create" or member.result:
        before.append(f"result = {'c_uint64' if kind == 'create' else ctype(table, member.result)}()")
        arguments.append("byref(result)")
        if kind != "create":
            outs.insert(0, value_out(table, "result", member.result))
    call = f"check(_library.{function}({', '.join(arguments)}))"
    lines = before + ([f"with {', '.join(lent)}:", "    " + call] if lent else [call])
    if kind == "create":
        lines.append("self._own(result.value)")
    elif outs:
        lines.append("return " + ", ".join(outs))
    return lines


def result_type(table, member):
    types = [python_type(table, member.result, True)] if member.result else []
    types += [python_type(table, p.type, True) for p in member.parameters
              if p.inout and not is_reference(table, p.type)]
    if not types:
        return "None"
    return types[0] if len(types) == 1 else f"tuple[{', '.join(types)}]"


def signature(table, parameters, typed):
    parts = ["self"]
    for p, default in parameters_of(parameters):
        part = argument_name(p.name)
        if typed:
            part += ": " + python_type(table, p.type, False)
            part += " = ..." if default else ""
        elif default:
            part += f"={default}"
        parts.append(part)
    return ", ".join(parts)


def method(head, doc, lines):
    text = f"    def {head}:\n"
    if doc:
        wrapped = textwrap.wrap(doc, 105)
        text += '        """' + "\n        ".join(wrapped) + '"""\n'
    return text + "".join(f"        {line}\n" for line in lines)


def methods(table, c, c_function):
    """(name, code, types) of each method and property of a class."""
    if c.made_with is not None:
        function = c_function(table, c, None, "create")[0]
        made = [p if p.type != "Platform" else type(p)(p.name, p.type, p.inout, "None") for p in c.made_with]
        code = method(f"__init__({signature(table, made, False)})", "", body(table, c, None, "create", function))
        yield code, f"    def __init__({signature(table, made, True)}) -> None: ...\n"
    for m in c.members:
        functions = {kind: c_function(table, c, m, kind)[0] for kind in m.kinds}
        if m.is_call:
            head = f"{argument_name(m.name)}({signature(table, m.parameters, False)})"
            yield (method(head, m.doc, body(table, c, m, "call", functions["call"])),
                   f"    def {argument_name(m.name)}({signature(table, m.parameters, True)}) -> {result_type(table, m)}: ...\n")
            continue
        indices, typed = signature(table, m.parameters, False), signature(table, m.parameters, True)
        gives, takes = python_type(table, m.result, True), python_type(table, m.result, False)
        if m.parameters or m.kinds == ("put",):
            for kind in m.kinds:
                value = ", value" if kind == "put" else ""
                yield (method(f"{kind}_{m.name}({indices}{value})", m.doc, body(table, c, m, kind, functions[kind])),
                       f"    def {kind}_{m.name}({typed}{f', value: {takes}' if value else ''}) -> "
                       f"{'None' if value else gives}: ...\n")
            continue
        yield ("    @property\n" + method(f"{m.name}(self)", m.doc, body(table, c, m, "get", functions["get"])),
               f"    @property\n    def {m.name}(self) -> {gives}: ...\n")
        if "put" in m.kinds:
            yield (f"    @{m.name}.setter\n" + method(f"{m.name}(self, value)", "",
                                                      body(table, c, m, "put", functions["put"])),
                   f"    @{m.name}.setter\n    def {m.name}(self, value: {takes}) -> None: ...\n")


DOCS = {"CQuorConversion": "The conversion of one probe: its type, and the settings of that type."}


def layer(table, c_function, functions_of):
    """The source of _low.py, and of _low.pyi."""
    code = [NOTE, '"""The component interface as it is, class by class: what the rest of the package stands on."""\n',
            "from ctypes import POINTER, byref, c_double, c_int16, c_int32, c_uint64",
            "from enum import IntEnum\n",
            "from ._runtime import (Doubles, Int32s, Object, Text, TextIn, check, declare, double, exchanged, flag, int16, int32, "
            "known,\n                       lent, library as _library, taken, text, wrap_as)\n"]
    types = [NOTE, "from array import array", "from enum import IntEnum\n",
             "from ._runtime import HostObject, Object\n"]
    for e in table.enumerations:
        lines = [f"class {enumeration_name(e.name)}(IntEnum):"]
        for (_, value, doc), short in zip(e.values, short_names(e)):
            lines.append(f"    {short} = {value}" + (f"  # {doc}" if doc else ""))
        code.append("\n" + "\n".join(lines) + "\n")
        types.append("\n".join(line.split("  #")[0] for line in lines) + "\n")
    for c in table.classes:
        doc = DOCS.get(c.name, c.doc) or c.name
        code.append(f'\nclass {c.name}(Object):\n    """{doc}"""\n\n    __slots__ = ()\n')
        types.append(f"class {c.name}(Object):")
        rows = list(methods(table, c, c_function))
        for source, stub in rows:
            code.append(source)
            types.append(stub.rstrip("\n"))
        if not rows:
            types[-1] += " ..."
        types.append("")
    types.append("\n".join(f"_{c.name} = {c.name}" for c in table.classes) + "\n")
    code.append("\nfor _name, *_types in (")
    for c in table.classes:
        for member, kind in functions_of(c):
            name, _ = c_function(table, c, member, kind)
            own = None if kind == "create" else c
            code.append(f'    ("{name}", {", ".join(argument_types(table, c, member, kind, own))}),')
    code.append("):\n    declare(_name, _types)\n")
    code.append(f"for _class in ({', '.join(c.name for c in table.classes)}):\n    wrap_as(_class.__name__, _class)")
    return "\n".join(code) + "\n", "\n".join(types)
