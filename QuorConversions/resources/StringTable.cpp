#include "QuorConversions/resources/StringTable.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace QuorConversions {
namespace {

struct Entry {
    std::int32_t id;
    const wchar_t* text;
};

#define QUOR_STRING(id, name, text) Entry{id, text},
constexpr Entry entries[] = {
#include "QuorConversions/resources/strings.def"
};
#undef QUOR_STRING

constexpr bool InOrder() {
    for (std::size_t i = 1; i < std::size(entries); ++i)
        if (entries[i - 1].id >= entries[i].id)
            return false;
    return true;
}
static_assert(InOrder(), "the look-up expects ascending ids");
static_assert(std::all_of(std::begin(entries), std::end(entries),
                          [](const Entry& entry) {
                              return (entry.id >= 101 && entry.id <= 212) || entry.id > 1000;
                          }),
              "the library's own texts have ids within 101 to 212");

StringTable& Replacement() {
    static StringTable table;
    return table;
}

} // namespace

void ReplaceStringTable(StringTable table) { Replacement() = std::move(table); }

std::wstring TableText(std::int32_t id) {
    if (Replacement())
        if (auto text = Replacement()(id))
            return *std::move(text);
    const auto* const entry =
        std::lower_bound(std::begin(entries), std::end(entries), id,
                         [](const Entry& e, std::int32_t wanted) { return e.id < wanted; });
    return entry != std::end(entries) && entry->id == id ? entry->text : L"";
}

} // namespace QuorConversions
