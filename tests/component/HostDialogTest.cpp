// A dialog that a host runs through the table: the model is read and driven by handles.

#include "tests/component/Component.h"

namespace {

class HostDialog : public ComponentTest {};

/// Goes to a box and types over its text, as a person does.
void Type(quor_object dialog, const std::string& name, const std::string& text) {
    const Handle box = Find(dialog, name);
    ASSERT_EQ(quor_dialog_Focus(dialog, box), 0);
    std::string typed;
    for (const char c : text) {
        std::int16_t key = 0;
        ASSERT_EQ(quor_dialog_KeyPress(dialog, static_cast<std::int16_t>(c), &key), 0);
        if (key != 0)
            typed += static_cast<char>(key);
        ASSERT_EQ(quor_dialog_EditText(dialog, box, Text(typed), static_cast<std::int32_t>(typed.size()), 0),
                  0);
    }
}

void Click(quor_object dialog, const std::string& name) {
    ASSERT_EQ(quor_dialog_Click(dialog, Find(dialog, name)), 0);
}

[[nodiscard]] std::string TextOf(quor_object dialog, const std::string& name) {
    quor_text text{};
    EXPECT_EQ(quor_control_get_Text(Find(dialog, name), &text), 0);
    return Taken(text);
}

[[nodiscard]] std::string NameOf(quor_object control) {
    quor_text text{};
    EXPECT_EQ(quor_control_get_Name(control, &text), 0);
    return Taken(text);
}

[[nodiscard]] std::string FocusedIn(quor_object dialog) {
    Handle focused;
    EXPECT_EQ(quor_dialog_get_ActiveControl(dialog, &focused), 0);
    return focused == 0 ? "" : NameOf(focused);
}

[[nodiscard]] bool IsOpen(quor_object dialog) {
    std::int16_t open = 0;
    EXPECT_EQ(quor_dialog_get_IsOpen(dialog, &open), 0);
    return open != 0;
}

/// Edits the settings; what the host's function does in the dialog is `run`.
bool Edit(RecordingPlatform& host, quor_EQuorConversionType type,
          std::int32_t (*run)(RecordingPlatform&, quor_object dialog),
          const quor_platform_functions& functions = RecordingPlatform::Functions()) {
    host.runDialog = run;
    const Handle platform = host.Make(functions);
    const Handle conversion = Conversion(type, platform);
    std::int16_t accepted = 0;
    EXPECT_EQ(quor_conversion_Edit(conversion, &accepted), 0);
    return accepted != 0;
}

} // namespace

TEST_F(HostDialog, IsFilledInAndAccepted) {
    RecordingPlatform host;
    host.runDialog = [](RecordingPlatform&, quor_object dialog) {
        EXPECT_EQ(quor_dialog_Activate(dialog), 0);
        EXPECT_EQ(FocusedIn(dialog), "txtCoefficients(0)");
        Type(dialog, "txtCoefficients(0)", "100x.0123"); // the key filter swallows the letter
        Type(dialog, "txtCoefficients(1)", "3.85e-3");
        Type(dialog, "txtCoefficients(2)", "1.5");
        Type(dialog, "txtCoefficients(3)", "0.11");
        EXPECT_EQ(TextOf(dialog, "txtCoefficients(0)"), "100.0123");
        Click(dialog, "cmdOKCancelHelp(0)");
        EXPECT_FALSE(IsOpen(dialog));
        return 0;
    };
    const Handle platform = host.Make();
    const Handle conversion = Conversion(QUOR_CONV_CVD, platform);
    std::int16_t accepted = 0;
    ASSERT_EQ(quor_conversion_Edit(conversion, &accepted), 0);
    EXPECT_EQ(accepted, -1);
    const Handle cvd = SettingsOf(conversion);
    double r0 = 0;
    double alpha = 0;
    ASSERT_EQ(quor_cvd_get_Coefficients(cvd, QUOR_CVD_R0, &r0), 0);
    ASSERT_EQ(quor_cvd_get_Coefficients(cvd, QUOR_CVD_ALPHA, &alpha), 0);
    EXPECT_EQ(r0, 100.0123);
    EXPECT_EQ(alpha, 3.85e-3);
    EXPECT_EQ(host.events, std::vector<std::string>{});
}

