#include "apps/probe-setup/MainWindow.h"

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/QuorError.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "apps/probe-setup/ProbeTableModel.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
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
using QuorIniFile::QuorError;

namespace {

constexpr std::int32_t windowTopic = 10108;
constexpr std::int32_t typesTopic = 10102;

// Where the window keeps what it remembers.
constexpr const wchar_t* registrySection = L"Main window";
constexpr const wchar_t* geometryName = L"Geometry";
constexpr const wchar_t* columnsName = L"Columns";
constexpr const wchar_t* recentName = L"Recent files";
constexpr qsizetype mostRecent = 8;

/// An inline editor gives its probe a name after it has gone.
constexpr int afterTheEditor = 0;

/// A message in plain text, because names of probes and files may look like mark-up. Its buttons are in the
/// words of the conversions' dialogs; Qt's own are in English where its translations are not installed.
class Message final : public QMessageBox {
public:
    Message(QWidget* parent, Icon icon, const QString& text, const QString& more = {},
            StandardButtons buttons = Ok)
        : QMessageBox(icon, MainWindow::tr("Probe Setup"), text, buttons, parent) {
        setInformativeText(more);
        for (QLabel* const label : findChildren<QLabel*>()) // its own format is that of the first text alone
            label->setTextFormat(Qt::PlainText);
        if (button(Ok))
            button(Ok)->setText(ToQt(TableText(IDS_OK_BUTTON)));
        if (button(Cancel))
            button(Cancel)->setText(ToQt(TableText(IDS_CANCEL_BUTTON)));
    }
};

QString Lines(const std::vector<std::wstring>& lines) {
    constexpr std::size_t most = 12;
    QStringList shown;
    for (const std::wstring& line : lines) {
        if (static_cast<std::size_t>(shown.size()) == most) {
            shown += QStringLiteral("\u2026");
            break;
        }
        shown += ToQt(line);
    }
    return shown.join(QLatin1Char('\n'));
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<QuorRegistryII::Registry> registry, const QString& helpFile)
    : m_registry(std::move(registry)),
      m_platform(std::make_shared<QtToolkit::QtPlatform>(this)),
      m_document(std::make_unique<ProbeDocument>(m_platform, m_registry)),
      m_model(std::make_unique<ProbeTableModel>(*m_document,
                                                [this](std::size_t probe, const QString& name) {
                                                    m_typedName = {probe, name};
                                                    QTimer::singleShot(afterTheEditor, this,
                                                                       [this] { TakeTypedName(); });
                                                })),
      m_table(new QTreeView),
      m_emptyState(new QLabel(m_table->viewport())),
      m_find(new QLineEdit),
      m_count(new QLabel),
      m_readOnly(new QLabel(tr("Read-only"))),
      m_progress(new QProgressBar) {
    CQuorConversion().SetHelpFile(FromQt(helpFile));
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    MakeTable();
    MakeActions();

    m_progress->setRange(0, 100);
    m_progress->setMaximumWidth(fontMetrics().averageCharWidth() * 24);
    m_progress->hide();
    m_progress->setAccessibleName(tr("Progress of loading"));
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(m_readOnly);
    statusBar()->addPermanentWidget(m_count);

    const QSize tools = findChild<QToolBar*>()->sizeHint();
    resize(std::max(fontMetrics().averageCharWidth() * 110,
                    tools.width() + fontMetrics().averageCharWidth() * 8),
           fontMetrics().height() * 34);
    restoreGeometry(QByteArray::fromBase64(Remembered(geometryName).toLatin1()));
    m_table->header()->restoreState(QByteArray::fromBase64(Remembered(columnsName).toLatin1()));
    ShowRecent();
    ShowList({});
    m_table->setFocus();
}

MainWindow::~MainWindow() { m_table->setModel(nullptr); }

void MainWindow::MakeTable() {
    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    auto* const findRow = new QHBoxLayout;
    auto* const findLabel = new QLabel(tr("F&ind:"));
    findLabel->setBuddy(m_find);
    m_find->setObjectName(QStringLiteral("find"));
    m_find->setClearButtonEnabled(true);
    m_find->setPlaceholderText(tr("Part of a name or of a conversion"));
    m_find->setAccessibleName(tr("Find probes"));
    m_find->installEventFilter(this);
    findRow->addWidget(findLabel);
    findRow->addWidget(m_find);
    layout->addLayout(findRow);
    layout->addWidget(m_table);
    setCentralWidget(content);

    m_table->setObjectName(QStringLiteral("probes"));
    m_table->setAccessibleName(tr("Probes"));
    m_table->setModel(m_model.get());
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->header()->setStretchLastSection(false);
    m_table->header()->setSectionResizeMode(ProbeTableModel::ChangedColumn, QHeaderView::ResizeToContents);
    m_table->header()->resizeSection(ProbeTableModel::NameColumn, fontMetrics().averageCharWidth() * 45);
    m_table->header()->setSectionResizeMode(ProbeTableModel::ConversionColumn, QHeaderView::Stretch);
    connect(m_table, &QTreeView::doubleClicked, this, [this] { Act([this] { Edit(); }); });
    connect(m_table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this, [this] { ShowState(); });

    m_emptyState->setObjectName(QStringLiteral("emptyState"));
    m_emptyState->setAlignment(Qt::AlignCenter);
    m_emptyState->setWordWrap(true);
    m_emptyState->setTextFormat(Qt::PlainText);
    m_emptyState->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_emptyState->setContentsMargins(24, 24, 24, 24);
    auto* const overlay = new QVBoxLayout(m_table->viewport());
    overlay->setContentsMargins(0, 0, 0, 0);
    overlay->addWidget(m_emptyState);

    connect(m_find, &QLineEdit::textChanged, this, [this](const QString& text) {
        const auto current = CurrentProbe();
        m_model->SetFilter(text);
        if (current && m_model->RowOf(*current))
            Select(*current);
        else if (m_model->rowCount() > 0)
            Select(m_model->ProbeAt(0));
        ShowState();
    });
}

QAction* MainWindow::AddAction(QMenu& menu, const char* name, const QString& text,
                               const QKeySequence& shortcut, const QString& tip, std::function<void()> run) {
    QAction* const action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] { Act(run); });
    return action;
}

