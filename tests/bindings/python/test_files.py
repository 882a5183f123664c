"""The probes of a file."""

import math
import pickle
import threading
import time
from contextlib import suppress

import pytest

import quorconversions as quor
from quorconversions import Conversion, ConversionType, ProbeFile, QuorError

PROBE = "Probe 9 PRT-1182"


def replaced(text, before, after):
    assert text.count(before) == 1
    return text.replace(before, after)


def test_reading_all_probes_and_saving_changes_no_byte(laboratory):
    before = laboratory.read_bytes()
    with ProbeFile(laboratory) as file:
        probes = dict(file)
        assert len(probes) == len(file) == 29
        for probe in probes.values():
            assert repr(probe).startswith("Conversion(")
    assert laboratory.read_bytes() == before


def test_writing_all_probes_anew_into_the_file_changes_no_byte(laboratory):
    before = laboratory.read_bytes()
    with ProbeFile(laboratory) as file:
        for section in list(file):
            conversion, problems = file.read(section)
            assert problems == ()
            file[section] = conversion
    assert laboratory.read_bytes() == before


def test_what_was_changed_is_saved_at_the_end_of_the_block_and_nothing_else(laboratory):
    before = laboratory.read_text(encoding="utf-8")
    with ProbeFile(laboratory) as file:
        file[PROBE].settings.R0 = 100.0123
        assert laboratory.read_text(encoding="utf-8") == before
    begin = before.index(f"[{PROBE} - Settings]")
    line = before.index("Coefficients0=", begin)
    end = before.index("\n", line)
    assert laboratory.read_text(encoding="utf-8") == before[:line] + "Coefficients0=100.0123" + before[end:]


def test_nothing_is_saved_when_an_exception_leaves_the_block(laboratory):
    before = laboratory.read_bytes()
    file = ProbeFile(laboratory)
    with pytest.raises(ZeroDivisionError):
        with file:
            file[PROBE].settings.R0 = 1 / 3
            del file["Probe 1 CSP-0417"]
            1 / 0
    assert laboratory.read_bytes() == before
    assert file[PROBE].settings.R0 != 1 / 3
    assert "Probe 1 CSP-0417" in file


def test_probes_are_added_removed_and_replaced_together(tmp_path):
    path = tmp_path / "host.ini"
    path.write_text("[Host]\nKey=1\n[P]\nVersion=1.0\nConversionType=10\n[Q]\nVersion=1.0\nConversionType=11\n")
    with ProbeFile(path) as file:
        assert list(file) == ["P", "Q"]
        del file["p"]
        file["q"].type = ConversionType.RATIO
        file["R"] = Conversion(ConversionType.WT90)
        assert list(file) == ["Q", "R"]
        assert "P" not in file
        with pytest.raises(KeyError):
            file["P"]
        with pytest.raises(KeyError):
            del file["P"]
        assert file["r"].settings.RTPW == 0
    assert path.read_text() == ("[Host]\nKey=1\n[Q]\nVersion=1.0\nConversionType=15\n\n[R]\nVersion=1.0\n"
                                "ConversionType=14\n\n[R - Settings]\nVersion=1.0\nRTPW=0\n")


def test_a_change_without_the_changed_flag_is_saved_too(tmp_path):
    path = tmp_path / "host.ini"
    with ProbeFile(path, create=True) as file:
        file["P"] = Conversion(ConversionType.CVD)
    with ProbeFile(path) as file:
        file["P"].settings.UsePolynomial = True
        assert not file["P"].changed
    assert "UsePolynomial=True\n" in path.read_text()


def test_what_another_program_has_written_meanwhile_stays(laboratory):
    with ProbeFile(laboratory) as mine:
        mine[PROBE].settings.R0 = 101
        with ProbeFile(laboratory) as theirs:
            theirs[PROBE].settings.C = 0.5
        assert mine.changed_by_others
    cvd = ProbeFile(laboratory)[PROBE].settings
    assert (cvd.R0, cvd.C) == (101, 0.5)


def test_a_probe_that_is_kept_over_a_save_gets_what_others_have_written_and_writes_none_of_it_back(laboratory):
    mine = ProbeFile(laboratory)
    cvd = mine[PROBE].settings
    cvd.R0 = 101
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.C = 0.5
    mine.save()
    assert mine[PROBE].settings is cvd
    assert (cvd.R0, cvd.C) == (101, 0.5)
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.C = 0.25
    cvd.R0 = 102
    mine.save()
    assert list(ProbeFile(laboratory)[PROBE].settings.coefficients)[::3] == [102, 0.25]


def test_a_block_that_changes_nothing_makes_no_file(tmp_path):
    with ProbeFile(tmp_path / "new.ini", create=True) as file:
        assert len(file) == 0
    assert list(tmp_path.iterdir()) == []


def test_a_value_that_both_have_changed_is_a_conflict_and_nothing_is_written(laboratory):
    with ProbeFile(laboratory) as theirs:
        mine = ProbeFile(laboratory)
        mine[PROBE].settings.R0 = 101
        mine["New"] = Conversion(ConversionType.OHMS)
        read = theirs[PROBE].settings.R0
        theirs[PROBE].settings.R0 = 102
    before = laboratory.read_bytes()
    with pytest.raises(quor.ConflictError) as raised:
        mine.save()
    assert raised.value.conflicts == (
        quor.Conflict(f"{PROBE} - Settings", "Coefficients0", f"{read:g}", "102", "101"),)
    assert laboratory.read_bytes() == before
    assert f"[{PROBE} - Settings] Coefficients0: {read:g} was read, theirs is 102, ours 101" in str(raised.value)
    assert mine[PROBE].settings.R0 == 101  # and still to be saved
    mine.discard()
    assert mine[PROBE].settings.R0 == 102


