#pragma once

#include "QuorConversions/core/QuorObject.h"

#include <cstdint>
#include <memory>
#include <string>

namespace QuorConversions {

/// The argument of the name functions (ConversionName, RangeName, GetName, ...) that means the object's
/// current value. It is not a member of any of their enumerations.
inline constexpr std::int32_t currentValue = -2;

/// What distinguishes one settings class from the others, as data.
struct SettingsTraits {
    const wchar_t* className;     ///< the source of its errors
    EStringId name;               ///< string-table entry of GetName
    const wchar_t* fileExtension; ///< of its stand-alone files, without a point
    const wchar_t* sectionName;   ///< the section of its stand-alone files; never translated
};

/// What every settings class has besides its own coefficients. A settings object holds the settings of one
/// conversion type; it computes nothing.
class QUORCONVERSIONS_EXPORT SettingsObject : public QuorObject {
public:
    /// Whether the dialog may change values; True at first.
    [[nodiscard]] bool AllowEdit() const { return m_allowEdit; }
    void SetAllowEdit(bool value) { m_allowEdit = value; }

    // SetRegistry, Registry, Changed and SetChanged stand here in the order of the contract.

    /// Shows the settings dialog directly on this object. False if the user cancelled, or if the dialog could
    /// not be shown, which was reported to the user.
    bool Edit();

    /// The display name, in the language of the string table.
    [[nodiscard]] virtual std::wstring GetName() const;

    /// The folder in which the file dialogs of this object start; empty at first.
    [[nodiscard]] const std::wstring& FilePath() const { return m_filePath; }
    void SetFilePath(std::wstring value);

    /// Reads a stand-alone settings file: `filename` if it is not empty, otherwise the one that the user
    /// chooses in a file dialog owned by the window `hwnd`, whose path is then stored in `filename`. True if
    /// the user did not cancel, even if the file could not be read, which was reported. False, with
    /// `filename` unchanged, if the user cancelled or the dialog failed.
    bool OpenFile(std::int32_t hwnd, std::wstring& filename);

    /// Asks for a file, starting with `filename` if it is not empty, and writes a stand-alone settings file.
    /// The chosen path is stored in `filename`. A name without an extension gets the extension of the class
    /// appended without a point; file dialogs normally add it with the point first. Result as in OpenFile.
    bool SaveFileAs(std::int32_t hwnd, std::wstring& filename);

    // WriteToFile and ReadFromFile stand here in the order of the contract.

    /// Sets the values to 0 that the object keeps behind its last coefficient or point, so that none shows
    /// when the count grows. Call it when the object gets the values of another probe: ReadFromFile leaves
    /// them, QuorProbeFile::ProbeFile::Read clears them. Formats stay, and Changed is not affected.
    virtual void ClearSpareValues();

    /// The stand-alone files of this class: their extension, without a point, and their section.
    [[nodiscard]] std::wstring FileExtension() const { return m_traits.fileExtension; }
    [[nodiscard]] std::wstring SectionName() const { return m_traits.sectionName; }

protected:
    /// `traits` must live as long as the program.
    SettingsObject(std::shared_ptr<Platform> platform, const SettingsTraits& traits);

private:
    [[nodiscard]] FileRequest RequestFor(FileDialogKind kind, std::int32_t hwnd,
                                         const std::wstring& startFile) const;
    [[nodiscard]] std::wstring AskForFile(const FileRequest& request) const;

    const SettingsTraits& m_traits;
    std::wstring m_filePath;
    std::wstring m_lastFile;
    bool m_allowEdit = true;
};

} // namespace QuorConversions
