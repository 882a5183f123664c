#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"

#include <iostream>

namespace quorconv {

using namespace QuorProbeFile;

namespace {

class Get final : public Command {
    std::wstring m_path;
    std::wstring m_section;
    std::wstring m_key;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.One("SECTION", m_section, Meaning::Section, "The section of the probe");
        arguments.One("KEY", m_key, Meaning::Key, "A key as \"show\" prints it, or \"ConversionType\"");
    }

    ExitCode Run() override {
        HostFile file(m_path);
        const Probe probe = ReadProbe(*file, m_section);
        Duplicates(*file).Tell(m_section);
        std::cout << QuorIniFile::ToPrintable(ValueOf(probe)) << '\n';
        return fine;
    }

    [[nodiscard]] std::wstring ValueOf(const Probe& probe) const {
        if (EqualFolded(m_key, QuorConversions::conversionTypeKey))
            return std::to_wstring(probe.Conversion().ConversionType());
        std::wstring meant;
        if (probe.Settings()) {
            const auto image = RecordImage::Of(*probe.Settings());
            if (const RecordImage::Entry* const entry = image->Find(m_key))
                return ToText(entry->value);
            meant = MeantKey(probe, *image, m_key);
        }
        throw Problem{Place(m_path, m_section) + L" " + m_key + L": there is no such key in this record" +
                      meant};
    }
};

} // namespace

const CommandRow getRow{"get",
                        "Print one value of a probe",
                        {"quorconv get laboratory.ini \"Probe 9 PRT-1182\" Coefficients0"},
                        Create<Get>};

} // namespace quorconv
