// What the machine itself needs for the parts of the work, and what is right.
// Usage: QuorIniFloors read|scan|parse|print|write PROBES REPETITIONS FOLDER VALUE
//        QuorIniFloors expect-read|expect-one|expect-build|expect-change|check-saved PROBES ... (as above)
//
// `parse` and `print` tell the seconds for one double. The expectations come from the workload itself, and a
// saved file is looked through by its lines, so that no peer says what is right.

#include "bench/Workload.h"
#include "bench/ini/Peer.h"
#include "bench/ini/Process.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace Bench;

/// The bytes of a file in memory that nobody has touched before.
struct Bytes {
    explicit Bytes(const std::string& path) {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat status {};
        Require(file >= 0 && ::fstat(file, &status) == 0, "the workload cannot be opened");
        size = static_cast<std::size_t>(status.st_size);
        data.reset(new char[size]);
        for (std::size_t used = 0; used < size;) {
            const ssize_t count = ::read(file, data.get() + used, size - used);
            Require(count > 0, "the workload cannot be read");
            used += static_cast<std::size_t>(count);
        }
        ::close(file);
    }
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
};

double Read(const std::string& path, const Workload&) {
    const Stopwatch watch;
    const Bytes bytes(path);
    return watch.Seconds();
}

double Scan(const std::string& path, const Workload&) {
    const Bytes bytes(path);
    const Stopwatch watch;
    std::size_t lines = 0;
    const char* const end = bytes.data.get() + bytes.size;
    for (const char* at = bytes.data.get(); at != end; ++lines) {
        const void* const lineEnd = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
        at = lineEnd ? static_cast<const char*>(lineEnd) + 1 : end;
    }
    const double seconds = watch.Seconds();
    Require(lines > 0, "no lines");
    return seconds;
}

std::vector<std::string> Texts(const Workload& workload) {
    std::vector<std::string> texts;
    for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
        for (const double value : workload.CoefficientsOf(probe)) {
            std::array<char, 32> digits{};
            texts.emplace_back(digits.data(), std::to_chars(digits.data(), digits.data() + 32, value).ptr);
        }
    }
    return texts;
}

double Parse(const std::string&, const Workload& workload) {
    const std::vector<std::string> texts = Texts(workload);
    double sum = 0;
    const Stopwatch watch;
    for (const std::string& text : texts) {
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        sum += value;
    }
    const double seconds = watch.Seconds();
    Require(sum != 0, "no doubles");
    return seconds / static_cast<double>(texts.size());
}

double Print(const std::string&, const Workload& workload) {
    std::size_t length = 0;
    const Stopwatch watch;
    for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
        for (const double value : workload.CoefficientsOf(probe)) {
            std::array<char, 32> digits; // to_chars fills it
            length += static_cast<std::size_t>(
                std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr - digits.data());
        }
    }
    const double seconds = watch.Seconds();
    Require(length != 0, "no doubles");
    return seconds / static_cast<double>(workload.Probes() * 4);
}

/// A durable save: written beside the old file, flushed, renamed, and the folder flushed.
double Write(const std::string& path, const Workload&) {
    const Bytes bytes(path);
    const std::string saved = std::filesystem::path(path).replace_filename("saved.ini").string();
    const std::string temporary = saved + ".new";
    const std::string folder = std::filesystem::path(path).parent_path().string();
    const Stopwatch watch;
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    bool fine = file >= 0;
    for (std::size_t used = 0; fine && used < bytes.size;) {
        const ssize_t count = ::write(file, bytes.data.get() + used, bytes.size - used);
        fine = count > 0;
        used += static_cast<std::size_t>(fine ? count : 0);
    }
    fine = fine && ::fsync(file) == 0 && ::close(file) == 0;
    fine = fine && ::rename(temporary.c_str(), saved.c_str()) == 0;
    const int directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    fine = fine && directory >= 0 && ::fsync(directory) == 0 && ::close(directory) == 0;
    const double seconds = watch.Seconds();
    Require(fine, "a durable save failed");
    return seconds;
}

struct Floor {
    std::string_view name;
    double (*seconds)(const std::string& path, const Workload& workload);
};
constexpr Floor floors[] = {
    {"read", Read}, {"scan", Scan}, {"parse", Parse}, {"print", Print}, {"write", Write}};

// What is right -------------------------------------------------------------------------------------------

void AddProbe(const Workload& workload, std::size_t probe, CheckSum& sum) {
    sum.AddText(2 * std::strlen("1.0"));
    sum.Add(2L); // the type
    sum.Add(4L); // the count
    for (const double value : workload.CoefficientsOf(probe))
        sum.Add(value);
}

void AddCoefficients(const Workload& workload, CheckSum& sum) {
    for (std::size_t probe = 0; probe < workload.Probes(); ++probe)
        for (const double value : workload.CoefficientsOf(probe))
            sum.Add(value);
}

void AddSavedCoefficients(const std::string& path, CheckSum& sum) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const std::size_t equals = line.find('=');
        if (line.starts_with("Coefficients") && equals != std::string::npos)
            sum.Add(std::strtod(line.c_str() + equals + 1, nullptr));
    }
}

std::uint64_t Sum(std::string_view what, Workload& workload, const std::string& folder, double value) {
    CheckSum sum;
    if (what == "expect-read") {
        for (std::size_t probe = 0; probe < workload.Probes(); ++probe)
            AddProbe(workload, probe, sum);
    } else if (what == "expect-one") {
        AddProbe(workload, workload.Probes() / 2, sum);
    } else if (what == "expect-build") {
        AddCoefficients(workload, sum);
    } else if (what == "expect-change") {
        workload.SetCoefficient(workload.Probes() / 2, 2, value);
        AddCoefficients(workload, sum);
    } else if (what == "check-saved") {
        AddSavedCoefficients(folder + "/saved.ini", sum);
    } else {
        Fail("nothing is known by the name of " + std::string(what));
    }
    return sum.Value();
}

} // namespace

int main(int argc, char** argv) {
    try {
        Require(argc == 6, "usage: QuorIniFloors WHAT PROBES REPETITIONS FOLDER VALUE");
        const std::string_view what = argv[1];
        Workload workload(std::strtoul(argv[2], nullptr, 10));
        const std::string folder = argv[4];
        for (const Floor& floor : floors) {
            if (floor.name != what)
                continue;
            std::vector<double> times(std::strtoul(argv[3], nullptr, 10));
            for (double& seconds : times)
                seconds = floor.seconds(folder + '/' + argv[2] + ";.ini", workload);
            const double first = times.front();
            if (times.size() > 1)
                times.erase(times.begin());
            Answer(first, Median(times), 0, 0);
            return 0;
        }
        Answer(0, 0, Sum(what, workload, folder, std::strtod(argv[5], nullptr)), 0);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << argv[0] << ": " << error.what() << '\n';
        return 1;
    }
}
