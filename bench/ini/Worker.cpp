// Lets one peer do one task in a fresh process and tells how long it took.
// Usage: WORKER load|read|one|build|change PROBES REPETITIONS FOLDER VALUE
//
// FOLDER holds the workload as PROBES;.ini and, with the other comment mark, PROBES#.ini. `build` and
// `change` leave saved.ini there. Each repetition has a file of its own, because a peer may remember files
// that it has seen. The answer has the time of the first one, which finds the heap empty, and the median of
// those that follow: of the first again, when there is one only.

#include "bench/ini/Peer.h"
#include "bench/ini/Process.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace {

using namespace Bench;
namespace fs = std::filesystem;

struct Task {
    std::string_view name;
    bool writes, needsSource, closes;
    std::uint64_t (*run)(Peer&, const std::string& path, const Workload&, double value);
};

constexpr Task tasks[] = {
    {"load", false, true, false,
     [](Peer& peer, const std::string& path, const Workload&, double) {
         peer.Load(path);
         return std::uint64_t{0};
     }},
    {"read", false, true, false,
     [](Peer& peer, const std::string& path, const Workload&, double) { return peer.LoadAndReadAll(path); }},
    {"one", false, true, true,
     [](Peer& peer, const std::string& path, const Workload& workload, double) {
         return peer.LoadAndReadOne(path, workload.Probes() / 2);
     }},
    {"build", true, false, false,
     [](Peer& peer, const std::string& path, const Workload& workload, double) {
         peer.BuildAndSave(path, workload);
         return std::uint64_t{0};
     }},
    {"change", true, true, false,
     [](Peer& peer, const std::string& path, const Workload& workload, double value) {
         peer.LoadChangeAndSave(path, workload.Probes() / 2, value);
         return std::uint64_t{0};
     }},
};

void Run(const Task& task, std::size_t probes, std::size_t repetitions, const fs::path& folder,
         double value) {
    const Workload workload(probes);
    std::vector<double> times;
    std::uint64_t sum = 0;
    long long memory = 0;
    const fs::path saved = folder / "saved.ini";
    for (std::size_t repetition = 0; repetition < repetitions; ++repetition) {
        std::unique_ptr<Peer> peer = MakePeer();
        peer->Prepare(workload);
        const fs::path source = folder / (std::to_string(probes) + peer->CommentMark() + ".ini");
        const fs::path copy = folder / ("copy-" + std::to_string(repetition) + ".ini");
        fs::remove(copy);
        if (task.needsSource && (task.writes || repetitions > 1))
            fs::copy_file(source, copy);
        const fs::path& path = task.writes || repetitions > 1 ? copy : source;

        ForgetPeak();
        const long long before = MemoryFigure("VmRSS");
        const Stopwatch watch;
        sum = task.run(*peer, path.string(), workload, value);
        if (task.closes)
            peer.reset();
        times.push_back(watch.Seconds());
        if (repetition == 0)
            memory = MemoryFigure("VmHWM") - before;
        peer.reset();
        if (task.writes)
            fs::rename(copy, saved);
        fs::remove(copy);
    }
    const double first = times.front();
    if (times.size() > 1)
        times.erase(times.begin());
    Answer(first, Median(times), sum, memory);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::string_view name = argc == 6 ? argv[1] : "";
        for (const Task& task : tasks) {
            if (task.name != name)
                continue;
            Run(task, std::strtoul(argv[2], nullptr, 10), std::strtoul(argv[3], nullptr, 10), argv[4],
                std::strtod(argv[5], nullptr));
            return 0;
        }
        std::cerr << "usage: " << argv[0] << " load|read|one|build|change PROBES REPETITIONS FOLDER VALUE\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << argv[0] << ": " << error.what() << '\n';
        return 1;
    }
}
