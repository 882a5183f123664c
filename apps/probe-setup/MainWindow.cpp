#include "apps/probe-setup/MainWindow.h"

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/probe-setup/FindingPane.h"
#include "apps/probe-setup/MessageBox.h"
#include "apps/probe-setup/ProbeList.h"
#include "apps/probe-setup/ProbeTableModel.h"
#include "apps/probe-setup/ReloadBar.h"
#include "apps/probe-setup/ValuePane.h"
#include "apps/probe-setup/Wording.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using QtToolkit::FromQt;
using QtToolkit::ToQt;

namespace {

constexpr std::int32_t windowTopic = 10108;
constexpr std::int32_t typesTopic = 10102;

// What the window remembers.
constexpr const wchar_t* geometryName = L"Geometry";
constexpr const wchar_t* columnsName = L"Columns";
constexpr const wchar_t* panesName = L"Panes";

constexpr int longEnoughToRead = 10000; // milliseconds

/// About as much as the desktop puts around a window.
QSize FrameAround(const QWidget& window) {
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return {8, title + 8};
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<QuorRegistryII::Registry> registry, const QString& helpFile)
    : m_platform(std::make_shared<QtToolkit::QtPlatform>(this)),
      m_document(std::make_unique<ProbeDocument>(m_platform, registry)),
      m_list(new ProbeList(*m_document, [this] { ShowState(); })),
      m_settings(std::move(registry),
                 [this](const QString& problem) { statusBar()->showMessage(problem, longEnoughToRead); }),
      m_recentMenu(new QMenu(tr("Open &recent"), this)),
      m_recent(m_settings, *m_recentMenu,
               [this](const QString& path) { Run([this, &path] { OpenPath(path); }); }),
      m_files(*this, *m_platform, *m_document, *m_list, m_recent),
      m_probes(*this, *m_document, *m_list, m_files, [this] { ShowHelp(typesTopic); }),
      m_reports(*this, *m_document, *m_platform),
      m_reloadBar(new ReloadBar([this] { Run([this] { m_files.Reload(); }); })),
      m_values(new ValuePane(*m_document, *m_platform)),
      m_findings(new FindingPane(
          *m_document, [this](const auto& findings) { m_list->SetFindings(findings); },
          [this](std::size_t probe) { Run([this, probe] { m_list->GoTo(probe); }); })),
      m_watch([this] { ShowWhetherOthersWrote(); }),
      m_readOnly(new QLabel(tr("Read-only"))),
      m_count(new QLabel) {
    CQuorConversion().SetHelpFile(FromQt(helpFile));
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(QIcon(QStringLiteral(":/probe-setup/probe-setup.svg")));
    setAcceptDrops(true);
    auto* const middle = new QWidget;
    auto* const rows = new QVBoxLayout(middle);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_reloadBar);
    rows->addWidget(m_list);
    setCentralWidget(middle);
    addDockWidget(Qt::RightDockWidgetArea, m_values);
    addDockWidget(Qt::BottomDockWidgetArea, m_findings);
    m_findings->hide();
    MakeFileMenu();
    MakeEditMenu();
    MakeProbeMenu();
    MakeViewMenu();
    MakeHelpMenu();
    MakeToolBar();
    connect(&Table(), &QTreeView::doubleClicked, this, [this] { Run([this] { m_probes.Edit(); }); });
    statusBar()->addPermanentWidget(m_readOnly);
    statusBar()->addPermanentWidget(m_count);

    const QSize tools = findChild<QToolBar*>()->sizeHint();
    const int character = fontMetrics().averageCharWidth();
    resize(QSize(std::max(character * 165, tools.width() + character * 8), fontMetrics().height() * 34)
               .boundedTo(screen()->availableSize() - FrameAround(*this)));
    resizeDocks({m_values}, {character * 64}, Qt::Horizontal);
    restoreGeometry(QByteArray::fromBase64(m_settings.Read(geometryName).toLatin1()));
    Table().header()->restoreState(QByteArray::fromBase64(m_settings.Read(columnsName).toLatin1()));
    m_findingsHaveHeight = restoreState(QByteArray::fromBase64(m_settings.Read(panesName).toLatin1()));
    m_list->Show({});
    Table().setFocus();
}

