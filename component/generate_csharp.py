"""What component/generate makes for C#: the package Quor.cs, from Quor.cs.in."""

import re

NATIVE = {"bool": "short", "int16": "short", "int32": "int", "double": "double", "text": "Text", "int32s": "Array",
          "doubles": "Array"}
TYPES = {"bool": "bool", "int16": "short", "int32": "int", "double": "double", "text": "string", "int32s": "int[]",
         "doubles": "double[]"}
DEFAULTS = {"None": "null", "False": "false", '""': '""', "-2": "-2"}
KEYWORDS = {"object", "default", "string", "base", "params", "ref", "out", "in", "event", "lock"}


def is_reference(table, of_type):
    return of_type not in NATIVE and not table.enumeration(of_type)


def native(table, of_type):
    return NATIVE.get(of_type, "int" if table.enumeration(of_type) else "ulong")


def type_of(table, of_type):
    return TYPES.get(of_type, "QuorObject" if of_type == "Settings" else of_type)


def local(name):
    """A parameter's name, as C# begins it."""
    name = re.sub(r"^[A-Z]+(?=[A-Z][a-z]|$)|^[A-Z]", lambda match: match[0].lower(), name)  # INIFile -> iniFile
    return "@" + name if name in KEYWORDS else name


def extern(table, c, member, kind, c_function):
    name, _ = c_function(table, c, member, kind)
    given = c.made_with if kind == "create" else member.parameters
    parts = [] if kind == "create" else ["ulong it"]
    for i, p in enumerate(given):
        of_type = native(table, p.type)
        if p.inout and p.type == "text":
            parts += [f"Text p{i}", f"out Text p{i}Out"]
        else:
            parts.append(f"{'ref ' if p.inout else ''}{of_type} p{i}")
    if kind == "put":
        parts.append(f"{native(table, member.result)} value")
    elif kind == "create":
        parts.append("out ulong result")
    elif member.result:
        parts.append(f"out {native(table, member.result)} result")
    return f"        [DllImport(Library, CallingConvention = Convention)] public static extern int {name}({', '.join(parts)});"


def goes_in(table, name, of_type):
    """What the native function is given, and the text that has to be freed after it."""
    if of_type == "text":
        text = name.lstrip("@") + "Text"
        return f"{text}.Value", f"var {text} = new TextIn({name})"
    if of_type == "bool":
        return f"QuorObject.Flag({name})", None
    if table.enumeration(of_type):
        return f"(int){name}", None
    if is_reference(table, of_type):
        return f"QuorObject.HandleOf({name})", None
    return name, None


def comes_out(table, name, of_type):
    if of_type == "text":
        return f"{name}.Take()"
    if of_type == "int32s":
        return f"{name}.Int32s()"
    if of_type == "doubles":
        return f"{name}.Doubles()"
    if of_type == "bool":
        return f"{name} != 0"
    if table.enumeration(of_type):
        return f"({of_type}){name}"
    if is_reference(table, of_type):
        return f"({type_of(table, of_type)})QuorObject.Of({name})"
    return name


def call(table, c, member, kind, function, given):
    """The lines that call the native function; `given` are names and types of what goes in. What goes in is complete before
    a reference is lent, and what came out is taken before an error is raised."""
    before, lent, after = [] if kind == "create" else ["var it = NativeHandle;"], [], []
    arguments, usings = [] if kind == "create" else ["it"], []
    for name, p in given:
        bare = name.lstrip("@")
        value, using = goes_in(table, name, p.type)
        usings += [using] if using else []
        if is_reference(table, p.type):
            before.append(f"var {bare}Handle = QuorObject.HandleOf({name});")
            value = f"{bare}Handle"
        if not p.inout:
            arguments.append(value)
        elif p.type == "text":
            before.append(f"Text {bare}Out;")
            arguments += [value, f"out {bare}Out"]
            after.append(f"{bare}New = {bare}Out.Take();")
            before.append(f"string {bare}New;")
        elif is_reference(table, p.type):
            lent.append(f"{bare}Handle = QuorObject.Lend({bare}Handle);")
            arguments.append(f"ref {bare}Handle")
            after.append(f"{name} = ({type_of(table, p.type)})QuorObject.GiveBack({name}, {bare}Handle);")
        else:
            before.append(f"{native(table, p.type)} {bare}Native = {value};")
            arguments.append(f"ref {bare}Native")
            after.append(f"{name} = {comes_out(table, bare + 'Native', p.type)};")
    result = None
    if kind == "create":
        result = "ulong"
    elif kind != "put" and member.result:
        result = native(table, member.result)
    if result:
        before.append(f"{result} result;")
        arguments.append("out result")
    native_call = f"Native.{function}({', '.join(arguments)})"
    held = "".join(f"using ({using}) " for using in usings)
    if not lent and not after:
        lines = [*before, f"{held}QuorError.Raise({native_call});"]
    else:
        inner = " ".join([*lent, f"code = {native_call};"])
        lines = [*before, "int code;", f"{held}{{ {inner} }}" if held else inner, *after, "QuorError.Raise(code);"]
    # A text that came out is the variable's only if nothing was raised.
    lines += [f"{name} = {name.lstrip('@')}New;" for name, p in given if p.inout and p.type == "text"]
    return lines, result


