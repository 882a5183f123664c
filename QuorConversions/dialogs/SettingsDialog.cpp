#include "QuorConversions/dialogs/SettingsDialog.h"

#include "QuorConversions/controls/ControlNames.h"
#include "QuorConversions/core/NumberText.h"
#include "QuorConversions/core/ValueFormatter.h"
#include "QuorConversions/core/detail/modEditing.h"
#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/dialogs/Advice.h"
#include "QuorConversions/dialogs/PastedNames.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace QuorConversions {
namespace {

// Names in the registry: they are no texts for users.
constexpr const wchar_t* leftName = L"Left";
constexpr const wchar_t* topName = L"Top";

/// A coordinate that StorePlacement wrote; nothing for anything else.
std::optional<std::int32_t> ReadCoordinate(QuorRegistryII::Registry& registry, const std::wstring& group,
                                           const wchar_t* name) {
    std::wstring text;
    if (!registry.ReadValue(group, name, text))
        return std::nullopt;
    if (text.find_first_not_of(L"-0123456789") != std::wstring::npos)
        return std::nullopt;
    const std::string digits(text.begin(), text.end());
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return value;
}

constexpr std::int16_t undoKey = 26;

wchar_t CharacterOf(std::int16_t keyAscii) {
    return static_cast<wchar_t>(static_cast<std::uint16_t>(keyAscii));
}

bool IsPrintable(std::int16_t keyAscii) {
    constexpr wchar_t deleteKey = 127;
    return CharacterOf(keyAscii) >= L' ' && CharacterOf(keyAscii) != deleteKey;
}

/// Whether a decimal separator and more digits could follow.
bool IsWithoutFraction(const std::wstring& number, const std::wstring& separator) {
    return number.find(separator) == std::wstring::npos && number.find(L'E') == std::wstring::npos;
}

bool IsBare(const PastedNumber& number) { return number.name.empty() && number.unit == PastedUnit::None; }

bool AreAsciiDigits(const std::wstring& text) { return std::all_of(text.begin(), text.end(), IsAsciiDigit); }

/// Whether a line may be the rest of the exponent of the number before it: "-4.183E-1" and "2".
bool MayEndExponent(const PastedNumber& before, const PastedNumber& line) {
    constexpr std::size_t fewDigits = 2;
    const std::wstring& number = *before.number;
    const auto exponent = number.find(L'E');
    return before.unit == PastedUnit::None && exponent != std::wstring::npos &&
           number.size() - number.find_first_of(L"0123456789", exponent) == 1 && IsBare(line) &&
           line.number->size() <= fewDigits && AreAsciiDigits(*line.number);
}

/// Whether two cells may be one number that is broken over two lines: "100." and "012", "100" and ".012",
/// "0.0039" and "083", "25.48" and "317", "-4.183E-1" and "2". A 0 by itself would change nothing of the
/// decimals before it.
bool MayBeBroken(const PastedNumber& before, const PastedNumber& cell, bool isWholeLine,
                 const std::wstring& separator) {
    constexpr std::size_t fewDigits = 3;
    const std::wstring& number = *cell.number;
    const bool isWhole = IsWithoutFraction(*before.number, separator);
    if (number.starts_with(separator))
        return isWhole;
    if (number.size() > 1 && number[0] == L'0' && IsAsciiDigit(number[1]))
        return true;
    if (isWholeLine && MayEndExponent(before, cell))
        return true;
    const bool hasFraction = !isWhole && before.number->find(L'E') == std::wstring::npos;
    return isWholeLine && hasFraction && IsBare(before) && IsBare(cell) && number.size() <= fewDigits &&
           AreAsciiDigits(number) && number != L"0";
}

/// Whether a box is one of a list, not of a grid.
bool IsAloneInItsRow(const TextBox& box) {
    for (const Frame::Row& row : static_cast<const Frame*>(box.Parent())->Rows())
        if (std::find(row.begin(), row.end(), &box) != row.end())
            return std::count_if(row.begin(), row.end(), [](const Control* control) {
                       return control && control->Kind() == ControlKind::TextBox;
                   }) == 1;
    return true;
}

} // namespace

