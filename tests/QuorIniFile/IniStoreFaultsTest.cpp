// Calls of the system that fail, one after the other: the file is the old one or the new one, the error says
// which file and why, and what was written is saved as soon as the system works again.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/SimulatedDisk.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Utf16.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <functional>
#include <limits>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Names = std::vector<std::string>;
using Support::InterceptedFiles;
using Support::SimulatedDisk;

namespace {

constexpr const char* oldText = "; mine\r\n[A]\r\nx=1\r\n[B]\r\ny=1\r\n";
constexpr const char* newText = "; mine\r\n[A]\r\nx=2\r\n[B]\r\ny=1\r\n";
constexpr const char* firstText = "[A]\nx=2\n";

/// A file that is read and saved on a system whose calls fail.
class FaultyRun {
public:
    explicit FaultyRun(bool exists) : m_exists(exists) {
        files.flushes = false;
        if (exists)
            folder.Write("a.ini", oldText);
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }

    /// Reads x, where there is a file, and writes it.
    void ReadAndSave() {
        std::int16_t value = 0;
        if (m_exists) {
            EXPECT_TRUE(store.ReadInteger(L"x", value));
            EXPECT_EQ(value, 1);
        }
        Save();
    }
    void Save() { store.WriteInteger(L"x", 2, L""); }
    void SaveAnother() { store.WriteInteger(L"z", 3, L""); }

    [[nodiscard]] bool IsNew() const {
        return fs::exists(folder.Path("a.ini")) && folder.Read("a.ini") == (m_exists ? newText : firstText);
    }
    [[nodiscard]] bool IsOld() const {
        return m_exists ? folder.Read("a.ini") == oldText : !fs::exists(folder.Path("a.ini"));
    }

    TempFolder folder;
    InterceptedFiles files;
    IniStore store{files};

private:
    bool m_exists;
};

/// Fails call `at`, counted from 0, and when `lasting` all that follow.
struct Fault {
    std::size_t at;
    int error;
    bool lasting = false;
    std::size_t calls = 0;
    std::string name = {};
    bool isDurable = false; // the save was, when the call came: what follows is tidying up

