// inih through its C++ class, which keeps what it reads and cannot write.

#include "bench/ini/Peer.h"

#include <INIReader.h>

#include <optional>

namespace Bench {
namespace {

class Inih final : public KeepingPeer<std::string> {
public:
    void Prepare(const Workload& workload) override {
        names.Fill(workload, [](std::string name) { return name; });
    }
    void Load(const std::string& path) override {
        m_reader.emplace(path);
        Require(m_reader->ParseError() == 0, "the file cannot be read");
    }
    void BuildAndSave(const std::string& /*path*/, const Workload& /*workload*/) override {
        Fail("unsupported");
    }
    void LoadChangeAndSave(const std::string& /*path*/, std::size_t /*probe*/, double /*value*/) override {
        Fail("unsupported");
    }

private:
    void ReadProbe(std::size_t probe, CheckSum& sum) override {
        const std::string& section = names.sections[probe];
        const std::string& settings = names.settings[probe];
        sum.AddText(m_reader->Get(section, "Version", "").size());
        sum.Add(m_reader->GetInteger(section, "ConversionType", -1));
        sum.AddText(m_reader->Get(settings, "Version", "").size());
        sum.Add(m_reader->GetInteger(settings, "NumCoefficients", -1));
        sum.Add(long{m_reader->GetBoolean(settings, "UsePolynomial", true)});
        for (const char* const key : coefficientKeys)
            sum.Add(m_reader->GetReal(settings, key, 0));
    }

    std::optional<INIReader> m_reader;
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<Inih>(); }

} // namespace Bench