SettingsDialog::SettingsDialog(SettingsObject& settings, std::shared_ptr<Platform> platform,
                               const wchar_t* name, std::int32_t helpContext)
    : Dialog(name),
      m_settings(settings),
      m_platform(std::move(platform)),
      m_frame(Add<Frame>(L"framSettings")) {
    SetHelpContext(helpContext);
    AddColumn(m_frame);
}

bool SettingsDialog::Run() {
    // The buttons come last, so that they are last in tab order, in the order in which they stand.
    m_okCancelHelp = AddArray<PushButton>(L"cmdOKCancelHelp", 3);
    m_openSaveAs = AddArray<PushButton>(L"cmdOpenSaveAs", 2);
    auto& buttons = Add<Frame>(L"framButtons");
    for (PushButton* const button : m_okCancelHelp)
        buttons.AddRow({button});
    for (PushButton* const button : m_openSaveAs)
        buttons.AddRow({button});
    AddColumn(buttons);
    SetCancelButton(*m_okCancelHelp[Cancel]);
    SetHelpButton(*m_okCancelHelp[Help]);
    SetCaptions();

    SetTitle(m_settings.GetName() + L" " + TableText(IDS_SETTINGS_WORD));
    m_frame.SetCaption(m_settings.GetName() + L":");
    RestorePlacement();
    DialogInput input = Input();
    m_platform->RunDialog(*this, input);
    StorePlacement();
    return !m_cancelled;
}

void SettingsDialog::SetCaptions() {
    m_okCancelHelp[OK]->SetCaption(TableText(IDS_OK_BUTTON));
    m_okCancelHelp[Cancel]->SetCaption(TableText(IDS_CANCEL_BUTTON));
    m_okCancelHelp[Help]->SetCaption(TableText(IDS_HELP_BUTTON));
    m_openSaveAs[Open]->SetCaption(TableText(IDS_OPEN_BUTTON));
    m_openSaveAs[SaveAs]->SetCaption(TableText(IDS_SAVE_AS_BUTTON));
}

void SettingsDialog::LoadControls() {
    AllowEditing({m_openSaveAs[Open], m_openSaveAs[SaveAs], m_okCancelHelp[OK]});
}

SettingsDialog::Field& SettingsDialog::AddField(std::wstring labelName, std::wstring boxName,
                                                std::function<double()> get, std::function<void(double)> set,
                                                std::function<std::wstring()> format, PastedUnit unit) {
    auto& label = Add<Label>(std::move(labelName));
    auto& box = Add<TextBox>(std::move(boxName));
    m_frame.AddRow({&label, &box});
    Field& field = AddField(label, box, std::move(get), std::move(set), std::move(format));
    field.unit = unit;
    return field;
}

SettingsDialog::Field& SettingsDialog::AddField(Label& label, TextBox& box, std::function<double()> get,
                                                std::function<void(double)> set,
                                                std::function<std::wstring()> format) {
    return m_fields.emplace_back(Field{label, box, std::move(get), std::move(set), std::move(format)});
}

void SettingsDialog::ShowValue(const Field& field) {
    Forget(field.box);
    field.box.SetText(FormatValue(field.get(), field.format(), UserSeparators(*m_platform)));
    Advise(field);
}

void SettingsDialog::ClearText(const Field& field) {
    Forget(field.box);
    field.box.SetText({});
    AdviseIfItCan(field);
}

void SettingsDialog::StoreValue(const Field& field) const {
    const std::wstring& text = field.box.Text();
    // Without a format the text says exactly what is stored, also where it is no number that can be typed:
    // NaN.
    if (IsGeneralFormat(field.format()) && text == FormatValue(field.get(), {}, UserSeparators(*m_platform)))
        return;
    field.set(ParseLeadingNumber(PointText(text)));
}

