// Others at the files of a save: cleaners, thieves, a second computer that does not see our locks. Whatever
// they do at whichever call, the file is never damaged, and what a save has told to be saved is in it.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/IniDisk.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/SimulatedDisk.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

using namespace QuorIniFile;
using namespace std::chrono_literals;
using Files = Support::SimulatedDisk::Files;
using Names = std::vector<std::string>;
using Support::InterceptedFiles;
using Support::SimulatedDisk;

namespace {

constexpr const char* path = "/a.ini";
constexpr const char* host = "; the host's own\n[A]\nx=1\n";

void Save(IniFileSystem& files, const wchar_t* key, std::int16_t value) {
    IniStore store(files);
    store.SetFileName(L"/a.ini");
    store.SetSection(L"A");
    store.WriteInteger(key, value, L"");
}

/// The files that saves have beside the file, by the end of their names.
Names Beside(const SimulatedDisk& disk, std::string_view end) {
    Names paths;
    for (const auto& [name, bytes] : disk.Now()) {
        if (name.starts_with("/.quor-") && name.ends_with(end))
            paths.push_back(name);
    }
    return paths;
}

void Clean(SimulatedDisk& disk, std::string_view end) {
    for (const std::string& name : Beside(disk, end))
        EXPECT_EQ(disk.Remove(name), 0);
}

/// Saves x=2 once for each call that a save makes, on disks of every kind; at that call `disturb` has its
/// way. `expected` is what stands in the file then.
struct Disturbance {
    std::function<void(SimulatedDisk&)> disturb;
    std::string expected;
    std::string before = host;
    bool hasLocks = true;
    bool sharesLocks = true;
    bool needsExchange = false; // where files cannot change names, nobody can help it in the last moment
    bool mayBeTold = false;     // a save may end in an error, though with the right file
};

void DisturbEverywhere(const Disturbance& disturbance) {
    for (const bool hasUnnamedFiles : {true, false}) {
        for (const bool hasExchange : {true, false}) {
            std::size_t at = 0;
            for (bool reached = true; reached; ++at) {
                SimulatedDisk disk(disturbance.before.empty() ? Files{} : Files{{path, disturbance.before}});
                disk.hasUnnamedFiles = hasUnnamedFiles;
                disk.hasExchange = hasExchange;
                disk.hasLocks = disturbance.hasLocks;
                disk.sharesLocks = disturbance.sharesLocks;
                InterceptedFiles files(disk);
                std::size_t calls = 0;
                std::string name;
                files.onCall = [&](std::string_view call) {
                    const bool isLastMoment =
                        !hasExchange && disturbance.needsExchange && (call == "Rename" || call == "Exchange");
                    if (calls++ == at && !isLastMoment) {
                        name = call;
                        disturbance.disturb(disk);
                    }
                    return 0;
                };
                try {
                    Save(files, L"x", 2);
                } catch (const QuorError&) {
                    EXPECT_TRUE(disturbance.mayBeTold) << name;
                }
                reached = calls > at;
                const std::string where = "call " + std::to_string(at) + ", " + name +
                                          (hasUnnamedFiles ? "" : ", only files with names") +
                                          (hasExchange ? "" : ", no exchange");
                if (reached && !name.empty()) {
                    EXPECT_EQ(disk.Now().at(path), disturbance.expected) << where;
                }
                EXPECT_EQ(files.openFiles, 0) << where;
            }
            EXPECT_GT(at, 20U);
        }
    }
}

/// What a second computer, or a second process, saves.
void SaveFromElsewhere(SimulatedDisk& disk) {
    disk.computer = 2;
    Save(disk, L"y", 3);
    disk.computer = 1;
}

std::string ErrorOfASaveDuring(SimulatedDisk& disk, const std::function<void()>& always,
                               std::int32_t number) {
    InterceptedFiles files(disk);
    files.onCall = [&](std::string_view) {
        always();
        return 0;
    };
    try {
        Save(files, L"x", 2);
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), number);
        return error.what();
    }
    return "saved";
}

} // namespace

