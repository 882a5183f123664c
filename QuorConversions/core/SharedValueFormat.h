#pragma once

#include <string>
#include <utility>

namespace QuorConversions {

/// One display format for all values of an object.
class SharedValueFormat {
public:
    /// How the dialog shows the values (see ValueFormatter.h); empty at first. Setting it is never a change,
    /// and it is not stored in files. With any format but the empty one, or "General Number", the dialog
    /// stores what it shows. Do not use formats that group digits, scale, or add percent signs or brackets
    /// for boxes that users edit: the text is read back as a plain number.
    [[nodiscard]] const std::wstring& ValueFormat() const { return m_valueFormat; }
    void SetValueFormat(std::wstring value) { m_valueFormat = std::move(value); }

private:
    std::wstring m_valueFormat;
};

} // namespace QuorConversions
