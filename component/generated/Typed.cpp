// Made by component/generate from members.txt: change that.
// clang-format off

#include "component/Call.h"

namespace QuorConversions::Component {

static_assert(+QUOR_CONV_NONE == +CONV_NONE);
static_assert(+QUOR_CONV_ITS90 == +CONV_ITS90);
static_assert(+QUOR_CONV_IPTS68 == +CONV_IPTS68);
static_assert(+QUOR_CONV_CVD == +CONV_CVD);
static_assert(+QUOR_CONV_HTPRT == +CONV_HTPRT);
static_assert(+QUOR_CONV_POLYNOMIAL == +CONV_POLYNOMIAL);
static_assert(+QUOR_CONV_THERMISTORT_R == +CONV_THERMISTORT_R);
static_assert(+QUOR_CONV_THERMISTORR_T == +CONV_THERMISTORR_T);
static_assert(+QUOR_CONV_TCPOLYNOMIAL == +CONV_TCPOLYNOMIAL);
static_assert(+QUOR_CONV_TCTABLE == +CONV_TCTABLE);
static_assert(+QUOR_CONV_TCTYPEX == +CONV_TCTYPEX);
static_assert(+QUOR_CONV_OHMS == +CONV_OHMS);
static_assert(+QUOR_CONV_VOLTS == +CONV_VOLTS);
static_assert(+QUOR_CONV_IEC751 == +CONV_IEC751);
static_assert(+QUOR_CONV_YSI400 == +CONV_YSI400);
static_assert(+QUOR_CONV_WT90 == +CONV_WT90);
static_assert(+QUOR_CONV_RATIO == +CONV_RATIO);
static_assert(+QUOR_CONV_PT100 == +CONV_PT100);
static_assert(+QUOR_CONV_ITSSR5 == +CONV_ITSSR5);
static_assert(+QUOR_CONV_THERMISTOR_OHMS == +CONV_THERMISTOR_OHMS);
static_assert(+QUOR_CONV_PT100R0 == +CONV_PT100R0);
static_assert(+QUOR_CONV_TCTYPEPOLY == +CONV_TCTYPEPOLY);
static_assert(+QUOR_ITS90_NORANGE == +ITS90_NORANGE);
static_assert(+QUOR_ITS90_RANGE_1 == +ITS90_RANGE_1);
static_assert(+QUOR_ITS90_RANGE_2 == +ITS90_RANGE_2);
static_assert(+QUOR_ITS90_RANGE_3 == +ITS90_RANGE_3);
static_assert(+QUOR_ITS90_RANGE_4 == +ITS90_RANGE_4);
static_assert(+QUOR_ITS90_RANGE_5 == +ITS90_RANGE_5);
static_assert(+QUOR_ITS90_RANGE_6 == +ITS90_RANGE_6);
static_assert(+QUOR_ITS90_RANGE_7 == +ITS90_RANGE_7);
static_assert(+QUOR_ITS90_RANGE_8 == +ITS90_RANGE_8);
static_assert(+QUOR_ITS90_RANGE_9 == +ITS90_RANGE_9);
static_assert(+QUOR_ITS90_RANGE_10 == +ITS90_RANGE_10);
static_assert(+QUOR_ITS90_RANGE_11 == +ITS90_RANGE_11);
static_assert(+QUOR_IR_NONE == +IR_NONE);
static_assert(+QUOR_IR_LOWRANGE == +IR_LOWRANGE);
static_assert(+QUOR_IR_HIGHRANGE == +IR_HIGHRANGE);
static_assert(+QUOR_ITS90_LOW_A == +ITS90_LOW_A);
static_assert(+QUOR_ITS90_LOW_B == +ITS90_LOW_B);
static_assert(+QUOR_ITS90_LOW_C1 == +ITS90_LOW_C1);
static_assert(+QUOR_ITS90_LOW_C2 == +ITS90_LOW_C2);
static_assert(+QUOR_ITS90_LOW_C3 == +ITS90_LOW_C3);
static_assert(+QUOR_ITS90_LOW_C4 == +ITS90_LOW_C4);
static_assert(+QUOR_ITS90_LOW_C5 == +ITS90_LOW_C5);
static_assert(+QUOR_ITS90_HIGH_A == +ITS90_HIGH_A);
static_assert(+QUOR_ITS90_HIGH_B == +ITS90_HIGH_B);
static_assert(+QUOR_ITS90_HIGH_C == +ITS90_HIGH_C);
static_assert(+QUOR_ITS90_HIGH_D == +ITS90_HIGH_D);
static_assert(+QUOR_IPTS68_R0 == +IPTS68_R0);
static_assert(+QUOR_IPTS68_ALPHA == +IPTS68_ALPHA);
static_assert(+QUOR_IPTS68_DELTA == +IPTS68_DELTA);
static_assert(+QUOR_IPTS68_A4 == +IPTS68_A4);
static_assert(+QUOR_IPTS68_C4 == +IPTS68_C4);
static_assert(+QUOR_SCALE_ITS90 == +SCALE_ITS90);
static_assert(+QUOR_SCALE_IPTS68 == +SCALE_IPTS68);
static_assert(+QUOR_CVD_R0 == +CVD_R0);
static_assert(+QUOR_CVD_ALPHA == +CVD_ALPHA);
static_assert(+QUOR_CVD_DELTA == +CVD_DELTA);
static_assert(+QUOR_CVD_BETA == +CVD_BETA);
static_assert(+QUOR_PT100_R0 == +PT100_R0);
static_assert(+QUOR_HTPRT_RTPW == +HTPRT_RTPW);
static_assert(+QUOR_HTPRT_A == +HTPRT_A);
static_assert(+QUOR_HTPRT_B == +HTPRT_B);
static_assert(+QUOR_TCT_THRMT_R == +TCT_THRMT_R);
static_assert(+QUOR_TCT_THRMR_T == +TCT_THRMR_T);
static_assert(+QUOR_THRM_A0 == +THRM_A0);
static_assert(+QUOR_THRM_A1 == +THRM_A1);
static_assert(+QUOR_THRM_A2 == +THRM_A2);
static_assert(+QUOR_THRM_A3 == +THRM_A3);
static_assert(+QUOR_THRM_B0 == +THRM_B0);
static_assert(+QUOR_THRM_B1 == +THRM_B1);
static_assert(+QUOR_THRM_B2 == +THRM_B2);
static_assert(+QUOR_THRM_B3 == +THRM_B3);
static_assert(+QUOR_POLY_A0 == +POLY_A0);
static_assert(+QUOR_POLY_A1 == +POLY_A1);
static_assert(+QUOR_POLY_A2 == +POLY_A2);
static_assert(+QUOR_POLY_A3 == +POLY_A3);
static_assert(+QUOR_POLY_A4 == +POLY_A4);
static_assert(+QUOR_POLY_A5 == +POLY_A5);
static_assert(+QUOR_POLY_A6 == +POLY_A6);
static_assert(+QUOR_POLY_A7 == +POLY_A7);
static_assert(+QUOR_POLY_A8 == +POLY_A8);
static_assert(+QUOR_POLY_A9 == +POLY_A9);
static_assert(+QUOR_POLY_A10 == +POLY_A10);
static_assert(+QUOR_TC_POLY_C0 == +TC_POLY_C0);
static_assert(+QUOR_TC_POLY_C1 == +TC_POLY_C1);
static_assert(+QUOR_TC_POLY_C2 == +TC_POLY_C2);
static_assert(+QUOR_TC_POLY_C3 == +TC_POLY_C3);
static_assert(+QUOR_TC_POLY_C4 == +TC_POLY_C4);
static_assert(+QUOR_TC_POLY_C5 == +TC_POLY_C5);
static_assert(+QUOR_TC_POLY_C6 == +TC_POLY_C6);
static_assert(+QUOR_TC_POLY_C7 == +TC_POLY_C7);
static_assert(+QUOR_TC_POLY_C8 == +TC_POLY_C8);
static_assert(+QUOR_TC_POLY_C9 == +TC_POLY_C9);
static_assert(+QUOR_TC_POLY_C10 == +TC_POLY_C10);
static_assert(+QUOR_TC_POLY_C11 == +TC_POLY_C11);
static_assert(+QUOR_TC_POLY_C12 == +TC_POLY_C12);
static_assert(+QUOR_TC_POLY_C13 == +TC_POLY_C13);
static_assert(+QUOR_TC_POLY_C14 == +TC_POLY_C14);
static_assert(+QUOR_TC_POLY_C15 == +TC_POLY_C15);
static_assert(+QUOR_TCTABLE_T1 == +TCTABLE_T1);
static_assert(+QUOR_TCTABLE_T2 == +TCTABLE_T2);
static_assert(+QUOR_TCTABLE_T3 == +TCTABLE_T3);
static_assert(+QUOR_TCTABLE_T4 == +TCTABLE_T4);
static_assert(+QUOR_TCTABLE_T5 == +TCTABLE_T5);
static_assert(+QUOR_TCTABLE_T6 == +TCTABLE_T6);
static_assert(+QUOR_TCTABLE_T7 == +TCTABLE_T7);
static_assert(+QUOR_TCTABLE_T8 == +TCTABLE_T8);
static_assert(+QUOR_TCTABLE_T9 == +TCTABLE_T9);
static_assert(+QUOR_TCTABLE_T10 == +TCTABLE_T10);
static_assert(+QUOR_TCTABLE_ADJ1 == +TCTABLE_ADJ1);
static_assert(+QUOR_TCTABLE_ADJ2 == +TCTABLE_ADJ2);
static_assert(+QUOR_TCTABLE_ADJ3 == +TCTABLE_ADJ3);
static_assert(+QUOR_TCTABLE_ADJ4 == +TCTABLE_ADJ4);
static_assert(+QUOR_TCTABLE_ADJ5 == +TCTABLE_ADJ5);
static_assert(+QUOR_TCTABLE_ADJ6 == +TCTABLE_ADJ6);
static_assert(+QUOR_TCTABLE_ADJ7 == +TCTABLE_ADJ7);
static_assert(+QUOR_TCTABLE_ADJ8 == +TCTABLE_ADJ8);
static_assert(+QUOR_TCTABLE_ADJ9 == +TCTABLE_ADJ9);
static_assert(+QUOR_TCTABLE_ADJ10 == +TCTABLE_ADJ10);
static_assert(+QUOR_TCTYPEX_T1 == +TCTYPEX_T1);
static_assert(+QUOR_TCTYPEX_T2 == +TCTYPEX_T2);
static_assert(+QUOR_TCTYPEX_T3 == +TCTYPEX_T3);
static_assert(+QUOR_TCTYPEX_ADJ1 == +TCTYPEX_ADJ1);
static_assert(+QUOR_TCTYPEX_ADJ2 == +TCTYPEX_ADJ2);
static_assert(+QUOR_TCTYPEX_ADJ3 == +TCTYPEX_ADJ3);
static_assert(+QUOR_TCTYPEX_DC1 == +TCTYPEX_DC1);
static_assert(+QUOR_TCTYPEX_DC2 == +TCTYPEX_DC2);
static_assert(+QUOR_TCTYPE_NONE == +TCTYPE_NONE);
static_assert(+QUOR_TCTYPE_B == +TCTYPE_B);
static_assert(+QUOR_TCTYPE_C == +TCTYPE_C);
static_assert(+QUOR_TCTYPE_E == +TCTYPE_E);
static_assert(+QUOR_TCTYPE_J == +TCTYPE_J);
static_assert(+QUOR_TCTYPE_K == +TCTYPE_K);
static_assert(+QUOR_TCTYPE_L == +TCTYPE_L);
static_assert(+QUOR_TCTYPE_M == +TCTYPE_M);
static_assert(+QUOR_TCTYPE_N == +TCTYPE_N);
static_assert(+QUOR_TCTYPE_R == +TCTYPE_R);
static_assert(+QUOR_TCTYPE_S == +TCTYPE_S);
static_assert(+QUOR_TCTYPE_T == +TCTYPE_T);
static_assert(+QUOR_TCTYPE_U == +TCTYPE_U);
static_assert(+QUOR_TCTYPE_AUPT == +TCTYPE_AUPT);
static_assert(+QUOR_POINTER_DEFAULT == +POINTER_DEFAULT);
static_assert(+QUOR_POINTER_HOURGLASS == +POINTER_HOURGLASS);
static_assert(+QUOR_ICON_CRITICAL == +ICON_CRITICAL);
static_assert(+QUOR_ICON_INFORMATION == +ICON_INFORMATION);
static_assert(+QUOR_FILE_DIALOG_OPEN == +FILE_DIALOG_OPEN);
static_assert(+QUOR_FILE_DIALOG_SAVE == +FILE_DIALOG_SAVE);
static_assert(+QUOR_CONTROL_LABEL == +CONTROL_LABEL);
static_assert(+QUOR_CONTROL_PUSH_BUTTON == +CONTROL_PUSH_BUTTON);
static_assert(+QUOR_CONTROL_TEXT_BOX == +CONTROL_TEXT_BOX);
static_assert(+QUOR_CONTROL_DROP_DOWN_LIST == +CONTROL_DROP_DOWN_LIST);
static_assert(+QUOR_CONTROL_FRAME == +CONTROL_FRAME);
static_assert(+QUOR_CONTROL_TAB_STRIP == +CONTROL_TAB_STRIP);
static_assert(+QUOR_PROBE_NO_SUCH_SECTION == +PROBE_NO_SUCH_SECTION);
static_assert(+QUOR_PROBE_NO_RECORD == +PROBE_NO_RECORD);
static_assert(+QUOR_PROBE_TYPE_UNREADABLE == +PROBE_TYPE_UNREADABLE);
static_assert(+QUOR_PROBE_UNKNOWN_TYPE == +PROBE_UNKNOWN_TYPE);
static_assert(+QUOR_PROBE_INCOMPLETE == +PROBE_INCOMPLETE);
static_assert(+QUOR_PROBE_BAD_NAME == +PROBE_BAD_NAME);
static_assert(+QUOR_PROBE_NAME_IS_TAKEN == +PROBE_NAME_IS_TAKEN);
static_assert(+QUOR_PROBE_NAME_OF_SETTINGS == +PROBE_NAME_OF_SETTINGS);
static_assert(+QUOR_PROBE_SETTINGS_ARE_TAKEN == +PROBE_SETTINGS_ARE_TAKEN);
static_assert(+QUOR_PROBE_SECTION_IS_SHARED == +PROBE_SECTION_IS_SHARED);
static_assert(+QUOR_PROBE_OF_ANOTHER_TYPE == +PROBE_OF_ANOTHER_TYPE);
static_assert(+QUOR_PROBE_DOES_NOT_FIT_FILE == +PROBE_DOES_NOT_FIT_FILE);
static_assert(+QUOR_PROBE_CANNOT_BE_WRITTEN == +PROBE_CANNOT_BE_WRITTEN);
static_assert(+QUOR_PROBE_SECTION_OF_HOST == +PROBE_SECTION_OF_HOST);
static_assert(+QUOR_PROBE_INCONSISTENT == +PROBE_INCONSISTENT);
static_assert(+QUOR_PROBLEM_SECTION_MISSING == +PROBLEM_SECTION_MISSING);
static_assert(+QUOR_PROBLEM_KEY_MISSING == +PROBLEM_KEY_MISSING);
static_assert(+QUOR_PROBLEM_VALUE_UNREADABLE == +PROBLEM_VALUE_UNREADABLE);
static_assert(+QUOR_PROBLEM_UNKNOWN_TYPE == +PROBLEM_UNKNOWN_TYPE);
static_assert(+QUOR_PROBLEM_RECORD_REFUSED == +PROBLEM_RECORD_REFUSED);
static_assert(+QUOR_PROBLEM_VALUE_REFUSED == +PROBLEM_VALUE_REFUSED);
static_assert(+QUOR_PROBLEM_VALUE_REPLACED == +PROBLEM_VALUE_REPLACED);
static_assert(+QUOR_PROBLEM_UNKNOWN_KEY == +PROBLEM_UNKNOWN_KEY);
static_assert(+QUOR_PROBLEM_DUPLICATE_KEY == +PROBLEM_DUPLICATE_KEY);
static_assert(+QUOR_PROBLEM_DUPLICATE_SECTION == +PROBLEM_DUPLICATE_SECTION);
static_assert(+QUOR_PROBLEM_UNCLOSED_HEADER == +PROBLEM_UNCLOSED_HEADER);
static_assert(+QUOR_PROBLEM_MALFORMED_LINE == +PROBLEM_MALFORMED_LINE);
static_assert(+QUOR_PROBLEM_KEPT_FILE == +PROBLEM_KEPT_FILE);
static_assert(+QUOR_PROBLEM_INTERRUPTED_SAVE == +PROBLEM_INTERRUPTED_SAVE);
static_assert(+QUOR_PROBLEM_LINE_ENDS_IN_CR == +PROBLEM_LINE_ENDS_IN_CR);
static_assert(+QUOR_WARNING_R0_NOT_POSITIVE == +WARNING_R0_NOT_POSITIVE);
static_assert(+QUOR_WARNING_RTPW_NOT_POSITIVE == +WARNING_RTPW_NOT_POSITIVE);
static_assert(+QUOR_WARNING_NOT_FINITE == +WARNING_NOT_FINITE);
static_assert(+QUOR_WARNING_COEFFICIENTS_ALL_ZERO == +WARNING_COEFFICIENTS_ALL_ZERO);
static_assert(+QUOR_WARNING_TEMPERATURES_NOT_INCREASING == +WARNING_TEMPERATURES_NOT_INCREASING);
static_assert(+QUOR_WARNING_RANGE_DOES_NOT_FIT == +WARNING_RANGE_DOES_NOT_FIT);
static_assert(+QUOR_WARNING_ALPHA_SIZE == +WARNING_ALPHA_SIZE);
static_assert(+QUOR_WARNING_DELTA_SIZE == +WARNING_DELTA_SIZE);
static_assert(+QUOR_WARNING_BETA_SIZE == +WARNING_BETA_SIZE);
static_assert(+QUOR_WARNING_CVD_A_SIZE == +WARNING_CVD_A_SIZE);
static_assert(+QUOR_WARNING_CVD_B_SIZE == +WARNING_CVD_B_SIZE);
static_assert(+QUOR_WARNING_CVD_C_SIZE == +WARNING_CVD_C_SIZE);
static_assert(+QUOR_WARNING_A4_SIZE == +WARNING_A4_SIZE);
static_assert(+QUOR_WARNING_C4_SIZE == +WARNING_C4_SIZE);
static_assert(+QUOR_WARNING_DEVIATION_A_SIZE == +WARNING_DEVIATION_A_SIZE);
static_assert(+QUOR_WARNING_DEVIATION_SIZE == +WARNING_DEVIATION_SIZE);
static_assert(+QUOR_WARNING_THERMISTOR_A0_SIZE == +WARNING_THERMISTOR_A0_SIZE);
static_assert(+QUOR_WARNING_THERMISTOR_A1_SIZE == +WARNING_THERMISTOR_A1_SIZE);
static_assert(+QUOR_WARNING_THERMISTOR_A3_SIZE == +WARNING_THERMISTOR_A3_SIZE);
static_assert(+QUOR_WARNING_THERMISTOR_B1_SIZE == +WARNING_THERMISTOR_B1_SIZE);
static_assert(+QUOR_WARNING_COUNT_DOES_NOT_FIT == +WARNING_COUNT_DOES_NOT_FIT);
static_assert(+QUOR_WARNING_UNKNOWN_CODE == +WARNING_UNKNOWN_CODE);
static_assert(+QUOR_WARNING_NO_SUCH_PROBE == +WARNING_NO_SUCH_PROBE);

} // namespace QuorConversions::Component

