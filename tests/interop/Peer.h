#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Interop {

/// Another reader and writer of INI files, or our own, used as its documentation says. One object, one file.
/// What it refuses is raised as std::exception.
class Peer {
public:
    Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer() = default;

    virtual void Open(const std::string& path) = 0;
    /// Makes a file that is not there yet.
    virtual void Create(const std::string& path) = 0;
    [[nodiscard]] virtual std::string Text(const std::string& section, const std::string& key) = 0;
    [[nodiscard]] virtual double Double(const std::string& section, const std::string& key) = 0;
    [[nodiscard]] virtual long Integer(const std::string& section, const std::string& key) = 0;
    virtual void SetText(const std::string& section, const std::string& key, const std::string& value) = 0;
    virtual void SetDouble(const std::string& section, const std::string& key, double value) = 0;
    virtual void SetInteger(const std::string& section, const std::string& key, long value) = 0;
    virtual void Save() = 0;
};

using MakePeer = std::unique_ptr<Peer> (*)();

struct PeerRow {
    const char* name;
    const char* package; ///< the Debian package that it comes in
    bool isOurs;
    bool writes;
    bool writesExactDoubles; ///< as numbers; all can write them as text
    bool keepsBlanks;        ///< writes a section's name with blanks as such
    MakePeer make;           ///< null where it is not installed
};

/// All that we care for; ours is the first.
[[nodiscard]] const std::vector<PeerRow>& Peers();

} // namespace Interop
