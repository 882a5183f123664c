"""What component/generate makes for Windows: a server a library of identifiers.txt, its IDL, its manifest, and the C++
that its objects are made of."""

import dataclasses
import pathlib
import re

HERE = pathlib.Path(__file__).resolve().parent / "windows"
NOTE = "// Made by component/generate from members.txt and windows/identifiers.txt: change those.\n"
# A name that every interface has already, from IUnknown. By name the member is called as in the table, too.
OTHER_NAMES = {"Release": "ReleaseHold"}
DESCRIPTIONS = {"QuorConversions": "Quor Conversions: probe conversions of precision thermometers",
                "QuorIniFile": "Quor INI files: where probe conversions are kept",
                "QuorRegistryII": "Quor registry: what belongs to the user of a host"}
# References that a host may bring as an object of its own: all that has the members is one.
OFFERED = {"INIFile": "IniFile", "Registry": "Registry", "ListControl": "ListControl"}
IDL_TYPES = {"bool": "VARIANT_BOOL", "int16": "short", "int32": "long", "double": "double", "text": "BSTR"}
VARIANT_TYPES = {"bool": "VT_BOOL", "int16": "VT_I2", "int32": "VT_I4", "double": "VT_R8", "text": "VT_BSTR"}


@dataclasses.dataclass(frozen=True)
class Server:
    name: str
    version: str
    uuid: str
    enumerations: tuple  # of (Enumeration, UUID)
    classes: tuple  # of (Class, UUID of the class, UUID of its interface)


def read_servers(table):
    servers = []
    for line in (HERE / "identifiers.txt").read_text(encoding="utf-8").splitlines():
        words = line.split("#")[0].split()
        if not words:
            continue
        if words[0] == "library":
            servers.append((words[1:], [], []))
        elif words[0] == "enum":
            servers[-1][1].append((table.enumeration(words[1]), words[2]))
        else:
            servers[-1][2].append((table.class_named(words[1]), words[2], words[3]))
    return [Server(*head, tuple(enumerations), tuple(classes)) for head, enumerations, classes in servers]


def automation_name(member):
    return OTHER_NAMES.get(member.name, member.name)


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


# ---- IDL -------------------------------------------------------------------------------------------------------------


def idl_type(table, server, of_type, out):
    if of_type in IDL_TYPES:
        return IDL_TYPES[of_type]
    if table.enumeration(of_type):
        return of_type
    if out and of_type in (c.name for c, _, _ in server.classes):
        return f"I{of_type}*"
    return "IDispatch*"


def idl_parameters(table, server, parameters):
    for place, p in enumerate(parameters):
        attributes = "in, out" if p.inout else "in"
        # What can be left out ends the list for those that call early; late-bound calls leave out any such argument.
        if all(later.default is not None for later in parameters[place:]):
            attributes += f", optional, defaultvalue({p.default})"
        yield f"[{attributes}] {idl_type(table, server, p.type, False)}{'*' if p.inout else ''} {p.name}"


def idl_methods(table, server, member):
    for kind in member.kinds:
        parameters = list(idl_parameters(table, server, member.parameters))
        if kind == "put":
            parameters.append(f"[in] {idl_type(table, server, member.result, False)} Value")
        elif member.result:
            parameters.append(f"[out, retval] {idl_type(table, server, member.result, True)}* result")
        attribute = {"get": ", propget", "put": ", propput", "call": ""}[kind]
        yield (f"        [id({member.number}){attribute}, helpstring({quoted(member.doc)})]\n"
               f"        HRESULT {automation_name(member)}({', '.join(parameters)});\n")


def idl(table, server):
    parts = [NOTE, 'import "oaidl.idl";\n\n',
             f"[uuid({server.uuid}), version({server.version}), helpstring({quoted(DESCRIPTIONS[server.name])})]\n"
             f'library {server.name} {{\n    importlib("stdole2.tlb");\n']
    for e, uuid in server.enumerations:
        rows = "".join(f"        {name} = {value},{' // ' + doc if doc else ''}\n" for name, value, doc in e.values)
        parts.append(f"\n    typedef [uuid({uuid}), v1_enum] enum {e.name} {{\n{rows}    }} {e.name};\n")
    parts.append("\n" + "".join(f"    interface I{c.name};\n" for c, _, _ in server.classes))
    for c, _, iid in server.classes:
        methods = "".join(method for member in c.members for method in idl_methods(table, server, member))
        parts.append(f"\n    [object, uuid({iid}), dual, oleautomation, pointer_default(unique)]\n"
                     f"    interface I{c.name} : IDispatch {{\n{methods}    }};\n")
    for c, clsid, _ in server.classes:
        noncreatable = "" if c.made_with is not None else ", noncreatable"
        parts.append(f"\n    [uuid({clsid}){noncreatable}]\n"
                     f"    coclass {c.name} {{ [default] interface I{c.name}; }};\n")
    return "".join(parts) + "};\n"


# ---- Use without registering -----------------------------------------------------------------------------------------


def braced(uuid):
    return "{" + uuid.upper() + "}"


