#pragma once

#include <array>
#include <csignal>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(readability-redundant-declaration): not every system declares it

/// Another program, run beside the test, whose output the test can read and whose input it can end.
class Process {
public:
    /// The program and its arguments.
    explicit Process(std::vector<std::string> command) {
        const auto [programIn, toProgram] = Pipe();
        const auto [fromProgram, programOut] = Pipe();
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, programIn, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions, programOut, STDOUT_FILENO);
        std::vector<char*> arguments;
        arguments.reserve(command.size() + 1);
        for (std::string& argument : command)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        const int error =
            ::posix_spawnp(&m_process, arguments.front(), &actions, nullptr, arguments.data(), environ);
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(programIn);
        ::close(programOut);
        m_input = toProgram;
        m_output = fromProgram;
        if (error != 0)
            throw std::system_error(error, std::generic_category(), command.front());
    }
    Process(Process&& other) noexcept
        : m_process(std::exchange(other.m_process, -1)),
          m_input(std::exchange(other.m_input, -1)),
          m_output(std::exchange(other.m_output, -1)) {}
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    Process& operator=(Process&&) = delete;
    ~Process() {
        if (m_process > 0) {
            Kill();
            Wait();
        }
        ::close(m_input);
        ::close(m_output);
    }

    [[nodiscard]] pid_t Number() const { return m_process; }

    /// The next line that the program prints, without its end; what there is when it ends.
    std::string ReadLine() const {
        std::string line;
        for (char c = 0; ::read(m_output, &c, 1) == 1 && c != '\n';)
            line += c;
        return line;
    }
    void EndInput() { ::close(std::exchange(m_input, -1)); }
    [[nodiscard]] bool HasEnded() const {
        siginfo_t info{};
        return ::waitid(P_PID, static_cast<id_t>(m_process), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
               info.si_pid == m_process;
    }
    void Kill() const { ::kill(m_process, SIGKILL); }
    /// Waits for the end: the exit code, or minus the signal that has ended it.
    int Wait() {
        int status = 0;
        ::waitpid(std::exchange(m_process, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

private:
    static std::pair<int, int> Pipe() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        return {ends[0], ends[1]};
    }

    pid_t m_process = -1;
    int m_input = -1;
    int m_output = -1;
};