def wrapper(table, c, member, kind, c_function):
    function, _ = c_function(table, c, member, kind)
    parameters = c.made_with if kind == "create" else member.parameters
    given, signature, may_lack, tail = [], [], True, []
    for p in reversed(parameters):
        default = p.default if p.default is not None else "None" if p.type == "Platform" else None
        may_lack = may_lack and not p.inout and default is not None and kind != "put"
        tail.append(f" = {DEFAULTS[default]}" if may_lack else "")
    for p, default in zip(parameters, reversed(tail)):
        given.append((local(p.name), p))
        signature.append(f"{'ref ' if p.inout else ''}{type_of(table, p.type)} {local(p.name)}{default}")
    return function, given, signature


def member_lines(table, c, member, Parameter, c_function):
    """The C# member or members of one row of the table."""
    lines = [f"        /// <summary>{escaped(member.doc)}</summary>"]
    if member.is_call:
        function, given, signature = wrapper(table, c, member, "call", c_function)
        body, result = call(table, c, member, "call", function, given)
        if result:
            body.append(f"return {comes_out(table, 'result', member.result)};")
        of_type = type_of(table, member.result) if member.result else "void"
        return lines + block(f"        public {of_type} {own_name(c, member.name)}({', '.join(signature)})", body)
    of_type = type_of(table, member.result)
    accessors = []
    for kind in member.kinds:
        function, given, signature = wrapper(table, c, member, kind, c_function)
        if kind == "put":
            given = [*given, ("value", Parameter("value", member.result))]
        body, _ = call(table, c, member, kind, function, given)
        if kind == "get":
            body.append(f"return {comes_out(table, 'result', member.result)};")
        accessors.append((kind, signature, body))
    if not member.parameters:
        lines.append(f"        public {of_type} {own_name(c, member.name)} {{")
        for kind, _, body in accessors:
            lines += ["    " + line for line in block("        " + {"get": "get", "put": "set"}[kind], body)]
        return [*lines, "        }"]
    doc = lines
    lines = []
    for kind, signature, body in accessors:
        if kind == "get":
            lines += doc + block(f"        public {of_type} Get{member.name}({', '.join(signature)})", body)
        else:
            lines += doc + block(f"        public void Set{member.name}({', '.join([*signature, of_type + ' value'])})", body)
    return lines


def own_name(c, name):
    """No member of a C# class has the name of the class, or of Object."""
    return name + "_" if name in (c.name, "GetType", "Equals", "Finalize") else name


def block(head, body):
    return [head + " {", *("            " + line for line in body), "        }"]


def escaped(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def package(table, template, Parameter, c_function, functions_of):
    enumerations, externs, classes, made = [], [], [], []
    for e in table.enumerations:
        enumerations.append(f"    /// <summary>{escaped(e.doc)}</summary>\n    public enum {e.name} {{")
        for name, value, doc in e.values:
            enumerations.append((f"        /// <summary>{escaped(doc)}</summary>\n" if doc else "") +
                                f"        {name} = {value},")
        enumerations.append("    }\n")
    for c in table.classes:
        externs += [extern(table, c, member, kind, c_function) for member, kind in functions_of(c)]
        made.append(f'            {{"{c.name}", handle => new {c.name}(handle)}},')
        lines = [f"    /// <summary>{escaped(c.doc or c.name)}</summary>",
                 f"    public sealed partial class {c.name} : QuorObject {{",
                 f"        internal {c.name}(ulong handle) : base(handle) {{ }}"]
        if c.made_with is not None:
            function, given, signature = wrapper(table, c, None, "create", c_function)
            body, _ = call(table, c, None, "create", function, given)
            body.append("return result;")
            lines += [f"        public {c.name}({', '.join(signature)}) : base(Create({', '.join(n for n, _ in given)})) {{ }}"]
            types = [f"{type_of(table, p.type)} {name}" for name, p in given]
            lines += block(f"        static ulong Create({', '.join(types)})", body)
        for member in c.members:
            lines += member_lines(table, c, member, Parameter, c_function)
        classes.append("\n".join([*lines, "    }\n"]))
    for mark, text in (("@ENUMERATIONS@", "\n".join(enumerations)), ("@FUNCTIONS@", "\n".join(externs)),
                       ("@MADE@", "\n".join(made)), ("@CLASSES@", "\n".join(classes)),
                       ("@GENERATED@", "Made by component/generate from members.txt and Quor.cs.in: change those.")):
        template = template.replace(mark, text)
    return template
