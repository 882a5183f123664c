#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/Utf8.h"
#include "tests/interop/Peer.h"

#include <stdexcept>

namespace Interop {
namespace {

std::wstring Wide(const std::string& text) { return QuorIniFile::FromUtf8(text).value(); }

class Quor final : public Peer {
public:
    void Open(const std::string& path) override {
        Create(path);
        std::wstring value;
        static_cast<void>(m_store.ReadString(L"", value));
    }
    void Create(const std::string& path) override {
        m_store.SetFileName(Wide(path));
        m_store.Hold();
    }
    std::string Text(const std::string& section, const std::string& key) override {
        std::wstring value;
        Require(In(section).ReadString(Wide(key), value), key);
        return QuorIniFile::ToUtf8(value);
    }
    double Double(const std::string& section, const std::string& key) override {
        double value = 0;
        Require(In(section).ReadDouble(Wide(key), value), key);
        return value;
    }
    long Integer(const std::string& section, const std::string& key) override {
        std::int16_t value = 0;
        Require(In(section).ReadInteger(Wide(key), value), key);
        return value;
    }
    void SetText(const std::string& section, const std::string& key, const std::string& value) override {
        In(section).WriteString(Wide(key), Wide(value));
    }
    void SetDouble(const std::string& section, const std::string& key, double value) override {
        In(section).WriteDouble(Wide(key), value, L"");
    }
    void SetInteger(const std::string& section, const std::string& key, long value) override {
        In(section).WriteInteger(Wide(key), static_cast<std::int16_t>(value), L"");
    }
    void Save() override { m_store.Release(); }

private:
    QuorIniFile::IniStore& In(const std::string& section) {
        m_store.SetSection(Wide(section));
        return m_store;
    }
    static void Require(bool found, const std::string& key) {
        if (!found)
            throw std::runtime_error("there is no " + key);
    }

    QuorIniFile::IniStore m_store;
};

} // namespace

std::unique_ptr<Peer> MakeQuor() { return std::make_unique<Quor>(); }

} // namespace Interop
