/* Made by component/generate from members.txt: change that. */
/* clang-format off */
#pragma once

#include "component/quor.h"

#ifdef __cplusplus
extern "C" {
#endif
void every_member_of_conversion(quor_object object);
void every_member_of_its90(quor_object object);
void every_member_of_its90_low_range(quor_object object);
void every_member_of_its90_high_range(quor_object object);
void every_member_of_ipts68(quor_object object);
void every_member_of_cvd(quor_object object);
void every_member_of_pt100(quor_object object);
void every_member_of_htprt(quor_object object);
void every_member_of_wt90(quor_object object);
void every_member_of_thermistor(quor_object object);
void every_member_of_polynomial(quor_object object);
void every_member_of_tc_polynomial(quor_object object);
void every_member_of_tc_table(quor_object object);
void every_member_of_tc_typex(quor_object object);
void every_member_of_tc_typepoly(quor_object object);
void every_member_of_inifile(quor_object object);
void every_member_of_registry(quor_object object);
void every_member_of_list_control(quor_object object);
void every_member_of_dialog(quor_object object);
void every_member_of_control(quor_object object);
void every_member_of_probe_file(quor_object object);
void every_member_of_probe_table(quor_object object);
extern const int every_member_count;

/* What the test that runs them offers. */
extern quor_object sample_CQuorConversion;
extern quor_object sample_INIFile;
extern quor_object sample_Registry;
extern quor_object sample_ListControl;
extern quor_object sample_Control;
extern quor_object sample_ProbeFile;
#ifdef __cplusplus
}
#endif
