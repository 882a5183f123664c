"""The conversion of a probe and its settings. Each class has all members of the component interface under their own names
(`AllowEdit`, `GetName()`), and more idiomatic ones (`name`, `coefficients`, `R0`)."""

from __future__ import annotations

import math
import operator
import os
from contextlib import contextmanager
from contextvars import ContextVar
from enum import IntEnum
from typing import (TYPE_CHECKING, Any, Callable, ClassVar, Iterator, List, Mapping, Optional, Sequence, Tuple, Type,
                    TypeVar, Union, cast, overload)

from . import _low
from ._host import INIFile, PathText, Platform
from ._low import (ConversionType, CVDCoefficients, HTPRTCoefficients, IPTS68Coefficients, ITS90HighRangeCoefficients,
                   ITS90LowRangeCoefficients, PolynomialCoefficients, PT100Coefficients, TCPolynomialCoefficients,
                   TCTypeXCoefficients, ThermistorCoefficients, ThermistorConvType)
from ._runtime import Object, wrap_as

Stores = Union[INIFile, _low.INIFile]
_Settings = TypeVar("_Settings", bound=Object)
_Class = TypeVar("_Class", bound=Type[Object])


def _stands_for(class_name: str) -> Callable[[_Class], _Class]:
    """Objects of that class of the library become objects of the class below."""

    def take(python_class: _Class) -> _Class:
        wrap_as(class_name, python_class)
        return python_class

    return take


_nan_is_allowed: ContextVar[bool] = ContextVar("nan_is_allowed", default=False)


@contextmanager
def allow_nan() -> Iterator[None]:
    """In this context, coefficients, points and resistances may be NaN and infinite, which gives no temperature. Elsewhere
    assigning such a number raises ValueError."""
    token = _nan_is_allowed.set(True)
    try:
        yield
    finally:
        _nan_is_allowed.reset(token)


def _number(value: Any, name: object) -> Any:
    """A value to be stored. ValueError for NaN and infinities."""
    try:
        is_finite = math.isfinite(value)
    except TypeError:
        raise TypeError(f"{name}: expected a number, not {value!r}") from None
    if not is_finite and not _nan_is_allowed.get():
        raise ValueError(f"{name}: {float(value)} gives no temperature; to store it, use \"with allow_nan():\"")
    return value


class Values(Sequence[float]):
    """Numbers of a settings object: a sequence whose elements are read and assigned by index or, if they have names, by
    name. Assigning NaN or an infinity raises ValueError, except inside `allow_nan`."""

    __slots__ = ("_get", "_put", "_count", "_names")

    def __init__(self, get: Callable[[int], float], put: Callable[[int, float], None], count: Callable[[], int],
                 names: Optional[Mapping[str, int]] = None) -> None:
        self._get = get
        self._put = put
        self._count = count
        self._names = names or {}

    def __len__(self) -> int:
        return max(self._count(), 0)

    def _index(self, index: Union[int, str]) -> int:
        if isinstance(index, str):
            if index not in self._names:
                raise KeyError(f"there is no {index!r}" + ("; the names are " + ", ".join(self._names) if self._names else ""))
            place = int(self._names[index])
        else:
            place = operator.index(index)
        place += len(self) if place < 0 else 0
        if not 0 <= place < len(self):
            raise IndexError(f"there is no item {index!r}: there are {len(self)}, from 0")
        return place

    @overload
    def __getitem__(self, index: Union[int, str]) -> float: ...

    @overload
    def __getitem__(self, index: slice) -> List[float]: ...

    def __getitem__(self, index: Union[int, str, slice]) -> Union[float, List[float]]:
        if isinstance(index, slice):
            return [self._get(place) for place in range(*index.indices(len(self)))]
        return self._get(self._index(index))

    def __setitem__(self, index: Union[int, str, slice], value: Any) -> None:
        if not isinstance(index, slice):
            self._put(self._index(index), _number(value, index))
            return
        places = range(*index.indices(len(self)))
        values = list(value)
        if len(values) != len(places):
            raise ValueError(f"{len(values)} values for {len(places)} places")
        for place, one in [(place, _number(one, place)) for place, one in zip(places, values)]:
            self._put(place, one)

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Sequence) and not isinstance(other, str) and list(self) == list(other)

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        return repr(list(self))


