#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <functional>

namespace ProbeSetup {

/// Notices that something has happened to a file: the system tells, nothing is polled. A file that is
/// replaced by another one, as a save does it, is watched on.
class FileWatch final : public QObject {
public:
    /// `touched` is called when the file, or its folder, has been written to and has come to rest.
    explicit FileWatch(std::function<void()> touched);

    /// Watches this file from now on, and no other one; none for an empty path.
    void Watch(const QString& path);

private:
    void Take();

    std::function<void()> m_touched;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QString m_path;
};

} // namespace ProbeSetup
