// Eight processes save as fast as they can, while others kill them, stop them, remove their files or put
// other files in the place of these. Each storm lasts as many seconds as QUOR_STORM_SECONDS says, two without
// it.

#include "QuorIniFile/IniStore.h"

#include "tests/support/Process.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using namespace std::chrono_literals;
using Names = std::vector<std::string>;

namespace {

constexpr const char* host = "; the host's own\r\n[Display]\r\ncolour = blue\r\nbroken line\r\n";

int Seconds() {
    const char* const text = std::getenv("QUOR_STORM_SECONDS");
    return text != nullptr ? std::atoi(text) : 2;
}

class Storm {
public:
    Storm() {
        m_folder.Write("a.ini", host);
        for (int i = 0; i < 8; ++i)
            m_savers.push_back(Start(i));
    }

    /// Lets `blow` have its way until the time is over, then counts what was saved.
    void Blow(const std::function<void()>& blow) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(Seconds());
        while (std::chrono::steady_clock::now() < end)
            blow();
        for (const auto& saver : m_savers)
            ::kill(saver->Number(), SIGCONT);
        for (const auto& saver : m_savers)
            saver->Wait();
        Claim();
    }

    /// What the savers, or those who killed them, have left beside the file.
    [[nodiscard]] std::vector<fs::path> Beside(const std::string& end) const {
        std::vector<fs::path> paths;
        for (const std::string& name : m_folder.Files()) {
            if (name.starts_with(".quor-") && name.ends_with(end))
                paths.push_back(m_folder.Path(name));
        }
        return paths;
    }

    [[nodiscard]] std::size_t Any(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }
    [[nodiscard]] const Process& AnySaver() { return *m_savers[Any(m_savers.size())]; }
    void KillAny() {
        const std::size_t number = Any(m_savers.size());
        m_savers[number] = nullptr; // which kills it
        m_savers[number] = Start(static_cast<int>(number));
    }

private:
    [[nodiscard]] std::string Section(int number) const { return "Probe " + std::to_string(number); }
    [[nodiscard]] std::string Log(int number) const {
        return m_logs.Path("log" + std::to_string(number)).string();
    }
    [[nodiscard]] std::unique_ptr<Process> Start(int number) const {
        return std::make_unique<Process>(Names{QUOR_INI_SAVER, "storm", m_folder.Path("a.ini").string(),
                                               Section(number), Log(number), std::to_string(Seconds())});
    }

    /// Every key that a saver was told to be saved is there, and the host's own text.
    void Claim() const {
        EXPECT_EQ(m_folder.Read("a.ini").rfind(host, 0), 0U) << m_folder.Read("a.ini").substr(0, 200);
        IniStore store;
        store.SetFileName(m_folder.Name("a.ini"));
        int saved = 0;
        for (int number = 0; number < 8; ++number) {
            std::ifstream log(Log(number));
            store.SetSection(L"Probe " + std::to_wstring(number));
            for (std::string line; std::getline(log, line); ++saved) {
                std::int16_t value = -1;
                EXPECT_TRUE(store.ReadInteger(std::wstring(L"K").append(line.begin(), line.end()), value))
                    << Section(number) << " K" << line;
            }
        }
        EXPECT_GT(saved, 0) << "the storm lets some pass";
        testing::Test::RecordProperty("saved", saved);
    }

    TempFolder m_folder;
    TempFolder m_logs;
    std::vector<std::unique_ptr<Process>> m_savers;
    std::minstd_rand m_random; // the same winds each time
};

} // namespace

TEST(IniStoreStorm, OfKillsLosesNothing) {
    Storm storm;
    storm.Blow([&] {
        std::this_thread::sleep_for(10ms);
        storm.KillAny();
    });
}

TEST(IniStoreStorm, OfStopsLosesNothing) {
    Storm storm;
    storm.Blow([&] {
        const pid_t process = storm.AnySaver().Number();
        ::kill(process, SIGSTOP);
        std::this_thread::sleep_for(std::chrono::milliseconds(storm.Any(30)));
        ::kill(process, SIGCONT);
    });
}

TEST(IniStoreStorm, OfACleanerOfTemporaryFilesLosesNothing) {
    Storm storm;
    storm.Blow([&] {
        std::error_code error;
        for (const fs::path& path : storm.Beside(".tmp"))
            fs::remove(path, error);
    });
}

TEST(IniStoreStorm, OfACleanerOfAllThatIsHiddenLosesNothing) {
    Storm storm;
    storm.Blow([&] {
        std::error_code error;
        for (const fs::path& path : storm.Beside(""))
            fs::remove(path, error);
        std::this_thread::sleep_for(1ms);
    });
}

TEST(IniStoreStorm, OfAThiefLosesNothing) {
    Storm storm;
    const TempFolder den;
    storm.Blow([&] {
        std::error_code error;
        for (const fs::path& path : storm.Beside(".tmp")) {
            den.Write("loot", "a thief's\n");
            fs::rename(den.Path("loot"), path, error);
        }
    });
}
