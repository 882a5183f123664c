#pragma once

#include "QuorIniFile/detail/IniFileSystem.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Support {

/// A file system in front of another one, on which a test can see and stop every call.
class InterceptedFiles final : public QuorIniFile::IniFileSystem {
public:
    explicit InterceptedFiles(QuorIniFile::IniFileSystem& files = System()) : m_files(files) {}

    /// Asked before each call that can fail, by its name: the error to give instead, 0 to let it pass.
    std::function<int(std::string_view call)> onCall = [](std::string_view) { return 0; };
    /// How many bytes a read or a write moves at most.
    std::size_t mostBytes = std::numeric_limits<std::size_t>::max();
    /// Whether a flush goes through to the disk; a test of hundreds of saves has no time for that.
    bool flushes = true;
    /// How long one has waited for others.
    std::chrono::milliseconds paused{0};
    /// How many files are open.
    int openFiles = 0;

    QuorIniFile::IniResult<std::string> CurrentFolder() override {
        return Ask("CurrentFolder", [&] { return m_files.CurrentFolder(); });
    }
    QuorIniFile::IniResult<std::vector<std::string>> NamesIn(const std::string& folder) override {
        return Ask("NamesIn", [&] { return m_files.NamesIn(folder); });
    }
    QuorIniFile::IniResult<QuorIniFile::IniFileStatus> StatusAt(const std::string& path) override {
        return Ask("StatusAt", [&] { return m_files.StatusAt(path); });
    }
    QuorIniFile::IniResult<QuorIniFile::IniFileStatus> StatusOf(Handle file) override {
        return Ask("StatusOf", [&] { return m_files.StatusOf(file); });
    }
    QuorIniFile::IniResult<std::string> LinkAt(const std::string& path) override {
        return Ask("LinkAt", [&] { return m_files.LinkAt(path); });
    }
    int MayWrite(const std::string& path) override {
        return Do("MayWrite", [&] { return m_files.MayWrite(path); });
    }
    QuorIniFile::IniResult<Handle> Open(const std::string& path, Opening how) override {
        const auto file = Ask("Open", [&] { return m_files.Open(path, how); });
        openFiles += file.error == 0 ? 1 : 0;
        return file;
    }
    QuorIniFile::IniResult<Handle> OpenUnnamed(const std::string& folder, Opening how) override {
        const auto file = Ask("OpenUnnamed", [&] { return m_files.OpenUnnamed(folder, how); });
        openFiles += file.error == 0 ? 1 : 0;
        return file;
    }
    int Name(Handle file, const std::string& path) override {
        return Do("Name", [&] { return m_files.Name(file, path); });
    }
    void Close(Handle file) override {
        m_files.Close(file);
        --openFiles;
    }
    QuorIniFile::IniResult<std::size_t> Read(Handle file, std::uint64_t offset, char* bytes,
                                             std::size_t size) override {
        return Ask("Read", [&] { return m_files.Read(file, offset, bytes, std::min(size, mostBytes)); });
    }
    QuorIniFile::IniResult<std::size_t> Write(Handle file, std::string_view bytes) override {
        return Ask("Write", [&] { return m_files.Write(file, bytes.substr(0, mostBytes)); });
    }
    int Sync(Handle file) override {
        return Do("Sync", [&] { return flushes ? m_files.Sync(file) : 0; });
    }
    int SyncFolder(const std::string& path) override {
        return Do("SyncFolder", [&] { return flushes ? m_files.SyncFolder(path) : 0; });
    }
    int TryLock(Handle file) override {
        return Do("TryLock", [&] { return m_files.TryLock(file); });
    }
    QuorIniFile::IniLockHolder LockHolder(Handle file) override { return m_files.LockHolder(file); }
    int CopyAttributes(Handle from, Handle to) override {
        return Do("CopyAttributes", [&] { return m_files.CopyAttributes(from, to); });
    }
    int Rename(const std::string& from, const std::string& to) override {
        return Do("Rename", [&] { return m_files.Rename(from, to); });
    }
    int SetRights(Handle file, std::uint32_t rights) override {
        return Do("SetRights", [&] { return m_files.SetRights(file, rights); });
    }
    int Exchange(const std::string& one, const std::string& other) override {
        return Do("Exchange", [&] { return m_files.Exchange(one, other); });
    }
    int Remove(const std::string& path) override {
        return Do("Remove", [&] { return m_files.Remove(path); });
    }
    int MakeFolder(const std::string& path) override {
        return Do("MakeFolder", [&] { return m_files.MakeFolder(path); });
    }
    void Pause(std::chrono::milliseconds time) override {
        paused += time;
        m_files.Pause(time);
    }
    std::uint64_t RandomNumber() override { return m_files.RandomNumber(); }
    std::chrono::milliseconds Clock() override { return m_files.Clock(); }

private:
    template <class Call>
    auto Ask(std::string_view name, const Call& call) -> decltype(call()) {
        if (const int error = onCall(name))
            return {error, {}};
        return call();
    }
    template <class Call>
    int Do(std::string_view name, const Call& call) {
        const int error = onCall(name);
        return error != 0 ? error : call();
    }

    QuorIniFile::IniFileSystem& m_files;
};

} // namespace Support
