#include "apps/probe-setup/Tour.h"

#include "QuorConversions/qt/QtSession.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/probe-setup/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;
using QuorIniFile::ToPrintable;

namespace {

QList<QByteArray> LinesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
}

void Print(const QString& text) { std::cout << ToPrintable(FromQt(text)) << '\n'; }
void PrintError(const QString& text) { std::cerr << "probe-setup: " << ToPrintable(FromQt(text)) << '\n'; }

/// A line of a file for the terminal, without the CR of a CRLF.
std::string Printable(const QByteArray& line) {
    const std::string_view bytes(line.constData(), static_cast<std::size_t>(line.size()));
    return ToPrintable(
        QuorIniFile::DecodeBytes(bytes.substr(0, bytes.size() - (bytes.ends_with('\r') ? 1 : 0))));
}

/// Prints the lines in which two texts differ. What a tour changes are values, so that lines stay lines.
bool PrintDifference(const QList<QByteArray>& before, const QList<QByteArray>& after) {
    if (before.size() != after.size())
        return false;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (before[i] != after[i])
            std::cout << "line " << i + 1 << "\n- " << Printable(before[i]) << "\n+ " << Printable(after[i])
                      << '\n';
    }
    return before != after;
}

/// In its dialog the tour looks something up, and makes a mistake.
const QLatin1String kindWithMistake("i90");

/// Lets the program go on until something is so; not for ever. False when it is not so even then.
bool WaitUntil(const std::function<bool()>& isSo) {
    constexpr qint64 longest = 60'000; // milliseconds
    QElapsedTimer timer;
    timer.start();
    while (!isSo() && timer.elapsed() < longest)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return isSo();
}

/// A screen in memory brings no window to the front when the one before it closes.
void ComeToFront(QWidget& window) {
    window.activateWindow();
    WaitUntil([&] { return QApplication::activeWindow() == &window; });
}

/// Whether a button is the cross in a box that comes or goes with the text.
bool IsFading(const QToolButton* button) {
    const auto* const box = qobject_cast<const QLineEdit*>(button->parentWidget());
    const QVariant opacity = button->property("opacity");
    return box && opacity.isValid() && opacity.toReal() != (box->text().isEmpty() ? 0 : 1);
}

