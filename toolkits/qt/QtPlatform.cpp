#include "QuorConversions/qt/QtPlatform.h"

#include "QuorConversions/controls/Dialog.h"
#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "toolkits/qt/HelpWindow.h"
#include "toolkits/qt/QtDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace QuorConversions::QtToolkit {
namespace {

// The customary open-file-name flags that have a meaning here.
constexpr std::uint32_t askBeforeOverwriting = 0x2;
constexpr std::uint32_t fileMustExist = 0x1000;

/// "PT100 Files (*.pt1)|*.pt1" as a name filter of Qt, which takes the patterns from the parentheses.
QStringList NameFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns =
            QStringLiteral("(%1)").arg(QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')));
        filters += parts[i].endsWith(patterns) ? parts[i] : parts[i] + QLatin1Char(' ') + patterns;
    }
    return filters;
}

/// The folder, or the nearest one around it that is still there.
QString NearestFolder(const QString& folder) {
    QFileInfo nearest(QDir::cleanPath(folder));
    while (!nearest.isDir() && nearest.filePath() != nearest.path())
        nearest.setFile(nearest.path());
    return nearest.filePath();
}

/// Whether `name` is a pattern, which no file is called.
bool IsPattern(const QString& name) {
    return name.contains(QLatin1Char('*')) || name.contains(QLatin1Char('?'));
}

} // namespace

struct QtPlatform::State {
    QPointer<QWidget> parent;
    std::vector<QPointer<QWidget>> windows; // by handle, from 1
    std::unique_ptr<HelpWindow> help;
    EMousePointer pointer = POINTER_DEFAULT;

    /// The window in front of which the next one stands.
    [[nodiscard]] QWidget* Front() const {
        if (QWidget* const modal = QApplication::activeModalWidget())
            return modal;
        return parent ? parent.data() : QApplication::activeWindow();
    }
};

QtPlatform::QtPlatform(QWidget* parent) : m_state(std::make_unique<State>()) { m_state->parent = parent; }

QtPlatform::~QtPlatform() { QtPlatform::SetMousePointer(POINTER_DEFAULT); }

std::int32_t QtPlatform::HandleOf(QWidget& window) {
    auto& windows = m_state->windows;
    auto at = std::find(windows.begin(), windows.end(), &window);
    if (at == windows.end())
        at = std::find(windows.begin(), windows.end(), nullptr); // the number of a window that is gone
    if (at == windows.end())
        at = windows.insert(at, nullptr);
    *at = &window;
    return static_cast<std::int32_t>(at - windows.begin()) + 1;
}

QWidget* QtPlatform::WindowOf(std::int32_t handle) const {
    const auto index = static_cast<std::size_t>(handle) - 1; // 0 and what is negative become too large
    return index < m_state->windows.size() ? m_state->windows[index].data() : nullptr;
}

void QtPlatform::RunDialog(Dialog& dialog, DialogInput& input) {
    QtDialog window(dialog, input, m_state->Front());
    struct Shown {
        explicit Shown(Dialog& model, std::int32_t handle) : dialog(model) { dialog.SetWindowHandle(handle); }
        Shown(const Shown&) = delete;
        Shown& operator=(const Shown&) = delete;
        ~Shown() { dialog.SetWindowHandle(0); }
        Dialog& dialog;
    };
    const Shown shown(dialog, HandleOf(window));
    window.Run();
}

void QtPlatform::ShowMessage(const MessageRequest& request) {
    QMessageBox box(m_state->Front());
    box.setWindowTitle(ToQt(request.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(request.text).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    box.setIcon(request.icon == ICON_CRITICAL ? QMessageBox::Critical : QMessageBox::Information);
    // The words are the string table's, whose language may be another one than that of Qt.
    box.addButton(QMessageBox::Ok)->setText(ToQt(TableText(IDS_OK_BUTTON)));
    if (!request.helpFile.empty()) {
        // No answer: the message stays open, and the help, which stands on it, can be used meanwhile.
        QPushButton* const help = box.addButton(QMessageBox::Help);
        help->setText(ToQt(TableText(IDS_HELP_BUTTON)));
        QObject::disconnect(help, &QPushButton::clicked, nullptr, nullptr);
        QObject::connect(help, &QPushButton::clicked, &box, [this, &request] {
            CallHelp(request.helpFile, helpCommandContext, request.helpContext);
        });
    }
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
}

std::optional<std::wstring> QtPlatform::AskForFile(const FileRequest& request) {
    QWidget* const owner = WindowOf(request.owner);
    QFileDialog dialog(owner ? owner : m_state->Front(), ToQt(request.title));
    const bool saves = request.kind == FileDialogKind::Save;
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.flags & fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !(request.flags & askBeforeOverwriting));
    dialog.setNameFilters(NameFilters(ToQt(request.filter)));
    if (saves)
        dialog.setDefaultSuffix(ToQt(request.defaultExtension));
    if (!request.folder.empty())
        dialog.setDirectory(NearestFolder(ToQt(request.folder)));
    if (const QString name = ToQt(request.fileName); !IsPattern(name))
        dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(dialog.selectedFiles().front());
}

std::int32_t QtPlatform::CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) {
    if (command != helpCommandContext)
        return 0;
    try {
        if (!m_state->help)
            m_state->help = std::make_unique<HelpWindow>();
        m_state->help->ShowTopic(helpFile, data);
        return 1;
    } catch (...) {
        ReportError(*this, CurrentError(L"QtPlatform"), TableText(IDS_DISPLAYING_HELP),
                    TableText(IDS_MESSAGE_TITLE));
        return 0;
    }
}

std::wstring QtPlatform::DecimalSeparator() { return FromQt(QLocale().decimalPoint()); }

EMousePointer QtPlatform::MousePointer() const { return m_state->pointer; }

void QtPlatform::SetMousePointer(EMousePointer shape) {
    const bool wasBusy = m_state->pointer == POINTER_HOURGLASS;
    const bool isBusy = shape == POINTER_HOURGLASS;
    m_state->pointer = shape;
    if (isBusy && !wasBusy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    if (wasBusy && !isBusy)
        QApplication::restoreOverrideCursor();
}

} // namespace QuorConversions::QtToolkit
