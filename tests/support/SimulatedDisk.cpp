#include "tests/support/SimulatedDisk.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace Support {

using QuorIniFile::IniFileStatus;
using QuorIniFile::IniResult;

SimulatedDisk::SimulatedDisk(const Files& files) {
    for (const auto& [path, bytes] : files) {
        m_now.names[path] = ++m_lastInode;
        m_now.files[m_lastInode] = {bytes, ++m_changes};
    }
    m_durable = m_now;
}

SimulatedDisk::Files SimulatedDisk::FilesOf(const State& state) {
    Files files;
    for (const auto& [path, inode] : state.names) {
        const auto file = state.files.find(inode);
        files[path] = file != state.files.end() ? file->second.bytes : "";
    }
    return files;
}

SimulatedDisk::Files SimulatedDisk::Now() const { return FilesOf(m_now); }

void SimulatedDisk::Apply(const Change& change, Extent extent, State& state) {
    if (extent == Extent::Nothing)
        return;
    if (const auto* written = std::get_if<Written>(&change)) {
        const std::size_t size = extent == Extent::Whole ? written->bytes.size() : written->bytes.size() / 2;
        std::string& bytes = state.files[written->file].bytes;
        bytes.resize(std::max(bytes.size(), written->at + size)); // a hole is zeros
        bytes.replace(written->at, size, written->bytes, 0, size);
    } else if (const auto* named = std::get_if<Named>(&change)) {
        state.names[named->to] = named->file;
        if (extent == Extent::Whole)
            state.names.erase(named->from);
    } else {
        state.names.erase(std::get<Removed>(change).name);
    }
}

std::vector<SimulatedDisk::Files> SimulatedDisk::AfterPowerCut() const {
    std::vector<State> states{m_durable};
    for (const Change& change : m_pending) {
        std::vector<State> more;
        for (const State& state : states) {
            for (const Extent extent : {Extent::Nothing, Extent::Half, Extent::Whole}) {
                more.push_back(state);
                Apply(change, extent, more.back());
            }
        }
        states = std::move(more);
    }
    std::vector<Files> result;
    result.reserve(states.size());
    for (const State& state : states)
        result.push_back(FilesOf(state));
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

void SimulatedDisk::Make(Change change) {
    Apply(change, Extent::Whole, m_now);
    m_pending.push_back(std::move(change));
    ++m_changes;
}

void SimulatedDisk::Rewrite(const std::string& path, const std::string& bytes) {
    m_now.files.at(m_now.names.at(path)) = {bytes, ++m_changes};
}

IniFileStatus SimulatedDisk::StatusOfInode(Inode inode) const {
    const File& file = m_now.files.at(inode);
    constexpr std::int64_t farAhead = 4'102'444'800; // the year 2100: no change was long ago
    const std::int64_t changed = clockStands ? farAhead : file.changed;
    return {IniFileStatus::Kind::Regular, 1, inode, file.bytes.size(), changed, 0};
}

IniResult<IniFileStatus> SimulatedDisk::StatusAt(const std::string& path) {
    waited += latency;
    const auto name = m_now.names.find(path);
    if (name == m_now.names.end())
        return {ENOENT, {}};
    return {0, StatusOfInode(name->second)};
}

IniResult<IniFileStatus> SimulatedDisk::StatusOf(Handle file) { return {0, StatusOfInode(m_open.at(file))}; }

IniResult<std::string> SimulatedDisk::LinkAt(const std::string& path) {
    return {m_now.names.count(path) != 0 ? EINVAL : ENOENT, {}};
}

int SimulatedDisk::MayWrite(const std::string& path) { return m_now.names.count(path) != 0 ? 0 : ENOENT; }

IniResult<SimulatedDisk::Handle> SimulatedDisk::Open(const std::string& path, Opening how) {
    const bool create = how == Opening::CreatePrivate || how == Opening::CreateShared;
    const bool exists = m_now.names.count(path) != 0;
    if (create == exists)
        return {create ? EEXIST : ENOENT, {}};
    if (create) {
        m_now.files[++m_lastInode] = {"", m_changes + 1};
        Make(Named{"", path, m_lastInode});
    }
    m_open[++m_lastHandle] = m_now.names.at(path);
    return {0, m_lastHandle};
}

void SimulatedDisk::Close(Handle file) {
    const Inode inode = m_open.at(file);
    m_open.erase(file);
    const auto lock = m_locks.find(inode);
    if (lock != m_locks.end() && lock->second == file)
        m_locks.erase(lock);
}

IniResult<std::size_t> SimulatedDisk::Read(Handle file, std::uint64_t offset, char* bytes, std::size_t size) {
    const std::string& all = m_now.files.at(m_open.at(file)).bytes;
    return {0, offset >= all.size() ? 0 : all.copy(bytes, size, static_cast<std::size_t>(offset))};
}

IniResult<std::size_t> SimulatedDisk::Write(Handle file, std::string_view bytes) {
    std::size_t used = 0;
    for (const auto& [path, content] : Now())
        used += content.size();
    if (used >= capacity && !bytes.empty())
        return {ENOSPC, 0};
    bytes = bytes.substr(0, capacity - used);
    const Inode inode = m_open.at(file);
    const std::size_t end = m_now.files.at(inode).bytes.size();
    // Two pages, which reach the disk each for itself.
    const std::size_t half = bytes.size() / 2;
    Make(Written{inode, end, std::string(bytes.substr(0, half))});
    Make(Written{inode, end + half, std::string(bytes.substr(half))});
    m_now.files.at(inode).changed = m_changes;
    return {0, bytes.size()};
}

int SimulatedDisk::Sync(Handle file) {
    const Inode inode = m_open.at(file);
    const auto isDone = [&](const Change& change) {
        const auto* written = std::get_if<Written>(&change);
        return written != nullptr && written->file == inode;
    };
    m_durable.files[inode] = m_now.files.at(inode);
    m_pending.erase(std::remove_if(m_pending.begin(), m_pending.end(), isDone), m_pending.end());
    return 0;
}

int SimulatedDisk::SyncFolder(const std::string& /*path*/) {
    const auto isDone = [](const Change& change) { return !std::holds_alternative<Written>(change); };
    m_durable.names = m_now.names;
    m_pending.erase(std::remove_if(m_pending.begin(), m_pending.end(), isDone), m_pending.end());
    return 0;
}

int SimulatedDisk::TryLock(Handle file) {
    if (!hasLocks)
        return ENOTSUP;
    return m_locks.try_emplace(m_open.at(file), file).first->second == file ? 0 : EWOULDBLOCK;
}

std::string SimulatedDisk::LockHolder(Handle /*file*/) { return lockHolder; }

int SimulatedDisk::CopyAttributes(Handle /*from*/, Handle /*to*/) { return 0; }

int SimulatedDisk::Rename(const std::string& from, const std::string& to) {
    const auto name = m_now.names.find(from);
    if (name == m_now.names.end())
        return ENOENT;
    const Inode inode = name->second;
    Make(Named{from, to, inode});
    m_now.files.at(inode).changed = m_changes;
    return 0;
}

int SimulatedDisk::Remove(const std::string& path) {
    if (m_now.names.count(path) == 0)
        return ENOENT;
    Make(Removed{path});
    return 0;
}

int SimulatedDisk::MakeFolder(const std::string& /*path*/) { return 0; }

void SimulatedDisk::Pause(std::chrono::milliseconds time) { waited += time; }

std::chrono::milliseconds SimulatedDisk::Clock() { return waited; }

} // namespace Support
