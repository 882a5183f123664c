#include "apps/probe-setup/MessageBox.h"

#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/QuorError.h"
#include "apps/probe-setup/Wording.h"

#include <QLabel>
#include <QPushButton>

#include <exception>

namespace ProbeSetup {

using namespace QuorConversions;
using QtToolkit::ToQt;

MessageBox::MessageBox(QWidget* parent, Icon icon, const QString& text, const QString& more,
                       StandardButtons buttons)
    : QMessageBox(icon, tr("Probe Setup"), text, buttons, parent) {
    setInformativeText(more);
    for (QLabel* const label : findChildren<QLabel*>()) // its own format is that of the first text alone
        label->setTextFormat(Qt::PlainText);
    if (button(Ok))
        button(Ok)->setText(ToQt(TableText(IDS_OK_BUTTON)));
    if (button(Cancel))
        button(Cancel)->setText(ToQt(TableText(IDS_CANCEL_BUTTON)));
    if (button(Save))
        button(Save)->setText(tr("&Save"));
    if (button(Discard))
        button(Discard)->setText(tr("&Discard"));
}

bool RunOrTell(QWidget* parent, const QString& what, const std::function<void()>& action) {
    QString reason;
    try {
        action();
        return true;
    } catch (const QuorIniFile::QuorError& error) {
        reason = ToQt(DescriptionOf(error));
    } catch (const DocumentError& error) {
        reason = Wording::Of(error);
    } catch (const std::exception& error) {
        reason = QString::fromUtf8(error.what());
    }
    MessageBox(parent, QMessageBox::Critical, what, reason).exec();
    return false;
}

} // namespace ProbeSetup
