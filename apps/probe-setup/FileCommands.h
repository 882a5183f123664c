#pragma once

#include "apps/probe-setup/FileLoader.h"
#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QMainWindow;

namespace QuorConversions::QtToolkit {
class QtPlatform;
}

namespace ProbeSetup {

class ProbeList;
class RecentFiles;

/// What a person does with files: opens, saves, imports and exports them. It asks for files and before
/// something is lost, tells failures in messages, and shows in the list what has come.
class FileCommands {
    Q_DECLARE_TR_FUNCTIONS(FileCommands)

public:
    /// All of it outlives the commands. Messages and questions are shown over `window`.
    FileCommands(QMainWindow& window, QuorConversions::QtToolkit::QtPlatform& platform,
                 ProbeDocument& document, ProbeList& list, RecentFiles& recent);

    /// The name of the open file, for people.
    [[nodiscard]] QString FileName() const;
    /// Asks what is to become of changes that are not saved; false when the person stays.
    [[nodiscard]] bool MayLoseChanges();

    void New();
    void Open();
    /// Opens a host's file, or adds the probe of a stand-alone one. False when the user kept the present
    /// file, or the file could not be read.
    bool OpenPath(const QString& path);
    /// Gives up the file that is being loaded; false where none is.
    bool CancelLoading() { return m_loader.Cancel(); }
    /// Opens the first host's file among these, and adds the probes of all stand-alone ones.
    void OpenPaths(const QStringList& paths);
    /// Opens the present file anew, with the same probe selected. False when the user kept the changes, or
    /// the file could not be read.
    bool Reload();
    /// False when nothing was saved.
    bool Save();
    bool SaveAs();
    bool SaveCopyAs();
    void Import();
    /// Exports probes that have settings: one into a file, several into a folder.
    void Export(const std::vector<std::size_t>& probes);

private:
    bool OpenHostFile(const QString& path);
    /// Reads a host's file. False when it cannot be read, or the person has cancelled.
    bool Load(const QString& path);
    /// Adds the probes of stand-alone files. False when not all could be added.
    bool ImportPaths(const QStringList& paths);
    /// Saves by `save`, and asks before what another program has written gives way. A failure is told under
    /// `what`. False when nothing was saved.
    bool SaveBy(const QString& what, const std::function<void(const OthersChanges&)>& save);
    /// Asks for a file and saves there.
    bool SaveTo(const QString& title,
                const std::function<void(const std::wstring&, const OthersChanges&)>& save);
    /// `leftOut` tells behind the result of what is selected too, and not exported.
    void ExportOne(std::size_t probe, const QString& leftOut);
    void ExportInto(const QString& folder, const std::vector<std::size_t>& probes, const QString& leftOut);
    [[nodiscard]] QString AskForHostFile(const QString& title, bool toSave);
    void ShowStatus(const QString& text);

    QMainWindow& m_window;
    QuorConversions::QtToolkit::QtPlatform& m_platform;
    ProbeDocument& m_document;
    ProbeList& m_list;
    RecentFiles& m_recent;
    FileLoader m_loader;
};

} // namespace ProbeSetup
