#include "QuorProbeFile/ProbeTypes.h"

#include "QuorIniFile/ValueText.h"
#include "QuorProbeFile/ProbeNames.h"

#include <algorithm>

namespace QuorProbeFile {

using namespace QuorConversions;

const std::vector<TypeInfo>& Types() {
    static const std::vector<TypeInfo> types = [] {
        std::vector<TypeInfo> all;
        for (std::int32_t code = CONV_NONE; ConversionEnumerator(code); ++code) {
            CQuorConversion conversion;
            conversion.SetConversionType(EQuorConversionType{code});
            TypeInfo type{EQuorConversionType{code},
                          ConversionEnumerator(code),
                          conversion.ConversionName(code),
                          {},
                          {}};
            if (const auto& settings = conversion.Settings()) {
                type.extension = settings->FileExtension();
                type.section = settings->SectionName();
            }
            all.push_back(std::move(type));
        }
        return all;
    }();
    return types;
}

const TypeInfo* FindType(std::int32_t code) {
    const auto type =
        std::find_if(Types().begin(), Types().end(), [&](const TypeInfo& t) { return t.code == code; });
    return type == Types().end() ? nullptr : &*type;
}

bool MayHaveSettings(const std::optional<EQuorConversionType>& type) {
    const TypeInfo* const info = type ? FindType(*type) : nullptr;
    return !info || !info->extension.empty();
}

std::vector<const TypeInfo*> TypesOfExtension(const std::wstring& extension) {
    std::vector<const TypeInfo*> found;
    const std::wstring wanted = Folded(extension);
    for (const TypeInfo& type : Types())
        if (!type.extension.empty() && type.extension == wanted)
            found.push_back(&type);
    return found;
}

const TypeInfo* ParseType(const std::wstring& text) {
    if (const auto code = QuorIniFile::IntegerOf(text))
        return FindType(*code);
    const auto type = std::find_if(Types().begin(), Types().end(), [&](const TypeInfo& t) {
        return EqualFolded(t.enumerator, text) || (!t.extension.empty() && EqualFolded(t.extension, text));
    });
    return type == Types().end() ? nullptr : &*type;
}

std::wstring NameOf(const CQuorConversion& conversion) {
    return conversion.ConversionName(conversion.Settings() ? currentValue : conversion.ConversionType());
}

} // namespace QuorProbeFile
