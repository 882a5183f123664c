#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QString>

#include <functional>

namespace ProbeSetup {

/// A message in plain text, because names of probes and files may look like mark-up. Its buttons are in the
/// words of the conversions' dialogs; Qt's own are in English where its translations are not installed.
class MessageBox final : public QMessageBox {
    Q_DECLARE_TR_FUNCTIONS(MessageBox)

public:
    MessageBox(QWidget* parent, Icon icon, const QString& text, const QString& more = {},
               StandardButtons buttons = Ok);
};

/// Runs what may fail. A failure is shown as `what`, with its reason; False then.
bool RunOrTell(QWidget* parent, const QString& what, const std::function<void()>& action);

} // namespace ProbeSetup
