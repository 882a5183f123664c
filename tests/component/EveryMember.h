/* What the generated calls of all typed functions need; EveryMemberTest.cpp has it. */
#pragma once

#include "component/quor.h"
#include "tests/component/generated/EveryMemberFunctions.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Stands before each call: what is offered is as it was before the one before it. */
void before_call(void);
/* quor_invoke, by name. */
int32_t by_name(quor_object object, const char* name, int32_t kind, quor_value* args, int32_t n,
                quor_value* result);
int same_text(quor_text typed, quor_text named);
int same_number(double typed, double named);
int same_class(quor_object typed, quor_object named);
/* Typed and by name a call returns the same code, and gives the same when it is 0. */
void check(int32_t typed, int32_t named, int gives_the_same, const char* function);

#ifdef __cplusplus
}
#endif
