#include "QuorProbeFile/detail/RecordWarnings.h"

#include "QuorConversions/core/EQuorConversionType.h"
#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeWarning.h"
#include "QuorProbeFile/RecordReference.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>
#include <utility>

namespace QuorProbeFile {

using namespace QuorConversions;

namespace {

using Reads = std::vector<ReadLog::Read>;
using Read = Reads::const_iterator;

/// What "UsePolynomial" says, in which the meaning of the values differs.
enum class Form : std::uint8_t { Any, AlphaDeltaBeta, Polynomial };

constexpr std::int16_t noIndex = -1; // the key is "RTPW"
constexpr std::wstring_view coefficients = coefficientsKey;

/// The values that a warning looks at: "Coefficients<first>" to "Coefficients<last>" of a type.
struct Judged {
    EQuorConversionType type;
    Form form;
    std::int16_t first;
    std::int16_t last;
    const wchar_t* name; // null: that of a coefficient without one
    EProbeProblem kind;
};

/// By type.
constexpr Judged judged[] = {
    {CONV_ITS90, Form::Any, noIndex, noIndex, L"RTPW", WARNING_RTPW_NOT_POSITIVE},
    {CONV_ITS90, Form::Any, 0, 0, L"a", WARNING_DEVIATION_A_SIZE},
    {CONV_ITS90, Form::Any, 1, 6, nullptr, WARNING_DEVIATION_SIZE},
    {CONV_IPTS68, Form::Any, 0, 0, L"R0", WARNING_R0_NOT_POSITIVE},
    {CONV_IPTS68, Form::Any, 1, 1, L"ALPHA", WARNING_ALPHA_SIZE},
    {CONV_IPTS68, Form::Any, 2, 2, L"DELTA", WARNING_DELTA_SIZE},
    {CONV_IPTS68, Form::Any, 3, 3, L"A4", WARNING_A4_SIZE},
    {CONV_IPTS68, Form::Any, 4, 4, L"C4", WARNING_C4_SIZE},
    {CONV_CVD, Form::Any, 0, 0, L"R0", WARNING_R0_NOT_POSITIVE},
    {CONV_CVD, Form::AlphaDeltaBeta, 1, 1, L"ALPHA", WARNING_ALPHA_SIZE},
    {CONV_CVD, Form::AlphaDeltaBeta, 2, 2, L"DELTA", WARNING_DELTA_SIZE},
    {CONV_CVD, Form::AlphaDeltaBeta, 3, 3, L"BETA", WARNING_BETA_SIZE},
    {CONV_CVD, Form::Polynomial, 1, 1, L"A", WARNING_CVD_A_SIZE},
    {CONV_CVD, Form::Polynomial, 2, 2, L"B", WARNING_CVD_B_SIZE},
    {CONV_CVD, Form::Polynomial, 3, 3, L"C", WARNING_CVD_C_SIZE},
    {CONV_HTPRT, Form::Any, 0, 0, L"RTPW", WARNING_RTPW_NOT_POSITIVE},
    {CONV_HTPRT, Form::Any, 1, 1, L"A", WARNING_DEVIATION_A_SIZE},
    {CONV_HTPRT, Form::Any, 2, 2, L"B", WARNING_DEVIATION_SIZE},
    {CONV_THERMISTORT_R, Form::Any, 0, 0, L"A0", WARNING_THERMISTOR_A0_SIZE},
    {CONV_THERMISTORT_R, Form::Any, 1, 1, L"A1", WARNING_THERMISTOR_A1_SIZE},
    {CONV_THERMISTORT_R, Form::Any, 3, 3, L"A3", WARNING_THERMISTOR_A3_SIZE},
    {CONV_THERMISTORR_T, Form::Any, 1, 1, L"B1", WARNING_THERMISTOR_B1_SIZE},
    {CONV_WT90, Form::Any, noIndex, noIndex, L"RTPW", WARNING_RTPW_NOT_POSITIVE},
    {CONV_PT100R0, Form::Any, 0, 0, L"R0", WARNING_R0_NOT_POSITIVE},
};

std::span<const Judged> RulesOf(EQuorConversionType type) {
    const auto isOfType = [type](const Judged& rule) { return rule.type == type; };
    const auto* const first = std::find_if(std::begin(judged), std::end(judged), isOfType);
    return {first, std::find_if_not(first, std::end(judged), isOfType)};
}

bool IsIndexed(const ReadLog::Read& read, std::wstring_view key) {
    return read.key.size() > key.size() && read.key.starts_with(key);
}

/// The number of a key that was found; null for any other.
const double* NumberOf(const ReadLog::Read& read) {
    return read.found ? std::get_if<double>(&read.value) : nullptr;
}

bool IsZero(const ReadLog::Read& read) {
    const double* const number = NumberOf(read);
    return number && *number == 0.0;
}

/// The warnings of one record.
class Judgement {
public:
    explicit Judgement(const RecordReading& reading)
        : m_reads(reading.Reads()),
          m_type(reading.Conversion().ConversionType()),
          m_rules(RulesOf(m_type == CONV_ITSSR5 ? CONV_ITS90 : m_type)) { // ITS-SR5: ITS-90 with one range
        const auto form = std::find_if(m_reads.begin(), m_reads.end(), [](const ReadLog::Read& read) {
            return read.found && std::holds_alternative<bool>(read.value);
        });
        if (form != m_reads.end())
            m_form = std::get<bool>(form->value) ? Form::Polynomial : Form::AlphaDeltaBeta;
    }

