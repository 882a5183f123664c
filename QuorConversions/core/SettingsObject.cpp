#include "QuorConversions/core/SettingsObject.h"

#include "QuorConversions/core/detail/SettingsEditor.h"
#include "QuorConversions/core/modPaths.h"

#include <utility>

namespace QuorConversions {
namespace {

// The customary open-file-name flags: long names, explorer style, path must exist, hide read-only; with "file
// must exist" to open and "overwrite prompt" to save.
constexpr std::uint32_t openFlags = 0x281804;
constexpr std::uint32_t saveFlags = 0x280806;

} // namespace

SettingsObject::SettingsObject(std::shared_ptr<Platform> platform, const SettingsTraits& traits)
    : QuorObject(std::move(platform), traits.className), m_traits(traits) {}

bool SettingsObject::Edit() {
    try {
        const std::unique_ptr<SettingsEditor> editor = CreateEditor(*this, HostPlatform());
        if (!editor)
            throw QuorError(QuorIniFile::ERR_CANNOT_CREATE, ClassName(),
                            ReplaceTildes(TableText(IDS_NO_DIALOG), ClassName()));
        return editor->Run();
    } catch (...) {
        ReportCurrentError(IDS_EDITING_SETTINGS);
        return false;
    }
}

std::wstring SettingsObject::GetName() const { return TableText(m_traits.name); }

void SettingsObject::ClearSpareValues() {}

void SettingsObject::SetFilePath(std::wstring value) { m_filePath = std::move(value); }

FileRequest SettingsObject::RequestFor(FileDialogKind kind, std::int32_t hwnd,
                                       const std::wstring& startFile) const {
    const bool open = kind == FileDialogKind::Open;
    const std::wstring name = GetName();
    const std::wstring extension = m_traits.fileExtension;
    FileRequest request;
    request.kind = kind;
    request.title = ReplaceTildes(TableText(open ? IDS_OPEN_FILE_TITLE : IDS_SAVE_FILE_TITLE), name);
    request.filter = name + L" " + ReplaceTildes(TableText(IDS_FILE_FILTER), extension + L"|" + extension);
    request.defaultExtension = extension;
    request.fileName = startFile.empty() ? L"*." + extension : GetFileNamePart(startFile);
    request.folder = startFile.empty() ? m_filePath : GetFolderPart(startFile);
    request.flags = open ? openFlags : saveFlags;
    request.owner = hwnd;
    return request;
}

std::wstring SettingsObject::AskForFile(const FileRequest& request) const {
    if (auto path = HostPlatform()->AskForFile(request); path && !path->empty())
        return *std::move(path);
    throw Error(QuorIniFile::ERR_DIALOG_CANCELLED, IDS_CANCEL_SELECTED);
}

bool SettingsObject::OpenFile(std::int32_t hwnd, std::wstring& filename) {
    try {
        std::shared_ptr<INIFile> none;
        if (!filename.empty()) {
            ReadFromFile(none, filename, m_traits.sectionName);
            return true;
        }
        const std::wstring chosen = AskForFile(RequestFor(FileDialogKind::Open, hwnd, m_lastFile));
        ReadFromFile(none, chosen, m_traits.sectionName);
        filename = chosen;
        m_lastFile = chosen;
        return true;
    } catch (...) { // cancelled or failed: the contract tells neither from the other, and shows nothing
        return false;
    }
}

bool SettingsObject::SaveFileAs(std::int32_t hwnd, std::wstring& filename) {
    try {
        const std::wstring& startFile = filename.empty() ? m_lastFile : filename;
        std::wstring chosen = AskForFile(RequestFor(FileDialogKind::Save, hwnd, startFile));
        if (GetExtensionPart(chosen).empty())
            chosen += m_traits.fileExtension; // on purpose: no point is inserted
        filename = chosen;
        m_lastFile = chosen;
        std::shared_ptr<INIFile> none;
        WriteToFile(none, chosen, m_traits.sectionName);
        return true;
    } catch (...) { // as in OpenFile
        return false;
    }
}

} // namespace QuorConversions