TEST(IniStoreDisturbed, ATemporaryFileThatIsRemovedAtAnyCallIsMadeAnew) {
    DisturbEverywhere({[](SimulatedDisk& disk) { Clean(disk, ".tmp"); }, "; the host's own\n[A]\nx=2\n"});
}

TEST(IniStoreDisturbed, ATemporaryFileOfAFirstSaveThatIsRemovedAtAnyCallIsMadeAnew) {
    DisturbEverywhere({[](SimulatedDisk& disk) { Clean(disk, ".tmp"); }, "[A]\nx=2\n", ""});
}

TEST(IniStoreDisturbed, ALockFileThatIsRemovedAtAnyCallBeforeAnotherSaveLosesNothing) {
    DisturbEverywhere({[](SimulatedDisk& disk) {
                           Clean(disk, ".lock");
                           SaveFromElsewhere(disk);
                       },
                       "; the host's own\n[A]\nx=2\ny=3\n", host, true, true, true});
}

TEST(IniStoreDisturbed, AllFilesOfASaveThatAreRemovedAtAnyCallBeforeAnotherSaveLoseNothing) {
    DisturbEverywhere({[](SimulatedDisk& disk) {
                           Clean(disk, "");
                           SaveFromElsewhere(disk);
                       },
                       "; the host's own\n[A]\nx=2\ny=3\n", host, true, true, true});
}

TEST(IniStoreDisturbed, AComputerThatDoesNotSeeOurLockMaySaveAtAnyCallAndNothingIsLost) {
    DisturbEverywhere({SaveFromElsewhere, "; the host's own\n[A]\nx=2\ny=3\n", host, true, false, true});
}

TEST(IniStoreDisturbed, AFlushOfFourteenSecondsWithoutLocksLosesNothingToASaveThatTookItForAbandoned) {
    // Each call in turn is the one that takes so long that another process waits ten seconds and goes on.
    DisturbEverywhere({SaveFromElsewhere, "; the host's own\n[A]\nx=2\ny=3\n", host, false, true, true});
}

TEST(IniStoreDisturbed, AFirstSaveAndThatOfAComputerThatDoesNotSeeItsLockLoseNothing) {
    for (const bool hasUnnamedFiles : {true, false}) {
        std::size_t at = 0;
        for (bool reached = true; reached; ++at) {
            SimulatedDisk disk;
            disk.sharesLocks = false;
            disk.hasUnnamedFiles = hasUnnamedFiles;
            InterceptedFiles files(disk);
            std::size_t calls = 0;
            files.onCall = [&](std::string_view call) {
                if (calls++ == at && call != "Rename")
                    SaveFromElsewhere(disk);
                return 0;
            };
            Save(files, L"x", 2);
            reached = calls > at;
            const std::string text = disk.Now().at(path);
            EXPECT_NE(text.find("x=2\n"), std::string::npos) << "call " << at;
            EXPECT_TRUE(!reached || text.find("y=3\n") != std::string::npos || !hasUnnamedFiles)
                << "call " << at;
        }
    }
}

TEST(IniStoreDisturbed, AFileThatIsPutInThePlaceOfTheTemporaryOneNeverBecomesTheFile) {
    for (const bool hasUnnamedFiles : {true, false}) {
        std::size_t errors = 0;
        bool reached = true;
        for (std::size_t at = 0; reached; ++at) {
            SimulatedDisk disk(Files{{path, host}});
            disk.hasUnnamedFiles = hasUnnamedFiles;
            InterceptedFiles files(disk);
            std::size_t calls = 0;
            files.onCall = [&](std::string_view) {
                if (calls++ == at) {
                    for (const std::string& name : Beside(disk, ".tmp"))
                        disk.Replace(name, "a thief's");
                }
                return 0;
            };
            std::string expected = "; the host's own\n[A]\nx=2\n";
            try {
                Save(files, L"x", 2);
            } catch (const QuorError& error) {
                // The thief's file may be what somebody has just saved: it is kept, and that is told.
                ++errors;
                EXPECT_EQ(error.Number(), 75);
                const std::string told = "replaced it at the same moment; its file is kept as /.quor-";
                EXPECT_NE(std::string(error.what()).find(told), std::string::npos) << error.what();
                EXPECT_EQ(Beside(disk, ".tmp").size(), 1U);
                if (disk.Now().at(path) != expected)
                    expected = host;
            }
            reached = calls > at;
            EXPECT_EQ(disk.Now().at(path), expected) << "call " << at;
        }
        EXPECT_LE(errors, 6U) << "those of the last look and the exchange";
    }
}

