// Any file, any edits, through the store and the disk, saved, discarded or loaded anew, while another program
// writes into the same file.

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/detail/Unicode.h"
#include "fuzz/Claim.h"
#include "fuzz/Edits.h"
#include "fuzz/PlainEdits.h"
#include "fuzz/PlainUtf16.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

using namespace QuorIniFile;
using Fuzz::Claim;
using Fuzz::Edit;
using Fuzz::HasUtf16Mark;
using Fuzz::PlainEdits;
using Fuzz::PlainText;

constexpr const char* name = "fuzz.ini";

struct StoreWriter {
    IniStore& store;
    const Edit& edit;

    void operator()(const std::wstring& text) const { store.WriteString(edit.key, text); }
    void operator()(double number) const { store.WriteDouble(edit.key, number, edit.comment); }
    void operator()(std::int16_t number) const { store.WriteInteger(edit.key, number, edit.comment); }
    void operator()(bool flag) const { store.WriteBoolean(edit.key, flag); }
};

struct StoreReader {
    IniStore& store;
    const std::wstring& key;

    bool operator()(const std::wstring& text) const {
        std::wstring read;
        return store.ReadString(key, read) && read == text;
    }
    bool operator()(double number) const {
        double read = 0;
        return store.ReadDouble(key, read) && (read == number || (std::isnan(read) && std::isnan(number))) &&
               std::signbit(read) == (!std::isnan(number) && std::signbit(number));
    }
    bool operator()(std::int16_t number) const {
        std::int16_t read = 0;
        return store.ReadInteger(key, read) && read == number;
    }
    bool operator()(bool flag) const {
        bool read = !flag;
        return store.ReadBoolean(key, read) && read == flag;
    }
};

/// Whether a call of the store goes well. What it refuses is error 75.
template <class Call>
bool IsDone(const Call& call) {
    try {
        call();
        return true;
    } catch (const QuorError& error) {
        Claim(error.Number() == ERR_PATH_FILE_ACCESS, "what cannot be done is error 75");
        return false;
    }
}

/// A store on a file, and what it has to hold.
class Trial {
public:
    Trial(const TempFolder& folder, std::string_view text) : m_folder(folder) {
        m_folder.Write(name, text);
        m_store.SetFileName(m_folder.Name(name));
        m_store.Hold();
    }

    void Do(const Edit& edit) {
        static constexpr std::pair<char, void (Trial::*)(const Edit&)> kinds[] = {
            {'R', &Trial::Remove}, {'N', &Trial::Rename}, {'S', &Trial::Save},  {'D', &Trial::Discard},
            {'L', &Trial::Reload}, {'X', &Trial::Append}, {'H', &Trial::Halve}, {'U', &Trial::Turn},
        };
        const auto* const kind = std::find_if(std::begin(kinds), std::end(kinds),
                                              [&](const auto& row) { return row.first == edit.kind; });
        (this->*(kind == std::end(kinds) ? &Trial::Write : kind->second))(edit);
        Claim(m_store.FileChanged() == (m_plain && m_loaded != File()),
              "a store knows whether its file has changed");
    }

    void Save(const Edit& /*edit*/ = {}) {
        const std::string before = File();
        std::optional<PlainEdits> there = m_plain;
        if (m_plain && m_loaded != before)
            there = In(before);
        const bool isSaved = IsDone([&] { m_store.Release(); });
        m_store.Hold();
        if (!isSaved) {
            const bool mayBecomeUtf16 = !HasUtf16Mark(before) && before.find('\0') != std::string::npos;
            Claim(m_isAsked && (!there || mayBecomeUtf16), "only what is no valid UTF-16, what would become "
                                                           "it, a name that is taken and a section that is "
                                                           "gone cannot be saved into");
            Claim(File() == before, "a save that fails leaves the file as it is");
            Discard();
            return;
        }
        const std::string saved = File();
        if (!m_isAsked) {
            Claim(saved == before, "where nothing was asked for nothing is saved");
            return;
        }
        Claim(there.has_value(),
              "a name that is taken is not given to another section, and a section that is "
              "gone does not come back in part");
        const auto text = PlainText(saved);
        Claim(text && HasUtf16Mark(saved) == HasUtf16Mark(before) &&
                  (!HasUtf16Mark(before) || saved.starts_with(before.substr(0, 2))),
              "a file keeps its encoding and its byte order");
        there->ClaimMade(*text);
        ClaimRead(*there);
        Load(saved);
        Claim(m_store.Sections() == m_plain->Names(),
              "a store lists the sections of its file in their order");
    }

private:
    [[nodiscard]] std::string File() const { return m_folder.Read(name); }

