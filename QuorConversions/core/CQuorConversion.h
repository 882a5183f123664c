#pragma once

#include "QuorConversions/core/EQuorConversionType.h"
#include "QuorConversions/core/QuorObject.h"
#include "QuorConversions/core/SettingsObject.h"

#include <cstdint>
#include <memory>
#include <string>

namespace QuorConversions {

/// The conversion of one probe: its type and the settings object that belongs to the type. The one object
/// that a host needs. It computes no temperatures.
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
    /// Passes a reference on to the settings object, and keeps what comes back from it.
    void SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData) override;
    using QuorObject::Registry;
    /// Whether this object or its settings object has changed; setting it sets both.
    [[nodiscard]] bool Changed() const override;
    void SetChanged(bool value) override;
    /// The folder in which file dialogs start. Passed on to the settings object.
    [[nodiscard]] const std::wstring& FilePath() const { return m_filePath; }
    void SetFilePath(std::wstring value);
    /// The settings object of the current type; null when the type has none. A reference that a host keeps
    /// past a change of type stays alive, but the conversion never speaks to it again. Always a reference of
    /// the caller's own: host code inside a message box may change the type under a call on the object.
    [[nodiscard]] std::shared_ptr<SettingsObject> Settings() const { return m_settings; }
    /// CONV_NONE at first. A new value drops the old settings object with all its values and makes a fresh
    /// one; the same value does nothing. Unknown codes are kept and have no settings object.
    [[nodiscard]] EQuorConversionType ConversionType() const { return m_type; }
    void SetConversionType(EQuorConversionType value);
    /// The name of a conversion type; "<unknown>" for a code without one. For -2: the name of the current
    /// settings object, empty when there is none.
    [[nodiscard]] std::wstring ConversionName(std::int32_t value) const;
    /// Shows the dialog of the settings object. False when the user cancelled or the dialog failed, which has
    /// been reported then. True without showing anything when the type has no settings.
    bool Edit();

    /// Beware of a section that is not there, or that holds no type: reading it makes the conversion an
    /// ITS-90 one, and a conversion of another type loses its settings object with all coefficients.
    /// ReadFromFile is False and the user is told, but nothing brings them back. A host that must keep them
    /// reads into another conversion, or looks first whether the section is there (IniStore::Sections).
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

/// The settings of `conversion` as the class T; null when its type has another class, or none.
template <class T>
[[nodiscard]] std::shared_ptr<T> SettingsAs(const CQuorConversion& conversion) {
    return std::dynamic_pointer_cast<T>(conversion.Settings());
}

} // namespace QuorConversions