    std::vector<RecordWarning> Take() {
        for (auto first = m_reads.begin(); first != m_reads.end();) {
            const auto last = std::find_if(first, m_reads.end(), [&](const ReadLog::Read& read) {
                return read.section != first->section;
            });
            JudgeSection(first, last);
            first = last;
        }
        return std::move(m_warnings);
    }

private:
    void Warn(EProbeProblem kind, const ReadLog::Read& read, EProbeText text,
              std::vector<std::wstring> values = {}) {
        m_warnings.push_back({kind, &read, {text, std::move(values)}});
    }

    void JudgeSection(Read first, Read last) {
        const bool isAllZero = IsAllZero(first, last);
        const Read pointsEnd = PointsEnd(first, last);
        bool isToldZero = false;
        const double* before = nullptr; // the temperature of the point before
        for (Read read = first; read != last; ++read) {
            const double* const number = NumberOf(*read);
            if (!number) {
                JudgeCode(*read);
                continue;
            }
            const Judged* const rule = RuleOf(*read);
            if (!std::isfinite(*number)) {
                Warn(WARNING_NOT_FINITE, *read, PROBE_TEXT_NOT_FINITE, {ToText(*number)});
            } else if (isAllZero && IsOfEquation(*read, rule)) {
                if (!std::exchange(isToldZero, true))
                    Warn(WARNING_COEFFICIENTS_ALL_ZERO, *read, PROBE_TEXT_COEFFICIENTS_ALL_ZERO);
            } else if (rule) {
                JudgeValue(*read, *number, *rule);
            } else if (read < pointsEnd && IsIndexed(*read, temperaturesKey)) {
                if (before && *number <= *before)
                    Warn(WARNING_TEMPERATURES_NOT_INCREASING, *read, PROBE_TEXT_TEMPERATURE_NOT_INCREASING,
                         {ToText(*number), ToText(*before)});
                before = number;
            }
        }
    }

