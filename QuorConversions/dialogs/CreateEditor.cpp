#include "QuorConversions/core/SettingsEditor.h"

namespace QuorConversions {

// No class has a dialog yet; Edit tells the user so.
std::unique_ptr<SettingsEditor> CreateEditor(SettingsObject& /*settings*/) { return nullptr; }

} // namespace QuorConversions
