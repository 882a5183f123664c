"""Conversions of precision thermometer probes, kept in INI files: read, edited and saved::

    from quorconversions import ProbeFile

    with ProbeFile("laboratory.ini") as file:
        file["Probe 9 PRT-1182"].settings.R0 = 100.0123  # ohms

It calls the library libquor through ctypes. Use an object in one thread at a time; objects that refer to each other (a
conversion, its settings, a platform) count as one. Unrelated objects may be used in different threads."""

from ._host import FileRequest, INIFile, ListControl, Message, Platform, Registry
from ._low import (Control, ControlKind, ConversionType, CVDCoefficients, Dialog, FileDialogKind, HTPRTCoefficients,
                   IPTS68Coefficients, IPTS68Scale, ITS90HighRangeCoefficients, ITS90LowRangeCoefficients, ITS90RangeHL,
                   ITS90RangeNumber, MessageIcon, MousePointer, PolynomialCoefficients, ProbeProblem, PT100Coefficients,
                   TCPolynomialCoefficients, TCTableCoefficients, TCType, TCTypeXCoefficients, ThermistorCoefficients,
                   ThermistorConvType)
from ._low import INIFile as INIStore
from ._low import ProbeFileError as ProbeFileErrorCode
from ._low import Registry as FileRegistry
from ._probefile import (Conflict, ConflictError, IncompleteProbeError, Problem, ProbeFile, ProbeFileError, ProbeTable)
from ._runtime import QuorError, handle_count, version
from ._settings import (CVD, HTPRT, IPTS68, ITS90, PT100, WT90, Conversion, ITS90HighRange, ITS90LowRange, Polynomial,
                        Settings, TCPolynomial, TCTable, TCTypePoly, TCTypeX, Thermistor, Values, allow_nan)

__all__ = [
    "CVD", "CVDCoefficients", "Conflict", "ConflictError", "Control", "ControlKind", "Conversion", "ConversionType",
    "Dialog", "FileDialogKind", "FileRegistry", "FileRequest", "HTPRT", "HTPRTCoefficients", "INIFile", "INIStore",
    "IPTS68", "IPTS68Coefficients", "IPTS68Scale", "ITS90", "ITS90HighRange", "ITS90HighRangeCoefficients",
    "ITS90LowRange", "ITS90LowRangeCoefficients", "ITS90RangeHL", "ITS90RangeNumber", "IncompleteProbeError",
    "ListControl", "Message", "MessageIcon", "MousePointer", "PT100", "PT100Coefficients", "Platform", "Polynomial",
    "PolynomialCoefficients", "ProbeFile", "ProbeFileError", "ProbeFileErrorCode", "ProbeProblem", "ProbeTable",
    "Problem", "QuorError", "Registry", "Settings", "TCPolynomial", "TCPolynomialCoefficients", "TCTable",
    "TCTableCoefficients", "TCType", "TCTypePoly", "TCTypeX", "TCTypeXCoefficients", "Thermistor",
    "ThermistorCoefficients", "ThermistorConvType", "Values", "WT90", "allow_nan", "handle_count",
    "version",
]