    /// Whether a code stands for something. What the settings object does not take is told as a problem.
    void JudgeCode(const ReadLog::Read& read) {
        const std::int16_t* const code = read.found ? std::get_if<std::int16_t>(&read.value) : nullptr;
        const RecordKey* const key =
            code && read.key == tcTypeKey ? FindRecordKey(m_type, read.key, RecordForm::Any) : nullptr;
        if (!key || !ChoiceName(*key, *code).empty())
            return;
        const ProbeWarning& warning = *FindWarning(WARNING_UNKNOWN_CODE);
        Warn(WARNING_UNKNOWN_CODE, read, PROBE_TEXT_OUT_OF_INTERVAL,
             {read.key, ToText(*code), ToText(warning.least), ToText(warning.most)});
    }

    void JudgeValue(const ReadLog::Read& read, double number, const Judged& rule) {
        const ProbeWarning& warning = *FindWarning(rule.kind);
        const std::wstring is = ToText(number);
        if (IsResistance(rule)) {
            if (!(number > 0.0))
                Warn(rule.kind, read, PROBE_TEXT_NOT_ABOVE_ZERO, {rule.name, is});
        } else if (number >= warning.least && number <= warning.most) {
            return;
        } else if (!rule.name) {
            Warn(rule.kind, read, PROBE_TEXT_COEFFICIENT_TOO_LARGE, {is, ToText(warning.most)});
        } else if (warning.least == -warning.most) {
            Warn(rule.kind, read, PROBE_TEXT_TOO_LARGE, {rule.name, is, ToText(warning.most)});
        } else {
            Warn(rule.kind, read, PROBE_TEXT_OUT_OF_INTERVAL,
                 {rule.name, is, ToText(warning.least), ToText(warning.most)});
        }
    }

    [[nodiscard]] const Judged* RuleOf(const ReadLog::Read& read) const {
        int index = noIndex;
        if (read.key.size() == coefficients.size() + 1 && read.key.starts_with(coefficients))
            index = read.key.back() - L'0'; // no rule is about a later one than the tenth
        else if (read.key != rtpwKey)
            return nullptr;
        const auto rule = std::find_if(m_rules.begin(), m_rules.end(), [&](const Judged& r) {
            return index >= r.first && index <= r.last && (r.form == Form::Any || r.form == m_form);
        });
        return rule == m_rules.end() ? nullptr : &*rule;
    }

    static bool IsResistance(const Judged& rule) {
        return rule.kind == WARNING_R0_NOT_POSITIVE || rule.kind == WARNING_RTPW_NOT_POSITIVE;
    }

    /// Whether it is a coefficient of an equation: neither a resistance, nor a DC coefficient, which only a
    /// few types of thermocouples have, nor what a PT100 carries along behind its R0.
    [[nodiscard]] bool IsOfEquation(const ReadLog::Read& read, const Judged* rule) const {
        return m_type != CONV_TCTYPEX && m_type != CONV_PT100R0 && IsIndexed(read, coefficients) &&
               !(rule && IsResistance(*rule));
    }

    /// Whether nothing but 0 was entered as coefficients.
    [[nodiscard]] bool IsAllZero(Read first, Read last) const {
        return std::all_of(first, last, [this](const ReadLog::Read& read) {
            return !IsOfEquation(read, RuleOf(read)) || IsZero(read);
        });
    }

    /// Past the last point that was given: deviation points of 0 at 0 degrees Celsius at the end of their
    /// list are those that the probe has not got.
    [[nodiscard]] Read PointsEnd(Read first, Read last) const {
        if (m_type != CONV_TCTYPEX)
            return last;
        for (auto read = last; read != first;) {
            const auto value = read--;
            if (IsIndexed(*read, temperaturesKey) && value != last && !(IsZero(*read) && IsZero(*value)))
                return value;
        }
        return first;
    }

    const Reads& m_reads;
    EQuorConversionType m_type;
    std::span<const Judged> m_rules; // of the type
    Form m_form = Form::Any;
    std::vector<RecordWarning> m_warnings;
};

} // namespace

std::vector<RecordWarning> WarningsOf(const RecordReading& reading) { return Judgement(reading).Take(); }

} // namespace QuorProbeFile