SettingsDialog::Choice SettingsDialog::MakeChoice(std::wstring labelName, std::wstring listName,
                                                  std::function<void(ListControl&)> fill,
                                                  std::function<std::int32_t()> get,
                                                  std::function<void(std::int32_t)> set) {
    auto& label = Add<Label>(std::move(labelName));
    auto& list = Add<DropDownList>(std::move(listName));
    m_frame.AddRow({&label, &list});
    return {label, list, std::move(fill), std::move(get), std::move(set)};
}

void SettingsDialog::ShowChoice(const Choice& choice) const {
    choice.fill(choice.list);
    SelectItemByData(choice.list, choice.get());
    AllowEditing({&choice.label, &choice.list});
}

bool SettingsDialog::StoreChoice(const Choice& choice) {
    if (!choice.list.HasSelection())
        return false;
    choice.set(choice.list.ItemData(choice.list.ListIndex()));
    return true;
}

void SettingsDialog::SetVisible(const Field& field, bool visible) const {
    field.label.SetVisible(visible);
    field.box.SetVisible(visible);
    AdviseIfItCan(field);
}

void SettingsDialog::AllowEditing(std::initializer_list<Control*> controls) const {
    for (Control* const control : controls)
        control->SetEnabled(m_settings.AllowEdit());
}

bool SettingsDialog::Refuse(EStringId message, Control* focus) {
    ShowMessage(*m_platform, message);
    if (focus) {
        ShowPageOf(*focus);
        SetFocus(*focus);
    }
    return false;
}

void SettingsDialog::OnActivate() {
    if (std::exchange(m_activated, true))
        return;
    LoadAll(true);
    // A box that may not be edited cannot keep the focus.
    if (ActiveControl() && !ActiveControl()->IsUsable())
        FocusNext();
    SelectAllText(*this);
}

void SettingsDialog::LoadAll(bool first) {
    m_loading = true;
    try {
        if (first)
            PrepareControls();
        LoadControls();
        m_loading = false;
    } catch (...) {
        m_loading = false;
        ReportError(IDS_EDITING_SETTINGS);
        // What could not be shown must not be gathered.
        m_okCancelHelp[OK]->SetEnabled(false);
        m_openSaveAs[SaveAs]->SetEnabled(false);
    }
}

void SettingsDialog::OnClick(Control& control) {
    try {
        if (control.Kind() == ControlKind::PushButton)
            OnButton(static_cast<const PushButton&>(control));
        else
            OnChoice(control);
    } catch (...) {
        if (m_loading)
            throw; // the list was selected by LoadControls, which has failed then
        ReportError(IDS_EDITING_SETTINGS);
    }
}

void SettingsDialog::OnButton(const PushButton& button) {
    if (&button == m_okCancelHelp[OK]) {
        if (Accept())
            Hide();
    } else if (&button == m_okCancelHelp[Cancel]) {
        m_cancelled = true;
        Hide();
    } else if (&button == m_okCancelHelp[Help]) {
        ShowHelpTopic(*m_platform, HelpContext());
    } else if (&button == m_openSaveAs[Open]) {
        std::wstring file;
        if (m_settings.OpenFile(WindowHandle(), file))
            LoadAll(false);
    } else if (&button == m_openSaveAs[SaveAs] && Accept()) {
        std::wstring file;
        m_settings.SaveFileAs(WindowHandle(), file);
    }
}

bool SettingsDialog::Accept() {
    EStringId context = IDS_GATHERING_SETTINGS;
    try {
        if (!GatherSettings())
            return false;
        AdviseOnStored();
        context = IDS_VALIDATING_SETTINGS;
        return ValidateSettings();
    } catch (...) {
        ReportError(context);
        return false;
    }
}

void SettingsDialog::AdviseOnStored() {
    for (const Field& field : m_fields) {
        if (!IsGathered(field))
            continue;
        m_notes[&field.box].formatted.clear();
        Remember(field.box);
        AdviseIfItCan(field);
    }
}

void SettingsDialog::OnGotFocus(Control& control) {
    if (control.Kind() == ControlKind::TextBox)
        SelectAllText(*this);
}