def test_a_probe_that_is_not_whole_is_an_error_that_has_its_values(tmp_path):
    path = tmp_path / "host.ini"
    text = "[P]\nVersion=1.0\nConversionType=14\n[P - Settings]\nVersion=1.0\n"
    path.write_text(text)
    with ProbeFile(path) as file:
        with pytest.raises(quor.IncompleteProbeError) as raised:
            file["P"]
        error = raised.value
        assert error.problems == (quor.Problem(quor.ProbeProblem.PROBLEM_KEY_MISSING, 4, "P - Settings", "RTPW",
                                               "the key is missing"),)
        assert str(path) in error.description
        assert "[P - Settings] RTPW: the key is missing" in error.description
        assert repr(error.conversion) == "Conversion(WT90(RTPW=0.0))"
        assert file.check() == list(error.problems)
    assert path.read_text() == text
    with ProbeFile(path) as file:
        conversion, problems = file.read("P")
        conversion.settings.RTPW = 25.5
        file["P"] = conversion
    assert path.read_text() == text + "RTPW=25.5\n"


def test_a_probe_that_another_program_has_broken_is_an_error_of_the_save_and_keeps_its_values(laboratory):
    other = "Probe 10 PRT-1183"
    file = ProbeFile(laboratory)
    broken, whole = file[PROBE].settings, file[other].settings
    text = laboratory.read_text(encoding="utf-8")
    line = text.index("Coefficients1=", text.index(f"[{PROBE} - Settings]"))
    laboratory.write_text(text[:line] + "Coefficients1=n/a" + text[text.index("\n", line):], encoding="utf-8")
    broken.R0 = 100.5
    whole.R0 = 100.25
    with pytest.raises(quor.IncompleteProbeError, match=r"\[Probe 9 PRT-1182 - Settings\] Coefficients1: ") as raised:
        file.save()
    assert (broken.R0, broken.A) == (100.5, 0.0039083)
    assert raised.value.conversion.settings is not broken
    with pytest.raises(quor.IncompleteProbeError):
        file[PROBE]
    assert file[other].settings is whole
    now = ProbeFile(laboratory)
    assert now[other].settings.R0 == 100.25
    assert now.read(PROBE)[0].settings.R0 == 100.5


def test_what_cannot_be_done_with_a_probe_has_a_code(tmp_path):
    path = tmp_path / "host.ini"
    path.write_text("[P]\nVersion=1.0\nConversionType=10\n[Host]\nKey=1\n")
    file = ProbeFile(path)
    with pytest.raises(quor.ProbeFileError) as raised:
        file.read("Host")
    assert raised.value.code == quor.ProbeFileErrorCode.NO_RECORD
    assert raised.value.number == 75
    with pytest.raises(quor.ProbeFileError) as raised:
        file.rename("P", "Host")
    assert raised.value.code == quor.ProbeFileErrorCode.NAME_IS_TAKEN
    file["Host"] = Conversion(ConversionType.OHMS)
    with pytest.raises(ValueError, match="there are unsaved changes"):
        file.rename("P", "Q")
    with pytest.raises(quor.ProbeFileError) as raised:
        file.save()
    assert raised.value.code == quor.ProbeFileErrorCode.SECTION_OF_HOST
    file.discard()
    file.rename("P", "Q")
    assert path.read_text() == "[Q]\nVersion=1.0\nConversionType=10\n[Host]\nKey=1\n"
    with pytest.raises(quor.QuorError) as raised:
        ProbeFile(tmp_path / "none.ini")
    assert (raised.value.number, raised.value.source) == (53, "QuorIniFile")
    with pytest.raises(TypeError):
        file["Q"] = 1


def test_the_numbers_of_all_probes_are_those_of_each(laboratory):
    file = ProbeFile(laboratory)
    table = file.table()
    assert table.sections == list(file)
    rows = list(table)
    for row in rows:
        assert row["type"] == file[row["section"]].type
        assert row["problems"] == 0
    row = rows[table.sections.index(PROBE)]
    cvd = file[PROBE].settings
    assert [row[f"Coefficients{place}"] for place in range(4)] == list(cvd.coefficients)
    assert table[-1] == rows[-1]
    with pytest.raises(IndexError):
        table[len(table)]


def test_other_sections_of_the_file_are_reached_through_its_store(laboratory):
    store = ProbeFile(laboratory).store
    store.Section = "Instrument"
    assert store.ReadInteger("Channels", 0) == (True, 8)
    assert store.ReadString("Name", "") == (True, "Laboratory thermometer")
    assert store.ReadDouble("No such key", 1.5) == (False, 1.5)


def test_a_stand_alone_file_is_one_probe(tmp_path):
    from conftest import ROOT
    file = ProbeFile(ROOT / "samples/prt-1188.cvd")
    assert list(file) == ["Callendar-Van Dusen"]
    assert isinstance(file["Callendar-Van Dusen"].settings, quor.CVD)
    file.save_as(tmp_path / "copy.cvd")
    assert (tmp_path / "copy.cvd").read_bytes() == (ROOT / "samples/prt-1188.cvd").read_bytes()


def test_a_relative_path_is_that_of_the_folder_in_which_it_was_opened(tmp_path, monkeypatch):
    (tmp_path / "host.ini").write_text("[P]\nVersion=1.0\nConversionType=10\n")
    monkeypatch.chdir(tmp_path)
    with ProbeFile("host.ini") as file:
        monkeypatch.chdir("/")
        file["P"].type = ConversionType.VOLTS
    assert "ConversionType=11" in (tmp_path / "host.ini").read_text()


def test_a_conversion_stands_for_one_probe_and_duplicate_makes_another(laboratory):
    before = laboratory.read_bytes()
    with ProbeFile(laboratory) as file:
        probe = file["Probe 9 PRT-1182"]
        with pytest.raises(ValueError, match=r"already belongs to \[Probe 9 PRT-1182\]; duplicate makes another one"):
            file["Probe 99"] = probe
    assert laboratory.read_bytes() == before
    file = ProbeFile(laboratory)
    file.duplicate("Probe 9 PRT-1182", "Probe 99")
    file["Probe 99"].settings.R0 = 50
    file.save()
    assert (file["Probe 9 PRT-1182"].settings.R0, file["Probe 99"].settings.R0) == (100.0, 50)


