// Who may read and write a file, before, while and after it is replaced.

#include "QuorIniFile/detail/IniDisk.h"

#include "QuorIniFile/QuorError.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Names = std::vector<std::string>;
using Support::RaisedBy;
using Support::InterceptedFiles;

namespace {

constexpr uid_t ordinary = 65534;
constexpr const char* accessList = "system.posix_acl_access";
constexpr const char* inheritedList = "system.posix_acl_default";

/// While it lives, the superuser's test is a user like any other, and the folder is that user's. For a test
/// that runs as an ordinary user anyway it does nothing.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const TempFolder& folder) {
        if (!m_wasSuperuser)
            return;
        for (const std::string& name : folder.Files())
            EXPECT_EQ(::lchown(folder.Path(name).c_str(), ordinary, ordinary), 0);
        EXPECT_EQ(::chown(folder.Path().c_str(), ordinary, ordinary), 0);
        EXPECT_EQ(::setegid(ordinary), 0);
        EXPECT_EQ(::seteuid(ordinary), 0);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (m_wasSuperuser && (::seteuid(0) != 0 || ::setegid(0) != 0))
            ADD_FAILURE() << "the superuser does not come back";
    }

private:
    bool m_wasSuperuser = ::geteuid() == 0;
};

struct stat StatusOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status;
}

void Replace(const TempFolder& folder, IniFileSystem& files = IniFileSystem::System()) {
    EXPECT_TRUE(IniReplacement(folder.Name("a.ini"), files).Commit("new").has_value());
}

/// An access list as the kernel keeps it: version 2, then tag, rights and user of each entry.
std::string AccessList(unsigned owner, std::uint32_t user, unsigned userRights, unsigned group,
                       unsigned mask) {
    std::string bytes{2, 0, 0, 0};
    const auto add = [&bytes](unsigned tag, unsigned rights, std::uint32_t id) {
        for (const std::uint32_t word : {tag | (rights << 16U), id}) {
            for (unsigned shift = 0; shift < 32; shift += 8)
                bytes += static_cast<char>((word >> shift) & 0xFFU);
        }
    };
    constexpr std::uint32_t nobody = 0xFFFFFFFF;
    add(1, owner, nobody);
    add(2, userRights, user);
    add(4, group, nobody);
    add(16, mask, nobody);
    add(32, 0, nobody);
    return bytes;
}

bool SetAttribute(const fs::path& path, const char* name, const std::string& value) {
    return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

std::optional<std::string> Attribute(const fs::path& path, const char* name) {
    std::string value(1000, '\0');
    const ssize_t size = ::getxattr(path.c_str(), name, value.data(), value.size());
    if (size < 0)
        return std::nullopt;
    value.resize(static_cast<std::size_t>(size));
    return value;
}

} // namespace

TEST(IniDiskRights, ExtendedAttributesAreKept) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const std::string large(500, '\xFF');
    if (!SetAttribute(folder.Path("a.ini"), "user.origin", "laboratory 2"))
        GTEST_SKIP() << "this file system has no extended attributes";
    ASSERT_TRUE(SetAttribute(folder.Path("a.ini"), "user.large", large));
    ASSERT_TRUE(SetAttribute(folder.Path("a.ini"), "user.empty", ""));
    Replace(folder);
    EXPECT_EQ(folder.Read("a.ini"), "new");
    EXPECT_EQ(Attribute(folder.Path("a.ini"), "user.origin"), "laboratory 2");
    EXPECT_EQ(Attribute(folder.Path("a.ini"), "user.large"), large);
    EXPECT_EQ(Attribute(folder.Path("a.ini"), "user.empty"), "");
}

TEST(IniDiskRights, AnAccessListIsKept) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const std::string list = AccessList(6, 1234, 4, 4, 6);
    if (!SetAttribute(folder.Path("a.ini"), accessList, list))
        GTEST_SKIP() << "this file system has no access lists";
    const mode_t mode = StatusOf(folder.Path("a.ini")).st_mode;
    Replace(folder);
    EXPECT_EQ(Attribute(folder.Path("a.ini"), accessList), list);
    EXPECT_EQ(StatusOf(folder.Path("a.ini")).st_mode, mode);
}

