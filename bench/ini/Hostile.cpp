// What a file costs that was made to be slow, beside an ordinary one of the same size. Usage: QuorIniHostile
// FOLDER
//
// Each file is loaded, asked for keys and sections that are there and that are not, changed at both ends and
// saved. At most five times the time of the ordinary one is allowed.

#include "QuorIniFile/IniStore.h"
#include "bench/Workload.h"
#include "bench/ini/Process.h"

#include <filesystem>
#include <functional>
#include <iomanip>
#include <sstream>

namespace {

using namespace Bench;

constexpr std::size_t size = 10'000'000;
constexpr double allowed = 5;
constexpr int rounds = 7;

/// `part(0) part(1) ...` up to the size of all files.
std::string Many(const std::function<std::string(std::size_t)>& part) {
    std::string text;
    text.reserve(size + 100);
    for (std::size_t i = 0; text.size() < size; ++i)
        text += part(i);
    return text;
}
std::string Repeated(const std::string& part) {
    return Many([&](std::size_t) { return part; });
}
std::string Line(const char* before, const char* part, const char* behind = "") {
    return std::string(before).append(Repeated(part)).append(behind);
}
std::string Numbered(const std::string& before, const std::string& behind) {
    return Many([&](std::size_t i) { return std::string(before).append(std::to_string(i)).append(behind); });
}

std::string Ordinary() {
    std::ostringstream text;
    Workload(39'000).WriteTo(text);
    return text.str();
}

struct Kind {
    const char* name;
    std::string (*make)();
};

const Kind kinds[] = {
    {"one line, a value", [] { return Line("x=", "1"); }},
    {"one line, a key", [] { return Line("", "k", "=1"); }},
    {"one line, a name of a section", [] { return Line("[", "s", "]"); }},
    {"one line, a comment", [] { return Repeated(";"); }},
    {"one line of nothing known", [] { return Repeated("text "); }},
    {"a value of semicolons", [] { return Line("x=", " ;"); }},
    {"a value of quotes", [] { return Line("x=", "\""); }},
    {"a value of backslashes in quotes", [] { return Line("x=\"", "\\", "\""); }},
    {"a value of half an escape", [] { return Line("x=\"", "\\u{1", "\""); }},
    {"a value that is no UTF-8", [] { return Line("x=", "\xF6"); }},
    {"a value of digits", [] { return Line("n=", "9"); }},
    {"a value of zeros behind the point", [] { return Line("n=0.", "0", "1"); }},
    {"opening brackets", [] { return Repeated("["); }},
    {"opening brackets, blanks between", [] { return Repeated(" ["); }},
    {"opening brackets, a line each", [] { return Repeated("[\n"); }},
    {"closing brackets", [] { return Line("[", "] ", "x"); }},
    {"equals signs", [] { return Repeated("="); }},
    {"equals signs, a line each", [] { return Repeated("=\n"); }},
    {"blanks", [] { return Repeated(" "); }},
    {"line ends", [] { return Repeated("\n"); }},
    {"carriage returns", [] { return Repeated("\r"); }},
    {"NUL bytes", [] { return Repeated(std::string("x\0", 2)); }},
    {"comments", [] { return Repeated("; comment\n"); }},
    {"a million keys", [] { return Numbered("Key", "=\n"); }},
    {"a million keys of one name", [] { return Repeated("samekey=1\n"); }},
    {"a million keys without a name", [] { return Repeated("=12345678\n"); }},
    {"a million keys in Latin-1", [] { return Numbered("\xD6l", "=\n"); }},
    {"a million sections", [] { return Numbered("[S", "]\n"); }},
    {"a million sections of one name", [] { return Repeated("[section]\n"); }},
    {"a million sections without a name", [] { return Repeated("[]\n"); }},
    {"a million sections in Latin-1", [] { return Numbered("[\xD6l", "]\n"); }},
    {"names that differ in their last letters",
     [] { return Numbered(std::string(1000, 's').insert(0, 1, '['), "]\n"); }},
};

/// One host's visit. `found` keeps the compiler from leaving anything out.
double Visit(const std::string& path, std::size_t& found) {
    const Stopwatch watch;
    QuorIniFile::IniStore store;
    store.SetFileName(std::wstring(path.begin(), path.end()));
    store.Hold();
    std::wstring text;
    double number = 0;
    for (const wchar_t* const section : {L"First", L"Last"}) {
        store.SetSection(section);
        found += store.ReadString(L"x", text) ? text.size() : 0;
        found += store.ReadDouble(L"n", number) ? 1 : 0;
        for (int i = 0; i < 1000; ++i)
            found += store.ReadString(L"missing" + std::to_wstring(i), text) ? 1 : 0;
    }
    for (int i = 0; i < 1000; ++i) {
        store.SetSection(L"missing" + std::to_wstring(i));
        found += store.ReadString(L"x", text) ? 1 : 0;
    }
    for (const wchar_t* const section : {L"First", L"Last", L"N\u00EAw"}) {
        store.SetSection(section);
        store.WriteDouble(L"x", 0.5, L"remark");
        store.WriteString(L"last", L"\u2126");
    }
    store.Release();
    found += store.ReadString(L"last", text) ? 1 : 0;
    return watch.Seconds();
}

struct Times {
    double hostile, ordinary;
};

/// The two in turn, so that whatever else the machine does meets both.
Times Measure(const std::string& hostile, const std::string& ordinary, const std::string& path,
              std::size_t& found) {
    const auto visit = [&](const std::string& text) {
        std::ofstream(path, std::ios::binary) << "[First]\n" << text << "\n[Last]\nn=1\n" << std::flush;
        return Visit(path, found);
    };
    std::vector<double> times;
    std::vector<double> ordinaryTimes;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(visit(hostile));
        ordinaryTimes.push_back(visit(ordinary));
    }
    return {Median(times), Median(ordinaryTimes)};
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: QuorIniHostile FOLDER\n";
        return 2;
    }
    const std::string path = std::string(argv[1]) + "/hostile.ini";
    std::size_t found = 0;
    const std::string ordinaryText = Ordinary();
    std::cout << "Hostile files of 10 MB beside an ordinary one of " << ordinaryText.size()
              << " bytes, medians of " << rounds << ", at most " << allowed << " times\n";
    bool allMet = true;
    for (const Kind& kind : kinds) {
        const Times times = Measure(kind.make(), ordinaryText, path, found);
        const double ratio = times.hostile / times.ordinary;
        allMet = allMet && ratio <= allowed;
        std::cout << "  " << (ratio <= allowed ? "MET   " : "MISSED") << "  " << std::left << std::setw(42)
                  << kind.name << std::right << std::fixed << std::setprecision(1) << std::setw(8)
                  << times.hostile * 1e3 << " ms" << std::setw(8) << times.ordinary * 1e3 << " ms"
                  << std::setw(7) << ratio << " x\n";
    }
    std::filesystem::remove(path);
    return allMet && found > 0 ? 0 : 1;
}
