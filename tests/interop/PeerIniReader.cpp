// inih; it cannot write.

#include "tests/interop/Peer.h"

#include <INIReader.h>

#include <optional>
#include <stdexcept>

namespace Interop {
namespace {

class Reader final : public Peer {
public:
    void Open(const std::string& path) override {
        m_reader.emplace(path);
        if (m_reader->ParseError() != 0)
            throw std::runtime_error("line " + std::to_string(m_reader->ParseError()) + " is refused");
    }
    std::string Text(const std::string& section, const std::string& key) override {
        return m_reader->Get(section, key, "missing");
    }
    double Double(const std::string& section, const std::string& key) override {
        return m_reader->GetReal(section, key, 0);
    }
    long Integer(const std::string& section, const std::string& key) override {
        return m_reader->GetInteger(section, key, 0);
    }
    void Create(const std::string& /*path*/) override { Unable(); }
    void SetText(const std::string& /*s*/, const std::string& /*k*/, const std::string& /*v*/) override {
        Unable();
    }
    void SetDouble(const std::string& /*section*/, const std::string& /*key*/, double /*value*/) override {
        Unable();
    }
    void SetInteger(const std::string& /*section*/, const std::string& /*key*/, long /*value*/) override {
        Unable();
    }
    void Save() override { Unable(); }

private:
    [[noreturn]] static void Unable() { throw std::logic_error("inih cannot write"); }

    std::optional<INIReader> m_reader;
};

} // namespace

std::unique_ptr<Peer> MakeIniReader() { return std::make_unique<Reader>(); }

} // namespace Interop