TEST_F(HostDialog, TellsWhatItRefusesAndStaysOpen) {
    RecordingPlatform host;
    EXPECT_FALSE(Edit(host, QUOR_CONV_CVD, [](RecordingPlatform& platform, quor_object dialog) {
        EXPECT_EQ(quor_dialog_Activate(dialog), 0);
        Click(dialog, "cmdOKCancelHelp(0)");
        EXPECT_TRUE(IsOpen(dialog));
        EXPECT_EQ(platform.events.back(), "Quor Scientific, 64: Enter valid values for all coefficients.");
        EXPECT_EQ(FocusedIn(dialog), "txtCoefficients(0)");
        return quor_dialog_Escape(dialog);
    }));
}

TEST_F(HostDialog, ThatIsLeftOpenIsCancelled) {
    RecordingPlatform host;
    EXPECT_FALSE(Edit(host, QUOR_CONV_CVD,
                      [](RecordingPlatform&, quor_object dialog) { return quor_dialog_Activate(dialog); }));
}

TEST_F(HostDialog, ThatCannotBeShownIsReported) {
    RecordingPlatform host;
    EXPECT_FALSE(Edit(host, QUOR_CONV_CVD, [](RecordingPlatform&, quor_object) { return 429; }));
    EXPECT_EQ(host.events.back(),
              "Quor Scientific, 16: An error occurred while attempting to edit the conversion settings.\r\r"
              "Error: 429 - The host reports error 429\r(Platform of the host)");
}

TEST_F(HostDialog, IsReadInRowsAndColumns) {
    RecordingPlatform host;
    EXPECT_TRUE(Edit(host, QUOR_CONV_WT90, [](RecordingPlatform&, quor_object dialog) {
        quor_text title{};
        EXPECT_EQ(quor_dialog_get_Title(dialog, &title), 0);
        EXPECT_EQ(Taken(title), "W(T90) Settings");
        std::int32_t columns = 0;
        EXPECT_EQ(quor_dialog_get_ColumnCount(dialog, &columns), 0);
        EXPECT_EQ(columns, 2);
        std::string seen;
        for (std::int32_t column = 0; column < columns; ++column) {
            Handle frame;
            EXPECT_EQ(quor_dialog_get_Columns(dialog, column, &frame), 0);
            std::int32_t rows = 0;
            EXPECT_EQ(quor_control_get_RowCount(frame, &rows), 0);
            for (std::int32_t row = 0; row < rows; ++row) {
                std::int32_t length = 0;
                EXPECT_EQ(quor_control_get_RowLength(frame, row, &length), 0);
                for (std::int32_t place = 0; place < length; ++place) {
                    Handle control, parent;
                    EXPECT_EQ(quor_control_get_RowControls(frame, row, place, &control), 0);
                    EXPECT_EQ(quor_control_get_Parent(control, &parent), 0);
                    EXPECT_EQ(parent, frame);
                    quor_text caption{};
                    EXPECT_EQ(quor_control_get_Caption(control, &caption), 0);
                    seen += NameOf(control) + " '" + Taken(caption) + "' ";
                }
                seen += "/ ";
            }
        }
        EXPECT_EQ(seen,
                  "lblRTPW 'RTPW:' txtRTPW '' / cmdOKCancelHelp(0) '&OK' / cmdOKCancelHelp(1) '&Cancel' / "
                  "cmdOKCancelHelp(2) '&Help' / cmdOpenSaveAs(0) 'O&pen' / cmdOpenSaveAs(1) 'Save &As' / ");
        return quor_dialog_Close(dialog);
    }));
}

