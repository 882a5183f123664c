#include "apps/probe-setup/MainWindow.h"

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/MessageBox.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "apps/probe-setup/ProbeList.h"
#include "apps/probe-setup/Wording.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>

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

// How long something stands in the status bar, in milliseconds.
constexpr int aWhile = 5000;
constexpr int longEnoughToAct = 10000;

} // namespace

MainWindow::MainWindow(std::shared_ptr<QuorRegistryII::Registry> registry, const QString& helpFile)
    : m_platform(std::make_shared<QtToolkit::QtPlatform>(this)),
      m_document(std::make_unique<ProbeDocument>(m_platform, registry)),
      m_list(new ProbeList(*m_document, [this] { ShowState(); })),
      m_settings(std::move(registry),
                 [this](const QString& problem) { statusBar()->showMessage(problem, longEnoughToAct); }),
      m_recentMenu(new QMenu(tr("Open &recent"), this)),
      m_recent(m_settings, *m_recentMenu,
               [this](const QString& path) { Run([this, &path] { OpenPath(path); }); }),
      m_files(*this, *m_platform, *m_document, *m_list, m_recent),
      m_readOnly(new QLabel(tr("Read-only"))),
      m_count(new QLabel) {
    CQuorConversion().SetHelpFile(FromQt(helpFile));
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    setCentralWidget(m_list);
    MakeFileMenu();
    MakeEditMenu();
    MakeProbeMenu();
    MakeHelpMenu();
    MakeToolBar();
    connect(&Table(), &QTreeView::doubleClicked, this, [this] { Run([this] { Edit(); }); });
    statusBar()->addPermanentWidget(m_readOnly);
    statusBar()->addPermanentWidget(m_count);

    const QSize tools = findChild<QToolBar*>()->sizeHint();
    resize(std::max(fontMetrics().averageCharWidth() * 110,
                    tools.width() + fontMetrics().averageCharWidth() * 8),
           fontMetrics().height() * 34);
    restoreGeometry(QByteArray::fromBase64(m_settings.Read(geometryName).toLatin1()));
    Table().header()->restoreState(QByteArray::fromBase64(m_settings.Read(columnsName).toLatin1()));
    m_list->Show({});
    Table().setFocus();
}

MainWindow::~MainWindow() {
    delete takeCentralWidget(); // before the document that it shows
}

QTreeView& MainWindow::Table() { return m_list->Table(); }

// Actions

QAction* MainWindow::AddAction(QMenu& menu, const char* name, const QString& text,
                               const QKeySequence& shortcut, const QString& tip, std::function<void()> run) {
    QAction* const action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] { Run(run); });
    return action;
}

QAction& MainWindow::Action(const char* name) const { return *findChild<QAction*>(QLatin1String(name)); }

void MainWindow::Run(const std::function<void()>& command) {
    if (m_list->FinishEditing())
        command();
}

void MainWindow::MakeFileMenu() {
    QMenu& file = *menuBar()->addMenu(tr("&File"));
    AddAction(file, "new", tr("&New"), QKeySequence::New, tr("Start a new file"), [this] { m_files.New(); });
    AddAction(file, "open", tr("&Open\u2026"), QKeySequence::Open,
              tr("Open the file of a host, or add the probe of a settings file"), [this] { m_files.Open(); });
    file.addMenu(m_recentMenu);
    file.addSeparator();
    AddAction(file, "save", tr("&Save"), QKeySequence::Save, tr("Write the changes into the file"),
              [this] { m_files.Save(); });
    AddAction(file, "saveCopy", tr("Save a &copy as\u2026"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
              tr("Write the file with the changes under another name"), [this] { m_files.SaveCopyAs(); });
    file.addSeparator();
    m_needWritable.push_back(AddAction(file, "import", tr("&Import probe\u2026"),
                                       QKeySequence(Qt::CTRL | Qt::Key_I),
                                       tr("Add the probe of a settings file"), [this] { m_files.Import(); }));
    m_needProbe.push_back(
        AddAction(file, "export", tr("&Export probe\u2026"), QKeySequence(Qt::CTRL | Qt::Key_E),
                  tr("Write the probe into a settings file of its own"), [this] { Export(); }));
    file.addSeparator();
    AddAction(file, "quit", tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), tr("Leave Probe Setup"),
              [this] { close(); });
}

