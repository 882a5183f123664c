#pragma once

#include "QuorConversions/Export.h"
#include "QuorIniFile/INIFile.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace QuorConversions {

/// Shapes of the mouse pointer that the library sets. A host's own shapes have other values; the library
/// restores whatever it found.
enum EMousePointer : std::int32_t { POINTER_DEFAULT = 0, POINTER_HOURGLASS = 11 };

/// The icon of a message: a failure, or information.
enum EMessageIcon : std::int32_t { ICON_CRITICAL = 16, ICON_INFORMATION = 64 };

/// A message with the button OK and, if `helpFile` is not empty, the button Help.
struct MessageRequest {
    std::wstring text;                    ///< lines are separated by a carriage return (13)
    std::wstring title;                   ///< of the window
    EMessageIcon icon = ICON_INFORMATION; ///< failure or information
    std::wstring helpFile;                ///< what the button Help opens; may be empty
    std::int32_t helpContext = 0;         ///< the topic in the help file
    /// Identifies the message in every language: the id of the string-table entry that the text is made from,
    /// or starts with (101 for an error report); 0 if there is none.
    std::int32_t textId = 0;
};

/// Whether a file dialog chooses a file to read or one to write.
enum class FileDialogKind { Open, Save };

/// A file dialog that the platform is asked to show.
struct FileRequest {
    FileDialogKind kind = FileDialogKind::Open; ///< to read or to write
    std::wstring title;                         ///< of the window
    std::wstring filter;           ///< "description|pattern", for example "PT100 Files (*.pt1)|*.pt1"
    std::wstring defaultExtension; ///< without a point
    std::wstring fileName;         ///< shown first: a name, or a pattern such as "*.cvd"
    std::wstring folder;           ///< shown first; may be empty
    std::uint32_t flags = 0;       ///< the customary open-file-name flags, 0x281804 to open, 0x280806 to save
    std::int32_t owner = 0;        ///< window handle of the owner
};

class Dialog;
class DialogInput;

/// What a host provides for the library: one class, which the host passes to the objects that it creates;
/// they pass it on. A platform holds no settings and makes no decisions about them.
class QUORCONVERSIONS_EXPORT Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform();

    /// A new INI-file object, not bound to a file; by default the built-in store.
    [[nodiscard]] virtual std::shared_ptr<QuorIniFile::INIFile> CreateIniFile();

    /// Shows the dialog, reports through `input` what the user does, and returns when the dialog is no longer
    /// open. May raise if the dialog cannot be shown; the error is reported to the user.
    virtual void RunDialog(Dialog& dialog, DialogInput& input) = 0;

    /// Shows the message and waits until it is closed.
    virtual void ShowMessage(const MessageRequest& request) = 0;

    /// Shows the file dialog and waits. Returns the chosen path, or nothing if the user cancelled; an empty
    /// path means cancelled too.
    [[nodiscard]] virtual std::optional<std::wstring> AskForFile(const FileRequest& request) = 0;

    /// Calls the help engine: command 1 shows the topic with the context number `data` in `helpFile`.
    /// Returns the result of the engine, 0 on failure.
    virtual std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) = 0;

    /// The decimal separator of the user's regional settings; by default ".". Called once per process.
    [[nodiscard]] virtual std::wstring DecimalSeparator();

    /// The shape of the mouse pointer: the library sets the hourglass while it reads, writes or opens help,
    /// and afterwards what it found.
    [[nodiscard]] virtual EMousePointer MousePointer() const = 0;
    virtual void SetMousePointer(EMousePointer shape) = 0;
};

} // namespace QuorConversions
