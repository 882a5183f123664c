#include "QuorConversions/dialogs/frmITS90Settings.h"

namespace QuorConversions {
namespace {

enum Tabs : std::size_t { lowTab, highTab };

bool HasNoRange(const CQuorITS90Range& range) {
    return range.MinRange() == ITS90_NORANGE && range.MaxRange() == ITS90_NORANGE;
}

std::wstring InBrackets(std::int32_t number) { return L"[" + std::to_wstring(number) + L"]"; }

} // namespace

frmITS90Settings::frmITS90Settings(CQuorITS90& settings, std::shared_ptr<Platform> platform)
    : SettingsDialog(settings, std::move(platform), L"frmITS90Settings", 10110),
      m_object(settings),
      m_rtpw(AddField(
          L"lblRTPW", L"txtRTPW", [this] { return m_object.RTPW(); },
          [this](double value) { m_object.SetRTPW(value); }, [this] { return m_object.RTPWFormat(); },
          PastedUnit::Ohm)),
      m_tabs(Add<TabStrip>(L"tabRange")),
      m_low(MakePage(*settings.LowRange(), lowTab, L"Low", ITS90_LOW_C5 + 1)),
      m_high(MakePage(*settings.HighRange(), highTab, L"High", ITS90_HIGH_D + 1)),
      m_range5Note(Add<Label>(L"lblRange5Coefs")) {
    m_low.frame.AddRow({&m_range5Note});
    Settings().AddRow({&m_tabs});
    Settings().AddRow({&m_low.frame});
    Settings().AddRow({&m_high.frame});
    m_tabs.AddTab(TableText(IDS_LOW_RANGE));
    m_tabs.AddTab(TableText(IDS_HIGH_RANGE));
}

frmITS90Settings::Page frmITS90Settings::MakePage(CQuorITS90Range& range, std::size_t number,
                                                  const std::wstring& side, std::size_t rows) {
    auto& frame = Add<Frame>(L"framRange", number);
    auto& label = Add<Label>(L"lbl" + side + L"Range");
    auto& list = Add<DropDownList>(L"cbo" + side + L"Range");
    frame.AddRow({&label, &list});
    Page page{range,
              frame,
              {label, list, [&range](ListControl& items) { range.FillRangeCombo(items); },
               [&range] { return range.Range(); },
               [&range](std::int32_t value) { range.SetRange(EITS90RangeNumber{value}); }},
              {}};
    for (std::size_t row = 0; row < rows; ++row) {
        const auto index = static_cast<std::int32_t>(row);
        auto& rowLabel = Add<Label>(L"lbl" + side + L"Coefficient", row);
        auto& box = Add<TextBox>(L"txt" + side + L"Coefficient", row);
        frame.AddRow({&rowLabel, &box});
        page.rows.push_back(&AddField(
            rowLabel, box,
            // A row that the selected range brings holds 0 until OK stores the range.
            [&range, index] { return index < range.NumCoefficients() ? range.Coefficients(index) : 0.0; },
            [&range, index](double value) { range.SetCoefficients(index, value); },
            [&range] { return range.ValueFormat(); }));
    }
    return page;
}

void frmITS90Settings::SetCaptions() {
    m_rtpw.label.SetCaption(TableText(IDS_RTPW) + L":");
    m_low.choice.label.SetCaption(TableText(IDS_SELECT_LOW_RANGE) + L":");
    m_high.choice.label.SetCaption(TableText(IDS_SELECT_HIGH_RANGE) + L":");
    SettingsDialog::SetCaptions();
}

void frmITS90Settings::PrepareControls() {
    ConfigureRangeTabs();
    ShowSelectedTab();
}

void frmITS90Settings::ConfigureRangeTabs() {
    if (HasNoRange(m_low.range))
        m_tabs.RemoveTab(lowTab);
    if (HasNoRange(m_high.range))
        m_tabs.RemoveTab(highTab);
}

void frmITS90Settings::ShowSelectedTab() {
    const auto isShown = [this](Tabs tab) { return m_tabs.Tabs()[tab].present && m_tabs.Selected() == tab; };
    m_low.frame.SetVisible(isShown(lowTab));
    m_high.frame.SetVisible(isShown(highTab));
}

void frmITS90Settings::ShowPageOf(Control& control) {
    for (const auto tab : {lowTab, highTab})
        if (control.Parent() == (tab == lowTab ? &m_low.frame : &m_high.frame))
            m_tabs.Select(tab);
}

bool frmITS90Settings::IsGathered(const Field& field) const {
    for (const Page* const page : {&m_low, &m_high})
        if (field.box.Parent() == &page->frame && !page->range.RangeEnabled())
            return false;
    return SettingsDialog::IsGathered(field);
}

void frmITS90Settings::LoadControls() {
    AllowEditing({&m_rtpw.label, &m_rtpw.box});
    SettingsDialog::LoadControls();
    ShowValue(m_rtpw);
    LoadPage(m_low);
    LoadPage(m_high);
}

void frmITS90Settings::LoadPage(const Page& page) {
    for (const Field* const row : page.rows)
        ClearText(*row);
    ShowChoice(page.choice);
    if (!page.choice.list.HasSelection())
        SetupRows(page); // the range is none of the list, so no Click has come
    const bool mayChange = m_object.AllowEdit() && page.range.AllowChangeRange();
    page.choice.label.SetEnabled(mayChange);
    page.choice.list.SetEnabled(mayChange);
}

void frmITS90Settings::OnChoice(Control& control) {
    if (&control == &m_low.choice.list)
        SetupRows(m_low);
    else if (&control == &m_high.choice.list)
        SetupRows(m_high);
    else
        ShowSelectedTab();
}

void frmITS90Settings::SetupRows(const Page& page) {
    const std::int32_t range = page.choice.list.SelectedData(page.range.Range());
    if (&page == &m_low)
        SetupLowRangeRows(range, page.range.ShowCoefRange());
    else
        SetupHighRangeRows(range, page.range.ShowCoefRange());
}

void frmITS90Settings::SetupLowRangeRows(std::int32_t range, bool showCoefRange) {
    // A and B are numbered by the range, the C coefficients among themselves.
    const std::wstring number = showCoefRange ? InBrackets(range) : std::wstring{};
    m_low.rows[ITS90_LOW_A]->label.SetCaption(TableText(IDS_A) + number + L":");
    m_low.rows[ITS90_LOW_B]->label.SetCaption(TableText(IDS_B) + number + L":");
    for (std::int32_t c = ITS90_LOW_C1; c <= ITS90_LOW_C5; ++c)
        m_low.rows[static_cast<std::size_t>(c)]->label.SetCaption(TableText(IDS_C) +
                                                                  InBrackets(c - ITS90_LOW_C1 + 1) + L":");
    UpdateRange5Note(range);
    SetupRows(m_low, range);
}

void frmITS90Settings::SetupHighRangeRows(std::int32_t range, bool showCoefRange) {
    const std::wstring number = showCoefRange ? InBrackets(range) : std::wstring{};
    std::size_t row = 0;
    for (const EStringId letter : {IDS_A, IDS_B, IDS_C, IDS_D})
        m_high.rows[row++]->label.SetCaption(TableText(letter) + number + L":");
    SetupRows(m_high, range);
}

void frmITS90Settings::SetupRows(const Page& page, std::int32_t range) {
    for (std::size_t i = 0; i < page.rows.size(); ++i) {
        const Field& row = *page.rows[i];
        const auto index = static_cast<std::int32_t>(i);
        const bool used = index < page.range.CoefficientsOf(range);
        SetVisible(row, used);
        if (!used)
            continue;
        AllowEditing({&row.label, &row.box});
        if (index < page.range.NumCoefficients())
            ShowValue(row);
    }
}

void frmITS90Settings::UpdateRange5Note(std::int32_t lowRange) {
    const CQuorITS90Range& high = m_high.range;
    // Where the low range ends at 5 and the high range begins there, the ranges themselves offer what the
    // note says.
    const bool bothMeetAt5 = high.MinRange() == ITS90_RANGE_5 && m_low.range.MaxRange() == ITS90_RANGE_5;
    m_range5Note.SetCaption(
        TableText(high.AllowChangeRange() ? IDS_RANGE_5_SELECT_NONE : IDS_RANGE_5_SAME_VALUES));
    m_range5Note.SetVisible(lowRange == ITS90_RANGE_5 && !HasNoRange(high) && !bothMeetAt5);
}

bool frmITS90Settings::GatherSettings() {
    StoreValue(m_rtpw);
    StorePage(m_low);
    StorePage(m_high);
    return true;
}

void frmITS90Settings::StorePage(const Page& page) {
    if (!page.range.RangeEnabled())
        return;
    (void)StoreChoice(page.choice); // without a selection the range stays
    for (std::int32_t index = 0; index < page.range.NumCoefficients(); ++index)
        if (const Field& row = *page.rows[static_cast<std::size_t>(index)]; row.box.Visible())
            StoreValue(row);
}

bool frmITS90Settings::ValidateSettings() {
    if (m_object.RTPW() == 0.0)
        return Refuse(IDS_ENTER_RTPW, &m_rtpw.box);
    if (m_low.range.Range() == ITS90_NORANGE && m_high.range.Range() == ITS90_NORANGE)
        return Refuse(IDS_SELECT_RANGE, nullptr);
    return true;
}

} // namespace QuorConversions
