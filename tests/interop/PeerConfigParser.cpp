// Python's configparser, in a process of its own for each question.

#include "tests/interop/Peer.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace Interop {
namespace {

/// What the script prints. Raises when it fails.
std::string Run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {QUOR_PYTHON, QUOR_CONFIGPARSER_SCRIPT});
    std::vector<char*> argv;
    for (std::string& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        ::close(STDERR_FILENO); // what Python says about a file that it refuses
        ::execv(argv.front(), argv.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    std::string output;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = ::read(ends[0], buffer.data(), buffer.size())) > 0;)
        output.append(buffer.data(), static_cast<std::size_t>(count));
    ::close(ends[0]);
    int status = 0;
    if (::waitpid(child, &status, 0) != child || status != 0)
        throw std::runtime_error("Python raised an error");
    return output;
}

class ConfigParser final : public Peer {
public:
    void Open(const std::string& path) override {
        m_arguments = {"set", path, "old"};
        m_path = path;
        if (!std::filesystem::exists(path))
            throw std::runtime_error("no such file");
    }
    void Create(const std::string& path) override { m_arguments = {"set", path, "new"}; }
    std::string Text(const std::string& section, const std::string& key) override {
        return Run({"get", m_path, section, key, "text"});
    }
    double Double(const std::string& section, const std::string& key) override {
        const std::string text = Run({"get", m_path, section, key, "double"});
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    long Integer(const std::string& section, const std::string& key) override {
        const std::string text = Run({"get", m_path, section, key, "integer"});
        long value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    void SetText(const std::string& section, const std::string& key, const std::string& value) override {
        m_arguments.insert(m_arguments.end(), {section, key, value});
    }
    void SetDouble(const std::string& section, const std::string& key, double value) override {
        std::array<char, 32> digits{}; // what repr(value) gives in Python
        SetText(section, key, {digits.data(), std::to_chars(digits.data(), digits.data() + 32, value).ptr});
    }
    void SetInteger(const std::string& section, const std::string& key, long value) override {
        SetText(section, key, std::to_string(value));
    }
    void Save() override { Run(m_arguments); }

private:
    std::string m_path;
    std::vector<std::string> m_arguments;
};

} // namespace

std::unique_ptr<Peer> MakeConfigParser() { return std::make_unique<ConfigParser>(); }

} // namespace Interop