@pytest.mark.parametrize("section, key, value", [("Probe 13 THM-3302", "ConvType", 1),
                                                 ("Probe 9 PRT-1182", "NumCoefficients", -1)])
def test_settings_that_no_file_gives_back_are_not_saved(laboratory, section, key, value):
    before = laboratory.read_bytes()
    with pytest.raises(QuorError, match="do not go together"):
        with ProbeFile(laboratory) as file:
            setattr(file[section].settings, key, value)
    assert laboratory.read_bytes() == before


def test_a_text_is_no_flag(laboratory):
    cvd = ProbeFile(laboratory)["Probe 9 PRT-1182"].settings
    with pytest.raises(TypeError):
        cvd.UsePolynomial = "False"


def test_a_section_that_is_no_text_is_told_as_such(laboratory):
    file = ProbeFile(laboratory)
    for wrong in (lambda: file[3], lambda: file.read(None), lambda: file.__delitem__(3), lambda: file.rename(3, "P"),
                  lambda: file.__setitem__(3, Conversion(ConversionType.OHMS))):
        with pytest.raises(TypeError, match="the name of a section must be a str, not (3|None)"):
            wrong()


@pytest.mark.parametrize("name, reason", [("", "it is empty"), ("N]2", 'a "]" ends the name'),
                                          ("#c", "take it for a comment"), (";c", "a comment"),
                                          ("N\n2", "it has a line break"), (" N", "blanks around it would be lost")])
def test_a_name_that_a_file_cannot_give_back_is_refused(laboratory, name, reason):
    before = laboratory.read_bytes()
    file = ProbeFile(laboratory)
    for wrong in (lambda: file.__setitem__(name, Conversion(ConversionType.OHMS)), lambda: file.rename(PROBE, name),
                  lambda: file.duplicate(PROBE, name)):
        with pytest.raises(ValueError, match=reason):
            wrong()
    file.save()
    assert laboratory.read_bytes() == before


def test_a_conversion_is_not_that_of_two_files(tmp_path):
    one, two = ProbeFile(tmp_path / "one.ini", create=True), ProbeFile(tmp_path / "two.ini", create=True)
    conversion = Conversion(ConversionType.CVD)
    one["P"] = conversion
    with pytest.raises(ValueError, match=r"already belongs to \[P\] in .*one.ini; copy_from makes another one"):
        two["P"] = conversion
    one.discard()
    two["P"] = conversion
    two.save()
    assert not (tmp_path / "one.ini").exists()
    assert list(ProbeFile(tmp_path / "two.ini")) == ["P"]


def test_conversions_stay_with_their_probes_when_others_are_renamed_and_copied(laboratory):
    file = ProbeFile(laboratory)
    probe = file[PROBE]
    file.rename("Probe 10 PRT-1183", "Probe 10")
    file.duplicate("Probe 10", "Probe 10 again")
    probe.settings.R0 = 100.0123
    file.save()
    assert ProbeFile(laboratory)[PROBE].settings.R0 == 100.0123
    file.rename(PROBE, "Probe 9")
    probe.settings.R0 = 100.5
    file.save()
    assert ProbeFile(laboratory)["Probe 9"].settings.R0 == 100.5
    assert file["Probe 9"] is probe


def discarded(file):
    file.discard()


def left_by_an_exception(file):
    with pytest.raises(ZeroDivisionError), file:
        raise ZeroDivisionError


@pytest.mark.parametrize("leave", [discarded, left_by_an_exception])
def test_conversions_stay_with_the_file_after_a_discard_and_an_exception(laboratory, leave):
    file = ProbeFile(laboratory)
    probe = file[PROBE]
    cvd = probe.settings
    cvd.R0 = 99.5
    leave(file)
    assert file[PROBE] is probe
    assert probe.settings is cvd
    assert cvd.R0 == 100
    before = laboratory.read_bytes()
    file.save()  # what was discarded is no change
    assert laboratory.read_bytes() == before
    cvd.R0 = 100.0123
    file.save()
    assert ProbeFile(laboratory)[PROBE].settings.R0 == 100.0123


@pytest.mark.parametrize("leave", [discarded, left_by_an_exception])
def test_a_conversion_that_was_assigned_and_not_saved_is_of_no_file(laboratory, leave):
    file = ProbeFile(laboratory)
    added = file["Added"] = Conversion(ConversionType.CVD)
    leave(file)
    assert "Added" not in file
    added.settings.R0 = 100.0123
    with pytest.raises(ValueError, match=r"\[Added\] was changed, but no longer belongs to"):
        file.save()


def test_an_exception_that_leaves_the_block_comes_out_though_a_probe_is_incomplete(tmp_path):
    path = tmp_path / "host.ini"
    path.write_text("[Q]\nVersion=1.0\nConversionType=10\n[P]\nVersion=1.0\nConversionType=14\n"
                    "[P - Settings]\nVersion=1.0\nRTPW=25.5\n")
    with pytest.raises(ZeroDivisionError), ProbeFile(path) as file:
        wt90 = file["P"].settings
        path.write_text(replaced(path.read_text(), "25.5", "n/a"))
        raise ZeroDivisionError
    assert wt90.RTPW == 25.5
    wt90.RTPW = 25.25
    with pytest.raises(ValueError, match=r"\[P\] was changed, but no longer belongs to"):
        file.save()


def test_a_discard_tells_a_probe_that_is_incomplete_now_once_the_others_are_read(laboratory):
    other = "Probe 10 PRT-1183"
    file = ProbeFile(laboratory)
    broken, whole = file[PROBE].settings, file[other].settings
    whole.R0 = 99.5
    text = laboratory.read_text(encoding="utf-8")
    line = text.index("Coefficients1=", text.index(f"[{PROBE} - Settings]"))
    laboratory.write_text(text[:line] + "Coefficients1=n/a" + text[text.index("\n", line):], encoding="utf-8")
    with pytest.raises(quor.IncompleteProbeError, match=r"\[Probe 9 PRT-1182 - Settings\] Coefficients1: "):
        file.discard()
    assert broken.A == 0.0039083
    assert (whole.R0, file[other].settings is whole) == (100, True)