MainWindow::~MainWindow() {
    // Before the document that they show; and nothing is shown any more when they go.
    m_values->disconnect(this);
    delete takeCentralWidget();
    delete m_values;
    delete m_findings;
}

QTreeView& MainWindow::Table() { return m_list->Table(); }

// Actions

QMenu& MainWindow::AddMenu(const QString& title) {
    QMenu& menu = *menuBar()->addMenu(title);
    menu.setToolTipsVisible(true); // they say why an entry is disabled
    return menu;
}

QAction* MainWindow::AddAction(QMenu& menu, const char* name, const QString& text,
                               const QKeySequence& shortcut, const QString& tip, std::function<void()> run) {
    QAction* const action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    action->setStatusTip(tip);
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] { Run(run); });
    return action;
}

QAction& MainWindow::Action(const char* name) const { return *findChild<QAction*>(QLatin1String(name)); }

void MainWindow::Run(const std::function<void()>& command) {
    RunOrTell(this, tr("The command has failed."), [&] {
        if (m_list->FinishEditing())
            command();
    });
}

void MainWindow::MakeFileMenu() {
    QMenu& file = AddMenu(tr("&File"));
    AddAction(file, "new", tr("&New"), QKeySequence::New, tr("Start a new file"), [this] { m_files.New(); });
    AddAction(file, "open", tr("&Open\u2026"), QKeySequence::Open,
              tr("Open the file of a host, or add the probe of a settings file"), [this] { m_files.Open(); });
    file.addMenu(m_recentMenu);
    file.addSeparator();
    m_rules.Add(*AddAction(file, "save", tr("&Save"), QKeySequence::Save,
                           tr("Write the changes into the file"), [this] { m_files.Save(); }),
                {.writable = true, .changes = true});
    AddAction(file, "saveAs", tr("Save &as\u2026"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
              tr("Save the file with the changes under another name, and continue with that file"),
              [this] { m_files.SaveAs(); });
    AddAction(file, "saveCopy", tr("Save a &copy as\u2026"), {},
              tr("Write the file with the changes under another name"), [this] { m_files.SaveCopyAs(); });
    file.addSeparator();
    m_rules.Add(*AddAction(file, "import", tr("&Import probe\u2026"), QKeySequence(Qt::CTRL | Qt::Key_I),
                           tr("Add the probe of a settings file"), [this] { m_files.Import(); }),
                {.writable = true});
    m_rules.Add(*AddAction(file, "export", tr("&Export probes\u2026"), QKeySequence(Qt::CTRL | Qt::Key_E),
                           tr("Write each selected probe into a settings file of its own"),
                           [this] { m_probes.Export(); }),
                {.probe = true, .settings = true, .type = true});
    file.addSeparator();
    m_rules.Add(*AddAction(file, "print", tr("&Print\u2026"), QKeySequence::Print,
                           tr("Print the selected probes, with all their values"),
                           [this] { m_reports.Print(m_probes.FreshSelection()); }),
                {.probe = true});
    m_rules.Add(*AddAction(file, "pdf", tr("Save as P&DF\u2026"), {},
                           tr("Save the selected probes as a PDF file, as they would be printed"),
                           [this] { m_reports.SavePdf(m_probes.FreshSelection()); }),
                {.probe = true});
    file.addSeparator();
    AddAction(file, "quit", tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), tr("Leave Probe Setup"),
              [this] { close(); });
}

