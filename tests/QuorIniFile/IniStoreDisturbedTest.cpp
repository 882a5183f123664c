// Others at the files of a save: cleaners, thieves, a second computer that does not see our locks. Whatever
// they do at whichever call, the file is never damaged, and what a save has told to be saved is in it.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/SimulatedDisk.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <functional>
#include <string>
#include <utility>
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
void SaveFromElsewhere(SimulatedDisk& disk, const wchar_t* key, std::int16_t value) {
    disk.computer = 2;
    Save(disk, key, value);
    disk.computer = 1;
}
void SaveY(SimulatedDisk& disk) { SaveFromElsewhere(disk, L"y", 3); }

/// The names of what was left beside the file.
Names LeftBeside(SimulatedDisk& disk) {
    Names paths;
    for (const auto& [left, isKept] : LeftoversOf(L"/a.ini", disk)) {
        EXPECT_EQ(isKept, left.ends_with(L".kept"));
        paths.push_back(ToUtf8(left));
    }
    return paths;
}

/// What a save told; nothing when it went well.
std::string Told(IniFileSystem& files) {
    try {
        Save(files, L"x", 2);
    } catch (const QuorError& error) {
        return error.what();
    }
    return "";
}

/// A save whose process is killed when all is ready.
void SaveAndBeKilled(SimulatedDisk& disk, const wchar_t* key, std::int16_t value) {
    struct Killed {};
    InterceptedFiles files(disk);
    bool isDead = false;
    files.onCall = [&isDead](std::string_view call) {
        isDead = isDead || call == "Exchange";
        if (isDead)
            throw Killed();
        return 0;
    };
    EXPECT_THROW(Save(files, key, value), Killed);
}

constexpr const char* keptAside = "Path/File access error: /a.ini: Another program has replaced it at the "
                                  "same moment; its file is kept as ";

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
                           SaveY(disk);
                       },
                       "; the host's own\n[A]\nx=2\ny=3\n", host, true, true, true});
}

TEST(IniStoreDisturbed, AllFilesOfASaveThatAreRemovedAtAnyCallBeforeAnotherSaveLoseNothing) {
    DisturbEverywhere({[](SimulatedDisk& disk) {
                           Clean(disk, "");
                           SaveY(disk);
                       },
                       "; the host's own\n[A]\nx=2\ny=3\n", host, true, true, true});
}

TEST(IniStoreDisturbed, AComputerThatDoesNotSeeOurLockMaySaveAtAnyCallAndNothingIsLost) {
    DisturbEverywhere({SaveY, "; the host's own\n[A]\nx=2\ny=3\n", host, true, false, true});
}

TEST(IniStoreDisturbed, AFlushOfFourteenSecondsWithoutLocksLosesNothingToASaveThatTookItForAbandoned) {
    // Each call in turn is the one that takes so long that another process waits ten seconds and goes on.
    DisturbEverywhere({SaveY, "; the host's own\n[A]\nx=2\ny=3\n", host, false, true, true});
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
                    SaveY(disk);
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

TEST(IniStoreDisturbed, TwoSavesOfOthersAtAnyTwoCallsAreFoundOrKeptAndTold) {
    for (const bool sharesLocks : {true, false}) {
        bool isFirstReached = true;
        for (std::size_t first = 0; isFirstReached; ++first) {
            bool isReached = true;
            for (std::size_t second = first; isReached; ++second) {
                SimulatedDisk disk(Files{{path, host}});
                disk.sharesLocks = sharesLocks;
                InterceptedFiles files(disk);
                std::size_t calls = 0;
                files.onCall = [&](std::string_view) {
                    const std::size_t call = calls++;
                    for (const auto& [at, key] : {std::pair(first, L"y"), std::pair(second, L"z")}) {
                        if (call != at)
                            continue;
                        if (sharesLocks)
                            Clean(disk, ".lock");
                        SaveFromElsewhere(disk, key, 3);
                    }
                    return 0;
                };
                const std::string told = Told(files);
                isReached = calls > second;
                isFirstReached = calls > first;
                if (!isReached)
                    break;
                std::string texts = disk.Now().at(path);
                for (const std::string& kept : Beside(disk, ".kept")) {
                    EXPECT_NE(told.find(kept), std::string::npos) << told;
                    texts += disk.Now().at(kept);
                }
                for (const char* key : {"x=2\n", "y=3\n", "z=3\n"}) {
                    EXPECT_TRUE(texts.find(key) != std::string::npos || (!told.empty() && *key == 'x'))
                        << key << " of " << texts << ", calls " << first << " and " << second << ": " << told;
                }
                EXPECT_EQ(texts.rfind(host, 0) == 0 || texts.rfind("; the host's own\n[A]\nx=2\n", 0) == 0,
                          true);
            }
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
            const std::string told = Told(files);
            reached = calls > at;
            const std::string text = disk.Now().at(path);
            if (told.empty()) {
                EXPECT_EQ(text, "; the host's own\n[A]\nx=2\n") << "call " << at;
                continue;
            }
            // The thief's file may be what somebody has just saved: it is kept, and that is told.
            ++errors;
            ASSERT_EQ(Beside(disk, ".kept").size(), 1U);
            EXPECT_EQ(told, keptAside + Beside(disk, ".kept").front());
            EXPECT_TRUE(text == host || text == "; the host's own\n[A]\nx=2\n") << text;
        }
        EXPECT_LE(errors, 6U) << "those of the last look and the exchange";
    }
}

TEST(IniStoreDisturbed, AThiefWhoComesTwiceAndTakesTheOldFileTooDoesNotKeepTheTextFromBeingThere) {
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
            const std::string told = Told(files);
            isReached = calls > second;
            isFirstReached = calls > first;
            const std::string text = disk.Now().at(path);
            ASSERT_TRUE(text == "; the host's own\n[A]\nx=2\n" || (!told.empty() && text == host))
                << first << " and " << second << ": " << text << told;
        }
    }
}

