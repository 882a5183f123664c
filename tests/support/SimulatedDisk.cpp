#include "tests/support/SimulatedDisk.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <set>
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
    } else if (const auto* exchanged = std::get_if<Exchanged>(&change)) {
        state.names[exchanged->other] = exchanged->first;
        if (extent == Extent::Whole)
            state.names[exchanged->one] = exchanged->second;
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

void SimulatedDisk::Replace(const std::string& path, const std::string& bytes) {
    m_now.files[++m_lastInode] = {bytes, ++m_changes};
    m_durable.files[m_lastInode] = m_now.files[m_lastInode];
    Make(Named{"", path, m_lastInode});
}

IniFileStatus SimulatedDisk::StatusOfInode(Inode inode) const {
    const File& file = m_now.files.at(inode);
    constexpr std::int64_t farAhead = 4'102'444'800; // the year 2100: no change was long ago
    const std::int64_t changed = clockStands ? farAhead : file.changed;
    return {IniFileStatus::Kind::Regular, 1, inode, file.bytes.size(), changed, 0, ownerOnly};
}

IniResult<std::string> SimulatedDisk::CurrentFolder() { return {0, "/"}; }

IniResult<std::vector<std::string>> SimulatedDisk::NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    const std::string start = folder.ends_with('/') ? folder : folder + '/';
    for (const auto& [path, inode] : m_now.names) {
        if (path.starts_with(start))
            names.push_back(path.substr(start.size()));
    }
    return {0, std::move(names)};
}

IniResult<IniFileStatus> SimulatedDisk::StatusAt(const std::string& path) {
    waited += latency;
    const auto name = m_now.names.find(path);
    if (name == m_now.names.end())
        return {ENOENT, {}};
    return {0, StatusOfInode(name->second)};
}

IniResult<IniFileStatus> SimulatedDisk::StatusOf(Handle file) {
    return {0, StatusOfInode(m_open.at(file).file)};
}

IniResult<std::string> SimulatedDisk::LinkAt(const std::string& path) {
    return {m_now.names.count(path) != 0 ? EINVAL : ENOENT, {}};
}

int SimulatedDisk::MayWrite(const std::string& path) { return m_now.names.count(path) != 0 ? 0 : ENOENT; }

IniResult<SimulatedDisk::Handle> SimulatedDisk::Open(const std::string& path, Opening how) {
    const bool create = how != Opening::ToRead && how != Opening::ToLock;
    const bool exists = m_now.names.count(path) != 0;
    if (create == exists)
        return {create ? EEXIST : ENOENT, {}};
    if (create) {
        m_now.files[++m_lastInode] = {"", m_changes + 1};
        Make(Named{"", path, m_lastInode});
    }
    m_open[++m_lastHandle] = {m_now.names.at(path), computer};
    return {0, m_lastHandle};
}

IniResult<SimulatedDisk::Handle> SimulatedDisk::OpenUnnamed(const std::string& /*folder*/, Opening /*how*/) {
    if (!hasUnnamedFiles)
        return {ENOTSUP, {}};
    m_now.files[++m_lastInode] = {"", m_changes + 1};
    m_open[++m_lastHandle] = {m_lastInode, computer};
    return {0, m_lastHandle};
}

int SimulatedDisk::Name(Handle file, const std::string& path) {
    if (m_now.names.count(path) != 0)
        return EEXIST;
    const Inode inode = m_open.at(file).file;
    Make(Named{"", path, inode});
    m_now.files.at(inode).changed = m_changes;
    return 0;
}

void SimulatedDisk::Close(Handle file) {
    m_open.erase(file);
    for (auto lock = m_locks.begin(); lock != m_locks.end();)
        lock = lock->second == file ? m_locks.erase(lock) : std::next(lock);
}

IniResult<std::size_t> SimulatedDisk::Read(Handle file, std::uint64_t offset, char* bytes, std::size_t size) {
    const std::string& all = m_now.files.at(m_open.at(file).file).bytes;
    return {0, offset >= all.size() ? 0 : all.copy(bytes, size, static_cast<std::size_t>(offset))};
}

IniResult<std::size_t> SimulatedDisk::Write(Handle file, std::string_view bytes) {
    std::set<Inode> inUse;
    for (const auto& [path, inode] : m_now.names)
        inUse.insert(inode);
    for (const auto& [handle, open] : m_open)
        inUse.insert(open.file);
    std::size_t used = 0;
    for (const Inode inode : inUse)
        used += m_now.files.at(inode).bytes.size();
    if (used >= capacity && !bytes.empty())
        return {ENOSPC, 0};
    bytes = bytes.substr(0, capacity - used);
    const Inode inode = m_open.at(file).file;
    const std::size_t end = m_now.files.at(inode).bytes.size();
    // Two pages, which reach the disk each for itself.
    const std::size_t half = bytes.size() / 2;
    Make(Written{inode, end, std::string(bytes.substr(0, half))});
    Make(Written{inode, end + half, std::string(bytes.substr(half))});
    m_now.files.at(inode).changed = m_changes;
    return {0, bytes.size()};
}

int SimulatedDisk::Sync(Handle file) {
    const Inode inode = m_open.at(file).file;
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
    const OpenFile& open = m_open.at(file);
    const std::pair key{open.file, sharesLocks ? 0 : open.computer};
    return m_locks.try_emplace(key, file).first->second == file ? 0 : EWOULDBLOCK;
}

QuorIniFile::IniLockHolder SimulatedDisk::LockHolder(Handle /*file*/) { return lockHolder; }

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

int SimulatedDisk::SetRights(Handle /*file*/, std::uint32_t /*rights*/) { return 0; }

int SimulatedDisk::Exchange(const std::string& one, const std::string& other) {
    if (!hasExchange)
        return ENOTSUP;
    const auto first = m_now.names.find(one);
    const auto second = m_now.names.find(other);
    if (first == m_now.names.end() || second == m_now.names.end())
        return ENOENT;
    const Exchanged exchanged{one, other, first->second, second->second};
    Make(exchanged);
    m_now.files.at(exchanged.first).changed = m_now.files.at(exchanged.second).changed = m_changes;
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

std::uint64_t SimulatedDisk::RandomNumber() { return ++m_lastRandom; }

std::chrono::milliseconds SimulatedDisk::Clock() { return waited; }

} // namespace Support
