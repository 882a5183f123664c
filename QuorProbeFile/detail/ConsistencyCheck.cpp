#include "QuorProbeFile/detail/ConsistencyCheck.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorProbeFile/RecordImage.h"
#include "QuorProbeFile/RecordValue.h"
#include "QuorProbeFile/detail/RecordReading.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

using namespace QuorConversions;

namespace {

bool AreGivenBack(const RecordImage& written, const RecordImage& again) {
    return std::equal(written.Entries().begin(), written.Entries().end(), again.Entries().begin(),
                      again.Entries().end(),
                      [](const RecordImage::Entry& one, const RecordImage::Entry& other) {
                          return one.path == other.path && IsTaken(one.value, other.value);
                      });
}

} // namespace

/// What a settings object writes, given back to another one that reads it in the same order, and compared
/// with what that one writes.
class ConsistencyCheck::Tape final : public QuorIniFile::INIFile {
public:
    enum class Mode : std::uint8_t { Record, Replay, Compare };

    void Start(Mode mode) {
        if (mode != Mode::Record && m_mode == Mode::Record)
            m_count = m_next;
        m_mode = mode;
        m_next = 0;
        m_isSame = true;
    }
    /// Whether all was read, or written again.
    [[nodiscard]] bool IsSame() const { return m_isSame && m_next == m_count; }

    void SetFileName(std::wstring_view /*fileName*/) override {}
    void SetSection(std::wstring_view section) override { m_section = section; }
    bool ReadBoolean(std::wstring_view key, bool& value) override { return Replay(key, value); }
    bool ReadDouble(std::wstring_view key, double& value) override { return Replay(key, value); }
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override { return Replay(key, value); }
    bool ReadString(std::wstring_view key, std::wstring& value) override { return Replay(key, value); }
    void WriteBoolean(std::wstring_view key, bool value) override { Take(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view /*comment*/) override {
        Take(key, value);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view /*comment*/) override {
        Take(key, value);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        if (key != versionKey) // nobody reads it
            Take(key, std::wstring(value));
    }

private:
    struct Item {
        std::wstring section;
        std::wstring key;
        Value value;
    };

    /// The next item, if it is of that key.
    [[nodiscard]] const Item* Next(std::wstring_view key) {
        const Item* const item = m_next < m_count ? &m_items[m_next++] : nullptr;
        if (item && item->key == key && item->section == m_section)
            return item;
        m_isSame = false;
        return nullptr;
    }
    template <class T>
    bool Replay(std::wstring_view key, T& value) {
        const Item* const item = Next(key);
        const T* const found = item ? std::get_if<T>(&item->value) : nullptr;
        if (found)
            value = *found;
        return found != nullptr;
    }
    template <class T>
    void Take(std::wstring_view key, T value) {
        if (m_mode == Mode::Compare) {
            const Item* const item = Next(key);
            m_isSame = item && m_isSame && IsTaken(item->value, value);
            return;
        }
        if (m_next == m_items.size())
            m_items.emplace_back();
        Item& item = m_items[m_next++];
        item.section = m_section;
        item.key = key;
        item.value = std::move(value);
    }

    std::vector<Item> m_items; // of which the first m_count are of this record
    std::size_t m_count = 0;
    std::size_t m_next = 0;
    Mode m_mode = Mode::Record;
    std::wstring m_section;
    bool m_isSame = true;
};

/// Hears whether the library has something to say.
class ConsistencyCheck::Listener final : public HeadlessPlatform {
public:
    void ShowMessage(const MessageRequest& /*request*/) override { m_hasHeard = true; }
    [[nodiscard]] bool HasHeard() const { return m_hasHeard; }
    void Forget() { m_hasHeard = false; }

private:
    bool m_hasHeard = false;
};

ConsistencyCheck::ConsistencyCheck()
    : m_tape(std::make_shared<Tape>()), m_listener(std::make_shared<Listener>()), m_copy(m_listener) {}
ConsistencyCheck::~ConsistencyCheck() = default;

/// True of nearly all records, and told quickly.
bool ConsistencyCheck::IsReadBackInOrder(const SettingsObject& settings) {
    m_tape->Start(Tape::Mode::Record);
    settings.WriteOrRaise(m_tape, L"");
    m_tape->Start(Tape::Mode::Replay);
    m_listener->Forget();
    std::shared_ptr<INIFile> iniFile = m_tape;
    const auto copy = m_copy.Settings();
    if (!copy->ReadFromFile(iniFile, L"", L"") || m_listener->HasHeard() || !m_tape->IsSame())
        return false;
    m_tape->Start(Tape::Mode::Compare);
    copy->WriteOrRaise(m_tape, L"");
    return m_tape->IsSame();
}

bool ConsistencyCheck::Holds(const CQuorConversion& conversion) {
    const auto settings = conversion.Settings();
    if (!settings)
        return true;
    m_copy.SetConversionType(conversion.ConversionType());
    if (IsReadBackInOrder(*settings))
        return true;
    m_copy.SetConversionType(CONV_NONE); // which has read half a record
    const auto written = std::make_shared<RecordImage>();
    settings->WriteOrRaise(written, L"");
    const RecordReading reading(written, {{}, 0, conversion.ConversionType(), true});
    return reading.Messages().empty() && !reading.LacksKeys() &&
           AreGivenBack(*written, *RecordImage::Of(*reading.Settings()));
}

} // namespace QuorProbeFile
