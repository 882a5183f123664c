#pragma once

#include "bench/Workload.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Bench {

/// What was read, as one number: the sum of the bits of every double, of every count and of every text's
/// length. Any order of reading gives the same, one wrong bit gives another.
class CheckSum {
public:
    void Add(double value) { m_sum += std::bit_cast<std::uint64_t>(value); }
    void Add(long value) { m_sum += static_cast<std::uint64_t>(value); }
    void AddText(std::size_t length) { m_sum += length; }
    [[nodiscard]] std::uint64_t Value() const { return m_sum; }

private:
    std::uint64_t m_sum = 0;
};

/// A reader and writer of INI files as a host uses it, in the way that its documentation shows. One object
/// does one task.
class Peer {
public:
    Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer() = default;

    /// The mark of a comment that the peer knows.
    [[nodiscard]] virtual char CommentMark() const { return ';'; }
    /// Makes the names of the sections in the kind of text that the peer takes. Not timed.
    virtual void Prepare(const Workload& workload) = 0;
    /// Reads the file, so that all of its values can be asked for.
    virtual void Load(const std::string& path) = 0;
    /// Asks for all keys of all probes, each as what it is: text, whole number, flag or double.
    virtual std::uint64_t LoadAndReadAll(const std::string& path) = 0;
    virtual std::uint64_t LoadAndReadOne(const std::string& path, std::size_t probe) = 0;
    /// Puts the values of all probes into a new file.
    virtual void BuildAndSave(const std::string& path, const Workload& workload) = 0;
    virtual void LoadChangeAndSave(const std::string& path, std::size_t probe, double value) = 0;
};

/// One a worker program.
std::unique_ptr<Peer> MakePeer();

[[noreturn]] inline void Fail(const std::string& what) { throw std::runtime_error(what); }
inline void Require(bool fine, const char* what) {
    if (!fine)
        Fail(what);
}

/// The key of a coefficient that LoadChangeAndSave changes.
inline constexpr const char* changedKey = "Coefficients2";
inline constexpr const char* coefficientKeys[] = {"Coefficients0", "Coefficients1", "Coefficients2",
                                                  "Coefficients3"};

/// The names of the sections of all probes, in a kind of text of the peer's own.
template <class Text>
struct Names {
    std::vector<Text> sections, settings;

    template <class Convert>
    void Fill(const Workload& workload, const Convert& convert) {
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
            sections.push_back(convert(Workload::Section(probe)));
            settings.push_back(convert(Workload::SettingsSection(probe)));
        }
    }
};

/// What all peers that keep a file in memory have in common: they read it probe by probe.
template <class Text>
class KeepingPeer : public Peer {
public:
    std::uint64_t LoadAndReadAll(const std::string& path) override {
        Load(path);
        CheckSum sum;
        for (std::size_t probe = 0; probe < names.sections.size(); ++probe)
            ReadProbe(probe, sum);
        return sum.Value();
    }
    std::uint64_t LoadAndReadOne(const std::string& path, std::size_t probe) override {
        Load(path);
        CheckSum sum;
        ReadProbe(probe, sum);
        return sum.Value();
    }

protected:
    virtual void ReadProbe(std::size_t probe, CheckSum& sum) = 0;

    Names<Text> names;
};

} // namespace Bench