using namespace QuorConversions;
using namespace QuorConversions::Component;

// NOLINTBEGIN: they are named and typed as in quor.h
int32_t quor_conversion_create(quor_object platform, quor_object* result) {
    return Guarded([&] { Out(result, std::shared_ptr<CQuorConversion>(std::make_shared<CQuorConversion>(AnyOrNone<Platform>(platform)))); });
}

int32_t quor_conversion_get_AllowEdit(quor_object conversion, quor_bool* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_conversion_put_AllowEdit(quor_object conversion, quor_bool value) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_conversion_get_HelpFile(quor_object conversion, quor_text* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.HelpFile()); });
}

int32_t quor_conversion_put_HelpFile(quor_object conversion, quor_text value) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { it.SetHelpFile(Wide(value)); });
}

int32_t quor_conversion_SetRegistry(quor_object conversion, quor_object* vData) {
    return Call<CQuorConversion>(conversion, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_conversion_get_Registry(quor_object conversion, quor_object* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_conversion_get_Changed(quor_object conversion, quor_bool* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_conversion_put_Changed(quor_object conversion, quor_bool value) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_conversion_get_FilePath(quor_object conversion, quor_text* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_conversion_put_FilePath(quor_object conversion, quor_text value) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_conversion_get_Settings(quor_object conversion, quor_object* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.Settings()); });
}

int32_t quor_conversion_get_ConversionType(quor_object conversion, quor_EQuorConversionType* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.ConversionType()); });
}

