// Boost's property tree with its INI parser.

#include "bench/ini/Peer.h"

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>

#include <utility>

namespace Bench {
namespace {

using boost::property_tree::ptree;

class Boost final : public KeepingPeer<std::string> {
public:
    void Prepare(const Workload& workload) override {
        names.Fill(workload, [](std::string name) { return name; });
    }
    void Load(const std::string& path) override { boost::property_tree::read_ini(path, m_tree); }
    void BuildAndSave(const std::string& path, const Workload& workload) override {
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
            ptree section;
            section.put("Version", "1.0");
            section.put("ConversionType", 2);
            m_tree.push_back({names.sections[probe], std::move(section)});
            ptree settings;
            settings.put("Version", "1.0");
            settings.put("NumCoefficients", 4);
            settings.put("UsePolynomial", false);
            for (std::size_t i = 0; i < 4; ++i)
                settings.put(coefficientKeys[i], workload.CoefficientsOf(probe)[i]);
            m_tree.push_back({names.settings[probe], std::move(settings)});
        }
        boost::property_tree::write_ini(path, m_tree);
    }
    void LoadChangeAndSave(const std::string& path, std::size_t probe, double value) override {
        Load(path);
        m_tree.get_child(names.settings[probe]).put(changedKey, value);
        boost::property_tree::write_ini(path, m_tree);
    }

private:
    void ReadProbe(std::size_t probe, CheckSum& sum) override {
        const ptree& section = m_tree.get_child(names.sections[probe]);
        sum.AddText(section.get<std::string>("Version").size());
        sum.Add(section.get<long>("ConversionType"));
        const ptree& settings = m_tree.get_child(names.settings[probe]);
        sum.AddText(settings.get<std::string>("Version").size());
        sum.Add(settings.get<long>("NumCoefficients"));
        // Its flags are "true" and "false" in small letters: ours is read as text.
        sum.Add(long{settings.get<std::string>("UsePolynomial") == "True"});
        for (const char* const key : coefficientKeys)
            sum.Add(settings.get<double>(key));
    }

    ptree m_tree;
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<Boost>(); }

} // namespace Bench