TEST_F(HostDialog, HasTabsAndLists) {
    RecordingPlatform host;
    Edit(host, QUOR_CONV_ITS90, [](RecordingPlatform&, quor_object dialog) {
        EXPECT_EQ(quor_dialog_Activate(dialog), 0);
        const Handle tabs = Find(dialog, "tabRange");
        quor_text caption{};
        EXPECT_EQ(quor_control_get_TabCaption(tabs, 1, &caption), 0);
        EXPECT_EQ(Taken(caption), "High Range");
        EXPECT_EQ(quor_control_get_TabCaption(tabs, 2, &caption), QUOR_ERROR_SUBSCRIPT);
        EXPECT_EQ(quor_dialog_SelectTab(dialog, tabs, 1), 0);
        std::int16_t shown = -1;
        EXPECT_EQ(quor_control_get_IsShown(Find(dialog, "cboLowRange"), &shown), 0);
        EXPECT_EQ(shown, 0);
        const Handle list = Find(dialog, "cboHighRange");
        std::int32_t count = 0;
        std::int32_t data = 0;
        quor_text item{};
        EXPECT_EQ(quor_control_get_ListCount(list, &count), 0);
        EXPECT_EQ(count, 8);
        EXPECT_EQ(quor_control_get_List(list, 2, &item), 0);
        EXPECT_EQ(Taken(item), "Range 6 (273K to 1234K)");
        EXPECT_EQ(quor_control_get_ItemData(list, 2, &data), 0);
        EXPECT_EQ(data, 6);
        EXPECT_EQ(quor_dialog_Choose(dialog, list, 2), 0);
        EXPECT_EQ(quor_dialog_Choose(dialog, list, 8), QUOR_ERROR_SUBSCRIPT);
        EXPECT_EQ(LastError(), (Error{9, "quor", "There is no item 8: there are 8, from 0"}));
        EXPECT_EQ(quor_dialog_Choose(dialog, list, -1), QUOR_ERROR_SUBSCRIPT);
        std::int32_t selected = -1;
        EXPECT_EQ(quor_control_get_ListIndex(list, &selected), 0);
        EXPECT_EQ(selected, 2);
        EXPECT_EQ(quor_control_get_IsShown(Find(dialog, "txtHighCoefficient(3)"), &shown), 0);
        EXPECT_EQ(shown, -1);
        return quor_dialog_Escape(dialog);
    });
}

TEST_F(HostDialog, RefusesWhatAKindOfControlDoesNotHave) {
    RecordingPlatform host;
    Edit(host, QUOR_CONV_CVD, [](RecordingPlatform&, quor_object dialog) {
        const Handle button = Find(dialog, "cmdOKCancelHelp(0)");
        EXPECT_EQ(quor_control_get_Text(button, nullptr), QUOR_ERROR_NO_MEMBER);
        EXPECT_EQ(LastError(),
                  (Error{438, "quor", "A control of the kind of cmdOKCancelHelp(0) has no such member"}));
        EXPECT_EQ(quor_dialog_Choose(dialog, button, 0), QUOR_ERROR_TYPE);
        EXPECT_EQ(LastError(), (Error{13, "quor", "cmdOKCancelHelp(0) is a control of another kind"}));
        EXPECT_EQ(quor_dialog_Click(dialog, 0), QUOR_ERROR_NO_OBJECT);
        EXPECT_EQ(quor_dialog_get_Controls(dialog, -1, nullptr), QUOR_ERROR_SUBSCRIPT);
        EXPECT_EQ(Find(dialog, "nothing"), 0U);
        return 0;
    });
}

