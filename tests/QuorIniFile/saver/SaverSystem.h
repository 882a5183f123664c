#pragma once

#include <string>

/// Runs a task of the saver that needs a certain system; false when this one has none of that name.
bool RunSystemTask(const std::string& task, const std::string& file);