TEST(IniStoreDisturbed, AThiefWhoComesTwiceAndTakesTheOldFileTooDoesNotKeepTheNewTextFromComing) {
    bool isFirstReached = true;
    for (std::size_t first = 0; isFirstReached; ++first) {
        bool isReached = true;
        for (std::size_t second = first + 1; isReached; ++second) {
            SimulatedDisk disk(Files{{path, host}});
            InterceptedFiles files(disk);
            std::size_t calls = 0;
            files.onCall = [&](std::string_view) {
                if (calls == first || calls == second) {
                    for (const std::string& name : Beside(disk, ".tmp"))
                        disk.Replace(name, "a thief's");
                }
                ++calls;
                return 0;
            };
            bool isTold = false;
            try {
                Save(files, L"x", 2);
            } catch (const QuorError& error) {
                EXPECT_EQ(error.Number(), 75);
                isTold = true;
            }
            isReached = calls > second;
            isFirstReached = calls > first;
            const std::string text = disk.Now().at(path);
            ASSERT_TRUE(text == "; the host's own\n[A]\nx=2\n" || (isTold && text == host))
                << first << " and " << second << ": " << text;
        }
    }
}

TEST(IniStoreDisturbed, WhereFilesCannotChangeNamesAThiefOfTheLastMomentIsToldOf) {
    SimulatedDisk disk(Files{{path, host}});
    disk.hasExchange = false;
    InterceptedFiles files(disk);
    files.onCall = [&](std::string_view call) {
        if (call == "Rename")
            disk.Replace(Beside(disk, ".tmp").at(0), "a thief's");
        return 0;
    };
    try {
        Save(files, L"x", 2);
        FAIL() << "it was not saved";
    } catch (const QuorError& error) {
        EXPECT_STREQ(error.what(),
                     "Path/File access error: /a.ini: Another program has replaced it at the same moment");
    }
}

TEST(IniStoreDisturbed, AFileThatAnotherProgramRenamesIntoPlaceWhileWeSaveIsNotLost) {
    // When ours stands there, theirs takes its place as at any other time.
    for (std::size_t at = 0;; ++at) {
        SimulatedDisk disk(Files{{path, host}});
        InterceptedFiles files(disk);
        std::size_t calls = 0;
        bool isExchanged = false;
        bool isReplaced = false;
        bool isLastMoment = false;
        files.onCall = [&](std::string_view call) {
            if (calls++ == at && !isExchanged) {
                disk.Replace(path, "; theirs\n[A]\nx=1\n");
                isReplaced = true;
                isLastMoment = call == "Exchange";
            }
            isExchanged = isExchanged || call == "Exchange";
            return 0;
        };
        std::string told;
        try {
            Save(files, L"x", 2);
        } catch (const QuorError& error) {
            told = error.what();
        }
        if (!isReplaced)
            break;
        if (!isLastMoment) {
            EXPECT_EQ(told, "");
            EXPECT_EQ(disk.Now(), (Files{{path, "; theirs\n[A]\nx=2\n"}})) << "call " << at;
            continue;
        }
        const std::string kept = Beside(disk, ".tmp").at(0);
        EXPECT_EQ(told,
                  "Path/File access error: /a.ini: Another program has replaced it at the same moment; its "
                  "file is kept as " +
                      kept);
        EXPECT_EQ(disk.Now(),
                  (Files{{path, "; the host's own\n[A]\nx=2\n"}, {kept, "; theirs\n[A]\nx=1\n"}}));
        EXPECT_EQ(AbandonedFilesOf(L"/a.ini", disk), Names{kept});
    }
}

