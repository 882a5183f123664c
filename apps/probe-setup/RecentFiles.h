#pragma once

#include <QStringList>

#include <functional>

class QMenu;

namespace ProbeSetup {

class WindowSettings;

/// The files that were opened last, the latest first: kept in the settings of the window, and shown in a
/// menu.
class RecentFiles {
public:
    /// Settings and menu outlive it. `open` is called with the path that the user chooses in the menu.
    RecentFiles(WindowSettings& settings, QMenu& menu, std::function<void(const QString&)> open);

    [[nodiscard]] QStringList Paths() const;
    /// Puts a path in front. The oldest one goes when there are too many.
    void Add(const QString& path);
    void Remove(const QString& path);

private:
    void Keep(const QStringList& paths);
    void FillMenu();

    WindowSettings& m_settings;
    QMenu& m_menu;
    std::function<void(const QString&)> m_open;
};

} // namespace ProbeSetup
