#pragma once

#include <string_view>

// The names of sections and keys in records, as they stand in every file: never translated.
namespace QuorConversions {

/// The end of the name of the section with the settings of a probe: "P - Settings".
inline constexpr std::wstring_view settingsMark = L" - Settings";
/// What separates the name of a section from that of a record nested in it.
inline constexpr std::wstring_view nestedMark = settingsMark.substr(0, 3);

// Nested records.
inline constexpr const wchar_t* settingsName = settingsMark.data() + nestedMark.size(); // "Settings"
inline constexpr const wchar_t* highRangeName = L"High Range";
inline constexpr const wchar_t* lowRangeName = L"Low Range";

// Sections of stand-alone files that two classes share.
inline constexpr const wchar_t* thermocouplePolynomialSection = L"Thermocouple Polynomial";

// Keys.
inline constexpr const wchar_t* versionKey = L"Version";
inline constexpr const wchar_t* conversionTypeKey = L"ConversionType";
inline constexpr const wchar_t* coefficientsKey = L"Coefficients"; // indexed
inline constexpr const wchar_t* convTypeKey = L"ConvType";
inline constexpr const wchar_t* ipts68ScaleKey = L"IPTS-68 scale"; // with a small "scale"
inline constexpr const wchar_t* mV25CKey = L"mV(25C)";
inline constexpr const wchar_t* numCoefficientsKey = L"NumCoefficients";
inline constexpr const wchar_t* numPointsKey = L"NumPoints";
inline constexpr const wchar_t* offsetsKey = L"Offsets"; // indexed
inline constexpr const wchar_t* offsetScaleKey = L"OffsetScale";
inline constexpr const wchar_t* orderKey = L"Order";
inline constexpr const wchar_t* rangeKey = L"Range";
inline constexpr const wchar_t* rtpwKey = L"RTPW";
inline constexpr const wchar_t* tcTypeKey = L"TCType";
inline constexpr const wchar_t* tempScaleKey = L"TempScale";
inline constexpr const wchar_t* temperaturesKey = L"Temperatures"; // indexed
inline constexpr const wchar_t* usePolynomialKey = L"UsePolynomial";
inline constexpr const wchar_t* voltagesKey = L"Voltages"; // indexed

} // namespace QuorConversions
