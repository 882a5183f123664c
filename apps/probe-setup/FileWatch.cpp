#include "apps/probe-setup/FileWatch.h"

#include <QFileInfo>

#include <utility>

namespace ProbeSetup {

FileWatch::FileWatch(std::function<void()> touched) : m_touched(std::move(touched)) {
    constexpr int rest = 200; // milliseconds: a save is several changes of a folder
    m_rest.setSingleShot(true);
    m_rest.setInterval(rest);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_rest, qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_rest, qOverload<>(&QTimer::start));
    connect(&m_rest, &QTimer::timeout, this, [this] {
        Take();
        m_touched();
    });
}

void FileWatch::Watch(const QString& path) {
    if (path == m_path)
        return;
    const QStringList old = m_watcher.files() + m_watcher.directories();
    if (!old.isEmpty())
        m_watcher.removePaths(old);
    m_path = path;
    Take();
}

void FileWatch::Take() {
    if (m_path.isEmpty())
        return;
    // A file that was replaced is another one for the system.
    for (const QString& path : {m_path, QFileInfo(m_path).path()}) {
        if (QFileInfo::exists(path) && !m_watcher.files().contains(path) &&
            !m_watcher.directories().contains(path))
            m_watcher.addPath(path);
    }
}

} // namespace ProbeSetup
