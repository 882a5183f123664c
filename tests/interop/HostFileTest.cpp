// One edit of a host's file changes one line. `PeerEdits` shows what others do with the same file.

#include "tests/interop/HostFile.h"
#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/CommaLocale.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <sys/resource.h>

using namespace Interop;
using QuorIniFile::IniStore;

namespace {

class HostFile : public testing::Test {
protected:
    HostFile() { folder.Write("host.ini", hostFile); }

    void Edit() const {
        IniStore store;
        store.SetFileName(folder.Name("host.ini"));
        store.SetSection(L"Probe");
        store.WriteDouble(L"R0", editedValue, L"");
    }
    /// The file as it has to be after the edit.
    [[nodiscard]] static std::string Edited() {
        std::string text(hostFile);
        return text.replace(text.find("R0="), std::string_view("R0=100.0123\r\n").size(), editedLine);
    }
    [[nodiscard]] std::string File() const { return folder.Read("host.ini"); }

    TempFolder folder;
};

/// No file of this process may grow past `bytes` while it lives.
class NoRoom {
public:
    explicit NoRoom(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    NoRoom(const NoRoom&) = delete;
    NoRoom& operator=(const NoRoom&) = delete;
    ~NoRoom() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_before{};
    void (*m_signal)(int);
};

} // namespace

TEST_F(HostFile, CommentsOfEitherKindStayAsTheyAre) {
    Edit();
    EXPECT_EQ(File().substr(0, 23), "; settings of the rig\r\n") << "it is taken, and stays";
    EXPECT_NE(File().find("Name = Rig 4 ; the old one\r\n\r\n# certificate 4711\r\n"), std::string::npos);
}

TEST_F(HostFile, BackslashesAndSemicolonsOfTheHostStayAsTheyAre) {
    Edit();
    EXPECT_NE(File().find("Folder=C:\\Data\\Runs\r\nColumns=Channel;Probe;Temperature\r\n"),
              std::string::npos);
}

TEST_F(HostFile, LineEndsAndAllOtherBytesStayAsTheyAre) {
    Edit();
    EXPECT_EQ(File(), Edited());
}

TEST_F(HostFile, ASaveThatFindsNoRoomIsAnErrorAndTheFileStaysAsItIs) {
    {
        const NoRoom limit(16);
        try {
            Edit();
            ADD_FAILURE() << "there was room";
        } catch (const QuorIniFile::QuorError& error) {
            EXPECT_EQ(error.Number(), 61);
            EXPECT_EQ(error.Description().find(L"Disk full: " + folder.Name("host.ini")), 0U);
        }
    }
    EXPECT_EQ(File(), hostFile);
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"host.ini"});
}

TEST_F(HostFile, TheModeOfTheFileStaysAsItIs) {
    namespace fs = std::filesystem;
    const fs::perms own = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(folder.Path("host.ini"), own);
    Edit();
    EXPECT_EQ(File(), Edited());
    EXPECT_EQ(fs::status(folder.Path("host.ini")).permissions(), own);
}

TEST_F(HostFile, NumbersAreReadAndWrittenTheSameUnderACommaLocale) {
    const CommaLocale comma;
    IniStore store;
    store.SetFileName(folder.Name("host.ini"));
    store.SetSection(L"Probe");
    double alpha = 0;
    EXPECT_TRUE(store.ReadDouble(L"Alpha", alpha));
    EXPECT_EQ(alpha, 0.00385055);
    Edit();
    EXPECT_EQ(File(), Edited());
}