TEST(IniStoreDisturbed, AProgramThatRenamesTwiceAroundTheExchangeHasBothItsFilesKept) {
    SimulatedDisk disk(Files{{path, host}});
    InterceptedFiles files(disk);
    int exchanges = 0;
    bool isDone = false;
    files.onCall = [&](std::string_view call) {
        if (exchanges == 1 && !isDone) {
            isDone = true;
            disk.Replace(path, "; precious two\n");
        }
        if (call == "Exchange" && ++exchanges == 1)
            disk.Replace(path, "; precious one\n");
        return 0;
    };
    const std::string told = Told(files);
    const Names kept = Beside(disk, ".kept");
    ASSERT_EQ(kept.size(), 2U) << told;
    EXPECT_EQ(told, keptAside + kept[0] + ", " + kept[1]);
    EXPECT_EQ(disk.Now().at(path), "; the host's own\n[A]\nx=2\n");
    EXPECT_EQ(disk.Now().at(kept[0]), "; precious one\n");
    EXPECT_EQ(disk.Now().at(kept[1]), "; precious two\n");
}

TEST(IniStoreDisturbed, ALookThatFailsAfterTheExchangeRemovesNothingOfOthers) {
    for (const bool isOthers : {true, false}) {
        SimulatedDisk disk(Files{{path, host}});
        InterceptedFiles files(disk);
        bool isExchanged = false;
        bool hasFailed = false;
        files.onCall = [&](std::string_view call) {
            if (isExchanged && !hasFailed) {
                hasFailed = true;
                return EIO;
            }
            if (call == "Exchange" && !isExchanged) {
                isExchanged = true;
                if (isOthers)
                    disk.Replace(path, "; precious\n");
            }
            return 0;
        };
        EXPECT_EQ(Told(files), "Device I/O error: /a.ini");
        EXPECT_EQ(disk.Now().at(path), "; the host's own\n[A]\nx=2\n");
        ASSERT_EQ(Beside(disk, "").size(), isOthers ? 1U : 0U);
        if (isOthers) {
            EXPECT_EQ(disk.Now().at(Beside(disk, ".kept").at(0)), "; precious\n");
        }
    }
}

TEST(IniStoreDisturbed, WhateverFailsAroundTheExchangeNoTextOfOthersIsLostNorOurs) {
    // A program renames its file into place before or behind the exchange, or a thief takes the place of our
    // new text; then one call fails. A later save is killed, and one more goes well.
    enum class Where { Before, Behind, Thief };
    for (const Where where : {Where::Before, Where::Behind, Where::Thief}) {
        bool reached = true;
        for (std::size_t at = 1; reached; ++at) {
            SimulatedDisk disk(Files{{path, host}});
            InterceptedFiles files(disk);
            std::size_t since = 0; // calls from the exchange on
            bool isReplaced = false;
            files.onCall = [&](std::string_view call) {
                since += since > 0 || call == "Exchange" ? 1 : 0;
                if (since == (where == Where::Behind ? 2U : 1U) && !isReplaced) {
                    isReplaced = true;
                    disk.Replace(where == Where::Thief ? Beside(disk, ".tmp").at(0) : path, "; precious\n");
                }
                reached = since > at;
                return since == at + 1 ? EIO : 0;
            };
            reached = false;
            const std::string told = Told(files);
            const auto texts = [&disk] {
                std::string all;
                for (const auto& [name, bytes] : disk.Now())
                    all += bytes;
                return all;
            };
            const std::string message = "case " + std::to_string(static_cast<int>(where)) + ", call " +
                                        std::to_string(at) + ": " + told;
            const auto expectAll = [&](const char* when) {
                EXPECT_NE(texts().find("; precious\n"), std::string::npos) << when << message;
                EXPECT_NE(texts().find("; the host's own\n"), std::string::npos) << when << message;
            };
            expectAll("at once, ");
            SaveAndBeKilled(disk, L"z", 4);
            Save(disk, L"z", 5);
            expectAll("later, ");
        }
    }
}