def renamed_by_another_program(file):
    ProbeFile(file.path).rename(PROBE, "Another")


def given_another_type_by_another_program(file):
    with ProbeFile(file.path) as theirs:
        theirs[PROBE].type = ConversionType.WT90


@pytest.mark.parametrize("theirs", [renamed_by_another_program, given_another_type_by_another_program])
@pytest.mark.parametrize("key, value", [("R0", 100.0123), ("UsePolynomial", False)])
def test_a_change_of_settings_that_no_longer_belong_to_the_file_is_not_lost_in_silence(laboratory, theirs, key, value):
    file = ProbeFile(laboratory)
    cvd = file[PROBE].settings  # all that the host holds
    theirs(file)
    file.discard()
    assert cvd.R0 == 100
    file.save()
    before = laboratory.read_bytes()
    setattr(cvd, key, value)
    with pytest.raises(ValueError, match=r"\[Probe 9 PRT-1182\] was changed, but no longer belongs to"):
        file.save()
    assert laboratory.read_bytes() == before
    del cvd
    file.save()  # nobody can see the change any more


def test_a_change_of_a_range_that_no_longer_belongs_to_the_file_is_not_lost_in_silence(tmp_path):
    path = tmp_path / "host.ini"
    with ProbeFile(path, create=True) as file:
        file["P"] = Conversion(ConversionType.ITS90)
    low = file["P"].settings.low_range
    with ProbeFile(path) as theirs:
        del theirs["P"]
    file.discard()
    file.save()
    low.Range = 1
    low.A = 0.5
    with pytest.raises(ValueError, match=r"\[P\] was changed, but no longer belongs to"):
        file.save()


def test_a_discard_leaves_no_coefficient_of_the_range_that_another_program_has_made_smaller(tmp_path):
    path = tmp_path / "host.ini"
    with ProbeFile(path, create=True) as file:
        file["P"] = Conversion(ConversionType.ITS90)
    low = file["P"].settings.low_range
    low.Range = 3
    low.C1 = 0.5
    file.save()
    with ProbeFile(path) as theirs:
        theirs["P"].settings.low_range.Range = 4
    file.discard()
    assert low.Range == 4
    low.Range = 3
    assert low.C1 == 0


def test_what_an_interrupt_keeps_from_being_read_no_longer_belongs_to_the_file(laboratory, monkeypatch):
    file = ProbeFile(laboratory)
    first, second = file[PROBE].settings, file["Probe 10 PRT-1183"].settings
    read_whole = ProbeFile._read_whole

    def interrupted(self, section, like=None):
        if section != PROBE:
            raise KeyboardInterrupt
        return read_whole(self, section, like)

    monkeypatch.setattr(ProbeFile, "_read_whole", interrupted)
    with pytest.raises(KeyboardInterrupt):
        file.discard()
    monkeypatch.undo()
    first.R0 = 100.0123
    file.save()
    assert ProbeFile(laboratory)[PROBE].settings.R0 == 100.0123
    second.R0 = 100.5
    with pytest.raises(ValueError, match=r"\[Probe 10 PRT-1183\] was changed, but no longer belongs to"):
        file.save()


def test_a_conversion_that_no_longer_belongs_to_the_file_can_be_assigned_again(laboratory):
    file = ProbeFile(laboratory)
    probe = file[PROBE]
    renamed_by_another_program(file)
    file["Probe 10 PRT-1183"].settings.R0 = 99.0
    file.save()
    probe.settings.R0 = 100.0123
    with pytest.raises(ValueError, match="was changed, but no longer belongs to"):
        file.save()
    file["Probe 9 once more"] = probe  # now it does
    file.save()
    assert ProbeFile(laboratory)["Probe 9 once more"].settings.R0 == 100.0123


def test_a_probe_that_is_copied_over_gives_its_conversion_the_new_numbers(laboratory):
    file = ProbeFile(laboratory)
    one, other = file[PROBE], file["Probe 10 PRT-1183"]
    one.settings.R0 = 100.5
    file.save()
    file.duplicate(PROBE, "Probe 10 PRT-1183")
    assert file["Probe 10 PRT-1183"] is other
    assert other.settings.R0 == 100.5
    one.settings.R0 = 100.25
    file.save()
    assert ProbeFile(laboratory)["Probe 10 PRT-1183"].settings.R0 == 100.5


@pytest.mark.parametrize("give", [ProbeFile.rename, ProbeFile.duplicate])
def test_the_name_of_a_probe_that_another_program_has_removed_goes_to_another_one(laboratory, give):
    file = ProbeFile(laboratory)
    gone = file["Probe 10 PRT-1183"]
    with ProbeFile(laboratory) as theirs:
        del theirs["Probe 10 PRT-1183"]
        theirs[PROBE].settings.R0 = 100.5
    give(file, PROBE, "Probe 10 PRT-1183")
    assert gone.settings.R0 == 100
    assert file["Probe 10 PRT-1183"] is not gone
    assert file["Probe 10 PRT-1183"].settings.R0 == 100.5
    gone.settings.R0 = 101
    with pytest.raises(ValueError, match=r"\[Probe 10 PRT-1183\] was changed, but no longer belongs to"):
        file.save()