void MainWindow::MakeEditMenu() {
    QMenu& edit = AddMenu(tr("&Edit"));
    auto* const undo = AddAction(edit, "undo", tr("&Undo"), QKeySequence::Undo,
                                 tr("Take the last change back"), [this] { m_probes.Undo(); });
    undo->setIconText(tr("Undo"));
    auto* const redo = AddAction(edit, "redo", tr("&Redo"), QKeySequence::Redo, tr("Make the change again"),
                                 [this] { m_probes.Redo(); });
    redo->setShortcuts(QKeySequence::Redo); // some people know another one
    redo->setIconText(tr("Redo"));
    m_rules.Add(*undo, {.undo = true});
    m_rules.Add(*redo, {.redo = true});
    edit.addSeparator();
    auto* const copy = AddAction(edit, "copy", tr("&Copy probes"), QKeySequence::Copy,
                                 tr("Copy the selected probes to the clipboard, as text of an INI file"),
                                 [this] { m_probes.Copy(); });
    auto* const paste =
        AddAction(edit, "paste", tr("&Paste probes"), QKeySequence::Paste,
                  tr("Add the probes of the text on the clipboard"), [this] { m_probes.Paste(); });
    m_rules.Add(*copy, {.probe = true});
    m_rules.Add(*paste, {.writable = true});
    // These keys mean other things where text is typed or selected.
    for (QAction* const action : {copy, paste}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        Table().addAction(action);
    }
    edit.addSeparator();
    AddAction(edit, "findProbe", tr("&Find"), QKeySequence::Find, tr("Show the probes that contain a text"),
              [this] { m_list->GoToFindBox(); });
}

void MainWindow::MakeProbeMenu() {
    QMenu& probe = AddMenu(tr("&Probe"));
    auto* const add =
        AddAction(probe, "add", tr("&Add\u2026"), QKeySequence(Qt::Key_Insert),
                  tr("Add a probe with a name and a conversion type"), [this] { m_probes.Add(); });
    auto* const edit = AddAction(probe, "edit", tr("&Edit\u2026"), {},
                                 tr("Edit the settings of the conversion"), [this] { m_probes.Edit(); });
    edit->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    auto* const rename = AddAction(probe, "rename", tr("Re&name"), QKeySequence(Qt::Key_F2),
                                   tr("Give the probe another name"), [this] {
                                       m_list->EditName();
                                       Action("save").setEnabled(true); // it takes what is being typed
                                   });
    auto* const changeType =
        AddAction(probe, "changeType", tr("Change &type\u2026"), QKeySequence(Qt::CTRL | Qt::Key_T),
                  tr("Give the selected probes another conversion type"), [this] { m_probes.ChangeType(); });
    auto* const duplicate = AddAction(
        probe, "duplicate", tr("&Duplicate"), QKeySequence(Qt::CTRL | Qt::Key_D),
        tr("Add probes with the same settings as the selected ones"), [this] { m_probes.Duplicate(); });
    auto* const remove = AddAction(probe, "remove", tr("&Remove"), QKeySequence(Qt::Key_Delete),
                                   tr("Remove the selected probes"), [this] { m_probes.Remove(); });
    probe.addSeparator();
    AddAction(probe, "check", tr("&Check"), QKeySequence(Qt::Key_F7),
              tr("List everything that is wrong with the probes of the file"), [this] { Check(); });
    m_rules.Add(*add, {.writable = true});
    m_rules.Add(*edit, {.probe = true, .one = true, .settings = true});
    m_rules.Add(*rename, {.probe = true, .one = true, .writable = true});
    for (QAction* const action : {changeType, duplicate, remove})
        m_rules.Add(*action, {.probe = true, .writable = true});
    // These keys mean other things in the find box and while a name is typed.
    for (QAction* const action : {add, edit, rename, remove}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        Table().addAction(action);
    }
    Table().addActions({changeType, duplicate});
}

