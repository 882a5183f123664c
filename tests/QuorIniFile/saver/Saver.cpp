// A program that saves as a host does, for the tests that need several processes:
//     IniSaver keys FILE SECTION COUNT    saves COUNT keys K0, K1, ... one by one
//     IniSaver records FILE COUNT FROM    saves COUNT records, each of eight keys with one number, FROM and
//     up IniSaver lock FILE                  takes the lock, says "locked", and keeps it until its input ends
// An error goes to the standard output and ends it with 1.

#include "QuorIniFile/IniDisk.h"
#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/Utf8.h"

#include <cstdint>
#include <exception>
#include <iostream>
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

void KeepLock(const std::wstring& file) {
    const IniReplacement replacement(file);
    std::cout << "locked" << std::endl;
    for (char c = 0; std::cin.get(c);) {
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, argv + argc);
    try {
        const std::string& deed = arguments.at(1);
        const std::wstring file = Wide(arguments.at(2));
        if (deed == "keys")
            SaveKeys(file, Wide(arguments.at(3)), std::stoi(arguments.at(4)));
        else if (deed == "records")
            SaveRecords(file, std::stoi(arguments.at(3)), std::stoi(arguments.at(4)));
        else
            KeepLock(file);
    } catch (const std::exception& error) {
        std::cout << error.what() << std::endl;
        return 1;
    }
    return 0;
}
