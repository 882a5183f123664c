"""python -m quorconversions list FILE, or show FILE [SECTION]..."""

import argparse
import sys
from typing import List, Optional

from . import ConversionType, ProbeFile, QuorError


def _list(file: ProbeFile) -> None:
    for row in file.table():
        kind = row["type"]
        print(f"{row['section']}\t{kind.name if isinstance(kind, ConversionType) else kind}")


def _show(file: ProbeFile, sections: List[str]) -> int:
    wrong = 0
    for section in sections or list(file):
        conversion, problems = file.read(section)
        print(f"[{section}] {conversion!r}")
        for problem in problems:
            wrong = 1
            print(f"{file.path}:{problem.line}: [{problem.section}] {problem.key}: {problem.text}", file=sys.stderr)
    return wrong


def main(arguments: Optional[List[str]] = None) -> int:
    parser = argparse.ArgumentParser(prog="quorconversions", description="The probes of a file.")
    commands = parser.add_subparsers(dest="command", required=True)
    lister = commands.add_parser("list", help="the sections of the probes and their types")
    lister.add_argument("file")
    shower = commands.add_parser("show", help="the probes with their values")
    shower.add_argument("file")
    shower.add_argument("section", nargs="*")
    given = parser.parse_args(arguments)
    try:
        file = ProbeFile(given.file)
        if given.command == "show":
            return _show(file, given.section)
        _list(file)
        return 0
    except QuorError as error:
        print(error.description.encode("unicode_escape").decode("ascii"), file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