class Coefficient:
    """A coefficient under its name."""

    def __init__(self, doc: str = "", name: str = "") -> None:
        self.__doc__ = doc
        self._name = name  # of the coefficient, where that is another one

    def __set_name__(self, owner: Type[Any], name: str) -> None:
        self._name = self._name or name

    @overload
    def __get__(self, settings: None, owner: object = None) -> Coefficient: ...

    @overload
    def __get__(self, settings: Object, owner: object = None) -> float: ...

    def __get__(self, settings: Optional[Object], owner: object = None) -> Union[Coefficient, float]:
        if settings is None:
            return self
        try:
            return cast(float, cast(Any, settings).coefficients[self._name])
        except KeyError as error:
            raise AttributeError(error.args[0]) from None

    def __set__(self, settings: Object, value: float) -> None:
        try:
            cast(Any, settings).coefficients[self._name] = value
        except KeyError as error:
            raise AttributeError(error.args[0]) from None


class _Shown:
    """The representation of all objects with numbers."""

    __slots__ = ()

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield from ()

    def __repr__(self) -> str:
        return f"{type(self).__name__}({', '.join(f'{name}={value!r}' for name, value in self._shown())})"


def _named(values: Values) -> Iterator[Tuple[str, float]]:
    """Each value with its first name."""
    names = {int(place): name for name, place in reversed(list(values._names.items()))}
    for place, value in enumerate(values):
        yield names.get(place, f"coefficients[{place}]"), value


class Settings(_Shown):
    """What the settings of all types have in common."""

    __slots__ = ()

    @property
    def name(self) -> str:
        """The display name: "Callendar-Van Dusen"."""
        return str(cast(Any, self).GetName())

    @property
    def changed(self) -> bool:
        """Whether a value has changed since the flag was last cleared. Saving does not clear it."""
        return bool(cast(Any, self).Changed)

    @changed.setter
    def changed(self, value: bool) -> None:
        cast(Any, self).Changed = value

    def edit(self) -> bool:
        """Shows the settings dialog through the platform. False if the user cancelled it."""
        return bool(cast(Any, self).Edit())

    def write(self, file: Union[Stores, PathText], section: str) -> None:
        """Writes the record into a section of an INI file. A failure is reported to the user through the platform."""
        _write(cast(Any, self), file, section)

    def read(self, file: Union[Stores, PathText], section: str) -> bool:
        """Reads the record. False if a key was missing, which was reported to the user; its value is unchanged."""
        return _read(cast(Any, self), file, section)


def _given(file: Union[Stores, PathText]) -> Tuple[Optional[Stores], str]:
    if isinstance(file, (INIFile, _low.INIFile)):
        return file, ""
    return None, os.fspath(file)


def _write(record: Any, file: Union[Stores, PathText], section: str) -> None:
    store, name = _given(file)
    record.WriteToFile(store, name, section)


def _read(record: Any, file: Union[Stores, PathText], section: str) -> bool:
    store, name = _given(file)
    return bool(record.ReadFromFile(store, name, section))


class _Coefficients:
    """Settings with a list of coefficients."""

    __slots__ = ()
    _names: ClassVar[Type[IntEnum]]
    _most: ClassVar[int] = 32767  # that can be reached, whatever their count

    @property
    def coefficients(self) -> Values:
        """The coefficients, by index or name. numpy.asarray accepts them."""
        own = cast(Any, self)
        return Values(own.get_Coefficients, own.put_Coefficients, lambda: min(int(own.NumCoefficients), self._most),
                      self._present_names())

    def _present_names(self) -> Mapping[str, int]:
        """The names of the coefficients in the current form of the record."""
        return self._names.__members__

    def _shown(self) -> Iterator[Tuple[str, object]]:
        return _named(self.coefficients)


