#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/RecordImage.h"
#include "apps/quorconv/Probe.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quorconv {

/// A probe with its values.
struct ProbeValues {
    std::wstring section;
    std::int32_t code = 0;
    std::wstring name; ///< of the conversion
    std::vector<QuorProbeFile::RecordImage::Entry> entries;
    /// Probes with the same number, which is not 0, have the same but for the section, numbers and texts.
    std::size_t shape = 0;

    /// Null for a key that the record does not have.
    [[nodiscard]] const QuorProbeFile::Value* Find(const std::wstring& path) const;
};

/// Whether both have the same type and the same values, bit for bit.
[[nodiscard]] bool SameValues(const ProbeValues& a, const ProbeValues& b);

/// The values of a conversion.
[[nodiscard]] ProbeValues ValuesOf(const Probe& probe);

/// Reads the values of probes of which nothing is wrong, many times as fast as by a conversion of each.
///
/// Whole numbers and flags alone decide which keys a record has, and what is wrong with it as a whole; the
/// numbers and texts behind the other keys are taken over as they are. So a conversion reads only the first
/// record of each shape, which is its type with those whole numbers and flags.
class ProbeReader {
public:
    /// Null for a probe with which something is wrong. Valid until the next call.
    [[nodiscard]] const ProbeValues* Find(QuorProbeFile::ProbeFile& file, const std::wstring& section);
    /// A record of a shape that was read, with the values that `fill` has given it: numbers and texts alone.
    /// Null when it has taken none of that type. Valid until the next call.
    [[nodiscard]] const ProbeValues* Make(std::int32_t code, const std::function<bool(ProbeValues&)>& fill);
    /// Raises Problem for a probe that the library cannot read wholly. Valid until the next call.
    [[nodiscard]] const ProbeValues& Read(QuorProbeFile::ProbeFile& file, const std::wstring& section);

private:
    struct Key {
        std::wstring section; ///< behind the name of the probe; empty for that of the key before
        std::wstring name;
    };
    struct Shape {
        ProbeValues probe; // the one that was read last
        std::vector<Key> keys;
    };
    template <class IsMeant>
    [[nodiscard]] const ProbeValues* First(std::int32_t code, const IsMeant& isMeant);
    [[nodiscard]] bool Fill(Shape& shape, QuorIniFile::IniStore& store, const std::wstring& section);
    void Learn(QuorIniFile::IniStore& store);

    std::vector<std::unique_ptr<Shape>> m_shapes; // that of the probe that was read last comes first
    std::size_t m_last = 0;                       // number of a shape
    ProbeValues m_other;
    std::wstring m_section;
};

} // namespace quorconv
