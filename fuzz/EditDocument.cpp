// Any file, any edits, in memory: nothing but the written lines changes, what was written reads back, and the
// same edits can be made in the text that somebody else has made of the file.

#include "QuorIniFile/IniDocument.h"
#include "QuorIniFile/IniFormat.h"
#include "QuorIniFile/IniValue.h"
#include "fuzz/Claim.h"
#include "fuzz/Edits.h"

namespace {

using namespace QuorIniFile;
using Fuzz::Claim;
using Fuzz::Edit;

struct ValueWriter {
    const IniDocument& document;
    const Edit& edit;

    [[nodiscard]] std::string Comment() const { return FormatComment(edit.comment, document.Encoding()); }

    IniNewValue operator()(const std::wstring& text) const {
        return {EncodeText(text, document.Encoding()), true, {}};
    }
    IniNewValue operator()(double number) const { return {FormatDouble(number), false, Comment()}; }
    IniNewValue operator()(std::int16_t number) const { return {FormatInteger(number), false, Comment()}; }
    IniNewValue operator()(bool flag) const { return {FormatBoolean(flag), false, {}}; }
};

/// False when no file can hold a name of the edit: then nothing is written.
bool Write(IniDocument& document, const Edit& edit) {
    const auto sectionName = NameToFind(edit.section);
    const auto keyName = NameToFind(edit.key);
    const auto section = NameToWrite(edit.section, document.Encoding());
    const auto key = NameToWrite(edit.key, document.Encoding());
    if (!sectionName || !keyName || !section || !key || !IsSectionName(*section) || !IsKeyName(*key))
        return false;
    auto number = document.FindSection(*sectionName);
    if (!number)
        number = document.AddSection(*section);
    document.Write(*number, *keyName, *key, std::visit(ValueWriter{document, edit}, edit.value));
    const auto line = document.FindKey(*number, *keyName);
    Claim(line && Fuzz::Spells(line->value, edit), "what was written can be read before it is saved");
    return true;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Fuzz::EditedFile file = Fuzz::ParseInput(Fuzz::Bytes(data, size));
    IniDocument document(file.text);
    std::map<Fuzz::PlainIni::Place, Edit> written;
    for (const Edit& edit : file.edits) {
        if (Write(document, edit))
            written[edit.Place()] = edit;
    }
    const std::string text = document.Text();
    Claim(document.Changed() == (text != file.text), "a document knows whether it has changed");
    Fuzz::ClaimOnlyThese(file.text, written, text);

    const std::string others = file.text.substr(file.text.size() / 2);
    IniDocument other(others);
    Claim(!document.ApplyChangesTo(other), "without new names of sections nothing stands in the way");
    Fuzz::ClaimOnlyThese(others, written, other.Text());
    return 0;
}
