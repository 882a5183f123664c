// inih as a stream: each key is handed to a function while the file is read, and nothing is kept.

#include "bench/ini/Peer.h"

#include <ini.h>

#include <cstdlib>
#include <cstring>

namespace Bench {
namespace {

/// What a handler makes of a key.
struct Reading {
    CheckSum sum;
    std::string section, settings; // of the one probe that is wanted; empty: every probe is
};

int Skip(void* user, const char* /*section*/, const char* /*name*/, const char* /*value*/) {
    ++*static_cast<long*>(user);
    return 1;
}

int Take(void* user, const char* section, const char* name, const char* value) {
    auto& reading = *static_cast<Reading*>(user);
    if (!reading.section.empty() && reading.section != section && reading.settings != section)
        return 1;
    if (std::strncmp(name, "Coefficients", 12) == 0)
        reading.sum.Add(std::strtod(value, nullptr));
    else if (std::strcmp(name, "Version") == 0)
        reading.sum.AddText(std::strlen(value));
    else if (std::strcmp(name, "UsePolynomial") == 0)
        reading.sum.Add(long{std::strcmp(value, "True") == 0});
    else
        reading.sum.Add(std::strtol(value, nullptr, 10));
    return 1;
}

class InihStream final : public Peer {
public:
    void Prepare(const Workload& /*workload*/) override {}
    void Load(const std::string& path) override {
        long keys = 0;
        Require(ini_parse(path.c_str(), Skip, &keys) == 0 && keys > 0, "the file cannot be read");
    }
    std::uint64_t LoadAndReadAll(const std::string& path) override { return Read(path, {}); }
    std::uint64_t LoadAndReadOne(const std::string& path, std::size_t probe) override {
        return Read(path, {{}, Workload::Section(probe), Workload::SettingsSection(probe)});
    }
    void BuildAndSave(const std::string& /*path*/, const Workload& /*workload*/) override {
        Fail("unsupported");
    }
    void LoadChangeAndSave(const std::string& /*path*/, std::size_t /*probe*/, double /*value*/) override {
        Fail("unsupported");
    }

private:
    static std::uint64_t Read(const std::string& path, Reading reading) {
        Require(ini_parse(path.c_str(), Take, &reading) == 0, "the file cannot be read");
        return reading.sum.Value();
    }
};

} // namespace

std::unique_ptr<Peer> MakePeer() { return std::make_unique<InihStream>(); }

} // namespace Bench
