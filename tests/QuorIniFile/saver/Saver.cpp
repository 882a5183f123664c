// A program that saves as a host does, for the tests that need several processes:
//     IniSaver keys FILE SECTION COUNT    saves COUNT keys K0, K1, ... one by one
//     IniSaver records FILE COUNT FROM    saves COUNT records, each of eight keys with one number, from FROM
//     IniSaver add FILE COUNT             adds 1 COUNT times to N in the section Counter, each in an edit
//     IniSaver lock FILE                  takes the lock, says "locked", and keeps it until its input ends
//     IniSaver fork FILE                  the same, says the number of a child that does nothing
//     IniSaver lease FILE                 takes a lease on the file, says "leased", and gives it back a while
//                                         after it is asked to; ends with its input
//     IniSaver storm FILE SECTION LOG SECONDS
//                                         saves keys K0, K1, ... for so long, each again until it is saved,
//                                         and adds a line to LOG for each
// An error goes to the standard output and ends it with 1.

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "tests/QuorIniFile/saver/SaverSystem.h"

#include <chrono>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace QuorIniFile;

namespace {

std::wstring Wide(const std::string& text) { return FromUtf8(text).value(); }

void SaveKeys(const std::wstring& file, const std::wstring& section, int count) {
    IniStore store;
    store.SetFileName(file);
    store.SetSection(section);
    for (int i = 0; i < count; ++i)
        store.WriteInteger(L"K" + std::to_wstring(i), static_cast<std::int16_t>(i), L"");
}

void SaveRecords(const std::wstring& file, int count, int from) {
    IniStore store;
    store.SetFileName(file);
    store.SetSection(L"Shared");
    for (int i = 0; i < count; ++i) {
        store.Hold();
        for (int key = 0; key < 8; ++key)
            store.WriteInteger(L"K" + std::to_wstring(key), static_cast<std::int16_t>(from + i), L"");
        store.Release();
    }
}

void Add(const std::wstring& file, int count) {
    IniStore store;
    store.SetFileName(file);
    store.SetSection(L"Counter");
    for (int i = 0; i < count; ++i) {
        store.Edit([&store] {
            std::int16_t number = 0;
            static_cast<void>(store.ReadInteger(L"N", number));
            store.WriteInteger(L"N", static_cast<std::int16_t>(number + 1), L"");
        });
    }
}

void KeepLock(const std::wstring& file) {
    const IniReplacement replacement(file);
    std::cout << "locked" << std::endl;
    for (char c = 0; std::cin.get(c);) {
    }
}

/// Goes on behind what the log says, because a storm kills savers and starts them again.
void SaveInAStorm(const std::wstring& file, const std::wstring& section, const std::string& log,
                  int seconds) {
    int key = 0;
    std::ifstream before(log);
    for (std::string line; std::getline(before, line);)
        ++key;
    std::ofstream saved(log, std::ios::app);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (std::chrono::steady_clock::now() < end) {
        try {
            IniStore store;
            store.SetFileName(file);
            store.SetSection(section);
            store.WriteInteger(L"K" + std::to_wstring(key), static_cast<std::int16_t>(key), L"");
            saved << key++ << std::endl;
        } catch (const QuorError&) { // NOLINT(bugprone-empty-catch): a storm; it is tried again
        }
    }
}

} // namespace

#ifdef __SANITIZE_ADDRESS__
// A search for leaks that is stopped in its middle, as the storms stop this program, never ends. The
// sanitizer, which is a shared library, finds only what the program exports.
extern "C" [[gnu::visibility("default")]] const char* __asan_default_options() { return "detect_leaks=0"; }
#endif

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, argv + argc);
    try {
        const std::string& task = arguments.at(1);
        const std::wstring file = Wide(arguments.at(2));
        if (task == "keys")
            SaveKeys(file, Wide(arguments.at(3)), std::stoi(arguments.at(4)));
        else if (task == "records")
            SaveRecords(file, std::stoi(arguments.at(3)), std::stoi(arguments.at(4)));
        else if (task == "storm")
            SaveInAStorm(file, Wide(arguments.at(3)), arguments.at(4), std::stoi(arguments.at(5)));
        else if (task == "add")
            Add(file, std::stoi(arguments.at(3)));
        else if (task == "lock")
            KeepLock(file);
        else if (!RunSystemTask(task, arguments.at(2)))
            throw std::invalid_argument(task);
    } catch (const std::exception& error) {
        std::cout << error.what() << std::endl;
        return 1;
    }
    return 0;
}
