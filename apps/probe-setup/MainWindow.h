#pragma once

#include "QuorRegistryII/Registry.h"
#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QProgressBar;
class QTreeView;

namespace QuorConversions::QtToolkit {
class QtPlatform;
}

namespace ProbeSetup {

class ProbeTableModel;

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
    bool OpenPath(const QString& path);

    [[nodiscard]] ProbeDocument& Document() { return *m_document; }
    [[nodiscard]] QTreeView& Table() { return *m_table; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeTable();
    void MakeActions();
    QAction* AddAction(QMenu& menu, const char* name, const QString& text, const QKeySequence& shortcut,
                       const QString& tip, std::function<void()> run);

    void New();
    void Open();
    bool OpenHostFile(const QString& path);
    void OpenFiles(const QStringList& paths);
    bool Save();
    bool SaveCopyAs();
    /// Saves by `save`, and asks before what another program has written gives way. A failure is told under
    /// `what`. False when nothing was saved.
    bool SaveBy(const QString& what, const std::function<void(const OthersChanges&)>& save);
    [[nodiscard]] QString AskForHostFile(const QString& title, bool toSave);
    void Import();
    /// Adds the probes of stand-alone files. False when not all could be added.
    bool ImportFiles(const QStringList& paths);
    void Export();
    /// Asks what is to become of changes; false when the user stays.
    [[nodiscard]] bool MayLoseChanges();

    /// Tells the user when a probe has none.
    [[nodiscard]] bool HasSettings(std::size_t probe);
    void Add();
    void Edit();
    /// False, and the user is told, when the probe cannot have that name.
    bool Rename(std::size_t probe, const QString& typed);
    /// Gives a probe the name that was typed in the list. False as above.
    bool TakeTypedName();
    /// Ends the typing of a name in the list as Enter does. False as above.
    bool FinishTyping();
    /// Runs an action of the user's, after what they were typing has been taken.
    void Act(const std::function<void()>& action);
    void ChangeType();
    void Duplicate();
    void Remove();
    void Undo();
    void Redo();
    /// Goes a step through the history and shows what it concerns.
    void ShowStep(std::size_t (ProbeDocument::*step)());
    void Find();
    void ShowHelp(std::int32_t topic);
    void ShowAbout();

    /// Runs what may fail; a failure is told under `what`. False then.
    bool Try(const QString& what, const std::function<void()>& action);
    [[nodiscard]] static QString Words(const DocumentError& error);
    [[nodiscard]] static QString Words(const QuorProbeFile::RecordConflict& conflict);
    [[nodiscard]] static QString StepText(StepKind kind);
    /// What to do where no probe is shown.
    [[nodiscard]] QString EmptyText() const;
    [[nodiscard]] QString FileName() const;

    [[nodiscard]] std::optional<std::size_t> CurrentProbe() const;
    [[nodiscard]] std::vector<std::size_t> SelectedProbes() const;
    void Select(std::size_t probe);
    /// Shows a probe whose name, conversion or mark has changed. The list stays where it is.
    void ShowProbe(std::size_t probe);
    /// Shows the list with a probe that has come; all of it, when the find box would hide that one.
    void Reveal(std::size_t probe);
    /// Shows the list as it is now, with `current` as the current probe.
    void ShowList(std::optional<std::size_t> current);
    /// Shows what depends on the document and on the selection: title, actions, status bar, empty states.
    void ShowState();

    void RememberRecent(const QString& path);
    void ForgetRecent(const QString& path);
    void ShowRecent();
    [[nodiscard]] QStringList Recent() const;
    [[nodiscard]] QString Remembered(const wchar_t* name) const;
    void Remember(const wchar_t* name, const QString& value);

    std::shared_ptr<QuorRegistryII::Registry> m_registry;
    std::shared_ptr<QuorConversions::QtToolkit::QtPlatform> m_platform;
    std::unique_ptr<ProbeDocument> m_document;
    std::unique_ptr<ProbeTableModel> m_model;
    struct TypedName {
        std::size_t probe;
        QString name;
    };
    std::optional<TypedName> m_typedName; // in the list, and not given to the probe yet
    QTreeView* m_table;
    QLabel* m_emptyState;
    QLineEdit* m_find;
    QLabel* m_count;
    QLabel* m_readOnly;
    QProgressBar* m_progress;
    QMenu* m_recentMenu = nullptr;
    std::vector<QAction*> m_needProbe;         // of these any number may be selected
    std::vector<QAction*> m_needWritableProbe; // as above, in a file that may be written
    std::vector<QAction*> m_needWritable;
    QAction* m_saveAction = nullptr;
    QAction* m_exportAction = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
};

} // namespace ProbeSetup
