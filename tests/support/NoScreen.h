#pragma once

#include "QuorConversions/platform/HeadlessPlatform.h"
#include "toolkits/scripted/ScriptedPlatform.h"

namespace Support {

/// Records everything, but no dialog can be shown on it, as on a host without a screen.
class NoScreen : public QuorConversions::Scripted::ScriptedPlatform {
public:
    void RunDialog(QuorConversions::Dialog& dialog, QuorConversions::DialogInput& input) override {
        QuorConversions::HeadlessPlatform().RunDialog(dialog, input);
    }
};

} // namespace Support