TEST(IniStoreDisturbed, ThreeFilesOfAnotherProgramInOneSaveAreAllKeptOrThere) {
    for (std::size_t third = 3; third < 40; ++third) {
        SimulatedDisk disk(Files{{path, host}});
        InterceptedFiles files(disk);
        std::size_t since = 0;
        files.onCall = [&](std::string_view call) {
            since += since > 0 || call == "Exchange" ? 1 : 0;
            const std::pair<std::size_t, const char*> renames[] = {
                {1, "; one\n"}, {2, "; two\n"}, {third, "; three\n"}};
            for (const auto& [at, text] : renames) {
                if (since == at)
                    disk.Replace(path, text);
            }
            return 0;
        };
        const std::string told = Told(files);
        std::string texts;
        for (const auto& [name, bytes] : disk.Now()) {
            texts += bytes;
            EXPECT_TRUE(!name.ends_with(".kept") || told.find(name) != std::string::npos)
                << name << ": " << told;
        }
        EXPECT_NE(texts.find("; one\n"), std::string::npos) << texts << ", call " << third;
        // The third one may take the place of the second one by itself, as at any other time.
        EXPECT_TRUE(texts.find("; two\n") != std::string::npos ||
                    texts.find("; three\n") != std::string::npos);
        EXPECT_TRUE(since < third || texts.find("; three\n") != std::string::npos)
            << texts << ", call " << third;
    }
}

TEST(IniStoreDisturbed, ASaveUponOursThatMeetsOurPuttingBackIsPutBackAsWell) {
    // Others have taken our lock and save: y right before the exchange, z upon our text right before that
    // goes.
    SimulatedDisk disk(Files{{path, host}});
    InterceptedFiles files(disk);
    int exchanges = 0;
    files.onCall = [&](std::string_view call) {
        if (call != "Exchange")
            return 0;
        ++exchanges;
        if (exchanges <= 2) {
            Clean(disk, ".lock");
            SaveFromElsewhere(disk, exchanges == 1 ? L"y" : L"z", 3);
        }
        return 0;
    };
    const std::string told = Told(files);
    EXPECT_EQ(disk.Now().at(path), "; the host's own\n[A]\nx=2\nz=3\n") << "whoever saved last is right";
    ASSERT_EQ(Beside(disk, ".kept").size(), 1U);
    EXPECT_EQ(disk.Now().at(Beside(disk, ".kept")[0]), "; the host's own\n[A]\nx=1\ny=3\n");
    EXPECT_EQ(told, keptAside + Beside(disk, ".kept")[0]);
}

TEST(IniStoreDisturbed, WhatWasKeptStaysWhateverBecomesOfLaterSaves) {
    SimulatedDisk disk(Files{{path, host}, {"/.quor-65abe8b5491700c0-7.kept", "; precious\n"}});
    SaveAndBeKilled(disk, L"x", 2);
    Save(disk, L"y", 3);
    EXPECT_EQ(disk.Now(), (Files{{path, std::string(host) + "y=3\n"},
                                 {"/.quor-65abe8b5491700c0-7.kept", "; precious\n"}}));
    EXPECT_EQ(LeftBeside(disk), Names{"/.quor-65abe8b5491700c0-7.kept"});
}