void MainWindow::MakeViewMenu() {
    QMenu& view = AddMenu(tr("&View"));
    m_values->toggleViewAction()->setText(tr("&Values"));
    m_findings->toggleViewAction()->setText(tr("&Findings"));
    view.addActions({m_values->toggleViewAction(), m_findings->toggleViewAction()});
    view.addSeparator();
    QMenu& sort = *view.addMenu(tr("&Sort by"));
    auto* const orders = new QActionGroup(&sort);
    const auto addOrder = [&](const char* name, const QString& text, const QString& tip, int column) {
        auto* const action = AddAction(sort, name, text, {}, tip, [this, column] { m_list->SortBy(column); });
        action->setCheckable(true);
        orders->addAction(action);
        connect(&sort, &QMenu::aboutToShow, action,
                [this, action, column] { action->setChecked(m_list->SortColumn() == column); });
    };
    const QString again = tr("Sort the list; the second time, in reverse order");
    addOrder("sortByName", tr("&Name"), again, ProbeTableModel::NameColumn);
    addOrder("sortByConversion", tr("&Conversion"), again, ProbeTableModel::ConversionColumn);
    addOrder("sortByChanged", tr("C&hanged"), again, ProbeTableModel::ChangedColumn);
    addOrder("sortByFile", tr("&Order of the file"), tr("Show the probes in the order of the file"), -1);
    connect(m_values, &QDockWidget::visibilityChanged, this, [this] { ShowState(); });
}

void MainWindow::MakeHelpMenu() {
    QMenu& help = AddMenu(tr("&Help"));
    AddAction(help, "help", tr("&Help"), QKeySequence::HelpContents, tr("Show the help"),
              [this] { ShowHelp(windowTopic); });
    AddAction(help, "about", tr("&About Probe Setup"), {}, tr("Show the version"), [this] { ShowAbout(); });
}

void MainWindow::MakeToolBar() {
    // With icons where the desktop has a theme that knows them all, and always with text.
    struct Tool {
        const char* action;
        const char* icon; // its name in themes
    };
    const std::vector<std::vector<Tool>> groups = {
        {{"new", "document-new"}, {"open", "document-open"}, {"save", "document-save"}},
        {{"add", "list-add"},
         {"edit", "document-properties"},
         {"changeType", "preferences-other"},
         {"duplicate", "edit-copy"},
         {"remove", "edit-delete"}},
        {{"undo", "edit-undo"}, {"redo", "edit-redo"}}};
    QToolBar& bar = *addToolBar(tr("Tools"));
    bar.setObjectName(QStringLiteral("tools"));
    bool haveIcons = true;
    for (const auto& group : groups) {
        if (!bar.actions().isEmpty())
            bar.addSeparator();
        for (const Tool& tool : group) {
            QAction& action = Action(tool.action);
            action.setIcon(QIcon::fromTheme(QLatin1String(tool.icon)));
            haveIcons = haveIcons && !action.icon().isNull();
            bar.addAction(&action);
        }
    }
    bar.setToolButtonStyle(haveIcons ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextOnly);
}

// Panes and help

void MainWindow::Check() {
    m_findings->Check();
    m_findings->show();
    m_findings->raise();
    if (!std::exchange(m_findingsHaveHeight, true)) // the list of probes keeps most of the room
        resizeDocks({m_findings}, {fontMetrics().height() * 10}, Qt::Vertical);
    m_findings->GoToList();
}

void MainWindow::ShowHelp(std::int32_t topic) {
    constexpr std::uint32_t showTopic = 1;
    m_platform->CallHelp(CQuorConversion().HelpFile(), showTopic, topic);
}

void MainWindow::ShowAbout() {
    MessageBox box(this, QMessageBox::NoIcon,
                   tr("Probe Setup %1").arg(QCoreApplication::applicationVersion()),
                   tr("Edits the probe conversions of precision thermometers and keeps them in INI files.\n\n"
                      "Licence: MIT. Copyright \u00A9 2026 Quor Conversions contributors.\n"
                      "Qt %1, under the LGPL.")
                       .arg(QLatin1String(qVersion())));
    box.setWindowTitle(tr("About Probe Setup"));
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    box.setIconPixmap(windowIcon().pixmap(size * 2));
    box.exec();
}

// What is shown