@_stands_for("CQuorCVD")
class CVD(_Coefficients, Settings, _low.CQuorCVD):
    """A Callendar-Van Dusen conversion. Its coefficients are R0 with ALPHA, DELTA and BETA, or, when UsePolynomial is True,
    with A, B and C in the same places. A name of the other form raises AttributeError, and as a key of `coefficients`
    KeyError."""

    __slots__ = ()
    _names = CVDCoefficients
    R0 = Coefficient("Resistance at 0 degrees Celsius, ohms.")
    ALPHA = Coefficient("1/degree Celsius, unless UsePolynomial.")
    DELTA = Coefficient("Degrees Celsius, unless UsePolynomial.")
    BETA = Coefficient("Degrees Celsius, unless UsePolynomial.")
    A = Coefficient("1/degree Celsius, with UsePolynomial.")
    B = Coefficient("1/degree Celsius^2, with UsePolynomial.")
    C = Coefficient("1/degree Celsius^4, with UsePolynomial.")

    def _present_names(self) -> Mapping[str, int]:
        return {"R0": 0, "A": 1, "B": 2, "C": 3} if self.UsePolynomial else self._names.__members__


@_stands_for("CQuorPT100")
class PT100(_Coefficients, Settings, _low.CQuorPT100):
    """A platinum thermometer of which only R0 is known."""

    __slots__ = ()
    _names = PT100Coefficients
    R0 = Coefficient("Resistance at 0 degrees Celsius, ohms.")


@_stands_for("CQuorIPTS68")
class IPTS68(_Coefficients, Settings, _low.CQuorIPTS68):
    """A platinum thermometer calibrated on the IPTS-68."""

    __slots__ = ()
    _names = IPTS68Coefficients
    R0 = Coefficient("Resistance at 0 degrees Celsius, ohms.")
    ALPHA = Coefficient("1/degree Celsius.")
    DELTA = Coefficient("Degrees Celsius.")
    A4 = Coefficient("Deviation coefficient below 0 degrees Celsius.")
    C4 = Coefficient("Deviation coefficient below 0 degrees Celsius.")


@_stands_for("CQuorHTPRT")
class HTPRT(_Coefficients, Settings, _low.CQuorHTPRT):
    """A high-temperature platinum resistance thermometer."""

    __slots__ = ()
    _names = HTPRTCoefficients
    RTPW = Coefficient("Resistance at the triple point of water, ohms.")
    A = Coefficient("Dimensionless.")
    B = Coefficient("Dimensionless.")


@_stands_for("CQuorThermistor")
class Thermistor(_Coefficients, Settings, _low.CQuorThermistor):
    """A thermistor's polynomial: T(R) with A0 to A3, or R(T) with B0 to B3 in the same places (ConvType). A name of the
    other direction raises AttributeError, and as a key of `coefficients` KeyError."""

    __slots__ = ()
    _names = ThermistorCoefficients
    A0, A1, A2, A3 = (Coefficient("With T(R).") for _ in range(4))
    B0, B1, B2, B3 = (Coefficient("With R(T).") for _ in range(4))

    def _present_names(self) -> Mapping[str, int]:
        letter = "B" if self.ConvType == ThermistorConvType.THRMR_T else "A"
        return {f"{letter}{place}": place for place in range(4)}


@_stands_for("CQuorPolynomial")
class Polynomial(_Coefficients, Settings, _low.CQuorPolynomial):
    """A polynomial of order 4 to 10 (Order) with the coefficients A0, A1 and so on."""

    __slots__ = ()
    _names = PolynomialCoefficients
    A0, A1, A2, A3, A4, A5, A6, A7, A8, A9, A10 = (Coefficient("The coefficient of the power that the name ends with.")
                                                   for _ in range(11))


