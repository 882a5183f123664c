// Made by component/generate from members.txt and windows/identifiers.txt: change those.
// clang-format off

#include "QuorConversions.h" // by widl, of QuorConversions.idl

#include "component/windows/Object.h"
#include "component/windows/Server.h"

namespace QuorConversions::Automation {
namespace {

constexpr Member conversion[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"HelpFile", nullptr, 2, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Settings", nullptr, 7, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"ConversionType", nullptr, 8, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"ConversionName", nullptr, 9, QUOR_CALL, VT_BSTR, 1, {{{L"Value", VT_I4}}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorConversionObject final : public Dual<ICQuorConversion> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(conversion[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(conversion[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_HelpFile(BSTR* result) override { return Slot(conversion[1], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_HelpFile(BSTR Value) override { return Slot(conversion[1], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(conversion[2], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(conversion[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(conversion[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(conversion[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(conversion[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(conversion[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Settings(IDispatch** result) override { return Slot(conversion[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_ConversionType(EQuorConversionType* result) override { return Slot(conversion[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ConversionType(EQuorConversionType Value) override { return Slot(conversion[7], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE ConversionName(long Value, BSTR* result) override { return Slot(conversion[8], QUOR_CALL, result, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(conversion[9], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(conversion[10], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(conversion[11], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member its90[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"HighRange", nullptr, 16, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"LowRange", nullptr, 17, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"RTPW", nullptr, 18, QUOR_GET | QUOR_PUT, VT_R8, 0, {{}}},
    {L"RTPWFormat", nullptr, 19, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorITS90Object final : public Dual<ICQuorITS90> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(its90[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(its90[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(its90[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(its90[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(its90[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(its90[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(its90[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(its90[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_HighRange(ICQuorITS90HighRange** result) override { return Slot(its90[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_LowRange(ICQuorITS90LowRange** result) override { return Slot(its90[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_RTPW(double* result) override { return Slot(its90[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_RTPW(double Value) override { return Slot(its90[7], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_RTPWFormat(BSTR* result) override { return Slot(its90[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_RTPWFormat(BSTR Value) override { return Slot(its90[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(its90[9], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(its90[10], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(its90[11], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(its90[12], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(its90[13], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(its90[14], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member its90_low_range[] = {
    {L"ShowCoefRange", nullptr, 20, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"AllowChangeRange", nullptr, 21, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"RangeEnabled", nullptr, 22, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"RangeName", nullptr, 23, QUOR_CALL, VT_BSTR, 1, {{{L"vData", VT_I4}}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET, VT_I2, 0, {{}}},
    {L"Range", nullptr, 25, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"MaxRange", nullptr, 26, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"MinRange", nullptr, 27, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"FillRangeCombo", nullptr, 30, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorITS90LowRangeObject final : public Dual<ICQuorITS90LowRange> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_ShowCoefRange(VARIANT_BOOL* result) override { return Slot(its90_low_range[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ShowCoefRange(VARIANT_BOOL Value) override { return Slot(its90_low_range[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_AllowChangeRange(VARIANT_BOOL* result) override { return Slot(its90_low_range[1], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowChangeRange(VARIANT_BOOL Value) override { return Slot(its90_low_range[1], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(its90_low_range[2], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(its90_low_range[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(its90_low_range[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(its90_low_range[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_RangeEnabled(VARIANT_BOOL* result) override { return Slot(its90_low_range[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_RangeEnabled(VARIANT_BOOL Value) override { return Slot(its90_low_range[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE RangeName(long vData, BSTR* result) override { return Slot(its90_low_range[6], QUOR_CALL, result, vData); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(its90_low_range[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Range(EITS90RangeNumber* result) override { return Slot(its90_low_range[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Range(EITS90RangeNumber Value) override { return Slot(its90_low_range[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_MaxRange(EITS90RangeNumber* result) override { return Slot(its90_low_range[9], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_MaxRange(EITS90RangeNumber Value) override { return Slot(its90_low_range[9], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_MinRange(EITS90RangeNumber* result) override { return Slot(its90_low_range[10], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_MinRange(EITS90RangeNumber Value) override { return Slot(its90_low_range[10], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EITS90LowRangeCoefficients Index, double* result) override { return Slot(its90_low_range[11], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EITS90LowRangeCoefficients Index, double Value) override { return Slot(its90_low_range[11], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(its90_low_range[12], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(its90_low_range[12], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE FillRangeCombo(IDispatch* ctrl) override { return Slot(its90_low_range[13], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(its90_low_range[14], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(its90_low_range[15], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member its90_high_range[] = {
    {L"ShowCoefRange", nullptr, 20, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"AllowChangeRange", nullptr, 21, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"RangeEnabled", nullptr, 22, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"RangeName", nullptr, 23, QUOR_CALL, VT_BSTR, 1, {{{L"vData", VT_I4}}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET, VT_I2, 0, {{}}},
    {L"Range", nullptr, 25, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"MaxRange", nullptr, 26, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"MinRange", nullptr, 27, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"FillRangeCombo", nullptr, 30, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorITS90HighRangeObject final : public Dual<ICQuorITS90HighRange> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_ShowCoefRange(VARIANT_BOOL* result) override { return Slot(its90_high_range[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ShowCoefRange(VARIANT_BOOL Value) override { return Slot(its90_high_range[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_AllowChangeRange(VARIANT_BOOL* result) override { return Slot(its90_high_range[1], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowChangeRange(VARIANT_BOOL Value) override { return Slot(its90_high_range[1], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(its90_high_range[2], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(its90_high_range[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(its90_high_range[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(its90_high_range[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_RangeEnabled(VARIANT_BOOL* result) override { return Slot(its90_high_range[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_RangeEnabled(VARIANT_BOOL Value) override { return Slot(its90_high_range[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE RangeName(long vData, BSTR* result) override { return Slot(its90_high_range[6], QUOR_CALL, result, vData); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(its90_high_range[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Range(EITS90RangeNumber* result) override { return Slot(its90_high_range[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Range(EITS90RangeNumber Value) override { return Slot(its90_high_range[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_MaxRange(EITS90RangeNumber* result) override { return Slot(its90_high_range[9], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_MaxRange(EITS90RangeNumber Value) override { return Slot(its90_high_range[9], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_MinRange(EITS90RangeNumber* result) override { return Slot(its90_high_range[10], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_MinRange(EITS90RangeNumber Value) override { return Slot(its90_high_range[10], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EITS90HighRangeCoefficients Index, double* result) override { return Slot(its90_high_range[11], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EITS90HighRangeCoefficients Index, double Value) override { return Slot(its90_high_range[11], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(its90_high_range[12], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(its90_high_range[12], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE FillRangeCombo(IDispatch* ctrl) override { return Slot(its90_high_range[13], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(its90_high_range[14], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(its90_high_range[15], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member ipts68[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"ScaleEnabled", nullptr, 31, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET, VT_I2, 0, {{}}},
    {L"IPTS68Scale", nullptr, 32, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"IPTS68ScaleName", nullptr, 33, QUOR_CALL, VT_BSTR, 1, {{{L"vData", VT_I4}}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 1, {{{L"Index", VT_I4}}}},
    {L"FillScaleCombo", nullptr, 34, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorIPTS68Object final : public Dual<ICQuorIPTS68> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(ipts68[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(ipts68[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(ipts68[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(ipts68[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(ipts68[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(ipts68[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(ipts68[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(ipts68[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_ScaleEnabled(VARIANT_BOOL* result) override { return Slot(ipts68[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ScaleEnabled(VARIANT_BOOL Value) override { return Slot(ipts68[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(ipts68[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_IPTS68Scale(EIPTS68Scale* result) override { return Slot(ipts68[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_IPTS68Scale(EIPTS68Scale Value) override { return Slot(ipts68[7], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE IPTS68ScaleName(long vData, BSTR* result) override { return Slot(ipts68[8], QUOR_CALL, result, vData); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EIPTS68Coefficients Index, double* result) override { return Slot(ipts68[9], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EIPTS68Coefficients Index, double Value) override { return Slot(ipts68[9], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(EIPTS68Coefficients Index, BSTR* result) override { return Slot(ipts68[10], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(EIPTS68Coefficients Index, BSTR Value) override { return Slot(ipts68[10], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE FillScaleCombo(IDispatch* ctrl) override { return Slot(ipts68[11], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(ipts68[12], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(ipts68[13], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(ipts68[14], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(ipts68[15], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(ipts68[16], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(ipts68[17], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member cvd[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"UsePolynomial", nullptr, 35, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 1, {{{L"Index", VT_I4}}}},
    {L"MaxCoefficients", nullptr, 36, QUOR_CALL, VT_I2, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorCVDObject final : public Dual<ICQuorCVD> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(cvd[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(cvd[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(cvd[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(cvd[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(cvd[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(cvd[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(cvd[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_NumCoefficients(short Value) override { return Slot(cvd[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(ECVDCoefficients Index, double* result) override { return Slot(cvd[5], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(ECVDCoefficients Index, double Value) override { return Slot(cvd[5], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_UsePolynomial(VARIANT_BOOL* result) override { return Slot(cvd[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_UsePolynomial(VARIANT_BOOL Value) override { return Slot(cvd[6], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(ECVDCoefficients Index, BSTR* result) override { return Slot(cvd[7], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(ECVDCoefficients Index, BSTR Value) override { return Slot(cvd[7], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE MaxCoefficients(short* result) override { return Slot(cvd[8], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(cvd[9], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(cvd[10], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(cvd[11], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(cvd[11], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(cvd[12], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(cvd[13], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(cvd[14], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(cvd[15], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member pt100[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 1, {{{L"Index", VT_I4}}}},
    {L"MaxCoefficients", nullptr, 36, QUOR_CALL, VT_I2, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorPT100Object final : public Dual<ICQuorPT100> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(pt100[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(pt100[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(pt100[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(pt100[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(pt100[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(pt100[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(pt100[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_NumCoefficients(short Value) override { return Slot(pt100[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EPT100Coefficients Index, double* result) override { return Slot(pt100[5], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EPT100Coefficients Index, double Value) override { return Slot(pt100[5], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(EPT100Coefficients Index, BSTR* result) override { return Slot(pt100[6], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(EPT100Coefficients Index, BSTR Value) override { return Slot(pt100[6], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE MaxCoefficients(short* result) override { return Slot(pt100[7], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(pt100[8], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(pt100[9], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(pt100[10], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(pt100[10], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(pt100[11], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(pt100[12], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(pt100[13], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(pt100[14], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member htprt[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 1, {{{L"Index", VT_I4}}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorHTPRTObject final : public Dual<ICQuorHTPRT> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(htprt[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(htprt[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(htprt[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(htprt[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(htprt[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(htprt[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(htprt[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(htprt[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(htprt[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EHTPRTCoefficients Index, double* result) override { return Slot(htprt[6], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EHTPRTCoefficients Index, double Value) override { return Slot(htprt[6], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(EHTPRTCoefficients Index, BSTR* result) override { return Slot(htprt[7], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(EHTPRTCoefficients Index, BSTR Value) override { return Slot(htprt[7], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(htprt[8], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(htprt[9], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(htprt[10], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(htprt[11], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(htprt[12], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(htprt[13], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member wt90[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"RTPW", nullptr, 18, QUOR_GET | QUOR_PUT, VT_R8, 0, {{}}},
    {L"RTPWFormat", nullptr, 19, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorWT90Object final : public Dual<ICQuorWT90> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(wt90[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(wt90[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(wt90[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(wt90[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(wt90[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(wt90[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(wt90[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(wt90[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_RTPW(double* result) override { return Slot(wt90[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_RTPW(double Value) override { return Slot(wt90[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_RTPWFormat(BSTR* result) override { return Slot(wt90[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_RTPWFormat(BSTR Value) override { return Slot(wt90[6], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(wt90[7], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(wt90[8], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(wt90[9], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(wt90[10], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(wt90[11], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(wt90[12], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member thermistor[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"ConvType", nullptr, 37, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"ConvName", nullptr, 38, QUOR_CALL, VT_BSTR, 1, {{{L"vData", VT_I4}}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorThermistorObject final : public Dual<ICQuorThermistor> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(thermistor[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(thermistor[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(thermistor[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(thermistor[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(thermistor[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(thermistor[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(thermistor[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(thermistor[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_ConvType(EThermistorConvType* result) override { return Slot(thermistor[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ConvType(EThermistorConvType Value) override { return Slot(thermistor[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE ConvName(long vData, BSTR* result) override { return Slot(thermistor[6], QUOR_CALL, result, vData); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(thermistor[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EThermistorCoefficients Index, double* result) override { return Slot(thermistor[8], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EThermistorCoefficients Index, double Value) override { return Slot(thermistor[8], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(thermistor[9], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(thermistor[9], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(thermistor[10], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(thermistor[11], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(thermistor[12], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(thermistor[13], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(thermistor[14], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(thermistor[15], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member polynomial[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET, VT_I2, 0, {{}}},
    {L"Order", nullptr, 39, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"MinOrder", nullptr, 40, QUOR_GET, VT_I2, 0, {{}}},
    {L"MaxOrder", nullptr, 41, QUOR_GET, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_PUT | QUOR_GET, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_PUT | QUOR_GET, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"CoefficientLabelPrefix", nullptr, 42, QUOR_PUT | QUOR_GET, VT_BSTR, 0, {{}}},
};

class CQuorPolynomialObject final : public Dual<ICQuorPolynomial> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(polynomial[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(polynomial[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(polynomial[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(polynomial[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(polynomial[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(polynomial[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(polynomial[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(polynomial[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(polynomial[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Order(short* result) override { return Slot(polynomial[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Order(short Value) override { return Slot(polynomial[6], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_MinOrder(short* result) override { return Slot(polynomial[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_MaxOrder(short* result) override { return Slot(polynomial[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(EPolynomialCoefficients Index, double Value) override { return Slot(polynomial[9], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(EPolynomialCoefficients Index, double* result) override { return Slot(polynomial[9], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(polynomial[10], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(polynomial[10], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(polynomial[11], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(polynomial[12], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(polynomial[13], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(polynomial[14], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(polynomial[15], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(polynomial[16], QUOR_CALL, result, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE put_CoefficientLabelPrefix(BSTR Value) override { return Slot(polynomial[17], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_CoefficientLabelPrefix(BSTR* result) override { return Slot(polynomial[17], QUOR_GET, result); }
};

constexpr Member tc_polynomial[] = {
    {L"mV25CFormat", nullptr, 43, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"mV25C", nullptr, 44, QUOR_GET | QUOR_PUT, VT_R8, 0, {{}}},
    {L"ShowmV25C", nullptr, 45, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorTCPolynomialObject final : public Dual<ICQuorTCPolynomial> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_mV25CFormat(BSTR* result) override { return Slot(tc_polynomial[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_mV25CFormat(BSTR Value) override { return Slot(tc_polynomial[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_mV25C(double* result) override { return Slot(tc_polynomial[1], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_mV25C(double Value) override { return Slot(tc_polynomial[1], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_ShowmV25C(VARIANT_BOOL* result) override { return Slot(tc_polynomial[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ShowmV25C(VARIANT_BOOL Value) override { return Slot(tc_polynomial[2], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(tc_polynomial[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(tc_polynomial[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(tc_polynomial[4], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(tc_polynomial[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(tc_polynomial[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(tc_polynomial[6], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(tc_polynomial[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(tc_polynomial[7], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(tc_polynomial[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_NumCoefficients(short Value) override { return Slot(tc_polynomial[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(ETCPolynomialCoefficients Index, double* result) override { return Slot(tc_polynomial[9], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(ETCPolynomialCoefficients Index, double Value) override { return Slot(tc_polynomial[9], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(tc_polynomial[10], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(tc_polynomial[10], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(tc_polynomial[11], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(tc_polynomial[12], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_polynomial[13], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_polynomial[14], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(tc_polynomial[15], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(tc_polynomial[16], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member tc_table[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"NumPoints", nullptr, 46, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"Temperatures", nullptr, 47, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"Voltages", nullptr, 48, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"TempFormat", nullptr, 49, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"VoltageFormat", nullptr, 50, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"TempScale", nullptr, 51, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"VoltageScale", nullptr, 52, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 0, {{}}},
    {L"FillPointsCombo", nullptr, 53, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorTCTableObject final : public Dual<ICQuorTCTable> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(tc_table[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(tc_table[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(tc_table[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(tc_table[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(tc_table[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(tc_table[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(tc_table[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(tc_table[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumPoints(short* result) override { return Slot(tc_table[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_NumPoints(short Value) override { return Slot(tc_table[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Temperatures(ETCTableCoefficients Index, double* result) override { return Slot(tc_table[6], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Temperatures(ETCTableCoefficients Index, double Value) override { return Slot(tc_table[6], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_Voltages(ETCTableCoefficients Index, double* result) override { return Slot(tc_table[7], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Voltages(ETCTableCoefficients Index, double Value) override { return Slot(tc_table[7], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_TempFormat(BSTR* result) override { return Slot(tc_table[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_TempFormat(BSTR Value) override { return Slot(tc_table[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_VoltageFormat(BSTR* result) override { return Slot(tc_table[9], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_VoltageFormat(BSTR Value) override { return Slot(tc_table[9], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_TempScale(BSTR* result) override { return Slot(tc_table[10], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_TempScale(BSTR Value) override { return Slot(tc_table[10], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_VoltageScale(BSTR* result) override { return Slot(tc_table[11], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_VoltageScale(BSTR Value) override { return Slot(tc_table[11], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(tc_table[12], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(BSTR* result) override { return Slot(tc_table[13], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE FillPointsCombo(IDispatch* ctrl) override { return Slot(tc_table[14], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_table[15], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_table[16], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(tc_table[17], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(tc_table[18], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member tc_typex[] = {
    {L"ShowDCCoefs", nullptr, 54, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"TempScale", nullptr, 51, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"OffsetScale", nullptr, 55, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"TCType", nullptr, 56, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"GetTCTypeName", nullptr, 57, QUOR_CALL, VT_BSTR, 1, {{{L"tc", VT_I4}}}},
    {L"FillTCTypeNameCombo", nullptr, 58, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"NumPoints", nullptr, 46, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"Temperatures", nullptr, 47, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"Offsets", nullptr, 59, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"TempFormat", nullptr, 49, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"OffsetFormat", nullptr, 60, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 1, {{{L"tc", VT_I4}}}},
    {L"FillPointsCombo", nullptr, 53, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorTCTypeXObject final : public Dual<ICQuorTCTypeX> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_ShowDCCoefs(VARIANT_BOOL* result) override { return Slot(tc_typex[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ShowDCCoefs(VARIANT_BOOL Value) override { return Slot(tc_typex[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(tc_typex[1], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(tc_typex[1], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(tc_typex[2], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(tc_typex[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(tc_typex[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(tc_typex[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_TempScale(BSTR* result) override { return Slot(tc_typex[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_TempScale(BSTR Value) override { return Slot(tc_typex[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_OffsetScale(BSTR* result) override { return Slot(tc_typex[6], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_OffsetScale(BSTR Value) override { return Slot(tc_typex[6], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(tc_typex[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(tc_typex[7], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_TCType(ETCType* result) override { return Slot(tc_typex[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_TCType(ETCType Value) override { return Slot(tc_typex[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE GetTCTypeName(long tc, BSTR* result) override { return Slot(tc_typex[9], QUOR_CALL, result, tc); }
    HRESULT STDMETHODCALLTYPE FillTCTypeNameCombo(IDispatch* ctrl) override { return Slot(tc_typex[10], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE get_NumPoints(short* result) override { return Slot(tc_typex[11], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_NumPoints(short Value) override { return Slot(tc_typex[11], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Temperatures(ETCTypeXCoefficients Index, double* result) override { return Slot(tc_typex[12], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Temperatures(ETCTypeXCoefficients Index, double Value) override { return Slot(tc_typex[12], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(ETCTypeXCoefficients Index, double* result) override { return Slot(tc_typex[13], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(ETCTypeXCoefficients Index, double Value) override { return Slot(tc_typex[13], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_Offsets(ETCTypeXCoefficients Index, double* result) override { return Slot(tc_typex[14], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Offsets(ETCTypeXCoefficients Index, double Value) override { return Slot(tc_typex[14], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_TempFormat(BSTR* result) override { return Slot(tc_typex[15], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_TempFormat(BSTR Value) override { return Slot(tc_typex[15], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(tc_typex[16], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(tc_typex[16], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_OffsetFormat(BSTR* result) override { return Slot(tc_typex[17], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_OffsetFormat(BSTR Value) override { return Slot(tc_typex[17], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(tc_typex[18], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(long tc, BSTR* result) override { return Slot(tc_typex[19], QUOR_CALL, result, tc); }
    HRESULT STDMETHODCALLTYPE FillPointsCombo(IDispatch* ctrl) override { return Slot(tc_typex[20], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_typex[21], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_typex[22], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(tc_typex[23], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(tc_typex[24], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr Member tc_typepoly[] = {
    {L"AllowEdit", nullptr, 1, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"SetRegistry", nullptr, 3, QUOR_CALL, VT_EMPTY, 1, {{{L"vData", VT_DISPATCH | VT_BYREF, Offer::Registry}}}},
    {L"Registry", nullptr, 4, QUOR_GET, VT_DISPATCH, 0, {{}}},
    {L"Changed", nullptr, 5, QUOR_GET | QUOR_PUT, VT_BOOL, 0, {{}}},
    {L"FilePath", nullptr, 6, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"NumCoefficients", nullptr, 24, QUOR_GET | QUOR_PUT, VT_I2, 0, {{}}},
    {L"Coefficients", nullptr, 28, QUOR_GET | QUOR_PUT, VT_R8, 1, {{{L"Index", VT_I4}}}},
    {L"ValueFormat", nullptr, 29, QUOR_GET | QUOR_PUT, VT_BSTR, 0, {{}}},
    {L"TCType", nullptr, 56, QUOR_GET | QUOR_PUT, VT_I4, 0, {{}}},
    {L"GetTCTypeName", nullptr, 57, QUOR_CALL, VT_BSTR, 1, {{{L"tc", VT_I4}}}},
    {L"FillTCTypeNameCombo", nullptr, 58, QUOR_CALL, VT_EMPTY, 1, {{{L"ctrl", VT_DISPATCH, Offer::ListControl}}}},
    {L"Edit", nullptr, 10, QUOR_CALL, VT_BOOL, 0, {{}}},
    {L"GetName", nullptr, 13, QUOR_CALL, VT_BSTR, 1, {{{L"tc", VT_I4}}}},
    {L"OpenFile", nullptr, 14, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"SaveFileAs", nullptr, 15, QUOR_CALL, VT_BOOL, 2, {{{L"hwnd", VT_I4}, {L"Filename", VT_BSTR | VT_BYREF}}}},
    {L"WriteToFile", nullptr, 11, QUOR_CALL, VT_EMPTY, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
    {L"ReadFromFile", nullptr, 12, QUOR_CALL, VT_BOOL, 3, {{{L"INIFile", VT_DISPATCH | VT_BYREF, Offer::IniFile}, {L"fname", VT_BSTR}, {L"secname", VT_BSTR}}}},
};

class CQuorTCTypePolyObject final : public Dual<ICQuorTCTypePoly> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) override { return Slot(tc_typepoly[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL Value) override { return Slot(tc_typepoly[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE SetRegistry(IDispatch** vData) override { return Slot(tc_typepoly[1], QUOR_CALL, nullptr, vData); }
    HRESULT STDMETHODCALLTYPE get_Registry(IDispatch** result) override { return Slot(tc_typepoly[2], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE get_Changed(VARIANT_BOOL* result) override { return Slot(tc_typepoly[3], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Changed(VARIANT_BOOL Value) override { return Slot(tc_typepoly[3], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* result) override { return Slot(tc_typepoly[4], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_FilePath(BSTR Value) override { return Slot(tc_typepoly[4], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_NumCoefficients(short* result) override { return Slot(tc_typepoly[5], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_NumCoefficients(short Value) override { return Slot(tc_typepoly[5], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Coefficients(ETCPolynomialCoefficients Index, double* result) override { return Slot(tc_typepoly[6], QUOR_GET, result, Index); }
    HRESULT STDMETHODCALLTYPE put_Coefficients(ETCPolynomialCoefficients Index, double Value) override { return Slot(tc_typepoly[6], QUOR_PUT, nullptr, Index, Value); }
    HRESULT STDMETHODCALLTYPE get_ValueFormat(BSTR* result) override { return Slot(tc_typepoly[7], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_ValueFormat(BSTR Value) override { return Slot(tc_typepoly[7], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_TCType(ETCType* result) override { return Slot(tc_typepoly[8], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_TCType(ETCType Value) override { return Slot(tc_typepoly[8], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE GetTCTypeName(long tc, BSTR* result) override { return Slot(tc_typepoly[9], QUOR_CALL, result, tc); }
    HRESULT STDMETHODCALLTYPE FillTCTypeNameCombo(IDispatch* ctrl) override { return Slot(tc_typepoly[10], QUOR_CALL, nullptr, ctrl); }
    HRESULT STDMETHODCALLTYPE Edit(VARIANT_BOOL* result) override { return Slot(tc_typepoly[11], QUOR_CALL, result); }
    HRESULT STDMETHODCALLTYPE GetName(long tc, BSTR* result) override { return Slot(tc_typepoly[12], QUOR_CALL, result, tc); }
    HRESULT STDMETHODCALLTYPE OpenFile(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_typepoly[13], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE SaveFileAs(long hwnd, BSTR* Filename, VARIANT_BOOL* result) override { return Slot(tc_typepoly[14], QUOR_CALL, result, hwnd, Filename); }
    HRESULT STDMETHODCALLTYPE WriteToFile(IDispatch** INIFile, BSTR fname, BSTR secname) override { return Slot(tc_typepoly[15], QUOR_CALL, nullptr, INIFile, fname, secname); }
    HRESULT STDMETHODCALLTYPE ReadFromFile(IDispatch** INIFile, BSTR fname, BSTR secname, VARIANT_BOOL* result) override { return Slot(tc_typepoly[16], QUOR_CALL, result, INIFile, fname, secname); }
};

constexpr ClassRow classes[] = {
    {"CQuorConversion", L"QuorConversions.CQuorConversion",
     {0xe6b6e5ca, 0x61de, 0x4a33, {0x8f, 0x73, 0x24, 0xa9, 0x04, 0x04, 0xa2, 0x96}},
     {0xef8591ef, 0x0c89, 0x4baa, {0x87, 0x7a, 0xd3, 0xdb, 0x14, 0xc6, 0x22, 0x68}},
     conversion, Make<CQuorConversionObject>},
    {"CQuorITS90", nullptr,
     {0x7863ac5a, 0x45c0, 0x40c5, {0x91, 0x77, 0x0e, 0xcf, 0x56, 0xd3, 0xdc, 0x2e}},
     {0xedefc50c, 0x02f4, 0x4158, {0xbd, 0x6c, 0x4e, 0x39, 0x33, 0xff, 0x31, 0xb1}},
     its90, Make<CQuorITS90Object>},
    {"CQuorITS90LowRange", nullptr,
     {0x7f7b1f93, 0x34f9, 0x4bbc, {0x81, 0xc2, 0xba, 0xc6, 0x27, 0x1a, 0x8c, 0x31}},
     {0xb8d312ab, 0x3bdc, 0x4701, {0xb6, 0x34, 0x30, 0x88, 0x48, 0xae, 0xc3, 0x49}},
     its90_low_range, Make<CQuorITS90LowRangeObject>},
    {"CQuorITS90HighRange", nullptr,
     {0x4203c7f2, 0x4428, 0x4806, {0x98, 0xcf, 0xce, 0x92, 0xcc, 0xb9, 0xc2, 0x67}},
     {0xb2046f26, 0xb1cb, 0x4d64, {0x85, 0xa8, 0x97, 0xb7, 0x51, 0x5e, 0xde, 0xa6}},
     its90_high_range, Make<CQuorITS90HighRangeObject>},
    {"CQuorIPTS68", nullptr,
     {0x037ff62c, 0xdd08, 0x4098, {0xb3, 0x43, 0x3c, 0x4f, 0x51, 0x4d, 0x41, 0xf2}},
     {0xbc15ff05, 0x4f71, 0x458d, {0xb3, 0x5c, 0x5c, 0x07, 0x5c, 0x38, 0xdc, 0xa8}},
     ipts68, Make<CQuorIPTS68Object>},
    {"CQuorCVD", nullptr,
     {0x5785f322, 0xe138, 0x4912, {0x93, 0xf4, 0x10, 0xc3, 0xba, 0x05, 0x45, 0x32}},
     {0x4b9964d3, 0x2431, 0x4bcd, {0x94, 0x48, 0x63, 0x37, 0x66, 0x5a, 0xd2, 0x22}},
     cvd, Make<CQuorCVDObject>},
    {"CQuorPT100", L"QuorConversions.CQuorPT100",
     {0x1cbd723a, 0xe505, 0x4ffc, {0x9a, 0xdb, 0x94, 0x39, 0x42, 0x48, 0xfa, 0x2c}},
     {0x5f233977, 0x0fd3, 0x4871, {0xa4, 0x22, 0x59, 0x19, 0x51, 0xf0, 0xe0, 0x0a}},
     pt100, Make<CQuorPT100Object>},
    {"CQuorHTPRT", nullptr,
     {0x7c6cc9f4, 0x1867, 0x4711, {0xb0, 0xec, 0x00, 0x9a, 0x7b, 0x9a, 0x08, 0x7d}},
     {0xdbcb2f37, 0x53e4, 0x49f4, {0xb4, 0xb3, 0x6a, 0x71, 0xbf, 0x70, 0xd8, 0x84}},
     htprt, Make<CQuorHTPRTObject>},
    {"CQuorWT90", nullptr,
     {0xfbfbac2a, 0x0aa8, 0x45bf, {0x88, 0x55, 0xc2, 0x0e, 0x55, 0x19, 0x38, 0xd8}},
     {0xe126be0e, 0x3ad8, 0x49f7, {0x8b, 0x65, 0xf5, 0x10, 0x93, 0x30, 0x80, 0x9c}},
     wt90, Make<CQuorWT90Object>},
    {"CQuorThermistor", nullptr,
     {0x0f50e460, 0x6be4, 0x4436, {0xa9, 0xe8, 0xdc, 0xac, 0x7c, 0xea, 0x03, 0x43}},
     {0x15ed363a, 0x245d, 0x4e8f, {0xbd, 0x91, 0xe3, 0x84, 0x94, 0x71, 0xcd, 0x1f}},
     thermistor, Make<CQuorThermistorObject>},
    {"CQuorPolynomial", nullptr,
     {0xcd9dd149, 0x4efa, 0x44ed, {0x9f, 0x67, 0x5a, 0x13, 0x0a, 0xe4, 0x1a, 0x28}},
     {0x7e4d8000, 0x52f8, 0x4619, {0xaf, 0xfd, 0x7b, 0xdd, 0x75, 0x78, 0xcf, 0xe3}},
     polynomial, Make<CQuorPolynomialObject>},
    {"CQuorTCPolynomial", nullptr,
     {0xd6f7417c, 0xfdb1, 0x49d7, {0xaf, 0x3a, 0xcd, 0x75, 0x88, 0x8c, 0x0d, 0x03}},
     {0x3991c865, 0xe1f6, 0x4308, {0xa6, 0x5b, 0xc0, 0xfc, 0x41, 0x7c, 0xb4, 0x7e}},
     tc_polynomial, Make<CQuorTCPolynomialObject>},
    {"CQuorTCTable", nullptr,
     {0x6605f395, 0x772d, 0x4e0d, {0xb5, 0xc8, 0xab, 0x89, 0xf5, 0x3b, 0xbb, 0x59}},
     {0x6c741143, 0xc3f8, 0x410b, {0xa7, 0x2b, 0xe8, 0xc3, 0x55, 0x31, 0x70, 0xc9}},
     tc_table, Make<CQuorTCTableObject>},
    {"CQuorTCTypeX", nullptr,
     {0xb6bd214a, 0xf068, 0x40b1, {0x98, 0xac, 0xce, 0x99, 0x1b, 0x14, 0x07, 0xd8}},
     {0xfd5454db, 0xa5e8, 0x46d3, {0xab, 0x15, 0x0e, 0x89, 0x53, 0xd5, 0x73, 0x7d}},
     tc_typex, Make<CQuorTCTypeXObject>},
    {"CQuorTCTypePoly", L"QuorConversions.CQuorTCTypePoly",
     {0x71b81671, 0xcb3f, 0x42fe, {0x81, 0x59, 0xe5, 0x5a, 0x08, 0x53, 0x9f, 0x04}},
     {0x7845ddf3, 0x0dc2, 0x4428, {0x9d, 0x94, 0xd6, 0x4a, 0x7a, 0xcd, 0x16, 0xea}},
     tc_typepoly, Make<CQuorTCTypePolyObject>},
};

} // namespace

const ServerRow server = {L"QuorConversions", {0x597d2347, 0xfd30, 0x4155, {0x9e, 0xb4, 0x21, 0x8f, 0xbd, 0xfd, 0x47, 0x3c}}, 1, 0, classes};

} // namespace QuorConversions::Automation
