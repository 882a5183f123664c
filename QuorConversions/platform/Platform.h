#pragma once

#include "QuorConversions/Export.h"
#include "QuorIniFile/INIFile.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace QuorConversions {

/// Shapes of the mouse pointer that the library sets. A host's own shapes are other values; the library gives
/// back whatever it found.
enum EMousePointer : std::int32_t { POINTER_DEFAULT = 0, POINTER_HOURGLASS = 11 };

enum EMessageIcon : std::int32_t { ICON_CRITICAL = 16, ICON_INFORMATION = 64 };

/// A message with one button, OK; with a second one, Help, when `helpFile` is not empty.
struct MessageRequest {
    std::wstring text; ///< lines are separated by a carriage return (13)
    std::wstring title;
    EMessageIcon icon = ICON_INFORMATION;
    std::wstring helpFile;
    std::int32_t helpContext = 0;
    /// By which a program knows the message, whatever the language: the id of the string-table entry that the
    /// text is made from, or begins with (101 for an error report); 0 where there is none.
    std::int32_t textId = 0;
};

enum class FileDialogKind { Open, Save };

/// A file dialog that the platform is asked to show.
struct FileRequest {
    FileDialogKind kind = FileDialogKind::Open;
    std::wstring title;
    std::wstring filter;           ///< "description|pattern", for example "PT100 Files (*.pt1)|*.pt1"
    std::wstring defaultExtension; ///< without a point
    std::wstring fileName;         ///< shown first: a name, or a pattern such as "*.cvd"
    std::wstring folder;           ///< shown first; may be empty
    std::uint32_t flags = 0;       ///< the customary open-file-name flags, 0x281804 to open, 0x280806 to save
    std::int32_t owner = 0;        ///< window handle of the owner
};

class Dialog;
class DialogInput;

/// What a host environment offers to the library: one class, which the host makes and hands to the objects
/// that it creates; they hand it on. A platform holds no settings and decides nothing about them.
class QUORCONVERSIONS_EXPORT Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform();

    /// A new INI-file object, not bound to a file; by default the built-in store.
    [[nodiscard]] virtual std::shared_ptr<QuorIniFile::INIFile> CreateIniFile();

    /// Shows the dialog, reports through `input` what the user does, and returns when the dialog is no longer
    /// open.
    virtual void RunDialog(Dialog& dialog, DialogInput& input) = 0;

    /// Shows the message and waits until it is closed.
    virtual void ShowMessage(const MessageRequest& request) = 0;

    /// Shows the file dialog and waits. The chosen path, or nothing when the user cancelled; an empty path
    /// counts as nothing.
    [[nodiscard]] virtual std::optional<std::wstring> AskForFile(const FileRequest& request) = 0;

    /// Calls the help engine: command 1 shows the topic of the context number `data` in `helpFile`.
    /// Returns the engine's result, 0 on failure.
    virtual std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) = 0;

    /// The decimal separator of the user's regional settings; by default ".". Asked once in a process.
    [[nodiscard]] virtual std::wstring DecimalSeparator();

    [[nodiscard]] virtual EMousePointer MousePointer() const = 0;
    virtual void SetMousePointer(EMousePointer shape) = 0;
};

} // namespace QuorConversions
