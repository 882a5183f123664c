#pragma once

#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/RecordValue.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// Passes everything on to another INI-file object and records what was read through it, so that a host
/// learns from the library itself which keys a record consists of.
class ReadLog final : public QuorIniFile::INIFile {
public:
    /// One read.
    struct Read {
        std::wstring section; ///< the section that was selected
        std::wstring key;     ///< the key that was read
        Value value; ///< what the variable held afterwards; has the right type even if nothing was found
        bool found;  ///< whether the key was found with a value of that type
    };

    /// Records the reads of `store`, which is not null.
    explicit ReadLog(std::shared_ptr<QuorIniFile::INIFile> store) : m_store(std::move(store)) {
        constexpr std::size_t mostRecords = 16; // have no more keys
        m_reads.reserve(mostRecords);
    }

    /// All reads so far, in their order.
    [[nodiscard]] const std::vector<Read>& Reads() const { return m_reads; }
    /// How many reads there are: a position in Reads() that can be remembered.
    [[nodiscard]] std::size_t Count() const { return m_reads.size(); }
    /// Forgets all reads.
    void Forget() { m_reads.clear(); }

    void SetFileName(std::wstring_view fileName) override { m_store->SetFileName(fileName); }
    void SetSection(std::wstring_view section) override {
        m_section = section;
        m_store->SetSection(section);
    }
    bool ReadBoolean(std::wstring_view key, bool& value) override {
        return Log(key, value, m_store->ReadBoolean(key, value));
    }
    bool ReadDouble(std::wstring_view key, double& value) override {
        return Log(key, value, m_store->ReadDouble(key, value));
    }
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override {
        return Log(key, value, m_store->ReadInteger(key, value));
    }
    bool ReadString(std::wstring_view key, std::wstring& value) override {
        return Log(key, value, m_store->ReadString(key, value));
    }
    void WriteBoolean(std::wstring_view key, bool value) override { m_store->WriteBoolean(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override {
        m_store->WriteDouble(key, value, comment);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override {
        m_store->WriteInteger(key, value, comment);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        m_store->WriteString(key, value);
    }
    void Hold() override { m_store->Hold(); }
    void Release() override { m_store->Release(); }
    void Abandon() override { m_store->Abandon(); }

private:
    template <class T>
    bool Log(std::wstring_view key, const T& value, bool found) {
        m_reads.push_back({m_section, std::wstring(key), value, found});
        return found;
    }

    std::shared_ptr<QuorIniFile::INIFile> m_store;
    std::wstring m_section;
    std::vector<Read> m_reads;
};

} // namespace QuorProbeFile
