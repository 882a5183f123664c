#include "QuorIniFile/detail/IniDisk.h"

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Support::RaisedBy;
using Names = std::vector<std::string>;

namespace {

IniStamp ReplaceBytes(const std::wstring& name, std::string_view bytes) {
    return IniReplacement(name).Commit(bytes).value();
}

/// While it lives no file may grow beyond so many bytes: the way a full disk can be had on any machine.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        static_cast<void>(std::signal(SIGXFSZ, m_handler));
    }

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

mode_t ModeOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

} // namespace

TEST(IniDisk, WhatIsWrittenIsReadAgain) {
    const TempFolder folder;
    const std::string bytes("a\0\xFF\r\n", 5);
    const IniStamp written = ReplaceBytes(folder.Name("a.ini"), bytes);
    const auto read = ReadBytes(folder.Name("a.ini"));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->bytes, bytes);
    EXPECT_EQ(read->stamp, written);
    EXPECT_EQ(StampOf(folder.Name("a.ini")), written);
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDisk, AMissingFileIsNoErrorAndIsNotMade) {
    const TempFolder folder;
    EXPECT_FALSE(ReadBytes(folder.Name("a.ini")).has_value());
    EXPECT_FALSE(ReadBytes(folder.Name("nowhere/a.ini")).has_value());
    EXPECT_EQ(StampOf(folder.Name("a.ini")), IniStamp{});
    EXPECT_EQ(folder.Files(), Names{});
}

TEST(IniDisk, FilesWhoseSizeIsNotKnownInAdvanceAreReadWhole) {
    // The kernel's own files say that they are empty.
    const auto read = ReadBytes(L"/proc/self/status");
    if (!read)
        GTEST_SKIP() << "this system has no /proc";
    EXPECT_NE(read->bytes.find("Name:"), std::string::npos);
}

TEST(IniDisk, EveryWriteGivesAnotherStamp) {
    const TempFolder folder;
    const IniStamp first = ReplaceBytes(folder.Name("a.ini"), "1");
    const IniStamp second = ReplaceBytes(folder.Name("a.ini"), "2");
    EXPECT_NE(first, second);
    folder.Write("a.ini", "333");
    EXPECT_NE(StampOf(folder.Name("a.ini")), second);
}

TEST(IniDisk, FileNamesGoToTheSystemAsUtf8) {
    const TempFolder folder;
    ReplaceBytes(folder.Path().wstring() + L"/\u00B0C.ini", "x");
    EXPECT_EQ(folder.Files(), Names{"\xC2\xB0"
                                    "C.ini"});
}

TEST(IniDisk, AFileInTheCurrentFolderNeedsNoPath) {
    const TempFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    ReplaceBytes(L"a.ini", "x");
    const auto read = ReadBytes(L"a.ini");
    fs::current_path(before);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(folder.Read("a.ini"), "x");
}

TEST(IniDisk, TheModeOfAFileIsKept) {
    const TempFolder folder;
    for (const mode_t mode : {0640U, 0600U, 0666U, 0764U}) {
        folder.Write("a.ini", "old");
        ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), mode), 0);
        ReplaceBytes(folder.Name("a.ini"), "new");
        EXPECT_EQ(ModeOf(folder.Path("a.ini")), mode);
        EXPECT_EQ(folder.Read("a.ini"), "new");
    }
}

TEST(IniDisk, ANewFileHasTheModeThatTheUserWants) {
    const TempFolder folder;
    const mode_t before = ::umask(027);
    ReplaceBytes(folder.Name("a.ini"), "x");
    ::umask(before);
    EXPECT_EQ(ModeOf(folder.Path("a.ini")), 0640U);
}

TEST(IniDisk, TheOwnerOfAFileIsKept) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    const TempFolder folder;
    folder.Write("a.ini", "old");
    ASSERT_EQ(::chown(folder.Path("a.ini").c_str(), 1234, 2345), 0);
    ReplaceBytes(folder.Name("a.ini"), "new");
    struct stat status {};
    ASSERT_EQ(::stat(folder.Path("a.ini").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 2345U);
}

