#pragma once

#include "QuorProbeFile/ProbeText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// What can be wrong with a probe's record or its file; from 101 on warnings about what is readable but
/// implausible (ProbeWarning.h). Hosts may store these numbers: they are only added to.
enum EProbeProblem : std::int32_t {
    PROBLEM_SECTION_MISSING = 1,    ///< there is no section with the settings, or with a range of them
    PROBLEM_KEY_MISSING = 2,        ///< the section has no such key
    PROBLEM_VALUE_UNREADABLE = 3,   ///< it has the wrong type: a number with a comma, text instead of a code
    PROBLEM_UNKNOWN_TYPE = 4,       ///< the type is not the code of a conversion
    PROBLEM_RECORD_REFUSED = 5,     ///< the settings object refuses the record, with that text
    PROBLEM_VALUE_REFUSED = 6,      ///< a value, such as a negative count, that makes the record unreadable
    PROBLEM_VALUE_REPLACED = 7,     ///< the settings object uses another value instead
    PROBLEM_UNKNOWN_KEY = 8,        ///< a record of this type and size has no such key
    PROBLEM_DUPLICATE_KEY = 9,      ///< the key occurs twice; the first one is read
    PROBLEM_DUPLICATE_SECTION = 10, ///< the section occurs twice; the first one is read
    PROBLEM_UNCLOSED_HEADER = 11,   ///< a header without "]": the record below it cannot be read
    PROBLEM_MALFORMED_LINE = 12,    ///< it is not key=value
    PROBLEM_KEPT_FILE = 13,         ///< beside the file: a version that another program wrote during a save
    PROBLEM_INTERRUPTED_SAVE = 14,  ///< beside the file: leftovers of an interrupted save
    PROBLEM_LINE_ENDS_IN_CR = 15,   ///< a header or key after a lone carriage return, which is not read

    WARNING_R0_NOT_POSITIVE = 101,
    WARNING_RTPW_NOT_POSITIVE = 102,
    WARNING_NOT_FINITE = 103, ///< NaN or infinity
    WARNING_COEFFICIENTS_ALL_ZERO = 104,
    WARNING_TEMPERATURES_NOT_INCREASING = 105,
    WARNING_RANGE_DOES_NOT_FIT = 106, ///< coefficients beyond those of the ITS-90 range are not 0
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
    WARNING_COUNT_DOES_NOT_FIT = 121, ///< values beyond the count are not 0
    WARNING_UNKNOWN_CODE = 122,       ///< the code is not that of a thermocouple type
    WARNING_NO_SUCH_PROBE = 123,      ///< settings of a probe that is not there
};

/// One problem, and where it is.
struct ProbeProblem {
    EProbeProblem kind;   ///< what is wrong, for programs
    std::size_t line = 0; ///< in the file, from 1; 0 for a file beside it
    std::wstring section; ///< its section; empty if that has no name
    std::wstring key;     ///< its key; empty if the problem does not concern a single key
    std::wstring text;    ///< what is wrong, for people, without the place: "the key is missing"
    /// The parts of `text`, for programs that word it in another language.
    std::vector<ProbePhrase> phrases = {};
    /// Whether it is a warning: nothing that prevents a record from being read.
    [[nodiscard]] bool IsWarning() const { return kind >= WARNING_R0_NOT_POSITIVE; }
    /// The phrases say the same as the text.
    friend bool operator==(const ProbeProblem& a, const ProbeProblem& b) {
        return a.kind == b.kind && a.line == b.line && a.section == b.section && a.key == b.key &&
               a.text == b.text;
    }
};

} // namespace QuorProbeFile