TEST(IniDiskRights, TheAccessListThatAFolderGivesToNewFilesIsNotGivenToAnOldOne) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), 0640), 0);
    if (!SetAttribute(folder.Path(), inheritedList, AccessList(7, 1234, 7, 7, 7)))
        GTEST_SKIP() << "this file system has no access lists";
    Replace(folder);
    EXPECT_EQ(Attribute(folder.Path("a.ini"), accessList), std::nullopt);
    EXPECT_EQ(StatusOf(folder.Path("a.ini")).st_mode & 07777U, 0640U);

    EXPECT_TRUE(IniReplacement(folder.Name("first.ini")).Commit("new").has_value());
    EXPECT_NE(Attribute(folder.Path("first.ini"), accessList), std::nullopt) << "a new one gets it";
}

TEST(IniDiskRights, TheNewTextIsForItsOwnerAloneUntilItIsWhole) {
    const mode_t before = ::umask(0);
    for (const bool isNew : {false, true}) {
        for (const mode_t mode : {0600U, 0640U, 0644U, 0664U, 0666U, 0200U}) {
            const TempFolder folder;
            if (!isNew) {
                folder.Write("a.ini", "old");
                ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), mode), 0);
            }
            const mode_t wanted = isNew ? 0666U : mode;
            int looks = 0;
            int flushes = 0;
            InterceptedFiles files;
            files.onCall = [&](std::string_view call) {
                if (call == "OpenUnnamed")
                    return ENOTSUP; // without a name nobody could open it at all
                for (const std::string& name : folder.Files()) {
                    if (!name.ends_with(".tmp"))
                        continue;
                    const struct stat status = StatusOf(folder.Path(name));
                    const mode_t now = status.st_mode & 0777U;
                    if (status.st_size == 0 && call != "Write")
                        continue; // there is nothing to be read yet
                    ++looks;
                    EXPECT_EQ(now & ~(flushes == 0 ? 0600U : wanted | 0600U), 0U)
                        << std::oct << now << " " << call;
                }
                flushes += call == "Sync" ? 1 : 0;
                return 0;
            };
            Replace(folder, files);
            EXPECT_GT(looks, 3);
            EXPECT_EQ(flushes, 2);
            EXPECT_EQ(StatusOf(folder.Path("a.ini")).st_mode & 07777U, wanted);
        }
    }
    ::umask(before);
}

TEST(IniDiskRights, ANewTextWithoutANameGetsTheRightsOfTheFile) {
    for (const mode_t mode : {0600U, 0640U, 0644U, 0664U, 0666U, 0200U}) {
        const TempFolder folder;
        folder.Write("a.ini", "old");
        ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), mode), 0);
        Replace(folder);
        EXPECT_EQ(StatusOf(folder.Path("a.ini")).st_mode & 07777U, mode);
    }
}

TEST(IniDiskRights, TheLockFileCanBeOpenedByThoseAloneWhoMayWriteItsFolder) {
    const std::pair<mode_t, mode_t> modes[] = {{0700U, 0600U}, {0755U, 0600U}, {0775U, 0660U}, {0777U, 0666U},
                                               {0707U, 0606U}, {0720U, 0600U}, {01777U, 0666U}};
    for (const auto& [folderMode, lockMode] : modes) {
        const TempFolder folder;
        ASSERT_EQ(::chmod(folder.Path().c_str(), folderMode), 0);
        const IniReplacement replacement(folder.Name("a.ini"));
        ASSERT_EQ(folder.Files().size(), 1U);
        const struct stat status = StatusOf(folder.Path(folder.Files().front()));
        EXPECT_EQ(status.st_mode & 0777U, lockMode) << std::oct << folderMode;
        EXPECT_EQ(status.st_gid, StatusOf(folder.Path()).st_gid);
    }
}

TEST(IniDiskRights, TheLockFileOfAFolderWithAnAccessListIsItsOwnersAlone) {
    const TempFolder folder;
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0775), 0);
    if (!SetAttribute(folder.Path(), accessList, AccessList(7, 1234, 7, 5, 7)))
        GTEST_SKIP() << "this file system has no access lists";
    const IniReplacement replacement(folder.Name("a.ini"));
    EXPECT_EQ(StatusOf(folder.Path(folder.Files().front())).st_mode & 0777U, 0600U);
}

