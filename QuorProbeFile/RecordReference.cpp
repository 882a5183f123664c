#include "QuorProbeFile/RecordReference.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeWarning.h"

#include <algorithm>
#include <map>
#include <string>
#include <unordered_map>

namespace QuorProbeFile {

using namespace QuorConversions;

namespace {

constexpr RecordChoice thermistorDirections[] = {{0, L"T(R)"}, {1, L"R(T)"}};
constexpr RecordChoice scales[] = {{0, L"ITS-90"}, {1, L"IPTS-68"}};
constexpr RecordChoice lowRanges[] = {
    {-1, L"none"},         {1, L"13 K to 273 K"}, {2, L"24 K to 273 K"},
    {3, L"54 K to 273 K"}, {4, L"83 K to 273 K"}, {5, L"234 K to 302 K"},
};
constexpr RecordChoice highRanges[] = {
    {-1, L"none"},          {5, L"234 K to 302 K"}, {6, L"273 K to 1234 K"}, {7, L"273 K to 933 K"},
    {8, L"273 K to 692 K"}, {9, L"273 K to 505 K"}, {10, L"273 K to 429 K"}, {11, L"273 K to 302 K"},
};
constexpr RecordChoice thermocouples[] = {
    {-1, L"none"}, {0, L"B"}, {1, L"C"}, {2, L"E"}, {3, L"J"},  {4, L"K"},  {5, L"L"},
    {6, L"M"},     {7, L"N"}, {8, L"R"}, {9, L"S"}, {10, L"T"}, {11, L"U"}, {12, L"AuPt"},
};

constexpr int notIndexed = -1;
/// Of a name that gets the index of the key, plus that number: "C0", "T1".
constexpr int noNumber = -1;

/// A row of the table. Of indexed keys it holds those from `first` to `last`.
struct Row {
    const wchar_t* nested; ///< record, or ""
    const wchar_t* key;
    int first;
    int last;
    RecordForm form;
    const wchar_t* name;
    int numberOfFirst; ///< after the name, counted on from the first key; or noNumber
    const wchar_t* meaning;
    const wchar_t* unit;
    const wchar_t* range;
    EProbeProblem warning; ///< whose limit is the usual one; 0 for none
    Value initial;
    std::span<const RecordChoice> choices;
};

constexpr auto noWarning = EProbeProblem{0};
constexpr const wchar_t* anyNumber = L"any number";

Row Plain(const wchar_t* key, const wchar_t* meaning, const wchar_t* unit, const wchar_t* range,
          Value initial, std::span<const RecordChoice> choices = {}, EProbeProblem warning = noWarning) {
    return {L"",     key,  notIndexed, notIndexed, RecordForm::Any, L"",    noNumber,
            meaning, unit, range,      warning,    initial,         choices};
}

/// One coefficient.
Row Coefficient(int index, const wchar_t* name, const wchar_t* meaning, const wchar_t* unit,
                EProbeProblem warning = noWarning, RecordForm form = RecordForm::Any) {
    return {L"",  coefficientsKey, index,   index, form, name, noNumber, meaning,
            unit, anyNumber,       warning, 0.0,   {}};
}

/// Those up to `last`, named by a letter and a number.
Row Numbered(const wchar_t* key, int first, int last, const wchar_t* letter, int numberOfFirst,
             const wchar_t* meaning, const wchar_t* unit, EProbeProblem warning = noWarning) {
    return {L"",       key,     first, last, RecordForm::Any, letter, numberOfFirst, meaning, unit,
            anyNumber, warning, 0.0,   {}};
}

Row Count(int initial, const wchar_t* range) {
    return Plain(numCoefficientsKey, L"How many coefficients the record has", L"", range,
                 static_cast<std::int16_t>(initial));
}

Row Points(int initial, const wchar_t* range) {
    return Plain(numPointsKey, L"How many points the record has", L"", range,
                 static_cast<std::int16_t>(initial));
}

Row In(const wchar_t* nested, Row row) {
    row.nested = nested;
    return row;
}

std::vector<Row> Its90(std::int16_t lowRange) {
    constexpr const wchar_t* deviation = L"Coefficient of the deviation function";
    return {
        Plain(rtpwKey, L"Resistance at the triple point of water, 273.16 K", L"ohm", anyNumber, 0.0, {},
              WARNING_RTPW_NOT_POSITIVE),
        In(highRangeName, Plain(rangeKey, L"The range of the ITS-90 above 273.16 K", L"", L"-1, 5 to 11",
                                std::int16_t{-1}, highRanges)),
        In(highRangeName, Coefficient(0, L"a", deviation, L"1", WARNING_DEVIATION_A_SIZE)),
        In(highRangeName, Coefficient(1, L"b", deviation, L"1", WARNING_DEVIATION_SIZE)),
        In(highRangeName, Coefficient(2, L"c", deviation, L"1", WARNING_DEVIATION_SIZE)),
        In(highRangeName, Coefficient(3, L"d", deviation, L"1", WARNING_DEVIATION_SIZE)),
        In(lowRangeName, Plain(rangeKey, L"The range of the ITS-90 below 273.16 K", L"", L"-1, 1 to 5",
                               lowRange, lowRanges)),
        In(lowRangeName, Coefficient(0, L"a", deviation, L"1", WARNING_DEVIATION_A_SIZE)),
        In(lowRangeName, Coefficient(1, L"b", deviation, L"1", WARNING_DEVIATION_SIZE)),
        In(lowRangeName, Numbered(coefficientsKey, 2, 6, L"c", 1, deviation, L"1", WARNING_DEVIATION_SIZE)),
    };
}

std::vector<Row> ThermistorHead(std::int16_t direction) {
    return {Plain(convTypeKey, L"Direction of the polynomial", L"", L"that of the type", direction,
                  thermistorDirections),
            Count(4, L"0 to 4")};
}

std::vector<Row> Joined(std::vector<Row> rows, const std::vector<Row>& more) {
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

Row ThermocoupleType(std::int16_t initial) {
    return Plain(tcTypeKey, L"Letter of the standard thermocouple", L"", L"-1 to 12", initial, thermocouples);
}

/// The only place that knows what the keys mean. A test holds it against what the settings classes write.
const std::map<EQuorConversionType, std::vector<Row>>& Table() {
    constexpr auto ofAny = RecordForm::Any;
    constexpr auto ofAlpha = RecordForm::AlphaDeltaBeta;
    constexpr auto ofPolynomial = RecordForm::Polynomial;
    constexpr const wchar_t* r0 = L"Resistance at 0 \u00B0C";
    static const std::map<EQuorConversionType, std::vector<Row>> table{
        {CONV_ITS90, Its90(-1)},
        {CONV_ITSSR5, Its90(5)},
        {CONV_IPTS68,
         {Plain(ipts68ScaleKey, L"Scale in which the instrument reports temperatures", L"", L"0 or 1",
                std::int16_t{0}, scales),
          Count(5, L"0 to 5"), Coefficient(0, L"R0", r0, L"ohm", WARNING_R0_NOT_POSITIVE),
          Coefficient(1, L"ALPHA", L"Mean temperature coefficient from 0 \u00B0C to 100 \u00B0C",
                      L"1/\u00B0C", WARNING_ALPHA_SIZE),
          Coefficient(2, L"DELTA", L"Callendar's coefficient", L"\u00B0C", WARNING_DELTA_SIZE),
          Coefficient(3, L"A4", L"Linear coefficient of the deviation below 0 \u00B0C", L"1/\u00B0C",
                      WARNING_A4_SIZE),
          Coefficient(4, L"C4", L"Coefficient of the fourth power below 0 \u00B0C", L"1/\u00B0C\u2074",
                      WARNING_C4_SIZE)}},
        {CONV_CVD,
         {Count(4, L"0 to 32767; the equation has 4"),
          Plain(usePolynomialKey,
                L"Whether the coefficients after R0 are A, B, C (True) or ALPHA, DELTA, BETA (False)", L"",
                L"True or False", false),
          Coefficient(0, L"R0", r0, L"ohm", WARNING_R0_NOT_POSITIVE, ofAny),
          Coefficient(1, L"ALPHA", L"Mean temperature coefficient from 0 \u00B0C to 100 \u00B0C",
                      L"1/\u00B0C", WARNING_ALPHA_SIZE, ofAlpha),
          Coefficient(1, L"A", L"Linear coefficient", L"1/\u00B0C", WARNING_CVD_A_SIZE, ofPolynomial),
          Coefficient(2, L"DELTA", L"Callendar's coefficient", L"\u00B0C", WARNING_DELTA_SIZE, ofAlpha),
          Coefficient(2, L"B", L"Quadratic coefficient", L"1/\u00B0C\u00B2", WARNING_CVD_B_SIZE,
                      ofPolynomial),
          Coefficient(3, L"BETA", L"Van Dusen's coefficient, below 0 \u00B0C", L"\u00B0C", WARNING_BETA_SIZE,
                      ofAlpha),
          Coefficient(3, L"C", L"Coefficient of the fourth power, below 0 \u00B0C", L"1/\u00B0C\u2074",
                      WARNING_CVD_C_SIZE, ofPolynomial)}},
        {CONV_PT100R0,
         {Count(1, L"0 to 32767; the equation has 1"),
          Coefficient(0, L"R0", r0, L"ohm", WARNING_R0_NOT_POSITIVE)}},
        {CONV_HTPRT,
         {Count(3, L"0 to 3"),
          Coefficient(0, L"RTPW", L"Resistance at the triple point of water, 273.16 K", L"ohm",
                      WARNING_RTPW_NOT_POSITIVE),
          Coefficient(1, L"A", L"Coefficient of the deviation function", L"1", WARNING_DEVIATION_A_SIZE),
          Coefficient(2, L"B", L"Coefficient of the deviation function", L"1", WARNING_DEVIATION_SIZE)}},
        {CONV_WT90,
         {Plain(rtpwKey, L"Resistance at the triple point of water, 273.16 K", L"ohm", anyNumber, 0.0, {},
                WARNING_RTPW_NOT_POSITIVE)}},
        {CONV_THERMISTORT_R,
         Joined(ThermistorHead(0),
                {Coefficient(0, L"A0", L"Constant term of 1/T", L"1/K", WARNING_THERMISTOR_A0_SIZE),
                 Coefficient(1, L"A1", L"Coefficient of ln R", L"1/K", WARNING_THERMISTOR_A1_SIZE),
                 Coefficient(2, L"A2", L"Coefficient of (ln R)\u00B2", L"1/K"),
                 Coefficient(3, L"A3", L"Coefficient of (ln R)\u00B3", L"1/K", WARNING_THERMISTOR_A3_SIZE)})},
        {CONV_THERMISTORR_T,
         Joined(ThermistorHead(1),
                {Coefficient(0, L"B0", L"Constant term of ln R", L"1"),
                 Coefficient(1, L"B1", L"Coefficient of 1/T", L"K", WARNING_THERMISTOR_B1_SIZE),
                 Coefficient(2, L"B2", L"Coefficient of 1/T\u00B2", L"K\u00B2"),
                 Coefficient(3, L"B3", L"Coefficient of 1/T\u00B3", L"K\u00B3")})},
        {CONV_POLYNOMIAL,
         {Plain(orderKey, L"Order of the polynomial; it has one coefficient more", L"", L"4 to 10",
                std::int16_t{4}),
          Numbered(coefficientsKey, 0, 10, L"A", 0, L"Coefficient of the power with its number", L"")}},
        {CONV_TCPOLYNOMIAL,
         {Plain(mV25CKey, L"Voltage of the thermocouple at 25 \u00B0C", L"mV", anyNumber, 0.0),
          Count(16, L"0 to 16"),
          Numbered(coefficientsKey, 0, 15, L"C", 0, L"Coefficient of the power with its number", L"")}},
        {CONV_TCTABLE,
         {Points(10, L"0 to 10"),
          Numbered(temperaturesKey, 0, 9, L"T", 1, L"Temperature of the point", L"\u00B0C",
                   WARNING_TEMPERATURES_NOT_INCREASING),
          Numbered(voltagesKey, 0, 9, L"V", 1, L"Voltage at that temperature", L"mV")}},
        {CONV_TCTYPEX,
         {ThermocoupleType(4), Points(3, L"0 to 3"),
          Plain(tempScaleKey, L"Unit of the temperatures of the points, as the dialog shows it", L"",
                L"any text", L"\u00B0C"),
          Plain(offsetScaleKey, L"Unit of the offsets, as the dialog shows it", L"", L"any text", L"\u00B0C"),
          Numbered(temperaturesKey, 0, 2, L"T", 1, L"Temperature of the deviation point", tempScaleKey,
                   WARNING_TEMPERATURES_NOT_INCREASING),
          Numbered(offsetsKey, 0, 2, L"ADJ", 1,
                   L"Correction at that temperature, added to what the reference function gives",
                   offsetScaleKey),
          Numbered(coefficientsKey, 0, 1, L"DC", 1, L"Further deviation coefficient of types R, S and AuPt",
                   L"")}},
        {CONV_TCTYPEPOLY,
         {ThermocoupleType(2), Count(4, L"0 to 4"),
          Numbered(coefficientsKey, 0, 3, L"C", 0, L"Coefficient of the deviation polynomial", L"")}},
    };
    return table;
}

RecordKey KeyOf(const Row& row, int index) {
    const std::wstring nested = *row.nested != L'\0' ? std::wstring(row.nested) + L"/" : L"";
    const std::wstring list = nested + row.key;
    const bool isIndexed = index != notIndexed;
    const ProbeWarning* const warning = row.warning == noWarning ? nullptr : FindWarning(row.warning);
    return {isIndexed ? list + std::to_wstring(index) : list,
            isIndexed ? list : L"",
            static_cast<std::int16_t>(index),
            row.form,
            row.numberOfFirst == noNumber ? row.name
                                          : row.name + std::to_wstring(row.numberOfFirst + index - row.first),
            row.meaning,
            row.unit,
            row.range,
            warning ? warning->limit : L"",
            row.initial,
            row.choices};
}

std::vector<RecordKey> KeysOf(const std::vector<Row>& rows) {
    std::vector<RecordKey> keys;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        const auto next = row + 1;
        // A point is two keys, which stand beside each other: "Temperatures0", "Offsets0", "Temperatures1".
        const bool isPoint = std::wstring_view(row->key) == temperaturesKey;
        for (int index = row->first; index <= row->last; ++index) {
            keys.push_back(KeyOf(*row, index));
            if (isPoint)
                keys.push_back(KeyOf(*next, index));
        }
        if (isPoint)
            row = next;
    }
    return keys;
}

/// The keys of a type, and where each stands.
struct Reference {
    std::vector<RecordKey> keys;
    std::unordered_map<std::wstring, std::vector<std::size_t>> byPath;
};

const Reference& ReferenceOf(EQuorConversionType type) {
    static const std::map<EQuorConversionType, Reference> references = [] {
        std::map<EQuorConversionType, Reference> all;
        for (const auto& [code, rows] : Table()) {
            Reference& reference = all[code];
            reference.keys = KeysOf(rows);
            for (std::size_t i = 0; i < reference.keys.size(); ++i)
                reference.byPath[Folded(reference.keys[i].path)].push_back(i);
        }
        return all;
    }();
    static const Reference none;
    const auto found = references.find(type);
    return found == references.end() ? none : found->second;
}

} // namespace

const std::vector<RecordKey>& RecordKeys(EQuorConversionType type) { return ReferenceOf(type).keys; }

const RecordKey* FindRecordKey(EQuorConversionType type, std::wstring_view path, RecordForm form) {
    const Reference& reference = ReferenceOf(type);
    const auto places = reference.byPath.find(Folded(std::wstring(path)));
    if (places == reference.byPath.end())
        return nullptr;
    for (const std::size_t place : places->second) {
        const RecordKey& key = reference.keys[place];
        if (form == RecordForm::Any || key.form == RecordForm::Any || key.form == form)
            return &key;
    }
    return nullptr;
}

std::wstring ChoiceName(const RecordKey& key, std::int16_t code) {
    const auto found = std::find_if(key.choices.begin(), key.choices.end(),
                                    [code](const RecordChoice& choice) { return choice.code == code; });
    return found == key.choices.end() ? L"" : found->name;
}

} // namespace QuorProbeFile
