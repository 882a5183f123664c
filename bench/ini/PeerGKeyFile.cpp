// GLib's GKeyFile. It knows '#' comments only, so it gets the file that has these.

#include "bench/ini/Peer.h"

#include <glib.h>

namespace Bench {
namespace {

class GLibKeyFile final : public KeepingPeer<std::string> {
public:
    ~GLibKeyFile() override { g_key_file_free(m_file); }

    [[nodiscard]] char CommentMark() const override { return '#'; }
    void Prepare(const Workload& workload) override {
        names.Fill(workload, [](std::string name) { return name; });
    }
    void Load(const std::string& path) override {
        Require(g_key_file_load_from_file(m_file, path.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr) != FALSE,
                "the file cannot be read");
    }
    void BuildAndSave(const std::string& path, const Workload& workload) override {
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
            const char* const section = names.sections[probe].c_str();
            const char* const settings = names.settings[probe].c_str();
            g_key_file_set_string(m_file, section, "Version", "1.0");
            g_key_file_set_integer(m_file, section, "ConversionType", 2);
            g_key_file_set_string(m_file, settings, "Version", "1.0");
            g_key_file_set_integer(m_file, settings, "NumCoefficients", 4);
            g_key_file_set_boolean(m_file, settings, "UsePolynomial", FALSE);
            for (std::size_t i = 0; i < 4; ++i)
                g_key_file_set_double(m_file, settings, coefficientKeys[i],
                                      workload.CoefficientsOf(probe)[i]);
        }
        Save(path);
    }
    void LoadChangeAndSave(const std::string& path, std::size_t probe, double value) override {
        Load(path);
        g_key_file_set_double(m_file, names.settings[probe].c_str(), changedKey, value);
        Save(path);
    }

private:
    void ReadProbe(std::size_t probe, CheckSum& sum) override {
        const char* const section = names.sections[probe].c_str();
        const char* const settings = names.settings[probe].c_str();
        AddVersion(section, sum);
        sum.Add(long{g_key_file_get_integer(m_file, section, "ConversionType", nullptr)});
        AddVersion(settings, sum);
        sum.Add(long{g_key_file_get_integer(m_file, settings, "NumCoefficients", nullptr)});
        // "False" is no flag to it, which knows "true" and "false" only: it is read as text.
        char* const flag = g_key_file_get_string(m_file, settings, "UsePolynomial", nullptr);
        sum.Add(long{g_strcmp0(flag, "True") == 0});
        g_free(flag);
        for (const char* const key : coefficientKeys)
            sum.Add(g_key_file_get_double(m_file, settings, key, nullptr));
    }
    void AddVersion(const char* section, CheckSum& sum) {
        char* const version = g_key_file_get_string(m_file, section, "Version", nullptr);
        Require(version != nullptr, "Version");
        sum.AddText(std::char_traits<char>::length(version));
        g_free(version);
    }
    void Save(const std::string& path) {
        Require(g_key_file_save_to_file(m_file, path.c_str(), nullptr) != FALSE,
                "the file cannot be written");
    }

    GKeyFile* m_file = g_key_file_new();
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<GLibKeyFile>(); }

} // namespace Bench