void SettingsDialog::OnLostFocus(Control& control) {
    const Field* const field = FieldOf(control);
    if (!field || !control.Enabled())
        return; // nobody can have typed into a disabled box: what it shows is the object's
    m_notes[&field->box].keys.OnLeave();
    FormatText(*field);
}

void SettingsDialog::FormatText(const Field& field) {
    try {
        const std::wstring format = field.format();
        const NumberSeparators separators = UserSeparators(*m_platform);
        const auto number = ParseWholeNumber(PointText(field.box.Text()));
        if (!number || IsGeneralFormat(format))
            return;
        const std::wstring text = FormatValue(*number, format, separators);
        // As long as nothing else is typed: what the format has taken away is seen nowhere else.
        const std::wstring lost = AdviceOnShownValue(*number, text, separators);
        if (!lost.empty())
            m_notes[&field.box].formatted = lost;
        if (text != field.box.Text())
            m_notes[&field.box].keys.OnFormat();
        field.box.SetText(text);
        Remember(field.box);
        Advise(field);
    } catch (...) { // a row that the object refuses by now keeps the text that was typed
    }
}

void SettingsDialog::OnKeyPress(TextBox& box, std::int16_t& keyAscii) {
    const std::int16_t pressed = keyAscii;
    FilterNumericKeyExp(keyAscii, GetDecimalSeparator(*m_platform));
    m_key = keyAscii;
    const Field* const field = FieldOf(box);
    if (field && IsPrintable(pressed)) {
        m_notes[&box].keys.OnKey(box, CharacterOf(pressed), CharacterOf(keyAscii),
                                 UserSeparators(*m_platform));
        if (keyAscii == 0)
            Remember(box);
        AdviseIfItCan(*field);
    }
    EnterToTab(keyAscii, *this, nullptr, false);
}

const SettingsDialog::Field* SettingsDialog::FieldOf(const Control& control) const {
    const auto field = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const Field& candidate) { return &candidate.box == &control; });
    return field == m_fields.end() ? nullptr : &*field;
}

void SettingsDialog::Advise(const Field& field) const {
    if (!m_settings.AllowEdit() || !IsGathered(field))
        return field.box.SetAdvice({}); // nothing will be stored
    static const Notes noNotes;
    const NumberSeparators separators = UserSeparators(*m_platform);
    const std::wstring format = field.format();
    const std::wstring& text = field.box.Text();
    const auto found = m_notes.find(&field.box);
    const Notes& notes = found == m_notes.end() ? noNotes : found->second;
    std::wstring advice;
    if (!notes.formatted.empty())
        advice = notes.formatted;
    else if (text != FormatValue(field.get(), format, separators))
        advice = AdviceOnText(text, &field.box == ActiveControl() ? format : std::wstring{}, separators);
    else if (!IsGeneralFormat(format)) // without a format it stays as it is, NaN too
        advice = AdviceOnShownValue(field.get(), text, separators);
    for (const std::wstring* const note : {&notes.keys.Advice(), &notes.pasted, &notes.refused})
        advice = JoinAdvice(advice, *note);
    field.box.SetAdvice(advice);
}

void SettingsDialog::AdviseIfItCan(const Field& field) const {
    try {
        Advise(field);
    } catch (...) { // an object that refuses the row by now has nothing to tell of it
        field.box.SetAdvice({});
    }
}

void SettingsDialog::OnEdit(TextBox& box) {
    const Field* const field = FieldOf(box);
    if (!field)
        return;
    Notes& notes = m_notes[&box];
    const auto& earlier = m_earlier[&box];
    const std::int16_t key = std::exchange(m_key, std::int16_t{0});
    const auto found = IsPrintable(key) ? earlier.end() : earlier.find(box.Text());
    if (found != earlier.end()) {
        notes = found->second;
    } else if (key == undoKey) {
        notes = {}; // nothing was told of the text that has come back
    } else {
        notes.keys.OnText(box.Text(), UserSeparators(*m_platform));
        notes = {std::move(notes.keys), {}, {}, {}};
        Remember(box);
    }
    AdviseIfItCan(*field);
}