void Press(QWidget& widget, int key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

void Type(QWidget& widget, const QString& text) {
    for (const QChar character : text)
        Press(widget, character.toUpper().unicode(), character);
}

/// A person who goes through the program with the keyboard and leaves pictures behind.
class Guide {
public:
    Guide(MainWindow& window, const QString& folder) : m_window(window), m_folder(folder) { LookAgain(); }

    void TakePicture(QWidget& widget, const QString& name) {
        const bool isStill = WaitUntil([&widget] {
            const auto buttons = widget.findChildren<QToolButton*>();
            return std::none_of(buttons.begin(), buttons.end(), IsFading);
        });
        if (!isStill)
            Complain(QStringLiteral("an icon of %1 does not come to rest").arg(name));
        QCoreApplication::processEvents();
        const QString file = m_folder.filePath(
            QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name));
        if (!widget.grab().save(file))
            Complain(QStringLiteral("%1 cannot be written").arg(file));
    }

    /// Finds the probe by its name and edits the first number in its dialog.
    void EditProbe(std::size_t probe, const QString& kind) {
        const QString name = ToQt(m_window.Document().Name(probe));
        auto* const find = m_window.findChild<QLineEdit*>(QStringLiteral("find"));
        ComeToFront(m_window);
        Choose("findProbe");
        Type(*find, name);
        Press(*find, Qt::Key_Down);
        QTreeView& table = m_window.Table();
        while (table.currentIndex().isValid() && table.currentIndex().data().toString() != name &&
               table.indexBelow(table.currentIndex()).isValid())
            Press(table, Qt::Key_Down);
        if (table.currentIndex().data().toString() != name)
            return Complain(QStringLiteral("%1 is not found").arg(name));
        m_kind = kind;
        m_done.clear();
        Choose("edit"); // returns when the dialog is closed
        if (m_done.isEmpty())
            Complain(QStringLiteral("no dialog has opened for %1").arg(name));
        else
            Print(QStringLiteral("%1: %2").arg(name, m_done));
        ComeToFront(m_window);
        Choose("findProbe");
        Press(*find, Qt::Key_Escape);
    }

    /// Chooses an entry of the menus.
    void Choose(const char* action) { m_window.findChild<QAction*>(QString::fromLatin1(action))->trigger(); }

    void Complain(const QString& text) { m_complaints += text; }
    [[nodiscard]] const QStringList& Complaints() const { return m_complaints; }

private:
    void LookAgain() {
        constexpr int often = 20; // milliseconds
        QTimer::singleShot(often, &m_context, [this] { LookAround(); });
    }

    /// Deals with a window that has opened since and has the keyboard.
    void LookAround() {
        LookAgain(); // first: another window may open before this one is left
        QWidget* const modal = QApplication::activeModalWidget();
        if (!modal || modal == m_met)
            return;
        if (QApplication::activeWindow() != modal) { // its keys would go elsewhere
            modal->activateWindow();
            return;
        }
        m_met = modal;
        if (auto* const message = qobject_cast<QMessageBox*>(modal)) {
            if (std::exchange(m_expectsMessage, false))
                TakePicture(*message, QStringLiteral("message"));
            else
                Complain(QStringLiteral("%1 %2")
                             .arg(message->text(), message->informativeText())
                             .replace('\n', ' '));
            message->reject();
        } else {
            EditFirstNumber(*modal);
        }
    }

    /// Types what the dialog cannot accept, and presses OK.
    void MakeMistake(QWidget& dialog, QLineEdit& box) {
        m_expectsMessage = true;
        box.selectAll();
        Type(box, QStringLiteral("0"));
        PressButton(dialog, "cmdOKCancelHelp(0)"); // returns when the message is closed
        if (std::exchange(m_expectsMessage, false))
            Complain(QStringLiteral("%1 accepts 0").arg(dialog.windowTitle()));
        m_met = &dialog;
    }

    /// Presses Help, and closes the window that comes.
    void LookUp(QWidget& dialog) {
        PressButton(dialog, "cmdOKCancelHelp(2)");
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto help = std::find_if(windows.begin(), windows.end(), [this](const QWidget* window) {
            return window->isVisible() && window != &m_window && qobject_cast<const QMainWindow*>(window);
        });
        if (help == windows.end())
            return Complain(QStringLiteral("%1 has opened no help").arg(dialog.windowTitle()));
        if (const auto* const topics = (*help)->findChild<QTreeView*>()) // filled from another thread
            WaitUntil([topics] { return topics->model()->rowCount() > 0; });
        TakePicture(**help, QStringLiteral("help"));
        (*help)->close();
        ComeToFront(dialog);
    }

    static void PressButton(QWidget& dialog, const char* name) {
        if (auto* const button = dialog.findChild<QPushButton*>(QLatin1String(name)))
            Press(*button, Qt::Key_Space, QStringLiteral(" "));
    }

    void EditFirstNumber(QWidget& dialog) {
        const QLocale locale;
        const QList<QLineEdit*> boxes = dialog.findChildren<QLineEdit*>();
        const auto box = std::find_if(boxes.begin(), boxes.end(), [](const QLineEdit* candidate) {
            return candidate->isVisible() && candidate->isEnabled() && !candidate->isReadOnly();
        });
        if (box == boxes.end()) {
            Complain(QStringLiteral("%1 has no box to type in").arg(dialog.windowTitle()));
            Press(dialog, Qt::Key_Escape);
            return;
        }
        (*box)->setFocus(Qt::TabFocusReason);
        const QString old = (*box)->text();
        TakePicture(dialog, m_kind);
        if (m_kind == kindWithMistake) {
            if (QFileInfo::exists(ToQt(QuorConversions::QtToolkit::HelpCollection())))
                LookUp(dialog);
            MakeMistake(dialog, **box);
        }
        const double value = locale.toDouble(old);
        constexpr double alittle = 1.001;
        const QString typed =
            locale.toString(value == 0.0 ? 1.5 : value * alittle, 'g', 9).remove(locale.groupSeparator());
        (*box)->setFocus(Qt::TabFocusReason);
        (*box)->selectAll();
        Type(**box, typed);
        Press(**box, Qt::Key_Return); // moves on
        m_done = QStringLiteral("%1 was %2, is %3").arg((*box)->accessibleName(), old, (*box)->text());
        const QPointer<QWidget> open(&dialog);
        PressButton(dialog, "cmdOKCancelHelp(0)");
        if (open && open->isVisible()) {
            Complain(QStringLiteral("%1 is not accepted").arg(dialog.windowTitle()));
            Press(dialog, Qt::Key_Escape);
        }
    }

    MainWindow& m_window;
    QDir m_folder;
    QObject m_context; // ends the looking
    QPointer<QWidget> m_met;
    QString m_kind; // of the probe whose dialog is expected
    QString m_done; // in the last dialog
    bool m_expectsMessage = false;
    int m_pictures = 0;
    QStringList m_complaints;
};

/// The first probe of the document whose settings go into files with that extension.
std::optional<std::size_t> FirstOfKind(const ProbeDocument& document, const std::wstring& extension) {
    for (std::size_t probe = 0; probe < document.Count(); ++probe) {
        const auto type = document.Type(probe);
        const QuorProbeFile::TypeInfo* const info = type ? QuorProbeFile::FindType(*type) : nullptr;
        if (info && info->extension == extension)
            return probe;
    }
    return std::nullopt;
}

} // namespace

int RunTour(MainWindow& window, const QString& file, const QString& folder) {
    Guide guide(window, folder);
    if (!QDir().mkpath(folder)) {
        PrintError(QStringLiteral("%1 cannot be made").arg(folder));
        return 1;
    }
    const QList<QByteArray> before = LinesOf(file);
    ComeToFront(window);
    if (!window.OpenPath(file)) {
        for (const QString& complaint : guide.Complaints())
            PrintError(complaint);
        return 1;
    }
    guide.TakePicture(window, QStringLiteral("window"));
    QStringList kinds;
    for (const QuorProbeFile::TypeInfo& type : QuorProbeFile::Types()) {
        const QString kind = ToQt(type.extension);
        if (kind.isEmpty() || kinds.contains(kind))
            continue;
        kinds += kind;
        if (const auto probe = FirstOfKind(window.Document(), type.extension))
            guide.EditProbe(*probe, kind);
        else
            guide.Complain(QStringLiteral("%1 has no probe of the kind %2").arg(file, kind));
    }
    guide.TakePicture(window, QStringLiteral("window-changed"));
    guide.Choose("save");
    std::cout << '\n';
    Print(QStringLiteral("What has changed in %1:").arg(file));
    if (!PrintDifference(before, LinesOf(file)))
        guide.Complain(QStringLiteral("%1 is not as expected").arg(file));
    for (const QString& complaint : guide.Complaints())
        PrintError(complaint);
    return guide.Complaints().isEmpty() ? 0 : 1;
}

} // namespace ProbeSetup
