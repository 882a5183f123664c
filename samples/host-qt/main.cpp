// Edits one probe of a host's file. Usage: host FILE SECTION
#include <QApplication>
#include <QuorConversions/core/CQuorConversion.h>
#include <QuorConversions/qt/QtPlatform.h>
#include <QuorConversions/qt/QtSession.h>
using namespace QuorConversions;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const std::wstring file = QApplication::arguments().value(1).toStdWString();
    const std::wstring section = QApplication::arguments().value(2).toStdWString();
    std::shared_ptr<INIFile> none; // each call opens the file for itself
    CQuorConversion probe(std::make_shared<QtToolkit::QtPlatform>());
    probe.SetHelpFile(QtToolkit::HelpCollection());
    if (probe.ReadFromFile(none, file, section) && probe.Edit()) // failures are reported to the user
        probe.WriteToFile(none, file, section);
}
