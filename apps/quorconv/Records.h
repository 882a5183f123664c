#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/RecordImage.h"
#include "QuorProbeFile/RecordReference.h"
#include "apps/quorconv/Arguments.h"
#include "apps/quorconv/Probe.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorconv {

/// A KEY=VALUE of the command line, or of a line of steps.
struct Assignment {
    std::wstring key;
    std::wstring value;
    bool completes = false; ///< there is no such key in the file, or none that can be read
    std::optional<QuorProbeFile::Value> parsed = std::nullopt; ///< where somebody has read the text already
};

/// What another program says of a probe: its section, its type, and values by the keys of its record.
struct GivenProbe {
    std::wstring section;
    std::wstring type;
    std::vector<Assignment> values;
    std::vector<std::wstring> empty;      ///< keys whose fields in a table are empty: they keep their values
    std::vector<std::wstring> emptyTexts; ///< those of them that are texts, which are empty in a new probe
};

/// Each text as a KEY=VALUE; UsageError for one that is none, and for a key that is given twice.
[[nodiscard]] std::vector<Assignment> Assignments(const std::vector<std::wstring>& texts);

/// What values may be given.
struct ValueRules {
    bool allowsNan = false; ///< NaN and infinities, too
    /// Values that are not 0 may be lost to a smaller count or another range, or get another meaning by a
    /// flag, type or scale.
    bool drops = false;
    /// The values come from a table or JSON, which carry all of them. A value that the record gains, by a
    /// greater count or another range, must be given: it would be 0 and pass for a value. One that is given
    /// as it stands is not entered again.
    bool completes = false;
    /// Declares "--allow-nan".
    void Declare(Arguments& arguments);
    /// Declares "--drop".
    void DeclareDrop(Arguments& arguments);
};

/// "file: [section]", with which a failure begins.
[[nodiscard]] std::wstring Place(const std::wstring& file, const std::wstring& section);

/// Whether a key of the selected section of a file has a whole number, or a flag.
struct StandsInFile {
    QuorIniFile::INIFile& store;
    const std::wstring& key;
    [[nodiscard]] bool operator()(std::int16_t value) const;
    [[nodiscard]] bool operator()(bool value) const;
};

/// Reads the record of a probe of a host as it stands. False when something is wrong with it.
[[nodiscard]] bool ReadWhole(QuorProbeFile::ProbeFile& file, Probe& probe);
/// Reads the probe of a section; raises Problem when the library could not read all of it, but for what
/// `completion` gives.
[[nodiscard]] Probe ReadProbe(QuorProbeFile::ProbeFile& file, const std::wstring& section,
                              const std::vector<Assignment>& completion = {});
/// The same for a probe that has settings, with its record, for WriteEdited.
[[nodiscard]] Probe ReadProbeToEdit(QuorProbeFile::ProbeFile& file, const std::wstring& section);

/// Ends the failure that a record has no such key: with the key that is meant by the name of a coefficient,
/// or with the nearest one, if there is any.
[[nodiscard]] std::wstring MeantKey(const Probe& probe, const QuorProbeFile::RecordImage& image,
                                    const std::wstring& typed);

/// Which of its values a record is given.
enum class Assigned : std::uint8_t {
    Some,
    All, ///< it is a new one, and one that is missing would be 0 and pass for a value
};

/// Gives the settings the values of the assignments, through the object itself, so that its own rules decide.
/// Returns the entries of the record that are new ones, or have other values. Raises Problem when one of them
/// is not taken as it is, and when the record would lose others by it. `file` is told then.
std::vector<QuorProbeFile::RecordImage::Entry> Assign(Probe& probe, const std::wstring& file,
                                                      const std::vector<Assignment>& assignments,
                                                      const ValueRules& rules,
                                                      Assigned which = Assigned::Some);

/// Gives the probe of a section values, inside an edit of the file. What is as it should be costs little:
/// there may be a hundred thousand steps in an edit.
void AssignInFile(QuorProbeFile::ProbeFile& file, const std::wstring& section,
                  const std::vector<Assignment>& assignments, const ValueRules& rules);

/// Writes a new probe, of which each value must be given, inside an edit of the file, with as little cost.
void WriteNewProbe(QuorProbeFile::ProbeFile& file, const std::wstring& section,
                   QuorConversions::EQuorConversionType type, const std::vector<Assignment>& assignments,
                   const ValueRules& rules);

/// Writes what has become another value since the probe was read, by a person who may have taken his time,
/// into the file as it is now, and nothing else. Raises Problem when another program has changed the same.
void WriteEdited(Probe& probe, QuorProbeFile::ProbeFile& file);

/// Selects the section of an entry in the settings of a probe, and returns its key there.
[[nodiscard]] std::wstring SelectKey(QuorIniFile::INIFile& store, const std::wstring& settings,
                                     const std::wstring& path);

/// Raises Problem with the reason when no new probe can have that name in a file.
void RequireName(QuorProbeFile::ProbeFile& file, const std::wstring& name);

/// Whether a record of that type may have a key: also an item of a list beyond those of its equation.
[[nodiscard]] bool MayHaveKey(QuorConversions::EQuorConversionType type, const std::wstring& key);

/// The form of the settings: what their "UsePolynomial" says.
[[nodiscard]] QuorProbeFile::RecordForm FormOf(const std::vector<QuorProbeFile::RecordImage::Entry>& entries);

} // namespace quorconv