TEST(IniStoreDisturbed, ALockFileThatHasBecomeAnothersIsNotRemovedAsAbandoned) {
    // Between our opening of an abandoned lock file and our locking it another process removes it and begins.
    SimulatedDisk disk(Files{{path, host}});
    const std::string lock = [&disk] {
        const IniReplacement one(L"/a.ini", disk); // to see the name
        return Beside(disk, ".lock").at(0);
    }();
    disk.Replace(lock, "");
    InterceptedFiles files(disk);
    IniFileSystem::Handle other = 0;
    bool isHeld = false;
    files.onCall = [&](std::string_view call) {
        if (call == "TryLock" && !isHeld) {
            isHeld = true;
            EXPECT_EQ(disk.Remove(lock), 0);
            other = disk.Open(lock, IniFileSystem::Opening::CreateLock).value;
            EXPECT_EQ(disk.TryLock(other), 0);
        } else if (disk.waited >= 1s && isHeld && other != 0) {
            EXPECT_EQ(Beside(disk, ".lock"), Names{lock}) << "it is still the other's";
            EXPECT_EQ(disk.Remove(lock), 0);
            disk.Close(std::exchange(other, 0));
        }
        return 0;
    };
    EXPECT_EQ(Told(files), "");
    EXPECT_GE(disk.waited, 1s);
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
    for (std::size_t at = 0;; ++at) {
        SimulatedDisk disk(Files{{path, host}});
        InterceptedFiles files(disk);
        std::size_t calls = 0;
        std::size_t sinceExchange = 0;
        bool isReplaced = false;
        files.onCall = [&](std::string_view call) {
            sinceExchange += sinceExchange > 0 || call == "Exchange" ? 1 : 0;
            if (calls++ == at &&
                sinceExchange < 3) { // then ours has stood there, and theirs has come after it
                disk.Replace(path, "; theirs\n[A]\nx=1\n");
                isReplaced = true;
            }
            return 0;
        };
        const std::string told = Told(files);
        if (!isReplaced)
            break;
        const Names kept = Beside(disk, ".kept");
        if (told.empty()) {
            EXPECT_EQ(disk.Now(), (Files{{path, "; theirs\n[A]\nx=2\n"}})) << "call " << at;
            continue;
        }
        // In the very moment of the exchange.
        ASSERT_EQ(kept.size(), 1U);
        EXPECT_EQ(told, keptAside + kept.front());
        EXPECT_EQ(disk.Now().at(kept.front()), "; theirs\n[A]\nx=1\n") << "call " << at;
        EXPECT_EQ(LeftBeside(disk), kept);
        const std::string text = disk.Now().at(path);
        EXPECT_TRUE(text == host || text == "; the host's own\n[A]\nx=2\n") << text;
    }
}

TEST(IniStoreDisturbed, AFileThatIsHalfWrittenWhenOursIsToGoIntoItIsWaitedFor) {
    const std::string half("\xFF\xFE[", 3); // of a file in UTF-16: an odd number of bytes
    bool reached = true;
    for (std::size_t at = 0; reached; ++at) {
        SimulatedDisk disk(Files{{path, host}});
        InterceptedFiles files(disk);
        IniStore store(files);
        store.SetFileName(L"/a.ini");
        store.SetSection(L"A");
        store.Hold();
        store.WriteInteger(L"x", 2, L"");
        disk.Rewrite(path, half);
        std::size_t calls = 0;
        files.onCall = [&](std::string_view) {
            if (calls++ == at)
                disk.Rewrite(path, "; theirs\n[A]\nx=1\n");
            return 0;
        };
        reached = false;
        try {
            store.Release();
            reached = calls > at;
            EXPECT_EQ(disk.Now().at(path), "; theirs\n[A]\nx=2\n") << "call " << at;
        } catch (const QuorError& error) {
            EXPECT_LE(calls, at + 2) << "it was half written to the end: " << error.what();
            EXPECT_GT(at, 10U);
        }
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
        const std::string kept = Beside(disk, ".kept").at(0);
        EXPECT_EQ(error.Number(), 57);
        EXPECT_NE(std::string(error.what()).find(kept), std::string::npos) << error.what();
        EXPECT_EQ(disk.Now().at(kept), host);
    }
}

TEST(IniStoreDisturbed, WhatAnInterruptedSaveHasLeftIsNamedAndGoesWithTheNextOne) {
    for (const bool hasUnnamedFiles : {true, false}) {
        SimulatedDisk disk(Files{{path, host}, {"/.quor-other-1.tmp", "of another file"}});
        disk.hasUnnamedFiles = hasUnnamedFiles;
        SaveAndBeKilled(disk, L"x", 2);
        const Names lock = Beside(disk, ".lock");
        const Names left = LeftBeside(disk);
        ASSERT_EQ(left.size(), 2U);
        EXPECT_EQ(left[1], lock.at(0));
        EXPECT_TRUE(left[0].ends_with(".tmp"));

        Save(disk, L"y", 3);
        EXPECT_EQ(disk.Now(),
                  (Files{{path, std::string(host) + "y=3\n"}, {"/.quor-other-1.tmp", "of another file"}}));
        EXPECT_EQ(LeftBeside(disk), Names{});
    }
}

TEST(IniStoreDisturbed, ATemporaryFileThatIsOlderThanTheInterruptedSaveIsNotRemovedWithIt) {
    const std::string older =
        "/.quor-65abe8b5491700c0-7.tmp"; // whose lock file is gone: nobody knows what it is
    SimulatedDisk disk(Files{{path, host}, {older, "; precious\n"}});
    SaveAndBeKilled(disk, L"x", 2);
    Save(disk, L"y", 3);
    EXPECT_EQ(disk.Now(), (Files{{path, std::string(host) + "y=3\n"}, {older, "; precious\n"}}));
    EXPECT_EQ(LeftBeside(disk), Names{older});
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
            EXPECT_EQ(LeftBeside(disk), Names{}) << call;
        }
        hasLock = hasLock || call == "TryLock";
        return 0;
    };
    Save(files, L"x", 2);
    EXPECT_GT(looks, 10);
}
