// probe-edit: one probe of an INI file in its dialog, on the screen. quorconv starts it, and so can any other
// program that wants an editor for a probe.

#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtSession.h"
#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Records.h"

#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace quorconv;

const char* const usage = "Usage: probe-edit FILE SECTION\n"
                          "Edits the probe of that section in its dialog. What was accepted is written; what "
                          "another program has\nchanged meanwhile too is told, and nothing is written then.\n"
                          "Exit codes: 0 accepted or cancelled, 1 a problem, 2 wrong usage or no display.\n";

/// The dialog is shown by the platform of the screen. The probe itself stays with the platform that logs:
/// its messages decide what is told.
void EditOnScreen(const std::wstring& path, const std::wstring& section) {
    QuorProbeFile::ProbeFile file(path);
    const auto present = file.Find(section);
    Probe probe = ReadProbeToEdit(file, present ? present->section : section);
    const QuorConversions::QtToolkit::QtSession session("probe-edit");
    QuorConversions::CQuorConversion shown(session.Platform());
    shown.SetConversionType(probe.Conversion().ConversionType());
    using QuorProbeFile::RecordImage;
    RecordImage::Apply(RecordImage::Of(*probe.Settings()), *shown.Settings());
    if (!shown.Edit())
        return;
    RecordImage::Apply(RecordImage::Of(*shown.Settings()), *probe.Settings());
    QuorProbeFile::ProbeFile now(path);
    WriteEdited(probe, now);
}

int Refuse(const char* why) {
    std::cerr << "probe-edit: " << why << '\n' << usage;
    return wrongUsage;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<const char*> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && std::strcmp(arguments.front(), "--help") == 0) {
        std::cout << usage;
        return fine;
    }
    if (arguments.size() == 1 && std::strcmp(arguments.front(), "--version") == 0) {
        std::cout << "probe-edit " PROBE_EDIT_VERSION "\n";
        return fine;
    }
    if (!arguments.empty() && std::strcmp(arguments.front(), "--") == 0)
        arguments.erase(arguments.begin());
    if (arguments.size() != 2)
        return Refuse("FILE and SECTION expected");
    const auto path = QuorIniFile::FromUtf8(arguments[0]);
    const auto section = QuorIniFile::FromUtf8(arguments[1]);
    if (!path || !section)
        return Refuse("an argument is not UTF-8 text");
    if (!QuorConversions::QtToolkit::HasDisplay())
        return Refuse("there is no display");
    try {
        EditOnScreen(*path, *section);
        return fine;
    } catch (...) {
        PrintFailure(CurrentFailure(), "probe-edit");
        return problemFound;
    }
}
