// Ours.

#include "QuorIniFile/IniStore.h"
#include "bench/ini/Peer.h"

namespace Bench {
namespace {

std::wstring Widen(const std::string& text) { return {text.begin(), text.end()}; }

constexpr const wchar_t* wideCoefficientKeys[] = {L"Coefficients0", L"Coefficients1", L"Coefficients2",
                                                  L"Coefficients3"};

class Quor final : public KeepingPeer<std::wstring> {
public:
    void Prepare(const Workload& workload) override { names.Fill(workload, Widen); }

    /// The store loads with the first read.
    void Load(const std::string& path) override {
        m_store.SetFileName(Widen(path));
        m_store.SetSection(names.sections.front());
        Require(m_store.ReadString(L"Version", m_version), "Version");
    }

    void BuildAndSave(const std::string& path, const Workload& workload) override {
        m_store.SetFileName(Widen(path));
        m_store.Hold();
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
            m_store.SetSection(names.sections[probe]);
            m_store.WriteString(L"Version", L"1.0");
            m_store.WriteInteger(L"ConversionType", 2, L"");
            m_store.SetSection(names.settings[probe]);
            m_store.WriteString(L"Version", L"1.0");
            m_store.WriteInteger(L"NumCoefficients", 4, L"");
            m_store.WriteBoolean(L"UsePolynomial", false);
            for (std::size_t i = 0; i < 4; ++i)
                m_store.WriteDouble(wideCoefficientKeys[i], workload.CoefficientsOf(probe)[i], L"");
        }
        m_store.Release();
    }

    void LoadChangeAndSave(const std::string& path, std::size_t probe, double value) override {
        m_store.SetFileName(Widen(path));
        m_store.SetSection(names.settings[probe]);
        m_store.WriteDouble(Widen(changedKey), value, L"");
    }

private:
    void ReadProbe(std::size_t probe, CheckSum& sum) override {
        m_store.SetSection(names.sections[probe]);
        ReadVersion(sum);
        ReadInteger(L"ConversionType", sum);
        m_store.SetSection(names.settings[probe]);
        ReadVersion(sum);
        ReadInteger(L"NumCoefficients", sum);
        bool flag = true;
        Require(m_store.ReadBoolean(L"UsePolynomial", flag), "UsePolynomial");
        sum.Add(long{flag});
        for (const wchar_t* const key : wideCoefficientKeys) {
            double value = 0;
            Require(m_store.ReadDouble(key, value), "Coefficients");
            sum.Add(value);
        }
    }
    void ReadVersion(CheckSum& sum) {
        Require(m_store.ReadString(L"Version", m_version), "Version");
        sum.AddText(m_version.size());
    }
    void ReadInteger(const wchar_t* key, CheckSum& sum) {
        std::int16_t value = 0;
        Require(m_store.ReadInteger(key, value), "a count");
        sum.Add(long{value});
    }

    QuorIniFile::IniStore m_store;
    std::wstring m_version;
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<Quor>(); }

} // namespace Bench
