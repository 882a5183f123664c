// What Probe Setup needs for a file of a hundred thousand probes, beside what the store needs to load that
// file in the same run: the time to open it and show its list, the time in which the list finds a probe and
// is sorted, and memory. Fails where a limit is missed. Needs no display (QT_QPA_PLATFORM=offscreen). Usage:
// QuorSetupBench FILE

#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/IniStore.h"
#include "apps/probe-setup/MainWindow.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include <malloc.h>

namespace {

/// Milliseconds of work, in all threads, whatever else the machine does; the least of several runs.
double LeastOf(int runs, const std::function<void()>& action) {
    double least = 1e12;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        action();
        least = std::min(least, 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

/// A line of what the system tells of this process, in bytes: "VmHWM" is the most memory that it ever had.
double Memory(const std::string& line) {
    std::ifstream status("/proc/self/status");
    for (std::string text; std::getline(status, text);)
        if (text.starts_with(line + ":"))
            return std::stod(text.substr(line.size() + 1)) * 1024;
    return 0;
}

/// Forgets the most memory that the process has had so far.
void ForgetPeak() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

bool Holds(const char* what, double value, double limit) {
    const bool holds = value <= limit;
    std::printf("%-52s %6.1f times, limit %4.1f%s\n", what, value, limit, holds ? "" : "  MISSED");
    return holds;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: QuorSetupBench FILE\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const std::wstring file = QuorConversions::QtToolkit::FromQt(path);
    const auto size = static_cast<double>(std::filesystem::file_size(file));

    constexpr int runs = 3;
    const double store = LeastOf(runs, [&file] {
        QuorIniFile::IniStore ini;
        ini.SetFileName(file);
        static_cast<void>(ini.Sections());
    });

    ProbeSetup::MainWindow window(nullptr, QString());
    window.show();
    QCoreApplication::processEvents();
    ForgetPeak();
    const double before = Memory("VmRSS");
    bool isOpen = true;
    double list = 0; // until the list is there, and can be used
    const double open = LeastOf(1, [&] {
        list = LeastOf(1, [&] {
            isOpen = window.OpenPath(path);
            window.Table().viewport()->repaint();
        });
        QCoreApplication::processEvents();
    });
    const double peak = Memory("VmHWM") - before;
    const int rows = window.Table().model()->rowCount();

    // The list is used: a probe is found by its name, the whole list comes back, and the last probe is
    // selected.
    auto* const find = window.findChild<QLineEdit*>(QStringLiteral("find"));
    const double use = LeastOf(runs, [&] {
        find->setText(QStringLiteral("Probe 99999"));
        QCoreApplication::processEvents();
        find->clear();
        window.Table().setCurrentIndex(window.Table().model()->index(rows - 1, 0));
        QCoreApplication::processEvents();
    });
    const double sort = LeastOf(1, [&] {
        window.Table().sortByColumn(0, Qt::DescendingOrder);
        QCoreApplication::processEvents();
    });
    std::printf("Probe Setup, %d probes, %.1f MB; the store loads them in %.0f ms\n", rows, size / 1e6,
                store);
    bool all = isOpen && rows > 0;
    all = Holds("opening, beside the store's load", open / store, 12) && all;
    all = Holds("the list is there, beside the store's load", list / store, 4) && all;
    all = Holds("finding a probe and showing all again", use / store, 4) && all;
    all = Holds("sorting by name", sort / store, 4) && all;
    all = Holds("memory at the peak of opening, beside the file", peak / size, 6) && all;
    return all ? 0 : 1;
}
