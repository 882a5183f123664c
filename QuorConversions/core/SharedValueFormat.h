#pragma once

#include <string>
#include <utility>

namespace QuorConversions {

/// One display format for all values of an object (see ValueFormatter.h). Setting it is never a change, and
/// it is not stored in files. Under any but the empty format, or "General Number", the dialog stores what it
/// shows; formats that group digits, scale, or add percent signs or brackets are not for boxes that people
/// edit: the number is read as it stands.
class SharedValueFormat {
public:
    [[nodiscard]] const std::wstring& ValueFormat() const { return m_valueFormat; }
    void SetValueFormat(std::wstring value) { m_valueFormat = std::move(value); }

private:
    std::wstring m_valueFormat;
};

} // namespace QuorConversions
