#include "component/Errors.h"

#include "QuorConversions/core/modMessages.h"
#include "QuorIniFile/Utf8.h"
#include "component/Text.h"

namespace QuorConversions::Component {
namespace {

/// The last error of a thread.
struct ErrorOfThread {
    std::int32_t number = 0;
    std::int32_t helpContext = 0;
    std::string source;
    std::string description;
    std::string helpFile;
    std::uint64_t count = 0; ///< how many there were
};

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): each thread has its own
thread_local ErrorOfThread lastError;
thread_local HostCall* currentCall = nullptr;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void Keep(std::int32_t number, std::string source, std::string description, std::string helpFile,
          std::int32_t helpContext) noexcept {
    lastError.number = number;
    lastError.helpContext = helpContext;
    lastError.source = std::move(source);
    lastError.description = std::move(description);
    lastError.helpFile = std::move(helpFile);
    ++lastError.count;
}

} // namespace

void Throw(std::int32_t number, const std::wstring& description) {
    throw QuorIniFile::QuorError(number, L"quor", description);
}

void ThrowSubscript(std::int32_t index, std::size_t count) {
    Throw(QUOR_ERROR_SUBSCRIPT, L"There is no item " + std::to_wstring(index) + L": there are " +
                                    std::to_wstring(count) + L", from 0");
}

std::int32_t KeepCurrentError() noexcept {
    try {
        const QuorError error = CurrentError(L"quor");
        Keep(error.Number() == 0 ? std::int32_t{QUOR_ERROR_UNEXPECTED} : error.Number(),
             QuorIniFile::ToUtf8(error.Source()), QuorIniFile::ToUtf8(error.Description()),
             QuorIniFile::ToUtf8(error.HelpFile()), error.HelpContext());
    } catch (...) { // no memory for the words of the error
        Keep(QUOR_ERROR_OUT_OF_MEMORY, {}, {}, {}, 0);
    }
    return lastError.number;
}

std::int32_t KeepError(std::int32_t number, const wchar_t* description) noexcept {
    return Guarded([&] { Throw(number, description); });
}

HostCall::HostCall(const wchar_t* source)
    : m_source(source), m_outer(std::exchange(currentCall, this)), m_errorsBefore(lastError.count) {}

HostCall::~HostCall() { currentCall = m_outer; }

HostCall* HostCall::Current() { return currentCall; }

void HostCall::Check(std::int32_t number) const {
    if (number == QUOR_OK)
        return;
    if (lastError.count != m_errorsBefore && lastError.number == number) {
        const auto wide = [](const std::string& text) { return QuorIniFile::FromUtf8(text).value_or(L""); };
        throw QuorIniFile::QuorError(number, wide(lastError.source), wide(lastError.description),
                                     wide(lastError.helpFile), lastError.helpContext);
    }
    throw QuorIniFile::QuorError(number, m_source, L"The host reports error " + std::to_wstring(number));
}

} // namespace QuorConversions::Component

using namespace QuorConversions::Component;

int32_t quor_last_error(quor_error* error) {
    if (!error)
        return KeepError(QUOR_ERROR_ARGUMENT, L"The pointer to the error is NULL");
    *error = {lastError.number, lastError.helpContext, ViewOf(lastError.source),
              ViewOf(lastError.description), ViewOf(lastError.helpFile)};
    return QUOR_OK;
}

int32_t quor_set_error(int32_t number, quor_text source, quor_text description, quor_text help_file,
                       int32_t help_context) {
    return Guarded([&] {
        Keep(number, QuorIniFile::ToUtf8(Wide(source)), QuorIniFile::ToUtf8(Wide(description)),
             QuorIniFile::ToUtf8(Wide(help_file)), help_context);
    });
}

int32_t quor_answer(quor_text text) {
    return Guarded([&] {
        HostCall* const call = HostCall::Current();
        if (!call)
            Throw(QUOR_ERROR_ARGUMENT, L"quor_answer is called outside a function of the host");
        call->SetAnswer(Wide(text));
    });
}