@_stands_for("CQuorTCPolynomial")
class TCPolynomial(_Coefficients, Settings, _low.CQuorTCPolynomial):
    """A thermocouple's polynomial. mV25C is its voltage at 25 degrees Celsius, millivolts."""

    __slots__ = ()
    _names = TCPolynomialCoefficients
    _most = 16
    C0, C1, C2, C3, C4, C5, C6, C7, C8, C9, C10, C11, C12, C13, C14, C15 = (
        Coefficient("The coefficient of the power that the name ends with.") for _ in range(16))


@_stands_for("CQuorTCTypePoly")
class TCTypePoly(_Coefficients, Settings, _low.CQuorTCTypePoly):
    """A standard thermocouple type (TCType) with a deviation polynomial."""

    __slots__ = ()
    _names = TCPolynomialCoefficients
    _most = 4
    C0, C1, C2, C3 = (Coefficient("The coefficient of the power that the name ends with.") for _ in range(4))

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield "TCType", self.TCType
        yield from super()._shown()


@_stands_for("CQuorTCTable")
class TCTable(Settings, _low.CQuorTCTable):
    """A thermocouple's table: up to ten points (NumPoints) of a temperature and a voltage."""

    __slots__ = ()

    @property
    def temperatures(self) -> Values:
        """In the unit that TempScale names."""
        return Values(self.get_Temperatures, self.put_Temperatures, lambda: self.NumPoints)

    @property
    def voltages(self) -> Values:
        """In the unit that VoltageScale names, "mV" at first."""
        return Values(self.get_Voltages, self.put_Voltages, lambda: self.NumPoints)

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield "points", list(zip(self.temperatures, self.voltages))


@_stands_for("CQuorTCTypeX")
class TCTypeX(Settings, _low.CQuorTCTypeX):
    """A standard thermocouple type (TCType) with up to three deviation points (NumPoints) and two DC coefficients."""

    __slots__ = ()

    @property
    def temperatures(self) -> Values:
        """In the unit that TempScale names."""
        return Values(self.get_Temperatures, self.put_Temperatures, lambda: self.NumPoints)

    @property
    def offsets(self) -> Values:
        """Of the same points, in the unit that OffsetScale names."""
        return Values(self.get_Offsets, self.put_Offsets, lambda: self.NumPoints)

    @property
    def coefficients(self) -> Values:
        """The two DC coefficients."""
        return Values(self.get_Coefficients, self.put_Coefficients, lambda: 2)

    DC1, DC2 = TCTypeXCoefficients.DC1, TCTypeXCoefficients.DC2

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield "TCType", self.TCType
        yield "points", list(zip(self.temperatures, self.offsets))
        yield "coefficients", self.coefficients


class _WithRTPW:
    """Settings with a resistance at the triple point of water, RTPW."""

    __slots__ = ()

    if not TYPE_CHECKING:
        @property
        def RTPW(self) -> float:
            """Resistance at the triple point of water, ohms. ValueError for NaN and infinities, as of coefficients."""
            return super().RTPW

        @RTPW.setter
        def RTPW(self, value: float) -> None:
            super(_WithRTPW, type(self)).RTPW.fset(self, _number(value, "RTPW"))


@_stands_for("CQuorWT90")
class WT90(_WithRTPW, Settings, _low.CQuorWT90):
    """W(T90): the reference function of the ITS-90 alone. RTPW is the resistance at the triple point of water, ohms."""

    __slots__ = ()

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield "RTPW", self.RTPW


class _Range(_Coefficients, _Shown):
    """What both sub-ranges of the ITS-90 have in common."""

    __slots__ = ()

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield "Range", cast(Any, self).Range
        yield from super()._shown()


