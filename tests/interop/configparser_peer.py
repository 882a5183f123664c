"""One answer of Python's configparser: configparser_peer.py get FILE SECTION KEY text|double|integer
or configparser_peer.py set FILE new|old {SECTION KEY VALUE}..."""
import configparser
import sys


def main():
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    task, path = sys.argv[1:3]
    if task == "get" or sys.argv[3] == "old":
        with open(path, encoding="utf-8") as file:
            parser.read_file(file)
    if task == "get":
        section, key, kind = sys.argv[3:]
        value = {"text": parser.get, "double": parser.getfloat, "integer": parser.getint}[kind](section, key)
        print(value if kind == "text" else repr(value), end="")
        return
    for section, key, value in zip(*[iter(sys.argv[4:])] * 3):
        if not parser.has_section(section):
            parser.add_section(section)
        parser.set(section, key, value)
    with open(path, "w", encoding="utf-8") as file:
        parser.write(file)


main()
