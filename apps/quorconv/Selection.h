#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/Arguments.h"

#include <optional>
#include <string>
#include <vector>

namespace quorconv {

/// Whether `name` is what `pattern` says: "*" stands for any letters, "?" for one, letters are the same in
/// any ASCII case.
[[nodiscard]] bool IsLike(const std::wstring& name, const std::wstring& pattern);

/// Whether a text has a "*" or "?".
[[nodiscard]] bool IsPattern(const std::wstring& text);

/// The conversion type that a person means, with settings or without; UsageError when there is none.
[[nodiscard]] const QuorProbeFile::TypeInfo& RequireType(const std::wstring& text);

/// The probes that a command line names: the sections of one file, by names or patterns, and of one type.
class Selection {
public:
    std::vector<std::wstring> patterns; ///< none: all probes
    std::optional<std::wstring> type;

    /// Declares "--type".
    void DeclareType(Arguments& arguments);

    /// Whether it may mean several probes: a number is told then.
    [[nodiscard]] bool IsMany() const;
    /// The sections as the file spells them, in its order. A name that stands in the file means that one
    /// probe, whatever letters it has; one without "*" and "?" is given back even when it is no probe, so
    /// that whoever reads it tells why. Raises Problem when a pattern, or the type, means no probe at all.
    [[nodiscard]] std::vector<std::wstring> In(QuorProbeFile::ProbeFile& file) const;
};

/// Tells on the standard error how much was done: "12 probes set"; not when the results cannot be written.
void TellCount(std::size_t number, const wchar_t* what, const char* done);

/// `section` as the file spells it. To be asked for one probe: it is looked up from the start of the file.
[[nodiscard]] std::wstring SpelledInFile(QuorProbeFile::ProbeFile& file, const std::wstring& section);

} // namespace quorconv