    int operator()(std::string_view call) {
        const std::size_t number = calls++;
        if (number == at)
            name = call;
        isDurable = isDurable || (number < at && call == "SyncFolder");
        return number == at || (lasting && number > at) ? error : 0;
    }
    [[nodiscard]] bool WasReached() const { return calls > at; }
};

/// The error of a run, nothing when it succeeded.
std::optional<QuorError> ErrorOf(FaultyRun& run) {
    try {
        run.ReadAndSave();
    } catch (const QuorError& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace

TEST(IniStoreFaults, EveryCallThatFailsIsAnErrorAndLeavesTheOldFileOrTheNewOne) {
    const std::pair<int, std::int32_t> errors[] = {{EIO, 57},
                                                   {ENOSPC, 61},
#ifdef EDQUOT // not every system has quotas
                                                   {EDQUOT, 61},
#endif
                                                   {EROFS, 70}};
    for (const bool exists : {true, false}) {
        for (const auto& [error, number] : errors) {
            for (const bool lasting : {false, true}) {
                std::size_t at = 0;
                for (bool reached = true; reached; ++at) {
                    FaultyRun run(exists);
                    Fault fault{at, error, lasting};
                    run.files.onCall = std::ref(fault);
                    const auto raised = ErrorOf(run);
                    reached = fault.WasReached();
                    const std::string where = fault.name + ", call " + std::to_string(at);
                    ASSERT_EQ(raised.has_value(), reached && !fault.isDurable) << where;
                    EXPECT_EQ(run.files.openFiles, 0) << where;
                    if (!raised) {
                        EXPECT_TRUE(run.IsNew());
                    } else {
                        EXPECT_EQ(raised->Number(), number) << where;
                        EXPECT_NE(raised->Description().find(run.folder.Name("a.ini")), std::wstring::npos);
                        EXPECT_TRUE(run.IsOld() || run.IsNew()) << where;
                        EXPECT_TRUE(run.IsOld() || fault.name == "SyncFolder" || fault.name == "StatusOf" ||
                                    fault.name == "StatusAt")
                            << where;
                    }

                    run.files.onCall = [](std::string_view) { return 0; };
                    run.Save();
                    EXPECT_TRUE(run.IsNew()) << where;
                    run.SaveAnother();
                    EXPECT_EQ(run.folder.Files(), Names{"a.ini"}) << where;
                }
                EXPECT_GT(at, exists ? 20U : 10U) << "the calls of a read and a save";
            }
        }
    }
}

TEST(IniStoreFaults, EveryCallOfASaveIntoUtf16ThatFailsIsAnErrorAndLeavesTheOldFileOrTheNewOne) {
    const std::string before = Utf16Be(u"\uFEFF; \u2126\r\n[A]\r\nx=1\r\n");
    const std::string after = Utf16Be(u"\uFEFF; \u2126\r\n[A]\r\nx=\u2126\r\n");
    std::size_t at = 0;
    for (bool reached = true; reached; ++at) {
        FaultyRun run(true);
        run.folder.Write("a.ini", before);
        Fault fault{at, EIO};
        run.files.onCall = std::ref(fault);
        std::int32_t number = 0;
        try {
            run.store.WriteString(L"x", L"\u2126");
        } catch (const QuorError& error) {
            number = error.Number();
        }
        reached = fault.WasReached();
        const std::string where = fault.name + ", call " + std::to_string(at);
        ASSERT_EQ(number, reached && !fault.isDurable ? 57 : 0) << where;
        const std::string file = run.folder.Read("a.ini");
        EXPECT_TRUE(file == after || (number != 0 && file == before)) << where;

        run.files.onCall = [](std::string_view) { return 0; };
        run.store.WriteString(L"x", L"\u2126");
        EXPECT_EQ(run.folder.Read("a.ini"), after) << where;
        EXPECT_EQ(run.files.openFiles, 0) << where;
    }
    EXPECT_GT(at, 20U) << "the calls of a read and a save";
}

TEST(IniStoreFaults, EveryCallOfASaveAsThatFailsIsAnErrorAndLeavesTheOtherFileOrTheNewOne) {
    const std::string other = "; other\n[C]\n";
    for (const bool exists : {true, false}) {
        for (const bool lasting : {false, true}) {
            std::size_t at = 0;
            for (bool reached = true; reached; ++at) {
                FaultyRun run(true);
                if (exists)
                    run.folder.Write("b.ini", other);
                run.store.Hold();
                run.Save();
                Fault fault{at, ENOSPC, lasting};
                run.files.onCall = std::ref(fault);
                std::int32_t number = 0;
                try {
                    run.store.SaveAs(run.folder.Name("b.ini"));
                } catch (const QuorError& error) {
                    number = error.Number();
                    const bool isOfOwn =
                        error.Description().find(run.folder.Name("a.ini")) != std::wstring::npos;
                    EXPECT_TRUE(isOfOwn ||
                                error.Description().find(run.folder.Name("b.ini")) != std::wstring::npos);
                }
                reached = fault.WasReached();
                const std::string where = fault.name + ", call " + std::to_string(at);
                ASSERT_EQ(number, reached && !fault.isDurable ? 61 : 0) << where;
                EXPECT_EQ(run.files.openFiles, 0) << where;
                const bool isThere = fs::exists(run.folder.Path("b.ini"));
                const bool isNew = isThere && run.folder.Read("b.ini") == newText;
                const bool isOld = isThere ? exists && run.folder.Read("b.ini") == other : !exists;
                EXPECT_TRUE(isNew || (isOld && number != 0)) << where;

                run.files.onCall = [](std::string_view) { return 0; };
                run.store.SaveAs(run.folder.Name("b.ini"));
                EXPECT_EQ(run.folder.Read("b.ini"), newText) << where;
                EXPECT_TRUE(run.IsOld()) << "what is held stays held: " << where;
                run.store.Release();
                EXPECT_TRUE(run.IsNew()) << where;
                EXPECT_EQ(run.folder.Files(), (Names{"a.ini", "b.ini"})) << where;
            }
            EXPECT_GT(at, 10U) << "the calls of a save";
        }
    }
}

TEST(IniStoreFaults, AProgramThatTakesNoLockMayTurnTheFileIntoUtf16AtAnyCallAndItsKeysSurvive) {
    const std::string theirs = Utf16Le(u"\uFEFF; \u2126\n[A]\nx=1\n[B]\ny=5\n");
    const std::string both = Utf16Le(u"\uFEFF; \u2126\n[A]\nx=2\n[B]\ny=5\n");
    bool reached = true;
    for (std::size_t at = 0; reached; ++at) {
        FaultyRun run(true);
        std::size_t calls = 0;
        bool isRenamed = false;
        std::string expected = newText;
        run.files.onCall = [&](std::string_view call) {
            // Between the last look at the file and its replacement nobody can be seen.
            if (calls++ == at && call != "Exchange" && call != "Rename") {
                run.folder.Write("a.ini", theirs);
                expected = isRenamed ? theirs : both;
            }
            isRenamed = isRenamed || call == "Exchange";
            return 0;
        };
        run.ReadAndSave();
        reached = calls > at;
        EXPECT_EQ(run.folder.Read("a.ini"), expected) << "call " << at;
        EXPECT_EQ(run.folder.Files(), Names{"a.ini"});
    }
}

TEST(IniStoreFaults, AfterAFailedSaveTheObjectHoldsWhatItHeldAndAnotherStoreSeesTheFile) {
    for (std::size_t at = 0;; ++at) {
        FaultyRun run(true);
        Fault fault{at, EIO};
        run.files.onCall = std::ref(fault);
        const bool failed = ErrorOf(run).has_value();
        run.files.onCall = [](std::string_view) { return 0; };
        if (!failed)
            break;

        IniStore other;
        other.SetFileName(run.folder.Name("a.ini"));
        other.SetSection(L"B");
        other.WriteInteger(L"y", 7, L"");
        EXPECT_EQ(run.folder.Files(), Names{"a.ini"}) << "the next save removes what was left, call " << at;

        std::int16_t value = 0;
        EXPECT_TRUE(run.store.ReadInteger(L"x", value));
        EXPECT_TRUE(value == 1 || value == 2) << "as read, or as written and still to be saved";
        run.Save();
        EXPECT_EQ(run.folder.Read("a.ini"), "; mine\r\n[A]\r\nx=2\r\n[B]\r\ny=7\r\n");
    }
}

TEST(IniStoreFaults, AnInterruptedCallIsMadeAgain) {
    for (const bool exists : {true, false}) {
        bool reached = true;
        for (std::size_t at = 0; reached; ++at) {
            FaultyRun run(exists);
            Fault fault{at, EINTR};
            run.files.onCall = std::ref(fault);
            EXPECT_EQ(ErrorOf(run), std::nullopt) << fault.name;
            reached = fault.WasReached();
            EXPECT_TRUE(run.IsNew()) << fault.name;
            EXPECT_EQ(run.folder.Files(), Names{"a.ini"});
        }
    }
}

TEST(IniStoreFaults, ReadsAndWritesMayMoveOneByteAtATime) {
    for (const bool exists : {true, false}) {
        FaultyRun run(exists);
        run.files.mostBytes = 1;
        run.ReadAndSave();
        EXPECT_TRUE(run.IsNew());
    }
}

TEST(IniStoreFaults, ASystemThatWritesNothingAndSaysNothingIsADeviceError) {
    FaultyRun run(true);
    run.store.Hold();
    run.ReadAndSave();
    run.files.mostBytes = 0;
    const std::size_t most = std::numeric_limits<std::size_t>::max();
    run.files.onCall = [&run, most](std::string_view call) {
        run.files.mostBytes = call == "Write" ? 0 : most;
        return 0;
    };
    try {
        run.store.Release();
        FAIL() << "nothing was written";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), 57);
    }
    EXPECT_TRUE(run.IsOld());
}

TEST(IniStoreFaults, ALackOfMemoryInTheSystemIsBadAlloc) {
    FaultyRun run(true);
    Fault fault{0, ENOMEM};
    run.files.onCall = std::ref(fault);
    EXPECT_THROW(run.ReadAndSave(), std::bad_alloc);
    EXPECT_TRUE(run.IsOld());
}

TEST(IniStoreFaults, ADiskThatIsFullAfterAnyNumberOfBytesKeepsTheOldFile) {
    const std::string before = "[A]\nx=1\n";
    const std::string after = "[A]\nx=12345\n";
    for (std::size_t room = 0; room <= after.size(); ++room) {
        SimulatedDisk disk(SimulatedDisk::Files{{"/a.ini", before}});
        disk.capacity = before.size() + room;
        IniStore store(disk);
        store.SetFileName(L"/a.ini");
        store.SetSection(L"A");
        std::int32_t number = 0;
        try {
            store.WriteInteger(L"x", 12345, L"");
        } catch (const QuorError& error) {
            number = error.Number();
        }
        const bool fits = room >= after.size();
        EXPECT_EQ(number, fits ? 0 : 61) << room;
        EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", fits ? after : before}})) << room;
    }
}

TEST(IniStoreFaults, AProgramThatTakesNoLockMayRewriteTheFileAtAnyCallAndItsKeysSurvive) {
    const std::string theirs = "; theirs, and longer than ours\n[B]\ny=5\n[A]\nx=1\n";
    const std::string both = "; theirs, and longer than ours\n[B]\ny=5\n[A]\nx=2\n";
    bool reached = true;
    for (std::size_t at = 0; reached; ++at) {
        FaultyRun run(true);
        std::size_t calls = 0;
        bool isRenamed = false;
        std::string expected = newText;
        run.files.onCall = [&](std::string_view call) {
            // Between the last look at the file and its replacement nobody can be seen.
            if (calls++ == at && call != "Exchange" && call != "Rename") {
                run.folder.Write("a.ini", theirs);
                expected = isRenamed ? theirs : both;
            }
            isRenamed = isRenamed || call == "Exchange";
            return 0;
        };
        run.ReadAndSave();
        reached = calls > at;
        EXPECT_EQ(run.folder.Read("a.ini"), expected) << "call " << at;
        EXPECT_EQ(run.folder.Files(), Names{"a.ini"});
    }
}

TEST(IniStoreFaults, AFileThatIsRewrittenInTheTickOfItsLastChangeIsSeenToBeAnother) {
    const std::string theirs = "[A]\nx=1\ny=5\n"; // as long as ours, in the same file: only the bytes tell
    for (std::size_t at = 0;; ++at) {
        SimulatedDisk disk(SimulatedDisk::Files{{"/a.ini", "[A]\nx=1\ny=1\n"}});
        disk.clockStands = true;
        InterceptedFiles files(disk);
        std::size_t calls = 0;
        bool isFlushed = false;
        bool isRewritten = false;
        files.onCall = [&](std::string_view call) {
            if (calls++ == at && !isFlushed) {
                disk.Rewrite("/a.ini", theirs);
                isRewritten = true;
            }
            isFlushed = isFlushed || call == "Sync";
            return 0;
        };
        IniStore store(files);
        store.SetFileName(L"/a.ini");
        store.SetSection(L"A");
        store.WriteInteger(L"x", 2, L"");
        if (!isRewritten)
            break;
        EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", "[A]\nx=2\ny=5\n"}})) << "call " << at;
    }
}

TEST(IniStoreFaults, AFileThatIsNeverAtRestIsReadAsItIsAndNotSavedInTheEnd) {
    SimulatedDisk disk(SimulatedDisk::Files{{"/a.ini", "[A]\nx=1\n"}});
    InterceptedFiles files(disk);
    std::string theirs = "[A]\nx=1\n";
    int saves = 0;
    files.onCall = [&](std::string_view call) {
        if (call == "StatusOf" || call == "Sync")
            disk.Rewrite("/a.ini", theirs += "; more\n");
        saves += call == "Sync" ? 1 : 0;
        return 0;
    };
    IniStore store(files);
    store.SetFileName(L"/a.ini");
    store.SetSection(L"A");
    std::int16_t value = 0;
    EXPECT_TRUE(store.ReadInteger(L"x", value));
    EXPECT_EQ(value, 1);
    EXPECT_LT(disk.waited, std::chrono::milliseconds(20));
    try {
        store.WriteInteger(L"x", 2, L"");
        ADD_FAILURE() << "it was saved";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), 70);
        EXPECT_EQ(error.Description(), L"Permission denied: /a.ini: Another program keeps writing it");
    }
    EXPECT_EQ(saves, 21) << "once, and twenty times again";
    EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", theirs}}));

    files.onCall = [](std::string_view) { return 0; };
    store.WriteInteger(L"x", 2, L"");
    EXPECT_EQ(disk.Now().at("/a.ini"), "[A]\nx=2\n" + theirs.substr(8));
}

