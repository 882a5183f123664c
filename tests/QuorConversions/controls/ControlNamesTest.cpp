#include "QuorConversions/controls/ControlNames.h"

#include <gtest/gtest.h>

using namespace QuorConversions;

namespace {

/// A dialog whose rows a test lays out.
class RowsDialog : public Dialog {
public:
    RowsDialog() : Dialog(L"frmRows"), frame(Add<Frame>(L"framRows")) { AddColumn(frame); }
    Label* MakeLabel(const wchar_t* caption) {
        auto& label = Add<Label>(L"lbl", m_count++);
        label.SetCaption(caption);
        return &label;
    }
    TextBox* MakeBox() { return &Add<TextBox>(L"txt", m_count++); }
    PushButton* MakeButton(const wchar_t* caption) {
        auto& button = Add<PushButton>(L"cmd", m_count++);
        button.SetCaption(caption);
        return &button;
    }
    /// "name" or "name, units", in the order of the rows.
    [[nodiscard]] std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (const ControlName& name : ControlNames(*this))
            names.push_back(name.units.empty() ? name.name : name.name + L", " + name.units);
        return names;
    }
    Frame& frame;

private:
    std::size_t m_count = 0;
};

using Names = std::vector<std::wstring>;

} // namespace

TEST(ControlNames, ALabelNamesTheBoxBehindItWithoutAccessKeyAndColon) {
    RowsDialog dialog;
    dialog.frame.AddRow({dialog.MakeLabel(L"&R0:"), dialog.MakeBox()});
    EXPECT_EQ(dialog.Names(), Names{L"R0"});
}

TEST(ControlNames, WhatStandsBehindABoxIsItsUnit) {
    RowsDialog dialog;
    dialog.frame.AddRow({dialog.MakeLabel(L"R0:"), dialog.MakeBox(), dialog.MakeLabel(L"ohms")});
    EXPECT_EQ(dialog.Names(), Names{L"R0, ohms"});
}

TEST(ControlNames, InARowOfPairsEachLabelNamesItsOwnBox) {
    RowsDialog dialog;
    dialog.frame.AddRow({dialog.MakeLabel(L"A:"), dialog.MakeBox(), dialog.MakeLabel(L"B:"), dialog.MakeBox(),
                         dialog.MakeLabel(L"mV")});
    EXPECT_EQ(dialog.Names(), (Names{L"A", L"B, mV"}));
}

TEST(ControlNames, InAGridABoxIsCalledByItsHeadingAndItsRow) {
    RowsDialog dialog;
    dialog.frame.AddRow(
        {nullptr, dialog.MakeLabel(L"Temperature"), nullptr, dialog.MakeLabel(L"Voltage"), nullptr});
    for (const wchar_t* const point : {L"1", L"2"})
        dialog.frame.AddRow({dialog.MakeLabel(point), dialog.MakeBox(), dialog.MakeLabel(L"K"),
                             dialog.MakeBox(), dialog.MakeLabel(L"mV")});
    EXPECT_EQ(dialog.Names(),
              (Names{L"Temperature 1, K", L"Voltage 1, mV", L"Temperature 2, K", L"Voltage 2, mV"}));
}

TEST(ControlNames, AButtonIsCalledByItsOwnCaptionAndABoxWithoutLabelHasNoName) {
    RowsDialog dialog;
    dialog.frame.AddRow({dialog.MakeButton(L"Save &As")});
    dialog.frame.AddRow({dialog.MakeBox()});
    EXPECT_EQ(dialog.Names(), Names{L"Save As"});
}
