# Made by component/generate from members.txt: change that.

"""The component interface as it is, class by class: what the rest of the package stands on."""

from ctypes import POINTER, byref, c_double, c_int16, c_int32, c_uint64
from enum import IntEnum

from ._runtime import (Doubles, Int32s, Object, Text, TextIn, check, declare, double, exchanged, flag, int16, int32, known,
                       lent, library as _library, taken, text, wrap_as)


class ConversionType(IntEnum):
    NONE = -1  # settings: none, as those below that name no class
    ITS90 = 0  # settings: CQuorITS90
    IPTS68 = 1  # settings: CQuorIPTS68
    CVD = 2  # settings: CQuorCVD
    HTPRT = 3  # settings: CQuorHTPRT
    POLYNOMIAL = 4  # settings: CQuorPolynomial
    THERMISTORT_R = 5  # settings: CQuorThermistor, T(R)
    THERMISTORR_T = 6  # settings: CQuorThermistor, R(T)
    TCPOLYNOMIAL = 7  # settings: CQuorTCPolynomial
    TCTABLE = 8  # settings: CQuorTCTable
    TCTYPEX = 9  # settings: CQuorTCTypeX, of type K at first
    OHMS = 10
    VOLTS = 11
    IEC751 = 12
    YSI400 = 13
    WT90 = 14  # settings: CQuorWT90
    RATIO = 15
    PT100 = 16  # settings: none; CONV_PT100R0 has some
    ITSSR5 = 17  # settings: CQuorITS90, in range 5
    THERMISTOR_OHMS = 18
    PT100R0 = 19  # settings: CQuorPT100
    TCTYPEPOLY = 20  # settings: CQuorTCTypePoly, of type E at first


class ITS90RangeNumber(IntEnum):
    NORANGE = -1
    RANGE_1 = 1  # 13 K to 273 K
    RANGE_2 = 2  # 24 K to 273 K
    RANGE_3 = 3  # 54 K to 273 K
    RANGE_4 = 4  # 83 K to 273 K
    RANGE_5 = 5  # 234 K to 302 K, the one that both sides carry
    RANGE_6 = 6  # 273 K to 1234 K
    RANGE_7 = 7  # 273 K to 933 K
    RANGE_8 = 8  # 273 K to 692 K
    RANGE_9 = 9  # 273 K to 505 K
    RANGE_10 = 10  # 273 K to 429 K
    RANGE_11 = 11  # 273 K to 302 K


class ITS90RangeHL(IntEnum):
    NONE = -1
    LOWRANGE = 0
    HIGHRANGE = 1


class ITS90LowRangeCoefficients(IntEnum):
    A = 0
    B = 1
    C1 = 2
    C2 = 3
    C3 = 4
    C4 = 5
    C5 = 6


class ITS90HighRangeCoefficients(IntEnum):
    A = 0
    B = 1
    C = 2
    D = 3


class IPTS68Coefficients(IntEnum):
    R0 = 0  # resistance at 0 degrees Celsius, ohms
    ALPHA = 1  # 1/degree Celsius
    DELTA = 2  # degrees Celsius
    A4 = 3  # deviation coefficient below 0 degrees Celsius
    C4 = 4  # deviation coefficient below 0 degrees Celsius


class IPTS68Scale(IntEnum):
    ITS90 = 0
    IPTS68 = 1


class CVDCoefficients(IntEnum):
    R0 = 0  # resistance at 0 degrees Celsius, ohms
    ALPHA = 1  # 1/degree Celsius; A, of the same unit, in the polynomial form
    DELTA = 2  # degrees Celsius; B, in 1/degree Celsius^2, in the polynomial form
    BETA = 3  # degrees Celsius; C, in 1/degree Celsius^4, in the polynomial form


class PT100Coefficients(IntEnum):
    R0 = 0  # resistance at 0 degrees Celsius, ohms


class HTPRTCoefficients(IntEnum):
    RTPW = 0  # resistance at the triple point of water, ohms
    A = 1  # dimensionless
    B = 2  # dimensionless


class ThermistorConvType(IntEnum):
    THRMT_R = 0  # temperature from resistance, T(R)
    THRMR_T = 1  # resistance from temperature, R(T)


class ThermistorCoefficients(IntEnum):
    A0 = 0  # A0 to A3 are the names used with T(R)
    A1 = 1
    A2 = 2
    A3 = 3
    B0 = 0  # B0 to B3 are the names used with R(T)
    B1 = 1
    B2 = 2
    B3 = 3


class PolynomialCoefficients(IntEnum):
    A0 = 0
    A1 = 1
    A2 = 2
    A3 = 3
    A4 = 4
    A5 = 5
    A6 = 6
    A7 = 7
    A8 = 8
    A9 = 9
    A10 = 10


class TCPolynomialCoefficients(IntEnum):
    C0 = 0
    C1 = 1
    C2 = 2
    C3 = 3
    C4 = 4
    C5 = 5
    C6 = 6
    C7 = 7
    C8 = 8
    C9 = 9
    C10 = 10
    C11 = 11
    C12 = 12
    C13 = 13
    C14 = 14
    C15 = 15


class TCTableCoefficients(IntEnum):
    T1 = 0  # temperatures
    T2 = 1
    T3 = 2
    T4 = 3
    T5 = 4
    T6 = 5
    T7 = 6
    T8 = 7
    T9 = 8
    T10 = 9
    ADJ1 = 0  # voltages of the same points
    ADJ2 = 1
    ADJ3 = 2
    ADJ4 = 3
    ADJ5 = 4
    ADJ6 = 5
    ADJ7 = 6
    ADJ8 = 7
    ADJ9 = 8
    ADJ10 = 9


class TCTypeXCoefficients(IntEnum):
    T1 = 0  # temperatures of the deviation points
    T2 = 1
    T3 = 2
    ADJ1 = 0  # offsets of the same points
    ADJ2 = 1
    ADJ3 = 2
    DC1 = 0  # DC coefficients
    DC2 = 1


class TCType(IntEnum):
    NONE = -1
    B = 0
    C = 1
    E = 2
    J = 3
    K = 4
    L = 5
    M = 6
    N = 7
    R = 8
    S = 9
    T = 10
    U = 11
    AUPT = 12


class MousePointer(IntEnum):
    DEFAULT = 0
    HOURGLASS = 11


class MessageIcon(IntEnum):
    CRITICAL = 16
    INFORMATION = 64


class FileDialogKind(IntEnum):
    OPEN = 0
    SAVE = 1


class ControlKind(IntEnum):
    LABEL = 0
    PUSH_BUTTON = 1
    TEXT_BOX = 2
    DROP_DOWN_LIST = 3
    FRAME = 4
    TAB_STRIP = 5


class ProbeFileError(IntEnum):
    NO_SUCH_SECTION = 1  # there is no such section
    NO_RECORD = 2  # the section exists, but is not the record of a probe
    TYPE_UNREADABLE = 3  # the type cannot be read; ErrorOther is its text
    UNKNOWN_TYPE = 4  # no conversion has the code of its type; ErrorOther is the code
    INCOMPLETE = 5  # something is missing or cannot be read: see ProblemCount
    BAD_NAME = 6  # a section cannot have the name
    NAME_IS_TAKEN = 7  # another section has the name, or another probe of one Write
    NAME_OF_SETTINGS = 8  # a probe, ErrorOther, keeps its settings in a section of that name
    SETTINGS_ARE_TAKEN = 9  # its settings need the section ErrorOther, which exists already
    SECTION_IS_SHARED = 10  # a section of the probe also belongs to another probe, ErrorOther
    OF_ANOTHER_TYPE = 11  # the section has a probe of another type, ErrorOther
    DOES_NOT_FIT_FILE = 12  # the section of a stand-alone settings file is not for the type, or not for a renamed probe
    CANNOT_BE_WRITTEN = 13  # its conversion has raised an error, which is raised here
    SECTION_OF_HOST = 14  # the section exists and is not the record of a probe: none is written into it
    INCONSISTENT = 15  # what would be read back differs from what the conversion holds: a count below zero, settings of another type


class ProbeProblem(IntEnum):
    PROBLEM_SECTION_MISSING = 1
    PROBLEM_KEY_MISSING = 2
    PROBLEM_VALUE_UNREADABLE = 3  # not a value of the kind that the key needs: a number with a comma, text instead of a code
    PROBLEM_UNKNOWN_TYPE = 4  # no conversion type has the code
    PROBLEM_RECORD_REFUSED = 5  # the settings object refuses the record and gives the reason
    PROBLEM_VALUE_REFUSED = 6  # a value, such as a count below zero, with which no record can be read
    PROBLEM_VALUE_REPLACED = 7  # the settings object uses another value instead
    PROBLEM_UNKNOWN_KEY = 8  # a record of this type and size has no such key
    PROBLEM_DUPLICATE_KEY = 9  # the first one is read
    PROBLEM_DUPLICATE_SECTION = 10  # the first one is read
    PROBLEM_UNCLOSED_HEADER = 11  # a section header without "]": the record below it cannot be read
    PROBLEM_MALFORMED_LINE = 12  # no key=value
    PROBLEM_KEPT_FILE = 13  # next to the file: what another program had put in its place
    PROBLEM_INTERRUPTED_SAVE = 14  # next to the file: left over from an interrupted save
    PROBLEM_LINE_ENDS_IN_CR = 15  # a header or key after a lone carriage return, which is not read
    WARNING_R0_NOT_POSITIVE = 101
    WARNING_RTPW_NOT_POSITIVE = 102
    WARNING_NOT_FINITE = 103  # NaN or infinity
    WARNING_COEFFICIENTS_ALL_ZERO = 104
    WARNING_TEMPERATURES_NOT_INCREASING = 105
    WARNING_RANGE_DOES_NOT_FIT = 106  # coefficients that the ITS-90 range does not have are not 0
    WARNING_ALPHA_SIZE = 107
    WARNING_DELTA_SIZE = 108
    WARNING_BETA_SIZE = 109
    WARNING_CVD_A_SIZE = 110
    WARNING_CVD_B_SIZE = 111
    WARNING_CVD_C_SIZE = 112
    WARNING_A4_SIZE = 113
    WARNING_C4_SIZE = 114
    WARNING_DEVIATION_A_SIZE = 115
    WARNING_DEVIATION_SIZE = 116  # b, c, d and c1 to c5 of the ITS-90
    WARNING_THERMISTOR_A0_SIZE = 117
    WARNING_THERMISTOR_A1_SIZE = 118
    WARNING_THERMISTOR_A3_SIZE = 119
    WARNING_THERMISTOR_B1_SIZE = 120
    WARNING_COUNT_DOES_NOT_FIT = 121  # values beside a count that it leaves out are not 0
    WARNING_UNKNOWN_CODE = 122  # no thermocouple type has the code
    WARNING_NO_SUCH_PROBE = 123  # settings of a probe that is not there