int32_t quor_conversion_put_ConversionType(quor_object conversion, quor_EQuorConversionType value) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { it.SetConversionType(static_cast<EQuorConversionType>(value)); });
}

int32_t quor_conversion_ConversionName(quor_object conversion, int32_t Value, quor_text* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.ConversionName(Value)); });
}

int32_t quor_conversion_Edit(quor_object conversion, quor_bool* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_conversion_WriteToFile(quor_object conversion, quor_object* INIFile, quor_text fname,
                                    quor_text secname) {
    return Call<CQuorConversion>(conversion, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_conversion_ReadFromFile(quor_object conversion, quor_object* INIFile, quor_text fname, quor_text secname,
                                     quor_bool* result) {
    return Call<CQuorConversion>(conversion, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_its90_get_AllowEdit(quor_object its90, quor_bool* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_its90_put_AllowEdit(quor_object its90, quor_bool value) {
    return Call<CQuorITS90>(its90, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_its90_SetRegistry(quor_object its90, quor_object* vData) {
    return Call<CQuorITS90>(its90, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_its90_get_Registry(quor_object its90, quor_object* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_its90_get_Changed(quor_object its90, quor_bool* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_its90_put_Changed(quor_object its90, quor_bool value) {
    return Call<CQuorITS90>(its90, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_its90_get_FilePath(quor_object its90, quor_text* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_its90_put_FilePath(quor_object its90, quor_text value) {
    return Call<CQuorITS90>(its90, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_its90_get_HighRange(quor_object its90, quor_object* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.HighRange()); });
}

int32_t quor_its90_get_LowRange(quor_object its90, quor_object* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.LowRange()); });
}

int32_t quor_its90_get_RTPW(quor_object its90, double* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.RTPW()); });
}

int32_t quor_its90_put_RTPW(quor_object its90, double value) {
    return Call<CQuorITS90>(its90, [&](auto& it) { it.SetRTPW(value); });
}

int32_t quor_its90_get_RTPWFormat(quor_object its90, quor_text* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.RTPWFormat()); });
}

int32_t quor_its90_put_RTPWFormat(quor_object its90, quor_text value) {
    return Call<CQuorITS90>(its90, [&](auto& it) { it.SetRTPWFormat(Wide(value)); });
}

int32_t quor_its90_Edit(quor_object its90, quor_bool* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_its90_GetName(quor_object its90, quor_text* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_its90_OpenFile(quor_object its90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                            quor_bool* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_its90_SaveFileAs(quor_object its90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                              quor_bool* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_its90_WriteToFile(quor_object its90, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorITS90>(its90, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_its90_ReadFromFile(quor_object its90, quor_object* INIFile, quor_text fname, quor_text secname,
                                quor_bool* result) {
    return Call<CQuorITS90>(its90, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_its90_low_range_get_ShowCoefRange(quor_object its90_low_range, quor_bool* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.ShowCoefRange()); });
}

int32_t quor_its90_low_range_put_ShowCoefRange(quor_object its90_low_range, quor_bool value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetShowCoefRange(value != 0); });
}

int32_t quor_its90_low_range_get_AllowChangeRange(quor_object its90_low_range, quor_bool* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.AllowChangeRange()); });
}

int32_t quor_its90_low_range_put_AllowChangeRange(quor_object its90_low_range, quor_bool value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetAllowChangeRange(value != 0); });
}

int32_t quor_its90_low_range_SetRegistry(quor_object its90_low_range, quor_object* vData) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_its90_low_range_get_Registry(quor_object its90_low_range, quor_object* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_its90_low_range_get_Changed(quor_object its90_low_range, quor_bool* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_its90_low_range_put_Changed(quor_object its90_low_range, quor_bool value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_its90_low_range_get_RangeEnabled(quor_object its90_low_range, quor_bool* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.RangeEnabled()); });
}

int32_t quor_its90_low_range_put_RangeEnabled(quor_object its90_low_range, quor_bool value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetRangeEnabled(value != 0); });
}

int32_t quor_its90_low_range_RangeName(quor_object its90_low_range, int32_t vData, quor_text* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.RangeName(vData)); });
}

int32_t quor_its90_low_range_get_NumCoefficients(quor_object its90_low_range, int16_t* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_its90_low_range_get_Range(quor_object its90_low_range, quor_EITS90RangeNumber* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.Range()); });
}

int32_t quor_its90_low_range_put_Range(quor_object its90_low_range, quor_EITS90RangeNumber value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetRange(static_cast<EITS90RangeNumber>(value)); });
}

int32_t quor_its90_low_range_get_MaxRange(quor_object its90_low_range, quor_EITS90RangeNumber* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.MaxRange()); });
}

int32_t quor_its90_low_range_put_MaxRange(quor_object its90_low_range, quor_EITS90RangeNumber value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetMaxRange(static_cast<EITS90RangeNumber>(value)); });
}

int32_t quor_its90_low_range_get_MinRange(quor_object its90_low_range, quor_EITS90RangeNumber* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.MinRange()); });
}

int32_t quor_its90_low_range_put_MinRange(quor_object its90_low_range, quor_EITS90RangeNumber value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetMinRange(static_cast<EITS90RangeNumber>(value)); });
}

int32_t quor_its90_low_range_get_Coefficients(quor_object its90_low_range, quor_EITS90LowRangeCoefficients Index,
                                              double* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.Coefficients(static_cast<EITS90LowRangeCoefficients>(Index))); });
}

int32_t quor_its90_low_range_put_Coefficients(quor_object its90_low_range, quor_EITS90LowRangeCoefficients Index,
                                              double value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetCoefficients(static_cast<EITS90LowRangeCoefficients>(Index), value); });
}

int32_t quor_its90_low_range_get_ValueFormat(quor_object its90_low_range, quor_text* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_its90_low_range_put_ValueFormat(quor_object its90_low_range, quor_text value) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_its90_low_range_FillRangeCombo(quor_object its90_low_range, quor_object ctrl) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) { it.FillRangeCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_its90_low_range_WriteToFile(quor_object its90_low_range, quor_object* INIFile, quor_text fname,
                                         quor_text secname) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_its90_low_range_ReadFromFile(quor_object its90_low_range, quor_object* INIFile, quor_text fname,
                                          quor_text secname, quor_bool* result) {
    return Call<CQuorITS90LowRange>(its90_low_range, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_its90_high_range_get_ShowCoefRange(quor_object its90_high_range, quor_bool* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.ShowCoefRange()); });
}

int32_t quor_its90_high_range_put_ShowCoefRange(quor_object its90_high_range, quor_bool value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetShowCoefRange(value != 0); });
}

int32_t quor_its90_high_range_get_AllowChangeRange(quor_object its90_high_range, quor_bool* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.AllowChangeRange()); });
}

int32_t quor_its90_high_range_put_AllowChangeRange(quor_object its90_high_range, quor_bool value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetAllowChangeRange(value != 0); });
}

int32_t quor_its90_high_range_SetRegistry(quor_object its90_high_range, quor_object* vData) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_its90_high_range_get_Registry(quor_object its90_high_range, quor_object* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_its90_high_range_get_Changed(quor_object its90_high_range, quor_bool* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_its90_high_range_put_Changed(quor_object its90_high_range, quor_bool value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_its90_high_range_get_RangeEnabled(quor_object its90_high_range, quor_bool* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.RangeEnabled()); });
}

int32_t quor_its90_high_range_put_RangeEnabled(quor_object its90_high_range, quor_bool value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetRangeEnabled(value != 0); });
}

int32_t quor_its90_high_range_RangeName(quor_object its90_high_range, int32_t vData, quor_text* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.RangeName(vData)); });
}

int32_t quor_its90_high_range_get_NumCoefficients(quor_object its90_high_range, int16_t* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_its90_high_range_get_Range(quor_object its90_high_range, quor_EITS90RangeNumber* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.Range()); });
}

int32_t quor_its90_high_range_put_Range(quor_object its90_high_range, quor_EITS90RangeNumber value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetRange(static_cast<EITS90RangeNumber>(value)); });
}

int32_t quor_its90_high_range_get_MaxRange(quor_object its90_high_range, quor_EITS90RangeNumber* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.MaxRange()); });
}

int32_t quor_its90_high_range_put_MaxRange(quor_object its90_high_range, quor_EITS90RangeNumber value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetMaxRange(static_cast<EITS90RangeNumber>(value)); });
}

int32_t quor_its90_high_range_get_MinRange(quor_object its90_high_range, quor_EITS90RangeNumber* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.MinRange()); });
}

int32_t quor_its90_high_range_put_MinRange(quor_object its90_high_range, quor_EITS90RangeNumber value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetMinRange(static_cast<EITS90RangeNumber>(value)); });
}

int32_t quor_its90_high_range_get_Coefficients(quor_object its90_high_range, quor_EITS90HighRangeCoefficients Index,
                                               double* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.Coefficients(static_cast<EITS90HighRangeCoefficients>(Index))); });
}

