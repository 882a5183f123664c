// What the store promises of files, where the system is Windows.

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

#include <sddl.h>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using namespace std::chrono_literals;
using Names = std::vector<std::string>;

namespace {

/// The program that saves as a host does, started with these arguments, its output in a pipe.
class Saver {
public:
    explicit Saver(std::initializer_list<std::wstring> arguments) {
        std::array<wchar_t, MAX_PATH> tests{}; // the program beside which the saver stands
        ::GetModuleFileNameW(nullptr, tests.data(), MAX_PATH);
        std::wstring line = L"\"" + (fs::path(tests.data()).parent_path() / "IniSaver.exe").wstring() + L"\"";
        for (const std::wstring& argument : arguments)
            line += L" \"" + argument + L"\"";
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        HANDLE programIn = nullptr;
        HANDLE programOut = nullptr;
        ::CreatePipe(&programIn, &m_input, &inherited, 0);
        ::CreatePipe(&m_output, &programOut, &inherited, 0);
        ::SetHandleInformation(m_input, HANDLE_FLAG_INHERIT, 0);
        ::SetHandleInformation(m_output, HANDLE_FLAG_INHERIT, 0);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = programIn;
        start.hStdOutput = programOut;
        start.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
        const BOOL started = ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                              nullptr, &start, &m_process);
        ::CloseHandle(programIn);
        ::CloseHandle(programOut);
        if (started == FALSE)
            throw std::runtime_error("cannot start the saver");
    }
    Saver(const Saver&) = delete;
    Saver& operator=(const Saver&) = delete;
    ~Saver() {
        for (const HANDLE handle : {m_process.hProcess, m_process.hThread, m_input, m_output})
            ::CloseHandle(handle);
    }
    [[nodiscard]] std::string ReadLine() const {
        std::string line;
        DWORD count = 0;
        for (char c = 0; ::ReadFile(m_output, &c, 1, &count, nullptr) != FALSE && count == 1 && c != '\n';) {
            if (c != '\r')
                line += c;
        }
        return line;
    }
    /// As the task manager does: it has no chance to tidy up.
    void Kill() const { ::TerminateProcess(m_process.hProcess, 9); }
    [[nodiscard]] DWORD Wait() const {
        DWORD code = 0;
        ::WaitForSingleObject(m_process.hProcess, INFINITE);
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION m_process{};
    HANDLE m_input = nullptr;
    HANDLE m_output = nullptr;
};

HANDLE OpenToRead(const std::wstring& file) {
    return ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                         nullptr, OPEN_EXISTING, 0, nullptr);
}

bool IsWine() { return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

void Save(const std::wstring& file, std::int16_t value) {
    IniStore store;
    store.SetFileName(file);
    store.SetSection(L"A");
    store.WriteInteger(L"x", value, L"");
}

std::int32_t NumberRaisedBySaving(const std::wstring& file) {
    try {
        Save(file, 2);
    } catch (const QuorError& error) {
        return error.Number();
    }
    return 0;
}

/// The access list of a file, as the system spells it.
std::wstring AccessListOf(const std::wstring& file) {
    std::array<std::byte, 4096> descriptor{};
    DWORD size = 0;
    LPWSTR text = nullptr;
    if (::GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(),
                           static_cast<DWORD>(descriptor.size()), &size) == FALSE ||
        ::ConvertSecurityDescriptorToStringSecurityDescriptorW(
            descriptor.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr) == FALSE)
        return L"";
    std::wstring list = text;
    ::LocalFree(text);
    return list;
}

void SetAccessList(const std::wstring& file, const wchar_t* list) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ::ConvertStringSecurityDescriptorToSecurityDescriptorW(list, SDDL_REVISION_1, &descriptor, nullptr);
    ::SetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, descriptor);
    ::LocalFree(descriptor);
}

} // namespace

