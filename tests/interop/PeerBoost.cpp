// Boost's property tree with its INI parser.

#include "tests/interop/Peer.h"

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>

namespace Interop {
namespace {

using boost::property_tree::ptree;

class Tree final : public Peer {
public:
    void Open(const std::string& path) override {
        Create(path);
        boost::property_tree::read_ini(path, m_tree);
    }
    void Create(const std::string& path) override { m_path = path; }
    std::string Text(const std::string& section, const std::string& key) override {
        return m_tree.get<std::string>(Path(section, key));
    }
    double Double(const std::string& section, const std::string& key) override {
        return m_tree.get<double>(Path(section, key));
    }
    long Integer(const std::string& section, const std::string& key) override {
        return m_tree.get<long>(Path(section, key));
    }
    void SetText(const std::string& section, const std::string& key, const std::string& value) override {
        m_tree.put(Path(section, key), value);
    }
    void SetDouble(const std::string& section, const std::string& key, double value) override {
        m_tree.put(Path(section, key), value);
    }
    void SetInteger(const std::string& section, const std::string& key, long value) override {
        m_tree.put(Path(section, key), value);
    }
    void Save() override { boost::property_tree::write_ini(m_path, m_tree); }

private:
    static ptree::path_type Path(const std::string& section, const std::string& key) {
        return ptree::path_type(section + '\n' + key, '\n'); // no name has a line break
    }

    ptree m_tree;
    std::string m_path;
};

} // namespace

std::unique_ptr<Peer> MakeBoost() { return std::make_unique<Tree>(); }

} // namespace Interop
