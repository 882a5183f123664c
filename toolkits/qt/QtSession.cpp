#include "QuorConversions/qt/QtSession.h"

#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/qt/Translations.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <iterator>
#include <utility>

namespace QuorConversions::QtToolkit {

bool HasDisplay() {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return true;
#else
    const char* const variables[] = {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"};
    return std::any_of(std::begin(variables), std::end(variables),
                       [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); });
#endif
}

std::wstring HelpCollection(const std::string& installed) {
    const QDir program(QCoreApplication::applicationDirPath());
    const QString places[] = {program.filePath(QStringLiteral(QUOR_HELP_FROM_PROGRAM)),
                              program.filePath(QStringLiteral("../../docs/help/quor-conversions.qhc")),
                              QString::fromStdString(installed)};
    const auto* const found = std::find_if(std::begin(places), std::end(places),
                                           [](const QString& place) { return QFileInfo::exists(place); });
    return FromQt(QDir::cleanPath(found == std::end(places) ? places[0] : *found));
}

QtSession::QtSession(std::string programName)
    : m_programName(std::move(programName)),
      m_arguments{m_programName.data(), nullptr},
      m_application(std::make_unique<QApplication>(m_argumentCount, m_arguments)),
      m_platform(std::make_shared<QtPlatform>()) {
    InstallTranslations(QLocale());
    SetHelpFile(HelpCollection());
}

QtSession::~QtSession() = default;

} // namespace QuorConversions::QtToolkit