void MainWindow::MakeActions() {
    QMenu& file = *menuBar()->addMenu(tr("&File"));
    auto* const newAction =
        AddAction(file, "new", tr("&New"), QKeySequence::New, tr("Start a new file"), [this] { New(); });
    auto* const openAction =
        AddAction(file, "open", tr("&Open\u2026"), QKeySequence::Open,
                  tr("Open the file of a host, or add the probe of a settings file"), [this] { Open(); });
    m_recentMenu = file.addMenu(tr("Open &recent"));
    file.addSeparator();
    m_saveAction = AddAction(file, "save", tr("&Save"), QKeySequence::Save,
                             tr("Write the changes into the file"), [this] { Save(); });
    AddAction(file, "saveCopy", tr("Save a &copy as\u2026"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
              tr("Write the file with the changes under another name"), [this] { SaveCopyAs(); });
    file.addSeparator();
    m_needWritable.push_back(AddAction(file, "import", tr("&Import probe\u2026"),
                                       QKeySequence(Qt::CTRL | Qt::Key_I),
                                       tr("Add the probe of a settings file"), [this] { Import(); }));
    m_exportAction = AddAction(file, "export", tr("&Export probe\u2026"), QKeySequence(Qt::CTRL | Qt::Key_E),
                               tr("Write the probe into a settings file of its own"), [this] { Export(); });
    file.addSeparator();
    AddAction(file, "quit", tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), tr("Leave Probe Setup"),
              [this] { close(); });

    QMenu& edit = *menuBar()->addMenu(tr("&Edit"));
    m_undoAction = AddAction(edit, "undo", tr("&Undo"), QKeySequence::Undo, tr("Take the last change back"),
                             [this] { Undo(); });
    m_redoAction = AddAction(edit, "redo", tr("&Redo"), QKeySequence::Redo, tr("Make the change again"),
                             [this] { Redo(); });
    m_redoAction->setShortcuts(QKeySequence::Redo); // some people know another one
    edit.addSeparator();
    AddAction(edit, "findProbe", tr("&Find"), QKeySequence::Find, tr("Show the probes that contain a text"),
              [this] { Find(); });

    QMenu& probe = *menuBar()->addMenu(tr("&Probe"));
    auto* const addAction = AddAction(probe, "add", tr("&Add\u2026"), QKeySequence(Qt::Key_Insert),
                                      tr("Add a probe with a name and a conversion type"), [this] { Add(); });
    auto* const editAction = AddAction(probe, "edit", tr("&Edit\u2026"), {},
                                       tr("Edit the settings of the conversion"), [this] { Edit(); });
    editAction->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    auto* const renameAction = AddAction(
        probe, "rename", tr("Re&name"), QKeySequence(Qt::Key_F2), tr("Give the probe another name"), [this] {
            m_table->edit(m_table->currentIndex().siblingAtColumn(ProbeTableModel::NameColumn));
            m_saveAction->setEnabled(true); // it takes the name that is being typed
        });
    auto* const typeAction =
        AddAction(probe, "changeType", tr("Change &type\u2026"), QKeySequence(Qt::CTRL | Qt::Key_T),
                  tr("Give the probe another conversion type"), [this] { ChangeType(); });
    auto* const duplicateAction =
        AddAction(probe, "duplicate", tr("&Duplicate"), QKeySequence(Qt::CTRL | Qt::Key_D),
                  tr("Add a probe with the same settings"), [this] { Duplicate(); });
    auto* const removeAction = AddAction(probe, "remove", tr("&Remove"), QKeySequence(Qt::Key_Delete),
                                         tr("Remove the selected probes"), [this] { Remove(); });
    m_needWritable.push_back(addAction);
    m_needProbe = {editAction};
    m_needWritableProbe = {renameAction, typeAction, duplicateAction, removeAction};
    // These keys mean other things in the find box and while a name is typed.
    for (QAction* const action : {addAction, editAction, renameAction, removeAction}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        m_table->addAction(action);
    }
    m_table->addActions({typeAction, duplicateAction});

    QMenu& help = *menuBar()->addMenu(tr("&Help"));
    AddAction(help, "help", tr("&Help"), QKeySequence::HelpContents, tr("Show the help"),
              [this] { ShowHelp(windowTopic); });
    AddAction(help, "about", tr("&About Probe Setup"), {}, tr("Show the version"), [this] { ShowAbout(); });

    QToolBar& bar = *addToolBar(tr("Tools"));
    bar.setObjectName(QStringLiteral("tools"));
    bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar.addActions({newAction, openAction, m_saveAction});
    bar.addSeparator();
    bar.addActions({addAction, editAction, typeAction, duplicateAction, removeAction});
    bar.addSeparator();
    bar.addActions({m_undoAction, m_redoAction});

    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { ShowState(); });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { ShowState(); });
}