void MainWindow::MakeEditMenu() {
    QMenu& edit = *menuBar()->addMenu(tr("&Edit"));
    AddAction(edit, "undo", tr("&Undo"), QKeySequence::Undo, tr("Take the last change back"), [this] {
        Undo();
    })->setIconText(tr("Undo"));
    auto* const redo = AddAction(edit, "redo", tr("&Redo"), QKeySequence::Redo, tr("Make the change again"),
                                 [this] { Redo(); });
    redo->setShortcuts(QKeySequence::Redo); // some people know another one
    redo->setIconText(tr("Redo"));
    edit.addSeparator();
    AddAction(edit, "findProbe", tr("&Find"), QKeySequence::Find, tr("Show the probes that contain a text"),
              [this] { m_list->GoToFindBox(); });
}

void MainWindow::MakeProbeMenu() {
    QMenu& probe = *menuBar()->addMenu(tr("&Probe"));
    auto* const add = AddAction(probe, "add", tr("&Add\u2026"), QKeySequence(Qt::Key_Insert),
                                tr("Add a probe with a name and a conversion type"), [this] { Add(); });
    auto* const edit = AddAction(probe, "edit", tr("&Edit\u2026"), {},
                                 tr("Edit the settings of the conversion"), [this] { Edit(); });
    edit->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    auto* const rename = AddAction(probe, "rename", tr("Re&name"), QKeySequence(Qt::Key_F2),
                                   tr("Give the probe another name"), [this] {
                                       m_list->EditName();
                                       Action("save").setEnabled(true); // it takes what is being typed
                                   });
    auto* const changeType =
        AddAction(probe, "changeType", tr("Change &type\u2026"), QKeySequence(Qt::CTRL | Qt::Key_T),
                  tr("Give the probe another conversion type"), [this] { ChangeType(); });
    auto* const duplicate =
        AddAction(probe, "duplicate", tr("&Duplicate"), QKeySequence(Qt::CTRL | Qt::Key_D),
                  tr("Add a probe with the same settings"), [this] { Duplicate(); });
    auto* const remove = AddAction(probe, "remove", tr("&Remove"), QKeySequence(Qt::Key_Delete),
                                   tr("Remove the selected probes"), [this] { Remove(); });
    m_needWritable.push_back(add);
    m_needProbe.push_back(edit);
    m_needWritableProbe = {rename, changeType, duplicate, remove};
    // These keys mean other things in the find box and while a name is typed.
    for (QAction* const action : {add, edit, rename, remove}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        Table().addAction(action);
    }
    Table().addActions({changeType, duplicate});
}

void MainWindow::MakeHelpMenu() {
    QMenu& help = *menuBar()->addMenu(tr("&Help"));
    AddAction(help, "help", tr("&Help"), QKeySequence::HelpContents, tr("Show the help"),
              [this] { ShowHelp(windowTopic); });
    AddAction(help, "about", tr("&About Probe Setup"), {}, tr("Show the version"), [this] { ShowAbout(); });
}

void MainWindow::MakeToolBar() {
    QToolBar& bar = *addToolBar(tr("Tools"));
    bar.setObjectName(QStringLiteral("tools"));
    bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const auto& group : {std::vector{"new", "open", "save"},
                              {"add", "edit", "changeType", "duplicate", "remove"},
                              {"undo", "redo"}}) {
        if (!bar.actions().isEmpty())
            bar.addSeparator();
        for (const char* const name : group)
            bar.addAction(&Action(name));
    }
}

// Probes

bool MainWindow::HasSettings(std::size_t probe) {
    const bool has = m_document->HasSettings(probe);
    if (!has)
        statusBar()->showMessage(tr("\"%1\" has no settings to edit: %2.")
                                     .arg(ToQt(m_document->Name(probe)), m_list->ConversionText(probe)),
                                 longEnoughToAct);
    return has;
}

void MainWindow::Add() {
    ProbeDialog dialog(this, *m_document, ToQt(m_document->FreeName(FromQt(tr("New probe")))),
                       [this] { ShowHelp(typesTopic); });
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_list->ShowNew({m_document->Add(FromQt(dialog.Name()), *dialog.ChosenType())});
    Table().setFocus();
}

