#include "apps/probe-setup/FileCommands.h"

#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/probe-setup/MessageBox.h"
#include "apps/probe-setup/ProbeList.h"
#include "apps/probe-setup/RecentFiles.h"
#include "apps/probe-setup/Wording.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QPushButton>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTreeView>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;

FileCommands::FileCommands(QMainWindow& window, QuorConversions::QtToolkit::QtPlatform& platform,
                           ProbeDocument& document, ProbeList& list, RecentFiles& recent)
    : m_window(window),
      m_platform(platform),
      m_document(document),
      m_list(list),
      m_recent(recent),
      m_loader(window, document) {}

void FileCommands::ShowStatus(const QString& text) {
    constexpr int aWhile = 5000; // milliseconds
    m_window.statusBar()->showMessage(text, aWhile);
}

QString FileCommands::FileName() const {
    return m_document.Path().empty() ? tr("New file") : QFileInfo(ToQt(m_document.Path())).fileName();
}

bool FileCommands::MayLoseChanges() {
    if (!m_document.Changed())
        return true;
    MessageBox box(&m_window, QMessageBox::Warning, tr("%1 has changes that are not saved.").arg(FileName()),
                   tr("Do you want to save them?"),
                   QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Save ? Save() : answer == QMessageBox::Discard;
}

QString FileCommands::AskForHostFile(const QString& title, bool toSave) {
    const QString folder = QFileInfo(ToQt(m_document.Path())).path();
    QFileDialog dialog(&m_window, title, folder,
                       tr("Files of hosts (*.ini)") + QStringLiteral(";;") + tr("All files (*)"));
    dialog.setAcceptMode(toSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(toSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (toSave)
        dialog.setDefaultSuffix(QStringLiteral("ini"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

// Opening

void FileCommands::New() {
    if (!MayLoseChanges())
        return;
    m_document.Close();
    m_list.ClearFindBox();
    m_list.Show({});
}

void FileCommands::Open() {
    const QString path = AskForHostFile(tr("Open"), false);
    if (!path.isEmpty())
        OpenPath(path);
}

bool FileCommands::OpenPath(const QString& path) {
    bool standAlone = false;
    if (!RunOrTell(&m_window, tr("The file cannot be opened."),
                   [&] { standAlone = ProbeDocument::IsStandAlone(FromQt(path)); })) {
        m_recent.Remove(path);
        return false;
    }
    return standAlone ? ImportPaths({path}) : OpenHostFile(path);
}

bool FileCommands::OpenHostFile(const QString& path) {
    if (!MayLoseChanges())
        return false;
    const QString full = QFileInfo(path).absoluteFilePath();
    if (!Load(full)) {
        if (!QFileInfo::exists(full))
            m_recent.Remove(full);
        return false;
    }
    m_recent.Add(full);
    m_list.ClearFindBox();
    m_list.Show(0);
    m_list.FitNames();
    if (!m_document.LostRecords().empty()) {
        std::vector<std::wstring> lines;
        for (const std::size_t line : m_document.LostRecords())
            lines.push_back(FromQt(tr("Line %1").arg(line)));
        MessageBox(
            &m_window, QMessageBox::Warning,
            tr("%1: these section headers have no \"]\", so the probes below them cannot be read:").arg(full),
            Wording::Lines(lines))
            .exec();
    }
    return true;
}

bool FileCommands::Reload() {
    const auto current = m_list.Current();
    const std::wstring name = current ? m_document.Name(*current) : std::wstring();
    if (!MayLoseChanges())
        return false;
    // A save has taken in what others have written.
    if (m_document.ChangedByOthers() && !Load(ToQt(m_document.Path())))
        return false;
    m_list.Show(m_document.Find(name).value_or(0));
    ShowStatus(tr("%1 was reloaded.").arg(FileName()));
    return true;
}

bool FileCommands::Load(const QString& path) {
    std::unique_ptr<ProbeDocument::Loaded> loaded;
    const bool done = RunOrTell(&m_window, tr("The file cannot be opened."), [&] {
        const auto restore = qScopeGuard([this] { // before a failure is told
            m_list.Table().setFocus();            // a window that cannot be used has lost it
        });
        loaded = m_loader.Load(path);
    });
    if (loaded)
        m_document.Take(std::move(loaded));
    else if (done)
        ShowStatus(tr("%1 is not loaded: you have cancelled it.").arg(path));
    return done && m_document.Path() == FromQt(path);
}

void FileCommands::OpenPaths(const QStringList& paths) {
    QStringList settings;
    QStringList hosts;
    for (const QString& path : paths) {
        bool standAlone = false;
        if (RunOrTell(&m_window, tr("The file cannot be opened."),
                      [&] { standAlone = ProbeDocument::IsStandAlone(FromQt(path)); }))
            (standAlone ? settings : hosts) += path;
    }
    if (hosts.size() > 1) {
        MessageBox(&m_window, QMessageBox::Information,
                   tr("Only one file can be open. %1 is opened.").arg(hosts.front()))
            .exec();
    }
    if (!hosts.isEmpty() && !OpenHostFile(hosts.front()))
        return;
    ImportPaths(settings);
}

// Saving

bool FileCommands::Save() {
    if (m_document.Path().empty())
        return SaveAs();
    const auto current = m_list.Current();
    const std::wstring name = current ? m_document.Name(*current) : std::wstring();
    if (!SaveBy(tr("%1 cannot be saved.").arg(FileName()),
                [this](const OthersChanges& replaced) { m_document.Save(replaced); }))
        return false;
    m_list.Show(m_document.Find(name)); // probes that another program has added may stand before it now
    ShowStatus(tr("%1 is saved.").arg(FileName()));
    return true;
}

bool FileCommands::SaveAs() {
    return SaveTo(tr("Save as"), [this](const std::wstring& path, const OthersChanges& replaced) {
        m_document.SaveAs(path, replaced);
    });
}

bool FileCommands::SaveCopyAs() {
    return SaveTo(tr("Save a copy as"), [this](const std::wstring& path, const OthersChanges& replaced) {
        m_document.SaveCopyAs(path, replaced);
    });
}

bool FileCommands::SaveTo(const QString& title,
                          const std::function<void(const std::wstring&, const OthersChanges&)>& save) {
    const QString path = AskForHostFile(title, true);
    if (path.isEmpty())
        return false;
    const auto current = m_list.Current();
    const std::wstring name = current ? m_document.Name(*current) : std::wstring();
    if (!SaveBy(tr("%1 cannot be saved.").arg(path),
                [&](const OthersChanges& replaced) { save(FromQt(path), replaced); }))
        return false;
    m_recent.Add(QFileInfo(path).absoluteFilePath());
    m_list.Show(m_document.Find(name)); // as after Save
    ShowStatus(tr("%1 is saved.").arg(path));
    return true;
}

bool FileCommands::SaveBy(const QString& what, const std::function<void(const OthersChanges&)>& save) {
    bool isRefused = false;
    const bool done = RunOrTell(&m_window, what, [&] {
        // Asked again for what has come while the question was open.
        for (OthersChanges replaced; !isRefused;) {
            try {
                save(replaced);
                return;
            } catch (const DocumentError& error) {
                if (error.failure != Failure::ChangedByOthers)
                    throw;
                MessageBox box(&m_window, QMessageBox::Warning, Wording::Of(error),
                               tr("Do you want to replace what the other program has written?"),
                               QMessageBox::Save | QMessageBox::Cancel);
                box.button(QMessageBox::Save)->setText(tr("&Replace"));
                box.setDefaultButton(QMessageBox::Cancel);
                isRefused = box.exec() != QMessageBox::Save;
                replaced = {error.changed, error.conflicts};
            }
        }
    });
    return done && !isRefused;
}

// Files of one probe

void FileCommands::Import() {
    QStringList patterns;
    for (const auto& type : QuorProbeFile::Types()) {
        const QString pattern = QStringLiteral("*.") + ToQt(type.extension);
        if (!type.extension.empty() && !patterns.contains(pattern))
            patterns += pattern;
    }
    ImportPaths(QFileDialog::getOpenFileNames(&m_window, tr("Import probes"),
                                              QFileInfo(ToQt(m_document.Path())).path(),
                                              tr("Settings files (%1)").arg(patterns.join(QLatin1Char(' '))) +
                                                  QStringLiteral(";;") + tr("All files (*)")));
}

bool FileCommands::ImportPaths(const QStringList& paths) {
    if (m_document.IsReadOnly() && !paths.isEmpty()) {
        MessageBox(&m_window, QMessageBox::Information,
                   tr("%1 is read-only: no probe can be added.").arg(FileName()))
            .exec();
        return false;
    }
    bool all = true;
    for (const QString& path : paths) {
        std::size_t probe = 0;
        if (RunOrTell(&m_window, tr("The probe cannot be imported."),
                      [&] { probe = m_document.Import(FromQt(path)); }))
            m_list.ShowNew({probe});
        else
            all = false;
    }
    return all;
}

void FileCommands::Export(const std::vector<std::size_t>& probes) {
    if (probes.empty())
        return;
    std::vector<std::size_t> exported;
    std::vector<std::wstring> without;
    for (const std::size_t probe : probes) {
        if (m_document.HasSettings(probe))
            exported.push_back(probe);
        else
            without.push_back(m_document.Name(probe));
    }
    const QString leftOut =
        without.empty()
            ? QString()
            : QLatin1Char(' ') +
                  tr("Without settings, and left out: %1")
                      .arg(Wording::Lines(without).replace(QLatin1Char('\n'), QStringLiteral(", ")));
    if (exported.empty())
        ShowStatus(tr("The selected probes have no settings to export."));
    else if (exported.size() == 1)
        ExportOne(exported.front(), leftOut);
    else if (const QString folder = QFileDialog::getExistingDirectory(
                 &m_window, tr("Export probes into a folder"), QFileInfo(ToQt(m_document.Path())).path());
             !folder.isEmpty())
        ExportInto(folder, exported, leftOut);
}

void FileCommands::ExportOne(std::size_t probe, const QString& leftOut) {
    const QString name = ToQt(m_document.Name(probe));
    std::optional<std::wstring> path;
    if (RunOrTell(&m_window, tr("\"%1\" cannot be exported.").arg(name),
                  [&] { path = m_document.Export(probe, m_platform.HandleOf(m_window)); }) &&
        path)
        ShowStatus(tr("\"%1\" is written into %2.").arg(name, ToQt(*path)) + leftOut);
}

void FileCommands::ExportInto(const QString& folder, const std::vector<std::size_t>& probes,
                              const QString& leftOut) {
    std::vector<std::wstring> there;
    std::set<QString> paths; // names that differ by a slash only are one file
    for (const std::size_t probe : probes) {
        const QString path = QDir(folder).filePath(ToQt(m_document.ExportName(probe)));
        if (!paths.insert(path).second || QFileInfo::exists(path))
            there.push_back(FromQt(path));
    }
    if (!there.empty()) {
        MessageBox box(&m_window, QMessageBox::Warning, tr("Do you want to replace these files?"),
                       Wording::Lines(there), QMessageBox::Save | QMessageBox::Cancel);
        box.button(QMessageBox::Save)->setText(tr("&Replace"));
        box.setDefaultButton(QMessageBox::Cancel);
        if (box.exec() != QMessageBox::Save)
            return;
    }
    int written = 0;
    for (const std::size_t probe : probes) {
        const QString path = QDir(folder).filePath(ToQt(m_document.ExportName(probe)));
        if (!RunOrTell(&m_window, tr("\"%1\" cannot be exported.").arg(ToQt(m_document.Name(probe))),
                       [&] { m_document.ExportTo(probe, FromQt(path)); }))
            break;
        ++written;
    }
    ShowStatus(tr("%1 probes are written into %2.").arg(QString::number(written), folder) + leftOut);
}

} // namespace ProbeSetup