int32_t quor_its90_high_range_put_Coefficients(quor_object its90_high_range, quor_EITS90HighRangeCoefficients Index,
                                               double value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetCoefficients(static_cast<EITS90HighRangeCoefficients>(Index), value); });
}

int32_t quor_its90_high_range_get_ValueFormat(quor_object its90_high_range, quor_text* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_its90_high_range_put_ValueFormat(quor_object its90_high_range, quor_text value) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_its90_high_range_FillRangeCombo(quor_object its90_high_range, quor_object ctrl) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) { it.FillRangeCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_its90_high_range_WriteToFile(quor_object its90_high_range, quor_object* INIFile, quor_text fname,
                                          quor_text secname) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_its90_high_range_ReadFromFile(quor_object its90_high_range, quor_object* INIFile, quor_text fname,
                                           quor_text secname, quor_bool* result) {
    return Call<CQuorITS90HighRange>(its90_high_range, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_ipts68_get_AllowEdit(quor_object ipts68, quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_ipts68_put_AllowEdit(quor_object ipts68, quor_bool value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_ipts68_SetRegistry(quor_object ipts68, quor_object* vData) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_ipts68_get_Registry(quor_object ipts68, quor_object* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_ipts68_get_Changed(quor_object ipts68, quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_ipts68_put_Changed(quor_object ipts68, quor_bool value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_ipts68_get_FilePath(quor_object ipts68, quor_text* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_ipts68_put_FilePath(quor_object ipts68, quor_text value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_ipts68_get_ScaleEnabled(quor_object ipts68, quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.ScaleEnabled()); });
}

int32_t quor_ipts68_put_ScaleEnabled(quor_object ipts68, quor_bool value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetScaleEnabled(value != 0); });
}

int32_t quor_ipts68_get_NumCoefficients(quor_object ipts68, int16_t* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_ipts68_get_IPTS68Scale(quor_object ipts68, quor_EIPTS68Scale* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.IPTS68Scale()); });
}

int32_t quor_ipts68_put_IPTS68Scale(quor_object ipts68, quor_EIPTS68Scale value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetIPTS68Scale(static_cast<EIPTS68Scale>(value)); });
}

int32_t quor_ipts68_IPTS68ScaleName(quor_object ipts68, int32_t vData, quor_text* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.IPTS68ScaleName(vData)); });
}

int32_t quor_ipts68_get_Coefficients(quor_object ipts68, quor_EIPTS68Coefficients Index, double* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.Coefficients(static_cast<EIPTS68Coefficients>(Index))); });
}

int32_t quor_ipts68_put_Coefficients(quor_object ipts68, quor_EIPTS68Coefficients Index, double value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetCoefficients(static_cast<EIPTS68Coefficients>(Index), value); });
}

int32_t quor_ipts68_get_ValueFormat(quor_object ipts68, quor_EIPTS68Coefficients Index, quor_text* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.ValueFormat(static_cast<EIPTS68Coefficients>(Index))); });
}

int32_t quor_ipts68_put_ValueFormat(quor_object ipts68, quor_EIPTS68Coefficients Index, quor_text value) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.SetValueFormat(static_cast<EIPTS68Coefficients>(Index), Wide(value)); });
}

int32_t quor_ipts68_FillScaleCombo(quor_object ipts68, quor_object ctrl) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { it.FillScaleCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_ipts68_Edit(quor_object ipts68, quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_ipts68_GetName(quor_object ipts68, quor_text* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_ipts68_OpenFile(quor_object ipts68, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                             quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_ipts68_SaveFileAs(quor_object ipts68, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                               quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_ipts68_WriteToFile(quor_object ipts68, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_ipts68_ReadFromFile(quor_object ipts68, quor_object* INIFile, quor_text fname, quor_text secname,
                                 quor_bool* result) {
    return Call<CQuorIPTS68>(ipts68, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_cvd_get_AllowEdit(quor_object cvd, quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_cvd_put_AllowEdit(quor_object cvd, quor_bool value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_cvd_SetRegistry(quor_object cvd, quor_object* vData) {
    return Call<CQuorCVD>(cvd, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_cvd_get_Registry(quor_object cvd, quor_object* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_cvd_get_Changed(quor_object cvd, quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_cvd_put_Changed(quor_object cvd, quor_bool value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_cvd_get_NumCoefficients(quor_object cvd, int16_t* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_cvd_put_NumCoefficients(quor_object cvd, int16_t value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetNumCoefficients(value); });
}

int32_t quor_cvd_get_Coefficients(quor_object cvd, quor_ECVDCoefficients Index, double* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.Coefficients(static_cast<ECVDCoefficients>(Index))); });
}

int32_t quor_cvd_put_Coefficients(quor_object cvd, quor_ECVDCoefficients Index, double value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetCoefficients(static_cast<ECVDCoefficients>(Index), value); });
}

int32_t quor_cvd_get_UsePolynomial(quor_object cvd, quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.UsePolynomial()); });
}

int32_t quor_cvd_put_UsePolynomial(quor_object cvd, quor_bool value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetUsePolynomial(value != 0); });
}

int32_t quor_cvd_get_ValueFormat(quor_object cvd, quor_ECVDCoefficients Index, quor_text* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.ValueFormat(static_cast<ECVDCoefficients>(Index))); });
}

int32_t quor_cvd_put_ValueFormat(quor_object cvd, quor_ECVDCoefficients Index, quor_text value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetValueFormat(static_cast<ECVDCoefficients>(Index), Wide(value)); });
}

int32_t quor_cvd_MaxCoefficients(quor_object cvd, int16_t* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.MaxCoefficients()); });
}

