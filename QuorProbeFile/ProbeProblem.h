#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace QuorProbeFile {

/// What can be wrong with a probe's record, or with the file around it; from 101 on warnings, of records that
/// can be read and whose values can hardly be meant (ProbeWarning.h). Hosts keep these numbers: they are only
/// added to.
enum EProbeProblem : std::int32_t {
    PROBLEM_SECTION_MISSING = 1,
    PROBLEM_KEY_MISSING = 2,
    PROBLEM_VALUE_UNREADABLE = 3, ///< it is not of its kind: a number with a comma, a text in place of a code
    PROBLEM_UNKNOWN_TYPE = 4,     ///< the code of the type is that of no conversion type
    PROBLEM_RECORD_REFUSED = 5,   ///< the settings object refuses the record; the text is its own
    PROBLEM_VALUE_REFUSED = 6,    ///< a value, such as a count below zero, with which no record can be read
    PROBLEM_VALUE_REPLACED = 7,   ///< the settings object takes another value instead
    PROBLEM_UNKNOWN_KEY = 8,      ///< a record of this type and size does not hold the key
    PROBLEM_DUPLICATE_KEY = 9,    ///< the first one is read
    PROBLEM_DUPLICATE_SECTION = 10, ///< the first one is read
    PROBLEM_UNCLOSED_HEADER = 11,   ///< a header without "]": nobody can read the record below it
    PROBLEM_MALFORMED_LINE = 12,    ///< no key=value
    PROBLEM_KEPT_FILE = 13,         ///< beside the file: what another program had put in its place
    PROBLEM_INTERRUPTED_SAVE = 14,  ///< beside the file: what an interrupted save has left
    PROBLEM_LINE_ENDS_IN_CR = 15,   ///< a header or key behind a carriage return alone, which nobody reads

    WARNING_R0_NOT_POSITIVE = 101,
    WARNING_RTPW_NOT_POSITIVE = 102,
    WARNING_NOT_FINITE = 103, ///< NaN or infinity
    WARNING_COEFFICIENTS_ALL_ZERO = 104,
    WARNING_TEMPERATURES_NOT_INCREASING = 105,
    WARNING_RANGE_DOES_NOT_FIT = 106, ///< coefficients that the ITS-90 range does not have are not 0
    WARNING_ALPHA_SIZE = 107,
    WARNING_DELTA_SIZE = 108,
    WARNING_BETA_SIZE = 109,
    WARNING_CVD_A_SIZE = 110,
    WARNING_CVD_B_SIZE = 111,
    WARNING_CVD_C_SIZE = 112,
    WARNING_A4_SIZE = 113,
    WARNING_C4_SIZE = 114,
    WARNING_DEVIATION_A_SIZE = 115,
    WARNING_DEVIATION_SIZE = 116, ///< b, c, d and c1 to c5 of the ITS-90
    WARNING_THERMISTOR_A0_SIZE = 117,
    WARNING_THERMISTOR_A1_SIZE = 118,
    WARNING_THERMISTOR_A3_SIZE = 119,
    WARNING_THERMISTOR_B1_SIZE = 120,
    WARNING_COUNT_DOES_NOT_FIT = 121, ///< values beside a count that it leaves out are not 0
};

/// One problem, and where it is.
struct ProbeProblem {
    EProbeProblem kind;
    std::size_t line = 0; ///< in the file, from 1; 0 for what stands beside the file
    std::wstring section; ///< empty where it has no name
    std::wstring key;     ///< empty where the problem is not that of one key
    std::wstring text;    ///< what is wrong, for a person, without the place: "the key is missing"
    [[nodiscard]] bool IsWarning() const { return kind >= WARNING_R0_NOT_POSITIVE; }
    friend bool operator==(const ProbeProblem&, const ProbeProblem&) = default;
};

} // namespace QuorProbeFile