TEST(IniStoreDisturbed, WhoeverKeepsRemovingTheTemporaryFileIsToldOf) {
    SimulatedDisk disk(Files{{path, host}});
    const std::string error = ErrorOfASaveDuring(
        disk, [&] { Clean(disk, ".tmp"); }, 75);
    EXPECT_EQ(error.rfind("Path/File access error: /a.ini: Another program keeps removing /.quor-", 0), 0U)
        << error;
    EXPECT_TRUE(error.ends_with(".tmp")) << error;
    EXPECT_EQ(disk.Now(), (Files{{path, host}}));
}

TEST(IniStoreDisturbed, WhoeverKeepsRemovingTheLockFileIsToldOf) {
    SimulatedDisk disk(Files{{path, host}});
    const std::string error = ErrorOfASaveDuring(
        disk, [&] { Clean(disk, ".lock"); }, 70);
    EXPECT_EQ(error.rfind("Permission denied: /a.ini: Another program keeps removing /.quor-", 0), 0U)
        << error;
    EXPECT_TRUE(error.ends_with(".lock")) << error;
    EXPECT_EQ(disk.Now(), (Files{{path, host}}));
    EXPECT_GE(disk.waited, 10s);
    EXPECT_LT(disk.waited, 21s);
}

TEST(IniStoreDisturbed, AnExchangeThatCannotBeTakenBackKeepsTheOldFileAndSaysWhere) {
    SimulatedDisk disk(Files{{path, host}});
    InterceptedFiles files(disk);
    int exchanges = 0;
    files.onCall = [&](std::string_view call) {
        if (call != "Exchange")
            return 0;
        if (++exchanges == 1) {
            disk.Replace(Beside(disk, ".tmp").at(0), "a thief's");
            return 0;
        }
        return EIO;
    };
    try {
        Save(files, L"x", 2);
        FAIL() << "it was saved";
    } catch (const QuorError& error) {
        const std::string kept = Beside(disk, ".tmp").at(0);
        EXPECT_EQ(error.Number(), 57);
        EXPECT_NE(std::string(error.what()).find(kept), std::string::npos) << error.what();
        EXPECT_EQ(disk.Now().at(kept), host);
    }
}

TEST(IniStoreDisturbed, WhatAnInterruptedSaveHasLeftIsNamedAndGoesWithTheNextOne) {
    for (const bool hasUnnamedFiles : {true, false}) {
        SimulatedDisk disk(Files{{path, host}, {"/.quor-other-1.tmp", "of another file"}});
        disk.hasUnnamedFiles = hasUnnamedFiles;
        struct Killed {};
        InterceptedFiles files(disk);
        bool isDead = false;
        files.onCall = [&](std::string_view call) {
            if (call == "Exchange" || isDead) {
                isDead = true;
                throw Killed();
            }
            return 0;
        };
        EXPECT_THROW(Save(files, L"x", 2), Killed);
        const Names lock = Beside(disk, ".lock");
        const Names left = AbandonedFilesOf(L"/a.ini", disk);
        ASSERT_EQ(left.size(), 2U);
        EXPECT_EQ(left[1], lock.at(0));
        EXPECT_TRUE(left[0].ends_with(".tmp"));

        Save(disk, L"y", 3);
        EXPECT_EQ(disk.Now(),
                  (Files{{path, std::string(host) + "y=3\n"}, {"/.quor-other-1.tmp", "of another file"}}));
        EXPECT_EQ(AbandonedFilesOf(L"/a.ini", disk), Names{});
    }
}

TEST(IniStoreDisturbed, ASaveThatIsUnderWayHasLeftNothing) {
    SimulatedDisk disk(Files{{path, host}});
    disk.hasUnnamedFiles = false;
    InterceptedFiles files(disk);
    int looks = 0;
    bool hasLock = false;
    files.onCall = [&](std::string_view call) {
        if (hasLock && call != "TryLock") {
            ++looks;
            EXPECT_EQ(AbandonedFilesOf(L"/a.ini", disk), Names{}) << call;
        }
        hasLock = hasLock || call == "TryLock";
        return 0;
    };
    Save(files, L"x", 2);
    EXPECT_GT(looks, 10);
}