TEST(IniFileSystemWindows, TwoProcessesThatSaveOneFileLoseNothing) {
    const TempFolder folder;
    folder.Write("a.ini", "; the host's own\r\n[Host]\r\nFolder=C:\\Data\\\r\n");
    const std::wstring file = folder.Name("a.ini");
    const Saver one{L"keys", file, L"One", L"50"};
    const Saver other{L"keys", file, L"Other", L"50"};
    EXPECT_EQ(one.Wait(), 0U) << one.ReadLine();
    EXPECT_EQ(other.Wait(), 0U) << other.ReadLine();
    IniStore store;
    store.SetFileName(file);
    for (const wchar_t* const section : {L"One", L"Other"}) {
        store.SetSection(section);
        for (std::int16_t i = 0; i < 50; ++i) {
            std::int16_t value = -1;
            EXPECT_TRUE(store.ReadInteger(L"K" + std::to_wstring(i), value));
            EXPECT_EQ(value, i);
        }
    }
    EXPECT_TRUE(folder.Read("a.ini").starts_with("; the host's own\r\n[Host]\r\nFolder=C:\\Data\\\r\n"));
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniFileSystemWindows, EditsOfTwoProcessesLoseNoUpdate) {
    const TempFolder folder;
    folder.Write("a.ini", "[Counter]\r\nN=0\r\n");
    const Saver one{L"add", folder.Name("a.ini"), L"50"};
    const Saver other{L"add", folder.Name("a.ini"), L"50"};
    EXPECT_EQ(one.Wait(), 0U) << one.ReadLine();
    EXPECT_EQ(other.Wait(), 0U) << other.ReadLine();
    EXPECT_EQ(folder.Read("a.ini"), "[Counter]\r\nN=100\r\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniFileSystemWindows, ALockDiesWithItsProcess) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\r\nx=1\r\n");
    const Saver holder{L"lock", folder.Name("a.ini")};
    ASSERT_EQ(holder.ReadLine(), "locked");
    EXPECT_EQ(folder.Files().size(), 2U) << "the file and its lock";
    holder.Kill();
    EXPECT_EQ(holder.Wait(), 9U);
    const auto start = std::chrono::steady_clock::now();
    Save(folder.Name("a.ini"), 2);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\r\nx=2\r\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniFileSystemWindows, AFileInUseIsErrorSeventyAfterTenSeconds) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\r\nx=1\r\n");
    const Saver holder{L"lock", folder.Name("a.ini")};
    ASSERT_EQ(holder.ReadLine(), "locked");
    EXPECT_EQ(NumberRaisedBySaving(folder.Name("a.ini")), 70);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\r\nx=1\r\n");
    holder.Kill();
    EXPECT_EQ(holder.Wait(), 9U);
}

TEST(IniFileSystemWindows, AReaderGoesOnReadingTheOldFileWhileItIsReplaced) {
    if (IsWine())
        GTEST_SKIP() << "Wine replaces no open file: a save waits there until it is closed";
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    const HANDLE reader = OpenToRead(folder.Name("a.ini"));
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    Save(folder.Name("a.ini"), 2);
    std::array<char, 32> bytes{};
    DWORD count = 0;
    EXPECT_NE(::ReadFile(reader, bytes.data(), bytes.size(), &count, nullptr), FALSE);
    ::CloseHandle(reader);
    EXPECT_EQ(std::string(bytes.data(), count), "[A]\nx=1\n");
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
}

TEST(IniFileSystemWindows, AFileThatSomebodyReadsIsSavedAtTheLatestWhenItIsClosed) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    const HANDLE reader = OpenToRead(folder.Name("a.ini"));
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    std::thread closing([reader] {
        std::this_thread::sleep_for(300ms);
        ::CloseHandle(reader);
    });
    Save(folder.Name("a.ini"), 2);
    closing.join();
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniFileSystemWindows, AReaderSeesTheOldFileOrTheNewOneAtEveryMoment) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    std::atomic<bool> ended = false;
    int wrong = 0;
    std::thread reader([&] {
        while (!ended) {
            IniStore store;
            store.SetFileName(folder.Name("a.ini"));
            store.SetSection(L"A");
            std::int16_t value = 0;
            wrong += store.ReadInteger(L"x", value) && value >= 1 ? 0 : 1;
            std::this_thread::sleep_for(1ms); // Wine replaces no open file
        }
    });
    for (std::int16_t i = 2; i <= 30; ++i)
        Save(folder.Name("a.ini"), i);
    ended = true;
    reader.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=30\n");
}

TEST(IniFileSystemWindows, AttributesAreKept) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    const std::wstring file = folder.Name("a.ini");
    constexpr DWORD attributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ASSERT_NE(::SetFileAttributesW(file.c_str(), attributes), FALSE);
    Save(file, 2);
    EXPECT_EQ(::GetFileAttributesW(file.c_str()) & attributes, attributes);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
}