TEST_F(HostDialog, HandlesThatTheHostKeepsLeadNowhereOnceItHasEnded) {
    struct Keeper : RecordingPlatform {
        quor_object dialog = 0;
        quor_object control = 0;
    } host;
    Edit(host, QUOR_CONV_CVD, [](RecordingPlatform& platform, quor_object dialog) {
        auto& keeper = static_cast<Keeper&>(platform);
        keeper.dialog = dialog;
        EXPECT_EQ(quor_add_ref(dialog), 0);
        EXPECT_EQ(quor_dialog_get_Controls(dialog, 0, &keeper.control), 0);
        return 0;
    });
    EXPECT_EQ(quor_dialog_Activate(host.dialog), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(LastError(), (Error{91, "quor", "The dialog has ended"}));
    EXPECT_EQ(quor_control_get_Enabled(host.control, nullptr), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(quor_control_get_Parent(host.control, nullptr), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(quor_release(host.dialog), 0);
    EXPECT_EQ(quor_release(host.control), 0);
}

TEST_F(HostDialog, AControlOfAnotherDialogIsRefused) {
    struct Outer : RecordingPlatform {
        quor_object outerBox = 0;
        int depth = 0;
        quor_object pt100 = 0;
    } host;
    host.runDialog = [](RecordingPlatform& platform, quor_object dialog) {
        auto& outer = static_cast<Outer&>(platform);
        if (outer.depth++ == 0) {
            EXPECT_EQ(quor_dialog_get_Controls(dialog, 1, &outer.outerBox), 0);
            EXPECT_EQ(quor_pt100_Edit(outer.pt100, nullptr), 0);
            EXPECT_EQ(quor_release(outer.outerBox), 0);
        } else {
            EXPECT_EQ(quor_dialog_Focus(dialog, outer.outerBox), QUOR_ERROR_ARGUMENT);
            EXPECT_EQ(LastError(), (Error{5, "quor", "The control belongs to another dialog"}));
        }
        return 0;
    };
    const Handle platform = host.Make();
    ASSERT_EQ(quor_pt100_create(platform, &host.pt100), 0);
    EXPECT_EQ(quor_pt100_Edit(host.pt100, nullptr), 0);
    EXPECT_EQ(host.depth, 2);
    EXPECT_EQ(quor_release(host.pt100), 0);
}

TEST_F(HostDialog, TellsWhatChanges) {
    quor_platform_functions functions = RecordingPlatform::Functions();
    functions.control_changed = [](void* user, quor_object, quor_object control) {
        RecordingPlatform::Of(user).Note("changed " + NameOf(control));
    };
    functions.focus_moved = [](void* user, quor_object, quor_object control) {
        RecordingPlatform::Of(user).Note("focus " + NameOf(control));
    };
    functions.dialog_hidden = [](void* user, quor_object) { RecordingPlatform::Of(user).Note("hidden"); };
    RecordingPlatform host;
    EXPECT_TRUE(Edit(
        host, QUOR_CONV_WT90,
        [](RecordingPlatform& platform, quor_object dialog) {
            EXPECT_EQ(quor_dialog_Activate(dialog), 0);
            platform.events.clear();
            Type(dialog, "txtRTPW", "2");
            EXPECT_EQ(quor_dialog_PressTab(dialog, 0), 0);
            Click(dialog, "cmdOKCancelHelp(0)");
            return 0;
        },
        functions));
    EXPECT_EQ(host.events, (std::vector<std::string>{"changed txtRTPW", "changed txtRTPW",
                                                     "focus cmdOKCancelHelp(0)", "hidden"}));
}

TEST_F(HostDialog, KeepsItsPlaceInTheRegistry) {
    RecordingPlatform host;
    host.runDialog = [](RecordingPlatform& platform, quor_object dialog) {
        std::int16_t known = 0;
        std::int32_t left = 0;
        EXPECT_EQ(quor_dialog_get_HasPlace(dialog, &known), 0);
        EXPECT_EQ(quor_dialog_get_Left(dialog, &left), 0);
        platform.Note(known == 0 ? "nowhere" : "at " + std::to_string(left));
        return quor_dialog_SetPlace(dialog, 40, -7);
    };
    MapRegistry registry;
    const Handle platform = host.Make();
    Handle pt100;
    ASSERT_EQ(quor_pt100_create(platform, &pt100), 0);
    Handle handed = registry.Make();
    ASSERT_EQ(quor_pt100_SetRegistry(pt100, &handed), 0);
    EXPECT_EQ(quor_pt100_Edit(pt100, nullptr), 0);
    EXPECT_EQ(quor_pt100_Edit(pt100, nullptr), 0);
    EXPECT_EQ(host.events, (std::vector<std::string>{"nowhere", "at 40"}));
}

TEST_F(HostDialog, TakesWhatIsPastedAndTellsWhatWouldBeStored) {
    RecordingPlatform host;
    EXPECT_FALSE(Edit(host, QUOR_CONV_PT100R0, [](RecordingPlatform&, quor_object dialog) {
        const Handle box = Find(dialog, "txtCoefficients(0)");
        const auto advice = [&] {
            quor_text text{};
            EXPECT_EQ(quor_control_get_Advice(box, &text), 0);
            return Taken(text);
        };
        EXPECT_EQ(quor_dialog_Activate(dialog), 0);
        EXPECT_EQ(quor_dialog_Paste(dialog, box, Text("100.0123 ohm")), 0);
        EXPECT_EQ(TextOf(dialog, "txtCoefficients(0)"), "100.0123");
        EXPECT_EQ(advice(), "");
        EXPECT_EQ(quor_dialog_EditText(dialog, box, Text("x"), 1, 0), 0);
        EXPECT_EQ(advice(), "Not a number: 0 would be stored");
        Handle advised, help;
        EXPECT_EQ(quor_dialog_get_AdvisedBox(dialog, &advised), 0);
        EXPECT_EQ(advised, box);
        EXPECT_EQ(quor_dialog_get_HelpButton(dialog, &help), 0);
        EXPECT_EQ(NameOf(help), "cmdOKCancelHelp(2)");
        EXPECT_EQ(quor_dialog_Help(dialog), 0);
        EXPECT_EQ(quor_dialog_Paste(dialog, help, Text("1")), QUOR_ERROR_TYPE);
        return quor_dialog_Escape(dialog);
    }));
    EXPECT_EQ(host.events, (std::vector<std::string>{"pointer 11", "help  1 10145", "pointer 0"}));
}