QString MainWindow::EmptyText() const {
    const auto keys = [this](const char* name) {
        return Action(name).shortcut().toString(QKeySequence::NativeText);
    };
    if (m_document->Count() > 0)
        return tr("No probe contains \"%1\". Press Esc in the find box to see all probes.")
            .arg(m_list->FindText());
    if (m_document->Path().empty())
        return tr("Open the file of a host (%1) or drop it here, or add a first probe (%2).")
            .arg(keys("open"), keys("add"));
    if (m_document->IsReadOnly())
        return tr("%1 has no probes, and it is read-only.").arg(m_files.FileName());
    return tr("%1 has no probes yet. Add one (%2), or import a settings file (%3).")
        .arg(m_files.FileName(), keys("add"), keys("import"));
}

void MainWindow::ShowState() {
    setWindowTitle(tr("%1[*] \u2013 Probe Setup").arg(m_files.FileName()));
    const bool changed = m_document->Changed();
    setWindowModified(changed);
    const bool writable = !m_document->IsReadOnly();
    const std::vector<std::size_t> selected = m_list->Selected();
    m_watch.Watch(ToQt(m_document->Path()));
    ShowWhetherOthersWrote();
    m_findings->Refresh();
    if (m_values->isVisible())
        m_values->ShowValues(selected);

    const auto undo = m_document->UndoKind();
    const auto redo = m_document->RedoKind();
    const auto haveSettings = [this](std::size_t probe) {
        return QuorProbeFile::MayHaveSettings(m_document->Type(probe));
    };
    const auto haveKnownSettings = [&](std::size_t probe) {
        const ProbeType type = m_document->Type(probe);
        return type && ConversionEnumerator(*type) && haveSettings(probe);
    };
    m_rules.Apply({.selected = selected.size(),
                   .haveSettings = std::ranges::any_of(selected, haveSettings),
                   .knowType = std::ranges::any_of(selected, haveKnownSettings),
                   .isWritable = writable,
                   .hasChanges = changed || m_document->Path().empty(),
                   .canUndo = undo.has_value(),
                   .canRedo = redo.has_value()});
    Action("undo").setText(undo ? tr("&Undo: %1").arg(Wording::Of(*undo)) : tr("&Undo"));
    Action("redo").setText(redo ? tr("&Redo: %1").arg(Wording::Of(*redo)) : tr("&Redo"));

    m_readOnly->setVisible(!writable);
    const QLocale locale;
    const QString all = locale.toString(static_cast<qulonglong>(m_document->Count()));
    const int shown = m_list->RowCount();
    m_count->setText(m_list->FindText().isEmpty() ? tr("Probes: %1").arg(all)
                                                  : tr("Probes: %1 of %2").arg(locale.toString(shown), all));
    m_list->SetEmptyText(shown == 0 ? EmptyText() : QString());
}

void MainWindow::ShowWhetherOthersWrote() {
    m_reloadBar->ShowFor(m_document->ChangedByOthers() ? m_files.FileName() : QString());
}

// Events

void MainWindow::closeEvent(QCloseEvent* event) {
    if (m_files.CancelLoading()) { // its window is not there yet
        event->ignore();
        return;
    }
    // What is typed in a dialog is no change yet that one could be asked about.
    if (QApplication::activeModalWidget() || !m_list->FinishEditing() || !m_files.MayLoseChanges()) {
        event->ignore();
        return;
    }
    m_settings.Write(geometryName, QString::fromLatin1(saveGeometry().toBase64()));
    m_settings.Write(panesName, QString::fromLatin1(saveState().toBase64()));
    m_settings.Write(columnsName, QString::fromLatin1(Table().header()->saveState().toBase64()));
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!QApplication::activeModalWidget() &&
        std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); }))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    if (QApplication::activeModalWidget()) { // what it shows is about the present list
        event->ignore();
        return;
    }
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            paths += url.toLocalFile();
    }
    event->acceptProposedAction();
    // The program from which the files were dragged waits until this returns; questions come afterwards.
    QTimer::singleShot(0, this, [this, paths] {
        if (!QApplication::activeModalWidget())
            Run([this, &paths] { m_files.OpenPaths(paths); });
    });
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        ShowState();
}

} // namespace ProbeSetup
