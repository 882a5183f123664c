#include "component/Host.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/Utf8.h"
#include "component/Call.h"

#include <algorithm>

namespace QuorConversions::Component {
namespace {

constexpr const wchar_t* platformSource = L"Platform of the host";
constexpr const wchar_t* iniFileSource = L"INIFile of the host";
constexpr const wchar_t* registrySource = L"Registry of the host";
constexpr const wchar_t* listSource = L"List control of the host";

/// A text while a host's function looks at it.
class TextForHost {
public:
    explicit TextForHost(std::wstring_view text) : m_bytes(QuorIniFile::ToUtf8(text)) {}
    [[nodiscard]] quor_text Get() const { return ViewOf(m_bytes); }

private:
    std::string m_bytes;
};

/// A read that puts a value and whether it was found. The host may have cleared the value where it was not.
template <class Value>
bool Read(std::int32_t (*function)(void*, quor_text, Value*, std::int16_t*), void* user,
          std::wstring_view key, Value& value) {
    std::int16_t found = 0;
    Value read = value;
    CallHost(iniFileSource, function, user, TextForHost(key).Get(), &read, &found);
    // What a host has put in the place of a missing type is the type (CQuorConversion::ReadFromFile).
    if (found != 0 || key == conversionTypeKey)
        value = read;
    return found != 0;
}

} // namespace

// ---- HostPlatform

/// Tells the host what changes in a dialog while it runs.
class HostPlatform::Follower final : public DialogListener {
public:
    Follower(const HostTable<quor_platform_functions>& host, Dialog& dialog, DialogFace& face,
             quor_object handle)
        : m_host(host), m_dialog(dialog), m_face(face), m_handle(handle) {
        dialog.SetListener(this);
    }
    Follower(const Follower&) = delete;
    Follower& operator=(const Follower&) = delete;
    ~Follower() override { m_dialog.SetListener(nullptr); }

    void OnControlChanged(const Control& control) override { Tell(m_host->control_changed, &control); }
    void OnFocusMoved(const Control* focused) override { Tell(m_host->focus_moved, focused); }
    void OnTitleChanged() override {
        if (m_host->title_changed)
            m_host->title_changed(m_host.User(), m_handle);
    }
    void OnHidden() override {
        if (m_host->dialog_hidden)
            m_host->dialog_hidden(m_host.User(), m_handle);
    }

private:
    void Tell(void (*function)(void*, quor_object, quor_object), const Control* control) {
        if (!function)
            return;
        const ScopedHandle handle(HandleTable::Instance().Give(m_face.FaceOf(control)));
        function(m_host.User(), m_handle, handle.Get());
    }

    const HostTable<quor_platform_functions>& m_host;
    Dialog& m_dialog;
    DialogFace& m_face;
    quor_object m_handle;
};

std::shared_ptr<QuorIniFile::INIFile> HostPlatform::CreateIniFile() {
    if (!m_host->create_ini_file)
        return HeadlessPlatform::CreateIniFile();
    quor_object made = 0;
    CallHost(platformSource, m_host->create_ini_file, m_host.User(), &made);
    const ScopedHandle reference(made); // the host has handed it over
    return AnyOrNone<QuorIniFile::INIFile>(made);
}

void HostPlatform::RunDialog(Dialog& dialog, DialogInput& input) {
    if (!m_host->run_dialog) {
        HeadlessPlatform::RunDialog(dialog, input);
        return;
    }
    /// The host may keep handles: they lead nowhere once the dialog has ended.
    struct Run {
        std::shared_ptr<DialogFace> face;
        ScopedHandle handle;
        Run(Dialog& shown, DialogInput& its)
            : face(std::make_shared<DialogFace>(shown, its)), handle(HandleTable::Instance().Give(face)) {}
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;
        ~Run() { face->End(); }
    };
    const Run run(dialog, input);
    const Follower follower(m_host, dialog, *run.face, run.handle.Get());
    CallHost(platformSource, m_host->run_dialog, m_host.User(), run.handle.Get());
    if (dialog.IsOpen()) // nobody has said OK
        input.Escape();
}

void HostPlatform::ShowMessage(const MessageRequest& request) {
    if (!m_host->show_message) {
        HeadlessPlatform::ShowMessage(request);
        return;
    }
    const TextForHost text(request.text);
    const TextForHost title(request.title);
    const TextForHost helpFile(request.helpFile);
    const quor_message message{text.Get(), title.Get(), helpFile.Get(), request.helpContext, request.icon};
    CallHost(platformSource, m_host->show_message, m_host.User(), &message);
}

std::optional<std::wstring> HostPlatform::AskForFile(const FileRequest& request) {
    if (!m_host->ask_for_file)
        return HeadlessPlatform::AskForFile(request);
    const TextForHost title(request.title);
    const TextForHost filter(request.filter);
    const TextForHost extension(request.defaultExtension);
    const TextForHost fileName(request.fileName);
    const TextForHost folder(request.folder);
    quor_file_request asked{};
    asked.title = title.Get();
    asked.filter = filter.Get();
    asked.default_extension = extension.Get();
    asked.file_name = fileName.Get();
    asked.folder = folder.Get();
    asked.kind = request.kind == FileDialogKind::Open ? FILE_DIALOG_OPEN : FILE_DIALOG_SAVE;
    asked.owner = request.owner;
    asked.flags = request.flags;
    return AnswerOf(platformSource, m_host->ask_for_file, m_host.User(), &asked);
}

std::int32_t HostPlatform::CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) {
    if (!m_host->call_help)
        return HeadlessPlatform::CallHelp(helpFile, command, data);
    std::int32_t result = 0;
    CallHost(platformSource, m_host->call_help, m_host.User(), TextForHost(helpFile).Get(), command, data,
             &result);
    return result;
}

