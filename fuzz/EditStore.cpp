// Any file, any edits, through the store and the disk, while another program writes into the same file.

#include "QuorIniFile/IniFormat.h"
#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "fuzz/Claim.h"
#include "fuzz/Edits.h"
#include "tests/support/TempFolder.h"

#include <cmath>

namespace {

using namespace QuorIniFile;
using Fuzz::Claim;
using Fuzz::Edit;

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

/// False when the store refuses the edit.
bool Write(IniStore& store, const Edit& edit) {
    try {
        store.SetSection(edit.section);
        std::visit(StoreWriter{store, edit}, edit.value);
        return true;
    } catch (const QuorError& error) {
        Claim(error.Number() == ERR_PATH_FILE_ACCESS, "a name that no file can hold is error 75");
        return false;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TempFolder folder;
    const Fuzz::EditedFile file = Fuzz::ParseInput(Fuzz::Bytes(data, size));
    folder.Write(name, file.text);
    IniStore store;
    store.SetFileName(folder.Name(name));
    store.Hold();
    std::map<Fuzz::PlainIni::Place, Edit> written;

    const auto save = [&] {
        const std::string before = folder.Read(name);
        try {
            store.Release();
        } catch (const QuorError& error) {
            Claim(error.Number() == ERR_PATH_FILE_ACCESS &&
                      (IsUtf16(before) || before == std::string(1, '\0')),
                  "only UTF-16, and what would become it, cannot be saved into");
            Claim(folder.Read(name) == before, "a save that fails leaves the file as it is");
            store.Hold();
            return false;
        }
        store.Hold();
        Fuzz::ClaimOnlyThese(before, written, folder.Read(name));
        IniStore fresh;
        fresh.SetFileName(folder.Name(name));
        for (const auto& [place, edit] : written) {
            fresh.SetSection(edit.section);
            Claim(std::visit(StoreReader{fresh, edit.key}, edit.value),
                  "a second store reads what was saved");
        }
        written.clear();
        return true;
    };

    for (const Edit& edit : file.edits) {
        if (edit.kind == 'S') {
            if (!save())
                return 0;
        } else if (edit.kind == 'X') {
            folder.Write(name, folder.Read(name) + edit.bytes + '\n');
        } else if (Write(store, edit)) {
            store.SetSection(edit.section);
            Claim(std::visit(StoreReader{store, edit.key}, edit.value), "a store reads what it was given");
            written[edit.Place()] = edit;
        }
    }
    save();
    return 0;
}