@pytest.mark.parametrize("leave", [ProbeFile.save, discarded])
def test_range_limits_of_the_host_cost_no_values_when_a_probe_is_read_again(tmp_path, leave):
    path = tmp_path / "host.ini"
    path.write_text("[P]\nVersion=1.0\nConversionType=0\n[P - Settings]\nVersion=1.0\nRTPW=25.5\n"
                    "[P - Settings - High Range]\nVersion=1.0\nRange=-1\n"
                    "[P - Settings - Low Range]\nVersion=1.0\nRange=1\n"
                    + "".join(f"Coefficients{place}=0\n" for place in range(7))
                    + "[Q]\nVersion=1.0\nConversionType=14\n[Q - Settings]\nVersion=1.0\nRTPW=25\n")
    file = ProbeFile(path)
    its = file["P"].settings
    its.low_range.MinRange = 4
    file["Q"].settings.RTPW = 24
    with pytest.raises(quor.IncompleteProbeError, match=r"\[P - Settings - Low Range\] Range: ") as raised:
        leave(file)
    assert raised.value.conversion.settings is not its
    assert (its.RTPW, its.low_range.Range) == (25.5, 1)
    its.low_range.MinRange = 1
    assert file["P"].settings.RTPW == 25.5


def added(file):
    """A conversion that was removed before it was saved."""
    conversion = file["Added"] = Conversion(ConversionType.CVD)
    del file["Added"]
    return "Added", conversion


def removed(file):
    conversion = file[PROBE]
    del file[PROBE]
    return PROBE, conversion


def replaced_by_another(file):
    conversion = file[PROBE]
    file[PROBE] = Conversion(ConversionType.WT90)
    return PROBE, conversion


def replaced_and_removed(file):
    conversion = file[PROBE]
    file[PROBE] = Conversion(ConversionType.WT90)
    del file[PROBE]
    return PROBE, conversion


@pytest.mark.parametrize("displace", [removed, replaced_by_another, replaced_and_removed])
@pytest.mark.parametrize("leave", [discarded, left_by_an_exception])
def test_a_conversion_whose_removal_or_replacement_is_discarded_belongs_to_the_file_again(laboratory, displace, leave):
    file = ProbeFile(laboratory)
    _, conversion = displace(file)
    conversion.settings.R0 = 99
    leave(file)
    assert file[PROBE] is conversion
    assert conversion.settings.R0 == 100
    conversion.settings.R0 = 101
    file.save()
    assert ProbeFile(laboratory)[PROBE].settings.R0 == 101


@pytest.mark.parametrize("displace", [added, removed, replaced_by_another, replaced_and_removed])
@pytest.mark.parametrize("key, value", [("R0", 100.0123), ("UsePolynomial", None)])
def test_no_change_of_a_conversion_that_was_removed_or_replaced_is_lost_in_silence(laboratory, displace, key, value):
    file = ProbeFile(laboratory)
    section, conversion = displace(file)
    file.save()
    before = laboratory.read_bytes()
    file.save()
    setattr(conversion.settings, key, not conversion.settings.UsePolynomial if value is None else value)
    with pytest.raises(ValueError, match=rf"\[{section}\] was changed, but no longer belongs to"):
        file.save()
    assert laboratory.read_bytes() == before
    file["Once more"] = conversion
    file.save()
    assert ProbeFile(laboratory)["Once more"].settings.coefficients == conversion.settings.coefficients


def test_a_conversion_that_is_assigned_instead_of_another_unsaved_one_leaves_that_without_a_file(laboratory):
    file = ProbeFile(laboratory)
    first = file["Added"] = Conversion(ConversionType.CVD)
    file["Added"] = Conversion(ConversionType.WT90)
    first.settings.R0 = 100.0123
    with pytest.raises(ValueError, match=r"\[Added\] was changed, but no longer belongs to"):
        file.save()


@pytest.mark.parametrize("displace", [removed, replaced_by_another, replaced_and_removed])
def test_a_conversion_that_comes_back_to_its_section_is_as_if_it_had_stayed(laboratory, displace):
    file = ProbeFile(laboratory)
    _, conversion = displace(file)
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.C = 0.5
    conversion.settings.R0 = 100.0123
    file[PROBE] = conversion
    file.save()
    assert list(ProbeFile(laboratory)[PROBE].settings.coefficients)[::3] == [100.0123, 0.5]


def test_a_probe_moves_to_another_section_or_another_file(laboratory, tmp_path):
    file, other = ProbeFile(laboratory), ProbeFile(tmp_path / "other.ini", create=True)
    one, two = file[PROBE], file["Probe 10 PRT-1183"]
    del file[PROBE], file["Probe 10 PRT-1183"]
    file["Moved"] = one
    other["Moved"] = two
    other.save()
    file.save()
    one.settings.R0, two.settings.R0 = 101, 102
    other.save()
    file.discard()
    assert (one.settings.R0, file["Moved"] is one) == (100, True)
    assert (two.settings.R0, other["Moved"] is two) == (102, True)
    assert ProbeFile(tmp_path / "other.ini")["Moved"].settings.R0 == 102


def given_another_type(file):
    file[PROBE].type = ConversionType.WT90


def assigned_as_it_was_read(file):
    file[PROBE], _ = file.read(PROBE)


def assigned_anew(file):
    file[PROBE] = Conversion(ConversionType.WT90)


def removed_without_a_look(file):
    del file[PROBE]


@pytest.mark.parametrize("change", [given_another_type, assigned_as_it_was_read, assigned_anew, removed,
                                    removed_without_a_look])
@pytest.mark.parametrize("theirs", [lambda file: setattr(file[PROBE].settings, "R0", 100.0123), removed_without_a_look])
def test_a_probe_that_another_program_has_changed_is_neither_replaced_nor_removed_as_a_whole(laboratory, change, theirs):
    file = ProbeFile(laboratory)
    assert PROBE in file
    change(file)
    with ProbeFile(laboratory) as other:
        theirs(other)
    before = laboratory.read_bytes()
    both_remove = theirs is removed_without_a_look and change in (removed, removed_without_a_look)
    for _ in range(1 if both_remove else 2):
        with pytest.raises(quor.ConflictError) as raised:
            file.save()
        assert raised.value.conflicts == (quor.Conflict(PROBE, "", "", "", ""),)
        assert str(raised.value) == (f"{laboratory}: [{PROBE}]: another program has changed, added or removed the probe "
                                     "meanwhile (QuorProbeFile, error 75)")
        assert laboratory.read_bytes() == before
    file.discard()
    if PROBE in file:
        change(file)
        file.save()
        assert laboratory.read_bytes() != before or change is assigned_as_it_was_read


