#include "fuzz/Edits.h"

#include "QuorIniFile/detail/IniValue.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

namespace Fuzz {
namespace {

using namespace QuorIniFile;

constexpr std::size_t mostEdits = 64; // more only make the fuzzer slow
constexpr std::string_view marker = "\n~~~~\n";
constexpr std::string_view anyEdits = "A|x|s|text\nA|y|d|0.1;remark\nNew|z|i|-1\nNew|flag|b|1\nA|x|s|last";

std::string_view CutField(std::string_view& line) {
    const std::size_t bar = line.find('|');
    const std::string_view field = line.substr(0, bar);
    line.remove_prefix(bar == std::string_view::npos ? line.size() : bar + 1);
    return field;
}

double ToDouble(std::string_view text) {
    double value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc())
        return value;
    std::memcpy(&value, text.data(), std::min(text.size(), sizeof value));
    return value;
}

Edit ParseEdit(std::string_view line) {
    Edit edit;
    edit.section = DecodeBytes(CutField(line));
    edit.key = DecodeBytes(CutField(line));
    const std::string_view kind = CutField(line);
    edit.kind = kind.empty() ? 's' : kind.front();
    edit.bytes = line;
    const std::string_view plain = line.substr(0, line.find(';'));
    if (plain.size() < line.size())
        edit.comment = DecodeBytes(line.substr(plain.size() + 1));
    switch (edit.kind) {
    case 'd':
        edit.value = ToDouble(plain);
        break;
    case 'i': {
        std::int16_t number = 0;
        std::from_chars(plain.data(), plain.data() + plain.size(), number);
        edit.value = number;
        break;
    }
    case 'b':
        edit.value = plain.starts_with('1');
        break;
    default:
        edit.value = DecodeBytes(line);
    }
    return edit;
}

bool SameDouble(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

struct Speller {
    std::string_view value;

    bool operator()(const std::wstring& text) const { return DecodeText(value) == text; }
    bool operator()(double number) const {
        const auto read = ParseDouble(SplitComment(value).plain);
        return read && SameDouble(*read, number);
    }
    bool operator()(std::int16_t number) const { return ParseInteger(SplitComment(value).plain) == number; }
    bool operator()(bool flag) const { return ParseBoolean(SplitComment(value).plain) == flag; }
};

} // namespace

EditedFile ParseInput(std::string_view input) {
    EditedFile file;
    std::string_view rest = anyEdits;
    const std::size_t mark = input.rfind(marker);
    file.text = input.substr(0, mark == std::string_view::npos ? input.size() : mark + 1);
    if (mark != std::string_view::npos)
        rest = input.substr(mark + marker.size());
    while (!rest.empty() && file.edits.size() < mostEdits) {
        const std::size_t end = rest.find('\n');
        file.edits.push_back(ParseEdit(rest.substr(0, end)));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return file;
}

bool Spells(std::string_view value, const Edit& edit) { return std::visit(Speller{value}, edit.value); }

} // namespace Fuzz