TEST(IniDisk, AReadOnlyFileIsRefusedAndStaysAsItIs) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), 0444), 0);
    const QuorError error = RaisedBy([&] { ReplaceBytes(folder.Name("a.ini"), "new"); });
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(),
              L"Permission denied: " + folder.Name("a.ini") + L": The file is read-only");
    EXPECT_EQ(folder.Read("a.ini"), "old");
    EXPECT_EQ(ModeOf(folder.Path("a.ini")), 0444U);
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDisk, ALinkIsFollowedAndStaysALink) {
    const TempFolder folder;
    fs::create_directory(folder.Path("far"));
    folder.Write("far/a.ini", "old");
    fs::create_symlink("far/a.ini", folder.Path("relative.ini"));
    fs::create_symlink(folder.Path("relative.ini"), folder.Path("chain.ini"));
    EXPECT_EQ(ReadBytes(folder.Name("chain.ini"))->bytes, "old");
    ReplaceBytes(folder.Name("chain.ini"), "new");
    EXPECT_EQ(folder.Read("far/a.ini"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.Path("chain.ini")));
    EXPECT_TRUE(fs::is_symlink(folder.Path("relative.ini")));
    EXPECT_EQ(folder.Files(), (Names{"chain.ini", "far", "relative.ini"}));
}

TEST(IniDisk, ALinkToNothingGetsItsFile) {
    const TempFolder folder;
    fs::create_directory(folder.Path("far"));
    fs::create_symlink("far/a.ini", folder.Path("dangling.ini"));
    EXPECT_FALSE(ReadBytes(folder.Name("dangling.ini")).has_value());
    ReplaceBytes(folder.Name("dangling.ini"), "new");
    EXPECT_EQ(folder.Read("far/a.ini"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.Path("dangling.ini")));
}

TEST(IniDisk, OfSeveralHardLinksTheOthersKeepTheOldFile) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    fs::create_hard_link(folder.Path("a.ini"), folder.Path("copy.ini"));
    ReplaceBytes(folder.Name("a.ini"), "new");
    EXPECT_EQ(folder.Read("a.ini"), "new");
    EXPECT_EQ(folder.Read("copy.ini"), "old");
}

TEST(IniDisk, AFileWithTwoNamesByALinkHasOneLock) {
    const TempFolder folder;
    fs::create_directory(folder.Path("far"));
    folder.Write("far/a.ini", "old");
    fs::create_symlink("far/a.ini", folder.Path("link.ini"));
    const IniReplacement one(folder.Name("link.ini"));
    EXPECT_EQ(folder.Files(), (Names{"far", "link.ini"})) << "it is beside the file, not beside the link";
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path("far")), fs::directory_iterator()), 2);
}

TEST(IniDisk, LinksInACircleAreAnError) {
    const TempFolder folder;
    fs::create_symlink("b.ini", folder.Path("a.ini"));
    fs::create_symlink("a.ini", folder.Path("b.ini"));
    EXPECT_EQ(RaisedBy([&] { static_cast<void>(ReadBytes(folder.Name("a.ini"))); }).Number(), 75);
    EXPECT_EQ(RaisedBy([&] { ReplaceBytes(folder.Name("a.ini"), "new"); }).Number(), 75);
    EXPECT_EQ(folder.Files(), (Names{"a.ini", "b.ini"}));
}

