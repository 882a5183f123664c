#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <string>
#include <vector>

namespace QuorConversions {

/// A caption as it is spoken of: without access key and colon.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring SpokenCaption(std::wstring caption);

/// How people speak of a control.
struct ControlName {
    Control* control;
    std::wstring name;            ///< "R0", "Temperature 2", "Save As"
    std::wstring units;           ///< what stands behind a box, "mV"; empty where nothing does
    const Label* label = nullptr; ///< that stands before it, to be read with it; null for a button
};

/// The controls of a dialog that have a name, as its captions are now: a push button is called by its own
/// caption, a box or list by the label before it, and one in a grid of points by the heading above and the
/// label of its row.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::vector<ControlName> ControlNames(const Dialog& dialog);

} // namespace QuorConversions
