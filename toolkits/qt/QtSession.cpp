#include "QuorConversions/qt/QtSession.h"

#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/qt/Translations.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QLocale>
#include <QStringList>

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

namespace {

/// The names of the collection in the languages of the user, the most wanted first; the last is English.
QStringList CollectionNames() {
    const QString name = QStringLiteral("quor-conversions");
    const QString ending = QStringLiteral(".qhc");
    QStringList names;
    for (const QString& language : QLocale().uiLanguages()) {
        const QString spoken = language.section(QLatin1Char('-'), 0, 0);
        if (spoken == QLatin1String("en") || spoken == QLatin1String("C"))
            break;
        names += name + QLatin1Char('_') + spoken + ending;
    }
    return names + QStringList{name + ending};
}

} // namespace

std::wstring HelpCollection(const std::string& installed) {
    const QDir program(QCoreApplication::applicationDirPath());
    QList<QDir> folders{QFileInfo(program.filePath(QStringLiteral(QUOR_HELP_FROM_PROGRAM))).dir(),
                        QDir(program.filePath(QStringLiteral("../../docs/help")))};
    if (!installed.empty())
        folders += QFileInfo(QString::fromStdString(installed)).dir();
    const QStringList names = CollectionNames();
    for (const QDir& folder : std::as_const(folders)) {
        for (const QString& name : names) {
            if (folder.exists(name))
                return FromQt(QDir::cleanPath(folder.filePath(name)));
        }
    }
    return FromQt(QDir::cleanPath(folders.front().filePath(names.back())));
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