// Files

QString MainWindow::Words(const QuorProbeFile::RecordConflict& conflict) {
    const QString key = ToQt(L"[" + conflict.section + L"] " + conflict.key);
    const QString ours = ToQt(QuorProbeFile::ToText(conflict.ours));
    return conflict.theirs ? tr("%1: %2 in the file, %3 here")
                                 .arg(key, ToQt(QuorProbeFile::ToText(*conflict.theirs)), ours)
                           : tr("%1: removed from the file, %2 here").arg(key, ours);
}

QString MainWindow::Words(const DocumentError& error) {
    const QString file = ToQt(error.file);
    const auto detail = [&](std::size_t number) { return ToQt(error.details.at(number)); };
    const auto lines = [&](std::size_t from) {
        return QLatin1Char('\n') +
               Lines({error.details.begin() + static_cast<std::ptrdiff_t>(from), error.details.end()});
    };
    switch (error.failure) {
    case Failure::NoStandAloneFile:
        return tr("%1: this is no settings file of a conversion.").arg(file);
    case Failure::UnreadableRecord:
        return tr("%1: these keys are missing or cannot be read:").arg(file) + lines(0);
    case Failure::UnknownType:
        return tr("%1: \"%2\" has the type %3, which this program does not know. It stays in the file as it "
                  "is, but it cannot be copied.")
            .arg(file, detail(0), detail(1));
    case Failure::ChangedByOthers: {
        QStringList parts;
        if (!error.details.empty())
            parts +=
                tr("%1: another program has changed or removed these probes meanwhile:").arg(file) + lines(0);
        if (!error.conflicts.empty()) {
            std::vector<std::wstring> keys;
            for (const QuorProbeFile::RecordConflict& conflict : error.conflicts)
                keys.push_back(FromQt(Words(conflict)));
            parts += tr("%1: another program has changed these values meanwhile:").arg(file) +
                     QLatin1Char('\n') + Lines(keys);
        }
        return parts.join(QLatin1Char('\n'));
    }
    case Failure::NameIsTaken:
        return tr("%1: another program has added a section called \"%2\" meanwhile. Give the probe another "
                  "name and save again.")
            .arg(file, detail(0));
    case Failure::CannotWrite:
        return tr("%1: the probe \"%2\" cannot be written:").arg(file, detail(0)) + lines(1);
    case Failure::SharedSection:
        return tr("%1: the section [%2] belongs to \"%3\" and to \"%4\" at once, so it can neither "
                  "go nor get another name with one of them alone. Take that change back.")
            .arg(file, detail(0), detail(1), detail(2));
    }
    return {};
}

