#include "QuorProbeFile/ProbeWarning.h"

#include "QuorProbeFile/RecordValue.h"

#include <algorithm>

namespace QuorProbeFile {

namespace {

/// The limit of an interval in words.
std::wstring LimitText(double least, double most) {
    return least == -most ? L"at most " + ToText(most) + L" in size" : ToText(least) + L" to " + ToText(most);
}

ProbeWarning Size(EProbeProblem kind, std::wstring id, std::wstring what, double least, double most,
                  std::wstring source) {
    return {kind, std::move(id), std::move(what), LimitText(least, most), std::move(source), least, most};
}

} // namespace

// Limits are wide: what is beyond one is another unit, another row or a lost exponent, no odd probe. Numbers
// of the ITS-90 deviation are solved at the tin and zinc points for platinum whose ALPHA and DELTA are at
// their own limits, and rounded outwards.
const std::vector<ProbeWarning>& Warnings() {
    static const std::vector<ProbeWarning> warnings{
        {WARNING_R0_NOT_POSITIVE, L"r0-not-positive", L"R0 of Callendar-Van Dusen, PT100 and IPTS-68",
         L"above 0", L"IEC 60751, IPTS-68: R(t) is R0 times a function of t; R0 is a resistance"},
        {WARNING_RTPW_NOT_POSITIVE, L"rtpw-not-positive", L"RTPW of ITS-90, high-temperature PRT and W(T90)",
         L"above 0", L"ITS-90: W is R divided by R(273.16 K), a resistance"},
        {WARNING_NOT_FINITE, L"not-finite", L"each number of a record", L"no NaN, no infinity",
         L"IEEE 754: what is computed with them is NaN, infinity or 0, and no temperature"},
        {WARNING_COEFFICIENTS_ALL_ZERO, L"coefficients-all-zero",
         L"coefficients of a probe, and of each range; R0, RTPW, DC1 and DC2 are left out", L"not all 0",
         L"new settings have zeros: nothing was entered"},
        {WARNING_TEMPERATURES_NOT_INCREASING, L"temperatures-not-increasing",
         L"temperatures of thermocouple tables, and of deviation points; at the end deviation points of 0 at "
         L"0 \u00B0C are left out",
         L"each above the one before", L"interpolation: two points are different, and in order"},
        {WARNING_RANGE_DOES_NOT_FIT, L"range-does-not-fit",
         L"coefficients beside an ITS-90 range that the range does not have", L"absent or 0",
         L"ITS-90: a range has the coefficients of its deviation function"},
        Size(WARNING_ALPHA_SIZE, L"alpha-size", L"ALPHA of Callendar-Van Dusen and IPTS-68, in 1/\u00B0C",
             0.0037, 0.004, L"IEC 60751: 3.85055E-3; IPTS-68: at least 3.925E-3 for pure platinum"),
        Size(WARNING_DELTA_SIZE, L"delta-size", L"DELTA of Callendar-Van Dusen and IPTS-68, in \u00B0C", 0.75,
             3.0, L"IEC 60751: 1.4998; half to twice that"),
        Size(WARNING_BETA_SIZE, L"beta-size", L"BETA of Callendar-Van Dusen, in \u00B0C", -0.55, 0.55,
             L"IEC 60751: 0.10863; five times that, because it is known badly where the calibration goes "
             L"little "
             L"below 0 \u00B0C"),
        Size(WARNING_CVD_A_SIZE, L"cvd-a-size", L"A of Callendar-Van Dusen, in 1/\u00B0C", 0.0037, 0.0041,
             L"IEC 60751: 3.9083E-3; A is ALPHA - 100 B, with the limits of ALPHA"),
        Size(WARNING_CVD_B_SIZE, L"cvd-b-size", L"B of Callendar-Van Dusen, in 1/\u00B0C\u00B2", -1.2E-6,
             -2.8E-7, L"IEC 60751: -5.775E-7; half to twice that"),
        Size(WARNING_CVD_C_SIZE, L"cvd-c-size", L"C of Callendar-Van Dusen, in 1/\u00B0C\u2074", -2.1E-11,
             2.1E-11, L"IEC 60751: -4.183E-12; five times that, as for BETA"),
        Size(
            WARNING_A4_SIZE, L"a4-size", L"A4 of IPTS-68, in 1/\u00B0C", -3E-4, 3E-4,
            L"IPTS-68, below 0 \u00B0C: A4 is ALPHA (1 + DELTA / 100) - 3.9847E-3, with the limits of ALPHA"),
        Size(WARNING_C4_SIZE, L"c4-size", L"C4 of IPTS-68, in 1/\u00B0C\u2074", -2.5E-11, 2.5E-11,
             L"IPTS-68, below 0 \u00B0C: C4 is C less that of pure platinum, about -4E-12, with the limits "
             L"of C"),
        Size(WARNING_DEVIATION_A_SIZE, L"deviation-a-size",
             L"a of an ITS-90 range, A of high-temperature PRT", -0.08, 0.05,
             L"ITS-90: a (W - 1) of platinum within the limits of ALPHA and DELTA"),
        Size(WARNING_DEVIATION_SIZE, L"deviation-size",
             L"b, c, d and c1 to c5 of an ITS-90 range, B of high-temperature PRT", -0.06, 0.06,
             L"ITS-90: b (W - 1)\u00B2 as for a; the terms after it are corrections to it"),
        Size(WARNING_THERMISTOR_A0_SIZE, L"thermistor-a0-size", L"A0 of thermistor T(R), in 1/K", -0.006,
             0.006,
             L"Steinhart and Hart (1968): about 1/T - A1 ln R; at 25 \u00B0C with A1 up to 5E-4 and ln R "
             L"from -4 "
             L"to 14"),
        Size(
            WARNING_THERMISTOR_A1_SIZE, L"thermistor-a1-size", L"A1 of thermistor T(R), in 1/K", 8E-5, 0.001,
            L"Steinhart and Hart (1968): about 1/B; B (IEC 60539-1) of 2000 K to 6000 K, half to twice that"),
        Size(WARNING_THERMISTOR_A3_SIZE, L"thermistor-a3-size", L"A3 of thermistor T(R), in 1/K", -1E-6, 1E-6,
             L"Steinhart and Hart (1968): about 1E-7; ten times that"),
        Size(WARNING_THERMISTOR_B1_SIZE, L"thermistor-b1-size", L"B1 of thermistor R(T), in K", 1000.0,
             12000.0, L"IEC 60539-1: about B, of 2000 K to 6000 K, half to twice that"),
        {WARNING_COUNT_DOES_NOT_FIT, L"count-does-not-fit",
         L"coefficients and points beside a count, or an order, that leaves them out", L"absent or 0",
         L"a record that has got a smaller count keeps those that it had; a count that was mistyped leaves "
         L"out what was meant"},
        Size(WARNING_UNKNOWN_CODE, L"unknown-code", L"TCType of thermocouples", -1.0, 12.0,
             L"the codes of the types that have a letter, and -1 for none"),
        {WARNING_NO_SUCH_PROBE, L"no-such-probe",
         L"sections named like the settings of a probe P, or nested in them, that have a coefficient, a "
         L"temperature or another measured value of a record",
         L"P is a probe",
         L"a probe is two sections or more; when only the first is removed or renamed, or has lost its "
         L"ConversionType, nobody reads the others"},
    };
    return warnings;
}

const ProbeWarning* FindWarning(EProbeProblem kind) {
    const auto found = std::find_if(Warnings().begin(), Warnings().end(),
                                    [kind](const ProbeWarning& warning) { return warning.kind == kind; });
    return found == Warnings().end() ? nullptr : &*found;
}

const ProbeWarning* FindWarning(std::wstring_view id) {
    const auto found = std::find_if(Warnings().begin(), Warnings().end(),
                                    [id](const ProbeWarning& warning) { return warning.id == id; });
    return found == Warnings().end() ? nullptr : &*found;
}

} // namespace QuorProbeFile