int32_t quor_cvd_Edit(quor_object cvd, quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_cvd_GetName(quor_object cvd, quor_text* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_cvd_get_FilePath(quor_object cvd, quor_text* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_cvd_put_FilePath(quor_object cvd, quor_text value) {
    return Call<CQuorCVD>(cvd, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_cvd_OpenFile(quor_object cvd, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                          quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_cvd_SaveFileAs(quor_object cvd, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                            quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_cvd_WriteToFile(quor_object cvd, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorCVD>(cvd, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_cvd_ReadFromFile(quor_object cvd, quor_object* INIFile, quor_text fname, quor_text secname,
                              quor_bool* result) {
    return Call<CQuorCVD>(cvd, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_pt100_create(quor_object platform, quor_object* result) {
    return Guarded([&] { Out(result, std::shared_ptr<CQuorPT100>(std::make_shared<CQuorPT100>(AnyOrNone<Platform>(platform)))); });
}

int32_t quor_pt100_get_AllowEdit(quor_object pt100, quor_bool* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_pt100_put_AllowEdit(quor_object pt100, quor_bool value) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_pt100_SetRegistry(quor_object pt100, quor_object* vData) {
    return Call<CQuorPT100>(pt100, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_pt100_get_Registry(quor_object pt100, quor_object* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_pt100_get_Changed(quor_object pt100, quor_bool* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_pt100_put_Changed(quor_object pt100, quor_bool value) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_pt100_get_NumCoefficients(quor_object pt100, int16_t* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_pt100_put_NumCoefficients(quor_object pt100, int16_t value) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { it.SetNumCoefficients(value); });
}

int32_t quor_pt100_get_Coefficients(quor_object pt100, quor_EPT100Coefficients Index, double* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.Coefficients(static_cast<EPT100Coefficients>(Index))); });
}

int32_t quor_pt100_put_Coefficients(quor_object pt100, quor_EPT100Coefficients Index, double value) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { it.SetCoefficients(static_cast<EPT100Coefficients>(Index), value); });
}

int32_t quor_pt100_get_ValueFormat(quor_object pt100, quor_EPT100Coefficients Index, quor_text* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.ValueFormat(static_cast<EPT100Coefficients>(Index))); });
}

int32_t quor_pt100_put_ValueFormat(quor_object pt100, quor_EPT100Coefficients Index, quor_text value) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { it.SetValueFormat(static_cast<EPT100Coefficients>(Index), Wide(value)); });
}

int32_t quor_pt100_MaxCoefficients(quor_object pt100, int16_t* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.MaxCoefficients()); });
}

int32_t quor_pt100_Edit(quor_object pt100, quor_bool* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_pt100_GetName(quor_object pt100, quor_text* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_pt100_get_FilePath(quor_object pt100, quor_text* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_pt100_put_FilePath(quor_object pt100, quor_text value) {
    return Call<CQuorPT100>(pt100, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_pt100_OpenFile(quor_object pt100, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                            quor_bool* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_pt100_SaveFileAs(quor_object pt100, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                              quor_bool* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_pt100_WriteToFile(quor_object pt100, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorPT100>(pt100, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_pt100_ReadFromFile(quor_object pt100, quor_object* INIFile, quor_text fname, quor_text secname,
                                quor_bool* result) {
    return Call<CQuorPT100>(pt100, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_htprt_get_AllowEdit(quor_object htprt, quor_bool* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_htprt_put_AllowEdit(quor_object htprt, quor_bool value) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_htprt_SetRegistry(quor_object htprt, quor_object* vData) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_htprt_get_Registry(quor_object htprt, quor_object* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_htprt_get_Changed(quor_object htprt, quor_bool* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_htprt_put_Changed(quor_object htprt, quor_bool value) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_htprt_get_FilePath(quor_object htprt, quor_text* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_htprt_put_FilePath(quor_object htprt, quor_text value) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_htprt_get_NumCoefficients(quor_object htprt, int16_t* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_htprt_get_Coefficients(quor_object htprt, quor_EHTPRTCoefficients Index, double* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.Coefficients(static_cast<EHTPRTCoefficients>(Index))); });
}

int32_t quor_htprt_put_Coefficients(quor_object htprt, quor_EHTPRTCoefficients Index, double value) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { it.SetCoefficients(static_cast<EHTPRTCoefficients>(Index), value); });
}

int32_t quor_htprt_get_ValueFormat(quor_object htprt, quor_EHTPRTCoefficients Index, quor_text* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.ValueFormat(static_cast<EHTPRTCoefficients>(Index))); });
}

int32_t quor_htprt_put_ValueFormat(quor_object htprt, quor_EHTPRTCoefficients Index, quor_text value) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { it.SetValueFormat(static_cast<EHTPRTCoefficients>(Index), Wide(value)); });
}

int32_t quor_htprt_Edit(quor_object htprt, quor_bool* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_htprt_GetName(quor_object htprt, quor_text* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_htprt_OpenFile(quor_object htprt, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                            quor_bool* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_htprt_SaveFileAs(quor_object htprt, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                              quor_bool* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_htprt_WriteToFile(quor_object htprt, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_htprt_ReadFromFile(quor_object htprt, quor_object* INIFile, quor_text fname, quor_text secname,
                                quor_bool* result) {
    return Call<CQuorHTPRT>(htprt, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_wt90_get_AllowEdit(quor_object wt90, quor_bool* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_wt90_put_AllowEdit(quor_object wt90, quor_bool value) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_wt90_SetRegistry(quor_object wt90, quor_object* vData) {
    return Call<CQuorWT90>(wt90, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_wt90_get_Registry(quor_object wt90, quor_object* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_wt90_get_Changed(quor_object wt90, quor_bool* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_wt90_put_Changed(quor_object wt90, quor_bool value) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_wt90_get_FilePath(quor_object wt90, quor_text* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_wt90_put_FilePath(quor_object wt90, quor_text value) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_wt90_get_RTPW(quor_object wt90, double* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.RTPW()); });
}

int32_t quor_wt90_put_RTPW(quor_object wt90, double value) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { it.SetRTPW(value); });
}

int32_t quor_wt90_get_RTPWFormat(quor_object wt90, quor_text* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.RTPWFormat()); });
}

int32_t quor_wt90_put_RTPWFormat(quor_object wt90, quor_text value) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { it.SetRTPWFormat(Wide(value)); });
}

int32_t quor_wt90_Edit(quor_object wt90, quor_bool* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_wt90_GetName(quor_object wt90, quor_text* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_wt90_OpenFile(quor_object wt90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                           quor_bool* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_wt90_SaveFileAs(quor_object wt90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                             quor_bool* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_wt90_WriteToFile(quor_object wt90, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorWT90>(wt90, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_wt90_ReadFromFile(quor_object wt90, quor_object* INIFile, quor_text fname, quor_text secname,
                               quor_bool* result) {
    return Call<CQuorWT90>(wt90, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_thermistor_get_AllowEdit(quor_object thermistor, quor_bool* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_thermistor_put_AllowEdit(quor_object thermistor, quor_bool value) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_thermistor_SetRegistry(quor_object thermistor, quor_object* vData) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_thermistor_get_Registry(quor_object thermistor, quor_object* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_thermistor_get_Changed(quor_object thermistor, quor_bool* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_thermistor_put_Changed(quor_object thermistor, quor_bool value) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_thermistor_get_FilePath(quor_object thermistor, quor_text* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_thermistor_put_FilePath(quor_object thermistor, quor_text value) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_thermistor_get_ConvType(quor_object thermistor, quor_EThermistorConvType* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.ConvType()); });
}

int32_t quor_thermistor_put_ConvType(quor_object thermistor, quor_EThermistorConvType value) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { it.SetConvType(static_cast<EThermistorConvType>(value)); });
}

int32_t quor_thermistor_ConvName(quor_object thermistor, int32_t vData, quor_text* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.ConvName(vData)); });
}

int32_t quor_thermistor_get_NumCoefficients(quor_object thermistor, int16_t* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_thermistor_get_Coefficients(quor_object thermistor, quor_EThermistorCoefficients Index, double* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.Coefficients(static_cast<EThermistorCoefficients>(Index))); });
}

int32_t quor_thermistor_put_Coefficients(quor_object thermistor, quor_EThermistorCoefficients Index, double value) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { it.SetCoefficients(static_cast<EThermistorCoefficients>(Index), value); });
}

int32_t quor_thermistor_get_ValueFormat(quor_object thermistor, quor_text* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_thermistor_put_ValueFormat(quor_object thermistor, quor_text value) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_thermistor_Edit(quor_object thermistor, quor_bool* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_thermistor_GetName(quor_object thermistor, quor_text* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_thermistor_OpenFile(quor_object thermistor, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                 quor_bool* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_thermistor_SaveFileAs(quor_object thermistor, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                   quor_bool* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_thermistor_WriteToFile(quor_object thermistor, quor_object* INIFile, quor_text fname,
                                    quor_text secname) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_thermistor_ReadFromFile(quor_object thermistor, quor_object* INIFile, quor_text fname, quor_text secname,
                                     quor_bool* result) {
    return Call<CQuorThermistor>(thermistor, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_polynomial_get_AllowEdit(quor_object polynomial, quor_bool* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_polynomial_put_AllowEdit(quor_object polynomial, quor_bool value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_polynomial_SetRegistry(quor_object polynomial, quor_object* vData) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_polynomial_get_Registry(quor_object polynomial, quor_object* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_polynomial_get_Changed(quor_object polynomial, quor_bool* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_polynomial_put_Changed(quor_object polynomial, quor_bool value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_polynomial_get_FilePath(quor_object polynomial, quor_text* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_polynomial_put_FilePath(quor_object polynomial, quor_text value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_polynomial_get_NumCoefficients(quor_object polynomial, int16_t* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_polynomial_get_Order(quor_object polynomial, int16_t* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.Order()); });
}

int32_t quor_polynomial_put_Order(quor_object polynomial, int16_t value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetOrder(value); });
}

int32_t quor_polynomial_get_MinOrder(quor_object polynomial, int16_t* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.MinOrder()); });
}

int32_t quor_polynomial_get_MaxOrder(quor_object polynomial, int16_t* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.MaxOrder()); });
}

int32_t quor_polynomial_put_Coefficients(quor_object polynomial, quor_EPolynomialCoefficients Index, double value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetCoefficients(static_cast<EPolynomialCoefficients>(Index), value); });
}

int32_t quor_polynomial_get_Coefficients(quor_object polynomial, quor_EPolynomialCoefficients Index, double* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.Coefficients(static_cast<EPolynomialCoefficients>(Index))); });
}

int32_t quor_polynomial_put_ValueFormat(quor_object polynomial, quor_text value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_polynomial_get_ValueFormat(quor_object polynomial, quor_text* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_polynomial_Edit(quor_object polynomial, quor_bool* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_polynomial_GetName(quor_object polynomial, quor_text* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_polynomial_OpenFile(quor_object polynomial, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                 quor_bool* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_polynomial_SaveFileAs(quor_object polynomial, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                   quor_bool* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_polynomial_WriteToFile(quor_object polynomial, quor_object* INIFile, quor_text fname,
                                    quor_text secname) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_polynomial_ReadFromFile(quor_object polynomial, quor_object* INIFile, quor_text fname, quor_text secname,
                                     quor_bool* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_polynomial_put_CoefficientLabelPrefix(quor_object polynomial, quor_text value) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { it.SetCoefficientLabelPrefix(Wide(value)); });
}

int32_t quor_polynomial_get_CoefficientLabelPrefix(quor_object polynomial, quor_text* result) {
    return Call<CQuorPolynomial>(polynomial, [&](auto& it) { Out(result, it.CoefficientLabelPrefix()); });
}

int32_t quor_tc_polynomial_get_mV25CFormat(quor_object tc_polynomial, quor_text* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.mV25CFormat()); });
}

int32_t quor_tc_polynomial_put_mV25CFormat(quor_object tc_polynomial, quor_text value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetmV25CFormat(Wide(value)); });
}

int32_t quor_tc_polynomial_get_mV25C(quor_object tc_polynomial, double* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.mV25C()); });
}

int32_t quor_tc_polynomial_put_mV25C(quor_object tc_polynomial, double value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetmV25C(value); });
}

int32_t quor_tc_polynomial_get_ShowmV25C(quor_object tc_polynomial, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.ShowmV25C()); });
}

int32_t quor_tc_polynomial_put_ShowmV25C(quor_object tc_polynomial, quor_bool value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetShowmV25C(value != 0); });
}

int32_t quor_tc_polynomial_get_AllowEdit(quor_object tc_polynomial, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_tc_polynomial_put_AllowEdit(quor_object tc_polynomial, quor_bool value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_tc_polynomial_SetRegistry(quor_object tc_polynomial, quor_object* vData) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_tc_polynomial_get_Registry(quor_object tc_polynomial, quor_object* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_tc_polynomial_get_Changed(quor_object tc_polynomial, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_tc_polynomial_put_Changed(quor_object tc_polynomial, quor_bool value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_tc_polynomial_get_FilePath(quor_object tc_polynomial, quor_text* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_tc_polynomial_put_FilePath(quor_object tc_polynomial, quor_text value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_tc_polynomial_get_NumCoefficients(quor_object tc_polynomial, int16_t* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_tc_polynomial_put_NumCoefficients(quor_object tc_polynomial, int16_t value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetNumCoefficients(value); });
}

int32_t quor_tc_polynomial_get_Coefficients(quor_object tc_polynomial, quor_ETCPolynomialCoefficients Index,
                                            double* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.Coefficients(static_cast<ETCPolynomialCoefficients>(Index))); });
}

int32_t quor_tc_polynomial_put_Coefficients(quor_object tc_polynomial, quor_ETCPolynomialCoefficients Index,
                                            double value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetCoefficients(static_cast<ETCPolynomialCoefficients>(Index), value); });
}

int32_t quor_tc_polynomial_get_ValueFormat(quor_object tc_polynomial, quor_text* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_tc_polynomial_put_ValueFormat(quor_object tc_polynomial, quor_text value) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_tc_polynomial_Edit(quor_object tc_polynomial, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_tc_polynomial_GetName(quor_object tc_polynomial, quor_text* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_tc_polynomial_OpenFile(quor_object tc_polynomial, int32_t hwnd, quor_text Filename,
                                    quor_text* Filename_out, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_polynomial_SaveFileAs(quor_object tc_polynomial, int32_t hwnd, quor_text Filename,
                                      quor_text* Filename_out, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_polynomial_WriteToFile(quor_object tc_polynomial, quor_object* INIFile, quor_text fname,
                                       quor_text secname) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_tc_polynomial_ReadFromFile(quor_object tc_polynomial, quor_object* INIFile, quor_text fname,
                                        quor_text secname, quor_bool* result) {
    return Call<CQuorTCPolynomial>(tc_polynomial, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_tc_table_get_AllowEdit(quor_object tc_table, quor_bool* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_tc_table_put_AllowEdit(quor_object tc_table, quor_bool value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_tc_table_SetRegistry(quor_object tc_table, quor_object* vData) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_tc_table_get_Registry(quor_object tc_table, quor_object* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_tc_table_get_Changed(quor_object tc_table, quor_bool* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_tc_table_put_Changed(quor_object tc_table, quor_bool value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_tc_table_get_FilePath(quor_object tc_table, quor_text* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_tc_table_put_FilePath(quor_object tc_table, quor_text value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_tc_table_get_NumPoints(quor_object tc_table, int16_t* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.NumPoints()); });
}

int32_t quor_tc_table_put_NumPoints(quor_object tc_table, int16_t value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetNumPoints(value); });
}

int32_t quor_tc_table_get_Temperatures(quor_object tc_table, quor_ETCTableCoefficients Index, double* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.Temperatures(static_cast<ETCTableCoefficients>(Index))); });
}

int32_t quor_tc_table_put_Temperatures(quor_object tc_table, quor_ETCTableCoefficients Index, double value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetTemperatures(static_cast<ETCTableCoefficients>(Index), value); });
}

int32_t quor_tc_table_get_Voltages(quor_object tc_table, quor_ETCTableCoefficients Index, double* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.Voltages(static_cast<ETCTableCoefficients>(Index))); });
}

int32_t quor_tc_table_put_Voltages(quor_object tc_table, quor_ETCTableCoefficients Index, double value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetVoltages(static_cast<ETCTableCoefficients>(Index), value); });
}

