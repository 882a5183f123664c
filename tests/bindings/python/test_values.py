"""Numbers, coefficients and names."""

import math
import random
import struct

import numpy
import pytest

import quorconversions as quor
from quorconversions import ConversionType, Conversion


def bits(value):
    return struct.pack("<d", value)


def test_a_hundred_thousand_doubles_come_back_bit_for_bit(tmp_path):
    chance = random.Random(13)
    numbers = []
    while len(numbers) < 100_000:
        number = struct.unpack("<d", chance.randbytes(8))[0]
        if not math.isnan(number):
            numbers.append(number)
    path = tmp_path / "numbers.ini"
    lines = []
    for probe in range(0, len(numbers), 100):
        lines.append(f"[P{probe}]\nVersion=1.0\nConversionType=2\n[P{probe} - Settings]\nVersion=1.0\n"
                     f"NumCoefficients=100\nUsePolynomial=0\n")
        lines += [f"Coefficients{place}={numbers[probe + place]!r}\n" for place in range(100)]
    path.write_text("".join(lines))
    table = quor.ProbeFile(path).table()
    read = [bits(value) for end in table.ends for value in table.values[end - 100:end]]
    assert read == list(map(bits, numbers))

    cvd = Conversion(ConversionType.CVD).settings  # through one object, too
    wrong = []
    for number in numbers:
        cvd.put_Coefficients(0, number)
        if bits(cvd.get_Coefficients(0)) != bits(number):
            wrong.append(number)
    assert wrong == []


def test_nan_and_the_sign_of_zero_are_kept():
    cvd = Conversion(ConversionType.CVD).settings
    with quor.allow_nan():
        cvd.R0, cvd.BETA = float("nan"), -0.0
    assert math.isnan(cvd.R0)
    assert bits(cvd.BETA) == bits(-0.0)


@pytest.mark.parametrize("number", [float("nan"), float("inf"), float("-inf"), numpy.float64("nan")])
def test_nan_and_infinities_are_stored_where_they_are_allowed_alone(number):
    cvd, wt90 = Conversion(ConversionType.CVD).settings, Conversion(ConversionType.WT90).settings
    for store in (lambda: setattr(cvd, "R0", number), lambda: cvd.coefficients.__setitem__(0, number),
                  lambda: cvd.coefficients.__setitem__(slice(0, 2), [1.0, number]), lambda: setattr(wt90, "RTPW", number)):
        with pytest.raises(ValueError, match="gives no temperature; to store it, use \"with allow_nan"):
            store()
        assert (cvd.R0, cvd.coefficients[1], wt90.RTPW) == (0.0, 0.0, 0.0)
    with quor.allow_nan():
        wt90.RTPW = number
    assert bits(wt90.RTPW) == bits(float(number))


def test_a_name_of_the_other_form_is_refused():
    cvd = Conversion(ConversionType.CVD).settings
    with pytest.raises(AttributeError, match="there is no 'A'; the names are R0, ALPHA, DELTA, BETA"):
        cvd.A = 3.9083e-3
    cvd.UsePolynomial = True
    for name in ("ALPHA", "DELTA", "BETA"):
        with pytest.raises(AttributeError, match="the names are R0, A, B, C"):
            setattr(cvd, name, 1.0)
        assert not hasattr(cvd, name)
        with pytest.raises(KeyError):
            cvd.coefficients[name] = 1.0
    assert list(cvd.coefficients) == [0.0] * 4
    cvd.R0, cvd.A, cvd.coefficients["B"], cvd.C = 100, 3.9083e-3, -5.775e-7, -4.183e-12
    assert list(cvd.coefficients) == [100.0, 3.9083e-3, -5.775e-7, -4.183e-12]
    thermistor = Conversion(ConversionType.THERMISTORT_R).settings
    with pytest.raises(AttributeError, match="there is no 'B0'; the names are A0, A1, A2, A3"):
        thermistor.B0 = 1.0


def test_coefficients_are_a_sequence_that_has_names():
    cvd = Conversion(ConversionType.CVD).settings
    cvd.coefficients[:] = [100.0123, 0.00390827, 1.4998, 0.1089]
    assert cvd.R0 == cvd.coefficients["R0"] == cvd.coefficients[0] == 100.0123
    cvd.coefficients["ALPHA"] = 0.0039
    cvd.coefficients[-1] = 0.11
    assert list(cvd.coefficients) == [100.0123, 0.0039, 1.4998, 0.11]
    assert cvd.coefficients[1:3] == [0.0039, 1.4998]
    assert cvd.coefficients == [100.0123, 0.0039, 1.4998, 0.11]
    assert 1.4998 in cvd.coefficients
    assert cvd.coefficients.index(0.11) == 3
    assert numpy.asarray(cvd.coefficients).tolist() == [100.0123, 0.0039, 1.4998, 0.11]
    cvd.coefficients[:2] = numpy.array([1.0, 2.0])
    assert cvd.coefficients == [1.0, 2.0, 1.4998, 0.11]
    cvd.R0 = numpy.float32(0.5)
    assert cvd.R0 == 0.5


def test_an_index_or_a_name_that_is_none_is_an_error_and_nothing_is_stored():
    cvd = Conversion(ConversionType.CVD).settings
    for index in (4, -5):
        with pytest.raises(IndexError, match="there are 4"):
            cvd.coefficients[index] = 1.0
    with pytest.raises(KeyError, match="RTPW"):
        cvd.coefficients["RTPW"]
    with pytest.raises(ValueError, match="3 values for 4 places"):
        cvd.coefficients[:] = [1, 2, 3]
    with pytest.raises(AttributeError):
        cvd.R1 = 1.0  # a spelling mistake makes no attribute
    assert cvd.coefficients == [0, 0, 0, 0]
    assert not cvd.changed
    with pytest.raises(quor.QuorError) as raised:
        cvd.get_Coefficients(4)
    error = raised.value
    assert (error.number, error.source, error.description) == (-2147221003, "CQuorCVD", "Index out of range")
    assert (error.help_file, error.help_context) == ("", 0)
    assert str(error) == "Index out of range (CQuorCVD, error -2147221003)"