std::wstring HostPlatform::DecimalSeparator() {
    return m_host->decimal_separator ? AnswerOf(platformSource, m_host->decimal_separator, m_host.User())
                                     : HeadlessPlatform::DecimalSeparator();
}

EMousePointer HostPlatform::MousePointer() const {
    std::int32_t shape = POINTER_DEFAULT;
    if (m_host->get_mouse_pointer)
        CallHost(platformSource, m_host->get_mouse_pointer, m_host.User(), &shape);
    return static_cast<EMousePointer>(shape);
}

void HostPlatform::SetMousePointer(EMousePointer shape) {
    if (m_host->set_mouse_pointer)
        CallHost(platformSource, m_host->set_mouse_pointer, m_host.User(), std::int32_t{shape});
}

// ---- HostIniFile

void HostIniFile::SetFileName(std::wstring_view fileName) {
    CallHost(iniFileSource, m_host->put_file_name, m_host.User(), TextForHost(fileName).Get());
}

std::wstring HostIniFile::FileName() { return AnswerOf(iniFileSource, m_host->get_file_name, m_host.User()); }

void HostIniFile::SetSection(std::wstring_view section) {
    CallHost(iniFileSource, m_host->put_section, m_host.User(), TextForHost(section).Get());
}

std::wstring HostIniFile::Section() { return AnswerOf(iniFileSource, m_host->get_section, m_host.User()); }

bool HostIniFile::ReadBoolean(std::wstring_view key, bool& value) {
    std::int16_t flag = 0;
    Out(&flag, value);
    const bool found = Read(m_host->read_boolean, m_host.User(), key, flag);
    value = flag != 0;
    return found;
}

bool HostIniFile::ReadDouble(std::wstring_view key, double& value) {
    return Read(m_host->read_double, m_host.User(), key, value);
}

bool HostIniFile::ReadInteger(std::wstring_view key, std::int16_t& value) {
    return Read(m_host->read_integer, m_host.User(), key, value);
}

bool HostIniFile::ReadString(std::wstring_view key, std::wstring& value) {
    std::int16_t found = 0;
    std::wstring answer =
        AnswerOf(iniFileSource, m_host->read_string, m_host.User(), TextForHost(key).Get(), &found);
    if (found != 0)
        value = std::move(answer);
    return found != 0;
}

void HostIniFile::WriteBoolean(std::wstring_view key, bool value) {
    std::int16_t flag = 0;
    Out(&flag, value);
    CallHost(iniFileSource, m_host->write_boolean, m_host.User(), TextForHost(key).Get(), flag);
}

void HostIniFile::WriteDouble(std::wstring_view key, double value, std::wstring_view comment) {
    CallHost(iniFileSource, m_host->write_double, m_host.User(), TextForHost(key).Get(), value,
             TextForHost(comment).Get());
}

void HostIniFile::WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) {
    CallHost(iniFileSource, m_host->write_integer, m_host.User(), TextForHost(key).Get(), value,
             TextForHost(comment).Get());
}

void HostIniFile::WriteString(std::wstring_view key, std::wstring_view value) {
    CallHost(iniFileSource, m_host->write_string, m_host.User(), TextForHost(key).Get(),
             TextForHost(value).Get());
}

void HostIniFile::Hold() {
    if (m_host->hold)
        CallHost(iniFileSource, m_host->hold, m_host.User());
}

void HostIniFile::Release() {
    if (m_host->release)
        CallHost(iniFileSource, m_host->release, m_host.User());
}

void HostIniFile::Abandon() {
    if (m_host->abandon)
        CallHost(iniFileSource, m_host->abandon, m_host.User());
}

// Each of the two is what a handle of an INI file stands for: a host cannot bring another class of C++.

std::wstring FileNameOf(QuorIniFile::INIFile& file) {
    if (const auto* const store = dynamic_cast<QuorIniFile::IniStore*>(&file))
        return std::wstring(store->FileName());
    return dynamic_cast<HostIniFile&>(file).FileName();
}

