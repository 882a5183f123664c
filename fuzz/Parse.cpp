// Any bytes at all, read as an INI file: every key that a plain look from top to bottom finds is found by the
// index, names in any case, and what a value spells can be spelled again.

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniEncodedText.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniText.h"
#include "QuorIniFile/detail/IniValue.h"
#include "QuorIniFile/detail/Unicode.h"
#include "fuzz/Claim.h"
#include "fuzz/PlainIni.h"
#include "fuzz/PlainUtf16.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace {

using namespace QuorIniFile;
using Fuzz::Claim;
using Fuzz::PlainIni;

std::wstring Capitals(std::wstring name) {
    for (wchar_t& c : name)
        c = c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
    return name;
}

void ExpectTheSameNumberAgain(std::string_view plain) {
    if (const auto number = ParseDouble(plain)) {
        const auto again = ParseDouble(FormatDouble(*number));
        Claim(again && (std::bit_cast<std::uint64_t>(*again) == std::bit_cast<std::uint64_t>(*number) ||
                        (std::isnan(*again) && std::isnan(*number))),
              "a double that is written is read as the same double");
    }
    if (const auto number = ParseInteger(plain)) {
        Claim(ParseInteger(FormatInteger(*number)) == number, "a count comes back");
        Claim(ParseDouble(plain) == static_cast<double>(*number), "a count is a number");
    }
    if (const auto flag = ParseBoolean(plain))
        Claim(ParseBoolean(FormatBoolean(*flag)) == flag, "a flag comes back");
}

void ExpectTheSameTextAgain(std::string_view value) {
    const std::wstring text = DecodeText(value);
    for (const IniEncoding encoding : {IniEncoding::Utf8, IniEncoding::Latin1}) {
        const std::string written = EncodeText(text, encoding);
        Claim(DecodeText(written) == text, "a text that is written is read as the same text");
        const std::string line = "key=" + written;
        const IniLine parsed = ClassifyLine(line);
        Claim(parsed.kind == IniLineKind::Key && parsed.value == written, "a written text stays on its line");
        Claim(written.find_first_of(std::string_view("\n\r\0", 3)) == std::string::npos,
              "a written text breaks no line");

        const std::string comment = FormatComment(text, encoding);
        const std::string commented = "1.5 " + comment;
        const IniCommentedValue parts = SplitComment(commented);
        Claim(comment.empty() || (parts.plain == "1.5" && parts.comment == comment), "a remark stays one");
    }
}

void ExpectAnyValueOnThisLine(std::string_view line, const IniLine& parsed) {
    const std::string number = RewriteLine(line, {"-2.5", false, {}});
    const IniLine withNumber = ClassifyLine(number);
    Claim(withNumber.kind == IniLineKind::Key && withNumber.name == parsed.name, "the key stays");
    Claim(SplitComment(withNumber.value).plain == "-2.5", "the number stands behind the key");
    Claim(SplitComment(withNumber.value).comment == SplitComment(parsed.value).comment,
          "the remark behind a number stays");
    for (const std::string& bytes : {std::string("\"; x\""), std::string(SplitComment(parsed.value).plain)}) {
        const std::string text = RewriteLine(line, {bytes, true, {}});
        const IniLine withText = ClassifyLine(text);
        const std::string_view comment = SplitTextComment(withText.value).comment;
        Claim(withText.kind == IniLineKind::Key && withText.name == parsed.name, "the key stays");
        Claim(DecodeText(withText.value) == DecodeText(bytes), "the text stands behind the key");
        std::string remark(bytes == parsed.value ? std::string_view() : SplitComment(parsed.value).comment);
        std::replace(remark.begin(), remark.end(), '"', '\'');
        Claim(comment == remark, "the remark behind a text stays");
    }
}

void ExpectTheSameBytesAgain(std::string_view bytes) {
    const auto text = Fuzz::PlainText(bytes);
    try {
        const IniDecodedText decoded = DecodeFile(std::string(bytes), L"fuzz.ini");
        Claim(decoded.text == text, "a file is the text that it spells, unit by unit");
        Claim(IniEncodedText(decoded.text, decoded.encoding).Bytes() == bytes,
              "a text comes back as the same bytes");
    } catch (const QuorError& error) {
        Claim(!text && error.Number() == ERR_PATH_FILE_ACCESS, "only what is no valid UTF-16 is refused");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = Fuzz::Bytes(data, size);
    const PlainIni plain(text);
    IniText indexed{std::string(text)};
    Claim(indexed.ExtendedText() == text && !indexed.ComposedText() && !indexed.IsDifferent(),
          "a text that nobody changes stays as it is");

    IniWalker walker(text);
    for (const PlainIni::Line& line : plain.Lines()) {
        Claim(walker.Next() && walker.Line().kind == line.parsed.kind &&
                  walker.Line().name == line.parsed.name,
              "the walker sees every line");
        if (line.parsed.kind == IniLineKind::Key) {
            ExpectTheSameNumberAgain(SplitComment(line.parsed.value).plain);
            ExpectTheSameTextAgain(line.parsed.value);
            ExpectAnyValueOnThisLine(line.content, line.parsed);
        }
    }
    Claim(!walker.Next(), "the walker ends with the text");

    for (const auto& [place, number] : plain.Keys()) {
        const PlainIni::Line& line = plain.Lines()[number];
        for (const bool capitals : {false, true}) {
            const auto section = indexed.FindSection(capitals ? Capitals(place.first) : place.first);
            const auto value =
                section ? indexed.FindValue(*section, capitals ? Capitals(place.second) : place.second)
                        : std::nullopt;
            Claim(value == line.parsed.value &&
                      value->data() - indexed.ExtendedText().data() == line.parsed.value.data() - text.data(),
                  "the first key of its name in the first section of its name is found");
        }
    }
    if (const auto section = indexed.FindSection(L"A"))
        Claim(indexed.FindValue(*section, L"x").has_value() == plain.Value({L"a", L"x"}).has_value(),
              "a key that is not there is not found");
    if (const auto wide = FromUtf8(text))
        Claim(ToUtf8(*wide) == text, "UTF-8 comes back byte for byte");
    static_cast<void>(EncodingOf(text));
    ExpectTheSameBytesAgain(text);
    return 0;
}
