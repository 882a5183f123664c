// Any file, any edits, in memory: nothing but what was written, removed or renamed changes, what was made of
// the text and the text that it gives say the same, and the same edits can be made in the text that somebody
// else has made of the file.

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniText.h"
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
    IniText& text;
    const Edit& edit;

    [[nodiscard]] std::string Comment() const { return FormatComment(edit.comment, text.Encoding()); }

    IniNewValue operator()(const std::wstring& value) const {
        return {EncodeText(value, text.Encoding()), true, {}};
    }
    IniNewValue operator()(double number) const { return {FormatDouble(number), false, Comment()}; }
    IniNewValue operator()(std::int16_t number) const { return {FormatInteger(number), false, Comment()}; }
    IniNewValue operator()(bool flag) const { return {FormatBoolean(flag), false, {}}; }
};

/// The text with all changes.
std::string Merged(const IniText& text) {
    return text.ComposedText().value_or(std::string(text.ExtendedText()));
}

/// Nothing is written when no file can hold a name of the edit.
void Write(IniText& text, PlainEdits& plain, const Edit& edit) {
    const auto section = NameToWrite(edit.section, text.Encoding());
    const auto key = NameToWrite(edit.key, text.Encoding());
    if (!section || !key || !IsSectionName(*section) || !IsKeyName(*key))
        return;
    auto number = text.FindSection(edit.section);
    Claim(number.has_value() == plain.Has(edit.section), "a section is found as long as it is there");
    const IniNewValue value = std::visit(ValueWriter{text, edit}, edit.value);
    if (number)
        text.Write(*number, edit.key, *key, value);
    else
        number = text.AddSection(*section, edit.key, *key, value);
    const auto found = text.FindValue(*number, edit.key);
    Claim(found && Fuzz::Spells(*found, edit), "what was written can be read before it is saved");
    plain.Write(edit);
}

void Remove(IniText& text, PlainEdits& plain, const Edit& edit) {
    const auto section = text.FindSection(edit.section);
    Claim(section.has_value() == plain.Has(edit.section), "a section to be removed is found if it is there");
    if (!section)
        return;
    text.RemoveSection(*section);
    plain.Remove(edit.section);
    Claim(!text.FindSection(edit.section), "a removed section is not found");
}

void Rename(IniText& text, PlainEdits& plain, const Edit& edit) {
    const std::wstring& to = edit.key;
    const auto section = text.FindSection(edit.section);
    const auto spelling = NameToWrite(to, text.Encoding());
    const auto holder = text.FindSection(to);
    if (!section || !spelling || !IsSectionName(*spelling) || (holder && holder != section))
        return;
    Claim(text.RenameSection(*section, *spelling) == plain.Rename(edit.section, to),
          "a section is renamed if its headers give the name back");
    Claim(text.FindSection(edit.section).has_value() == plain.Has(edit.section), "nothing has the old name");
    Claim(text.FindSection(to).has_value() == plain.Has(to), "the section has the new name");
}

/// The edited text has what a reader of its lines finds, and nothing of the old ones besides.
void ClaimAgreement(IniText& text, const PlainIni& old, const PlainIni& now) {
    Claim(text.SectionNames() == now.Names(), "a text names its sections in their order");
    const auto valueIn = [&text](const PlainIni::Place& place) {
        const auto section = text.FindSection(place.first);
        return section ? text.FindValue(*section, place.second) : std::nullopt;
    };
    for (const PlainIni* lines : {&old, &now}) {
        for (const auto& [place, number] : lines->Keys())
            Claim(valueIn(place) == now.Value(place), "a text finds what stands in its lines");
    }
}

void ClaimThatAnAddedSectionCanBeTakenBack(const std::string& bytes) {
    IniText added(bytes);
    if (added.FindSection(L"added"))
        return;
    added.AddSection("added", L"key", "key", {"1", false, {}});
    IniText back{std::string(added.ExtendedText())};
    for (IniText* const text : {&added, &back}) {
        const auto section = text->FindSection(L"added");
        Claim(section.has_value(), "a section that was added is there");
        text->RemoveSection(*section);
        Claim(Merged(*text) == bytes, "a section that is added and removed again leaves nothing");
    }
    Claim(!added.IsDifferent(), "a section that is removed before it is saved is no change");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Fuzz::EditedFile file = Fuzz::ParseInput(Fuzz::Bytes(data, size));
    ClaimThatAnAddedSectionCanBeTakenBack(file.text);
    IniText text(file.text);
    PlainEdits plain(file.text);
    for (const Edit& edit : file.edits) {
        const auto make = edit.kind == 'R' ? Remove : edit.kind == 'N' ? Rename : Write;
        make(text, plain, edit);
    }
    const std::string merged = Merged(text);
    plain.ClaimMade(merged);
    ClaimAgreement(text, PlainIni(file.text), PlainIni(merged));
    Claim(text.ReadText() == file.text, "the text as it was read stays known");
    // A section that was removed and written again may say what it said before: then nobody compares.
    const bool anyRemoved =
        std::any_of(file.edits.begin(), file.edits.end(), [](const Edit& edit) { return edit.kind == 'R'; });
    Claim(text.IsDifferent() == (merged != file.text) || (text.IsDifferent() && anyRemoved),
          "a text knows whether it has changed");

    const std::string others = file.text.substr(file.text.size() / 2);
    for (const std::string& base : {file.text, others}) {
        IniText other(base);
        const auto there = plain.In(base);
        const auto conflict = text.ApplyChangesTo(other);
        Claim(conflict.has_value() == there.inWay.has_value() && (!conflict || conflict->kind == there.inWay),
              "only a name that is taken, or a section that is gone and written in part, stands in the way");
        if (there.edits)
            there.edits->ClaimMade(Merged(other));
    }
    return 0;
}