bool MainWindow::Try(const QString& what, const std::function<void()>& action) {
    QString reason;
    try {
        action();
        return true;
    } catch (const QuorError& error) {
        reason = ToQt(DescriptionOf(error));
    } catch (const DocumentError& error) {
        reason = Words(error);
    } catch (const std::exception& error) {
        reason = QString::fromUtf8(error.what());
    }
    Message(this, QMessageBox::Critical, what, reason).exec();
    return false;
}

QString MainWindow::FileName() const {
    return m_document->Path().empty() ? tr("New file") : QFileInfo(ToQt(m_document->Path())).fileName();
}

bool MainWindow::MayLoseChanges() {
    if (!m_document->Changed())
        return true;
    Message box(this, QMessageBox::Warning, tr("%1 has changes that are not saved.").arg(FileName()),
                tr("Do you want to save them?"),
                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.button(QMessageBox::Save)->setText(tr("&Save"));
    box.button(QMessageBox::Discard)->setText(tr("&Discard"));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void MainWindow::New() {
    if (!MayLoseChanges())
        return;
    m_document->Close();
    m_find->clear();
    ShowList({});
}

QString MainWindow::AskForHostFile(const QString& title, bool toSave) {
    const QString folder = QFileInfo(ToQt(m_document->Path())).path();
    QFileDialog dialog(this, title, folder,
                       tr("Files of hosts (*.ini)") + QStringLiteral(";;") + tr("All files (*)"));
    dialog.setAcceptMode(toSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(toSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (toSave)
        dialog.setDefaultSuffix(QStringLiteral("ini"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void MainWindow::Open() {
    const QString path = AskForHostFile(tr("Open"), false);
    if (!path.isEmpty())
        OpenPath(path);
}

bool MainWindow::OpenPath(const QString& path) {
    bool standAlone = false;
    if (!Try(tr("The file cannot be opened."),
             [&] { standAlone = ProbeDocument::IsStandAlone(FromQt(path)); })) {
        ForgetRecent(path);
        return false;
    }
    return standAlone ? ImportFiles({path}) : OpenHostFile(path);
}

bool MainWindow::OpenHostFile(const QString& path) {
    if (!MayLoseChanges())
        return false;
    const QString full = QFileInfo(path).absoluteFilePath();
    m_progress->setValue(0);
    m_progress->show();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    setEnabled(false);
    statusBar()->showMessage(tr("Loading %1\u2026").arg(full));
    QElapsedTimer sinceShown;
    const auto show = [this, &sinceShown](double part) {
        constexpr qint64 often = 50; // milliseconds
        if (sinceShown.isValid() && sinceShown.elapsed() < often)
            return;
        m_progress->setValue(static_cast<int>(part * m_progress->maximum()));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        sinceShown.start();
    };
    show(0);
    const bool opened = Try(tr("The file cannot be opened."), [&] {
        const auto rest = qScopeGuard([this] { // before a failure is told
            statusBar()->clearMessage();
            setEnabled(true);
            m_table->setFocus(); // a window that cannot be used has lost it
            QApplication::restoreOverrideCursor();
            m_progress->hide();
        });
        m_document->Open(FromQt(full), show);
    });
    if (!opened) {
        ForgetRecent(full);
        return false;
    }
    RememberRecent(full);
    m_find->clear();
    ShowList(0);
    if (!m_document->LostRecords().empty()) {
        std::vector<std::wstring> lines;
        for (const std::size_t line : m_document->LostRecords())
            lines.push_back(FromQt(tr("Line %1").arg(line)));
        Message(this, QMessageBox::Warning,
                tr("%1: these section headers have no \"]\", so nobody can read the probes below them:")
                    .arg(full),
                Lines(lines))
            .exec();
    }
    return true;
}

void MainWindow::OpenFiles(const QStringList& paths) {
    QStringList settings;
    QStringList hosts;
    for (const QString& path : paths) {
        bool standAlone = false;
        if (Try(tr("The file cannot be opened."),
                [&] { standAlone = ProbeDocument::IsStandAlone(FromQt(path)); }))
            (standAlone ? settings : hosts) += path;
    }
    if (hosts.size() > 1) {
        Message(this, QMessageBox::Information,
                tr("Only one file can be open. %1 is opened.").arg(hosts.front()))
            .exec();
    }
    if (!hosts.isEmpty() && !OpenHostFile(hosts.front()))
        return;
    ImportFiles(settings);
}

bool MainWindow::Save() {
    if (m_document->Path().empty())
        return SaveCopyAs();
    const auto current = CurrentProbe();
    const std::wstring name = current ? m_document->Name(*current) : std::wstring();
    if (!SaveBy(tr("%1 cannot be saved.").arg(FileName()),
                [this](const OthersChanges& replaced) { m_document->Save(replaced); }))
        return false;
    ShowList(m_document->Find(name)); // probes that another program has added may stand before it now
    statusBar()->showMessage(tr("%1 is saved.").arg(FileName()), 5000);
    return true;
}

bool MainWindow::SaveBy(const QString& what, const std::function<void(const OthersChanges&)>& save) {
    bool isRefused = false;
    const bool done = Try(what, [&] {
        // Asked again for what has come while the question was open.
        for (OthersChanges replaced; !isRefused;) {
            try {
                save(replaced);
                return;
            } catch (const DocumentError& error) {
                if (error.failure != Failure::ChangedByOthers)
                    throw;
                Message box(this, QMessageBox::Warning, Words(error),
                            tr("Do you want to replace what the other program has written?"),
                            QMessageBox::Save | QMessageBox::Cancel);
                box.button(QMessageBox::Save)->setText(tr("&Replace"));
                box.setDefaultButton(QMessageBox::Cancel);
                isRefused = box.exec() != QMessageBox::Save;
                replaced = {error.details, error.conflicts};
            }
        }
    });
    return done && !isRefused;
}

bool MainWindow::SaveCopyAs() {
    const bool isNew = m_document->Path().empty();
    const QString path = AskForHostFile(isNew ? tr("Save as") : tr("Save a copy as"), true);
    if (path.isEmpty())
        return false;
    const auto current = CurrentProbe();
    if (!SaveBy(tr("%1 cannot be saved.").arg(path),
                [&](const OthersChanges& replaced) { m_document->SaveCopyAs(FromQt(path), replaced); }))
        return false;
    RememberRecent(QFileInfo(path).absoluteFilePath());
    ShowList(current);
    statusBar()->showMessage(tr("%1 is saved.").arg(path), 5000);
    return true;
}

void MainWindow::Import() {
    QStringList patterns;
    for (const auto& type : QuorProbeFile::Types()) {
        const QString pattern = QStringLiteral("*.") + ToQt(type.extension);
        if (!type.extension.empty() && !patterns.contains(pattern))
            patterns += pattern;
    }
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Import probes"), QFileInfo(ToQt(m_document->Path())).path(),
                                      tr("Settings files (%1)").arg(patterns.join(QLatin1Char(' '))) +
                                          QStringLiteral(";;") + tr("All files (*)"));
    ImportFiles(paths);
}

bool MainWindow::ImportFiles(const QStringList& paths) {
    if (m_document->IsReadOnly() && !paths.isEmpty()) {
        Message(this, QMessageBox::Information, tr("%1 is read-only: no probe can be added.").arg(FileName()))
            .exec();
        return false;
    }
    bool all = true;
    for (const QString& path : paths) {
        std::size_t probe = 0;
        if (Try(tr("The probe cannot be imported."), [&] { probe = m_document->Import(FromQt(path)); }))
            Reveal(probe);
        else
            all = false;
    }
    return all;
}

void MainWindow::Export() {
    const auto probe = CurrentProbe();
    if (!probe || !HasSettings(*probe))
        return;
    const QString name = ToQt(m_document->Name(*probe));
    std::optional<std::wstring> path;
    if (Try(tr("\"%1\" cannot be exported.").arg(name),
            [&] { path = m_document->Export(*probe, m_platform->HandleOf(*this)); }) &&
        path)
        statusBar()->showMessage(tr("\"%1\" is written into %2.").arg(name, ToQt(*path)), 5000);
}

// Probes

bool MainWindow::HasSettings(std::size_t probe) {
    const bool has = m_document->HasSettings(probe);
    if (!has)
        statusBar()->showMessage(tr("\"%1\" has no settings to edit: %2.")
                                     .arg(ToQt(m_document->Name(probe)), m_model->ConversionText(probe)),
                                 10000);
    return has;
}

void MainWindow::Add() {
    ProbeDialog dialog(this, *m_document, ToQt(m_document->FreeName(FromQt(tr("New probe")))),
                       [this] { ShowHelp(typesTopic); });
    if (dialog.exec() != QDialog::Accepted)
        return;
    Reveal(m_document->Add(FromQt(dialog.Name()), *dialog.ChosenType()));
    m_table->setFocus();
}

void MainWindow::Edit() {
    const auto probe = CurrentProbe();
    if (!probe)
        return;
    const ReadProblems& problems = m_document->CheckRecord(*probe);
    if (!problems.IsEmpty()) {
        // Where there is no dialog, no values stand in it.
        const QString what =
            m_document->Type(*probe)
                ? tr("These keys are missing or cannot be read; default values stand in their place:")
                : tr("This key is missing or cannot be read:");
        Message(this, QMessageBox::Warning,
                tr("The record of \"%1\" in %2 cannot be read wholly.")
                    .arg(ToQt(m_document->Name(*probe)), ToQt(m_document->Path())),
                what + QLatin1Char('\n') + Lines(problems.Lines()))
            .exec();
    }
    if (!HasSettings(*probe))
        return;
    if (m_document->Edit(*probe))
        ShowProbe(*probe);
}

bool MainWindow::Rename(std::size_t probe, const QString& typed) {
    const QString name = typed.trimmed();
    if (probe >= m_document->Count() || name == ToQt(m_document->Name(probe)))
        return true;
    if (const NameProblem problem = m_document->CheckName(FromQt(name), probe);
        problem != NameProblem::None) {
        Message(this, QMessageBox::Warning, TextOf(problem, name)).exec();
        return false;
    }
    m_document->Rename(probe, FromQt(name));
    ShowProbe(probe);
    return true;
}

bool MainWindow::TakeTypedName() {
    const auto typed = std::exchange(m_typedName, std::nullopt);
    return !typed || Rename(typed->probe, typed->name);
}

bool MainWindow::FinishTyping() {
    if (auto* const editor = m_table->viewport()->findChild<QLineEdit*>()) {
        QAbstractItemDelegate* const delegate = m_table->itemDelegate();
        emit delegate->commitData(editor);
        emit delegate->closeEditor(editor);
    }
    return TakeTypedName();
}

void MainWindow::Act(const std::function<void()>& action) {
    if (FinishTyping())
        action();
}

void MainWindow::ChangeType() {
    const auto probe = CurrentProbe();
    if (!probe)
        return;
    ProbeDialog dialog(this, ToQt(m_document->Name(*probe)), m_document->Type(*probe),
                       [this] { ShowHelp(typesTopic); });
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (const auto type = dialog.ChosenType())
        m_document->SetType(*probe, *type);
    ShowProbe(*probe);
}

void MainWindow::Duplicate() {
    const auto probe = CurrentProbe();
    if (!probe)
        return;
    std::size_t copy = 0;
    if (Try(tr("\"%1\" cannot be duplicated.").arg(ToQt(m_document->Name(*probe))),
            [&] { copy = m_document->Duplicate(*probe); }))
        Reveal(copy);
}

void MainWindow::Remove() {
    const std::vector<std::size_t> probes = SelectedProbes();
    if (probes.empty())
        return;
    m_document->Remove(probes);
    ShowList(probes.front());
    statusBar()->showMessage(probes.size() == 1
                                 ? tr("One probe is removed. Undo brings it back.")
                                 : tr("%1 probes are removed. Undo brings them back.")
                                       .arg(QLocale().toString(static_cast<qulonglong>(probes.size()))),
                             5000);
}

void MainWindow::Undo() { ShowStep(&ProbeDocument::Undo); }

void MainWindow::Redo() { ShowStep(&ProbeDocument::Redo); }

void MainWindow::ShowStep(std::size_t (ProbeDocument::*step)()) {
    const std::size_t count = m_document->Count();
    const std::size_t place = (m_document.get()->*step)();
    if (m_document->Count() < count) {
        ShowList(place); // probes have gone
    } else if (m_document->Count() > count || !m_model->RowOf(place)) {
        Reveal(place);
    } else {
        ShowProbe(place);
        Select(place);
    }
}

void MainWindow::Find() {
    m_find->setFocus();
    m_find->selectAll();
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

std::optional<std::size_t> MainWindow::CurrentProbe() const {
    const QModelIndex index = m_table->currentIndex();
    return index.isValid() ? std::optional(m_model->ProbeAt(index.row())) : std::nullopt;
}

std::vector<std::size_t> MainWindow::SelectedProbes() const {
    std::vector<std::size_t> probes;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            probes.push_back(m_model->ProbeAt(row));
    }
    std::sort(probes.begin(), probes.end());
    probes.erase(std::unique(probes.begin(), probes.end()), probes.end());
    return probes;
}

void MainWindow::Select(std::size_t probe) {
    const auto row = m_model->RowOf(probe);
    if (!row)
        return;
    const QModelIndex index = m_model->index(*row, ProbeTableModel::NameColumn);
    m_table->setCurrentIndex(index);
    m_table->scrollTo(index);
}

void MainWindow::ShowProbe(std::size_t probe) {
    m_model->RefreshProbe(probe);
    ShowState();
}

void MainWindow::Reveal(std::size_t probe) {
    m_model->Refresh();
    if (!m_model->RowOf(probe))
        m_find->clear();
    ShowList(probe);
}

void MainWindow::ShowList(std::optional<std::size_t> current) {
    m_model->Refresh();
    if (current && m_document->Count() > 0) {
        const std::size_t probe = std::min(*current, m_document->Count() - 1);
        if (!m_model->RowOf(probe) && m_model->rowCount() > 0)
            Select(m_model->ProbeAt(0));
        Select(probe);
    }
    ShowState();
}

QString MainWindow::StepText(StepKind kind) {
    switch (kind) {
    case StepKind::Add:
        return tr("add");
    case StepKind::Duplicate:
        return tr("duplicate");
    case StepKind::Import:
        return tr("import");
    case StepKind::Remove:
        return tr("remove");
    case StepKind::Rename:
        return tr("rename");
    case StepKind::ChangeType:
        return tr("change of type");
    case StepKind::Edit:
        return tr("edit");
    }
    return {};
}

QString MainWindow::EmptyText() const {
    const auto keys = [this](const char* name) {
        return findChild<QAction*>(QString::fromLatin1(name))->shortcut().toString(QKeySequence::NativeText);
    };
    if (m_document->Count() > 0)
        return tr("No probe contains \"%1\". Press Esc in the find box to see all probes.")
            .arg(m_find->text());
    if (m_document->Path().empty())
        return tr("Open the file of a host (%1) or drop it here, or add a first probe (%2).")
            .arg(keys("open"), keys("add"));
    if (m_document->IsReadOnly())
        return tr("%1 has no probes, and it is read-only.").arg(FileName());
    return tr("%1 has no probes yet. Add one (%2), or import a settings file (%3).")
        .arg(FileName(), keys("add"), keys("import"));
}

void MainWindow::ShowState() {
    const std::wstring& path = m_document->Path();
    setWindowTitle(tr("%1[*] \u2013 Probe Setup").arg(FileName()));
    setWindowModified(m_document->Changed());
    const bool writable = !m_document->IsReadOnly();
    const bool any = CurrentProbe().has_value();
    for (QAction* const action : m_needProbe)
        action->setEnabled(any);
    for (QAction* const action : m_needWritableProbe)
        action->setEnabled(any && writable);
    for (QAction* const action : m_needWritable)
        action->setEnabled(writable);
    m_saveAction->setEnabled(writable && (m_document->Changed() || path.empty()));
    m_exportAction->setEnabled(any);

    const auto undo = m_document->UndoKind();
    const auto redo = m_document->RedoKind();
    m_undoAction->setEnabled(undo.has_value());
    m_redoAction->setEnabled(redo.has_value());
    m_undoAction->setText(undo ? tr("&Undo: %1").arg(StepText(*undo)) : tr("&Undo"));
    m_redoAction->setText(redo ? tr("&Redo: %1").arg(StepText(*redo)) : tr("&Redo"));
    m_undoAction->setIconText(tr("Undo"));
    m_redoAction->setIconText(tr("Redo"));

    m_readOnly->setVisible(!writable);
    const QLocale locale;
    const QString all = locale.toString(static_cast<qulonglong>(m_document->Count()));
    const int shown = m_model->rowCount();
    m_count->setText(m_find->text().isEmpty() ? tr("Probes: %1").arg(all)
                                              : tr("Probes: %1 of %2").arg(locale.toString(shown), all));

    const QString empty = shown == 0 ? EmptyText() : QString();
    m_emptyState->setText(empty);
    m_emptyState->setVisible(!empty.isEmpty());
    m_table->setAccessibleDescription(empty);
}

// Events

void MainWindow::closeEvent(QCloseEvent* event) {
    // What is typed in a dialog is no change yet that one could be asked about.
    if (QApplication::activeModalWidget() || !FinishTyping() || !MayLoseChanges()) {
        event->ignore();
        return;
    }
    Remember(geometryName, QString::fromLatin1(saveGeometry().toBase64()));
    Remember(columnsName, QString::fromLatin1(m_table->header()->saveState().toBase64()));
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
            Act([this, &paths] { OpenFiles(paths); });
    });
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        ShowState();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_find && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape)
            m_find->clear();
        if (key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_table->setFocus();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

// What is remembered

QString MainWindow::Remembered(const wchar_t* name) const {
    std::wstring value;
    try {
        if (m_registry)
            static_cast<void>(m_registry->ReadValue(registrySection, name, value));
    } catch (const QuorError&) {
        // A window whose place is lost opens all the same.
    }
    return ToQt(value);
}

void MainWindow::Remember(const wchar_t* name, const QString& value) {
    try {
        if (m_registry && Remembered(name) != value)
            m_registry->WriteValue(registrySection, name, FromQt(value));
    } catch (const QuorError& error) {
        statusBar()->showMessage(ToQt(DescriptionOf(error)), 10000);
    }
}

QStringList MainWindow::Recent() const {
    return Remembered(recentName).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void MainWindow::RememberRecent(const QString& path) {
    QStringList recent = Recent();
    recent.removeAll(path);
    recent.prepend(path);
    Remember(recentName, recent.mid(0, mostRecent).join(QLatin1Char('\n')));
    ShowRecent();
}

void MainWindow::ForgetRecent(const QString& path) {
    QStringList recent = Recent();
    if (recent.removeAll(path) > 0) {
        Remember(recentName, recent.join(QLatin1Char('\n')));
        ShowRecent();
    }
}

void MainWindow::ShowRecent() {
    m_recentMenu->clear();
    int number = 0;
    for (const QString& path : Recent()) {
        QString text = path;
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        connect(m_recentMenu->addAction(QStringLiteral("&%1 %2").arg(++number).arg(text)),
                &QAction::triggered, this, [this, path] { Act([this, &path] { OpenPath(path); }); });
    }
    m_recentMenu->setEnabled(number > 0);
}

} // namespace ProbeSetup
