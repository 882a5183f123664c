// SimpleIni, with UTF-8 text.

#include "tests/interop/Peer.h"

#define SI_NO_CONVERSION // Debian leaves out the converter of the default, which bytes do not need
#include <SimpleIni.h>

#include <stdexcept>

namespace Interop {
namespace {

class SimpleIni final : public Peer {
public:
    void Open(const std::string& path) override {
        Create(path);
        Require(m_ini.LoadFile(path.c_str()));
    }
    void Create(const std::string& path) override { m_path = path; }
    std::string Text(const std::string& section, const std::string& key) override {
        return m_ini.GetValue(section.c_str(), key.c_str(), "missing");
    }
    double Double(const std::string& section, const std::string& key) override {
        return m_ini.GetDoubleValue(section.c_str(), key.c_str());
    }
    long Integer(const std::string& section, const std::string& key) override {
        return m_ini.GetLongValue(section.c_str(), key.c_str());
    }
    void SetText(const std::string& section, const std::string& key, const std::string& value) override {
        m_ini.SetValue(section.c_str(), key.c_str(), value.c_str());
    }
    void SetDouble(const std::string& section, const std::string& key, double value) override {
        m_ini.SetDoubleValue(section.c_str(), key.c_str(), value);
    }
    void SetInteger(const std::string& section, const std::string& key, long value) override {
        m_ini.SetLongValue(section.c_str(), key.c_str(), value);
    }
    void Save() override { Require(m_ini.SaveFile(m_path.c_str())); }

private:
    static void Require(SI_Error result) {
        if (result < 0)
            throw std::runtime_error("error " + std::to_string(result));
    }

    CSimpleIniA m_ini;
    std::string m_path;
};

} // namespace

std::unique_ptr<Peer> MakeSimpleIni() { return std::make_unique<SimpleIni>(); }

} // namespace Interop
