"""Python's configparser, with the command line and the answer of the other workers (see Worker.cpp)."""
import configparser
import json
import shutil
import statistics
import struct
import sys
import time

COEFFICIENTS = ["Coefficients0", "Coefficients1", "Coefficients2", "Coefficients3"]


def status(field):
    with open("/proc/self/status", encoding="ascii") as lines:
        for line in lines:
            if line.startswith(field + ":"):
                return int(line.split()[1]) * 1024
    raise RuntimeError("no " + field)


def load(path):
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str  # keys keep their case when the file is saved
    with open(path, encoding="utf-8") as file:
        parser.read_file(file)
    return parser


def read_probe(parser, probe, values):
    section, settings = parser[f"Probe {probe}"], parser[f"Probe {probe} - Settings"]
    values.append(section["Version"])
    values.append(section.getint("ConversionType"))
    values.append(settings["Version"])
    values.append(settings.getint("NumCoefficients"))
    values.append(settings.getboolean("UsePolynomial"))
    for key in COEFFICIENTS:
        values.append(settings.getfloat(key))


def check_sum(values):
    total = 0
    for value in values:
        if isinstance(value, str):
            total += len(value)
        elif isinstance(value, float):
            total += struct.unpack("<Q", struct.pack("<d", value))[0]
        else:
            total += int(value)
    return total % 2**64


def save(parser, path):
    with open(path, "w", encoding="utf-8") as file:
        parser.write(file, space_around_delimiters=False)


def build(path, values, probes):
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    for probe in range(probes):
        parser[f"Probe {probe}"] = {"Version": "1.0", "ConversionType": "2"}
        parser[f"Probe {probe} - Settings"] = {
            "Version": "1.0", "NumCoefficients": "4", "UsePolynomial": "False",
            **{key: repr(values[probe * 4 + i]) for i, key in enumerate(COEFFICIENTS)}}
    save(parser, path)


def main():
    task, probes, repetitions, folder, value = (
        sys.argv[1], int(sys.argv[2]), int(sys.argv[3]), sys.argv[4], float(sys.argv[5]))
    source, target = f"{folder}/{probes};.ini", f"{folder}/saved.ini"
    coefficients = []
    if task == "build":
        parser = load(source)
        for probe in range(probes):
            coefficients += [parser[f"Probe {probe} - Settings"].getfloat(key) for key in COEFFICIENTS]
        del parser
    times, values, before = [], [], status("VmRSS")
    with open("/proc/self/clear_refs", "w", encoding="ascii") as file:
        file.write("5")
    for _ in range(repetitions):
        values = []
        if task == "change":
            shutil.copyfile(source, target)
        start = time.perf_counter()
        if task == "load":
            kept = load(source)
        elif task == "read":
            kept = load(source)
            for probe in range(probes):
                read_probe(kept, probe, values)
        elif task == "one":
            read_probe(load(source), probes // 2, values)
        elif task == "build":
            build(target, coefficients, probes)
        elif task == "change":
            parser = load(target)
            parser[f"Probe {probes // 2} - Settings"]["Coefficients2"] = repr(value)
            save(parser, target)
        else:
            raise SystemExit("unknown task " + task)
        times.append(time.perf_counter() - start)
    print(json.dumps({"first": times[0], "seconds": statistics.median(times[1:] or times), "sum": str(check_sum(values)),
                      "memory": status("VmHWM") - before}))


main()
