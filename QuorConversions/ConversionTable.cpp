// Which class belongs to which conversion type.

#include "QuorConversions/core/detail/ConversionTable.h"

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/polynomial/CQuorPolynomial.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorHTPRT.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorConversions/rtd/CQuorWT90.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace QuorConversions {

struct ConversionTable {
    using Settings = std::shared_ptr<SettingsObject>;

    template <class T>
    static Settings Make(const std::shared_ptr<Platform>& platform) {
        if constexpr (std::is_constructible_v<T, CreationKey, std::shared_ptr<Platform>>)
            return std::make_shared<T>(CreationKey{}, platform);
        else
            return std::make_shared<T>(platform);
    }

    template <EThermistorConvType direction>
    static Settings MakeThermistor(const std::shared_ptr<Platform>& platform) {
        auto thermistor = std::make_shared<CQuorThermistor>(CreationKey{}, platform);
        thermistor->SetConvType(direction);
        return thermistor;
    }

    template <class T, ETCType type>
    static void SetType(SettingsObject& settings) {
        static_cast<T&>(settings).SetTCType(type);
    }

    /// ITS-SR5 is an ITS-90 calibration in range 5, fixed, and has no high range.
    static void FixRange5(SettingsObject& settings) {
        auto& its90 = static_cast<CQuorITS90&>(settings);
        its90.LowRange()->SetMinRange(ITS90_RANGE_5);
        its90.LowRange()->SetMaxRange(ITS90_RANGE_5);
        its90.LowRange()->SetRange(ITS90_RANGE_5);
        its90.LowRange()->SetAllowChangeRange(false);
        its90.HighRange()->SetMinRange(ITS90_NORANGE);
        its90.HighRange()->SetMaxRange(ITS90_NORANGE);
        its90.HighRange()->SetRange(ITS90_NORANGE);
    }

    static const ConversionTypeRow rows[];
};

// Three oddities are on purpose: 16 has a name but no settings while 19 has settings; 18, 19 and 20 have no
// names; and no conversion type is "<keep existing>", because the names are meant for a chooser.
const ConversionTypeRow ConversionTable::rows[] = {
    {CONV_NONE, IDS_KEEP_EXISTING, L"CONV_NONE", nullptr, nullptr},
    {CONV_ITS90, 0, L"CONV_ITS90", Make<CQuorITS90>, nullptr},
    {CONV_IPTS68, 0, L"CONV_IPTS68", Make<CQuorIPTS68>, nullptr},
    {CONV_CVD, 0, L"CONV_CVD", Make<CQuorCVD>, nullptr},
    {CONV_HTPRT, 0, L"CONV_HTPRT", Make<CQuorHTPRT>, nullptr},
    {CONV_POLYNOMIAL, 0, L"CONV_POLYNOMIAL", Make<CQuorPolynomial>, nullptr},
    {CONV_THERMISTORT_R, 0, L"CONV_THERMISTORT_R", MakeThermistor<TCT_THRMT_R>, nullptr},
    {CONV_THERMISTORR_T, 0, L"CONV_THERMISTORR_T", MakeThermistor<TCT_THRMR_T>, nullptr},
    {CONV_TCPOLYNOMIAL, 0, L"CONV_TCPOLYNOMIAL", Make<CQuorTCPolynomial>, nullptr},
    {CONV_TCTABLE, 0, L"CONV_TCTABLE", Make<CQuorTCTable>, nullptr},
    {CONV_TCTYPEX, 0, L"CONV_TCTYPEX", Make<CQuorTCTypeX>, SetType<CQuorTCTypeX, TCTYPE_K>},
    {CONV_OHMS, IDS_OHMS, L"CONV_OHMS", nullptr, nullptr},
    {CONV_VOLTS, IDS_VOLTS, L"CONV_VOLTS", nullptr, nullptr},
    {CONV_IEC751, IDS_IEC751, L"CONV_IEC751", nullptr, nullptr},
    {CONV_YSI400, IDS_YSI400, L"CONV_YSI400", nullptr, nullptr},
    {CONV_WT90, 0, L"CONV_WT90", Make<CQuorWT90>, nullptr},
    {CONV_RATIO, IDS_RATIO, L"CONV_RATIO", nullptr, nullptr},
    {CONV_PT100, IDS_PT100, L"CONV_PT100", nullptr, nullptr},
    {CONV_ITSSR5, IDS_ITS_SR5, L"CONV_ITSSR5", Make<CQuorITS90>, FixRange5},
    {CONV_THERMISTOR_OHMS, IDS_UNKNOWN, L"CONV_THERMISTOR_OHMS", nullptr, nullptr},
    {CONV_PT100R0, IDS_UNKNOWN, L"CONV_PT100R0", Make<CQuorPT100>, nullptr},
    {CONV_TCTYPEPOLY, IDS_UNKNOWN, L"CONV_TCTYPEPOLY", Make<CQuorTCTypePoly>,
     SetType<CQuorTCTypePoly, TCTYPE_E>},
};

const ConversionTypeRow* FindConversionType(std::int32_t code) {
    const auto* const row = std::find_if(std::begin(ConversionTable::rows), std::end(ConversionTable::rows),
                                         [code](const ConversionTypeRow& r) { return r.code == code; });
    return row == std::end(ConversionTable::rows) ? nullptr : row;
}

const wchar_t* ConversionEnumerator(std::int32_t code) {
    const ConversionTypeRow* const row = FindConversionType(code);
    return row ? row->enumerator : nullptr;
}

} // namespace QuorConversions