# Where the names of a class's numbers lead: its type, the object in it, its enumeration.
NAMED = [(ConversionType.CVD, "", quor.CVDCoefficients), (ConversionType.PT100R0, "", quor.PT100Coefficients),
         (ConversionType.IPTS68, "", quor.IPTS68Coefficients), (ConversionType.HTPRT, "", quor.HTPRTCoefficients),
         (ConversionType.THERMISTORT_R, "", quor.ThermistorCoefficients),
         (ConversionType.POLYNOMIAL, "", quor.PolynomialCoefficients),
         (ConversionType.TCPOLYNOMIAL, "", quor.TCPolynomialCoefficients),
         (ConversionType.TCTYPEPOLY, "", quor.TCPolynomialCoefficients),
         (ConversionType.ITS90, "low_range", quor.ITS90LowRangeCoefficients),
         (ConversionType.ITS90, "high_range", quor.ITS90HighRangeCoefficients)]


@pytest.mark.parametrize("kind, part, names", NAMED, ids=lambda value: str(value))
def test_each_coefficient_has_its_name_its_place_and_a_doc(kind, part, names):
    settings = Conversion(kind).settings
    settings = getattr(settings, part) if part else settings
    if part:
        settings.Range = 1 if part == "low_range" else 6
    if kind == ConversionType.POLYNOMIAL:
        settings.Order = 10
    reached = {name: member for name, member in names.__members__.items() if hasattr(type(settings), name)}
    assert len(reached) == (4 if kind == ConversionType.TCTYPEPOLY else len(names.__members__))
    assert len(settings.coefficients) == len(set(reached.values()))
    for name, member in reached.items():
        if kind == ConversionType.THERMISTORT_R:
            settings.ConvType = 1 if name.startswith("B") else 0
        setattr(settings, name, 1.5 + member)
        assert settings.get_Coefficients(member) == 1.5 + member
        assert getattr(type(settings), name).__doc__.endswith((".", "form."))


def test_points_are_sequences():
    table = Conversion(ConversionType.TCTABLE).settings
    table.NumPoints = 2
    table.temperatures[:] = [0, 100]
    table.voltages[:] = [0, 4.096]
    assert repr(table) == "TCTable(points=[(0.0, 0.0), (100.0, 4.096)])"
    typex = Conversion(ConversionType.TCTYPEX).settings
    typex.NumPoints = 1
    typex.temperatures[0], typex.offsets[0], typex.coefficients[typex.DC2] = 50, 0.1, 2
    assert repr(typex) == ("TCTypeX(TCType=<TCType.K: 4>, points=[(50.0, 0.1)], coefficients=[0.0, 2.0])")


@pytest.mark.parametrize("kind, shown", [
    (ConversionType.CVD, "Conversion(CVD(R0=0.0, ALPHA=0.0, DELTA=0.0, BETA=0.0))"),
    (ConversionType.WT90, "Conversion(WT90(RTPW=0.0))"),
    (ConversionType.THERMISTORR_T, "Conversion(Thermistor(B0=0.0, B1=0.0, B2=0.0, B3=0.0))"),
    (ConversionType.OHMS, "Conversion(OHMS)"), (4711, "Conversion(4711)")])
def test_repr_shows_the_probe(kind, shown):
    assert repr(Conversion(kind)) == shown


def test_another_type_makes_fresh_settings_and_the_old_ones_live_on():
    conversion = Conversion(ConversionType.CVD)
    cvd = conversion.settings
    assert conversion.settings is cvd
    assert conversion.settings_as(quor.CVD) is cvd
    conversion.type = ConversionType.PT100R0
    assert isinstance(conversion.settings, quor.PT100)
    cvd.R0 = 3.0
    assert cvd.R0 == 3.0
    with pytest.raises(TypeError, match=r"the settings are PT100\(R0=0.0\), not CVD"):
        conversion.settings_as(quor.CVD)
    conversion.type = 4711
    assert conversion.type == 4711
    assert conversion.settings is None
    assert conversion.name == "<unknown>"


def test_lists_are_filled():
    items = quor.ListControl()
    Conversion(ConversionType.IPTS68).settings.FillScaleCombo(items)
    assert items.items == [("ITS-90", 0), ("IPTS-68", 1)]


def test_the_version_is_that_of_the_library():
    assert quor.version().count(".") == 2


def test_a_value_that_is_refused_is_named():
    cvd = Conversion(ConversionType.CVD).settings
    for wrong, text in ((lambda: setattr(cvd, "R0", "100,5"), "R0: expected a number, not '100,5'"),
                        (lambda: cvd.coefficients.__setitem__(slice(1, 3), [0, None]), "2: expected a number, not None"),
                        (lambda: setattr(Conversion(ConversionType.WT90).settings, "RTPW", "x"),
                         "RTPW: expected a number, not 'x'")):
        with pytest.raises(TypeError) as raised:
            wrong()
        assert str(raised.value) == text
    with pytest.raises(ValueError, match="^ALPHA: nan gives no temperature"):
        cvd.ALPHA = math.nan
    assert list(cvd.coefficients) == [0, 0, 0, 0]
