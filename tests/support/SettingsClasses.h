#pragma once

#include "QuorConversions/core/EQuorConversionType.h"

#include <ostream>
#include <string>

namespace Support {

/// What is known of a settings class from outside.
struct SettingsClass {
    QuorConversions::EQuorConversionType code; ///< the type for which the facade makes one
    const wchar_t* className;
    const wchar_t* name; ///< of the object that the facade makes
    const wchar_t* fileExtension;
    const wchar_t* sectionName;
};

inline constexpr SettingsClass settingsClasses[] = {
    {QuorConversions::CONV_ITS90, L"CQuorITS90", L"ITS-90", L"i90", L"ITS-90"},
    {QuorConversions::CONV_IPTS68, L"CQuorIPTS68", L"IPTS-68", L"i68", L"IPTS-68"},
    {QuorConversions::CONV_CVD, L"CQuorCVD", L"Callendar-Van Dusen", L"cvd", L"Callendar-Van Dusen"},
    {QuorConversions::CONV_PT100R0, L"CQuorPT100", L"PT100", L"pt1", L"Callendar-Van Dusen"},
    {QuorConversions::CONV_HTPRT, L"CQuorHTPRT", L"High Temperature PRT", L"hpt", L"High Temp PRT"},
    {QuorConversions::CONV_WT90, L"CQuorWT90", L"W(T90)", L"w90", L"W(T90)"},
    {QuorConversions::CONV_THERMISTORT_R, L"CQuorThermistor", L"Thermistor T(R)", L"thr", L"Thermistor"},
    {QuorConversions::CONV_POLYNOMIAL, L"CQuorPolynomial", L"Polynomial", L"ply", L"Polynomial"},
    {QuorConversions::CONV_TCPOLYNOMIAL, L"CQuorTCPolynomial", L"TC Polynomial", L"tcp",
     L"Thermocouple Polynomial"},
    {QuorConversions::CONV_TCTABLE, L"CQuorTCTable", L"TC Table", L"tct", L"Thermocouple Table"},
    {QuorConversions::CONV_TCTYPEX, L"CQuorTCTypeX", L"TC Type K", L"tcx", L"Thermocouple Type"},
    {QuorConversions::CONV_TCTYPEPOLY, L"CQuorTCTypePoly", L"TC Type E", L"ttp", L"Thermocouple Polynomial"},
};

/// The name of a class is plain ASCII.
inline std::string Narrow(const std::wstring& className) {
    std::string narrow;
    for (const wchar_t character : className)
        narrow += static_cast<char>(character);
    return narrow;
}

inline void PrintTo(const SettingsClass& settingsClass, std::ostream* out) {
    *out << Narrow(settingsClass.className);
}

} // namespace Support
