#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <string>
#include <vector>

namespace QuorConversions {

/// A caption without access key and colon, as people would say it.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring SpokenCaption(std::wstring caption);

/// What people call a control.
struct ControlName {
    Control* control;             ///< the control, never null
    std::wstring name;            ///< "R0", "Temperature 2", "Save As"
    std::wstring units;           ///< the unit after a box, "mV"; empty if there is none
    const Label* label = nullptr; ///< the label before it, to be read with it; null for a button
};

/// The controls of a dialog that have a name, according to its current captions: a push button is named after
/// its own caption, a box or list after the label before it, and one in a grid of points after the heading
/// above it and the label of its row.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::vector<ControlName> ControlNames(const Dialog& dialog);

} // namespace QuorConversions