@_stands_for("CQuorITS90LowRange")
class ITS90LowRange(_Range, _low.CQuorITS90LowRange):
    """The sub-range below the triple point of water (Range), with its deviation coefficients, dimensionless."""

    __slots__ = ()
    _names = ITS90LowRangeCoefficients
    A, B, C1, C2, C3, C4, C5 = (Coefficient("Dimensionless.") for _ in range(7))


@_stands_for("CQuorITS90HighRange")
class ITS90HighRange(_Range, _low.CQuorITS90HighRange):
    """The sub-range above the triple point of water (Range), with its deviation coefficients, dimensionless."""

    __slots__ = ()
    _names = ITS90HighRangeCoefficients
    A, B, C, D = (Coefficient("Dimensionless.") for _ in range(4))


@_stands_for("CQuorITS90")
class ITS90(_WithRTPW, Settings, _low.CQuorITS90):
    """Deviation coefficients of the ITS-90 in two sub-ranges. RTPW is the resistance at the triple point of water,
    ohms."""

    __slots__ = ()

    @property
    def low_range(self) -> ITS90LowRange:
        """The sub-range below the triple point of water."""
        return cast(ITS90LowRange, self.LowRange)

    @property
    def high_range(self) -> ITS90HighRange:
        """The sub-range above the triple point of water."""
        return cast(ITS90HighRange, self.HighRange)

    def _shown(self) -> Iterator[Tuple[str, object]]:
        yield "RTPW", self.RTPW
        yield "low_range", self.low_range
        yield "high_range", self.high_range


@_stands_for("CQuorConversion")
class Conversion(_low.CQuorConversion):
    """The conversion of one probe: its type, and the settings that belong to the type. It computes no temperatures."""

    __slots__ = ("_file", "_read_from")
    _file: Any  # a weak reference to the ProbeFile of which it is a probe
    _read_from: Tuple[int, str, int]  # the file and the folded section from which it was read last, and when, as a number

    def __init__(self, type: int = ConversionType.NONE, platform: Union[Platform, None] = None) -> None:  # noqa: A002
        super().__init__(platform)
        self.ConversionType = type

    @property
    def type(self) -> Union[ConversionType, int]:
        """The conversion type. Assigning another one replaces the settings, with all their values, by new ones."""
        return self.ConversionType

    @type.setter
    def type(self, value: int) -> None:
        self.ConversionType = value

    @property
    def settings(self) -> Any:
        """The settings of the type: a CVD for ConversionType.CVD, and so on. None if the type has none."""
        return self.Settings

    def settings_as(self, settings_class: Type[_Settings]) -> _Settings:
        """The settings. TypeError if they are not of that class."""
        settings = self.Settings
        if not isinstance(settings, settings_class):
            raise TypeError(f"the settings are {settings!r}, not {settings_class.__name__}")
        return settings

    @property
    def name(self) -> str:
        """The display name of the settings, or of the type if it has none."""
        return self.ConversionName(self.ConversionType if self.Settings is None else -2)

    @property
    def changed(self) -> bool:
        """Whether a value has changed since the flag was last cleared. Saving does not clear it."""
        return self.Changed

    @changed.setter
    def changed(self, value: bool) -> None:
        self.Changed = value

    def edit(self) -> bool:
        """Shows the settings dialog through the platform. False if the user cancelled it."""
        return self.Edit()

    def write(self, file: Union[Stores, PathText], section: str) -> None:
        """Writes the probe into a section of an INI file. A failure is reported to the user through the platform; a
        ProbeFile raises it."""
        _write(self, file, section)

    def read(self, file: Union[Stores, PathText], section: str) -> bool:
        """Reads the probe. False if a key was missing, which was reported to the user; a ProbeFile raises it."""
        return _read(self, file, section)

    def __repr__(self) -> str:
        settings = self.Settings
        shown = repr(settings) if settings is not None else str(self.type) if not isinstance(
            self.type, ConversionType) else self.type.name
        return f"Conversion({shown})"