int32_t quor_tc_table_get_TempFormat(quor_object tc_table, quor_text* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.TempFormat()); });
}

int32_t quor_tc_table_put_TempFormat(quor_object tc_table, quor_text value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetTempFormat(Wide(value)); });
}

int32_t quor_tc_table_get_VoltageFormat(quor_object tc_table, quor_text* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.VoltageFormat()); });
}

int32_t quor_tc_table_put_VoltageFormat(quor_object tc_table, quor_text value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetVoltageFormat(Wide(value)); });
}

int32_t quor_tc_table_get_TempScale(quor_object tc_table, quor_text* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.TempScale()); });
}

int32_t quor_tc_table_put_TempScale(quor_object tc_table, quor_text value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetTempScale(Wide(value)); });
}

int32_t quor_tc_table_get_VoltageScale(quor_object tc_table, quor_text* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.VoltageScale()); });
}

int32_t quor_tc_table_put_VoltageScale(quor_object tc_table, quor_text value) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.SetVoltageScale(Wide(value)); });
}

int32_t quor_tc_table_Edit(quor_object tc_table, quor_bool* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_tc_table_GetName(quor_object tc_table, quor_text* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { Out(result, it.GetName()); });
}

int32_t quor_tc_table_FillPointsCombo(quor_object tc_table, quor_object ctrl) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) { it.FillPointsCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_tc_table_OpenFile(quor_object tc_table, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                               quor_bool* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_table_SaveFileAs(quor_object tc_table, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                 quor_bool* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_table_WriteToFile(quor_object tc_table, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_tc_table_ReadFromFile(quor_object tc_table, quor_object* INIFile, quor_text fname, quor_text secname,
                                   quor_bool* result) {
    return Call<CQuorTCTable>(tc_table, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_tc_typex_get_ShowDCCoefs(quor_object tc_typex, quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.ShowDCCoefs()); });
}

int32_t quor_tc_typex_put_ShowDCCoefs(quor_object tc_typex, quor_bool value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetShowDCCoefs(value != 0); });
}

int32_t quor_tc_typex_get_AllowEdit(quor_object tc_typex, quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_tc_typex_put_AllowEdit(quor_object tc_typex, quor_bool value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_tc_typex_SetRegistry(quor_object tc_typex, quor_object* vData) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_tc_typex_get_Registry(quor_object tc_typex, quor_object* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_tc_typex_get_Changed(quor_object tc_typex, quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_tc_typex_put_Changed(quor_object tc_typex, quor_bool value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_tc_typex_get_TempScale(quor_object tc_typex, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.TempScale()); });
}

int32_t quor_tc_typex_put_TempScale(quor_object tc_typex, quor_text value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetTempScale(Wide(value)); });
}

int32_t quor_tc_typex_get_OffsetScale(quor_object tc_typex, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.OffsetScale()); });
}

int32_t quor_tc_typex_put_OffsetScale(quor_object tc_typex, quor_text value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetOffsetScale(Wide(value)); });
}

int32_t quor_tc_typex_get_FilePath(quor_object tc_typex, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_tc_typex_put_FilePath(quor_object tc_typex, quor_text value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_tc_typex_get_TCType(quor_object tc_typex, quor_ETCType* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.TCType()); });
}

int32_t quor_tc_typex_put_TCType(quor_object tc_typex, quor_ETCType value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetTCType(static_cast<ETCType>(value)); });
}

int32_t quor_tc_typex_GetTCTypeName(quor_object tc_typex, int32_t tc, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.GetTCTypeName(tc)); });
}

int32_t quor_tc_typex_FillTCTypeNameCombo(quor_object tc_typex, quor_object ctrl) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.FillTCTypeNameCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_tc_typex_get_NumPoints(quor_object tc_typex, int16_t* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.NumPoints()); });
}

int32_t quor_tc_typex_put_NumPoints(quor_object tc_typex, int16_t value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetNumPoints(value); });
}

int32_t quor_tc_typex_get_Temperatures(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.Temperatures(static_cast<ETCTypeXCoefficients>(Index))); });
}

int32_t quor_tc_typex_put_Temperatures(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetTemperatures(static_cast<ETCTypeXCoefficients>(Index), value); });
}

int32_t quor_tc_typex_get_Coefficients(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.Coefficients(static_cast<ETCTypeXCoefficients>(Index))); });
}

int32_t quor_tc_typex_put_Coefficients(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetCoefficients(static_cast<ETCTypeXCoefficients>(Index), value); });
}

int32_t quor_tc_typex_get_Offsets(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.Offsets(static_cast<ETCTypeXCoefficients>(Index))); });
}

int32_t quor_tc_typex_put_Offsets(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetOffsets(static_cast<ETCTypeXCoefficients>(Index), value); });
}

int32_t quor_tc_typex_get_TempFormat(quor_object tc_typex, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.TempFormat()); });
}

int32_t quor_tc_typex_put_TempFormat(quor_object tc_typex, quor_text value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetTempFormat(Wide(value)); });
}

int32_t quor_tc_typex_get_ValueFormat(quor_object tc_typex, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_tc_typex_put_ValueFormat(quor_object tc_typex, quor_text value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_tc_typex_get_OffsetFormat(quor_object tc_typex, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.OffsetFormat()); });
}

int32_t quor_tc_typex_put_OffsetFormat(quor_object tc_typex, quor_text value) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.SetOffsetFormat(Wide(value)); });
}

int32_t quor_tc_typex_Edit(quor_object tc_typex, quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_tc_typex_GetName(quor_object tc_typex, int32_t tc, quor_text* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { Out(result, it.GetName(tc)); });
}

int32_t quor_tc_typex_FillPointsCombo(quor_object tc_typex, quor_object ctrl) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) { it.FillPointsCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_tc_typex_OpenFile(quor_object tc_typex, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                               quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_typex_SaveFileAs(quor_object tc_typex, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                 quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_typex_WriteToFile(quor_object tc_typex, quor_object* INIFile, quor_text fname, quor_text secname) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_tc_typex_ReadFromFile(quor_object tc_typex, quor_object* INIFile, quor_text fname, quor_text secname,
                                   quor_bool* result) {
    return Call<CQuorTCTypeX>(tc_typex, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_tc_typepoly_create(quor_object platform, quor_object* result) {
    return Guarded([&] { Out(result, std::shared_ptr<CQuorTCTypePoly>(std::make_shared<CQuorTCTypePoly>(AnyOrNone<Platform>(platform)))); });
}

int32_t quor_tc_typepoly_get_AllowEdit(quor_object tc_typepoly, quor_bool* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.AllowEdit()); });
}

int32_t quor_tc_typepoly_put_AllowEdit(quor_object tc_typepoly, quor_bool value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetAllowEdit(value != 0); });
}

int32_t quor_tc_typepoly_SetRegistry(quor_object tc_typepoly, quor_object* vData) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) {
        InOutReference<QuorRegistryII::Registry> vData_reference(vData);
        it.SetRegistry(vData_reference.Pointer());
        vData_reference.GiveBack();
    });
}

int32_t quor_tc_typepoly_get_Registry(quor_object tc_typepoly, quor_object* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.Registry()); });
}

int32_t quor_tc_typepoly_get_Changed(quor_object tc_typepoly, quor_bool* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_tc_typepoly_put_Changed(quor_object tc_typepoly, quor_bool value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetChanged(value != 0); });
}

int32_t quor_tc_typepoly_get_FilePath(quor_object tc_typepoly, quor_text* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.FilePath()); });
}

int32_t quor_tc_typepoly_put_FilePath(quor_object tc_typepoly, quor_text value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetFilePath(Wide(value)); });
}

int32_t quor_tc_typepoly_get_NumCoefficients(quor_object tc_typepoly, int16_t* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.NumCoefficients()); });
}

int32_t quor_tc_typepoly_put_NumCoefficients(quor_object tc_typepoly, int16_t value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetNumCoefficients(value); });
}

int32_t quor_tc_typepoly_get_Coefficients(quor_object tc_typepoly, quor_ETCPolynomialCoefficients Index,
                                          double* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.Coefficients(static_cast<ETCPolynomialCoefficients>(Index))); });
}

int32_t quor_tc_typepoly_put_Coefficients(quor_object tc_typepoly, quor_ETCPolynomialCoefficients Index,
                                          double value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetCoefficients(static_cast<ETCPolynomialCoefficients>(Index), value); });
}

