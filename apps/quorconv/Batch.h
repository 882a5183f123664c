#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quorconv {

/// Many pieces of work of which all are done or none: what is wrong with each is kept with its place.
class Batch {
public:
    /// What is wrong is told as wrong lines of `from`, because of which nothing is written into `path`.
    Batch(std::wstring path, std::wstring from) : m_path(std::move(path)), m_from(std::move(from)) {}

    /// Does a piece, and keeps what is wrong with it behind `place`, which is asked for then: "12", "12:34"
    /// or nothing where the failure has told it. The next one finds the file as if this one had not been.
    void Do(const std::function<std::wstring()>& place, const std::function<void()>& piece);
    /// Raises Problem with each failure when there is one.
    void RequireFine() const;
    void Forget();

private:
    std::wstring m_path;
    std::wstring m_from;
    std::vector<std::wstring> m_failures;
    std::size_t m_wrong = 0;
};

} // namespace quorconv