def test_of_two_programs_that_add_a_probe_the_second_does_not_replace_the_first(laboratory):
    mine, theirs = ProbeFile(laboratory), ProbeFile(laboratory)
    assert "Probe 30" not in mine
    mine["Probe 30"] = Conversion(ConversionType.CVD)
    theirs["Probe 30"] = Conversion(ConversionType.WT90)
    theirs.save()
    before = laboratory.read_bytes()
    with pytest.raises(quor.ConflictError):
        mine.save()
    assert laboratory.read_bytes() == before


def test_a_conversion_that_was_read_before_others_have_saved_replaces_nothing_later(laboratory):
    file = ProbeFile(laboratory)
    conversion, _ = file.read(PROBE)
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.R0 = 100.0123
    file["Probe 10 PRT-1183"].settings.R0 = 99
    file.save()  # which knows what they have saved
    file[PROBE] = conversion
    with pytest.raises(quor.ConflictError):
        file.save()
    assert ProbeFile(laboratory)[PROBE].settings.R0 == 100.0123


def test_after_a_conflict_only_what_was_read_then_replaces_what_another_program_has_saved(laboratory):
    file = ProbeFile(laboratory)
    file[PROBE].settings.R0 = 102
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.R0 = 101
    with pytest.raises(quor.ConflictError):
        file.save()
    file[PROBE] = Conversion(ConversionType.WT90)
    with pytest.raises(quor.ConflictError):
        file.save()
    file[PROBE], _ = file.read(PROBE)
    file[PROBE].settings.B = 0.5
    file.save()
    cvd = ProbeFile(laboratory)[PROBE].settings
    assert (cvd.R0, cvd.B) == (101, 0.5)


def removed_and_saved(file):
    conversion = file[PROBE]
    del file[PROBE]
    file.save()
    return conversion


def read_removed_and_saved(file):
    conversion, _ = file.read(PROBE)
    del file[PROBE]
    file.save()
    return conversion


def renamed_after_it_was_read(file):
    conversion, _ = file.read(PROBE)
    file.rename(PROBE, "Another")
    return conversion


def replaced_and_saved(file):
    conversion = file[PROBE]
    file[PROBE] = Conversion(ConversionType.WT90)
    file.save()
    return conversion


def read_before_a_change_is_saved(file):
    conversion, _ = file.read(PROBE)
    file[PROBE].settings.R0 = 101
    file.save()
    return conversion


@pytest.mark.parametrize("displace", [removed_and_saved, read_removed_and_saved, renamed_after_it_was_read,
                                      replaced_and_saved, read_before_a_change_is_saved])
def test_what_the_host_itself_has_saved_keeps_no_conversion_from_coming_back(laboratory, displace):
    file = ProbeFile(laboratory)
    file[PROBE] = displace(file)
    file[PROBE].settings.C = 0.5
    file.save()
    cvd = ProbeFile(laboratory)[PROBE].settings
    assert (cvd.R0, cvd.C) == (100, 0.5)


def test_a_conversion_that_was_removed_and_saved_does_not_replace_what_another_program_adds_there(laboratory):
    file = ProbeFile(laboratory)
    conversion = removed_and_saved(file)
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE] = Conversion(ConversionType.WT90)
    file["Probe 10 PRT-1183"].settings.R0 = 99
    file.save()  # which knows what they have saved
    file[PROBE] = conversion
    with pytest.raises(quor.ConflictError):
        file.save()
    assert ProbeFile(laboratory)[PROBE].type == ConversionType.WT90


@pytest.mark.parametrize("theirs", [lambda file: setattr(file[PROBE].settings, "R0", 100.0123), removed_without_a_look])
def test_after_a_conflict_a_conversion_is_saved_once_the_host_has_seen_what_another_program_has_saved(laboratory, theirs):
    file = ProbeFile(laboratory)
    file[PROBE], _ = file.read(PROBE)
    conversion = file[PROBE]
    with ProbeFile(laboratory) as other:
        theirs(other)
    with pytest.raises(quor.ConflictError):
        file.save()
    file.discard()
    assert file.get(PROBE) is not conversion
    file[PROBE] = conversion
    file.save()
    assert ProbeFile(laboratory)[PROBE].settings.R0 == 100


def added_by_another_program(theirs):
    theirs["Probe 99"] = Conversion(ConversionType.CVD)
    theirs["Probe 99"].settings.R0 = 99


def changed_by_another_program(theirs):
    theirs["Probe 10 PRT-1183"].settings.R0 = 99


@pytest.mark.parametrize("change, name", [(added_by_another_program, "Probe 99"),
                                          (changed_by_another_program, "Probe 10 PRT-1183")])
@pytest.mark.parametrize("is_accessed", [False, True])
def test_no_copy_replaces_a_probe_that_another_program_has_added_or_changed(laboratory, change, name, is_accessed):
    file = ProbeFile(laboratory)
    if is_accessed:
        file.get(name)
    with ProbeFile(laboratory) as theirs:
        change(theirs)
    before = laboratory.read_bytes()
    for _ in range(2):
        with pytest.raises(quor.ConflictError) as raised:
            file.duplicate(PROBE, name)
        assert raised.value.conflicts == (quor.Conflict(name, "", "", "", ""),)
        assert laboratory.read_bytes() == before
    file.discard()
    file.duplicate(PROBE, name)
    assert ProbeFile(laboratory)[name].settings.R0 == 100


def saved(file):
    file.save()


def another_one_renamed(file):
    file.rename("Probe 10 PRT-1183", "Another")


def another_one_duplicated(file):
    file.duplicate("Probe 10 PRT-1183", "Another")


def saved_after_a_rename_that_failed(file):
    with pytest.raises(quor.ProbeFileError):
        file.rename("Probe 10 PRT-1183", "Probe 1 CSP-0417")
    file.save()