def manifest(server):
    classes = "".join(f'    <comClass clsid="{braced(clsid)}" progid="{server.name}.{c.name}" tlbid="{braced(server.uuid)}"'
                      ' threadingModel="Apartment"/>\n'
                      for c, clsid, _ in server.classes if c.made_with is not None)
    interfaces = "".join(f'  <comInterfaceExternalProxyStub name="I{c.name}" iid="{braced(iid)}" '
                         f'tlbid="{braced(server.uuid)}"\n'
                         '      proxyStubClsid32="{00020424-0000-0000-C000-000000000046}"/>\n'
                         for c, _, iid in server.classes)
    return ('<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
            "<!-- Made by component/generate: change members.txt or windows/identifiers.txt. -->\n"
            '<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">\n'
            f'  <assemblyIdentity type="win32" name="{server.name}" version="{server.version}.0.0" '
            'processorArchitecture="amd64"/>\n'
            f'  <file name="{server.name}.dll">\n{classes}'
            f'    <typelib tlbid="{braced(server.uuid)}" version="{server.version}" helpdir=""/>\n'
            f"  </file>\n{interfaces}</assembly>\n")


# ---- C++ -------------------------------------------------------------------------------------------------------------


def variant_type(table, of_type):
    if of_type is None:
        return "VT_EMPTY"
    if of_type in VARIANT_TYPES:
        return VARIANT_TYPES[of_type]
    return "VT_I4" if table.enumeration(of_type) else "VT_DISPATCH"


def parameter_row(table, p):
    by_reference = " | VT_BYREF" if p.inout else ""
    offer = f", Offer::{OFFERED[p.type]}" if p.type in OFFERED else ""
    return f'{{L"{p.name}", {variant_type(table, p.type)}{by_reference}{offer}}}'


def member_row(table, member):
    kinds = " | ".join("QUOR_" + kind.upper() for kind in member.kinds)
    rows = ", ".join(parameter_row(table, p) for p in member.parameters)
    other = f'L"{OTHER_NAMES[member.name]}"' if member.name in OTHER_NAMES else "nullptr"
    return (f'    {{L"{member.name}", {other}, {member.number}, {kinds}, {variant_type(table, member.result)}, '
            f"{len(member.parameters)}, {{{{{rows}}}}}}},\n")


def slots(table, server, c):
    for place, member in enumerate(c.members):
        for kind in member.kinds:
            name = ("" if kind == "call" else kind + "_") + automation_name(member)
            parameters = [f"{idl_type(table, server, p.type, False)}{'*' if p.inout else ''} {p.name}"
                          for p in member.parameters]
            arguments = [p.name for p in member.parameters]
            result = "nullptr"
            if kind == "put":
                parameters.append(f"{idl_type(table, server, member.result, False)} Value")
                arguments.append("Value")
            elif member.result:
                parameters.append(f"{idl_type(table, server, member.result, True)}* result")
                result = "result"
            call = ", ".join([f"{c.prefix}[{place}]", "QUOR_" + kind.upper(), result, *arguments])
            yield (f"    HRESULT STDMETHODCALLTYPE {name}({', '.join(parameters)}) override {{ "
                   f"return Slot({call}); }}\n")


def guid(uuid):
    words = uuid.split("-")
    last = ", ".join("0x" + pair for pair in re.findall("..", words[3] + words[4]))
    return f"{{0x{words[0]}, 0x{words[1]}, 0x{words[2]}, {{{last}}}}}"


def source(table, server):
    parts = [NOTE, "// clang-format off\n\n", f'#include "{server.name}.h" // by widl, of {server.name}.idl\n\n',
             '#include "component/windows/Object.h"\n#include "component/windows/Server.h"\n\n',
             "namespace QuorConversions::Automation {\nnamespace {\n\n"]
    for c, _, _ in server.classes:
        rows = "".join(member_row(table, member) for member in c.members)
        parts.append(f"constexpr Member {c.prefix}[] = {{\n{rows}}};\n\n")
        parts.append(f"class {c.name}Object final : public Dual<I{c.name}> {{\npublic:\n    using Dual::Dual;\n"
                     f"{''.join(slots(table, server, c))}}};\n\n")
    rows = ""
    for c, clsid, iid in server.classes:
        program = f'L"{server.name}.{c.name}"' if c.made_with is not None else "nullptr"
        rows += (f'    {{"{c.name}", {program},\n     {guid(clsid)},\n     {guid(iid)},\n'
                 f"     {c.prefix}, Make<{c.name}Object>}},\n")
    major, minor = server.version.split(".")
    parts.append(f"constexpr ClassRow classes[] = {{\n{rows}}};\n\n}} // namespace\n\n"
                 f'const ServerRow server = {{L"{server.name}", {guid(server.uuid)}, {major}, {minor}, classes}};\n\n'
                 "} // namespace QuorConversions::Automation\n")
    return "".join(parts)


def files(table):
    for server in read_servers(table):
        yield f"{server.name}.idl", idl(table, server)
        yield f"{server.name}.manifest", manifest(server)
        yield f"{server.name}.cpp", source(table, server)