TEST(IniDiskRights, WhoMayOnlyReadTheFolderCannotKeepOthersFromSaving) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may become another user";
    const TempFolder folder;
    folder.Write("a.ini", "old");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    InterceptedFiles files;
    files.onCall = [&](std::string_view) {
        EXPECT_EQ(::seteuid(ordinary), 0);
        for (const std::string& name : folder.Files()) {
            const int file = ::open(folder.Path(name).c_str(), O_RDONLY | O_CLOEXEC);
            EXPECT_TRUE(file < 0 || !name.ends_with(".lock")) << "nobody else can lock it";
            if (file >= 0)
                ::close(file);
        }
        EXPECT_EQ(::seteuid(0), 0);
        return 0;
    };
    Replace(folder, files);
    EXPECT_EQ(folder.Read("a.ini"), "new");
}

TEST(IniDiskRights, WhereTheGroupCannotBeKeptItsRightsAreNotPassedOn) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const OrdinaryUser user(folder);
    ASSERT_EQ(::seteuid(0), 0);
    ASSERT_EQ(::chown(folder.Path("a.ini").c_str(), ordinary, 2345), 0);
    ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), 0664), 0);
    ASSERT_EQ(::seteuid(ordinary), 0);
    Replace(folder);
    const struct stat status = StatusOf(folder.Path("a.ini"));
    EXPECT_EQ(status.st_gid, ordinary);
    EXPECT_EQ(status.st_mode & 07777U, 0644U) << "the other group may what everybody may";
}

TEST(IniDiskRights, AFolderWithoutRightsIsAClearErrorAndItsFileStays) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const OrdinaryUser user(folder);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0500), 0);
    for (const char* file : {"a.ini", "first.ini"}) {
        const QuorError error = RaisedBy([&] { const IniReplacement replacement(folder.Name(file)); });
        EXPECT_EQ(error.Number(), 70);
        EXPECT_EQ(error.Description(),
                  L"Permission denied: " + folder.Name(file) + L": Its folder does not allow new files");
    }
    EXPECT_EQ(folder.Read("a.ini"), "old");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDiskRights, AFileThatWeMayNotReadIsPermissionDenied) {
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const OrdinaryUser user(folder);
    ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), 0200), 0);
    const QuorError error = RaisedBy([&] { static_cast<void>(ReadBytes(folder.Name("a.ini"))); });
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(), L"Permission denied: " + folder.Name("a.ini"));
    EXPECT_EQ(RaisedBy([&] { const IniReplacement replacement(folder.Name("a.ini")); }).Number(), 70);
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDiskRights, AFileOfAnotherUserThatWeMayNotWriteIsRefused) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    const TempFolder folder;
    folder.Write("a.ini", "old");
    const OrdinaryUser user(folder);
    ASSERT_EQ(::seteuid(0), 0);
    ASSERT_EQ(::chown(folder.Path("a.ini").c_str(), 0, 0), 0);
    ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), 0644), 0);
    ASSERT_EQ(::seteuid(ordinary), 0);
    const QuorError error =
        RaisedBy([&] { static_cast<void>(IniReplacement(folder.Name("a.ini")).Commit("new")); });
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(),
              L"Permission denied: " + folder.Name("a.ini") + L": The file is read-only");
    EXPECT_EQ(folder.Read("a.ini"), "old");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniDiskRights, ALockFileThatOnlyAnotherUserMayRemoveIsNamed) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser may give files away";
    const TempFolder folder;
    folder.Write("a.ini", "old");
    ASSERT_EQ(::chown(folder.Path("a.ini").c_str(), ordinary, ordinary), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 01777), 0); // anybody's files, each for its owner to remove
    const std::string temporary = [&folder] {
        const IniReplacement one(folder.Name("a.ini"));
        return folder.Files().front();
    }();
    folder.Write(temporary, "");
    ASSERT_EQ(::seteuid(ordinary), 0);
    const QuorError error = RaisedBy([&] { const IniReplacement replacement(folder.Name("a.ini")); });
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(), L"Permission denied: " + folder.Name("a.ini") + L": " +
                                       folder.Name(temporary) + L": Operation not permitted");
    EXPECT_EQ(folder.Read("a.ini"), "old");
}
