#pragma once

#include <cstdlib>
#include <string>

namespace Support {

/// Sets a variable of the environment of this process, or removes it (nullptr).
void SetVariable(const char* name, const char* value);

/// Sets or, with nothing, removes a variable of the environment while it lives.
class ChangedVariable {
public:
    ChangedVariable(const char* variable, const char* value) : m_variable(variable) {
        if (const char* const before = std::getenv(variable)) {
            m_wasSet = true;
            m_before = before;
        }
        Set(value);
    }
    ChangedVariable(const ChangedVariable&) = delete;
    ChangedVariable& operator=(const ChangedVariable&) = delete;
    ~ChangedVariable() { Set(m_wasSet ? m_before.c_str() : nullptr); }

private:
    void Set(const char* value) const { SetVariable(m_variable, value); }

    const char* m_variable;
    bool m_wasSet = false;
    std::string m_before;
};

} // namespace Support