def saved_after_a_conflict_that_was_given_up(file):
    read = file[PROBE].settings.R0
    file[PROBE].settings.R0 = 102
    with pytest.raises(quor.ConflictError):
        file.save()
    file[PROBE].settings.R0 = read
    file.save()


@pytest.mark.parametrize("call", [saved, saved_after_a_rename_that_failed, saved_after_a_conflict_that_was_given_up,
                                  another_one_renamed, another_one_duplicated, left_by_an_exception])
def test_without_own_changes_conversions_get_what_others_have_saved_too(laboratory, call):
    file = ProbeFile(laboratory)
    cvd = file[PROBE].settings
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.R0 = 101
    call(file)
    assert cvd.R0 == 101
    assert file[PROBE].settings is cvd


@pytest.mark.parametrize("interrupted", ["Hold", "RequireUnchanged", "WriteChanges", "Release"])
@pytest.mark.parametrize("comes", ["before", "after"])
def test_an_interrupt_of_a_save_leaves_it_to_the_next_one(laboratory, monkeypatch, interrupted, comes):
    file = ProbeFile(laboratory)
    changed, gone = file[PROBE], file["Probe 10 PRT-1183"]
    changed.settings.R0 = 100.0123
    displaced = file["Probe 1 CSP-0417"]
    file["Probe 1 CSP-0417"] = Conversion(ConversionType.WT90)
    del file["Probe 10 PRT-1183"]
    new = file["Probe 30"] = Conversion(ConversionType.WT90)
    call = getattr(quor._low.ProbeFile, interrupted)

    def stopped(self, *arguments):
        if comes == "after":
            call(self, *arguments)
        raise KeyboardInterrupt

    monkeypatch.setattr(quor._low.ProbeFile, interrupted, stopped)
    before = laboratory.read_bytes()
    with pytest.raises(KeyboardInterrupt):
        file.save()
    monkeypatch.undo()
    is_saved = (interrupted, comes) == ("Release", "after")
    assert (laboratory.read_bytes() != before) == is_saved
    after = laboratory.read_bytes()
    file.save()
    assert (laboratory.read_bytes() == after) == is_saved
    new.settings.RTPW = 25.5
    changed.settings.R0 = 100.5
    file.save()
    now = ProbeFile(laboratory)
    assert (now[PROBE].settings.R0, now["Probe 30"].settings.RTPW) == (100.5, 25.5)
    assert now["Probe 1 CSP-0417"].type == ConversionType.WT90 != displaced.type
    assert "Probe 10 PRT-1183" not in now
    gone.settings.R0 = 1
    with pytest.raises(ValueError, match=r"\[Probe 10 PRT-1183\] was changed, but no longer belongs to"):
        file.save()


def test_an_interrupt_of_the_save_of_a_removal_alone_is_none_of_the_next_one(laboratory, monkeypatch):
    file = ProbeFile(laboratory)
    gone = file[PROBE]
    del file[PROBE]
    release = quor._low.ProbeFile.Release
    monkeypatch.setattr(quor._low.ProbeFile, "Release", lambda self: release(self) or 1 / 0)
    with pytest.raises(ZeroDivisionError):
        file.save()
    monkeypatch.undo()
    file.save()
    gone.settings.R0 = 1
    with pytest.raises(ValueError, match=r"was changed, but no longer belongs to"):
        file.save()


@pytest.mark.parametrize("leave", [discarded, left_by_an_exception])
def test_a_change_without_a_flag_is_none_to_be_lost_when_it_was_never_saved(laboratory, leave):
    file = ProbeFile(laboratory)
    added = file["Added"] = Conversion(ConversionType.CVD)
    leave(file)
    file.save()
    added.settings.UsePolynomial = True
    with pytest.raises(ValueError, match=r"\[Added\] was changed, but no longer belongs to"):
        file.save()


def test_numbers_that_cannot_be_read_are_nan_in_the_table(laboratory):
    text = laboratory.read_text(encoding="utf-8")
    line = text.index("Coefficients0=", text.index(f"[{PROBE} - Settings]"))
    laboratory.write_text(text[:line] + "Coefficients0=100,0123" + text[text.index("\n", line):], encoding="utf-8")
    (row,) = [row for row in ProbeFile(laboratory).table() if row["section"] == PROBE]
    assert row["problems"] > 0
    assert math.isnan(row["Coefficients0"])
    assert row["Coefficients1"] == 0.0039083


def test_a_probe_that_refuses_to_be_written_is_named_by_the_error(laboratory):
    file = ProbeFile(laboratory)
    file["Probe 29 TCT-5140"].settings.TCType = 99999
    with pytest.raises(quor.ProbeFileError) as raised:
        file.save()
    assert raised.value.code == quor.ProbeFileErrorCode.CANNOT_BE_WRITTEN
    assert raised.value.description.startswith(f"{laboratory}: [Probe 29 TCT-5140]")


def test_half_a_character_is_the_name_of_no_probe(laboratory):
    file = ProbeFile(laboratory)
    assert "\ud800" not in file
    with pytest.raises(KeyError):
        file["\ud800"]


def test_a_probe_that_is_not_there_is_named_with_its_file(laboratory):
    file = ProbeFile(laboratory)
    for wrong in (lambda: file["Probe 99"], lambda: file.pop("Probe 99"), lambda: file.__delitem__("Probe 99")):
        with pytest.raises(KeyError) as raised:
            wrong()
        assert raised.value.args == (f"{laboratory} has no probe [Probe 99]",)
    assert file.get("Probe 99") is None


def test_no_path_is_not_the_current_folder(laboratory):
    for wrong in (lambda: ProbeFile(""), lambda: ProbeFile("", create=True), lambda: ProbeFile(laboratory).save_as("")):
        with pytest.raises(QuorError) as raised:
            wrong()
        assert raised.value.number == 52


