// Any file, any edits, in memory: nothing but what was written, removed or renamed changes, the document and
// its text say the same, and the same edits can be made in the text that somebody else has made of the file.

#include "QuorIniFile/detail/IniDocument.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniValue.h"
#include "fuzz/Claim.h"
#include "fuzz/Edits.h"
#include "fuzz/PlainEdits.h"

#include <algorithm>

namespace {

using namespace QuorIniFile;
using Fuzz::Claim;
using Fuzz::Edit;
using Fuzz::PlainEdits;
using Fuzz::PlainIni;

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

std::optional<IniDocument::Section> FindSection(const IniDocument& document, const std::wstring& name) {
    const auto wanted = NameToFind(name);
    return wanted ? document.FindSection(*wanted) : std::nullopt;
}

/// Nothing is written when no file can hold a name of the edit.
void Write(IniDocument& document, PlainEdits& plain, const Edit& edit) {
    const auto sectionName = NameToFind(edit.section);
    const auto keyName = NameToFind(edit.key);
    const auto section = NameToWrite(edit.section, document.Encoding());
    const auto key = NameToWrite(edit.key, document.Encoding());
    if (!sectionName || !keyName || !section || !key || !IsSectionName(*section) || !IsKeyName(*key))
        return;
    auto number = document.FindSection(*sectionName);
    Claim(number.has_value() == plain.Has(edit.section), "a section is found as long as it is there");
    if (!number)
        number = document.AddSection(*section);
    document.Write(*number, *keyName, *key, std::visit(ValueWriter{document, edit}, edit.value));
    const auto line = document.FindKey(*number, *keyName);
    Claim(line && Fuzz::Spells(line->value, edit), "what was written can be read before it is saved");
    plain.Write(edit);
}

void Remove(IniDocument& document, PlainEdits& plain, const Edit& edit) {
    const auto section = FindSection(document, edit.section);
    Claim(section.has_value() == plain.Has(edit.section), "a section to be removed is found if it is there");
    if (!section)
        return;
    document.RemoveSection(*section);
    plain.Remove(edit.section);
    Claim(!FindSection(document, edit.section), "a removed section is not found");
}

void Rename(IniDocument& document, PlainEdits& plain, const Edit& edit) {
    const std::wstring& to = edit.key;
    const auto section = FindSection(document, edit.section);
    const auto spelling = NameToWrite(to, document.Encoding());
    const auto holder = FindSection(document, to);
    if (!section || !spelling || !IsSectionName(*spelling) || (holder && holder != section))
        return;
    Claim(document.RenameSection(*section, *spelling) == plain.Rename(edit.section, to),
          "a section is renamed if its headers give the name back");
    Claim(FindSection(document, edit.section).has_value() == plain.Has(edit.section),
          "nothing has the old name");
    Claim(FindSection(document, to).has_value() == plain.Has(to), "the section has the new name");
}

/// The document finds what a reader of its text finds, and nothing of the old text besides.
void ClaimAgreement(const IniDocument& document, const PlainIni& old, const PlainIni& now) {
    Claim(document.SectionNames() == now.Names(), "a document names the sections of its text in its order");
    const auto valueIn = [&document](const PlainIni::Place& place) -> std::optional<std::string_view> {
        const auto section = FindSection(document, place.first);
        const auto line =
            section ? document.FindKey(*section, NameToFind(place.second).value()) : std::nullopt;
        return line ? std::optional(line->value) : std::nullopt;
    };
    for (const PlainIni* text : {&old, &now}) {
        for (const auto& [place, number] : text->Keys())
            Claim(valueIn(place) == now.Value(place), "a document finds what stands in its text");
    }
}

void ClaimThatAnAddedSectionCanBeTakenBack(const std::string& text) {
    constexpr std::string_view name = "added";
    IniDocument added(text);
    if (added.FindSection(name))
        return;
    added.Write(added.AddSection(name), "key", "key", {"1", false, {}});
    IniDocument back(added.Text());
    const auto section = back.FindSection(name);
    Claim(section.has_value(), "a section that was added is there");
    back.RemoveSection(*section);
    Claim(back.Text() == text, "a section that is added and removed again leaves nothing");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Fuzz::EditedFile file = Fuzz::ParseInput(Fuzz::Bytes(data, size));
    ClaimThatAnAddedSectionCanBeTakenBack(file.text);
    IniDocument document(file.text);
    PlainEdits plain(file.text);
    for (const Edit& edit : file.edits) {
        const auto make = edit.kind == 'R' ? Remove : edit.kind == 'N' ? Rename : Write;
        make(document, plain, edit);
    }
    const std::string text = document.Text();
    plain.ClaimMade(text);
    ClaimAgreement(document, PlainIni(file.text), PlainIni(text));
    // A section that was removed and written again may say what it said before: then nobody compares.
    const bool anyRemoved =
        std::any_of(file.edits.begin(), file.edits.end(), [](const Edit& edit) { return edit.kind == 'R'; });
    Claim(document.Changed() == (text != file.text) || (document.Changed() && anyRemoved),
          "a document knows whether it has changed");

    const std::string others = file.text.substr(file.text.size() / 2);
    for (const std::string& base : {file.text, others}) {
        IniDocument other(base);
        const auto there = plain.In(base);
        const auto conflict = document.ApplyChangesTo(other);
        Claim(conflict.has_value() == there.inWay.has_value() && (!conflict || conflict->kind == there.inWay),
              "only a name that is taken, or a section that is gone and written in part, stands in the way");
        if (there.edits)
            there.edits->ClaimMade(other.Text());
    }
    return 0;
}
