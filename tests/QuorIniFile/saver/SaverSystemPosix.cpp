#include "tests/QuorIniFile/saver/SaverSystem.h"

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"

#include <chrono>
#include <csignal>
#include <iostream>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

using namespace QuorIniFile;

namespace {

void ForkWithLock(const std::string& file) {
    const IniReplacement replacement(FromUtf8(file).value());
    const pid_t child = ::fork();
    if (child == 0) {
        for (;;)
            ::pause();
    }
    std::cout << child << std::endl;
    for (char c = 0; std::cin.get(c);) {
    }
}

void Lease(const std::string& file) {
    sigset_t asked;
    ::sigemptyset(&asked);
    ::sigaddset(&asked, SIGIO);
    ::sigprocmask(SIG_BLOCK, &asked, nullptr);
    const int handle = ::open(file.c_str(), O_RDWR | O_CLOEXEC); // NOLINT(cppcoreguidelines-pro-type-vararg)
    if (::fcntl(handle, F_SETLEASE, F_WRLCK) != 0) {             // NOLINT(cppcoreguidelines-pro-type-vararg)
        std::cout << "no leases here" << std::endl;
        return;
    }
    std::cout << "leased" << std::endl;
    int signal = 0;
    ::sigwait(&asked, &signal);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    static_cast<void>(::fcntl(handle, F_SETLEASE, F_UNLCK)); // NOLINT(cppcoreguidelines-pro-type-vararg)
    std::cout << "given back" << std::endl;
    for (char c = 0; std::cin.get(c);) {
    }
}

} // namespace

bool RunSystemTask(const std::string& task, const std::string& file) {
    if (task == "fork")
        ForkWithLock(file);
    else if (task == "lease")
        Lease(file);
    else
        return false;
    return true;
}