    void Load(const std::string& bytes) {
        m_plain.emplace(PlainText(bytes).value());
        m_loaded = bytes;
        m_isAsked = false;
    }

    /// The store loads its file when it is first asked for something. False when nobody can.
    bool IsLoaded() {
        if (const std::string bytes = File(); !m_plain && PlainText(bytes))
            Load(bytes);
        return m_plain.has_value();
    }

    void Write(const Edit& edit) {
        const bool isLoaded = IsLoaded();
        m_store.SetSection(edit.section);
        if (!IsDone([&] { std::visit(StoreWriter{m_store, edit}, edit.value); }))
            return; // a name that no file can hold
        Claim(isLoaded, "nothing is written into what is no valid UTF-16");
        Claim(std::visit(StoreReader{m_store, edit.key}, edit.value), "a store reads what it was given");
        m_plain->Write(edit);
        m_isAsked = true;
    }

    void Remove(const Edit& edit) {
        const bool isLoaded = IsLoaded();
        Claim(IsDone([&] { m_store.RemoveSection(edit.section); }) == isLoaded, "any section can be removed");
        if (!isLoaded)
            return;
        m_isAsked = m_isAsked || m_plain->Has(edit.section);
        m_plain->Remove(edit.section);
        ClaimNames();
    }

    void Rename(const Edit& edit) {
        const bool isLoaded = IsLoaded();
        const bool isDone = IsDone([&] { m_store.RenameSection(edit.section, edit.key); });
        Claim(isDone == (isLoaded && m_plain->Rename(edit.section, edit.key)),
              "a section gets any name that is free and can be read back");
        m_isAsked = m_isAsked || isDone;
        if (isLoaded)
            ClaimNames();
    }

    void Discard(const Edit& /*edit*/ = {}) {
        m_store.Discard();
        m_plain.reset();
        m_isAsked = false;
    }

    void Reload(const Edit& /*edit*/) {
        const std::string bytes = File();
        const bool isDone = IsDone([&] { m_store.Reload(); });
        if (!m_plain)
            return;
        auto there = In(bytes);
        Claim(
            isDone == there.has_value(),
            "only what is no valid UTF-16, a name that is taken and a section that is gone cannot be loaded");
        if (!isDone)
            return;
        m_plain = std::move(there);
        m_loaded = bytes;
        m_isAsked = m_plain->AreMade();
        ClaimNames();
    }

    // What another program does.
    void Append(const Edit& edit) { m_folder.Write(name, File() + edit.bytes + '\n'); }

    void Halve(const Edit& /*edit*/) {
        const std::string text = File();
        m_folder.Write(name, text.substr(text.size() / 2));
    }

    void Turn(const Edit& /*edit*/) {
        const std::string bytes = File();
        const auto text = PlainText(bytes);
        if (text && HasUtf16Mark(bytes))
            m_folder.Write(name, *text);
        else if (text && IsAscii(std::string_view(*text)))
            m_folder.Write(name, Fuzz::PlainUtf16(*text));
    }

    /// The edits in what somebody else has made of the file; nothing when they cannot be made.
    [[nodiscard]] std::optional<PlainEdits> In(const std::string& bytes) const {
        const auto text = PlainText(bytes);
        return text ? m_plain->In(*text).edits : std::nullopt;
    }

    void ClaimNames() {
        Claim(Sorted(m_store.Sections()) == Sorted(m_plain->Names()),
              "a store lists the sections that are there");
    }

    static std::vector<std::wstring> Sorted(std::vector<std::wstring> names) {
        std::transform(names.begin(), names.end(), names.begin(), Fuzz::Folded);
        std::sort(names.begin(), names.end());
        return names;
    }

    void ClaimRead(const PlainEdits& plain) const {
        IniStore fresh;
        fresh.SetFileName(m_folder.Name(name));
        for (const auto& [place, edit] : plain.Written()) {
            fresh.SetSection(edit.section);
            Claim(std::visit(StoreReader{fresh, edit.key}, edit.value),
                  "a second store reads what was saved");
        }
    }

    const TempFolder& m_folder;
    IniStore m_store;
    std::optional<PlainEdits> m_plain; // nothing until the store has loaded its file
    std::string m_loaded;              // the bytes of the file then
    bool m_isAsked = false;            // for anything since then
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TempFolder folder;
    const Fuzz::EditedFile file = Fuzz::ParseInput(Fuzz::Bytes(data, size));
    Trial trial(folder, file.text);
    for (const Edit& edit : file.edits)
        trial.Do(edit);
    trial.Save();
    return 0;
}
