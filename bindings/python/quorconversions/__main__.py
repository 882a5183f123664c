"""python -m quorconversions list FILE, or show FILE [SECTION]..."""

import argparse
import os
import sys
from typing import List, Optional

from . import ConversionType, ProbeFile, QuorError


def _printable(text: str) -> str:
    """On one line, without characters that a terminal obeys."""
    return "".join(c if c.isprintable() else c.encode("unicode_escape").decode("ascii") for c in text)


def _tell(text: str) -> None:
    print(_printable(text), file=sys.stderr)


def _list(file: ProbeFile) -> int:
    wrong = 0
    for row in file.table():
        kind = row["type"]
        name = kind.name if isinstance(kind, ConversionType) else str(kind)
        if row["problems"] < 0:  # its type cannot be read
            name, wrong = "?", 1
        print(f"{_printable(row['section'])}\t{name}")
    return wrong


def _show(file: ProbeFile, sections: List[str]) -> int:
    wrong = 0
    for section in sections or list(file):
        conversion, problems = file.read(section)
        print(f"[{_printable(section)}] {conversion!r}")
        for problem in problems:
            wrong = 1
            _tell(f"{file.path}:{problem.line}: [{problem.section}] {problem.key}: {problem.text}")
    return wrong


def _run(command: str, name: str, sections: List[str]) -> int:
    file = ProbeFile(name)
    result = _show(file, sections) if command == "show" else _list(file)
    sys.stdout.flush()
    return result


def main(arguments: Optional[List[str]] = None) -> int:
    for stream in (sys.stdout, sys.stderr):
        stream.reconfigure(errors="backslashreplace")  # type: ignore[attr-defined]
    parser = argparse.ArgumentParser(prog="quorconversions", description="The probes of a file.")
    commands = parser.add_subparsers(dest="command", required=True)
    lister = commands.add_parser("list", help="the sections of the probes and their types")
    lister.add_argument("file")
    shower = commands.add_parser("show", help="the probes with their values")
    shower.add_argument("file")
    shower.add_argument("section", nargs="*")
    given = parser.parse_args(arguments)
    try:  # arguments are UTF-8, whatever the locale
        name, *sections = [os.fsencode(text).decode() for text in [given.file, *getattr(given, "section", [])]]
    except UnicodeDecodeError:
        parser.error("an argument is not UTF-8 text")
    try:
        return _run(given.command, name, sections)
    except QuorError as error:
        _tell(error.description)
    except OSError as error:  # of the standard output alone: what the library raises is a QuorError
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        if not isinstance(error, BrokenPipeError):  # nobody reads it
            _tell(f"the results cannot be written: {error.strerror}")
    return 1


if __name__ == "__main__":
    sys.exit(main())
