// Linked into a host with Qt: a finger that asks for the help, where FINGER_ASKS_FOR_HELP says so, types
// 100.0123 into the first box of the dialog and presses OK. A message, no help, or no dialog within ten
// seconds, ends the host with 3.
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

#ifdef FINGER_ASKS_FOR_HELP
constexpr bool asksForHelp = true;
#else
constexpr bool asksForHelp = false;
#endif

void EndHost(const QString& why) {
    std::fprintf(stderr, "the host with Qt: %s\n", why.toUtf8().constData());
    std::_Exit(3);
}

void Type(QLineEdit& box, const QString& text) {
    box.setFocus();
    box.selectAll();
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(&box, &press);
    }
}

/// True when the help is there, a window of its own. The button is pressed when the timer has returned: where
/// a message tells that there is no help, the timer is to see it.
bool HasHelp(QWidget& dialog) {
    static bool asked = false;
    if (!std::exchange(asked, true)) {
        auto* const help = dialog.findChild<QPushButton*>(QStringLiteral("cmdOKCancelHelp(2)"));
        QMetaObject::invokeMethod(help, &QPushButton::click, Qt::QueuedConnection);
    }
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(window) && window->isVisible())
            return true;
    return false;
}

/// True when there was a dialog to press in.
bool PressOK() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog)
        return false;
    if (const auto* const message = qobject_cast<QMessageBox*>(dialog))
        EndHost(message->text());
    auto* const ok = dialog->findChild<QPushButton*>(QStringLiteral("cmdOKCancelHelp(0)"));
    auto* const box = dialog->findChild<QLineEdit*>();
    if (!ok || !box)
        EndHost(QStringLiteral("another dialog: ") + dialog->windowTitle());
    if (asksForHelp && !HasHelp(*dialog))
        return false;
    Type(*box, QStringLiteral("100.0123"));
    ok->click();
    return true;
}

void Watch() {
    constexpr int often = 50;     // milliseconds
    constexpr int patience = 200; // looks
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, looks = 0]() mutable {
        if (PressOK())
            timer->stop();
        else if (++looks == patience)
            EndHost(QStringLiteral("no dialog, or no help"));
    });
    timer->start(often);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
