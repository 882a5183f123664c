/* Made by component/generate from members.txt: change that. */
/* Calls each typed function of each class, and the same by name. */
#include "tests/component/EveryMember.h"

void every_member_of_conversion(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_conversion_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_conversion_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_conversion_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_HelpFile(object, &typed);
        before_call();
        const int32_t same = by_name(object, "HelpFile", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_conversion_get_HelpFile");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_conversion_put_HelpFile(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "HelpFile", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_conversion_put_HelpFile");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_conversion_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_conversion_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_conversion_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_conversion_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_conversion_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_conversion_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_conversion_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_conversion_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_conversion_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_Settings(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Settings", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_conversion_get_Settings");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_EQuorConversionType typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_get_ConversionType(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ConversionType", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_conversion_get_ConversionType");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_conversion_put_ConversionType(object, 1);
        before_call();
        const int32_t same = by_name(object, "ConversionType", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_conversion_put_ConversionType");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_conversion_ConversionName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "ConversionName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_conversion_ConversionName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_conversion_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_conversion_Edit");
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_conversion_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_conversion_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_conversion_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_conversion_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_its90(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_its90_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_its90_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_its90_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_HighRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "HighRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_its90_get_HighRange");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_LowRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "LowRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_its90_get_LowRange");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_RTPW(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RTPW", QUOR_GET, args, 0, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_its90_get_RTPW");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_DOUBLE; args[0].as.number = 2.5;
        before_call();
        const int32_t code = quor_its90_put_RTPW(object, 2.5);
        before_call();
        const int32_t same = by_name(object, "RTPW", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_put_RTPW");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_get_RTPWFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RTPWFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_get_RTPWFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_put_RTPWFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "RTPWFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_put_RTPWFormat");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_its90_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_its90_low_range(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_ShowCoefRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ShowCoefRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_low_range_get_ShowCoefRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_low_range_put_ShowCoefRange(object, -1);
        before_call();
        const int32_t same = by_name(object, "ShowCoefRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_ShowCoefRange");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_AllowChangeRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowChangeRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_low_range_get_AllowChangeRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_low_range_put_AllowChangeRange(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowChangeRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_AllowChangeRange");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_its90_low_range_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_its90_low_range_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_its90_low_range_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_low_range_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_low_range_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_RangeEnabled(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RangeEnabled", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_low_range_get_RangeEnabled");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_low_range_put_RangeEnabled(object, -1);
        before_call();
        const int32_t same = by_name(object, "RangeEnabled", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_RangeEnabled");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_its90_low_range_RangeName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "RangeName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_low_range_RangeName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_its90_low_range_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_EITS90RangeNumber typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_Range(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Range", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_its90_low_range_get_Range");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_its90_low_range_put_Range(object, 1);
        before_call();
        const int32_t same = by_name(object, "Range", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_Range");
        quor_value_clear(&result);
    }
    {
        quor_EITS90RangeNumber typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_MaxRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MaxRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_its90_low_range_get_MaxRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_its90_low_range_put_MaxRange(object, 1);
        before_call();
        const int32_t same = by_name(object, "MaxRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_MaxRange");
        quor_value_clear(&result);
    }
    {
        quor_EITS90RangeNumber typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_MinRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MinRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_its90_low_range_get_MinRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_its90_low_range_put_MinRange(object, 1);
        before_call();
        const int32_t same = by_name(object, "MinRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_MinRange");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_its90_low_range_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_its90_low_range_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_its90_low_range_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_its90_low_range_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_low_range_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_low_range_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_low_range_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_its90_low_range_FillRangeCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillRangeCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_its90_low_range_FillRangeCombo");
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_low_range_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_its90_low_range_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_low_range_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_low_range_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_its90_high_range(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_ShowCoefRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ShowCoefRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_high_range_get_ShowCoefRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_high_range_put_ShowCoefRange(object, -1);
        before_call();
        const int32_t same = by_name(object, "ShowCoefRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_ShowCoefRange");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_AllowChangeRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowChangeRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_high_range_get_AllowChangeRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_high_range_put_AllowChangeRange(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowChangeRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_AllowChangeRange");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_its90_high_range_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_its90_high_range_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_its90_high_range_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_high_range_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_high_range_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_RangeEnabled(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RangeEnabled", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_high_range_get_RangeEnabled");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_its90_high_range_put_RangeEnabled(object, -1);
        before_call();
        const int32_t same = by_name(object, "RangeEnabled", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_RangeEnabled");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_its90_high_range_RangeName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "RangeName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_high_range_RangeName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_its90_high_range_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_EITS90RangeNumber typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_Range(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Range", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_its90_high_range_get_Range");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_its90_high_range_put_Range(object, 1);
        before_call();
        const int32_t same = by_name(object, "Range", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_Range");
        quor_value_clear(&result);
    }
    {
        quor_EITS90RangeNumber typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_MaxRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MaxRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_its90_high_range_get_MaxRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_its90_high_range_put_MaxRange(object, 1);
        before_call();
        const int32_t same = by_name(object, "MaxRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_MaxRange");
        quor_value_clear(&result);
    }
    {
        quor_EITS90RangeNumber typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_MinRange(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MinRange", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_its90_high_range_get_MinRange");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_its90_high_range_put_MinRange(object, 1);
        before_call();
        const int32_t same = by_name(object, "MinRange", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_MinRange");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_its90_high_range_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_its90_high_range_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_its90_high_range_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_its90_high_range_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_its90_high_range_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_its90_high_range_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_high_range_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_its90_high_range_FillRangeCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillRangeCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_its90_high_range_FillRangeCombo");
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_high_range_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_its90_high_range_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_its90_high_range_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_its90_high_range_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_ipts68(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_ipts68_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_ipts68_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_ipts68_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_ipts68_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_ipts68_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_ipts68_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_ipts68_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_ipts68_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_ipts68_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_ipts68_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_ScaleEnabled(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ScaleEnabled", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_get_ScaleEnabled");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_ipts68_put_ScaleEnabled(object, -1);
        before_call();
        const int32_t same = by_name(object, "ScaleEnabled", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_ipts68_put_ScaleEnabled");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_ipts68_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_EIPTS68Scale typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_get_IPTS68Scale(object, &typed);
        before_call();
        const int32_t same = by_name(object, "IPTS68Scale", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_ipts68_get_IPTS68Scale");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_ipts68_put_IPTS68Scale(object, 1);
        before_call();
        const int32_t same = by_name(object, "IPTS68Scale", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_ipts68_put_IPTS68Scale");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_ipts68_IPTS68ScaleName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "IPTS68ScaleName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_ipts68_IPTS68ScaleName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_ipts68_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_ipts68_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_ipts68_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_ipts68_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_ipts68_get_ValueFormat(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_ipts68_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_ipts68_put_ValueFormat(object, 0, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_ipts68_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_ipts68_FillScaleCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillScaleCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_ipts68_FillScaleCombo");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_ipts68_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_ipts68_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_ipts68_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_ipts68_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_ipts68_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_ipts68_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_ipts68_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_ipts68_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_cvd(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_cvd_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_cvd_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_cvd_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_cvd_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_cvd_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_cvd_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_cvd_put_Changed");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_cvd_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_cvd_put_NumCoefficients(object, 2);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_cvd_put_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_cvd_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_cvd_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_cvd_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_cvd_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_get_UsePolynomial(object, &typed);
        before_call();
        const int32_t same = by_name(object, "UsePolynomial", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_get_UsePolynomial");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_cvd_put_UsePolynomial(object, -1);
        before_call();
        const int32_t same = by_name(object, "UsePolynomial", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_cvd_put_UsePolynomial");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_cvd_get_ValueFormat(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_cvd_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_cvd_put_ValueFormat(object, 0, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_cvd_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_MaxCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MaxCoefficients", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_cvd_MaxCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_cvd_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_cvd_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_cvd_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_cvd_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_cvd_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_cvd_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_cvd_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_cvd_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_cvd_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_cvd_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_cvd_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_pt100(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_pt100_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_pt100_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_pt100_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_pt100_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_pt100_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_pt100_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_pt100_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_pt100_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_pt100_put_Changed");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_pt100_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_pt100_put_NumCoefficients(object, 2);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_pt100_put_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_pt100_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_pt100_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_pt100_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_pt100_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_pt100_get_ValueFormat(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_pt100_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_pt100_put_ValueFormat(object, 0, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_pt100_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_MaxCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MaxCoefficients", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_pt100_MaxCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_pt100_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_pt100_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_pt100_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_pt100_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_pt100_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_pt100_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_pt100_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_pt100_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_pt100_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_pt100_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_pt100_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_pt100_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_pt100_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_pt100_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_htprt(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_htprt_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_htprt_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_htprt_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_htprt_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_htprt_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_htprt_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_htprt_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_htprt_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_htprt_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_htprt_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_htprt_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_htprt_put_FilePath");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_htprt_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_htprt_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_htprt_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_htprt_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_htprt_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_htprt_get_ValueFormat(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_htprt_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_htprt_put_ValueFormat(object, 0, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_htprt_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_htprt_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_htprt_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_htprt_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_htprt_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_htprt_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_htprt_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_htprt_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_htprt_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_htprt_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_htprt_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_htprt_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_wt90(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_wt90_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_wt90_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_wt90_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_wt90_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_wt90_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_wt90_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_wt90_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_wt90_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_wt90_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_wt90_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_wt90_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_wt90_put_FilePath");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_get_RTPW(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RTPW", QUOR_GET, args, 0, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_wt90_get_RTPW");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_DOUBLE; args[0].as.number = 2.5;
        before_call();
        const int32_t code = quor_wt90_put_RTPW(object, 2.5);
        before_call();
        const int32_t same = by_name(object, "RTPW", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_wt90_put_RTPW");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_get_RTPWFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RTPWFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_wt90_get_RTPWFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_wt90_put_RTPWFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "RTPWFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_wt90_put_RTPWFormat");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_wt90_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_wt90_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_wt90_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_wt90_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_wt90_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_wt90_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_wt90_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_wt90_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_wt90_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_wt90_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_wt90_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_thermistor(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_thermistor_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_thermistor_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_thermistor_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_thermistor_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_thermistor_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_thermistor_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_thermistor_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_thermistor_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_thermistor_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_thermistor_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_thermistor_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_thermistor_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_EThermistorConvType typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_ConvType(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ConvType", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_thermistor_get_ConvType");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_thermistor_put_ConvType(object, 1);
        before_call();
        const int32_t same = by_name(object, "ConvType", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_thermistor_put_ConvType");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_thermistor_ConvName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "ConvName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_thermistor_ConvName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_thermistor_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_thermistor_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_thermistor_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_thermistor_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_thermistor_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_thermistor_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_thermistor_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_thermistor_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_thermistor_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_thermistor_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_thermistor_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_thermistor_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_thermistor_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_thermistor_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_thermistor_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_thermistor_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_thermistor_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_thermistor_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_thermistor_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_polynomial(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_polynomial_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_polynomial_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_polynomial_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_polynomial_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_polynomial_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_polynomial_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_polynomial_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_polynomial_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_polynomial_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_polynomial_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_polynomial_put_FilePath");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_polynomial_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_Order(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Order", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_polynomial_get_Order");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_polynomial_put_Order(object, 2);
        before_call();
        const int32_t same = by_name(object, "Order", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_polynomial_put_Order");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_MinOrder(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MinOrder", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_polynomial_get_MinOrder");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_MaxOrder(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MaxOrder", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_polynomial_get_MaxOrder");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_polynomial_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_polynomial_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_polynomial_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_polynomial_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_polynomial_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_polynomial_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_polynomial_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_polynomial_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_polynomial_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_polynomial_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_polynomial_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_polynomial_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_polynomial_put_CoefficientLabelPrefix(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "CoefficientLabelPrefix", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_polynomial_put_CoefficientLabelPrefix");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_polynomial_get_CoefficientLabelPrefix(object, &typed);
        before_call();
        const int32_t same = by_name(object, "CoefficientLabelPrefix", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_polynomial_get_CoefficientLabelPrefix");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
}

void every_member_of_tc_polynomial(quor_object object) {
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_mV25CFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "mV25CFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_polynomial_get_mV25CFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_put_mV25CFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "mV25CFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_mV25CFormat");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_mV25C(object, &typed);
        before_call();
        const int32_t same = by_name(object, "mV25C", QUOR_GET, args, 0, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_polynomial_get_mV25C");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_DOUBLE; args[0].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_polynomial_put_mV25C(object, 2.5);
        before_call();
        const int32_t same = by_name(object, "mV25C", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_mV25C");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_ShowmV25C(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ShowmV25C", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_get_ShowmV25C");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_polynomial_put_ShowmV25C(object, -1);
        before_call();
        const int32_t same = by_name(object, "ShowmV25C", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_ShowmV25C");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_polynomial_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_tc_polynomial_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_tc_polynomial_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_tc_polynomial_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_polynomial_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_polynomial_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_FilePath");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_tc_polynomial_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_tc_polynomial_put_NumCoefficients(object, 2);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_polynomial_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_polynomial_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_polynomial_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_polynomial_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_polynomial_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_polynomial_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_polynomial_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_polynomial_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_tc_polynomial_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_polynomial_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_polynomial_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_tc_table(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_table_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_table_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_tc_table_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_tc_table_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_tc_table_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_table_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_table_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_table_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_FilePath");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_NumPoints(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumPoints", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_tc_table_get_NumPoints");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_tc_table_put_NumPoints(object, 2);
        before_call();
        const int32_t same = by_name(object, "NumPoints", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_NumPoints");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_table_get_Temperatures(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Temperatures", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_table_get_Temperatures");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_table_put_Temperatures(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Temperatures", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_table_put_Temperatures");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_table_get_Voltages(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Voltages", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_table_get_Voltages");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_table_put_Voltages(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Voltages", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_table_put_Voltages");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_TempFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TempFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_table_get_TempFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_put_TempFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "TempFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_TempFormat");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_VoltageFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "VoltageFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_table_get_VoltageFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_put_VoltageFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "VoltageFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_VoltageFormat");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_TempScale(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TempScale", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_table_get_TempScale");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_put_TempScale(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "TempScale", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_TempScale");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_get_VoltageScale(object, &typed);
        before_call();
        const int32_t same = by_name(object, "VoltageScale", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_table_get_VoltageScale");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_put_VoltageScale(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "VoltageScale", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_table_put_VoltageScale");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_table_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_table_GetName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_table_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_tc_table_FillPointsCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillPointsCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_tc_table_FillPointsCombo");
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_table_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_table_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_tc_table_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_table_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_table_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_tc_typex(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_ShowDCCoefs(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ShowDCCoefs", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_get_ShowDCCoefs");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_typex_put_ShowDCCoefs(object, -1);
        before_call();
        const int32_t same = by_name(object, "ShowDCCoefs", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_ShowDCCoefs");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_typex_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_tc_typex_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_tc_typex_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_tc_typex_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_typex_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_TempScale(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TempScale", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_get_TempScale");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_put_TempScale(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "TempScale", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_TempScale");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_OffsetScale(object, &typed);
        before_call();
        const int32_t same = by_name(object, "OffsetScale", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_get_OffsetScale");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_put_OffsetScale(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "OffsetScale", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_OffsetScale");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_FilePath");
        quor_value_clear(&result);
    }
    {
        quor_ETCType typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_TCType(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TCType", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_tc_typex_get_TCType");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_tc_typex_put_TCType(object, 1);
        before_call();
        const int32_t same = by_name(object, "TCType", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_TCType");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_tc_typex_GetTCTypeName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "GetTCTypeName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_GetTCTypeName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_tc_typex_FillTCTypeNameCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillTCTypeNameCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_FillTCTypeNameCombo");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_NumPoints(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumPoints", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_tc_typex_get_NumPoints");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_tc_typex_put_NumPoints(object, 2);
        before_call();
        const int32_t same = by_name(object, "NumPoints", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_NumPoints");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_typex_get_Temperatures(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Temperatures", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_typex_get_Temperatures");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_typex_put_Temperatures(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Temperatures", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_typex_put_Temperatures");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_typex_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_typex_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_typex_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_typex_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_typex_get_Offsets(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Offsets", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_typex_get_Offsets");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_typex_put_Offsets(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Offsets", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_typex_put_Offsets");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_TempFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TempFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_get_TempFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_put_TempFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "TempFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_TempFormat");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_get_OffsetFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "OffsetFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_get_OffsetFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_put_OffsetFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "OffsetFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_put_OffsetFormat");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typex_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_tc_typex_GetName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typex_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_tc_typex_FillPointsCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillPointsCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_tc_typex_FillPointsCombo");
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_tc_typex_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typex_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typex_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_tc_typepoly(quor_object object) {
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_AllowEdit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typepoly_get_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_typepoly_put_AllowEdit(object, -1);
        before_call();
        const int32_t same = by_name(object, "AllowEdit", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_put_AllowEdit");
        quor_value_clear(&result);
    }
    {
        quor_object vData = sample_Registry;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Registry;
        before_call();
        const int32_t code = quor_tc_typepoly_SetRegistry(object, &vData);
        before_call();
        const int32_t same = by_name(object, "SetRegistry", QUOR_CALL, args, 1, &result);
        check(code, same, vData == args[0].as.object, "quor_tc_typepoly_SetRegistry");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_Registry(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Registry", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_tc_typepoly_get_Registry");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typepoly_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_tc_typepoly_put_Changed(object, -1);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_put_Changed");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_FilePath(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typepoly_get_FilePath");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typepoly_put_FilePath(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FilePath", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_put_FilePath");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_NumCoefficients(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_tc_typepoly_get_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_tc_typepoly_put_NumCoefficients(object, 2);
        before_call();
        const int32_t same = by_name(object, "NumCoefficients", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_put_NumCoefficients");
        quor_value_clear(&result);
    }
    {
        double typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_tc_typepoly_get_Coefficients(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_GET, args, 1, &result);
        check(code, same, same_number(typed, result.as.number) && result.kind == QUOR_DOUBLE, "quor_tc_typepoly_get_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_tc_typepoly_put_Coefficients(object, 0, 2.5);
        before_call();
        const int32_t same = by_name(object, "Coefficients", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_tc_typepoly_put_Coefficients");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_ValueFormat(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typepoly_get_ValueFormat");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typepoly_put_ValueFormat(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "ValueFormat", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_put_ValueFormat");
        quor_value_clear(&result);
    }
    {
        quor_ETCType typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_get_TCType(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TCType", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_tc_typepoly_get_TCType");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 1;
        before_call();
        const int32_t code = quor_tc_typepoly_put_TCType(object, 1);
        before_call();
        const int32_t same = by_name(object, "TCType", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_put_TCType");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_tc_typepoly_GetTCTypeName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "GetTCTypeName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typepoly_GetTCTypeName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ListControl;
        before_call();
        const int32_t code = quor_tc_typepoly_FillTCTypeNameCombo(object, sample_ListControl);
        before_call();
        const int32_t same = by_name(object, "FillTCTypeNameCombo", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_tc_typepoly_FillTCTypeNameCombo");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_tc_typepoly_Edit(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Edit", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typepoly_Edit");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_tc_typepoly_GetName(object, -2, &typed);
        before_call();
        const int32_t same = by_name(object, "GetName", QUOR_CALL, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_tc_typepoly_GetName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typepoly_OpenFile(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "OpenFile", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typepoly_OpenFile");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Filename_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typepoly_SaveFileAs(object, -2, quor_text_of("sample"), &Filename_out, &typed);
        before_call();
        const int32_t same = by_name(object, "SaveFileAs", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Filename_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typepoly_SaveFileAs");
        quor_text_free(&Filename_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typepoly_WriteToFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteToFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object, "quor_tc_typepoly_WriteToFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
    {
        quor_object INIFile = sample_INIFile;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_INIFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_tc_typepoly_ReadFromFile(object, &INIFile, quor_text_of("sample"), quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "ReadFromFile", QUOR_CALL, args, 3, &result);
        check(code, same, INIFile == args[0].as.object && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_tc_typepoly_ReadFromFile");
        quor_value_clear(&args[0]);
        quor_value_clear(&result);
    }
}

void every_member_of_inifile(quor_object object) {
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_inifile_put_FileName(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "FileName", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_inifile_put_FileName");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_inifile_get_FileName(object, &typed);
        before_call();
        const int32_t same = by_name(object, "FileName", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_inifile_get_FileName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_inifile_put_Section(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "Section", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_inifile_put_Section");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_inifile_get_Section(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Section", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_inifile_get_Section");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool Value = -1;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_BOOL; args[1].as.boolean = -1;
        before_call();
        const int32_t code = quor_inifile_ReadBoolean(object, quor_text_of("sample"), &Value, &typed);
        before_call();
        const int32_t same = by_name(object, "ReadBoolean", QUOR_CALL, args, 2, &result);
        check(code, same, Value == args[1].as.boolean && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_inifile_ReadBoolean");
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        double Value = 2.5;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        before_call();
        const int32_t code = quor_inifile_ReadDouble(object, quor_text_of("sample"), &Value, &typed);
        before_call();
        const int32_t same = by_name(object, "ReadDouble", QUOR_CALL, args, 2, &result);
        check(code, same, Value == args[1].as.number && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_inifile_ReadDouble");
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        int16_t Value = 2;
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_INT16; args[1].as.int16 = 2;
        before_call();
        const int32_t code = quor_inifile_ReadInteger(object, quor_text_of("sample"), &Value, &typed);
        before_call();
        const int32_t same = by_name(object, "ReadInteger", QUOR_CALL, args, 2, &result);
        check(code, same, Value == args[1].as.int16 && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_inifile_ReadInteger");
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_text Value_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_inifile_ReadString(object, quor_text_of("sample"), quor_text_of("sample"), &Value_out, &typed);
        before_call();
        const int32_t same = by_name(object, "ReadString", QUOR_CALL, args, 2, &result);
        check(code, same, same_text(Value_out, args[1].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_inifile_ReadString");
        quor_text_free(&Value_out);
        quor_value_clear(&args[1]);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_BOOL; args[1].as.boolean = -1;
        before_call();
        const int32_t code = quor_inifile_WriteBoolean(object, quor_text_of("sample"), -1);
        before_call();
        const int32_t same = by_name(object, "WriteBoolean", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_inifile_WriteBoolean");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_DOUBLE; args[1].as.number = 2.5;
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_inifile_WriteDouble(object, quor_text_of("sample"), 2.5, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteDouble", QUOR_CALL, args, 3, &result);
        check(code, same, 1, "quor_inifile_WriteDouble");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_INT16; args[1].as.int16 = 2;
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_inifile_WriteInteger(object, quor_text_of("sample"), 2, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteInteger", QUOR_CALL, args, 3, &result);
        check(code, same, 1, "quor_inifile_WriteInteger");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_inifile_WriteString(object, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteString", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_inifile_WriteString");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_inifile_Hold(object);
        before_call();
        const int32_t same = by_name(object, "Hold", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_inifile_Hold");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_inifile_Release(object);
        before_call();
        const int32_t same = by_name(object, "Release", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_inifile_Release");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_inifile_Abandon(object);
        before_call();
        const int32_t same = by_name(object, "Abandon", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_inifile_Abandon");
        quor_value_clear(&result);
    }
}

void every_member_of_registry(quor_object object) {
    {
        quor_text Value_out = {NULL, 0};
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_registry_ReadValue(object, quor_text_of("sample"), quor_text_of("sample"), quor_text_of("sample"), &Value_out, &typed);
        before_call();
        const int32_t same = by_name(object, "ReadValue", QUOR_CALL, args, 3, &result);
        check(code, same, same_text(Value_out, args[2].as.text) && typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_registry_ReadValue");
        quor_text_free(&Value_out);
        quor_value_clear(&args[2]);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_registry_WriteValue(object, quor_text_of("sample"), quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "WriteValue", QUOR_CALL, args, 3, &result);
        check(code, same, 1, "quor_registry_WriteValue");
        quor_value_clear(&result);
    }
}

void every_member_of_list_control(quor_object object) {
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_list_control_Clear(object);
        before_call();
        const int32_t same = by_name(object, "Clear", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_list_control_Clear");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_list_control_AddItem(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "AddItem", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_list_control_AddItem");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_list_control_get_NewIndex(object, &typed);
        before_call();
        const int32_t same = by_name(object, "NewIndex", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_list_control_get_NewIndex");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_INT32; args[1].as.int32 = -2;
        before_call();
        const int32_t code = quor_list_control_put_ItemData(object, 0, -2);
        before_call();
        const int32_t same = by_name(object, "ItemData", QUOR_PUT, args, 2, &result);
        check(code, same, 1, "quor_list_control_put_ItemData");
        quor_value_clear(&result);
    }
}

void every_member_of_dialog(quor_object object) {
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_Name(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Name", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_dialog_get_Name");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_Title(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Title", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_dialog_get_Title");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_HelpContext(object, &typed);
        before_call();
        const int32_t same = by_name(object, "HelpContext", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_dialog_get_HelpContext");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_ControlCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ControlCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_dialog_get_ControlCount");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_dialog_get_Controls(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Controls", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_get_Controls");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_dialog_FindControl(object, quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "FindControl", QUOR_CALL, args, 1, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_FindControl");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_ColumnCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ColumnCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_dialog_get_ColumnCount");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_dialog_get_Columns(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Columns", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_get_Columns");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_CancelButton(object, &typed);
        before_call();
        const int32_t same = by_name(object, "CancelButton", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_get_CancelButton");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_WindowHandle(object, &typed);
        before_call();
        const int32_t same = by_name(object, "WindowHandle", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_dialog_get_WindowHandle");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        before_call();
        const int32_t code = quor_dialog_put_WindowHandle(object, -2);
        before_call();
        const int32_t same = by_name(object, "WindowHandle", QUOR_PUT, args, 1, &result);
        check(code, same, 1, "quor_dialog_put_WindowHandle");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_HasPlace(object, &typed);
        before_call();
        const int32_t same = by_name(object, "HasPlace", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_dialog_get_HasPlace");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_Left(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Left", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_dialog_get_Left");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_Top(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Top", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_dialog_get_Top");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = -2;
        args[1].kind = QUOR_INT32; args[1].as.int32 = -2;
        before_call();
        const int32_t code = quor_dialog_SetPlace(object, -2, -2);
        before_call();
        const int32_t same = by_name(object, "SetPlace", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_dialog_SetPlace");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_IsOpen(object, &typed);
        before_call();
        const int32_t same = by_name(object, "IsOpen", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_dialog_get_IsOpen");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_ActiveControl(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ActiveControl", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_get_ActiveControl");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_Activate(object);
        before_call();
        const int32_t same = by_name(object, "Activate", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_dialog_Activate");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Control;
        before_call();
        const int32_t code = quor_dialog_Click(object, sample_Control);
        before_call();
        const int32_t same = by_name(object, "Click", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_dialog_Click");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Control;
        args[1].kind = QUOR_INT32; args[1].as.int32 = 0;
        before_call();
        const int32_t code = quor_dialog_Choose(object, sample_Control, 0);
        before_call();
        const int32_t same = by_name(object, "Choose", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_dialog_Choose");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Control;
        args[1].kind = QUOR_INT32; args[1].as.int32 = 0;
        before_call();
        const int32_t code = quor_dialog_SelectTab(object, sample_Control, 0);
        before_call();
        const int32_t same = by_name(object, "SelectTab", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_dialog_SelectTab");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Control;
        before_call();
        const int32_t code = quor_dialog_Focus(object, sample_Control);
        before_call();
        const int32_t same = by_name(object, "Focus", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_dialog_Focus");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_BOOL; args[0].as.boolean = -1;
        before_call();
        const int32_t code = quor_dialog_PressTab(object, -1);
        before_call();
        const int32_t same = by_name(object, "PressTab", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_dialog_PressTab");
        quor_value_clear(&result);
    }
    {
        int16_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT16; args[0].as.int16 = 2;
        before_call();
        const int32_t code = quor_dialog_KeyPress(object, 2, &typed);
        before_call();
        const int32_t same = by_name(object, "KeyPress", QUOR_CALL, args, 1, &result);
        check(code, same, typed == result.as.int16 && result.kind == QUOR_INT16, "quor_dialog_KeyPress");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Control;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_INT32; args[2].as.int32 = 0;
        args[3].kind = QUOR_INT32; args[3].as.int32 = 0;
        before_call();
        const int32_t code = quor_dialog_EditText(object, sample_Control, quor_text_of("sample"), 0, 0);
        before_call();
        const int32_t same = by_name(object, "EditText", QUOR_CALL, args, 4, &result);
        check(code, same, 1, "quor_dialog_EditText");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_Escape(object);
        before_call();
        const int32_t same = by_name(object, "Escape", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_dialog_Escape");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_Close(object);
        before_call();
        const int32_t same = by_name(object, "Close", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_dialog_Close");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_Control;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_dialog_Paste(object, sample_Control, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "Paste", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_dialog_Paste");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_Help(object);
        before_call();
        const int32_t same = by_name(object, "Help", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_dialog_Help");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_HelpButton(object, &typed);
        before_call();
        const int32_t same = by_name(object, "HelpButton", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_get_HelpButton");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_dialog_get_AdvisedBox(object, &typed);
        before_call();
        const int32_t same = by_name(object, "AdvisedBox", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_dialog_get_AdvisedBox");
        quor_release(typed);
        quor_value_clear(&result);
    }
}

void every_member_of_control(quor_object object) {
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Name(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Name", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_control_get_Name");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_EControlKind typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Kind(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Kind", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_Kind");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Caption(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Caption", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_control_get_Caption");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Enabled(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Enabled", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_control_get_Enabled");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Visible(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Visible", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_control_get_Visible");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_IsShown(object, &typed);
        before_call();
        const int32_t same = by_name(object, "IsShown", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_control_get_IsShown");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_IsUsable(object, &typed);
        before_call();
        const int32_t same = by_name(object, "IsUsable", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_control_get_IsUsable");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Parent(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Parent", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_control_get_Parent");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Text(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Text", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_control_get_Text");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_SelStart(object, &typed);
        before_call();
        const int32_t same = by_name(object, "SelStart", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_SelStart");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_SelLength(object, &typed);
        before_call();
        const int32_t same = by_name(object, "SelLength", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_SelLength");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_ListCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ListCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_ListCount");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_control_get_List(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "List", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_control_get_List");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_control_get_ItemData(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ItemData", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_ItemData");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_ListIndex(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ListIndex", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_ListIndex");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_RowCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "RowCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_RowCount");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_control_get_RowLength(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "RowLength", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_RowLength");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        args[1].kind = QUOR_INT32; args[1].as.int32 = 0;
        before_call();
        const int32_t code = quor_control_get_RowControls(object, 0, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "RowControls", QUOR_GET, args, 2, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_control_get_RowControls");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_TabCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "TabCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_TabCount");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_control_get_TabCaption(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "TabCaption", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_control_get_TabCaption");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_control_get_TabPresent(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "TabPresent", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_control_get_TabPresent");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_SelectedTab(object, &typed);
        before_call();
        const int32_t same = by_name(object, "SelectedTab", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_control_get_SelectedTab");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_control_get_Advice(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Advice", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_control_get_Advice");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
}

void every_member_of_probe_file(quor_object object) {
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_Path(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Path", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_Path");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_IsReadOnly(object, &typed);
        before_call();
        const int32_t same = by_name(object, "IsReadOnly", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_get_IsReadOnly");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_ProbeCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ProbeCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ProbeCount");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProbeSection(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProbeSection", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ProbeSection");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProbeLine(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProbeLine", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ProbeLine");
        quor_value_clear(&result);
    }
    {
        quor_EQuorConversionType typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProbeType(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProbeType", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ProbeType");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_HasType(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "HasType", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_get_HasType");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_IsStandAlone(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "IsStandAlone", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_get_IsStandAlone");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ConversionName(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ConversionName", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ConversionName");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_probe_file_FindProbe(object, quor_text_of("sample"), &typed);
        before_call();
        const int32_t same = by_name(object, "FindProbe", QUOR_CALL, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_FindProbe");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_OBJECT; args[1].as.object = sample_CQuorConversion;
        before_call();
        const int32_t code = quor_probe_file_Read(object, quor_text_of("sample"), sample_CQuorConversion, &typed);
        before_call();
        const int32_t same = by_name(object, "Read", QUOR_CALL, args, 2, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_Read");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_ReadAll(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ReadAll", QUOR_CALL, args, 0, &result);
        check(code, same, same_class(typed, result.as.object) && result.kind == QUOR_OBJECT, "quor_probe_file_ReadAll");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_Check(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Check", QUOR_CALL, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_Check");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_ProblemCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ProblemCount");
        quor_value_clear(&result);
    }
    {
        quor_EProbeProblem typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProblemKind(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemKind", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ProblemKind");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProblemLine(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemLine", QUOR_GET, args, 1, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ProblemLine");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProblemSection(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemSection", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ProblemSection");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProblemKey(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemKey", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ProblemKey");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ProblemText(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemText", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ProblemText");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_MessageCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "MessageCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_MessageCount");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_Messages(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "Messages", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_Messages");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_OBJECT; args[1].as.object = sample_CQuorConversion;
        before_call();
        const int32_t code = quor_probe_file_Write(object, quor_text_of("sample"), sample_CQuorConversion);
        before_call();
        const int32_t same = by_name(object, "Write", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_probe_file_Write");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_OBJECT; args[1].as.object = sample_CQuorConversion;
        before_call();
        const int32_t code = quor_probe_file_WriteChanges(object, quor_text_of("sample"), sample_CQuorConversion, &typed);
        before_call();
        const int32_t same = by_name(object, "WriteChanges", QUOR_CALL, args, 2, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_WriteChanges");
        quor_value_clear(&result);
    }
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_ConflictCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ConflictCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ConflictCount");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ConflictSection(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ConflictSection", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ConflictSection");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ConflictKey(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ConflictKey", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ConflictKey");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ConflictRead(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ConflictRead", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ConflictRead");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ConflictTheirs(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ConflictTheirs", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ConflictTheirs");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_INT32; args[0].as.int32 = 0;
        before_call();
        const int32_t code = quor_probe_file_get_ConflictOurs(object, 0, &typed);
        before_call();
        const int32_t same = by_name(object, "ConflictOurs", QUOR_GET, args, 1, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ConflictOurs");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_probe_file_Rename(object, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "Rename", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_probe_file_Rename");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_probe_file_Remove(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "Remove", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_probe_file_Remove");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_probe_file_Copy(object, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "Copy", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_probe_file_Copy");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_OBJECT; args[0].as.object = sample_ProbeFile;
        args[1].kind = QUOR_TEXT; args[1].as.text = quor_text_of("sample");
        args[2].kind = QUOR_TEXT; args[2].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_probe_file_CopyFrom(object, sample_ProbeFile, quor_text_of("sample"), quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "CopyFrom", QUOR_CALL, args, 3, &result);
        check(code, same, 1, "quor_probe_file_CopyFrom");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_Hold(object);
        before_call();
        const int32_t same = by_name(object, "Hold", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_probe_file_Hold");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_Release(object);
        before_call();
        const int32_t same = by_name(object, "Release", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_probe_file_Release");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_Abandon(object);
        before_call();
        const int32_t same = by_name(object, "Abandon", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_probe_file_Abandon");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        before_call();
        const int32_t code = quor_probe_file_SaveAs(object, quor_text_of("sample"));
        before_call();
        const int32_t same = by_name(object, "SaveAs", QUOR_CALL, args, 1, &result);
        check(code, same, 1, "quor_probe_file_SaveAs");
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_Changed(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Changed", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_get_Changed");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_Reload(object);
        before_call();
        const int32_t same = by_name(object, "Reload", QUOR_CALL, args, 0, &result);
        check(code, same, 1, "quor_probe_file_Reload");
        quor_value_clear(&result);
    }
    {
        quor_object typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_Store(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Store", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.object && result.kind == QUOR_OBJECT, "quor_probe_file_get_Store");
        quor_release(typed);
        quor_value_clear(&result);
    }
    {
        quor_EProbeFileError typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_ErrorCode(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ErrorCode", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_file_get_ErrorCode");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_file_get_ErrorOther(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ErrorOther", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_file_get_ErrorOther");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_bool typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_OBJECT; args[1].as.object = sample_CQuorConversion;
        before_call();
        const int32_t code = quor_probe_file_Differs(object, quor_text_of("sample"), sample_CQuorConversion, &typed);
        before_call();
        const int32_t same = by_name(object, "Differs", QUOR_CALL, args, 2, &result);
        check(code, same, typed == result.as.boolean && result.kind == QUOR_BOOL, "quor_probe_file_Differs");
        quor_value_clear(&result);
    }
    {
        quor_value args[5] = {{0}};
        quor_value result = {0};
        args[0].kind = QUOR_TEXT; args[0].as.text = quor_text_of("sample");
        args[1].kind = QUOR_OBJECT; args[1].as.object = sample_CQuorConversion;
        before_call();
        const int32_t code = quor_probe_file_RequireUnchanged(object, quor_text_of("sample"), sample_CQuorConversion);
        before_call();
        const int32_t same = by_name(object, "RequireUnchanged", QUOR_CALL, args, 2, &result);
        check(code, same, 1, "quor_probe_file_RequireUnchanged");
        quor_value_clear(&result);
    }
}

void every_member_of_probe_table(quor_object object) {
    {
        int32_t typed = 0;
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_ProbeCount(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ProbeCount", QUOR_GET, args, 0, &result);
        check(code, same, typed == result.as.int32 && result.kind == QUOR_INT32, "quor_probe_table_get_ProbeCount");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_Sections(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Sections", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_table_get_Sections");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_int32s typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_Types(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Types", QUOR_GET, args, 0, &result);
        check(code, same, typed.values == result.as.int32s.values && typed.size == result.as.int32s.size && result.kind == QUOR_INT32S, "quor_probe_table_get_Types");
        quor_value_clear(&result);
    }
    {
        quor_int32s typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_ProblemCounts(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ProblemCounts", QUOR_GET, args, 0, &result);
        check(code, same, typed.values == result.as.int32s.values && typed.size == result.as.int32s.size && result.kind == QUOR_INT32S, "quor_probe_table_get_ProblemCounts");
        quor_value_clear(&result);
    }
    {
        quor_text typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_KeyLists(object, &typed);
        before_call();
        const int32_t same = by_name(object, "KeyLists", QUOR_GET, args, 0, &result);
        check(code, same, same_text(typed, result.as.text) && result.kind == QUOR_TEXT, "quor_probe_table_get_KeyLists");
        quor_text_free(&typed);
        quor_value_clear(&result);
    }
    {
        quor_int32s typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_KeyListOf(object, &typed);
        before_call();
        const int32_t same = by_name(object, "KeyListOf", QUOR_GET, args, 0, &result);
        check(code, same, typed.values == result.as.int32s.values && typed.size == result.as.int32s.size && result.kind == QUOR_INT32S, "quor_probe_table_get_KeyListOf");
        quor_value_clear(&result);
    }
    {
        quor_int32s typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_ValueEnds(object, &typed);
        before_call();
        const int32_t same = by_name(object, "ValueEnds", QUOR_GET, args, 0, &result);
        check(code, same, typed.values == result.as.int32s.values && typed.size == result.as.int32s.size && result.kind == QUOR_INT32S, "quor_probe_table_get_ValueEnds");
        quor_value_clear(&result);
    }
    {
        quor_doubles typed = {NULL, 0};
        quor_value args[5] = {{0}};
        quor_value result = {0};
        before_call();
        const int32_t code = quor_probe_table_get_Values(object, &typed);
        before_call();
        const int32_t same = by_name(object, "Values", QUOR_GET, args, 0, &result);
        check(code, same, typed.values == result.as.doubles.values && typed.size == result.as.doubles.size && result.kind == QUOR_DOUBLES, "quor_probe_table_get_Values");
        quor_value_clear(&result);
    }
}

const int every_member_count = 485;
