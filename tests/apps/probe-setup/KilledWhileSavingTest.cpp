// A program that is killed while it saves leaves the file as it was or as it was to be.

#include "QuorConversions/platform/HeadlessPlatform.h"
#include "apps/probe-setup/ProbeDocument.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

using namespace ProbeSetup;
using namespace QuorConversions;

namespace {

/// A file in which a save has much to write, with what differs far apart.
std::string Laboratory(const std::string& name, const std::string& type) {
    std::string text = "[" + name + "]\nVersion=1.0\nConversionType=10\n\n";
    for (int i = 0; i < 300; ++i)
        text += "; certificate " + std::to_string(i) + "\n[P" + std::to_string(i) +
                "]\nVersion=1.0\nConversionType=10\n\n";
    return text + "[last]\nVersion=1.0\nConversionType=" + type + "\n";
}

/// Saves for ever, back and forth between two texts. `started` is told when the first save begins.
[[noreturn]] void SaveForEver(const std::wstring& path, int started) {
    ProbeDocument document(std::make_shared<HeadlessPlatform>());
    document.Open(path);
    const std::size_t last = document.Count() - 1;
    if (::write(started, "!", 1) != 1)
        ::_exit(1);
    for (;;) {
        const bool first = document.Name(0) == L"first";
        document.Rename(0, first ? L"another" : L"first");
        document.SetType({last}, first ? CONV_VOLTS : CONV_OHMS);
        document.Save();
    }
}

} // namespace

TEST(KilledWhileSaving, TwoHundredTimesTheFileIsTheOldOneOrTheNewOne) {
    const TempFolder folder;
    const std::string before = Laboratory("first", "10");
    const std::string after = Laboratory("another", "11");
    folder.Write("host.ini", before);
    std::mt19937 random(20261121);
    std::set<std::string> seen;
    std::string last = before;
    constexpr std::int64_t shortest = 1000; // microseconds
    constexpr std::int64_t tooLong = 50'000;
    std::int64_t longest = shortest; // it becomes about as long as a save takes at the moment
    for (int kill = 0; kill < 200; ++kill) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            SaveForEver(folder.Name("host.ini"), ends[1]);
        ::close(ends[1]);
        char mark = 0;
        ASSERT_EQ(::read(ends[0], &mark, 1), 1) << "the child has ended before it saved";
        ::close(ends[0]);
        std::uniform_int_distribution<std::int64_t> microseconds(0, longest);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child has failed by itself";
        const std::string text = folder.Read("host.ini");
        ASSERT_TRUE(text == before || text == after) << "after kill " << kill;
        seen.insert(text);
        longest = std::clamp(text == last ? longest * 3 / 2 : longest / 2, shortest, tooLong);
        last = text;
    }
    EXPECT_EQ(seen.size(), 2U) << "it was killed between saves, too";
}
