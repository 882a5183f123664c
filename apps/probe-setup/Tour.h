#pragma once

#include <QString>

namespace ProbeSetup {

class MainWindow;

/// The guided tour: opens `file`, edits a value in each of the twelve dialogs with keys as a person presses
/// them, saves, and prints what has changed in the file. On the way it opens the help, where that is built,
/// and types a value that is refused. A picture of each window, as it opens, goes into `folder`. Returns the
/// exit code of the program: 0 when everything went as it should.
[[nodiscard]] int RunTour(MainWindow& window, const QString& file, const QString& folder);

} // namespace ProbeSetup