// Edits ----------------------------------------------------------------------------------------------------

namespace {

/// Adds 1 to x, upon the file as it is; to nothing where there is no file.
void EditX(FaultyRun& run, bool exists) {
    run.store.Edit([&run, exists] {
        std::int16_t value = 1;
        if (exists) {
            EXPECT_TRUE(run.store.ReadInteger(L"x", value));
        }
        run.store.WriteInteger(L"x", static_cast<std::int16_t>(value + 1), L"");
    });
}

} // namespace

TEST(IniStoreFaults, EveryCallOfAnEditThatFailsIsAnErrorAndWhatTheEditWroteIsForgotten) {
    for (const bool exists : {true, false}) {
        for (const bool lasting : {false, true}) {
            std::size_t at = 0;
            for (;; ++at) {
                FaultyRun run(exists);
                Fault fault{at, EIO, lasting};
                run.files.onCall = std::ref(fault);
                std::int32_t number = 0;
                try {
                    EditX(run, exists);
                } catch (const QuorError& error) {
                    number = error.Number();
                    EXPECT_NE(error.Description().find(run.folder.Name("a.ini")), std::wstring::npos);
                }
                const std::string where = fault.name + ", call " + std::to_string(at);
                ASSERT_EQ(number, fault.WasReached() && !fault.isDurable ? 57 : 0) << where;
                EXPECT_EQ(run.files.openFiles, 0) << where;
                const bool isNew = run.IsNew();
                if (!fault.WasReached()) {
                    EXPECT_TRUE(isNew);
                    break;
                }
                EXPECT_TRUE(isNew || (run.IsOld() && number != 0)) << where;
                const bool isAfter = fault.name == "SyncFolder" || fault.name.starts_with("Status");
                EXPECT_TRUE(!isNew || number == 0 || isAfter) << where;

                run.files.onCall = [](std::string_view) { return 0; };
                run.store.WriteInteger(L"z", 3, L""); // nothing of the edit is saved with it
                std::string expected = isNew ? (exists ? newText : firstText) : (exists ? oldText : "[A]\n");
                const std::string lineEnd = exists ? "\r\n" : "\n";
                const auto end = expected.find("[B]");
                expected.insert(end == std::string::npos ? expected.size() : end, "z=3" + lineEnd);
                EXPECT_EQ(run.folder.Read("a.ini"), expected) << where;
                EXPECT_EQ(run.folder.Files(), Names{"a.ini"}) << where;
            }
            EXPECT_GT(at, exists ? 20U : 10U) << "the calls of an edit";
        }
    }
}

