"""python -m quorconversions."""

import os
import subprocess
import sys

import pytest

from conftest import ROOT


def run(line, **environment):
    """Runs a line as a shell does; "quor" is the program."""
    line = line.replace("quor ", f"'{sys.executable}' -m quorconversions ")
    return subprocess.run(["bash", "-c", line], capture_output=True, check=False, env={
        **os.environ, "PYTHONPATH": str(ROOT / "bindings/python"), "PYTHONDONTWRITEBYTECODE": "1", **environment})


def test_it_lists_and_shows(laboratory):
    listed = run(f"quor list '{laboratory}' | head -n 1")
    assert listed.stdout == b"Probe 1 CSP-0417\tITS90\n"
    shown = run(f"quor show '{laboratory}' 'Probe 23 SPRT-2088'")
    assert (shown.stdout, shown.stderr) == (b"[Probe 23 SPRT-2088] Conversion(WT90(RTPW=25.50418))\n", b"")


def test_a_reader_that_goes_away_and_a_full_disk_end_it_without_a_trace(laboratory):
    gone = run(f"quor show '{laboratory}' | true")
    assert gone.stderr == b""
    full = run(f"quor show '{laboratory}' >/dev/full")
    assert (full.returncode, full.stderr) == (1, b"the results cannot be written: No space left on device\n")


@pytest.mark.parametrize("utf8", ["0", "1"])
def test_names_of_any_letters_are_told_in_any_locale(tmp_path, utf8):
    path = tmp_path / "host.ini"
    path.write_bytes("[P\u00e4\x1b]\nConversionType=14\n[P\u00e4\x1b - Settings]\nRTPW=1\n".encode())
    shown = run(f"quor show '{path}' && quor show '{path}' $'P\\xc3\\xa4\\x1b'", LC_ALL="C", PYTHONUTF8=utf8)
    name = "P\u00e4" if utf8 == "1" else "P\\xe4"
    line = f"[{name}\\x1b] Conversion(WT90(RTPW=1.0))\n"
    assert (shown.stdout.decode(), shown.stderr, shown.returncode) == (2 * line, b"", 0)
    none = run("quor list $'n\\xc3\\xa4'", LC_ALL="C", PYTHONUTF8=utf8)
    assert none.stderr.startswith(b"File not found: ")
    wrong = run("quor list $'n\\xff'", LC_ALL="C", PYTHONUTF8=utf8)
    assert wrong.stderr.endswith(b"error: an argument is not UTF-8 text\n")