TEST(IniFileSystemWindows, AnAccessListIsKept) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    const std::wstring file = folder.Name("a.ini");
    const std::wstring before = AccessListOf(file);
    SetAccessList(file, L"D:P(A;;FA;;;BA)(A;;FA;;;SY)(A;;FA;;;OW)(A;;FA;;;WD)");
    const std::wstring given = AccessListOf(file);
    ASSERT_NE(given, before) << "another one than that of a new file";
    Save(file, 2);
    EXPECT_EQ(AccessListOf(file), given);
}

TEST(IniFileSystemWindows, AReadOnlyFileIsRefusedAndStays) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    const std::wstring file = folder.Name("a.ini");
    ASSERT_NE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY), FALSE);
    EXPECT_TRUE(IsReadOnly(file));
    EXPECT_EQ(NumberRaisedBySaving(file), 70);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=1\n");
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(IsReadOnly(file));
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniFileSystemWindows, APathOfAnyLengthIsReadAndWritten) {
    const TempFolder folder;
    std::wstring file = folder.Path().wstring();
    for (int part = 0; part < 10; ++part)
        file += L"\\" + std::wstring(50, static_cast<wchar_t>(L'a' + part));
    file += L"\\a.ini";
    IniStore store;
    store.SetFileName(file);
    store.MakeFolder();
    store.SetSection(L"A");
    store.WriteInteger(L"x", 1, L"");
    IniStore later;
    later.SetFileName(file);
    later.SetSection(L"A");
    std::int16_t value = 0;
    EXPECT_TRUE(later.ReadInteger(L"x", value));
    EXPECT_EQ(value, 1);
}

TEST(IniFileSystemWindows, ANameMayHaveAnyCharacters) {
    const TempFolder folder;
    const std::wstring name = L"Kalibrierung \u65E5\u672C \U0001D11E.ini"; // one of them is a surrogate pair
    Save((folder.Path() / name).wstring(), 1);
    Save((folder.Path() / name).wstring(), 2);
    std::vector<std::wstring> names;
    for (const auto& entry : fs::directory_iterator(folder.Path()))
        names.push_back(entry.path().filename().wstring());
    EXPECT_EQ(names, std::vector<std::wstring>{name});
    std::ifstream stream(folder.Path() / name, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), "[A]\nx=2\n");
}

TEST(IniFileSystemWindows, AFileKeepsTheCaseOfItsNameAndHasOneLockInEverySpelling) {
    const TempFolder folder;
    folder.Write("Größe.ini", "[A]\nx=1\n");
    const std::wstring upper = folder.Path().wstring() + L"\\GR\u00D6\u00DFE.INI";
    Save(upper, 2);
    EXPECT_EQ(folder.Read("Größe.ini"), "[A]\nx=2\n");
    EXPECT_TRUE(IsSamePlace(upper, folder.Name("Größe.ini")));

    folder.Write("Rig.ini", "[A]\nx=1\n");
    const Saver holder{L"lock", folder.Name("rig.INI")};
    ASSERT_EQ(holder.ReadLine(), "locked");
    EXPECT_EQ(NumberRaisedBySaving(folder.Name("RIG.ini")), 70);
    holder.Kill();
    EXPECT_EQ(holder.Wait(), 9U);
}

TEST(IniFileSystemWindows, PathsHaveDrivesAndEitherSlash) {
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    std::wstring file = folder.Path().wstring() + L"\\sub\\a.ini";
    ASSERT_EQ(file.substr(1, 2), L":\\");
    Save(file, 1);
    for (wchar_t& c : file)
        c = c == L'\\' ? L'/' : c;
    Save(file, 2);
    EXPECT_EQ(folder.Read("sub/a.ini"), "[A]\nx=2\n");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    Save(L"sub\\a.ini", 3);
    IniStore store;
    store.SetFileName(L"sub/../sub/a.ini");
    fs::current_path(before);
    store.SetSection(L"A");
    store.WriteInteger(L"y", 4, L"");
    EXPECT_EQ(folder.Read("sub/a.ini"), "[A]\nx=3\ny=4\n");
}

TEST(IniFileSystemWindows, ADeviceIsNoFile) { EXPECT_EQ(NumberRaisedBySaving(L"NUL"), 75); }
