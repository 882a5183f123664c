#include "apps/probe-setup/RecentFiles.h"

#include "apps/probe-setup/WindowSettings.h"

#include <QMenu>

#include <utility>

namespace ProbeSetup {

namespace {

constexpr const wchar_t* recentFilesName = L"Recent files"; // in the settings; a line each
constexpr qsizetype mostRecentFiles = 8;

} // namespace

RecentFiles::RecentFiles(WindowSettings& settings, QMenu& menu, std::function<void(const QString&)> open)
    : m_settings(settings), m_menu(menu), m_open(std::move(open)) {
    FillMenu();
}

QStringList RecentFiles::Paths() const {
    return m_settings.Read(recentFilesName).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void RecentFiles::Add(const QString& path) {
    QStringList paths = Paths();
    paths.removeAll(path);
    paths.prepend(path);
    Keep(paths.mid(0, mostRecentFiles));
}

void RecentFiles::Remove(const QString& path) {
    QStringList paths = Paths();
    if (paths.removeAll(path) > 0)
        Keep(paths);
}

void RecentFiles::Keep(const QStringList& paths) {
    m_settings.Write(recentFilesName, paths.join(QLatin1Char('\n')));
    FillMenu();
}

void RecentFiles::FillMenu() {
    m_menu.clear();
    int number = 0;
    for (const QString& path : Paths()) {
        QString text = path;
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QObject::connect(m_menu.addAction(QStringLiteral("&%1 %2").arg(++number).arg(text)),
                         &QAction::triggered, &m_menu, [this, path] { m_open(path); });
    }
    m_menu.setEnabled(number > 0);
}

} // namespace ProbeSetup