TEST(IniDisk, OnlyRegularFilesAreTouchedAndNothingHangs) {
    const TempFolder folder;
    fs::create_directory(folder.Path("folder"));
    ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    folder.Path("socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the system's interface
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(socket);

    const Names before = folder.Files();
    const auto start = std::chrono::steady_clock::now();
    for (const std::wstring& name :
         {folder.Name("folder"), folder.Name("pipe"), folder.Name("socket"), std::wstring(L"/dev/null")}) {
        const QuorError error = RaisedBy([&] { static_cast<void>(ReadBytes(name)); });
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description().find(L"Path/File access error: " + name + L": "), 0U);
        EXPECT_EQ(RaisedBy([&] { static_cast<void>(StampOf(name)); }).Number(), 75);
        EXPECT_EQ(RaisedBy([&] { ReplaceBytes(name, "new"); }).Number(), 75);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(folder.Files(), before);
}

TEST(IniDisk, WhatStandsInTheWayOfTheLockFileIsNamedAndStays) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const std::string temporary = [&folder] {
        const IniReplacement one(folder.Name("a.ini"));
        return folder.Files().front();
    }();
    const auto expectNamed = [&] {
        const QuorError error = RaisedBy([&] { ReplaceBytes(folder.Name("a.ini"), "new"); });
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description().find(L"Path/File access error: " + folder.Name("a.ini") + L": " +
                                           folder.Name(temporary) + L": "),
                  0U)
            << testing::PrintToString(error.Description());
        EXPECT_EQ(folder.Read("a.ini"), "old");
        EXPECT_EQ(folder.Files(), (Names{temporary, "a.ini"}));
    };
    fs::create_directory(folder.Path(temporary));
    expectNamed();
    fs::remove(folder.Path(temporary));
    fs::create_symlink("a.ini", folder.Path(temporary));
    expectNamed();
    fs::remove(folder.Path(temporary));
    ASSERT_EQ(::mkfifo(folder.Path(temporary).c_str(), 0600), 0);
    expectNamed();
    fs::remove(folder.Path(temporary));
    folder.Write(temporary, "somebody's own");
    expectNamed();
    EXPECT_EQ(folder.Read(temporary), "somebody's own");
}

TEST(IniDisk, AFolderThatDoesNotExistIsPathNotFound) {
    const TempFolder folder;
    folder.Write("file", "");
    const QuorError error = RaisedBy([&] { ReplaceBytes(folder.Name("nowhere/a.ini"), "new"); });
    EXPECT_EQ(error.Number(), 76);
    EXPECT_EQ(error.Description(), L"Path not found: " + folder.Name("nowhere/a.ini"));
    EXPECT_EQ(RaisedBy([&] { ReplaceBytes(folder.Name("file/a.ini"), "new"); }).Number(), 76);
    EXPECT_EQ(RaisedBy([&] { static_cast<void>(ReadBytes(folder.Name("file/a.ini"))); }).Number(), 76);
}

TEST(IniDisk, ANameThatIsTooLongIsABadName) {
    const TempFolder folder;
    const std::wstring name = folder.Name(std::string(300, 'a'));
    EXPECT_EQ(RaisedBy([&] { static_cast<void>(ReadBytes(name)); }).Number(), 52);
    EXPECT_EQ(RaisedBy([&] { ReplaceBytes(name, "new"); }).Number(), 52);
}

TEST(IniDisk, APathThatIsTooLongIsABadName) {
    const TempFolder folder;
    std::string path;
    for (int i = 0; i < 2500; ++i)
        path += "a/";
    EXPECT_EQ(RaisedBy([&] { static_cast<void>(ReadBytes(folder.Name(path + "b.ini"))); }).Number(), 52);
    EXPECT_EQ(RaisedBy([&] { ReplaceBytes(folder.Name(path + "b.ini"), "new"); }).Number(), 52);
}

TEST(IniDisk, AFileOfFourGigabytesIsRefusedAtOnce) {
    const TempFolder folder;
    folder.Write("a.ini", "");
    fs::resize_file(folder.Path("a.ini"), std::uintmax_t{1} << 32U); // takes no room: it is one hole
    for (const auto& action :
         std::vector<std::function<void()>>{[&] { static_cast<void>(ReadBytes(folder.Name("a.ini"))); },
                                            [&] { ReplaceBytes(folder.Name("a.ini"), "new"); }}) {
        const QuorError error = RaisedBy(action);
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description(),
                  L"Path/File access error: " + folder.Name("a.ini") + L": It is larger than 4 GiB");
    }
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDisk, TheLongestNameThatAFileCanHaveIsWritten) {
    const TempFolder folder;
    const std::string name(255, 'a');
    ReplaceBytes(folder.Name(name), "new");
    EXPECT_EQ(folder.Read(name), "new");
}