void SettingsDialog::Remember(const TextBox& box) {
    const Notes& notes = m_notes[&box];
    auto& earlier = m_earlier[&box];
    constexpr std::size_t most = 1000; // of a key that is held down
    if (earlier.size() >= most || (notes.keys.Advice() + notes.formatted + notes.pasted).empty()) {
        earlier.erase(box.Text());
        return;
    }
    Notes& kept = earlier[box.Text()] = {notes.keys, notes.formatted, notes.pasted, {}};
    kept.keys.OnLeave();
}

void SettingsDialog::Forget(const TextBox& box) {
    m_notes.erase(&box);
    m_earlier.erase(&box);
}

void SettingsDialog::OnPaste(TextBox& box, const std::wstring& text) {
    const PastedCells cells = SplitIntoCells(text);
    if (!FieldOf(box))
        Dialog::OnPaste(box, text);
    else if (cells.size() == 1 && cells.front().size() == 1)
        PasteNumber(box, cells.front().front());
    else if (cells.empty())
        RefusePaste(box, AdviceOnRefusedPaste({}, PasteRefusal::NoNumber));
    else
        PasteCells(box, cells);
}

void SettingsDialog::PasteNumber(TextBox& box, std::wstring_view text) {
    const std::wstring& separator = GetDecimalSeparator(*m_platform);
    PastedNumber pasted = NumberFromPaste(text, separator);
    if (!pasted.number)
        return RefusePaste(box, AdviceOnRefusedPaste(text, pasted.refusal));
    const std::wstring before = box.Text().substr(0, box.SelStart());
    const std::wstring behind = box.Text().substr(box.SelStart() + box.SelLength());
    const std::wstring joined = before + *pasted.number + behind;
    // Digits go into a part of a number that is selected, or behind a sign that was typed. Nowhere else: two
    // numbers side by side would be a third one.
    const bool isSelected = box.SelLength() > 0;
    const bool isNumber = LeadingNumberLength(PointText(joined)) == joined.size();
    const bool isBehindSign = behind.empty() && (before == L"-" || before == L"+") && isNumber;
    const bool isWhole = !IsBare(pasted) || pasted.number->find_first_of(L"+-E") != std::wstring::npos;
    if (isSelected && !isWhole && !isNumber)
        return RefusePaste(box, AdviceOnRefusedPaste(joined, PasteRefusal::NoNumber));
    if (isSelected ? isWhole : !isBehindSign) {
        pasted.isToBeTold |=
            isSelected && joined != *pasted.number; // more than what was selected is replaced
        box.SetSelection(0, box.Text().size());
    }
    PutPasted(box, pasted, text);
}

void SettingsDialog::PutPasted(TextBox& box, const PastedNumber& pasted, std::wstring_view text) {
    box.ReplaceSelection(*pasted.number);
    const bool isPart = box.Text() != *pasted.number;
    Notes& notes = m_notes[&box];
    notes.keys.OnPaste(box.Text(), !isPart, UserSeparators(*m_platform));
    notes = {std::move(notes.keys), {}, {}, {}};
    notes.pasted = JoinAdvice(IsOfAnother(box, pasted) ? AdviceOnPastedFrom(text) : std::wstring{},
                              pasted.isToBeTold || isPart ? AdviceOnPasted(box.Text()) : std::wstring{});
    Remember(box);
    AdviseIfItCan(*FieldOf(box));
    if (&box != ActiveControl())
        FormatText(*FieldOf(box)); // it will not be left, as the box that is pasted into
}

void SettingsDialog::RefusePaste(TextBox& box, std::wstring why) {
    m_notes[&box].refused = std::move(why);
    AdviseIfItCan(*FieldOf(box));
}