class CQuorConversion(Object):
    """The conversion of one probe: its type, and the settings of that type."""

    __slots__ = ()

    def __init__(self, platform=None):
        result = c_uint64()
        with lent(platform) as platform_handle:
            check(_library.quor_conversion_create(platform_handle, byref(result)))
        self._own(result.value)

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_conversion_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_conversion_put_AllowEdit(self._handle, flag(value)))

    @property
    def HelpFile(self):
        """The help file of the whole library in this process, not of this object."""
        result = Text()
        check(_library.quor_conversion_get_HelpFile(self._handle, byref(result)))
        return result.take()

    @HelpFile.setter
    def HelpFile(self, value):
        check(_library.quor_conversion_put_HelpFile(self._handle, text(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_conversion_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_conversion_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_conversion_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_conversion_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_conversion_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_conversion_put_FilePath(self._handle, text(value)))

    @property
    def Settings(self):
        """The settings object of the current type; none when the type has none."""
        result = c_uint64()
        check(_library.quor_conversion_get_Settings(self._handle, byref(result)))
        return taken(result.value)

    @property
    def ConversionType(self):
        """CONV_NONE at first. Another value replaces the settings object by a new one."""
        result = c_int32()
        check(_library.quor_conversion_get_ConversionType(self._handle, byref(result)))
        return known(ConversionType, result.value)

    @ConversionType.setter
    def ConversionType(self, value):
        check(_library.quor_conversion_put_ConversionType(self._handle, int32(value)))

    def ConversionName(self, Value=-2):
        """The name of a conversion type, "<unknown>" for a code without one. -2: of the settings object."""
        result = Text()
        check(_library.quor_conversion_ConversionName(self._handle, int32(Value), byref(result)))
        return result.take()

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_conversion_Edit(self._handle, byref(result)))
        return result.value != 0

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_conversion_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed. Beware: a section that does not exist, or has no type, makes the conversion an ITS-90 one, and
        its coefficients are lost. Read of ProbeFile refuses such a section."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_conversion_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorITS90(Object):
    """CQuorITS90"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_its90_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_its90_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_its90_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_its90_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_its90_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_its90_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_its90_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_its90_put_FilePath(self._handle, text(value)))

    @property
    def HighRange(self):
        """The sub-range above the triple point of water. It lives as long as its owner."""
        result = c_uint64()
        check(_library.quor_its90_get_HighRange(self._handle, byref(result)))
        return taken(result.value)

    @property
    def LowRange(self):
        """The sub-range below the triple point of water. It lives as long as its owner."""
        result = c_uint64()
        check(_library.quor_its90_get_LowRange(self._handle, byref(result)))
        return taken(result.value)

    @property
    def RTPW(self):
        """Resistance at the triple point of water, ohms."""
        result = c_double()
        check(_library.quor_its90_get_RTPW(self._handle, byref(result)))
        return result.value

    @RTPW.setter
    def RTPW(self, value):
        check(_library.quor_its90_put_RTPW(self._handle, double(value)))

    @property
    def RTPWFormat(self):
        """How the dialog shows RTPW: a value format. Never a change."""
        result = Text()
        check(_library.quor_its90_get_RTPWFormat(self._handle, byref(result)))
        return result.take()

    @RTPWFormat.setter
    def RTPWFormat(self, value):
        check(_library.quor_its90_put_RTPWFormat(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_its90_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_its90_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_its90_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_its90_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_its90_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_its90_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorITS90LowRange(Object):
    """CQuorITS90LowRange"""

    __slots__ = ()

    @property
    def ShowCoefRange(self):
        """Whether the labels of the dialog include the range number; True at first. Never a change."""
        result = c_int16()
        check(_library.quor_its90_low_range_get_ShowCoefRange(self._handle, byref(result)))
        return result.value != 0

    @ShowCoefRange.setter
    def ShowCoefRange(self, value):
        check(_library.quor_its90_low_range_put_ShowCoefRange(self._handle, flag(value)))

    @property
    def AllowChangeRange(self):
        """Whether the dialog lets the user choose another range; True at first. Never a change."""
        result = c_int16()
        check(_library.quor_its90_low_range_get_AllowChangeRange(self._handle, byref(result)))
        return result.value != 0

    @AllowChangeRange.setter
    def AllowChangeRange(self, value):
        check(_library.quor_its90_low_range_put_AllowChangeRange(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_its90_low_range_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_its90_low_range_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_its90_low_range_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_its90_low_range_put_Changed(self._handle, flag(value)))

    @property
    def RangeEnabled(self):
        """True at first. False selects the first range that only this side has."""
        result = c_int16()
        check(_library.quor_its90_low_range_get_RangeEnabled(self._handle, byref(result)))
        return result.value != 0

    @RangeEnabled.setter
    def RangeEnabled(self, value):
        check(_library.quor_its90_low_range_put_RangeEnabled(self._handle, flag(value)))

    def RangeName(self, vData=-2):
        """The name of a range of this side, empty for any other value. -2: of the current one."""
        result = Text()
        check(_library.quor_its90_low_range_RangeName(self._handle, int32(vData), byref(result)))
        return result.take()

    @property
    def NumCoefficients(self):
        """How many coefficients there are."""
        result = c_int16()
        check(_library.quor_its90_low_range_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @property
    def Range(self):
        """ITS90_NORANGE at first. Error 0x800401F6 outside MinRange to MaxRange; no range is always valid."""
        result = c_int32()
        check(_library.quor_its90_low_range_get_Range(self._handle, byref(result)))
        return known(ITS90RangeNumber, result.value)

    @Range.setter
    def Range(self, value):
        check(_library.quor_its90_low_range_put_Range(self._handle, int32(value)))

    @property
    def MaxRange(self):
        """The upper limit of Range; not checked, never a change."""
        result = c_int32()
        check(_library.quor_its90_low_range_get_MaxRange(self._handle, byref(result)))
        return known(ITS90RangeNumber, result.value)

    @MaxRange.setter
    def MaxRange(self, value):
        check(_library.quor_its90_low_range_put_MaxRange(self._handle, int32(value)))

    @property
    def MinRange(self):
        """The lower limit of Range; not checked, never a change."""
        result = c_int32()
        check(_library.quor_its90_low_range_get_MinRange(self._handle, byref(result)))
        return known(ITS90RangeNumber, result.value)

    @MinRange.setter
    def MinRange(self, value):
        check(_library.quor_its90_low_range_put_MinRange(self._handle, int32(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_its90_low_range_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_its90_low_range_put_Coefficients(self._handle, int32(Index), double(value)))

    @property
    def ValueFormat(self):
        """How the dialog shows all coefficients. Never a change."""
        result = Text()
        check(_library.quor_its90_low_range_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_its90_low_range_put_ValueFormat(self._handle, text(value)))

    def FillRangeCombo(self, ctrl):
        """Fills a list with "<none>" and the ranges, each with its number as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_its90_low_range_FillRangeCombo(self._handle, ctrl_handle))

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_its90_low_range_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_its90_low_range_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorITS90HighRange(Object):
    """CQuorITS90HighRange"""

    __slots__ = ()

    @property
    def ShowCoefRange(self):
        """Whether the labels of the dialog include the range number; True at first. Never a change."""
        result = c_int16()
        check(_library.quor_its90_high_range_get_ShowCoefRange(self._handle, byref(result)))
        return result.value != 0

    @ShowCoefRange.setter
    def ShowCoefRange(self, value):
        check(_library.quor_its90_high_range_put_ShowCoefRange(self._handle, flag(value)))

    @property
    def AllowChangeRange(self):
        """Whether the dialog lets the user choose another range; True at first. Never a change."""
        result = c_int16()
        check(_library.quor_its90_high_range_get_AllowChangeRange(self._handle, byref(result)))
        return result.value != 0

    @AllowChangeRange.setter
    def AllowChangeRange(self, value):
        check(_library.quor_its90_high_range_put_AllowChangeRange(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_its90_high_range_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_its90_high_range_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_its90_high_range_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_its90_high_range_put_Changed(self._handle, flag(value)))

    @property
    def RangeEnabled(self):
        """True at first. False selects the first range that only this side has."""
        result = c_int16()
        check(_library.quor_its90_high_range_get_RangeEnabled(self._handle, byref(result)))
        return result.value != 0

    @RangeEnabled.setter
    def RangeEnabled(self, value):
        check(_library.quor_its90_high_range_put_RangeEnabled(self._handle, flag(value)))

    def RangeName(self, vData=-2):
        """The name of a range of this side, empty for any other value. -2: of the current one."""
        result = Text()
        check(_library.quor_its90_high_range_RangeName(self._handle, int32(vData), byref(result)))
        return result.take()

    @property
    def NumCoefficients(self):
        """How many coefficients there are."""
        result = c_int16()
        check(_library.quor_its90_high_range_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @property
    def Range(self):
        """ITS90_NORANGE at first. Error 0x800401F6 outside MinRange to MaxRange; no range is always valid."""
        result = c_int32()
        check(_library.quor_its90_high_range_get_Range(self._handle, byref(result)))
        return known(ITS90RangeNumber, result.value)

    @Range.setter
    def Range(self, value):
        check(_library.quor_its90_high_range_put_Range(self._handle, int32(value)))

    @property
    def MaxRange(self):
        """The upper limit of Range; not checked, never a change."""
        result = c_int32()
        check(_library.quor_its90_high_range_get_MaxRange(self._handle, byref(result)))
        return known(ITS90RangeNumber, result.value)

    @MaxRange.setter
    def MaxRange(self, value):
        check(_library.quor_its90_high_range_put_MaxRange(self._handle, int32(value)))

    @property
    def MinRange(self):
        """The lower limit of Range; not checked, never a change."""
        result = c_int32()
        check(_library.quor_its90_high_range_get_MinRange(self._handle, byref(result)))
        return known(ITS90RangeNumber, result.value)

    @MinRange.setter
    def MinRange(self, value):
        check(_library.quor_its90_high_range_put_MinRange(self._handle, int32(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_its90_high_range_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_its90_high_range_put_Coefficients(self._handle, int32(Index), double(value)))

    @property
    def ValueFormat(self):
        """How the dialog shows all coefficients. Never a change."""
        result = Text()
        check(_library.quor_its90_high_range_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_its90_high_range_put_ValueFormat(self._handle, text(value)))

    def FillRangeCombo(self, ctrl):
        """Fills a list with "<none>" and the ranges, each with its number as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_its90_high_range_FillRangeCombo(self._handle, ctrl_handle))

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_its90_high_range_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_its90_high_range_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorIPTS68(Object):
    """CQuorIPTS68"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_ipts68_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_ipts68_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_ipts68_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_ipts68_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_ipts68_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_ipts68_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_ipts68_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_ipts68_put_FilePath(self._handle, text(value)))

    @property
    def ScaleEnabled(self):
        """Whether the dialog offers the choice of the scale; False at first. Never a change."""
        result = c_int16()
        check(_library.quor_ipts68_get_ScaleEnabled(self._handle, byref(result)))
        return result.value != 0

    @ScaleEnabled.setter
    def ScaleEnabled(self, value):
        check(_library.quor_ipts68_put_ScaleEnabled(self._handle, flag(value)))

    @property
    def NumCoefficients(self):
        """How many coefficients there are."""
        result = c_int16()
        check(_library.quor_ipts68_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @property
    def IPTS68Scale(self):
        """The temperature scale of the instrument; SCALE_ITS90 at first. Any value is stored."""
        result = c_int32()
        check(_library.quor_ipts68_get_IPTS68Scale(self._handle, byref(result)))
        return known(IPTS68Scale, result.value)

    @IPTS68Scale.setter
    def IPTS68Scale(self, value):
        check(_library.quor_ipts68_put_IPTS68Scale(self._handle, int32(value)))

    def IPTS68ScaleName(self, vData=-2):
        """The name of a scale, empty for a value without one. -2: of the current one."""
        result = Text()
        check(_library.quor_ipts68_IPTS68ScaleName(self._handle, int32(vData), byref(result)))
        return result.take()

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_ipts68_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_ipts68_put_Coefficients(self._handle, int32(Index), double(value)))

    def get_ValueFormat(self, Index):
        """How the dialog shows a coefficient. Never a change."""
        result = Text()
        check(_library.quor_ipts68_get_ValueFormat(self._handle, int32(Index), byref(result)))
        return result.take()

    def put_ValueFormat(self, Index, value):
        """How the dialog shows a coefficient. Never a change."""
        check(_library.quor_ipts68_put_ValueFormat(self._handle, int32(Index), text(value)))

    def FillScaleCombo(self, ctrl):
        """Fills a list with the two scales, each with its value as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_ipts68_FillScaleCombo(self._handle, ctrl_handle))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_ipts68_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_ipts68_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_ipts68_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_ipts68_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_ipts68_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_ipts68_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorCVD(Object):
    """CQuorCVD"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_cvd_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_cvd_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_cvd_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_cvd_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_cvd_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_cvd_put_Changed(self._handle, flag(value)))

    @property
    def NumCoefficients(self):
        """4 at first. A negative value refuses every index until a valid one is set."""
        result = c_int16()
        check(_library.quor_cvd_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @NumCoefficients.setter
    def NumCoefficients(self, value):
        check(_library.quor_cvd_put_NumCoefficients(self._handle, int16(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_cvd_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_cvd_put_Coefficients(self._handle, int32(Index), double(value)))

    @property
    def UsePolynomial(self):
        """Whether the coefficients are those of the polynomial form. Never a change."""
        result = c_int16()
        check(_library.quor_cvd_get_UsePolynomial(self._handle, byref(result)))
        return result.value != 0

    @UsePolynomial.setter
    def UsePolynomial(self, value):
        check(_library.quor_cvd_put_UsePolynomial(self._handle, flag(value)))

    def get_ValueFormat(self, Index):
        """How the dialog shows a coefficient. Never a change."""
        result = Text()
        check(_library.quor_cvd_get_ValueFormat(self._handle, int32(Index), byref(result)))
        return result.take()

    def put_ValueFormat(self, Index, value):
        """How the dialog shows a coefficient. Never a change."""
        check(_library.quor_cvd_put_ValueFormat(self._handle, int32(Index), text(value)))

    def MaxCoefficients(self):
        """The greatest useful number of coefficients."""
        result = c_int16()
        check(_library.quor_cvd_MaxCoefficients(self._handle, byref(result)))
        return result.value

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_cvd_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_cvd_GetName(self._handle, byref(result)))
        return result.take()

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_cvd_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_cvd_put_FilePath(self._handle, text(value)))

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_cvd_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_cvd_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_cvd_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_cvd_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorPT100(Object):
    """CQuorPT100"""

    __slots__ = ()

    def __init__(self, platform=None):
        result = c_uint64()
        with lent(platform) as platform_handle:
            check(_library.quor_pt100_create(platform_handle, byref(result)))
        self._own(result.value)

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_pt100_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_pt100_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_pt100_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_pt100_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_pt100_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_pt100_put_Changed(self._handle, flag(value)))

    @property
    def NumCoefficients(self):
        """1 at first. A negative value refuses every index until a valid one is set."""
        result = c_int16()
        check(_library.quor_pt100_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @NumCoefficients.setter
    def NumCoefficients(self, value):
        check(_library.quor_pt100_put_NumCoefficients(self._handle, int16(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_pt100_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_pt100_put_Coefficients(self._handle, int32(Index), double(value)))

    def get_ValueFormat(self, Index):
        """How the dialog shows a coefficient. Never a change."""
        result = Text()
        check(_library.quor_pt100_get_ValueFormat(self._handle, int32(Index), byref(result)))
        return result.take()

    def put_ValueFormat(self, Index, value):
        """How the dialog shows a coefficient. Never a change."""
        check(_library.quor_pt100_put_ValueFormat(self._handle, int32(Index), text(value)))

    def MaxCoefficients(self):
        """The greatest useful number of coefficients."""
        result = c_int16()
        check(_library.quor_pt100_MaxCoefficients(self._handle, byref(result)))
        return result.value

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_pt100_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_pt100_GetName(self._handle, byref(result)))
        return result.take()

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_pt100_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_pt100_put_FilePath(self._handle, text(value)))

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_pt100_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_pt100_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_pt100_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_pt100_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorHTPRT(Object):
    """CQuorHTPRT"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_htprt_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_htprt_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_htprt_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_htprt_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_htprt_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_htprt_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_htprt_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_htprt_put_FilePath(self._handle, text(value)))

    @property
    def NumCoefficients(self):
        """How many coefficients there are."""
        result = c_int16()
        check(_library.quor_htprt_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_htprt_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_htprt_put_Coefficients(self._handle, int32(Index), double(value)))

    def get_ValueFormat(self, Index):
        """How the dialog shows a coefficient. Never a change."""
        result = Text()
        check(_library.quor_htprt_get_ValueFormat(self._handle, int32(Index), byref(result)))
        return result.take()

    def put_ValueFormat(self, Index, value):
        """How the dialog shows a coefficient. Never a change."""
        check(_library.quor_htprt_put_ValueFormat(self._handle, int32(Index), text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_htprt_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_htprt_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_htprt_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_htprt_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_htprt_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_htprt_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorWT90(Object):
    """CQuorWT90"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_wt90_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_wt90_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_wt90_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_wt90_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_wt90_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_wt90_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_wt90_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_wt90_put_FilePath(self._handle, text(value)))

    @property
    def RTPW(self):
        """Resistance at the triple point of water, ohms."""
        result = c_double()
        check(_library.quor_wt90_get_RTPW(self._handle, byref(result)))
        return result.value

    @RTPW.setter
    def RTPW(self, value):
        check(_library.quor_wt90_put_RTPW(self._handle, double(value)))

    @property
    def RTPWFormat(self):
        """How the dialog shows RTPW: a value format. Never a change."""
        result = Text()
        check(_library.quor_wt90_get_RTPWFormat(self._handle, byref(result)))
        return result.take()

    @RTPWFormat.setter
    def RTPWFormat(self, value):
        check(_library.quor_wt90_put_RTPWFormat(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_wt90_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_wt90_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_wt90_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_wt90_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_wt90_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_wt90_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorThermistor(Object):
    """CQuorThermistor"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_thermistor_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_thermistor_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_thermistor_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_thermistor_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_thermistor_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_thermistor_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_thermistor_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_thermistor_put_FilePath(self._handle, text(value)))

    @property
    def ConvType(self):
        """The direction of the polynomial; TCT_THRMT_R at first. Any value is stored."""
        result = c_int32()
        check(_library.quor_thermistor_get_ConvType(self._handle, byref(result)))
        return known(ThermistorConvType, result.value)

    @ConvType.setter
    def ConvType(self, value):
        check(_library.quor_thermistor_put_ConvType(self._handle, int32(value)))

    def ConvName(self, vData=-2):
        """"Thermistor " and a direction. -2: the current one."""
        result = Text()
        check(_library.quor_thermistor_ConvName(self._handle, int32(vData), byref(result)))
        return result.take()

    @property
    def NumCoefficients(self):
        """How many coefficients there are."""
        result = c_int16()
        check(_library.quor_thermistor_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_thermistor_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_thermistor_put_Coefficients(self._handle, int32(Index), double(value)))

    @property
    def ValueFormat(self):
        """How the dialog shows all coefficients. Never a change."""
        result = Text()
        check(_library.quor_thermistor_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_thermistor_put_ValueFormat(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_thermistor_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_thermistor_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_thermistor_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_thermistor_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_thermistor_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_thermistor_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorPolynomial(Object):
    """CQuorPolynomial"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_polynomial_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_polynomial_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_polynomial_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_polynomial_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_polynomial_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_polynomial_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_polynomial_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_polynomial_put_FilePath(self._handle, text(value)))

    @property
    def NumCoefficients(self):
        """Order + 1."""
        result = c_int16()
        check(_library.quor_polynomial_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @property
    def Order(self):
        """The order of the polynomial, 4 at first. A value outside MinOrder to MaxOrder is ignored."""
        result = c_int16()
        check(_library.quor_polynomial_get_Order(self._handle, byref(result)))
        return result.value

    @Order.setter
    def Order(self, value):
        check(_library.quor_polynomial_put_Order(self._handle, int16(value)))

    @property
    def MinOrder(self):
        """The smallest order: 4."""
        result = c_int16()
        check(_library.quor_polynomial_get_MinOrder(self._handle, byref(result)))
        return result.value

    @property
    def MaxOrder(self):
        """The greatest order: 10."""
        result = c_int16()
        check(_library.quor_polynomial_get_MaxOrder(self._handle, byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_polynomial_put_Coefficients(self._handle, int32(Index), double(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_polynomial_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    @property
    def ValueFormat(self):
        """How the dialog shows all coefficients. Never a change."""
        result = Text()
        check(_library.quor_polynomial_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_polynomial_put_ValueFormat(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_polynomial_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_polynomial_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_polynomial_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_polynomial_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_polynomial_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_polynomial_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0

    @property
    def CoefficientLabelPrefix(self):
        """The letter in the labels of the dialog: "A" gives "A0", "A1" and so on. Never a change."""
        result = Text()
        check(_library.quor_polynomial_get_CoefficientLabelPrefix(self._handle, byref(result)))
        return result.take()

    @CoefficientLabelPrefix.setter
    def CoefficientLabelPrefix(self, value):
        check(_library.quor_polynomial_put_CoefficientLabelPrefix(self._handle, text(value)))


class CQuorTCPolynomial(Object):
    """CQuorTCPolynomial"""

    __slots__ = ()

    @property
    def mV25CFormat(self):
        """How the dialog shows mV25C. Never a change."""
        result = Text()
        check(_library.quor_tc_polynomial_get_mV25CFormat(self._handle, byref(result)))
        return result.take()

    @mV25CFormat.setter
    def mV25CFormat(self, value):
        check(_library.quor_tc_polynomial_put_mV25CFormat(self._handle, text(value)))

    @property
    def mV25C(self):
        """Voltage at 25 degrees Celsius, millivolts."""
        result = c_double()
        check(_library.quor_tc_polynomial_get_mV25C(self._handle, byref(result)))
        return result.value

    @mV25C.setter
    def mV25C(self, value):
        check(_library.quor_tc_polynomial_put_mV25C(self._handle, double(value)))

    @property
    def ShowmV25C(self):
        """Whether the dialog shows mV25C; False at first. Never a change."""
        result = c_int16()
        check(_library.quor_tc_polynomial_get_ShowmV25C(self._handle, byref(result)))
        return result.value != 0

    @ShowmV25C.setter
    def ShowmV25C(self, value):
        check(_library.quor_tc_polynomial_put_ShowmV25C(self._handle, flag(value)))

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_tc_polynomial_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_tc_polynomial_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_tc_polynomial_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_tc_polynomial_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_tc_polynomial_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_tc_polynomial_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_tc_polynomial_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_tc_polynomial_put_FilePath(self._handle, text(value)))

    @property
    def NumCoefficients(self):
        """16 at first. A negative value is stored and then error 9."""
        result = c_int16()
        check(_library.quor_tc_polynomial_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @NumCoefficients.setter
    def NumCoefficients(self, value):
        check(_library.quor_tc_polynomial_put_NumCoefficients(self._handle, int16(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_tc_polynomial_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_tc_polynomial_put_Coefficients(self._handle, int32(Index), double(value)))

    @property
    def ValueFormat(self):
        """How the dialog shows all coefficients. Never a change."""
        result = Text()
        check(_library.quor_tc_polynomial_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_tc_polynomial_put_ValueFormat(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_tc_polynomial_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_tc_polynomial_GetName(self._handle, byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_polynomial_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_polynomial_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_polynomial_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_polynomial_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorTCTable(Object):
    """CQuorTCTable"""

    __slots__ = ()

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_tc_table_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_tc_table_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_tc_table_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_tc_table_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_tc_table_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_tc_table_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_tc_table_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_tc_table_put_FilePath(self._handle, text(value)))

    @property
    def NumPoints(self):
        """10 at first. A value above 10 is ignored; a negative one is stored and then error 9."""
        result = c_int16()
        check(_library.quor_tc_table_get_NumPoints(self._handle, byref(result)))
        return result.value

    @NumPoints.setter
    def NumPoints(self, value):
        check(_library.quor_tc_table_put_NumPoints(self._handle, int16(value)))

    def get_Temperatures(self, Index):
        """The temperature of a point, in the unit that TempScale names."""
        result = c_double()
        check(_library.quor_tc_table_get_Temperatures(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Temperatures(self, Index, value):
        """The temperature of a point, in the unit that TempScale names."""
        check(_library.quor_tc_table_put_Temperatures(self._handle, int32(Index), double(value)))

    def get_Voltages(self, Index):
        """The voltage of a point, in the unit that VoltageScale names. Error 0x800401F5 for an invalid index."""
        result = c_double()
        check(_library.quor_tc_table_get_Voltages(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Voltages(self, Index, value):
        """The voltage of a point, in the unit that VoltageScale names. Error 0x800401F5 for an invalid index."""
        check(_library.quor_tc_table_put_Voltages(self._handle, int32(Index), double(value)))

    @property
    def TempFormat(self):
        """How the dialog shows temperatures. Never a change."""
        result = Text()
        check(_library.quor_tc_table_get_TempFormat(self._handle, byref(result)))
        return result.take()

    @TempFormat.setter
    def TempFormat(self, value):
        check(_library.quor_tc_table_put_TempFormat(self._handle, text(value)))

    @property
    def VoltageFormat(self):
        """How the dialog shows voltages. Never a change."""
        result = Text()
        check(_library.quor_tc_table_get_VoltageFormat(self._handle, byref(result)))
        return result.take()

    @VoltageFormat.setter
    def VoltageFormat(self, value):
        check(_library.quor_tc_table_put_VoltageFormat(self._handle, text(value)))

    @property
    def TempScale(self):
        """The unit text beside temperatures; it converts nothing."""
        result = Text()
        check(_library.quor_tc_table_get_TempScale(self._handle, byref(result)))
        return result.take()

    @TempScale.setter
    def TempScale(self, value):
        check(_library.quor_tc_table_put_TempScale(self._handle, text(value)))

    @property
    def VoltageScale(self):
        """The unit text beside voltages, "mV" at first; it converts nothing."""
        result = Text()
        check(_library.quor_tc_table_get_VoltageScale(self._handle, byref(result)))
        return result.take()

    @VoltageScale.setter
    def VoltageScale(self, value):
        check(_library.quor_tc_table_put_VoltageScale(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_tc_table_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self):
        """The display name."""
        result = Text()
        check(_library.quor_tc_table_GetName(self._handle, byref(result)))
        return result.take()

    def FillPointsCombo(self, ctrl):
        """Fills a list with the counts that can be chosen, each with its number as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_tc_table_FillPointsCombo(self._handle, ctrl_handle))

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_table_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_table_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_table_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_table_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorTCTypeX(Object):
    """CQuorTCTypeX"""

    __slots__ = ()

    @property
    def ShowDCCoefs(self):
        """Whether the dialog shows the DC coefficients; True at first. Never a change."""
        result = c_int16()
        check(_library.quor_tc_typex_get_ShowDCCoefs(self._handle, byref(result)))
        return result.value != 0

    @ShowDCCoefs.setter
    def ShowDCCoefs(self, value):
        check(_library.quor_tc_typex_put_ShowDCCoefs(self._handle, flag(value)))

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_tc_typex_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_tc_typex_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_tc_typex_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_tc_typex_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_tc_typex_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_tc_typex_put_Changed(self._handle, flag(value)))

    @property
    def TempScale(self):
        """The unit text beside temperatures; it converts nothing."""
        result = Text()
        check(_library.quor_tc_typex_get_TempScale(self._handle, byref(result)))
        return result.take()

    @TempScale.setter
    def TempScale(self, value):
        check(_library.quor_tc_typex_put_TempScale(self._handle, text(value)))

    @property
    def OffsetScale(self):
        """The unit text beside offsets; it converts nothing."""
        result = Text()
        check(_library.quor_tc_typex_get_OffsetScale(self._handle, byref(result)))
        return result.take()

    @OffsetScale.setter
    def OffsetScale(self, value):
        check(_library.quor_tc_typex_put_OffsetScale(self._handle, text(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_tc_typex_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_tc_typex_put_FilePath(self._handle, text(value)))

    @property
    def TCType(self):
        """The standard thermocouple type. Any value is stored."""
        result = c_int32()
        check(_library.quor_tc_typex_get_TCType(self._handle, byref(result)))
        return known(TCType, result.value)

    @TCType.setter
    def TCType(self, value):
        check(_library.quor_tc_typex_put_TCType(self._handle, int32(value)))

    def GetTCTypeName(self, tc=-2):
        """The name of a thermocouple type, such as "K". -2: of the current one."""
        result = Text()
        check(_library.quor_tc_typex_GetTCTypeName(self._handle, int32(tc), byref(result)))
        return result.take()

    def FillTCTypeNameCombo(self, ctrl):
        """Fills a list with the types that have names, each with its value as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_tc_typex_FillTCTypeNameCombo(self._handle, ctrl_handle))

    @property
    def NumPoints(self):
        """3 at first. A value above 3 is ignored; a negative one is stored and then error 9."""
        result = c_int16()
        check(_library.quor_tc_typex_get_NumPoints(self._handle, byref(result)))
        return result.value

    @NumPoints.setter
    def NumPoints(self, value):
        check(_library.quor_tc_typex_put_NumPoints(self._handle, int16(value)))

    def get_Temperatures(self, Index):
        """The temperature of a deviation point, in the unit that TempScale names. An invalid index is reported to
        the user only; the call raises no error."""
        result = c_double()
        check(_library.quor_tc_typex_get_Temperatures(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Temperatures(self, Index, value):
        """The temperature of a deviation point, in the unit that TempScale names. An invalid index is reported to
        the user only; the call raises no error."""
        check(_library.quor_tc_typex_put_Temperatures(self._handle, int32(Index), double(value)))

    def get_Coefficients(self, Index):
        """A DC coefficient. Error 0x800401F5 for any other index."""
        result = c_double()
        check(_library.quor_tc_typex_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A DC coefficient. Error 0x800401F5 for any other index."""
        check(_library.quor_tc_typex_put_Coefficients(self._handle, int32(Index), double(value)))

    def get_Offsets(self, Index):
        """The offset of a deviation point, in the unit that OffsetScale names. An invalid index is reported to the
        user only; the call raises no error."""
        result = c_double()
        check(_library.quor_tc_typex_get_Offsets(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Offsets(self, Index, value):
        """The offset of a deviation point, in the unit that OffsetScale names. An invalid index is reported to the
        user only; the call raises no error."""
        check(_library.quor_tc_typex_put_Offsets(self._handle, int32(Index), double(value)))

    @property
    def TempFormat(self):
        """How the dialog shows temperatures. Never a change."""
        result = Text()
        check(_library.quor_tc_typex_get_TempFormat(self._handle, byref(result)))
        return result.take()

    @TempFormat.setter
    def TempFormat(self, value):
        check(_library.quor_tc_typex_put_TempFormat(self._handle, text(value)))

    @property
    def ValueFormat(self):
        """How the dialog shows DC coefficients. Never a change."""
        result = Text()
        check(_library.quor_tc_typex_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_tc_typex_put_ValueFormat(self._handle, text(value)))

    @property
    def OffsetFormat(self):
        """How the dialog shows offsets. Never a change."""
        result = Text()
        check(_library.quor_tc_typex_get_OffsetFormat(self._handle, byref(result)))
        return result.take()

    @OffsetFormat.setter
    def OffsetFormat(self, value):
        check(_library.quor_tc_typex_put_OffsetFormat(self._handle, text(value)))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_tc_typex_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self, tc=-2):
        """The name of a type, such as "K". -2: "TC Type " and the name of the current one."""
        result = Text()
        check(_library.quor_tc_typex_GetName(self._handle, int32(tc), byref(result)))
        return result.take()

    def FillPointsCombo(self, ctrl):
        """Fills a list with the counts that can be chosen, each with its number as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_tc_typex_FillPointsCombo(self._handle, ctrl_handle))

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_typex_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_typex_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_typex_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_typex_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class CQuorTCTypePoly(Object):
    """CQuorTCTypePoly"""

    __slots__ = ()

    def __init__(self, platform=None):
        result = c_uint64()
        with lent(platform) as platform_handle:
            check(_library.quor_tc_typepoly_create(platform_handle, byref(result)))
        self._own(result.value)

    @property
    def AllowEdit(self):
        """Whether dialogs may change values; True at first."""
        result = c_int16()
        check(_library.quor_tc_typepoly_get_AllowEdit(self._handle, byref(result)))
        return result.value != 0

    @AllowEdit.setter
    def AllowEdit(self, value):
        check(_library.quor_tc_typepoly_put_AllowEdit(self._handle, flag(value)))

    def SetRegistry(self, vData):
        """Sets the host's registry, which may be none."""
        with exchanged(vData) as vData_handle:
            check(_library.quor_tc_typepoly_SetRegistry(self._handle, byref(vData_handle)))

    @property
    def Registry(self):
        """The registry that was set; none at first."""
        result = c_uint64()
        check(_library.quor_tc_typepoly_get_Registry(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Changed(self):
        """Whether a value has changed since the host last cleared the flag. Saving does not clear it."""
        result = c_int16()
        check(_library.quor_tc_typepoly_get_Changed(self._handle, byref(result)))
        return result.value != 0

    @Changed.setter
    def Changed(self, value):
        check(_library.quor_tc_typepoly_put_Changed(self._handle, flag(value)))

    @property
    def FilePath(self):
        """The folder in which file dialogs start; empty at first."""
        result = Text()
        check(_library.quor_tc_typepoly_get_FilePath(self._handle, byref(result)))
        return result.take()

    @FilePath.setter
    def FilePath(self, value):
        check(_library.quor_tc_typepoly_put_FilePath(self._handle, text(value)))

    @property
    def NumCoefficients(self):
        """4 at first. A negative value is stored and then error 9."""
        result = c_int16()
        check(_library.quor_tc_typepoly_get_NumCoefficients(self._handle, byref(result)))
        return result.value

    @NumCoefficients.setter
    def NumCoefficients(self, value):
        check(_library.quor_tc_typepoly_put_NumCoefficients(self._handle, int16(value)))

    def get_Coefficients(self, Index):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        result = c_double()
        check(_library.quor_tc_typepoly_get_Coefficients(self._handle, int32(Index), byref(result)))
        return result.value

    def put_Coefficients(self, Index, value):
        """A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid
        index."""
        check(_library.quor_tc_typepoly_put_Coefficients(self._handle, int32(Index), double(value)))

    @property
    def ValueFormat(self):
        """How the dialog shows all coefficients. Never a change."""
        result = Text()
        check(_library.quor_tc_typepoly_get_ValueFormat(self._handle, byref(result)))
        return result.take()

    @ValueFormat.setter
    def ValueFormat(self, value):
        check(_library.quor_tc_typepoly_put_ValueFormat(self._handle, text(value)))

    @property
    def TCType(self):
        """The standard thermocouple type. Any value is stored."""
        result = c_int32()
        check(_library.quor_tc_typepoly_get_TCType(self._handle, byref(result)))
        return known(TCType, result.value)

    @TCType.setter
    def TCType(self, value):
        check(_library.quor_tc_typepoly_put_TCType(self._handle, int32(value)))

    def GetTCTypeName(self, tc=-2):
        """The name of a thermocouple type, such as "K". -2: of the current one."""
        result = Text()
        check(_library.quor_tc_typepoly_GetTCTypeName(self._handle, int32(tc), byref(result)))
        return result.take()

    def FillTCTypeNameCombo(self, ctrl):
        """Fills a list with the types that have names, each with its value as item data."""
        with lent(ctrl) as ctrl_handle:
            check(_library.quor_tc_typepoly_FillTCTypeNameCombo(self._handle, ctrl_handle))

    def Edit(self):
        """Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user."""
        result = c_int16()
        check(_library.quor_tc_typepoly_Edit(self._handle, byref(result)))
        return result.value != 0

    def GetName(self, tc=-2):
        """The name of a type, such as "K". -2: "TC Type " and the name of the current one."""
        result = Text()
        check(_library.quor_tc_typepoly_GetName(self._handle, int32(tc), byref(result)))
        return result.take()

    def OpenFile(self, hwnd, Filename):
        """Reads the settings file Filename, or the one that the user chooses. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_typepoly_OpenFile(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def SaveFileAs(self, hwnd, Filename):
        """Asks for a file and writes a settings file. False if the user cancelled."""
        Filename_out = Text()
        result = c_int16()
        check(_library.quor_tc_typepoly_SaveFileAs(self._handle, int32(hwnd), text(Filename), byref(Filename_out), byref(result)))
        return result.value != 0, Filename_out.take()

    def WriteToFile(self, INIFile, fname, secname):
        """Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not
        used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of
        ProbeFile, the call raises no error."""
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_typepoly_WriteToFile(self._handle, byref(INIFile_handle), text(fname), text(secname)))

    def ReadFromFile(self, INIFile, fname, secname):
        """Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is
        informed."""
        result = c_int16()
        with exchanged(INIFile) as INIFile_handle:
            check(_library.quor_tc_typepoly_ReadFromFile(self._handle, byref(INIFile_handle), text(fname), text(secname), byref(result)))
        return result.value != 0


class INIFile(Object):
    """An INI file: the built-in store, or one of a host (quor_inifile_from_host)."""

    __slots__ = ()

    def __init__(self):
        result = c_uint64()
        check(_library.quor_inifile_create(byref(result)))
        self._own(result.value)

    @property
    def FileName(self):
        """The file that the object is bound to. Setting it touches no file."""
        result = Text()
        check(_library.quor_inifile_get_FileName(self._handle, byref(result)))
        return result.take()

    @FileName.setter
    def FileName(self, value):
        check(_library.quor_inifile_put_FileName(self._handle, text(value)))

    @property
    def Section(self):
        """The section that reads and writes use."""
        result = Text()
        check(_library.quor_inifile_get_Section(self._handle, byref(result)))
        return result.take()

    @Section.setter
    def Section(self, value):
        check(_library.quor_inifile_put_Section(self._handle, text(value)))

    def ReadBoolean(self, Key, Value):
        """True if the key was found with a value of that type, which Value then is."""
        Value_out = c_int16(flag(Value))
        result = c_int16()
        check(_library.quor_inifile_ReadBoolean(self._handle, text(Key), byref(Value_out), byref(result)))
        return result.value != 0, Value_out.value != 0

    def ReadDouble(self, Key, Value):
        """True if the key was found with a value of that type, which Value then is."""
        Value_out = c_double(double(Value))
        result = c_int16()
        check(_library.quor_inifile_ReadDouble(self._handle, text(Key), byref(Value_out), byref(result)))
        return result.value != 0, Value_out.value

    def ReadInteger(self, Key, Value):
        """True if the key was found with a value of that type, which Value then is."""
        Value_out = c_int16(int16(Value))
        result = c_int16()
        check(_library.quor_inifile_ReadInteger(self._handle, text(Key), byref(Value_out), byref(result)))
        return result.value != 0, Value_out.value

    def ReadString(self, Key, Value):
        """True if the key was found; Value is then its text."""
        Value_out = Text()
        result = c_int16()
        check(_library.quor_inifile_ReadString(self._handle, text(Key), text(Value), byref(Value_out), byref(result)))
        return result.value != 0, Value_out.take()

    def WriteBoolean(self, Key, Value):
        """Writes a value under a key."""
        check(_library.quor_inifile_WriteBoolean(self._handle, text(Key), flag(Value)))

    def WriteDouble(self, Key, Value, Comment=""):
        """Writes a value under a key, followed by Comment in the file."""
        check(_library.quor_inifile_WriteDouble(self._handle, text(Key), double(Value), text(Comment)))

    def WriteInteger(self, Key, Value, Comment=""):
        """Writes a value under a key, followed by Comment in the file."""
        check(_library.quor_inifile_WriteInteger(self._handle, text(Key), int16(Value), text(Comment)))

    def WriteString(self, Key, Value):
        """Writes a value under a key."""
        check(_library.quor_inifile_WriteString(self._handle, text(Key), text(Value)))

    def Hold(self):
        """Opens a bracket: what is written in it becomes durable with the outermost Release."""
        check(_library.quor_inifile_Hold(self._handle))

    def Release(self):
        """Closes a bracket that Hold has opened."""
        check(_library.quor_inifile_Release(self._handle))

    def Abandon(self):
        """Closes a bracket instead of Release: nothing written since the outermost Hold is saved."""
        check(_library.quor_inifile_Abandon(self._handle))


class Registry(Object):
    """A registry: the built-in one, in a file of the application, or one of a host (quor_registry_from_host). Without a folder the built-in one is in the user's configuration folder."""

    __slots__ = ()

    def __init__(self, application, folder=""):
        result = c_uint64()
        check(_library.quor_registry_create(text(application), text(folder), byref(result)))
        self._own(result.value)

    def ReadValue(self, Section, Name, Value):
        """True if the value was found; Value is then its text."""
        Value_out = Text()
        result = c_int16()
        check(_library.quor_registry_ReadValue(self._handle, text(Section), text(Name), text(Value), byref(Value_out), byref(result)))
        return result.value != 0, Value_out.take()

    def WriteValue(self, Section, Name, Value):
        """Stores a value for later runs."""
        check(_library.quor_registry_WriteValue(self._handle, text(Section), text(Name), text(Value)))


class ListControl(Object):
    """A list of a host (quor_list_control_from_host)."""

    __slots__ = ()

    def Clear(self):
        """Removes all items."""
        check(_library.quor_list_control_Clear(self._handle))

    def AddItem(self, Item):
        """Adds an item at the end."""
        check(_library.quor_list_control_AddItem(self._handle, text(Item)))

    @property
    def NewIndex(self):
        """The index, from 0, of the item that was added last."""
        result = c_int32()
        check(_library.quor_list_control_get_NewIndex(self._handle, byref(result)))
        return result.value

    def put_ItemData(self, Index, value):
        """The number of an item."""
        check(_library.quor_list_control_put_ItemData(self._handle, int32(Index), int32(value)))


class Platform(Object):
    """The platform of a host (quor_platform_from_host), which is passed to the objects that the host creates."""

    __slots__ = ()


class Dialog(Object):
    """A running dialog, for the host that shows it: what it contains, and what the user does. The host calls Activate once its window is shown, and after that one member for each action of the user. Typing into a box is Focus, KeyPress for each key, and EditText with the new text; EditText alone sets a whole text. The buttons OK, Cancel and Help are cmdOKCancelHelp(0), (1) and (2); coefficients are txtCoefficients(0), (1) and so on; Controls and Name give the others."""

    __slots__ = ()

    @property
    def Name(self):
        """The name in the code: "frmCVDSettings", "txtCoefficients(2)"."""
        result = Text()
        check(_library.quor_dialog_get_Name(self._handle, byref(result)))
        return result.take()

    @property
    def Title(self):
        """The title of the window."""
        result = Text()
        check(_library.quor_dialog_get_Title(self._handle, byref(result)))
        return result.take()

    @property
    def HelpContext(self):
        """The context number of the dialog's help topic."""
        result = c_int32()
        check(_library.quor_dialog_get_HelpContext(self._handle, byref(result)))
        return result.value

    @property
    def ControlCount(self):
        """How many controls there are."""
        result = c_int32()
        check(_library.quor_dialog_get_ControlCount(self._handle, byref(result)))
        return result.value

    def get_Controls(self, Index):
        """A control, in tab order, from 0. The frames and labels are among them."""
        result = c_uint64()
        check(_library.quor_dialog_get_Controls(self._handle, int32(Index), byref(result)))
        return taken(result.value)

    def FindControl(self, Name):
        """The control with that name; none if there is none."""
        result = c_uint64()
        check(_library.quor_dialog_FindControl(self._handle, text(Name), byref(result)))
        return taken(result.value)

    @property
    def ColumnCount(self):
        """How many frames and button groups there are side by side."""
        result = c_int32()
        check(_library.quor_dialog_get_ColumnCount(self._handle, byref(result)))
        return result.value

    def get_Columns(self, Index):
        """A frame or button group, from left to right, from 0."""
        result = c_uint64()
        check(_library.quor_dialog_get_Columns(self._handle, int32(Index), byref(result)))
        return taken(result.value)

    @property
    def CancelButton(self):
        """The button that the Escape key presses; none if there is none."""
        result = c_uint64()
        check(_library.quor_dialog_get_CancelButton(self._handle, byref(result)))
        return taken(result.value)

    @property
    def WindowHandle(self):
        """The handle of the window while it is shown; 0 otherwise. The host that shows the window sets it."""
        result = c_int32()
        check(_library.quor_dialog_get_WindowHandle(self._handle, byref(result)))
        return result.value

    @WindowHandle.setter
    def WindowHandle(self, value):
        check(_library.quor_dialog_put_WindowHandle(self._handle, int32(value)))

    @property
    def HasPlace(self):
        """Whether the position of the window is known."""
        result = c_int16()
        check(_library.quor_dialog_get_HasPlace(self._handle, byref(result)))
        return result.value != 0

    @property
    def Left(self):
        """The position of the window, in units of the host; 0 if it is not known."""
        result = c_int32()
        check(_library.quor_dialog_get_Left(self._handle, byref(result)))
        return result.value

    @property
    def Top(self):
        """The position of the window, in units of the host; 0 if it is not known."""
        result = c_int32()
        check(_library.quor_dialog_get_Top(self._handle, byref(result)))
        return result.value

    def SetPlace(self, Left, Top):
        """Sets the position of the window."""
        check(_library.quor_dialog_SetPlace(self._handle, int32(Left), int32(Top)))

    @property
    def IsOpen(self):
        """False once the dialog was closed: run_dialog must return."""
        result = c_int16()
        check(_library.quor_dialog_get_IsOpen(self._handle, byref(result)))
        return result.value != 0

    @property
    def ActiveControl(self):
        """The control that has the focus; none before the first one has received it."""
        result = c_uint64()
        check(_library.quor_dialog_get_ActiveControl(self._handle, byref(result)))
        return taken(result.value)

    def Activate(self):
        """The window has become the active one. Call it once the window is shown."""
        check(_library.quor_dialog_Activate(self._handle))

    def Click(self, Button):
        """A push button was pressed."""
        with lent(Button) as Button_handle:
            check(_library.quor_dialog_Click(self._handle, Button_handle))

    def Choose(self, List, Index):
        """An item of a list was chosen."""
        with lent(List) as List_handle:
            check(_library.quor_dialog_Choose(self._handle, List_handle, int32(Index)))

    def SelectTab(self, Tabs, Index):
        """A tab was chosen."""
        with lent(Tabs) as Tabs_handle:
            check(_library.quor_dialog_SelectTab(self._handle, Tabs_handle, int32(Index)))

    def Focus(self, Control):
        """The user moved the focus to a control."""
        with lent(Control) as Control_handle:
            check(_library.quor_dialog_Focus(self._handle, Control_handle))

    def PressTab(self, Backwards=False):
        """The Tab key was pressed, with Shift if Backwards."""
        check(_library.quor_dialog_PressTab(self._handle, flag(Backwards)))

    def KeyPress(self, KeyAscii):
        """A key was pressed in the box that has the focus. Returns the key to use instead, or 0 for none."""
        result = c_int16()
        check(_library.quor_dialog_KeyPress(self._handle, int16(KeyAscii), byref(result)))
        return result.value

    def EditText(self, Box, Text, SelStart, SelLength):
        """The user has changed the text or the selection of a box; positions in characters (code points)."""
        with lent(Box) as Box_handle:
            check(_library.quor_dialog_EditText(self._handle, Box_handle, text(Text), int32(SelStart), int32(SelLength)))

    def Escape(self):
        """The Escape key was pressed."""
        check(_library.quor_dialog_Escape(self._handle))

    def Close(self):
        """The user closed the window by its frame."""
        check(_library.quor_dialog_Close(self._handle))

    def Paste(self, Box, Text):
        """Text was pasted into a box or dropped on it. It may also fill the following boxes."""
        with lent(Box) as Box_handle:
            check(_library.quor_dialog_Paste(self._handle, Box_handle, text(Text)))

    def Help(self):
        """The F1 key was pressed."""
        check(_library.quor_dialog_Help(self._handle))

    @property
    def HelpButton(self):
        """The button that the F1 key presses; none if there is none."""
        result = c_uint64()
        check(_library.quor_dialog_get_HelpButton(self._handle, byref(result)))
        return taken(result.value)

    @property
    def AdvisedBox(self):
        """The box whose advice should be shown; none if there is no advice."""
        result = c_uint64()
        check(_library.quor_dialog_get_AdvisedBox(self._handle, byref(result)))
        return taken(result.value)


class Control(Object):
    """A control of a running dialog. A member that its kind does not have is error 438."""

    __slots__ = ()

    @property
    def Name(self):
        """The name in the code: "frmCVDSettings", "txtCoefficients(2)"."""
        result = Text()
        check(_library.quor_control_get_Name(self._handle, byref(result)))
        return result.take()

    @property
    def Kind(self):
        """The kind of the control."""
        result = c_int32()
        check(_library.quor_control_get_Kind(self._handle, byref(result)))
        return known(ControlKind, result.value)

    @property
    def Caption(self):
        """The text on the control. "&" precedes the access key: "&OK"."""
        result = Text()
        check(_library.quor_control_get_Caption(self._handle, byref(result)))
        return result.take()

    @property
    def Enabled(self):
        """Whether the control is enabled."""
        result = c_int16()
        check(_library.quor_control_get_Enabled(self._handle, byref(result)))
        return result.value != 0

    @property
    def Visible(self):
        """Whether the control is visible itself; it may nevertheless be in a hidden frame: IsShown."""
        result = c_int16()
        check(_library.quor_control_get_Visible(self._handle, byref(result)))
        return result.value != 0

    @property
    def IsShown(self):
        """Whether the control and the frames around it are visible."""
        result = c_int16()
        check(_library.quor_control_get_IsShown(self._handle, byref(result)))
        return result.value != 0

    @property
    def IsUsable(self):
        """Whether the user can act on it."""
        result = c_int16()
        check(_library.quor_control_get_IsUsable(self._handle, byref(result)))
        return result.value != 0

    @property
    def Parent(self):
        """The frame around it; none if it is directly in the dialog."""
        result = c_uint64()
        check(_library.quor_control_get_Parent(self._handle, byref(result)))
        return taken(result.value)

    @property
    def Text(self):
        """The text of a text box."""
        result = Text()
        check(_library.quor_control_get_Text(self._handle, byref(result)))
        return result.take()

    @property
    def SelStart(self):
        """Where the selection of a text box begins, in characters (code points)."""
        result = c_int32()
        check(_library.quor_control_get_SelStart(self._handle, byref(result)))
        return result.value

    @property
    def SelLength(self):
        """How long the selection of a text box is, in characters (code points)."""
        result = c_int32()
        check(_library.quor_control_get_SelLength(self._handle, byref(result)))
        return result.value

    @property
    def ListCount(self):
        """How many items a list has."""
        result = c_int32()
        check(_library.quor_control_get_ListCount(self._handle, byref(result)))
        return result.value

    def get_List(self, Index):
        """The text of an item, from 0."""
        result = Text()
        check(_library.quor_control_get_List(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ItemData(self, Index):
        """The number of an item."""
        result = c_int32()
        check(_library.quor_control_get_ItemData(self._handle, int32(Index), byref(result)))
        return result.value

    @property
    def ListIndex(self):
        """The selected item of a list, from 0; -1 for none."""
        result = c_int32()
        check(_library.quor_control_get_ListIndex(self._handle, byref(result)))
        return result.value

    @property
    def RowCount(self):
        """How many rows a frame has."""
        result = c_int32()
        check(_library.quor_control_get_RowCount(self._handle, byref(result)))
        return result.value

    def get_RowLength(self, Row):
        """How many cells a row has; rows count from 0."""
        result = c_int32()
        check(_library.quor_control_get_RowLength(self._handle, int32(Row), byref(result)))
        return result.value

    def get_RowControls(self, Row, Place):
        """The control in a cell of a row, both from 0; none in an empty cell."""
        result = c_uint64()
        check(_library.quor_control_get_RowControls(self._handle, int32(Row), int32(Place), byref(result)))
        return taken(result.value)

    @property
    def TabCount(self):
        """How many tabs a strip has, including removed ones."""
        result = c_int32()
        check(_library.quor_control_get_TabCount(self._handle, byref(result)))
        return result.value

    def get_TabCaption(self, Index):
        """The caption of a tab, from 0."""
        result = Text()
        check(_library.quor_control_get_TabCaption(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_TabPresent(self, Index):
        """False for a tab that was removed."""
        result = c_int16()
        check(_library.quor_control_get_TabPresent(self._handle, int32(Index), byref(result)))
        return result.value != 0

    @property
    def SelectedTab(self):
        """The selected tab, from 0."""
        result = c_int32()
        check(_library.quor_control_get_SelectedTab(self._handle, byref(result)))
        return result.value

    @property
    def Advice(self):
        """What the user should know about the text of a box before it is stored; usually empty."""
        result = Text()
        check(_library.quor_control_get_Advice(self._handle, byref(result)))
        return result.take()


class ProbeFile(Object):
    """The probes of a host's file, or the one of a stand-alone settings file. A file that does not exist is error 53; one that may be new has no probes, and the first write creates it. What is written is durable when the call returns, and every call that writes holds the inter-process lock and works on the current file. All reads see the same text, the one that was loaded first or saved last, until Reload. Between Hold and Release nothing is written: Release does everything together, or, if one call fails, nothing, and raises the error of that call. A Source that such a call reads must exist until then. An error of a probe is 75 or the number of its cause; ErrorCode says which one it is."""

    __slots__ = ()

    def __init__(self, path, mayBeNew=False):
        result = c_uint64()
        check(_library.quor_probe_file_create(text(path), flag(mayBeNew), byref(result)))
        self._own(result.value)

    @property
    def Path(self):
        """The path with which the object was created."""
        result = Text()
        check(_library.quor_probe_file_get_Path(self._handle, byref(result)))
        return result.take()

    @property
    def IsReadOnly(self):
        """Whether a write would be refused because the user has no permission to write the file or its folder."""
        result = c_int16()
        check(_library.quor_probe_file_get_IsReadOnly(self._handle, byref(result)))
        return result.value != 0

    @property
    def ProbeCount(self):
        """How many probes there are."""
        result = c_int32()
        check(_library.quor_probe_file_get_ProbeCount(self._handle, byref(result)))
        return result.value

    def get_ProbeSection(self, Index):
        """The section of a probe, in the order of the file, from 0."""
        result = Text()
        check(_library.quor_probe_file_get_ProbeSection(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ProbeLine(self, Index):
        """The line of the header of a probe's section, from 1."""
        result = c_int32()
        check(_library.quor_probe_file_get_ProbeLine(self._handle, int32(Index), byref(result)))
        return result.value

    def get_ProbeType(self, Index):
        """The conversion type of a probe, CONV_NONE if HasType is False. It may be a code that is not a type."""
        result = c_int32()
        check(_library.quor_probe_file_get_ProbeType(self._handle, int32(Index), byref(result)))
        return known(ConversionType, result.value)

    def get_HasType(self, Index):
        """Whether the record of a probe has a type that can be read. False for a stand-alone one."""
        result = c_int16()
        check(_library.quor_probe_file_get_HasType(self._handle, int32(Index), byref(result)))
        return result.value != 0

    def get_IsStandAlone(self, Index):
        """Whether the section itself has the settings: the probe of a settings file."""
        result = c_int16()
        check(_library.quor_probe_file_get_IsStandAlone(self._handle, int32(Index), byref(result)))
        return result.value != 0

    def get_ConversionName(self, Index):
        """The name of a probe's conversion; empty where its type cannot be read."""
        result = Text()
        check(_library.quor_probe_file_get_ConversionName(self._handle, int32(Index), byref(result)))
        return result.take()

    def FindProbe(self, Section):
        """The index of the probe in a section, ignoring the case of ASCII letters; -1 if there is none."""
        result = c_int32()
        check(_library.quor_probe_file_FindProbe(self._handle, text(Section), byref(result)))
        return result.value

    def Read(self, Section, Conversion):
        """Reads a probe into a conversion, which receives its type. False if something was missing, for which it
        has the defaults: see ProblemCount."""
        result = c_int16()
        with lent(Conversion) as Conversion_handle:
            check(_library.quor_probe_file_Read(self._handle, text(Section), Conversion_handle, byref(result)))
        return result.value != 0

    def ReadAll(self):
        """The numbers of all probes at once."""
        result = c_uint64()
        check(_library.quor_probe_file_ReadAll(self._handle, byref(result)))
        return taken(result.value)

    def Check(self):
        """Finds everything that is wrong with the file and its probes. Returns the number of problems."""
        result = c_int32()
        check(_library.quor_probe_file_Check(self._handle, byref(result)))
        return result.value

    @property
    def ProblemCount(self):
        """How many problems the last Read or Check has found. They are kept until the next call that is not a get.
        The index of a problem counts from 0."""
        result = c_int32()
        check(_library.quor_probe_file_get_ProblemCount(self._handle, byref(result)))
        return result.value

    def get_ProblemKind(self, Index):
        """What is wrong."""
        result = c_int32()
        check(_library.quor_probe_file_get_ProblemKind(self._handle, int32(Index), byref(result)))
        return known(ProbeProblem, result.value)

    def get_ProblemLine(self, Index):
        """The line of a problem, from 1; 0 for a file beside it."""
        result = c_int32()
        check(_library.quor_probe_file_get_ProblemLine(self._handle, int32(Index), byref(result)))
        return result.value

    def get_ProblemSection(self, Index):
        """The section of a problem; empty if it has no name."""
        result = Text()
        check(_library.quor_probe_file_get_ProblemSection(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ProblemKey(self, Index):
        """The key of a problem; empty if it does not concern a single key."""
        result = Text()
        check(_library.quor_probe_file_get_ProblemKey(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ProblemText(self, Index):
        """What is wrong, for people, without the place."""
        result = Text()
        check(_library.quor_probe_file_get_ProblemText(self._handle, int32(Index), byref(result)))
        return result.take()

    @property
    def MessageCount(self):
        """How many messages of the library the last Read has collected instead of showing them. Their index counts
        from 0."""
        result = c_int32()
        check(_library.quor_probe_file_get_MessageCount(self._handle, byref(result)))
        return result.value

    def get_Messages(self, Index):
        """A message of the last Read, on one line."""
        result = Text()
        check(_library.quor_probe_file_get_Messages(self._handle, int32(Index), byref(result)))
        return result.take()

    def Write(self, Section, Conversion):
        """Writes a probe into a section, replacing the one there or as a new one: only the lines of values that
        differ change."""
        with lent(Conversion) as Conversion_handle:
            check(_library.quor_probe_file_Write(self._handle, text(Section), Conversion_handle))

    def WriteChanges(self, Section, Conversion):
        """Writes the values of a probe that have changed since this object has read them into the conversion, or
        has written them from it. What other programs have written elsewhere is kept, in later calls too. False
        if they have changed the same values: there are conflicts, and nothing is written. Error 5 for a
        conversion that this object has neither read nor written; error 75 (INCOMPLETE) if its settings had
        refused the record, whose keys are the problems; Write replaces it."""
        result = c_int16()
        with lent(Conversion) as Conversion_handle:
            check(_library.quor_probe_file_WriteChanges(self._handle, text(Section), Conversion_handle, byref(result)))
        return result.value != 0

    @property
    def ConflictCount(self):
        """How many values other programs have changed too, as found by the last WriteChanges, RequireUnchanged or
        Release. The index of a conflict counts from 0."""
        result = c_int32()
        check(_library.quor_probe_file_get_ConflictCount(self._handle, byref(result)))
        return result.value

    def get_ConflictSection(self, Index):
        """The section of such a value."""
        result = Text()
        check(_library.quor_probe_file_get_ConflictSection(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ConflictKey(self, Index):
        """The key of such a value; empty if the whole probe is concerned (RequireUnchanged)."""
        result = Text()
        check(_library.quor_probe_file_get_ConflictKey(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ConflictRead(self, Index):
        """The value that was read; empty for none."""
        result = Text()
        check(_library.quor_probe_file_get_ConflictRead(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ConflictTheirs(self, Index):
        """The value that the file has now; empty for none."""
        result = Text()
        check(_library.quor_probe_file_get_ConflictTheirs(self._handle, int32(Index), byref(result)))
        return result.take()

    def get_ConflictOurs(self, Index):
        """The value that should have been written."""
        result = Text()
        check(_library.quor_probe_file_get_ConflictOurs(self._handle, int32(Index), byref(result)))
        return result.take()

    def Rename(self, Section, Name):
        """Renames a probe and its settings sections."""
        check(_library.quor_probe_file_Rename(self._handle, text(Section), text(Name)))

    def Remove(self, Section):
        """Removes a probe and its settings sections. Comments that a blank line separates from it stay."""
        check(_library.quor_probe_file_Remove(self._handle, text(Section)))

    def Copy(self, Section, ToSection):
        """Copies the values of a probe into another section, which is new or has a probe of the same type."""
        check(_library.quor_probe_file_Copy(self._handle, text(Section), text(ToSection)))

    def CopyFrom(self, Source, Section, ToSection):
        """The same from another file, as it was loaded."""
        with lent(Source) as Source_handle:
            check(_library.quor_probe_file_CopyFrom(self._handle, Source_handle, text(Section), text(ToSection)))

    def Hold(self):
        """Opens a bracket: what is written in it becomes durable with the outermost Release."""
        check(_library.quor_probe_file_Hold(self._handle))

    def Release(self):
        """Closes a bracket that Hold has opened."""
        check(_library.quor_probe_file_Release(self._handle))

    def Abandon(self):
        """Closes a bracket instead of Release: nothing written since the outermost Hold is saved."""
        check(_library.quor_probe_file_Abandon(self._handle))

    def SaveAs(self, Path):
        """Replaces another file with the text of this one as it was last loaded or saved."""
        check(_library.quor_probe_file_SaveAs(self._handle, text(Path)))

    @property
    def Changed(self):
        """Whether another program has changed the file since it was loaded or saved, or has removed it."""
        result = c_int16()
        check(_library.quor_probe_file_get_Changed(self._handle, byref(result)))
        return result.value != 0

    def Reload(self):
        """Loads the current file."""
        check(_library.quor_probe_file_Reload(self._handle))

    @property
    def Store(self):
        """The store of the file, for its other sections."""
        result = c_uint64()
        check(_library.quor_probe_file_get_Store(self._handle, byref(result)))
        return taken(result.value)

    @property
    def ErrorCode(self):
        """Why the last call failed; 0 if it did not, or if the error does not concern a probe."""
        result = c_int32()
        check(_library.quor_probe_file_get_ErrorCode(self._handle, byref(result)))
        return known(ProbeFileError, result.value)

    @property
    def ErrorOther(self):
        """What else the error concerns: another probe or section, or a type; usually empty."""
        result = Text()
        check(_library.quor_probe_file_get_ErrorOther(self._handle, byref(result)))
        return result.take()

    def Differs(self, Section, Conversion):
        """Whether WriteChanges would write anything; for a conversion that this object has neither read nor
        written, whether it has another type or other values than the probe, as Read would give it."""
        result = c_int16()
        with lent(Conversion) as Conversion_handle:
            check(_library.quor_probe_file_Differs(self._handle, text(Section), Conversion_handle, byref(result)))
        return result.value != 0

    def RequireUnchanged(self, Section, Conversion):
        """Error 75 if the file has the probe with other values, or other lines that nothing reads, than this object
        has read into the conversion or, if it has not read it from there, than it had when it was loaded,
        reloaded or last written through this object (not by a call that failed, nor through Store); also if
        there was no such probe and now is, or the reverse. Between Hold and Release it is Release that looks and
        raises this, so that a Write or Remove overwrites nothing that another program has saved meanwhile.
        ConflictSection is then the probe."""
        with lent(Conversion) as Conversion_handle:
            check(_library.quor_probe_file_RequireUnchanged(self._handle, text(Section), Conversion_handle))


class ProbeTable(Object):
    """The numbers of all probes of a file in one array each, for hosts in languages with slow calls, as they were when ReadAll made it. The values of probe i begin where those of probe i - 1 end."""

    __slots__ = ()

    @property
    def ProbeCount(self):
        """How many probes there are."""
        result = c_int32()
        check(_library.quor_probe_table_get_ProbeCount(self._handle, byref(result)))
        return result.value

    @property
    def Sections(self):
        """The sections of the probes, each followed by a line feed (10)."""
        result = Text()
        check(_library.quor_probe_table_get_Sections(self._handle, byref(result)))
        return result.take()

    @property
    def Types(self):
        """The conversion type of each probe; CONV_NONE if it cannot be read."""
        result = Int32s()
        check(_library.quor_probe_table_get_Types(self._handle, byref(result)))
        return result.take()

    @property
    def ProblemCounts(self):
        """How many problems and messages there are with each probe; -1 for one that cannot be read."""
        result = Int32s()
        check(_library.quor_probe_table_get_ProblemCounts(self._handle, byref(result)))
        return result.take()

    @property
    def KeyLists(self):
        """The different lists of keys, with tabs between the keys, each list followed by a line feed (10)."""
        result = Text()
        check(_library.quor_probe_table_get_KeyLists(self._handle, byref(result)))
        return result.take()

    @property
    def KeyListOf(self):
        """Which list, from 0, names the values of each probe."""
        result = Int32s()
        check(_library.quor_probe_table_get_KeyListOf(self._handle, byref(result)))
        return result.take()

    @property
    def ValueEnds(self):
        """The index after the last value of each probe, where those of the next one begin."""
        result = Int32s()
        check(_library.quor_probe_table_get_ValueEnds(self._handle, byref(result)))
        return result.take()

    @property
    def Values(self):
        """The values of all probes; NaN where a value is missing or cannot be read, everywhere in a record that is
        refused as a whole. Booleans are 1 and 0; texts, such as units, are not included."""
        result = Doubles()
        check(_library.quor_probe_table_get_Values(self._handle, byref(result)))
        return result.take()


for _name, *_types in (
    ("quor_conversion_create", c_uint64, POINTER(c_uint64)),
    ("quor_conversion_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_conversion_put_AllowEdit", c_uint64, c_int16),
    ("quor_conversion_get_HelpFile", c_uint64, POINTER(Text)),
    ("quor_conversion_put_HelpFile", c_uint64, TextIn),
    ("quor_conversion_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_conversion_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_conversion_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_conversion_put_Changed", c_uint64, c_int16),
    ("quor_conversion_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_conversion_put_FilePath", c_uint64, TextIn),
    ("quor_conversion_get_Settings", c_uint64, POINTER(c_uint64)),
    ("quor_conversion_get_ConversionType", c_uint64, POINTER(c_int32)),
    ("quor_conversion_put_ConversionType", c_uint64, c_int32),
    ("quor_conversion_ConversionName", c_uint64, c_int32, POINTER(Text)),
    ("quor_conversion_Edit", c_uint64, POINTER(c_int16)),
    ("quor_conversion_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_conversion_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_its90_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_its90_put_AllowEdit", c_uint64, c_int16),
    ("quor_its90_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_its90_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_its90_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_its90_put_Changed", c_uint64, c_int16),
    ("quor_its90_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_its90_put_FilePath", c_uint64, TextIn),
    ("quor_its90_get_HighRange", c_uint64, POINTER(c_uint64)),
    ("quor_its90_get_LowRange", c_uint64, POINTER(c_uint64)),
    ("quor_its90_get_RTPW", c_uint64, POINTER(c_double)),
    ("quor_its90_put_RTPW", c_uint64, c_double),
    ("quor_its90_get_RTPWFormat", c_uint64, POINTER(Text)),
    ("quor_its90_put_RTPWFormat", c_uint64, TextIn),
    ("quor_its90_Edit", c_uint64, POINTER(c_int16)),
    ("quor_its90_GetName", c_uint64, POINTER(Text)),
    ("quor_its90_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_its90_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_its90_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_its90_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_its90_low_range_get_ShowCoefRange", c_uint64, POINTER(c_int16)),
    ("quor_its90_low_range_put_ShowCoefRange", c_uint64, c_int16),
    ("quor_its90_low_range_get_AllowChangeRange", c_uint64, POINTER(c_int16)),
    ("quor_its90_low_range_put_AllowChangeRange", c_uint64, c_int16),
    ("quor_its90_low_range_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_its90_low_range_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_its90_low_range_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_its90_low_range_put_Changed", c_uint64, c_int16),
    ("quor_its90_low_range_get_RangeEnabled", c_uint64, POINTER(c_int16)),
    ("quor_its90_low_range_put_RangeEnabled", c_uint64, c_int16),
    ("quor_its90_low_range_RangeName", c_uint64, c_int32, POINTER(Text)),
    ("quor_its90_low_range_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_its90_low_range_get_Range", c_uint64, POINTER(c_int32)),
    ("quor_its90_low_range_put_Range", c_uint64, c_int32),
    ("quor_its90_low_range_get_MaxRange", c_uint64, POINTER(c_int32)),
    ("quor_its90_low_range_put_MaxRange", c_uint64, c_int32),
    ("quor_its90_low_range_get_MinRange", c_uint64, POINTER(c_int32)),
    ("quor_its90_low_range_put_MinRange", c_uint64, c_int32),
    ("quor_its90_low_range_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_its90_low_range_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_its90_low_range_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_its90_low_range_put_ValueFormat", c_uint64, TextIn),
    ("quor_its90_low_range_FillRangeCombo", c_uint64, c_uint64),
    ("quor_its90_low_range_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_its90_low_range_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_its90_high_range_get_ShowCoefRange", c_uint64, POINTER(c_int16)),
    ("quor_its90_high_range_put_ShowCoefRange", c_uint64, c_int16),
    ("quor_its90_high_range_get_AllowChangeRange", c_uint64, POINTER(c_int16)),
    ("quor_its90_high_range_put_AllowChangeRange", c_uint64, c_int16),
    ("quor_its90_high_range_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_its90_high_range_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_its90_high_range_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_its90_high_range_put_Changed", c_uint64, c_int16),
    ("quor_its90_high_range_get_RangeEnabled", c_uint64, POINTER(c_int16)),
    ("quor_its90_high_range_put_RangeEnabled", c_uint64, c_int16),
    ("quor_its90_high_range_RangeName", c_uint64, c_int32, POINTER(Text)),
    ("quor_its90_high_range_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_its90_high_range_get_Range", c_uint64, POINTER(c_int32)),
    ("quor_its90_high_range_put_Range", c_uint64, c_int32),
    ("quor_its90_high_range_get_MaxRange", c_uint64, POINTER(c_int32)),
    ("quor_its90_high_range_put_MaxRange", c_uint64, c_int32),
    ("quor_its90_high_range_get_MinRange", c_uint64, POINTER(c_int32)),
    ("quor_its90_high_range_put_MinRange", c_uint64, c_int32),
    ("quor_its90_high_range_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_its90_high_range_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_its90_high_range_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_its90_high_range_put_ValueFormat", c_uint64, TextIn),
    ("quor_its90_high_range_FillRangeCombo", c_uint64, c_uint64),
    ("quor_its90_high_range_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_its90_high_range_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_ipts68_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_ipts68_put_AllowEdit", c_uint64, c_int16),
    ("quor_ipts68_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_ipts68_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_ipts68_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_ipts68_put_Changed", c_uint64, c_int16),
    ("quor_ipts68_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_ipts68_put_FilePath", c_uint64, TextIn),
    ("quor_ipts68_get_ScaleEnabled", c_uint64, POINTER(c_int16)),
    ("quor_ipts68_put_ScaleEnabled", c_uint64, c_int16),
    ("quor_ipts68_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_ipts68_get_IPTS68Scale", c_uint64, POINTER(c_int32)),
    ("quor_ipts68_put_IPTS68Scale", c_uint64, c_int32),
    ("quor_ipts68_IPTS68ScaleName", c_uint64, c_int32, POINTER(Text)),
    ("quor_ipts68_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_ipts68_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_ipts68_get_ValueFormat", c_uint64, c_int32, POINTER(Text)),
    ("quor_ipts68_put_ValueFormat", c_uint64, c_int32, TextIn),
    ("quor_ipts68_FillScaleCombo", c_uint64, c_uint64),
    ("quor_ipts68_Edit", c_uint64, POINTER(c_int16)),
    ("quor_ipts68_GetName", c_uint64, POINTER(Text)),
    ("quor_ipts68_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_ipts68_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_ipts68_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_ipts68_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_cvd_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_cvd_put_AllowEdit", c_uint64, c_int16),
    ("quor_cvd_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_cvd_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_cvd_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_cvd_put_Changed", c_uint64, c_int16),
    ("quor_cvd_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_cvd_put_NumCoefficients", c_uint64, c_int16),
    ("quor_cvd_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_cvd_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_cvd_get_UsePolynomial", c_uint64, POINTER(c_int16)),
    ("quor_cvd_put_UsePolynomial", c_uint64, c_int16),
    ("quor_cvd_get_ValueFormat", c_uint64, c_int32, POINTER(Text)),
    ("quor_cvd_put_ValueFormat", c_uint64, c_int32, TextIn),
    ("quor_cvd_MaxCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_cvd_Edit", c_uint64, POINTER(c_int16)),
    ("quor_cvd_GetName", c_uint64, POINTER(Text)),
    ("quor_cvd_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_cvd_put_FilePath", c_uint64, TextIn),
    ("quor_cvd_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_cvd_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_cvd_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_cvd_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_pt100_create", c_uint64, POINTER(c_uint64)),
    ("quor_pt100_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_pt100_put_AllowEdit", c_uint64, c_int16),
    ("quor_pt100_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_pt100_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_pt100_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_pt100_put_Changed", c_uint64, c_int16),
    ("quor_pt100_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_pt100_put_NumCoefficients", c_uint64, c_int16),
    ("quor_pt100_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_pt100_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_pt100_get_ValueFormat", c_uint64, c_int32, POINTER(Text)),
    ("quor_pt100_put_ValueFormat", c_uint64, c_int32, TextIn),
    ("quor_pt100_MaxCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_pt100_Edit", c_uint64, POINTER(c_int16)),
    ("quor_pt100_GetName", c_uint64, POINTER(Text)),
    ("quor_pt100_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_pt100_put_FilePath", c_uint64, TextIn),
    ("quor_pt100_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_pt100_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_pt100_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_pt100_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_htprt_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_htprt_put_AllowEdit", c_uint64, c_int16),
    ("quor_htprt_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_htprt_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_htprt_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_htprt_put_Changed", c_uint64, c_int16),
    ("quor_htprt_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_htprt_put_FilePath", c_uint64, TextIn),
    ("quor_htprt_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_htprt_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_htprt_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_htprt_get_ValueFormat", c_uint64, c_int32, POINTER(Text)),
    ("quor_htprt_put_ValueFormat", c_uint64, c_int32, TextIn),
    ("quor_htprt_Edit", c_uint64, POINTER(c_int16)),
    ("quor_htprt_GetName", c_uint64, POINTER(Text)),
    ("quor_htprt_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_htprt_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_htprt_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_htprt_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_wt90_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_wt90_put_AllowEdit", c_uint64, c_int16),
    ("quor_wt90_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_wt90_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_wt90_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_wt90_put_Changed", c_uint64, c_int16),
    ("quor_wt90_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_wt90_put_FilePath", c_uint64, TextIn),
    ("quor_wt90_get_RTPW", c_uint64, POINTER(c_double)),
    ("quor_wt90_put_RTPW", c_uint64, c_double),
    ("quor_wt90_get_RTPWFormat", c_uint64, POINTER(Text)),
    ("quor_wt90_put_RTPWFormat", c_uint64, TextIn),
    ("quor_wt90_Edit", c_uint64, POINTER(c_int16)),
    ("quor_wt90_GetName", c_uint64, POINTER(Text)),
    ("quor_wt90_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_wt90_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_wt90_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_wt90_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_thermistor_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_thermistor_put_AllowEdit", c_uint64, c_int16),
    ("quor_thermistor_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_thermistor_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_thermistor_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_thermistor_put_Changed", c_uint64, c_int16),
    ("quor_thermistor_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_thermistor_put_FilePath", c_uint64, TextIn),
    ("quor_thermistor_get_ConvType", c_uint64, POINTER(c_int32)),
    ("quor_thermistor_put_ConvType", c_uint64, c_int32),
    ("quor_thermistor_ConvName", c_uint64, c_int32, POINTER(Text)),
    ("quor_thermistor_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_thermistor_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_thermistor_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_thermistor_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_thermistor_put_ValueFormat", c_uint64, TextIn),
    ("quor_thermistor_Edit", c_uint64, POINTER(c_int16)),
    ("quor_thermistor_GetName", c_uint64, POINTER(Text)),
    ("quor_thermistor_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_thermistor_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_thermistor_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_thermistor_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_polynomial_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_put_AllowEdit", c_uint64, c_int16),
    ("quor_polynomial_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_polynomial_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_polynomial_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_put_Changed", c_uint64, c_int16),
    ("quor_polynomial_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_polynomial_put_FilePath", c_uint64, TextIn),
    ("quor_polynomial_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_get_Order", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_put_Order", c_uint64, c_int16),
    ("quor_polynomial_get_MinOrder", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_get_MaxOrder", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_polynomial_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_polynomial_put_ValueFormat", c_uint64, TextIn),
    ("quor_polynomial_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_polynomial_Edit", c_uint64, POINTER(c_int16)),
    ("quor_polynomial_GetName", c_uint64, POINTER(Text)),
    ("quor_polynomial_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_polynomial_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_polynomial_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_polynomial_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_polynomial_put_CoefficientLabelPrefix", c_uint64, TextIn),
    ("quor_polynomial_get_CoefficientLabelPrefix", c_uint64, POINTER(Text)),
    ("quor_tc_polynomial_get_mV25CFormat", c_uint64, POINTER(Text)),
    ("quor_tc_polynomial_put_mV25CFormat", c_uint64, TextIn),
    ("quor_tc_polynomial_get_mV25C", c_uint64, POINTER(c_double)),
    ("quor_tc_polynomial_put_mV25C", c_uint64, c_double),
    ("quor_tc_polynomial_get_ShowmV25C", c_uint64, POINTER(c_int16)),
    ("quor_tc_polynomial_put_ShowmV25C", c_uint64, c_int16),
    ("quor_tc_polynomial_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_tc_polynomial_put_AllowEdit", c_uint64, c_int16),
    ("quor_tc_polynomial_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_polynomial_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_polynomial_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_tc_polynomial_put_Changed", c_uint64, c_int16),
    ("quor_tc_polynomial_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_tc_polynomial_put_FilePath", c_uint64, TextIn),
    ("quor_tc_polynomial_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_tc_polynomial_put_NumCoefficients", c_uint64, c_int16),
    ("quor_tc_polynomial_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_polynomial_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_tc_polynomial_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_tc_polynomial_put_ValueFormat", c_uint64, TextIn),
    ("quor_tc_polynomial_Edit", c_uint64, POINTER(c_int16)),
    ("quor_tc_polynomial_GetName", c_uint64, POINTER(Text)),
    ("quor_tc_polynomial_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_polynomial_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_polynomial_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_tc_polynomial_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_tc_table_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_tc_table_put_AllowEdit", c_uint64, c_int16),
    ("quor_tc_table_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_table_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_table_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_tc_table_put_Changed", c_uint64, c_int16),
    ("quor_tc_table_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_tc_table_put_FilePath", c_uint64, TextIn),
    ("quor_tc_table_get_NumPoints", c_uint64, POINTER(c_int16)),
    ("quor_tc_table_put_NumPoints", c_uint64, c_int16),
    ("quor_tc_table_get_Temperatures", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_table_put_Temperatures", c_uint64, c_int32, c_double),
    ("quor_tc_table_get_Voltages", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_table_put_Voltages", c_uint64, c_int32, c_double),
    ("quor_tc_table_get_TempFormat", c_uint64, POINTER(Text)),
    ("quor_tc_table_put_TempFormat", c_uint64, TextIn),
    ("quor_tc_table_get_VoltageFormat", c_uint64, POINTER(Text)),
    ("quor_tc_table_put_VoltageFormat", c_uint64, TextIn),
    ("quor_tc_table_get_TempScale", c_uint64, POINTER(Text)),
    ("quor_tc_table_put_TempScale", c_uint64, TextIn),
    ("quor_tc_table_get_VoltageScale", c_uint64, POINTER(Text)),
    ("quor_tc_table_put_VoltageScale", c_uint64, TextIn),
    ("quor_tc_table_Edit", c_uint64, POINTER(c_int16)),
    ("quor_tc_table_GetName", c_uint64, POINTER(Text)),
    ("quor_tc_table_FillPointsCombo", c_uint64, c_uint64),
    ("quor_tc_table_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_table_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_table_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_tc_table_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_tc_typex_get_ShowDCCoefs", c_uint64, POINTER(c_int16)),
    ("quor_tc_typex_put_ShowDCCoefs", c_uint64, c_int16),
    ("quor_tc_typex_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_tc_typex_put_AllowEdit", c_uint64, c_int16),
    ("quor_tc_typex_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_typex_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_typex_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_tc_typex_put_Changed", c_uint64, c_int16),
    ("quor_tc_typex_get_TempScale", c_uint64, POINTER(Text)),
    ("quor_tc_typex_put_TempScale", c_uint64, TextIn),
    ("quor_tc_typex_get_OffsetScale", c_uint64, POINTER(Text)),
    ("quor_tc_typex_put_OffsetScale", c_uint64, TextIn),
    ("quor_tc_typex_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_tc_typex_put_FilePath", c_uint64, TextIn),
    ("quor_tc_typex_get_TCType", c_uint64, POINTER(c_int32)),
    ("quor_tc_typex_put_TCType", c_uint64, c_int32),
    ("quor_tc_typex_GetTCTypeName", c_uint64, c_int32, POINTER(Text)),
    ("quor_tc_typex_FillTCTypeNameCombo", c_uint64, c_uint64),
    ("quor_tc_typex_get_NumPoints", c_uint64, POINTER(c_int16)),
    ("quor_tc_typex_put_NumPoints", c_uint64, c_int16),
    ("quor_tc_typex_get_Temperatures", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_typex_put_Temperatures", c_uint64, c_int32, c_double),
    ("quor_tc_typex_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_typex_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_tc_typex_get_Offsets", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_typex_put_Offsets", c_uint64, c_int32, c_double),
    ("quor_tc_typex_get_TempFormat", c_uint64, POINTER(Text)),
    ("quor_tc_typex_put_TempFormat", c_uint64, TextIn),
    ("quor_tc_typex_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_tc_typex_put_ValueFormat", c_uint64, TextIn),
    ("quor_tc_typex_get_OffsetFormat", c_uint64, POINTER(Text)),
    ("quor_tc_typex_put_OffsetFormat", c_uint64, TextIn),
    ("quor_tc_typex_Edit", c_uint64, POINTER(c_int16)),
    ("quor_tc_typex_GetName", c_uint64, c_int32, POINTER(Text)),
    ("quor_tc_typex_FillPointsCombo", c_uint64, c_uint64),
    ("quor_tc_typex_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_typex_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_typex_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_tc_typex_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_tc_typepoly_create", c_uint64, POINTER(c_uint64)),
    ("quor_tc_typepoly_get_AllowEdit", c_uint64, POINTER(c_int16)),
    ("quor_tc_typepoly_put_AllowEdit", c_uint64, c_int16),
    ("quor_tc_typepoly_SetRegistry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_typepoly_get_Registry", c_uint64, POINTER(c_uint64)),
    ("quor_tc_typepoly_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_tc_typepoly_put_Changed", c_uint64, c_int16),
    ("quor_tc_typepoly_get_FilePath", c_uint64, POINTER(Text)),
    ("quor_tc_typepoly_put_FilePath", c_uint64, TextIn),
    ("quor_tc_typepoly_get_NumCoefficients", c_uint64, POINTER(c_int16)),
    ("quor_tc_typepoly_put_NumCoefficients", c_uint64, c_int16),
    ("quor_tc_typepoly_get_Coefficients", c_uint64, c_int32, POINTER(c_double)),
    ("quor_tc_typepoly_put_Coefficients", c_uint64, c_int32, c_double),
    ("quor_tc_typepoly_get_ValueFormat", c_uint64, POINTER(Text)),
    ("quor_tc_typepoly_put_ValueFormat", c_uint64, TextIn),
    ("quor_tc_typepoly_get_TCType", c_uint64, POINTER(c_int32)),
    ("quor_tc_typepoly_put_TCType", c_uint64, c_int32),
    ("quor_tc_typepoly_GetTCTypeName", c_uint64, c_int32, POINTER(Text)),
    ("quor_tc_typepoly_FillTCTypeNameCombo", c_uint64, c_uint64),
    ("quor_tc_typepoly_Edit", c_uint64, POINTER(c_int16)),
    ("quor_tc_typepoly_GetName", c_uint64, c_int32, POINTER(Text)),
    ("quor_tc_typepoly_OpenFile", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_typepoly_SaveFileAs", c_uint64, c_int32, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_tc_typepoly_WriteToFile", c_uint64, POINTER(c_uint64), TextIn, TextIn),
    ("quor_tc_typepoly_ReadFromFile", c_uint64, POINTER(c_uint64), TextIn, TextIn, POINTER(c_int16)),
    ("quor_inifile_create", POINTER(c_uint64)),
    ("quor_inifile_put_FileName", c_uint64, TextIn),
    ("quor_inifile_get_FileName", c_uint64, POINTER(Text)),
    ("quor_inifile_put_Section", c_uint64, TextIn),
    ("quor_inifile_get_Section", c_uint64, POINTER(Text)),
    ("quor_inifile_ReadBoolean", c_uint64, TextIn, POINTER(c_int16), POINTER(c_int16)),
    ("quor_inifile_ReadDouble", c_uint64, TextIn, POINTER(c_double), POINTER(c_int16)),
    ("quor_inifile_ReadInteger", c_uint64, TextIn, POINTER(c_int16), POINTER(c_int16)),
    ("quor_inifile_ReadString", c_uint64, TextIn, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_inifile_WriteBoolean", c_uint64, TextIn, c_int16),
    ("quor_inifile_WriteDouble", c_uint64, TextIn, c_double, TextIn),
    ("quor_inifile_WriteInteger", c_uint64, TextIn, c_int16, TextIn),
    ("quor_inifile_WriteString", c_uint64, TextIn, TextIn),
    ("quor_inifile_Hold", c_uint64),
    ("quor_inifile_Release", c_uint64),
    ("quor_inifile_Abandon", c_uint64),
    ("quor_registry_create", TextIn, TextIn, POINTER(c_uint64)),
    ("quor_registry_ReadValue", c_uint64, TextIn, TextIn, TextIn, POINTER(Text), POINTER(c_int16)),
    ("quor_registry_WriteValue", c_uint64, TextIn, TextIn, TextIn),
    ("quor_list_control_Clear", c_uint64),
    ("quor_list_control_AddItem", c_uint64, TextIn),
    ("quor_list_control_get_NewIndex", c_uint64, POINTER(c_int32)),
    ("quor_list_control_put_ItemData", c_uint64, c_int32, c_int32),
    ("quor_dialog_get_Name", c_uint64, POINTER(Text)),
    ("quor_dialog_get_Title", c_uint64, POINTER(Text)),
    ("quor_dialog_get_HelpContext", c_uint64, POINTER(c_int32)),
    ("quor_dialog_get_ControlCount", c_uint64, POINTER(c_int32)),
    ("quor_dialog_get_Controls", c_uint64, c_int32, POINTER(c_uint64)),
    ("quor_dialog_FindControl", c_uint64, TextIn, POINTER(c_uint64)),
    ("quor_dialog_get_ColumnCount", c_uint64, POINTER(c_int32)),
    ("quor_dialog_get_Columns", c_uint64, c_int32, POINTER(c_uint64)),
    ("quor_dialog_get_CancelButton", c_uint64, POINTER(c_uint64)),
    ("quor_dialog_get_WindowHandle", c_uint64, POINTER(c_int32)),
    ("quor_dialog_put_WindowHandle", c_uint64, c_int32),
    ("quor_dialog_get_HasPlace", c_uint64, POINTER(c_int16)),
    ("quor_dialog_get_Left", c_uint64, POINTER(c_int32)),
    ("quor_dialog_get_Top", c_uint64, POINTER(c_int32)),
    ("quor_dialog_SetPlace", c_uint64, c_int32, c_int32),
    ("quor_dialog_get_IsOpen", c_uint64, POINTER(c_int16)),
    ("quor_dialog_get_ActiveControl", c_uint64, POINTER(c_uint64)),
    ("quor_dialog_Activate", c_uint64),
    ("quor_dialog_Click", c_uint64, c_uint64),
    ("quor_dialog_Choose", c_uint64, c_uint64, c_int32),
    ("quor_dialog_SelectTab", c_uint64, c_uint64, c_int32),
    ("quor_dialog_Focus", c_uint64, c_uint64),
    ("quor_dialog_PressTab", c_uint64, c_int16),
    ("quor_dialog_KeyPress", c_uint64, c_int16, POINTER(c_int16)),
    ("quor_dialog_EditText", c_uint64, c_uint64, TextIn, c_int32, c_int32),
    ("quor_dialog_Escape", c_uint64),
    ("quor_dialog_Close", c_uint64),
    ("quor_dialog_Paste", c_uint64, c_uint64, TextIn),
    ("quor_dialog_Help", c_uint64),
    ("quor_dialog_get_HelpButton", c_uint64, POINTER(c_uint64)),
    ("quor_dialog_get_AdvisedBox", c_uint64, POINTER(c_uint64)),
    ("quor_control_get_Name", c_uint64, POINTER(Text)),
    ("quor_control_get_Kind", c_uint64, POINTER(c_int32)),
    ("quor_control_get_Caption", c_uint64, POINTER(Text)),
    ("quor_control_get_Enabled", c_uint64, POINTER(c_int16)),
    ("quor_control_get_Visible", c_uint64, POINTER(c_int16)),
    ("quor_control_get_IsShown", c_uint64, POINTER(c_int16)),
    ("quor_control_get_IsUsable", c_uint64, POINTER(c_int16)),
    ("quor_control_get_Parent", c_uint64, POINTER(c_uint64)),
    ("quor_control_get_Text", c_uint64, POINTER(Text)),
    ("quor_control_get_SelStart", c_uint64, POINTER(c_int32)),
    ("quor_control_get_SelLength", c_uint64, POINTER(c_int32)),
    ("quor_control_get_ListCount", c_uint64, POINTER(c_int32)),
    ("quor_control_get_List", c_uint64, c_int32, POINTER(Text)),
    ("quor_control_get_ItemData", c_uint64, c_int32, POINTER(c_int32)),
    ("quor_control_get_ListIndex", c_uint64, POINTER(c_int32)),
    ("quor_control_get_RowCount", c_uint64, POINTER(c_int32)),
    ("quor_control_get_RowLength", c_uint64, c_int32, POINTER(c_int32)),
    ("quor_control_get_RowControls", c_uint64, c_int32, c_int32, POINTER(c_uint64)),
    ("quor_control_get_TabCount", c_uint64, POINTER(c_int32)),
    ("quor_control_get_TabCaption", c_uint64, c_int32, POINTER(Text)),
    ("quor_control_get_TabPresent", c_uint64, c_int32, POINTER(c_int16)),
    ("quor_control_get_SelectedTab", c_uint64, POINTER(c_int32)),
    ("quor_control_get_Advice", c_uint64, POINTER(Text)),
    ("quor_probe_file_create", TextIn, c_int16, POINTER(c_uint64)),
    ("quor_probe_file_get_Path", c_uint64, POINTER(Text)),
    ("quor_probe_file_get_IsReadOnly", c_uint64, POINTER(c_int16)),
    ("quor_probe_file_get_ProbeCount", c_uint64, POINTER(c_int32)),
    ("quor_probe_file_get_ProbeSection", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ProbeLine", c_uint64, c_int32, POINTER(c_int32)),
    ("quor_probe_file_get_ProbeType", c_uint64, c_int32, POINTER(c_int32)),
    ("quor_probe_file_get_HasType", c_uint64, c_int32, POINTER(c_int16)),
    ("quor_probe_file_get_IsStandAlone", c_uint64, c_int32, POINTER(c_int16)),
    ("quor_probe_file_get_ConversionName", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_FindProbe", c_uint64, TextIn, POINTER(c_int32)),
    ("quor_probe_file_Read", c_uint64, TextIn, c_uint64, POINTER(c_int16)),
    ("quor_probe_file_ReadAll", c_uint64, POINTER(c_uint64)),
    ("quor_probe_file_Check", c_uint64, POINTER(c_int32)),
    ("quor_probe_file_get_ProblemCount", c_uint64, POINTER(c_int32)),
    ("quor_probe_file_get_ProblemKind", c_uint64, c_int32, POINTER(c_int32)),
    ("quor_probe_file_get_ProblemLine", c_uint64, c_int32, POINTER(c_int32)),
    ("quor_probe_file_get_ProblemSection", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ProblemKey", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ProblemText", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_MessageCount", c_uint64, POINTER(c_int32)),
    ("quor_probe_file_get_Messages", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_Write", c_uint64, TextIn, c_uint64),
    ("quor_probe_file_WriteChanges", c_uint64, TextIn, c_uint64, POINTER(c_int16)),
    ("quor_probe_file_get_ConflictCount", c_uint64, POINTER(c_int32)),
    ("quor_probe_file_get_ConflictSection", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ConflictKey", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ConflictRead", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ConflictTheirs", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_get_ConflictOurs", c_uint64, c_int32, POINTER(Text)),
    ("quor_probe_file_Rename", c_uint64, TextIn, TextIn),
    ("quor_probe_file_Remove", c_uint64, TextIn),
    ("quor_probe_file_Copy", c_uint64, TextIn, TextIn),
    ("quor_probe_file_CopyFrom", c_uint64, c_uint64, TextIn, TextIn),
    ("quor_probe_file_Hold", c_uint64),
    ("quor_probe_file_Release", c_uint64),
    ("quor_probe_file_Abandon", c_uint64),
    ("quor_probe_file_SaveAs", c_uint64, TextIn),
    ("quor_probe_file_get_Changed", c_uint64, POINTER(c_int16)),
    ("quor_probe_file_Reload", c_uint64),
    ("quor_probe_file_get_Store", c_uint64, POINTER(c_uint64)),
    ("quor_probe_file_get_ErrorCode", c_uint64, POINTER(c_int32)),
    ("quor_probe_file_get_ErrorOther", c_uint64, POINTER(Text)),
    ("quor_probe_file_Differs", c_uint64, TextIn, c_uint64, POINTER(c_int16)),
    ("quor_probe_file_RequireUnchanged", c_uint64, TextIn, c_uint64),
    ("quor_probe_table_get_ProbeCount", c_uint64, POINTER(c_int32)),
    ("quor_probe_table_get_Sections", c_uint64, POINTER(Text)),
    ("quor_probe_table_get_Types", c_uint64, POINTER(Int32s)),
    ("quor_probe_table_get_ProblemCounts", c_uint64, POINTER(Int32s)),
    ("quor_probe_table_get_KeyLists", c_uint64, POINTER(Text)),
    ("quor_probe_table_get_KeyListOf", c_uint64, POINTER(Int32s)),
    ("quor_probe_table_get_ValueEnds", c_uint64, POINTER(Int32s)),
    ("quor_probe_table_get_Values", c_uint64, POINTER(Doubles)),
):
    declare(_name, _types)

for _class in (CQuorConversion, CQuorITS90, CQuorITS90LowRange, CQuorITS90HighRange, CQuorIPTS68, CQuorCVD, CQuorPT100, CQuorHTPRT, CQuorWT90, CQuorThermistor, CQuorPolynomial, CQuorTCPolynomial, CQuorTCTable, CQuorTCTypeX, CQuorTCTypePoly, INIFile, Registry, ListControl, Platform, Dialog, Control, ProbeFile, ProbeTable):
    wrap_as(_class.__name__, _class)
