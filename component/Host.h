#pragma once

#include "QuorConversions/controls/ListControl.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorIniFile/INIFile.h"
#include "QuorRegistryII/Registry.h"
#include "component/quor.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// What a host offers through tables of functions, as the classes that the library expects.
namespace QuorConversions::Component {

/// FileDialogKind with a number for other languages. Numbers are only added.
enum EFileDialogKind : std::int32_t { FILE_DIALOG_OPEN = 0, FILE_DIALOG_SAVE = 1 };

/// A host's table of functions and its pointer. `destroyed` is called at the end, once the host has been told
/// that the table was taken.
template <class Functions>
class HostTable {
public:
    HostTable(const Functions& functions, void* user) : m_functions(functions), m_user(user) {}
    HostTable(const HostTable&) = delete;
    HostTable& operator=(const HostTable&) = delete;
    ~HostTable() {
        if (m_isTaken && m_functions.destroyed)
            m_functions.destroyed(m_user);
    }
    void Take() { m_isTaken = true; }

    [[nodiscard]] const Functions* operator->() const { return &m_functions; }
    [[nodiscard]] void* User() const { return m_user; }

private:
    Functions m_functions;
    void* m_user;
    bool m_isTaken = false;
};

/// What a host has offered, whatever it is.
class OfHost {
public:
    OfHost() = default;
    OfHost(const OfHost&) = delete;
    OfHost& operator=(const OfHost&) = delete;
    virtual ~OfHost() = default;
    [[nodiscard]] virtual void* User() const = 0;
};

class HostPlatform final : public HeadlessPlatform, public OfHost {
public:
    HostPlatform(const quor_platform_functions& functions, void* user) : m_host(functions, user) {}

    [[nodiscard]] std::shared_ptr<QuorIniFile::INIFile> CreateIniFile() override;
    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] std::wstring DecimalSeparator() override;
    [[nodiscard]] EMousePointer MousePointer() const override;
    void SetMousePointer(EMousePointer shape) override;

    void Take() { m_host.Take(); }
    [[nodiscard]] void* User() const override { return m_host.User(); }

private:
    class Follower;
    HostTable<quor_platform_functions> m_host;
};

class HostIniFile final : public QuorIniFile::INIFile, public OfHost {
public:
    HostIniFile(const quor_inifile_functions& functions, void* user) : m_host(functions, user) {}

    void SetFileName(std::wstring_view fileName) override;
    [[nodiscard]] std::wstring FileName();
    void SetSection(std::wstring_view section) override;
    [[nodiscard]] std::wstring Section();
    [[nodiscard]] bool ReadBoolean(std::wstring_view key, bool& value) override;
    [[nodiscard]] bool ReadDouble(std::wstring_view key, double& value) override;
    [[nodiscard]] bool ReadInteger(std::wstring_view key, std::int16_t& value) override;
    [[nodiscard]] bool ReadString(std::wstring_view key, std::wstring& value) override;
    void WriteBoolean(std::wstring_view key, bool value) override;
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override;
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override;
    void WriteString(std::wstring_view key, std::wstring_view value) override;
    void Hold() override;
    void Release() override;
    void Abandon() override;

    void Take() { m_host.Take(); }
    [[nodiscard]] void* User() const override { return m_host.User(); }

private:
    HostTable<quor_inifile_functions> m_host;
};

class HostRegistry final : public QuorRegistryII::Registry, public OfHost {
public:
    HostRegistry(const quor_registry_functions& functions, void* user) : m_host(functions, user) {}

    [[nodiscard]] bool ReadValue(std::wstring_view section, std::wstring_view name,
                                 std::wstring& value) override;
    void WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) override;

    void Take() { m_host.Take(); }
    [[nodiscard]] void* User() const override { return m_host.User(); }

private:
    HostTable<quor_registry_functions> m_host;
};

class HostListControl final : public ListControl, public OfHost {
public:
    HostListControl(const quor_list_control_functions& functions, void* user) : m_host(functions, user) {}

    void Clear() override;
    void AddItem(std::wstring_view text) override;
    [[nodiscard]] std::int32_t NewIndex() const override;
    void SetItemData(std::int32_t index, std::int32_t data) override;

    void Take() { m_host.Take(); }
    [[nodiscard]] void* User() const override { return m_host.User(); }

private:
    HostTable<quor_list_control_functions> m_host;
};

/// What the interface of the INI file lacks and its two implementations have.
[[nodiscard]] std::wstring FileNameOf(QuorIniFile::INIFile& file);
[[nodiscard]] std::wstring SectionOf(QuorIniFile::INIFile& file);

} // namespace QuorConversions::Component