int32_t quor_tc_typepoly_get_ValueFormat(quor_object tc_typepoly, quor_text* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.ValueFormat()); });
}

int32_t quor_tc_typepoly_put_ValueFormat(quor_object tc_typepoly, quor_text value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetValueFormat(Wide(value)); });
}

int32_t quor_tc_typepoly_get_TCType(quor_object tc_typepoly, quor_ETCType* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.TCType()); });
}

int32_t quor_tc_typepoly_put_TCType(quor_object tc_typepoly, quor_ETCType value) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.SetTCType(static_cast<ETCType>(value)); });
}

int32_t quor_tc_typepoly_GetTCTypeName(quor_object tc_typepoly, int32_t tc, quor_text* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.GetTCTypeName(tc)); });
}

int32_t quor_tc_typepoly_FillTCTypeNameCombo(quor_object tc_typepoly, quor_object ctrl) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { it.FillTCTypeNameCombo(*Reference<ListControl>(ctrl)); });
}

int32_t quor_tc_typepoly_Edit(quor_object tc_typepoly, quor_bool* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.Edit()); });
}

int32_t quor_tc_typepoly_GetName(quor_object tc_typepoly, int32_t tc, quor_text* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) { Out(result, it.GetName(tc)); });
}

int32_t quor_tc_typepoly_OpenFile(quor_object tc_typepoly, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                  quor_bool* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.OpenFile(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_typepoly_SaveFileAs(quor_object tc_typepoly, int32_t hwnd, quor_text Filename,
                                    quor_text* Filename_out, quor_bool* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) {
        std::wstring Filename_text = Wide(Filename);
        const auto given = it.SaveFileAs(hwnd, Filename_text);
        Out(Filename_out, Filename_text);
        Out(result, given);
    });
}

int32_t quor_tc_typepoly_WriteToFile(quor_object tc_typepoly, quor_object* INIFile, quor_text fname,
                                     quor_text secname) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        it.WriteToFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
    });
}

int32_t quor_tc_typepoly_ReadFromFile(quor_object tc_typepoly, quor_object* INIFile, quor_text fname,
                                      quor_text secname, quor_bool* result) {
    return Call<CQuorTCTypePoly>(tc_typepoly, [&](auto& it) {
        InOutReference<QuorIniFile::INIFile> INIFile_reference(INIFile);
        const auto given = it.ReadFromFile(INIFile_reference.Pointer(), Wide(fname), Wide(secname));
        INIFile_reference.GiveBack();
        Out(result, given);
    });
}

int32_t quor_inifile_create(quor_object* result) {
    return Guarded([&] { Out(result, std::shared_ptr<QuorIniFile::INIFile>(std::make_shared<QuorIniFile::IniStore>())); });
}

int32_t quor_inifile_put_FileName(quor_object inifile, quor_text value) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.SetFileName(Wide(value)); });
}

int32_t quor_inifile_get_FileName(quor_object inifile, quor_text* result) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { Out(result, FileNameOf(it)); });
}

int32_t quor_inifile_put_Section(quor_object inifile, quor_text value) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.SetSection(Wide(value)); });
}

int32_t quor_inifile_get_Section(quor_object inifile, quor_text* result) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { Out(result, SectionOf(it)); });
}

int32_t quor_inifile_ReadBoolean(quor_object inifile, quor_text Key, quor_bool* Value, quor_bool* result) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) {
        bool Value_flag = *Needed(Value) != 0;
        const auto given = it.ReadBoolean(Wide(Key), Value_flag);
        Out(Value, Value_flag);
        Out(result, given);
    });
}

int32_t quor_inifile_ReadDouble(quor_object inifile, quor_text Key, double* Value, quor_bool* result) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { Out(result, it.ReadDouble(Wide(Key), *Needed(Value))); });
}

int32_t quor_inifile_ReadInteger(quor_object inifile, quor_text Key, int16_t* Value, quor_bool* result) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { Out(result, it.ReadInteger(Wide(Key), *Needed(Value))); });
}

int32_t quor_inifile_ReadString(quor_object inifile, quor_text Key, quor_text Value, quor_text* Value_out,
                                quor_bool* result) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) {
        std::wstring Value_text = Wide(Value);
        const auto given = it.ReadString(Wide(Key), Value_text);
        Out(Value_out, Value_text);
        Out(result, given);
    });
}

int32_t quor_inifile_WriteBoolean(quor_object inifile, quor_text Key, quor_bool Value) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.WriteBoolean(Wide(Key), Value != 0); });
}

int32_t quor_inifile_WriteDouble(quor_object inifile, quor_text Key, double Value, quor_text Comment) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.WriteDouble(Wide(Key), Value, Wide(Comment)); });
}

int32_t quor_inifile_WriteInteger(quor_object inifile, quor_text Key, int16_t Value, quor_text Comment) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.WriteInteger(Wide(Key), Value, Wide(Comment)); });
}

int32_t quor_inifile_WriteString(quor_object inifile, quor_text Key, quor_text Value) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.WriteString(Wide(Key), Wide(Value)); });
}

int32_t quor_inifile_Hold(quor_object inifile) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.Hold(); });
}

int32_t quor_inifile_Release(quor_object inifile) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.Release(); });
}

int32_t quor_inifile_Abandon(quor_object inifile) {
    return Call<QuorIniFile::INIFile>(inifile, [&](auto& it) { it.Abandon(); });
}

int32_t quor_registry_create(quor_text application, quor_text folder, quor_object* result) {
    return Guarded([&] { Out(result, std::shared_ptr<QuorRegistryII::Registry>(std::make_shared<QuorRegistryII::FileRegistry>(Wide(application), Wide(folder)))); });
}

int32_t quor_registry_ReadValue(quor_object registry, quor_text Section, quor_text Name, quor_text Value,
                                quor_text* Value_out, quor_bool* result) {
    return Call<QuorRegistryII::Registry>(registry, [&](auto& it) {
        std::wstring Value_text = Wide(Value);
        const auto given = it.ReadValue(Wide(Section), Wide(Name), Value_text);
        Out(Value_out, Value_text);
        Out(result, given);
    });
}

int32_t quor_registry_WriteValue(quor_object registry, quor_text Section, quor_text Name, quor_text Value) {
    return Call<QuorRegistryII::Registry>(registry, [&](auto& it) { it.WriteValue(Wide(Section), Wide(Name), Wide(Value)); });
}

int32_t quor_list_control_Clear(quor_object list_control) {
    return Call<ListControl>(list_control, [&](auto& it) { it.Clear(); });
}

int32_t quor_list_control_AddItem(quor_object list_control, quor_text Item) {
    return Call<ListControl>(list_control, [&](auto& it) { it.AddItem(Wide(Item)); });
}

int32_t quor_list_control_get_NewIndex(quor_object list_control, int32_t* result) {
    return Call<ListControl>(list_control, [&](auto& it) { Out(result, it.NewIndex()); });
}

int32_t quor_list_control_put_ItemData(quor_object list_control, int32_t Index, int32_t value) {
    return Call<ListControl>(list_control, [&](auto& it) { it.SetItemData(Index, value); });
}

int32_t quor_dialog_get_Name(quor_object dialog, quor_text* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.Name()); });
}

int32_t quor_dialog_get_Title(quor_object dialog, quor_text* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.Title()); });
}

int32_t quor_dialog_get_HelpContext(quor_object dialog, int32_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.HelpContext()); });
}

int32_t quor_dialog_get_ControlCount(quor_object dialog, int32_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.ControlCount()); });
}

int32_t quor_dialog_get_Controls(quor_object dialog, int32_t Index, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.Controls(Index)); });
}

int32_t quor_dialog_FindControl(quor_object dialog, quor_text Name, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.FindControl(Wide(Name))); });
}

int32_t quor_dialog_get_ColumnCount(quor_object dialog, int32_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.ColumnCount()); });
}

int32_t quor_dialog_get_Columns(quor_object dialog, int32_t Index, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.Columns(Index)); });
}

int32_t quor_dialog_get_CancelButton(quor_object dialog, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.CancelButton()); });
}

int32_t quor_dialog_get_WindowHandle(quor_object dialog, int32_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.WindowHandle()); });
}

int32_t quor_dialog_put_WindowHandle(quor_object dialog, int32_t value) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.SetWindowHandle(value); });
}

int32_t quor_dialog_get_HasPlace(quor_object dialog, quor_bool* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.HasPlace()); });
}

int32_t quor_dialog_get_Left(quor_object dialog, int32_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.Left()); });
}

int32_t quor_dialog_get_Top(quor_object dialog, int32_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.Top()); });
}

int32_t quor_dialog_SetPlace(quor_object dialog, int32_t Left, int32_t Top) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.SetPlace(Left, Top); });
}

int32_t quor_dialog_get_IsOpen(quor_object dialog, quor_bool* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.IsOpen()); });
}

int32_t quor_dialog_get_ActiveControl(quor_object dialog, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.ActiveControl()); });
}

int32_t quor_dialog_Activate(quor_object dialog) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Activate(); });
}

int32_t quor_dialog_Click(quor_object dialog, quor_object Button) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Click(*Reference<ControlFace>(Button)); });
}

int32_t quor_dialog_Choose(quor_object dialog, quor_object List, int32_t Index) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Choose(*Reference<ControlFace>(List), Index); });
}

int32_t quor_dialog_SelectTab(quor_object dialog, quor_object Tabs, int32_t Index) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.SelectTab(*Reference<ControlFace>(Tabs), Index); });
}

int32_t quor_dialog_Focus(quor_object dialog, quor_object Control) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Focus(*Reference<ControlFace>(Control)); });
}

int32_t quor_dialog_PressTab(quor_object dialog, quor_bool Backwards) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.PressTab(Backwards != 0); });
}

int32_t quor_dialog_KeyPress(quor_object dialog, int16_t KeyAscii, int16_t* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.KeyPress(KeyAscii)); });
}