TEST(IniDisk, AFullDiskLeavesTheOldFileAndNothingElse) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const FileSizeLimit limit(1000);
    const QuorError error = RaisedBy([&] { ReplaceBytes(folder.Name("a.ini"), std::string(5000, 'x')); });
    EXPECT_EQ(error.Number(), 61);
    EXPECT_EQ(error.Description().find(L"Disk full: " + folder.Name("a.ini")), 0U);
    EXPECT_EQ(RaisedBy([&] { ReplaceBytes(folder.Name("b.ini"), std::string(5000, 'x')); }).Number(), 61);
    EXPECT_EQ(folder.Read("a.ini"), "old");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDisk, AFileThatIsAMountPointIsRefusedInWords) {
    const TempFolder folder;
    folder.Write("real.ini", "old");
    folder.Write("a.ini", "");
    if (::mount(folder.Path("real.ini").c_str(), folder.Path("a.ini").c_str(), nullptr, MS_BIND, nullptr) !=
        0)
        GTEST_SKIP() << "only the superuser may mount a file on another one";
    const QuorError error = RaisedBy([&] { ReplaceBytes(folder.Name("a.ini"), "new"); });
    EXPECT_EQ(error.Number(), 75);
    EXPECT_EQ(error.Description(), L"Path/File access error: " + folder.Name("a.ini") +
                                       L": It is a mount point, which cannot be replaced");
    EXPECT_EQ(folder.Read("a.ini"), "old");
    EXPECT_EQ(folder.Files(), (Names{"a.ini", "real.ini"}));
    EXPECT_EQ(::umount(folder.Path("a.ini").c_str()), 0);
}

TEST(IniDisk, ARelativeNameGoesOnMeaningTheFileThatItWasBoundTo) {
    const TempFolder folder;
    fs::create_directory(folder.Path("other"));
    folder.Write("f.ini", "[A]\nx=1\n");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    IniStore store;
    store.SetFileName(L"f.ini");
    store.SetSection(L"A");
    fs::current_path(folder.Path("other"));
    std::int16_t value = 0;
    EXPECT_TRUE(store.ReadInteger(L"x", value));
    EXPECT_FALSE(store.FileChanged());
    store.WriteInteger(L"x", 2, L"");
    EXPECT_EQ(store.FileName(), L"f.ini");
    EXPECT_EQ(folder.Read("f.ini"), "[A]\nx=2\n");
    EXPECT_FALSE(fs::exists(folder.Path("other/f.ini")));

    store.SetFileName(L"f.ini"); // now this is another file
    store.WriteInteger(L"x", 3, L"");
    fs::current_path(before);
    EXPECT_EQ(folder.Read("other/f.ini"), "[A]\nx=3\n");
    EXPECT_EQ(folder.Read("f.ini"), "[A]\nx=2\n");
}

TEST(IniDisk, ARelativeNameNeedsACurrentFolder) {
    Support::InterceptedFiles files;
    files.onCall = [](std::string_view call) { return call == "CurrentFolder" ? ENOENT : 0; };
    IniStore store(files);
    const QuorError error = RaisedBy([&] { store.SetFileName(L"f.ini"); });
    EXPECT_EQ(error.Number(), 76);
    EXPECT_EQ(error.Description(), L"Path not found: f.ini");
    EXPECT_EQ(store.FileName(), L"");
}

TEST(IniDisk, FoldersAreMadeForTheUserAlone) {
    const TempFolder folder;
    const auto makeFolderOf = [](const std::wstring& file) {
        MakeFolderOf(IniFileName::Absolute(file, IniFileSystem::System()));
    };
    makeFolderOf(folder.Name("a/b/probes.ini"));
    EXPECT_EQ(ModeOf(folder.Path("a")), 0700U);
    EXPECT_EQ(ModeOf(folder.Path("a/b")), 0700U);
    ASSERT_EQ(::chmod(folder.Path("a").c_str(), 0755), 0);
    makeFolderOf(folder.Name("a/b/other.ini"));
    EXPECT_EQ(ModeOf(folder.Path("a")), 0755U) << "what is there stays as it is";
    folder.Write("file", "");
    EXPECT_EQ(RaisedBy([&] { makeFolderOf(folder.Name("file/a/probes.ini")); }).Number(), 76);
    EXPECT_EQ(RaisedBy([&] { makeFolderOf(folder.Name("file/probes.ini")); }).Number(), 76);
}
