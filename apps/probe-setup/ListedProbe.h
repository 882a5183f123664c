#pragma once

#include "QuorConversions/core/CQuorConversion.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ProbeSetup {

/// A conversion type; nothing where a record says none that could be read.
using ProbeType = std::optional<QuorConversions::EQuorConversionType>;

/// What could not be read of a probe.
struct ReadProblems {
    std::vector<std::wstring> keys;     ///< "[section] key" of each that is missing or cannot be read
    std::vector<std::wstring> messages; ///< what else the library said
    [[nodiscard]] bool IsEmpty() const { return keys.empty() && messages.empty(); }
    /// Keys and messages.
    [[nodiscard]] std::vector<std::wstring> Lines() const;
};

/// What is stored of a probe.
struct ProbeContent {
    std::shared_ptr<QuorConversions::CQuorConversion> conversion; // null until somebody looks into it
    ProbeType type;
    ReadProblems problems;       // of the record that the conversion was read from
    std::uint32_t name = 0;      // the number of its conversion's name, in the document
    bool replacesRecord = false; // the settings in the file are those of another conversion
    [[nodiscard]] bool IsChanged() const { return replacesRecord || (conversion && conversion->Changed()); }
};

/// A probe in the list of a document.
struct ListedProbe {
    std::wstring name;
    std::optional<std::wstring> nameInFile; // where it is another one
    bool isNew = false;                     // it has no record in the file
    ProbeContent content;
    ProbeType typeInFile = {}; // of its record, when it is not new
    [[nodiscard]] const std::wstring& Section() const { return nameInFile ? *nameInFile : name; }
    [[nodiscard]] bool IsRenamed() const { return !isNew && nameInFile; }
    /// Whether a save writes only the keys that have other values than in the file.
    [[nodiscard]] bool IsMerged() const { return !isNew && !content.replacesRecord && content.IsChanged(); }
    /// Whether a save would write it.
    [[nodiscard]] bool IsChanged() const { return isNew || IsRenamed() || content.IsChanged(); }
    void SetName(std::wstring newName);
    /// Changes places with another content of the same probe.
    void SwapContent(ProbeContent& other);
    /// It is in the file now, as it is.
    void SetSaved();
    /// It is not in the file now.
    void SetNew();
};

} // namespace ProbeSetup
