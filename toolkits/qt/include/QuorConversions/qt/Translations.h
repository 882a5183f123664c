#pragma once

#include "QuorConversions/qt/Export.h"

class QLocale;

namespace QuorConversions::QtToolkit {

/// Makes the application speak the language of `locale`, where there is a translation: the windows of the
/// toolkit, those of Qt where its own translations are installed, and the library's string table, which is
/// replaced. A language without translation, English for one, gives the built-in texts back. Needs the
/// QApplication, in whose thread it is called; what was installed by an earlier call is taken out first.
QTTOOLKIT_EXPORT void InstallTranslations(const QLocale& locale);

} // namespace QuorConversions::QtToolkit
