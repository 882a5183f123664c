// SimpleIni.

#include "bench/ini/Peer.h"

#define SI_NO_CONVERSION // Debian leaves out the converter of the default, which bytes do not need
#include <SimpleIni.h>

#include <charconv>

namespace Bench {
namespace {

class SimpleIni final : public KeepingPeer<std::string> {
public:
    void Prepare(const Workload& workload) override {
        names.Fill(workload, [](std::string name) { return name; });
    }
    void Load(const std::string& path) override {
        Require(m_ini.LoadFile(path.c_str()) == SI_OK, "the file cannot be read");
    }
    void BuildAndSave(const std::string& path, const Workload& workload) override {
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
            const char* const section = names.sections[probe].c_str();
            const char* const settings = names.settings[probe].c_str();
            m_ini.SetValue(section, "Version", "1.0");
            m_ini.SetLongValue(section, "ConversionType", 2);
            m_ini.SetValue(settings, "Version", "1.0");
            m_ini.SetLongValue(settings, "NumCoefficients", 4);
            m_ini.SetBoolValue(settings, "UsePolynomial", false);
            for (std::size_t i = 0; i < 4; ++i)
                SetDouble(settings, coefficientKeys[i], workload.CoefficientsOf(probe)[i]);
        }
        Require(m_ini.SaveFile(path.c_str()) == SI_OK, "the file cannot be written");
    }
    void LoadChangeAndSave(const std::string& path, std::size_t probe, double value) override {
        Load(path);
        SetDouble(names.settings[probe].c_str(), changedKey, value);
        Require(m_ini.SaveFile(path.c_str()) == SI_OK, "the file cannot be written");
    }

private:
    void ReadProbe(std::size_t probe, CheckSum& sum) override {
        const char* const section = names.sections[probe].c_str();
        const char* const settings = names.settings[probe].c_str();
        sum.AddText(std::char_traits<char>::length(m_ini.GetValue(section, "Version", "")));
        sum.Add(m_ini.GetLongValue(section, "ConversionType", -1));
        sum.AddText(std::char_traits<char>::length(m_ini.GetValue(settings, "Version", "")));
        sum.Add(m_ini.GetLongValue(settings, "NumCoefficients", -1));
        sum.Add(long{m_ini.GetBoolValue(settings, "UsePolynomial", true)});
        for (const char* const key : coefficientKeys)
            sum.Add(m_ini.GetDoubleValue(settings, key, 0));
    }

    /// Its own SetDoubleValue writes six decimals, with which the coefficients would not come back.
    void SetDouble(const char* section, const char* key, double value) {
        std::array<char, 32> digits{};
        std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
        m_ini.SetValue(section, key, digits.data());
    }

    CSimpleIniA m_ini;
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<SimpleIni>(); }

} // namespace Bench