int32_t quor_dialog_EditText(quor_object dialog, quor_object Box, quor_text Text, int32_t SelStart,
                             int32_t SelLength) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.EditText(*Reference<ControlFace>(Box), Wide(Text), SelStart, SelLength); });
}

int32_t quor_dialog_Escape(quor_object dialog) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Escape(); });
}

int32_t quor_dialog_Close(quor_object dialog) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Close(); });
}

int32_t quor_dialog_Paste(quor_object dialog, quor_object Box, quor_text Text) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Paste(*Reference<ControlFace>(Box), Wide(Text)); });
}

int32_t quor_dialog_Help(quor_object dialog) {
    return Call<DialogFace>(dialog, [&](auto& it) { it.Help(); });
}

int32_t quor_dialog_get_HelpButton(quor_object dialog, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.HelpButton()); });
}

int32_t quor_dialog_get_AdvisedBox(quor_object dialog, quor_object* result) {
    return Call<DialogFace>(dialog, [&](auto& it) { Out(result, it.AdvisedBox()); });
}

int32_t quor_control_get_Name(quor_object control, quor_text* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Name()); });
}

int32_t quor_control_get_Kind(quor_object control, quor_EControlKind* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Kind()); });
}

int32_t quor_control_get_Caption(quor_object control, quor_text* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Caption()); });
}

int32_t quor_control_get_Enabled(quor_object control, quor_bool* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Enabled()); });
}

int32_t quor_control_get_Visible(quor_object control, quor_bool* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Visible()); });
}

int32_t quor_control_get_IsShown(quor_object control, quor_bool* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.IsShown()); });
}

int32_t quor_control_get_IsUsable(quor_object control, quor_bool* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.IsUsable()); });
}

int32_t quor_control_get_Parent(quor_object control, quor_object* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Parent()); });
}

int32_t quor_control_get_Text(quor_object control, quor_text* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Text()); });
}

int32_t quor_control_get_SelStart(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.SelStart()); });
}

int32_t quor_control_get_SelLength(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.SelLength()); });
}

int32_t quor_control_get_ListCount(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.ListCount()); });
}

int32_t quor_control_get_List(quor_object control, int32_t Index, quor_text* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.List(Index)); });
}

int32_t quor_control_get_ItemData(quor_object control, int32_t Index, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.ItemData(Index)); });
}

int32_t quor_control_get_ListIndex(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.ListIndex()); });
}

int32_t quor_control_get_RowCount(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.RowCount()); });
}

int32_t quor_control_get_RowLength(quor_object control, int32_t Row, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.RowLength(Row)); });
}

int32_t quor_control_get_RowControls(quor_object control, int32_t Row, int32_t Place, quor_object* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.RowControls(Row, Place)); });
}

int32_t quor_control_get_TabCount(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.TabCount()); });
}

int32_t quor_control_get_TabCaption(quor_object control, int32_t Index, quor_text* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.TabCaption(Index)); });
}

int32_t quor_control_get_TabPresent(quor_object control, int32_t Index, quor_bool* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.TabPresent(Index)); });
}

int32_t quor_control_get_SelectedTab(quor_object control, int32_t* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.SelectedTab()); });
}

int32_t quor_control_get_Advice(quor_object control, quor_text* result) {
    return Call<ControlFace>(control, [&](auto& it) { Out(result, it.Advice()); });
}

int32_t quor_probe_file_create(quor_text path, quor_bool mayBeNew, quor_object* result) {
    return Guarded([&] { Out(result, std::shared_ptr<ProbeFileFace>(std::make_shared<ProbeFileFace>(Wide(path), mayBeNew != 0))); });
}

int32_t quor_probe_file_get_Path(quor_object probe_file, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Path()); });
}

int32_t quor_probe_file_get_IsReadOnly(quor_object probe_file, quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.IsReadOnly()); });
}

int32_t quor_probe_file_get_ProbeCount(quor_object probe_file, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProbeCount()); });
}

int32_t quor_probe_file_get_ProbeSection(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProbeSection(Index)); });
}

int32_t quor_probe_file_get_ProbeLine(quor_object probe_file, int32_t Index, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProbeLine(Index)); });
}

int32_t quor_probe_file_get_ProbeType(quor_object probe_file, int32_t Index, quor_EQuorConversionType* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProbeType(Index)); });
}

int32_t quor_probe_file_get_HasType(quor_object probe_file, int32_t Index, quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.HasType(Index)); });
}

int32_t quor_probe_file_get_IsStandAlone(quor_object probe_file, int32_t Index, quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.IsStandAlone(Index)); });
}

int32_t quor_probe_file_get_ConversionName(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConversionName(Index)); });
}

int32_t quor_probe_file_FindProbe(quor_object probe_file, quor_text Section, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.FindProbe(Wide(Section))); });
}

int32_t quor_probe_file_Read(quor_object probe_file, quor_text Section, quor_object Conversion, quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Read(Wide(Section), Reference<CQuorConversion>(Conversion))); });
}

int32_t quor_probe_file_ReadAll(quor_object probe_file, quor_object* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ReadAll()); });
}

int32_t quor_probe_file_Check(quor_object probe_file, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Check()); });
}

int32_t quor_probe_file_get_ProblemCount(quor_object probe_file, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProblemCount()); });
}

int32_t quor_probe_file_get_ProblemKind(quor_object probe_file, int32_t Index, quor_EProbeProblem* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProblemKind(Index)); });
}

int32_t quor_probe_file_get_ProblemLine(quor_object probe_file, int32_t Index, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProblemLine(Index)); });
}

int32_t quor_probe_file_get_ProblemSection(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProblemSection(Index)); });
}

int32_t quor_probe_file_get_ProblemKey(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProblemKey(Index)); });
}

int32_t quor_probe_file_get_ProblemText(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ProblemText(Index)); });
}

int32_t quor_probe_file_get_MessageCount(quor_object probe_file, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.MessageCount()); });
}

int32_t quor_probe_file_get_Messages(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Messages(Index)); });
}

int32_t quor_probe_file_Write(quor_object probe_file, quor_text Section, quor_object Conversion) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Write(Wide(Section), Reference<CQuorConversion>(Conversion)); });
}

int32_t quor_probe_file_WriteChanges(quor_object probe_file, quor_text Section, quor_object Conversion,
                                     quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.WriteChanges(Wide(Section), Reference<CQuorConversion>(Conversion))); });
}

int32_t quor_probe_file_get_ConflictCount(quor_object probe_file, int32_t* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConflictCount()); });
}

int32_t quor_probe_file_get_ConflictSection(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConflictSection(Index)); });
}

int32_t quor_probe_file_get_ConflictKey(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConflictKey(Index)); });
}

int32_t quor_probe_file_get_ConflictRead(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConflictRead(Index)); });
}

int32_t quor_probe_file_get_ConflictTheirs(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConflictTheirs(Index)); });
}

int32_t quor_probe_file_get_ConflictOurs(quor_object probe_file, int32_t Index, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ConflictOurs(Index)); });
}

int32_t quor_probe_file_Rename(quor_object probe_file, quor_text Section, quor_text Name) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Rename(Wide(Section), Wide(Name)); });
}

int32_t quor_probe_file_Remove(quor_object probe_file, quor_text Section) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Remove(Wide(Section)); });
}

int32_t quor_probe_file_Copy(quor_object probe_file, quor_text Section, quor_text ToSection) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Copy(Wide(Section), Wide(ToSection)); });
}

int32_t quor_probe_file_CopyFrom(quor_object probe_file, quor_object Source, quor_text Section, quor_text ToSection) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.CopyFrom(*Reference<ProbeFileFace>(Source), Wide(Section), Wide(ToSection)); });
}

int32_t quor_probe_file_Hold(quor_object probe_file) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Hold(); });
}

int32_t quor_probe_file_Release(quor_object probe_file) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Release(); });
}

int32_t quor_probe_file_Abandon(quor_object probe_file) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Abandon(); });
}

int32_t quor_probe_file_SaveAs(quor_object probe_file, quor_text Path) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.SaveAs(Wide(Path)); });
}

int32_t quor_probe_file_get_Changed(quor_object probe_file, quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Changed()); });
}

int32_t quor_probe_file_Reload(quor_object probe_file) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.Reload(); });
}

int32_t quor_probe_file_get_Store(quor_object probe_file, quor_object* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Store()); });
}

int32_t quor_probe_file_get_ErrorCode(quor_object probe_file, quor_EProbeFileError* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ErrorCode()); });
}

int32_t quor_probe_file_get_ErrorOther(quor_object probe_file, quor_text* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.ErrorOther()); });
}

int32_t quor_probe_file_Differs(quor_object probe_file, quor_text Section, quor_object Conversion,
                                quor_bool* result) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { Out(result, it.Differs(Wide(Section), Reference<CQuorConversion>(Conversion))); });
}

int32_t quor_probe_file_RequireUnchanged(quor_object probe_file, quor_text Section, quor_object Conversion) {
    return Call<ProbeFileFace>(probe_file, [&](auto& it) { it.RequireUnchanged(Wide(Section), Reference<CQuorConversion>(Conversion)); });
}

int32_t quor_probe_table_get_ProbeCount(quor_object probe_table, int32_t* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.ProbeCount()); });
}

int32_t quor_probe_table_get_Sections(quor_object probe_table, quor_text* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.Sections()); });
}

int32_t quor_probe_table_get_Types(quor_object probe_table, quor_int32s* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.Types()); });
}

int32_t quor_probe_table_get_ProblemCounts(quor_object probe_table, quor_int32s* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.ProblemCounts()); });
}

int32_t quor_probe_table_get_KeyLists(quor_object probe_table, quor_text* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.KeyLists()); });
}

int32_t quor_probe_table_get_KeyListOf(quor_object probe_table, quor_int32s* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.KeyListOf()); });
}

int32_t quor_probe_table_get_ValueEnds(quor_object probe_table, quor_int32s* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.ValueEnds()); });
}

int32_t quor_probe_table_get_Values(quor_object probe_table, quor_doubles* result) {
    return Call<ProbeTableFace>(probe_table, [&](auto& it) { Out(result, it.Values()); });
}
// NOLINTEND
