#pragma once

#include "QuorConversions/core/EQuorConversionType.h"
#include "QuorConversions/core/QuorObject.h"
#include "QuorConversions/core/SettingsObject.h"

#include <cstdint>
#include <memory>
#include <string>

namespace QuorConversions {

/// The conversion of one probe: its type and the settings object for that type. The one object that a host
/// needs. It computes no temperatures.
class QUORCONVERSIONS_EXPORT CQuorConversion final : public QuorObject {
public:
    /// Without a platform the conversion is headless: messages go to the diagnostic stream, file dialogs are
    /// cancelled, nothing blocks.
    explicit CQuorConversion(std::shared_ptr<Platform> platform = nullptr);

    /// Whether dialogs may change values; True at first. Passed on to the settings object.
    [[nodiscard]] bool AllowEdit() const { return m_allowEdit; }
    void SetAllowEdit(bool value);
    /// The help file of the whole library in this process, not of this object.
    [[nodiscard]] std::wstring HelpFile() const; // NOLINT: a property of the interface
    void SetHelpFile(std::wstring value);        // NOLINT: as above
    /// Passes the reference, which may be null, on to the settings object, and keeps what that returns.
    void SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData) override;
    using QuorObject::Registry;
    /// Whether this object or its settings object has changed; setting it sets both.
    [[nodiscard]] bool Changed() const override;
    void SetChanged(bool value) override;
    /// The folder in which file dialogs start. Passed on to the settings object.
    [[nodiscard]] const std::wstring& FilePath() const { return m_filePath; }
    void SetFilePath(std::wstring value);
    /// The settings object of the current type; null if the type has none. A host may keep the reference past
    /// a change of type; the conversion then no longer uses the object. The caller owns a reference of its
    /// own, because host code inside a message box may change the type during a call on the object.
    [[nodiscard]] std::shared_ptr<SettingsObject> Settings() const { return m_settings; }
    /// CONV_NONE at first. A new value replaces the settings object, with all its values, by a new one and
    /// marks the conversion changed; the same value does nothing. Unknown codes are stored and have no
    /// settings object.
    [[nodiscard]] EQuorConversionType ConversionType() const { return m_type; }
    void SetConversionType(EQuorConversionType value);
    /// The name of a conversion type; "<unknown>" for a code without one. For -2: the name of the current
    /// settings object, empty if there is none.
    [[nodiscard]] std::wstring ConversionName(std::int32_t value) const;
    /// Shows the dialog of the settings object. False if the user cancelled, or if the dialog failed, which
    /// was reported to the user. If the type has no settings, shows nothing and returns True.
    bool Edit();

    /// Beware of a section that does not exist or has no type: reading it turns the conversion into an ITS-90
    /// one, and a conversion of another type loses its settings object with all coefficients. ReadFromFile
    /// returns False and the user is informed, but the coefficients are gone. A host that must keep them
    /// reads into another conversion, or first checks that the section exists (IniStore::HasSection).
    ///
    /// Host code that runs inside a message box of these calls may destroy this object.
    using QuorObject::WriteToFile, QuorObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    std::shared_ptr<SettingsObject> m_settings;
    EQuorConversionType m_type = CONV_NONE;
    std::wstring m_filePath;
    bool m_allowEdit = true;
};

/// The settings of `conversion` as the class T; null if its type has another class, or none.
template <class T>
[[nodiscard]] std::shared_ptr<T> SettingsAs(const CQuorConversion& conversion) {
    return std::dynamic_pointer_cast<T>(conversion.Settings());
}

} // namespace QuorConversions