def test_probes_are_copied_into_another_file_unless_they_are_incomplete(laboratory, tmp_path):
    source = ProbeFile(laboratory)
    source[PROBE].settings.R0 = 99  # not saved
    path = tmp_path / "copy.ini"
    with ProbeFile(path, create=True) as copy:
        copy.copy_from(source, PROBE)
        copy.copy_from(source, "Probe 10 PRT-1183", "Reference")
        copy["Reference"].settings.R0 = 101
    assert list(ProbeFile(path)) == [PROBE, "Reference"]
    assert (ProbeFile(path)[PROBE].settings.R0, ProbeFile(path)["Reference"].settings.R0) == (100, 101)
    before = path.read_bytes()
    laboratory.write_text("[P]\nVersion=1.0\nConversionType=14\n", encoding="utf-8")
    with pytest.raises(quor.IncompleteProbeError, match=r"\[P - Settings\]"), ProbeFile(path) as copy:
        copy.copy_from(ProbeFile(laboratory), "P")
    assert path.read_bytes() == before


def conflict(laboratory):
    mine = ProbeFile(laboratory)
    mine[PROBE].settings.R0 = 101
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.R0 = 102
    mine.save()


def incomplete(laboratory):
    laboratory.write_text("[P]\nVersion=1.0\nConversionType=14\n[P - Settings]\n", encoding="utf-8")
    ProbeFile(laboratory)["P"]


@pytest.mark.parametrize("fail, names", [(conflict, ("conflicts",)), (incomplete, ("code", "other", "problems")),
                                         (lambda path: ProbeFile(path).read("Host"), ("code", "other", "problems"))])
def test_an_error_reaches_another_process_as_it_is(laboratory, fail, names):
    with pytest.raises(QuorError) as raised:
        fail(laboratory)
    error = raised.value
    copied = pickle.loads(pickle.dumps(error))
    assert (type(copied), str(copied), copied.args) == (type(error), str(error), error.args)
    for name in ("number", "source", "description", *names):
        assert getattr(copied, name) == getattr(error, name)
    assert not hasattr(copied, "conversion")


def test_threads_that_share_a_file_by_mistake_do_not_end_the_process(laboratory):
    file = ProbeFile(laboratory)
    seen = []

    def read():
        for _ in range(10):
            with suppress(RuntimeError):  # the mapping was changed by another thread
                seen.append(file[PROBE].settings.R0)
                file.table()

    threads = [threading.Thread(target=read) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert set(seen) == {100.0}


def test_a_removal_after_a_save_that_failed_takes_no_newer_record(laboratory):
    other = "Probe 10 PRT-1183"
    file = ProbeFile(laboratory)
    file[PROBE].settings.R0 = 102
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.R0 = 101
        theirs[other].settings.R0 = 99.5
    before = laboratory.read_bytes()
    with pytest.raises(quor.ConflictError):
        file.save()
    file[PROBE].settings.R0 = 100  # as it was read: no change
    del file[other]
    with pytest.raises(quor.ConflictError) as raised:
        file.save()
    assert raised.value.conflicts == (quor.Conflict(other, "", "", "", ""),)
    assert laboratory.read_bytes() == before
    file.discard()
    del file[other]
    file.save()
    assert other not in ProbeFile(laboratory)


def test_what_is_written_through_the_store_overwrites_nothing_and_is_read_again_by_a_save(laboratory):
    other = "Probe 10 PRT-1183"
    file = ProbeFile(laboratory)
    cvd = file[PROBE].settings
    with ProbeFile(laboratory) as theirs:
        theirs[other].settings.R0 = 99.5
    file.store.Section = f"{PROBE} - Settings"
    file.store.WriteDouble("Coefficients0", 100.0123, "")  # loads what they have saved
    before = laboratory.read_bytes()
    file.save()
    assert (cvd.R0, laboratory.read_bytes()) == (100.0123, before)

    file.store.WriteDouble("Coefficients0", 100.5, "")
    cvd.A = 0.0039
    file.save()
    assert (cvd.R0, cvd.A) == (100.5, 0.0039)

    file.store.WriteDouble("Coefficients0", 101, "")
    del file[PROBE]
    with pytest.raises(quor.ConflictError):
        file.save()
    file.discard()
    assert (cvd.R0, file[PROBE].settings is cvd) == (101, True)


def test_a_removal_after_a_write_through_the_store_takes_no_newer_record(laboratory):
    file = ProbeFile(laboratory)
    with ProbeFile(laboratory) as theirs:
        theirs[PROBE].settings.R0 = 99.5
    file.store.Section = "Instrument"
    file.store.WriteInteger("Channels", 9, "")
    del file[PROBE]
    before = laboratory.read_bytes()
    with pytest.raises(quor.ConflictError):
        file.save()
    assert laboratory.read_bytes() == before


@pytest.mark.parametrize("change", [removed_without_a_look, assigned_as_it_was_read])
def test_a_change_of_a_value_that_cannot_be_read_is_seen_too(laboratory, change):
    text = laboratory.read_text(encoding="utf-8")
    line = text.index("Coefficients1=", text.index(f"[{PROBE} - Settings]"))
    end = text.index("\n", line)
    laboratory.write_text(text[:line] + "Coefficients1=n/a" + text[end:], encoding="utf-8")
    file = ProbeFile(laboratory)
    change(file)
    laboratory.write_text(text[:line] + "Coefficients1=0,0039083" + text[end:], encoding="utf-8")
    before = laboratory.read_bytes()
    with pytest.raises(quor.ConflictError):
        file.save()
    assert laboratory.read_bytes() == before


def test_thousands_of_removals_between_changes_take_time_in_proportion(tmp_path):
    def seconds(count):
        path = tmp_path / "host.ini"
        path.write_text("".join(f"[P{i}]\nConversionType=14\n[P{i} - Settings]\nRTPW=25\n" for i in range(count)))
        start = time.process_time()
        with ProbeFile(path) as file:
            for place, section in enumerate(file):
                if place % 2:
                    del file[section]
                else:
                    file[section].settings.RTPW = 26
        assert len(ProbeFile(path)) == count / 2
        return time.process_time() - start

    assert min(seconds(1200), seconds(1200)) < 8 * min(seconds(300), seconds(300))