TEST(IniStoreFaults, AProgramThatTakesNoLockMayRewriteTheFileAtAnyCallOfAnEditWhichIsMadeAnewThen) {
    const std::string theirs = "; theirs, and longer than ours\n[B]\ny=5\n[A]\nx=41\n";
    const std::string both = "; theirs, and longer than ours\n[B]\ny=5\n[A]\nx=42\n";
    for (const bool replaces : {false, true}) { // the same file, or another one under its name
        bool reached = true;
        for (std::size_t at = 0; reached; ++at) {
            FaultyRun run(true);
            std::size_t calls = 0;
            bool isRenamed = false;
            std::string expected = newText;
            run.files.onCall = [&](std::string_view call) {
                // Between the last look at the file and its replacement nobody can be seen.
                if (calls++ == at && call != "Exchange" && call != "Rename") {
                    run.folder.Write(replaces ? "b.ini" : "a.ini", theirs);
                    if (replaces)
                        fs::rename(run.folder.Path("b.ini"), run.folder.Path("a.ini"));
                    expected = isRenamed ? theirs : both;
                }
                isRenamed = isRenamed || call == "Exchange";
                return 0;
            };
            try {
                EditX(run, true);
            } catch (const QuorError& error) { // theirs has come right behind ours, before we could look
                EXPECT_TRUE(replaces && isRenamed) << error.what();
                const Names names = run.folder.Files();
                EXPECT_TRUE(run.folder.Read("a.ini") == oldText || run.folder.Read("a.ini") == newText);
                ASSERT_EQ(names.size(), 2U) << "theirs is kept beside it";
                EXPECT_TRUE(names.front().ends_with(".kept"));
                EXPECT_EQ(run.folder.Read(names.front()), theirs);
                continue;
            }
            reached = calls > at;
            EXPECT_EQ(run.folder.Read("a.ini"), expected) << "call " << at;
            EXPECT_EQ(run.folder.Files(), Names{"a.ini"});
        }
    }
}

TEST(IniStoreFaults, AnEditOfAFileThatIsNeverAtRestIsGivenUpAfterTwentyRepetitions) {
    SimulatedDisk disk(SimulatedDisk::Files{{"/a.ini", "[A]\nx=1\n"}});
    InterceptedFiles files(disk);
    std::string theirs = "[A]\nx=1\n";
    files.onCall = [&](std::string_view call) {
        if (call == "Sync")
            disk.Rewrite("/a.ini", theirs += "; more\n");
        return 0;
    };
    IniStore store(files);
    store.SetFileName(L"/a.ini");
    store.SetSection(L"A");
    int calls = 0;
    try {
        store.Edit([&] {
            ++calls;
            store.WriteInteger(L"x", 2, L"");
        });
        ADD_FAILURE() << "it was saved";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), 70);
        EXPECT_EQ(error.Description(), L"Permission denied: /a.ini: Another program keeps writing it");
    }
    EXPECT_EQ(calls, 21) << "once, and twenty times again";
    EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", theirs}}));
    std::int16_t value = 0;
    EXPECT_TRUE(store.ReadInteger(L"x", value));
    EXPECT_EQ(value, 1);
}
