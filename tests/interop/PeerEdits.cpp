// Shows what each reader and writer of INI files makes of one edit of a host's file: opened, one number set,
// saved.

#include "tests/interop/HostFile.h"
#include "tests/interop/Peer.h"
#include "tests/support/CommaLocale.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <iomanip>
#include <iostream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace Interop;
namespace fs = std::filesystem;

constexpr const char* name = "host.ini";
const fs::perms modeBefore = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

/// The host's file as far as a peer takes it at all: one knows no ';', another no '#'.
enum class Marks { Both, Hash, Semicolon };
std::string HostFileWith(Marks marks) {
    const std::string text(hostFile);
    if (marks == Marks::Hash)
        return Replaced(text, "; settings", "# settings");
    if (marks == Marks::Semicolon)
        return Replaced(text, "# certificate", "; certificate");
    return text;
}

void Edit(const PeerRow& row, const std::string& path) {
    const std::unique_ptr<Peer> peer = row.make();
    peer->Open(path);
    peer->SetDouble("Probe", "R0", editedValue);
    peer->Save();
}

/// What `act` says, in a process of its own: limits and locales die with it.
std::string InChild(const std::function<std::string()>& act) {
    int ends[2] = {};
    if (::pipe(ends) != 0)
        return "no pipe";
    const pid_t child = ::fork();
    if (child == 0) {
        std::string answer;
        try {
            answer = act();
        } catch (const std::exception& error) {
            answer = std::string("error: ") + error.what();
        }
        static_cast<void>(::write(ends[1], answer.data(), answer.size()) != 0);
        ::_exit(0);
    }
    ::close(ends[1]);
    char answer[256] = {};
    const ssize_t length = ::read(ends[0], answer, sizeof answer);
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return {answer, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

std::string Fate(const std::string& after, std::string_view line) {
    const std::string_view content = line.substr(0, line.find('\r'));
    return after.find(content) != std::string::npos ? "kept" : "changed";
}

std::string Comments(const std::string& before, const std::string& after) {
    std::size_t kept = 0;
    std::size_t all = 0;
    for (const char* comment : {"settings of the rig", "; the old one", "certificate 4711"}) {
        all += before.find(comment) != std::string::npos ? 1 : 0;
        kept += after.find(comment) != std::string::npos ? 1 : 0;
    }
    return std::to_string(kept) + " of " + std::to_string(all);
}

/// Lines that nobody has edited, one with blanks around its '=' and one without; what is damaged besides is
/// told by lines of its own.
std::string Spaces(const std::string& after) {
    const bool both = after.find("Name = Rig 4") != std::string::npos &&
                      after.find("Alpha=0.00385055") != std::string::npos;
    return both ? "kept" : "changed";
}

void Show(const PeerRow& row) {
    const TempFolder folder;
    const std::string path = folder.Path(name).string();
    Marks marks = Marks::Both;
    std::string refused = "no";
    for (const Marks tried : {Marks::Both, Marks::Semicolon, Marks::Hash}) {
        folder.Write(name, HostFileWith(tried));
        marks = tried;
        const std::string answer = InChild([&] {
            if (row.writes)
                Edit(row, path);
            else
                row.make()->Open(path);
            return std::string("taken");
        });
        if (answer == "taken")
            break;
        refused = tried == Marks::Both ? "# comments" : "; comments";
    }
    const std::string before = HostFileWith(marks);
    const auto reset = [&] {
        folder.Write(name, before);
        fs::permissions(path, modeBefore);
    };
    const auto line = [](const char* what, const std::string& answer) {
        std::cout << "  " << std::left << std::setw(34) << what << answer << '\n';
    };

    std::cout << row.name << '\n';
    line("refuses", refused);
    reset();
    if (row.writes) {
        const std::string error = InChild([&] {
            Edit(row, path);
            return std::string("none");
        });
        const std::string after = folder.Read(name);
        line("error of the edit", error);
        line("comments kept", Comments(before, after));
        line("blanks around \"=\"", Spaces(after));
        line("Folder=C:\\Data\\Runs", Fate(after, "C:\\Data\\Runs"));
        line("Columns=Channel;Probe;Temperature", Fate(after, "Channel;Probe;Temperature"));
        line("CRLF", after.find("\r\n") != std::string::npos ? "kept" : "turned into LF");
        line("mode 0640", fs::status(path).permissions() == modeBefore ? "kept" : "changed");

        reset();
        const std::string full = InChild([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{16, 16};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            Edit(row, path);
            return std::string("none");
        });
        line("no room: the file is", folder.Read(name) == before ? "as before" : "destroyed");
        line("no room: the error is", full);
    }
    reset();
    line("under a comma locale it reads", InChild([&] {
             const CommaLocale comma;
             const std::unique_ptr<Peer> peer = row.make();
             peer->Open(path);
             return peer->Double("Probe", "R0") == 100.0123 ? std::string("100.0123")
                                                            : std::string("another number");
         }));
    if (row.writes) {
        reset();
        InChild([&] {
            const CommaLocale comma;
            Edit(row, path);
            return std::string();
        });
        line("under a comma locale it writes",
             folder.Read(name).find("100.5") != std::string::npos ? "100.5" : "another text");
    }
}

} // namespace

int main() {
    for (const PeerRow& row : Peers()) {
        if (row.make)
            Show(row);
        else
            std::cout << row.name << " is not installed here (Debian package " << row.package << ")\n";
    }
    return 0;
}
