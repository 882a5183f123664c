#pragma once

#include "QuorConversions/qt/Export.h"

class QLocale;

namespace QuorConversions::QtToolkit {

/// Translates the application into the language of `locale`, if there is a translation: the windows of the
/// toolkit, those of Qt if its own translations are installed, and the library's string table, which is
/// replaced. A language without a translation, such as English, restores the built-in texts. Needs the
/// QApplication and must be called in its thread; it replaces what an earlier call has installed.
QTTOOLKIT_EXPORT void InstallTranslations(const QLocale& locale);

} // namespace QuorConversions::QtToolkit
