#include "component/Text.h"

#include "QuorIniFile/Utf8.h"
#include "component/Errors.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace QuorConversions::Component {

std::string_view Bytes(quor_text text) {
    if (text.size == 0)
        return {};
    if (!text.bytes)
        Throw(QUOR_ERROR_ARGUMENT, L"A text of " + std::to_wstring(text.size) + L" bytes is NULL");
    if (text.size > std::numeric_limits<std::int32_t>::max())
        Throw(QUOR_ERROR_ARGUMENT, L"A text of " + std::to_wstring(text.size) + L" bytes is too long");
    return {text.bytes, text.size};
}

std::wstring Wide(quor_text text) {
    auto wide = QuorIniFile::FromUtf8(Bytes(text));
    if (!wide)
        Throw(QUOR_ERROR_ARGUMENT, L"A text is not valid UTF-8");
    return *std::move(wide);
}

quor_text NewText(std::wstring_view text) {
    const std::string bytes = QuorIniFile::ToUtf8(text);
    // A C host may be linked to another C++ runtime: what crosses the border comes from malloc.
    auto* const copy = static_cast<char*>(std::malloc(bytes.size() + 1)); // NOLINT: see above
    if (!copy)
        throw std::bad_alloc();
    std::memcpy(copy, bytes.c_str(), bytes.size() + 1);
    return {copy, bytes.size()};
}

} // namespace QuorConversions::Component

void quor_text_free(quor_text* text) {
    if (!text)
        return;
    std::free(const_cast<char*>(text->bytes)); // NOLINT: NewText has made it
    *text = {nullptr, 0};
}
