"""What the documents show runs as they show it, and so does the smallest example."""

import doctest
import re

import pandas
import pytest
from conftest import ROOT

from quorconversions import ProbeFile
from quorconversions.__main__ import main

PROBE = "Probe 9 PRT-1182"


def test_the_notebook_runs_as_it_is_written(laboratory, monkeypatch):
    monkeypatch.chdir(laboratory.parent)
    result = doctest.testfile(str(ROOT / "docs/python.md"), module_relative=False, encoding="utf-8")
    assert result.failed == 0
    assert result.attempted >= 20


@pytest.mark.parametrize("page, statements", [("hosts.md", 3), ("first.md", 3)])
def test_the_hosts_of_the_handbook_run_as_they_are_written(laboratory, monkeypatch, page, statements):
    monkeypatch.chdir(laboratory.parent)
    result = doctest.testfile(str(ROOT / "docs/handbook" / page), module_relative=False, encoding="utf-8")
    assert result.failed == 0
    assert result.attempted == statements


def plain_blocks(document):
    text = (ROOT / document).read_text(encoding="utf-8")
    return [block for block in re.findall(r"^```python\n(.*?)^```$", text, re.M | re.S) if ">>>" not in block]


def test_the_table_of_the_notebook_is_one_of_pandas(laboratory):
    names = {"file": ProbeFile(laboratory)}
    (block,) = plain_blocks("docs/python.md")
    exec(block, names)
    assert isinstance(names["frame"], pandas.DataFrame)
    assert names["frame"].loc[PROBE, "Coefficients0"] == 100.0


def test_what_the_readme_shows_changes_one_line(laboratory, monkeypatch):
    monkeypatch.chdir(laboratory.parent)
    before = laboratory.read_text(encoding="utf-8").splitlines()
    (block,) = plain_blocks("README.md")
    exec(block, {})
    after = laboratory.read_text(encoding="utf-8").splitlines()
    assert [line for line in after if line not in before] == ["Coefficients0=100.0123"]
    assert len(after) == len(before)


def test_list_names_probes_and_types(laboratory, capsys):
    assert main(["list", str(laboratory)]) == 0
    lines = capsys.readouterr().out.splitlines()
    assert len(lines) == 29
    assert lines[8] == f"{PROBE}\tCVD"
    text = laboratory.read_text(encoding="utf-8")
    begin = text.index("ConversionType=", text.index(f"[{PROBE}]"))
    laboratory.write_text(text[:begin] + "ConversionType=x" + text[text.index("\n", begin):], encoding="utf-8")
    assert main(["list", str(laboratory)]) == 1
    assert capsys.readouterr().out.splitlines() == [*lines[:8], f"{PROBE}\t?", *lines[9:]]


def test_show_tells_values_and_what_is_wrong(laboratory, capsys):
    assert main(["show", str(laboratory), PROBE]) == 0
    assert capsys.readouterr().out == (f"[{PROBE}] Conversion(CVD(R0=100.0, A=0.0039083, B=-5.775e-07, "
                                       "C=-4.183e-12))\n")
    text = laboratory.read_text(encoding="utf-8")
    begin = text.index("Coefficients3", text.index(f"[{PROBE} - Settings]"))
    laboratory.write_text(text[:begin] + text[text.index("\n", begin) + 1:], encoding="utf-8")
    assert main(["show", str(laboratory), PROBE]) == 1
    told = capsys.readouterr().err
    assert told.endswith(f": [{PROBE} - Settings] Coefficients3: the key is missing\n")


def test_a_file_that_is_not_there_is_told_and_controls_no_terminal(tmp_path, capsys):
    assert main(["list", str(tmp_path / "no\x1b[2J.ini")]) == 1
    told = capsys.readouterr().err
    assert "\x1b" not in told
    assert "File not found" in told
