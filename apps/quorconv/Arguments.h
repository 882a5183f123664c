#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorconv {

/// What an argument means: what a shell completes it with.
enum class Meaning { Text, File, Section, Key, Assignment, Type, Choice, Warning, Shell };

/// An argument as a command declares it.
struct Argument {
    std::string name;  ///< "FILE"; of an option "--type"
    std::string value; ///< of an option what stands for its value in the help, empty for a flag
    Meaning meaning = Meaning::Text;
    std::vector<std::string> choices; ///< of Meaning::Choice
    std::string what;                 ///< it is, for the help
    bool isRequired = false;
    [[nodiscard]] bool IsOption() const { return name.starts_with('-'); }
};

/// What a command takes. Each call declares one argument, in their order on the command line, and where its
/// text goes; the variables must outlive the object.
class Arguments {
public:
    Arguments() = default;
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;
    virtual ~Arguments() = default;

    /// An argument that must be there.
    virtual void One(const std::string& name, std::wstring& value, Meaning meaning,
                     const std::string& what) = 0;
    /// One that may be missing.
    virtual void Maybe(const std::string& name, std::optional<std::wstring>& value, Meaning meaning,
                       const std::string& what) = 0;
    /// All the rest; at least `least` (0 or 1).
    virtual void Rest(const std::string& name, std::vector<std::wstring>& values, int least, Meaning meaning,
                      const std::string& what) = 0;
    virtual void Flag(const std::string& name, bool& value, const std::string& what) = 0;
    /// "--name VALUE".
    virtual void Option(const std::string& name, const std::string& valueName,
                        std::optional<std::wstring>& value, Meaning meaning, const std::string& what) = 0;
    /// "--name VALUE", any number of times.
    virtual void Options(const std::string& name, const std::string& valueName,
                         std::vector<std::wstring>& values, Meaning meaning, const std::string& what) = 0;
    /// "--name CHOICE", of a few words; the first of them is meant without the option.
    virtual void Choice(const std::string& name, std::wstring& value, const std::vector<std::string>& choices,
                        const std::string& what) = 0;
};

} // namespace quorconv