bool SettingsDialog::IsOfAnother(const TextBox& box, const PastedNumber& pasted) const {
    const std::vector<ControlName> names = ControlNames(*this);
    const auto own =
        std::find_if(names.begin(), names.end(), [&](const ControlName& n) { return n.control == &box; });
    if (own == names.end())
        return false;
    // A unit on the screen that is none of those that are read, as "mK", is another one, too.
    const PastedUnit unit = own->units.empty() ? FieldOf(box)->unit : UnitFromPaste(own->units);
    const bool unitIsKnown = !own->units.empty() || unit != PastedUnit::None;
    if (pasted.unit != PastedUnit::None && unitIsKnown && pasted.unit != unit)
        return true;
    if (pasted.name.empty() || IsNameOf(own->name, pasted.name))
        return false;
    // "a" is "A[7]" where there is no other A.
    const std::wstring letter = own->name.substr(0, own->name.find(L'['));
    const auto isOneOfThem = [&](const ControlName& n) {
        return n.control->Parent() == box.Parent() && n.control->IsShown() &&
               n.name.starts_with(letter + L"[");
    };
    return !IsNameOf(letter, pasted.name) || std::count_if(names.begin(), names.end(), isOneOfThem) != 1;
}

void SettingsDialog::PasteCells(TextBox& box, const PastedCells& cells) {
    if (const auto empty = EmptyCell(cells))
        return RefusePaste(box, AdviceOnEmptyCell(empty->line, empty->column));
    const std::wstring& separator = GetDecimalSeparator(*m_platform);
    std::vector<PastedNumber> numbers;
    std::vector<std::wstring_view> texts;
    for (const auto& line : cells)
        for (const std::wstring_view cell : line) {
            texts.push_back(cell);
            numbers.push_back(NumberFromPaste(cell, separator));
            const PastedNumber& number = numbers.back();
            if (!number.number)
                return RefusePaste(box, AdviceOnRefusedPaste(cell, number.refusal));
            const bool isFirst = numbers.size() == 1;
            if (number.number->ends_with(separator) ||
                (!isFirst && MayBeBroken(numbers[numbers.size() - 2], number, line.size() == 1, separator)))
                return RefusePaste(box, AdviceOnRefusedPaste(cell, PasteRefusal::TwoReadings));
        }
    // A list has one column: of several, nobody can say which is meant.
    const auto line =
        std::find_if(cells.begin(), cells.end(), [](const auto& columns) { return columns.size() > 1; });
    if (cells.size() > 1 && line != cells.end() && IsAloneInItsRow(box)) {
        const std::wstring quoted = std::wstring(line->front()) + L"\t" + std::wstring((*line)[1]);
        return RefusePaste(box, AdviceOnRefusedPaste(quoted, PasteRefusal::TwoReadings));
    }
    const auto boxes = BoxesFor(cells, box);
    if (!boxes)
        return RefusePaste(box, AdviceOnNoRoom(numbers.size()));
    for (std::size_t i = 0; i < boxes->size(); ++i) {
        TextBox& target = *(*boxes)[i];
        target.SetSelection(0, target.Text().size());
        numbers[i].isToBeTold = true; // which box a cell goes into is seen nowhere else
        PutPasted(target, numbers[i], texts[i]);
    }
}

std::wstring SettingsDialog::PointText(const std::wstring& text) const {
    return ToPointDecimal(text, GetDecimalSeparator(*m_platform));
}

void SettingsDialog::ReportError(EStringId context) const {
    QuorConversions::ReportError(*m_platform, CurrentError(Name()), TableText(context),
                                 TableText(IDS_MESSAGE_TITLE));
}

void SettingsDialog::RestorePlacement() {
    try {
        if (const auto registry = m_settings.Registry()) {
            const auto left = ReadCoordinate(*registry, Name(), leftName);
            const auto top = ReadCoordinate(*registry, Name(), topName);
            if (left && top)
                SetPlace(Placement{*left, *top});
        }
    } catch (...) { // the dialog stands where the toolkit puts it
    }
}

void SettingsDialog::StorePlacement() const {
    try {
        const auto registry = m_settings.Registry();
        if (registry && Place()) {
            registry->WriteValue(Name(), leftName, std::to_wstring(Place()->left));
            registry->WriteValue(Name(), topName, std::to_wstring(Place()->top));
        }
    } catch (...) { // where a window stood is not worth a message
    }
}

} // namespace QuorConversions
