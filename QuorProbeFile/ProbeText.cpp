#include "QuorProbeFile/ProbeText.h"

#include "QuorIniFile/IniCause.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <iterator>

namespace QuorProbeFile {
namespace {

struct NumberedText {
    EProbeText number;
    const char* text;
};
constexpr NumberedText texts[] = {
#define QUOR_PROBE_TEXT(number, name, text) {PROBE_TEXT_##name, text},
#include "QuorProbeFile/ProbeTexts.def"
};

} // namespace

const char* EnglishText(EProbeText text) {
    const auto* const found = std::find_if(std::begin(texts), std::end(texts),
                                           [text](const NumberedText& one) { return one.number == text; });
    return found == std::end(texts) ? "" : found->text;
}

std::wstring Describe(const std::vector<ProbePhrase>& phrases) {
    std::wstring description;
    for (const ProbePhrase& phrase : phrases)
        description +=
            QuorIniFile::FillTildes(QuorIniFile::DecodeBytes(EnglishText(phrase.text)), phrase.values);
    return description;
}

} // namespace QuorProbeFile
