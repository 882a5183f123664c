#include "tests/QuorIniFile/saver/SaverSystem.h"

bool RunSystemTask(const std::string& /*task*/, const std::string& /*file*/) { return false; }