void MainWindow::Edit() {
    const auto probe = m_list->Current();
    if (!probe)
        return;
    const ReadProblems& problems = m_document->CheckRecord(*probe);
    if (!problems.IsEmpty()) {
        // Where there is no dialog, no values stand in it.
        const QString what =
            m_document->Type(*probe)
                ? tr("These keys are missing or cannot be read; default values stand in their place:")
                : tr("This key is missing or cannot be read:");
        MessageBox(this, QMessageBox::Warning,
                   tr("The record of \"%1\" in %2 cannot be read wholly.")
                       .arg(ToQt(m_document->Name(*probe)), ToQt(m_document->Path())),
                   what + QLatin1Char('\n') + Wording::Lines(problems.Lines()))
            .exec();
    }
    if (!HasSettings(*probe))
        return;
    if (m_document->Edit(*probe))
        m_list->ShowChanged(*probe);
}

void MainWindow::Export() {
    const auto probe = m_list->Current();
    if (probe && HasSettings(*probe))
        m_files.Export(*probe);
}

void MainWindow::ChangeType() {
    const auto probe = m_list->Current();
    if (!probe)
        return;
    ProbeDialog dialog(this, ToQt(m_document->Name(*probe)), m_document->Type(*probe),
                       [this] { ShowHelp(typesTopic); });
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (const auto type = dialog.ChosenType())
        m_document->SetType(*probe, *type);
    m_list->ShowChanged(*probe);
}

void MainWindow::Duplicate() {
    const auto probe = m_list->Current();
    if (!probe)
        return;
    std::size_t copy = 0;
    if (RunOrTell(this, tr("\"%1\" cannot be duplicated.").arg(ToQt(m_document->Name(*probe))),
                  [&] { copy = m_document->Duplicate(*probe); }))
        m_list->ShowNew({copy});
}

void MainWindow::Remove() {
    const std::vector<std::size_t> probes = m_list->Selected();
    if (probes.empty())
        return;
    m_document->Remove(probes);
    m_list->Show(probes.front());
    statusBar()->showMessage(probes.size() == 1
                                 ? tr("One probe is removed. Undo brings it back.")
                                 : tr("%1 probes are removed. Undo brings them back.")
                                       .arg(QLocale().toString(static_cast<qulonglong>(probes.size()))),
                             aWhile);
}

void MainWindow::Undo() {
    const std::size_t count = m_document->Count();
    ShowStep(m_document->Undo(), count);
    statusBar()->showMessage(tr("Taken back: %1").arg(Wording::Of(*m_document->RedoKind())), aWhile);
}

void MainWindow::Redo() {
    const std::size_t count = m_document->Count();
    ShowStep(m_document->Redo(), count);
    statusBar()->showMessage(tr("Done again: %1").arg(Wording::Of(*m_document->UndoKind())), aWhile);
}

void MainWindow::ShowStep(const std::vector<std::size_t>& places, std::size_t count) {
    if (m_document->Count() < count) {
        m_list->Show(places.front()); // probes have gone
    } else if (m_document->Count() > count || !m_list->IsShown(places.front())) {
        m_list->ShowNew(places);
    } else {
        m_list->ShowChanged(places.front());
        m_list->Select(places);
    }
}

void MainWindow::ShowHelp(std::int32_t topic) {
    constexpr std::uint32_t showTopic = 1;
    m_platform->CallHelp(CQuorConversion().HelpFile(), showTopic, topic);
}

void MainWindow::ShowAbout() {
    QMessageBox::about(
        this, tr("About Probe Setup"),
        tr("Probe Setup %1\n\nThe probe conversions of precision thermometers: held, edited, kept in "
           "INI files.")
            .arg(QCoreApplication::applicationVersion()));
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
    setWindowModified(m_document->Changed());
    const bool writable = !m_document->IsReadOnly();
    const bool any = m_list->Current().has_value();
    for (QAction* const action : m_needProbe)
        action->setEnabled(any);
    for (QAction* const action : m_needWritableProbe)
        action->setEnabled(any && writable);
    for (QAction* const action : m_needWritable)
        action->setEnabled(writable);
    Action("save").setEnabled(writable && (m_document->Changed() || m_document->Path().empty()));

    const auto undo = m_document->UndoKind();
    const auto redo = m_document->RedoKind();
    Action("undo").setEnabled(undo.has_value());
    Action("redo").setEnabled(redo.has_value());
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

// Events

void MainWindow::closeEvent(QCloseEvent* event) {
    // What is typed in a dialog is no change yet that one could be asked about.
    if (QApplication::activeModalWidget() || !m_list->FinishEditing() || !m_files.MayLoseChanges()) {
        event->ignore();
        return;
    }
    m_settings.Write(geometryName, QString::fromLatin1(saveGeometry().toBase64()));
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
