#pragma once

#include "QuorRegistryII/Registry.h"
#include "apps/probe-setup/CommandRules.h"
#include "apps/probe-setup/FileCommands.h"
#include "apps/probe-setup/FileWatch.h"
#include "apps/probe-setup/ProbeCommands.h"
#include "apps/probe-setup/ProbeDocument.h"
#include "apps/probe-setup/RecentFiles.h"
#include "apps/probe-setup/ReportCommands.h"
#include "apps/probe-setup/WindowSettings.h"

#include <QCoreApplication>
#include <QMainWindow>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QAction;
class QLabel;
class QMenu;
class QTreeView;

namespace QuorConversions::QtToolkit {
class QtPlatform;
}

namespace ProbeSetup {

class FindingPane;
class ProbeList;
class ReloadBar;
class ValuePane;

/// The window of Probe Setup: the probes of one file, and what can be done with them.
class MainWindow final : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    /// The places of windows and the recent files are kept in `registry`, which is handed to the conversions
    /// too. `helpFile` is the help collection.
    MainWindow(std::shared_ptr<QuorRegistryII::Registry> registry, const QString& helpFile);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    /// Opens a host's file, or adds the probe of a stand-alone one. Failures are told in messages. False when
    /// the user kept the present file, or the file could not be read.
    bool OpenPath(const QString& path) { return m_files.OpenPath(path); }

    [[nodiscard]] ProbeDocument& Document() { return *m_document; }
    [[nodiscard]] QTreeView& Table();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeProbeMenu();
    void MakeViewMenu();
    void MakeHelpMenu();
    void MakeToolBar();
    QMenu& AddMenu(const QString& title);
    QAction* AddAction(QMenu& menu, const char* name, const QString& text, const QKeySequence& shortcut,
                       const QString& tip, std::function<void()> run);
    [[nodiscard]] QAction& Action(const char* name) const;
    /// Runs a command of the user's, after a name that they were typing has been taken.
    void Run(const std::function<void()>& command);

    void Check();
    void ShowHelp(std::int32_t topic);
    void ShowAbout();

    /// What to do where no probe is shown.
    [[nodiscard]] QString EmptyText() const;
    /// Shows what depends on the document and on the selection: title, actions, status bar, empty list.
    void ShowState();
    void ShowWhetherOthersWrote();

    std::shared_ptr<QuorConversions::QtToolkit::QtPlatform> m_platform;
    std::unique_ptr<ProbeDocument> m_document;
    ProbeList* m_list;
    WindowSettings m_settings;
    QMenu* m_recentMenu;
    RecentFiles m_recent;
    FileCommands m_files;
    ProbeCommands m_probes;
    ReportCommands m_reports;
    CommandRules m_rules;
    ReloadBar* m_reloadBar;
    ValuePane* m_values;
    FindingPane* m_findings;
    FileWatch m_watch;
    bool m_findingsHaveHeight = false; ///< one that the person has given them, or the first one
    QLabel* m_readOnly;
    QLabel* m_count;
};

} // namespace ProbeSetup