std::wstring SectionOf(QuorIniFile::INIFile& file) {
    if (const auto* const store = dynamic_cast<QuorIniFile::IniStore*>(&file))
        return std::wstring(store->Section());
    return dynamic_cast<HostIniFile&>(file).Section();
}

// ---- HostRegistry

bool HostRegistry::ReadValue(std::wstring_view section, std::wstring_view name, std::wstring& value) {
    std::int16_t found = 0;
    std::wstring answer = AnswerOf(registrySource, m_host->read_value, m_host.User(),
                                   TextForHost(section).Get(), TextForHost(name).Get(), &found);
    if (found != 0)
        value = std::move(answer);
    return found != 0;
}

void HostRegistry::WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) {
    CallHost(registrySource, m_host->write_value, m_host.User(), TextForHost(section).Get(),
             TextForHost(name).Get(), TextForHost(value).Get());
}

// ---- HostListControl

void HostListControl::Clear() { CallHost(listSource, m_host->clear, m_host.User()); }

void HostListControl::AddItem(std::wstring_view text) {
    CallHost(listSource, m_host->add_item, m_host.User(), TextForHost(text).Get());
}

std::int32_t HostListControl::NewIndex() const {
    std::int32_t index = -1;
    CallHost(listSource, m_host->get_new_index, m_host.User(), &index);
    return index;
}

void HostListControl::SetItemData(std::int32_t index, std::int32_t data) {
    CallHost(listSource, m_host->put_item_data, m_host.User(), index, data);
}

namespace {

/// A host's table as this library knows it: a shorter one lacks its last functions, a longer one has more
/// than are called.
template <class Functions>
[[nodiscard]] Functions Known(const Functions* functions) {
    if (!functions || functions->size < sizeof(functions->size))
        Throw(QUOR_ERROR_ARGUMENT, L"The table of functions is NULL, or its size is not set");
    Functions known{};
    std::memcpy(&known, functions, std::min(functions->size, sizeof(known)));
    return known;
}

/// Raises error 5 when one of the functions is NULL.
template <class... Function>
void Require(Function... function) {
    if (!(function && ...))
        Throw(QUOR_ERROR_ARGUMENT, L"A required function of the table is NULL");
}

/// Gives out an object of class T that stands for the table, as what the library takes it for.
template <class T, class Base, class Functions>
void GiveHost(const Functions& functions, void* user, quor_object* result) {
    const auto object = std::make_shared<T>(functions, user);
    Out(Needed(result), std::shared_ptr<Base>(object));
    object->Take();
}

/// What an object that a host offers knows of the host. Null for any other object.
template <class... Class>
[[nodiscard]] void* UserOf(quor_object handle, Classes<Class...> /*that a host offers*/) {
    const HandleTable::Found found = HandleTable::Instance().Find(handle);
    if (!found.object)
        ThrowNoObject();
    const std::shared_ptr<void> alive = *found.object;
    const OfHost* host = nullptr;
    static_cast<void>(((found.classId == classOf<Class> &&
                        (host = dynamic_cast<const OfHost*>(static_cast<const Class*>(alive.get())), true)) ||
                       ...));
    return host ? host->User() : nullptr;
}

} // namespace
} // namespace QuorConversions::Component

using namespace QuorConversions;
using namespace QuorConversions::Component;

int32_t quor_platform_from_host(const quor_platform_functions* functions, void* user, quor_object* platform) {
    return Guarded([&] { GiveHost<HostPlatform, Platform>(Known(functions), user, platform); });
}

int32_t quor_inifile_from_host(const quor_inifile_functions* functions, void* user, quor_object* inifile) {
    return Guarded([&] {
        const quor_inifile_functions known = Known(functions);
        Require(known.put_file_name, known.get_file_name, known.put_section, known.get_section,
                known.read_boolean, known.read_double, known.read_integer, known.read_string,
                known.write_boolean, known.write_double, known.write_integer, known.write_string);
        GiveHost<HostIniFile, QuorIniFile::INIFile>(known, user, inifile);
    });
}

int32_t quor_registry_from_host(const quor_registry_functions* functions, void* user, quor_object* registry) {
    return Guarded([&] {
        const quor_registry_functions known = Known(functions);
        Require(known.read_value, known.write_value);
        GiveHost<HostRegistry, QuorRegistryII::Registry>(known, user, registry);
    });
}

int32_t quor_list_control_from_host(const quor_list_control_functions* functions, void* user,
                                    quor_object* list_control) {
    return Guarded([&] {
        const quor_list_control_functions known = Known(functions);
        Require(known.clear, known.add_item, known.get_new_index, known.put_item_data);
        GiveHost<HostListControl, ListControl>(known, user, list_control);
    });
}

int32_t quor_host_user(quor_object object, void** user) {
    return Guarded([&] {
        void* const found =
            UserOf(object, Classes<Platform, QuorIniFile::INIFile, QuorRegistryII::Registry, ListControl>{});
        if (user)
            *user = found;
    });
}
