// What all twelve dialogs do alike.

#include "QuorConversions/controls/ControlNames.h"
#include "QuorConversions/core/NumberFromPaste.h"
#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/polynomial/CQuorPolynomial.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorHTPRT.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorConversions/rtd/CQuorWT90.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/DecimalSeparator.h"
#include "tests/support/Messages.h"
#include "tests/support/Objects.h"
#include "tests/support/TestedScreen.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <iterator>
#include <limits>
#include <map>
#include <random>
#include <stdexcept>

using namespace QuorConversions;
using QuorConversions::Scripted::Person;
using QuorConversions::Scripted::ScriptedPlatform;
using Support::ErrorReport;
using Support::MemoryIniFile;
using Support::MessageTexts;

namespace {

using Texts = std::vector<std::wstring>;
using Values = decltype(MemoryIniFile::values);

constexpr const wchar_t* section = L"Probe";
constexpr const wchar_t* gathering = L"attempting to gather settings";
constexpr const wchar_t* editing = L"attempting to edit the conversion settings";

/// Makes an object one that validation refuses.
using Spoil = void (*)(SettingsObject&);

/// What is known of a dialog from outside.
struct DialogCase {
    const wchar_t* name;
    EQuorConversionType code;
    std::int32_t helpContext;
    const wchar_t* title;
    const wchar_t* frameCaption;
    const wchar_t* box;                                 ///< the first value box
    const wchar_t* key;                                 ///< its value in a file
    void (*setFormat)(SettingsObject&, const wchar_t*); ///< of that box
    const wchar_t* otherBox;                            ///< a later one; null when there is none
    Spoil spoil;                                        ///< null where every object is taken
    const wchar_t* message;
    const wchar_t* faulty; ///< what gets the focus then
    bool spoiltByZero;     ///< in the first box
};

template <class T>
void FormatOfIndex0(SettingsObject& settings, const wchar_t* format) {
    dynamic_cast<T&>(settings).SetValueFormat(0, format);
}
template <class T>
void FormatOfAll(SettingsObject& settings, const wchar_t* format) {
    dynamic_cast<T&>(settings).SetValueFormat(format);
}
template <class T>
void FormatOfRTPW(SettingsObject& settings, const wchar_t* format) {
    dynamic_cast<T&>(settings).SetRTPWFormat(format);
}
template <class T>
void FormatOfTemperatures(SettingsObject& settings, const wchar_t* format) {
    dynamic_cast<T&>(settings).SetTempFormat(format);
}
template <class T>
void NoFirstCoefficient(SettingsObject& settings) {
    dynamic_cast<T&>(settings).SetCoefficients(0, 0);
}
template <class T>
void NoRTPW(SettingsObject& settings) {
    dynamic_cast<T&>(settings).SetRTPW(0);
}
template <class T>
void NoTCType(SettingsObject& settings) {
    dynamic_cast<T&>(settings).SetTCType(TCTYPE_NONE);
}

constexpr const wchar_t* enterCoefficients = L"Enter valid values for all coefficients.";
constexpr const wchar_t* enterRTPW = L"Enter a valid RTPW value.";
constexpr const wchar_t* selectType = L"Select a valid thermocouple type.";

const DialogCase dialogs[] = {
    {L"frmCVDSettings", CONV_CVD, 10100, L"Callendar-Van Dusen Settings", L"Callendar-Van Dusen:",
     L"txtCoefficients(0)", L"Coefficients0", FormatOfIndex0<CQuorCVD>, L"txtCoefficients(1)",
     NoFirstCoefficient<CQuorCVD>, enterCoefficients, L"txtCoefficients(0)", true},
    {L"frmITS90Settings", CONV_ITS90, 10110, L"ITS-90 Settings", L"ITS-90:", L"txtRTPW", L"RTPW",
     FormatOfRTPW<CQuorITS90>, L"txtLowCoefficient(0)", NoRTPW<CQuorITS90>, enterRTPW, L"txtRTPW", true},
    {L"frmIPTS68Settings", CONV_IPTS68, 10111, L"IPTS-68 Settings", L"IPTS-68:", L"txtCoefficients(0)",
     L"Coefficients0", FormatOfIndex0<CQuorIPTS68>, L"txtCoefficients(1)", NoFirstCoefficient<CQuorIPTS68>,
     enterCoefficients, L"txtCoefficients(0)", true},
    {L"frmPolynomialSettings", CONV_POLYNOMIAL, 10112, L"Polynomial Settings", L"Polynomial:",
     L"txtCoefficients(0)", L"Coefficients0", FormatOfAll<CQuorPolynomial>, L"txtCoefficients(1)", nullptr,
     nullptr, nullptr, false},
    {L"frmHTPRTSettings", CONV_HTPRT, 10113, L"High Temperature PRT Settings", L"High Temperature PRT:",
     L"txtCoefficients(0)", L"Coefficients0", FormatOfIndex0<CQuorHTPRT>, L"txtCoefficients(1)",
     NoFirstCoefficient<CQuorHTPRT>, enterCoefficients, L"txtCoefficients(0)", true},
    {L"frmThermistorSettings", CONV_THERMISTORT_R, 10114, L"Thermistor T(R) Settings", L"Thermistor T(R):",
     L"txtCoefficients(0)", L"Coefficients0", FormatOfAll<CQuorThermistor>, L"txtCoefficients(1)", nullptr,
     nullptr, nullptr, false},
    {L"frmTCPolynomialSettings", CONV_TCPOLYNOMIAL, 10115, L"TC Polynomial Settings", L"TC Polynomial:",
     L"txtCoefficients(0)", L"Coefficients0", FormatOfAll<CQuorTCPolynomial>, L"txtCoefficients(1)", nullptr,
     nullptr, nullptr, false},
    {L"frmTCTableSettings", CONV_TCTABLE, 10116, L"TC Table Settings", L"TC Table:", L"txtTemperature(0)",
     L"Temperatures0", FormatOfTemperatures<CQuorTCTable>, L"txtVoltage(0)", nullptr, nullptr, nullptr,
     false},
    {L"frmTCTypeXSettings", CONV_TCTYPEX, 10117, L"TC Type K Settings", L"TC Type K:", L"txtTemperature(0)",
     L"Temperatures0", FormatOfTemperatures<CQuorTCTypeX>, L"txtOffset(0)", NoTCType<CQuorTCTypeX>,
     selectType, L"cboTCType", false},
    {L"frmWT90Settings", CONV_WT90, 10118, L"W(T90) Settings", L"W(T90):", L"txtRTPW", L"RTPW",
     FormatOfRTPW<CQuorWT90>, nullptr, NoRTPW<CQuorWT90>, enterRTPW, L"txtRTPW", true},
    {L"frmPT100Settings", CONV_PT100R0, 10145, L"PT100 Settings", L"PT100:", L"txtCoefficients(0)",
     L"Coefficients0", FormatOfIndex0<CQuorPT100>, nullptr, nullptr, nullptr, nullptr, false},
    {L"frmTCTypePolySettings", CONV_TCTYPEPOLY, 10146, L"TC Type E Settings", L"TC Type E:",
     L"txtCoefficients(0)", L"Coefficients0", FormatOfAll<CQuorTCTypePoly>, L"txtCoefficients(1)",
     NoTCType<CQuorTCTypePoly>, selectType, L"cboTCType", false},
};

std::string PlainName(const DialogCase& dialog) {
    const std::wstring name = dialog.name;
    std::string plain;
    for (const wchar_t character : name)
        plain += static_cast<char>(character);
    return plain;
}

void PrintTo(const DialogCase& dialog, std::ostream* out) { *out << PlainName(dialog); }

/// A scripted screen whose dialog a test can also follow, and speak to, as a toolkit does.
class TestScreen : public ScriptedPlatform {
public:
    TestScreen() : ScriptedPlatform(Support::TestedScreen()) {}

    Dialog* dialog = nullptr;
    DialogInput* input = nullptr;
    std::function<void()> beforeActivation;

    void RunDialog(Dialog& shown, DialogInput& userInput) override {
        dialog = &shown;
        input = &userInput;
        if (beforeActivation)
            beforeActivation();
        ScriptedPlatform::RunDialog(shown, userInput);
    }
    /// Puts a text into a box as pasting does, past the key filter.
    void Paste(const std::wstring& box, const std::wstring& text) {
        auto& target = dynamic_cast<TextBox&>(*dialog->Find(box));
        input->Focus(target);
        input->Edit(target, text, text.size(), 0);
    }
};

/// Fails once, when the first value is shown.
class FailingListener : public DialogListener {
public:
    bool failed = false;
    void OnControlChanged(const Control& control) override {
        const auto* const box = dynamic_cast<const TextBox*>(&control);
        if (box && !box->Text().empty() && !std::exchange(failed, true))
            throw std::runtime_error("the screen is gone");
    }
    void OnFocusMoved(const Control*) override {}
    void OnTitleChanged() override {}
    void OnHidden() override {}
};

/// A registry that tells what is written, in order.
class PlacementRegistry : public QuorRegistryII::Registry {
public:
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> values;
    Texts written;
    bool fails = false;

    bool ReadValue(std::wstring_view group, std::wstring_view name, std::wstring& value) override {
        if (fails)
            throw std::runtime_error("no registry");
        const auto found = values.find({std::wstring(group), std::wstring(name)});
        if (found == values.end())
            return false;
        value = found->second;
        return true;
    }
    void WriteValue(std::wstring_view group, std::wstring_view name, std::wstring_view value) override {
        if (fails)
            throw std::runtime_error("no registry");
        written.push_back(std::wstring(group) + L"/" + std::wstring(name) + L"=" + std::wstring(value));
    }
};

Values HeldBy(const SettingsObject& settings) {
    const auto memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<QuorIniFile::INIFile> ini = memory;
    settings.WriteToFile(ini, L"", section);
    return memory->values;
}

void Take(SettingsObject& settings, const Values& values) {
    const auto memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<QuorIniFile::INIFile> ini = memory;
    memory->values = values;
    ASSERT_TRUE(settings.ReadFromFile(ini, L"", section));
}

/// Every double of `values` becomes what `next` gives.
void Replace(Values& values, const std::function<double()>& next) {
    for (auto& [place, value] : values)
        if (std::holds_alternative<double>(value))
            value = next();
}

class SettingsDialogTest : public testing::TestWithParam<DialogCase> {
protected:
    Support::FreshDecimalSeparator fresh;
    std::shared_ptr<TestScreen> platform = std::make_shared<TestScreen>();
    std::shared_ptr<SettingsObject> settings = Acceptable();
    std::shared_ptr<MemoryIniFile> file = std::make_shared<MemoryIniFile>();

    /// An unchanged object that validation takes, with 1.5, 2.5, 3.5 and so on in the order of its keys.
    [[nodiscard]] std::shared_ptr<SettingsObject> Acceptable() {
        auto object = Support::NewSettings<SettingsObject>(GetParam().code, platform);
        if (const auto its90 = std::dynamic_pointer_cast<CQuorITS90>(object)) {
            its90->LowRange()->SetRange(ITS90_RANGE_1);
            its90->HighRange()->SetRange(ITS90_RANGE_6);
        }
        Values values = HeldBy(*object);
        Replace(values, [value = 0.5]() mutable { return ++value; });
        Take(*object, values);
        object->SetChanged(false);
        return object;
    }
    /// The value behind the first box.
    [[nodiscard]] double Value() const {
        return std::get<double>(HeldBy(*settings).at({section, GetParam().key}));
    }
    void SetFormat(const wchar_t* format) { GetParam().setFormat(*settings, format); }
    /// The next file that is opened holds the values of `other`, and the next one that is saved is kept.
    void SupplyFile(const SettingsObject& other) {
        std::shared_ptr<QuorIniFile::INIFile> ini = file;
        other.WriteToFile(ini, L"", settings->SectionName());
        file->operations.clear();
        platform->MakeIniFilesWith([this] { return file; });
    }
    /// An object like the test's, with `value` behind the first box.
    [[nodiscard]] std::shared_ptr<SettingsObject> ObjectWith(double value) {
        auto other = Acceptable();
        Values values = HeldBy(*other);
        values.at({section, GetParam().key}) = value;
        Take(*other, values);
        return other;
    }
    bool EditWith(std::function<void(Person&)> action) {
        platform->InDialog(std::move(action));
        return settings->Edit();
    }
    [[nodiscard]] const TextBox& Box(const wchar_t* name) const {
        return dynamic_cast<const TextBox&>(*platform->dialog->Find(name));
    }
    void ExpectNothingUnforeseen() const {
        EXPECT_TRUE(platform->NothingLeft()) << testing::PrintToString(platform->Complaints());
    }
    void TearDown() override { ExpectNothingUnforeseen(); }
};

/// The dialogs that do not take every object.
class RefusingDialogTest : public SettingsDialogTest {};

std::vector<DialogCase> RefusingDialogs() {
    std::vector<DialogCase> refusing;
    std::copy_if(std::begin(dialogs), std::end(dialogs), std::back_inserter(refusing),
                 [](const DialogCase& dialog) { return dialog.spoil != nullptr; });
    return refusing;
}

/// Types over the box and leaves by OK.
std::function<void(Person&)> TypeAndOK(const wchar_t* box, const wchar_t* text) {
    return [box, text](Person& person) {
        person.Type(box, text);
        person.Click(L"OK");
    };
}

} // namespace

// What it shows

TEST_P(SettingsDialogTest, HasItsNameTitleFrameCaptionAndHelpContext) {
    EXPECT_TRUE(EditWith([](Person& person) {
        EXPECT_EQ(person.Sees().Name(), GetParam().name);
        EXPECT_EQ(person.Sees().Title(), GetParam().title);
        EXPECT_EQ(person.Reads(L"framSettings"), GetParam().frameCaption);
        EXPECT_EQ(person.Sees().HelpContext(), GetParam().helpContext);
        person.Click(L"OK");
    }));
}

TEST_P(SettingsDialogTest, HasTheButtonsOfAllDialogs) {
    const std::pair<const wchar_t*, const wchar_t*> buttons[] = {{L"cmdOKCancelHelp(0)", L"&OK"},
                                                                 {L"cmdOKCancelHelp(1)", L"&Cancel"},
                                                                 {L"cmdOKCancelHelp(2)", L"&Help"},
                                                                 {L"cmdOpenSaveAs(0)", L"O&pen"},
                                                                 {L"cmdOpenSaveAs(1)", L"Save &As"}};
    EXPECT_TRUE(EditWith([&](Person& person) {
        for (const auto& [name, caption] : buttons) {
            EXPECT_EQ(person.Reads(name), caption);
            EXPECT_TRUE(person.Sees().Find(name)->IsUsable()) << caption;
        }
        person.Click(L"OK");
    }));
}

TEST_P(SettingsDialogTest, ShowsAValueInTheFormatOfItsField) {
    SetFormat(L"0.000");
    settings = ObjectWith(1.0625);
    SetFormat(L"0.000");
    EXPECT_TRUE(EditWith([](Person& person) {
        EXPECT_EQ(person.Reads(GetParam().box), L"1.063");
        person.Click(L"OK");
    }));
    EXPECT_EQ(Value(), 1.063) << "what is shown is what is stored";
}

TEST_P(SettingsDialogTest, ShowsTheShortestTextWithoutAFormat) {
    settings = ObjectWith(-1.5e-7);
    EXPECT_FALSE(EditWith([](Person& person) {
        EXPECT_EQ(person.Reads(GetParam().box), L"-1.5E-07");
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, IsLoadedOnceHoweverOftenItIsActivated) {
    EXPECT_FALSE(EditWith([this](Person& person) {
        person.Type(GetParam().box, L"7");
        platform->input->Activate();
        EXPECT_EQ(person.Reads(GetParam().box), L"7");
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, SelectsTheTextOfTheBoxThatHasTheFocusAtFirst) {
    EXPECT_FALSE(EditWith([](Person& person) {
        const Control* const focused = person.Sees().ActiveControl();
        ASSERT_NE(focused, nullptr);
        EXPECT_TRUE(focused->IsUsable());
        if (const auto* const box = dynamic_cast<const TextBox*>(focused)) {
            EXPECT_FALSE(box->Text().empty());
            EXPECT_EQ(box->SelLength(), box->Text().size());
        }
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, CallsTheHelpEngineWithItsTopicAndStaysOpen) {
    SetHelpFile(L"quor.hlp");
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Click(L"Help");
        EXPECT_TRUE(person.Sees().IsOpen());
        person.Click(L"Cancel");
    }));
    SetHelpFile(L"");
    ASSERT_EQ(platform->HelpCalls().size(), 1U);
    EXPECT_EQ(platform->HelpCalls()[0].helpFile, L"quor.hlp");
    EXPECT_EQ(platform->HelpCalls()[0].command, 1U);
    EXPECT_EQ(platform->HelpCalls()[0].data, GetParam().helpContext);
}

// The ways out

TEST_P(SettingsDialogTest, OKStoresWhatWasTyped) {
    EXPECT_TRUE(EditWith(TypeAndOK(GetParam().box, L"-100.0123")));
    EXPECT_EQ(Value(), -100.0123);
    EXPECT_TRUE(settings->Changed());
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_P(SettingsDialogTest, OKOnUntouchedValuesIsNoChange) {
    const Values before = HeldBy(*settings);
    EXPECT_TRUE(EditWith([](Person& person) { person.Click(L"OK"); }));
    EXPECT_EQ(HeldBy(*settings), before);
    EXPECT_FALSE(settings->Changed());
}

TEST_P(SettingsDialogTest, CancelStoresNothing) {
    const Values before = HeldBy(*settings);
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(HeldBy(*settings), before);
    EXPECT_FALSE(settings->Changed());
}

TEST_P(SettingsDialogTest, EscapeIsCancel) {
    const Values before = HeldBy(*settings);
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Escape();
        EXPECT_FALSE(person.Sees().IsOpen());
    }));
    EXPECT_EQ(HeldBy(*settings), before);
}

TEST_P(SettingsDialogTest, ClosingTheFrameStoresNothingAndIsNotCancel) {
    const Values before = HeldBy(*settings);
    EXPECT_TRUE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Close();
        EXPECT_FALSE(person.Sees().IsOpen());
    }));
    EXPECT_EQ(HeldBy(*settings), before);
    EXPECT_FALSE(settings->Changed());
}

TEST_P(RefusingDialogTest, RefusesWithItsMessageAndGoesToTheFault) {
    GetParam().spoil(*settings);
    EXPECT_FALSE(EditWith([this](Person& person) {
        person.Click(L"OK");
        EXPECT_EQ(person.Focused(), GetParam().faulty);
        EXPECT_TRUE(person.Sees().IsOpen());
        EXPECT_EQ(platform->Messages().size(), 1U);
        person.Click(L"Cancel");
    }));
    ASSERT_EQ(platform->Messages().size(), 1U);
    const MessageRequest& message = platform->Messages()[0];
    EXPECT_EQ(message.text, GetParam().message);
    EXPECT_EQ(message.title, L"Quor Scientific");
    EXPECT_EQ(message.icon, ICON_INFORMATION);
    EXPECT_EQ(message.helpFile, L"");
}

TEST_P(RefusingDialogTest, IsLeftByOKOnceTheFaultIsMended) {
    GetParam().spoil(*settings);
    EXPECT_TRUE(EditWith([](Person& person) {
        person.Click(L"OK");
        if (GetParam().spoiltByZero)
            person.Type(GetParam().faulty, L"100");
        else
            person.Choose(L"Type", L"J");
        person.Click(L"OK");
    }));
    EXPECT_EQ(MessageTexts(*platform), Texts{GetParam().message});
}

TEST_P(SettingsDialogTest, TakesATextThatIsNoNumberAs0) {
    const bool refused = GetParam().spoiltByZero;
    EXPECT_EQ(EditWith([this](Person& person) {
                  platform->Paste(GetParam().box, L"abc");
                  person.Click(L"OK");
                  if (person.Sees().IsOpen()) {
                      EXPECT_EQ(person.Reads(GetParam().box), L"abc") << "it stays as typed";
                      EXPECT_EQ(person.Focused(), GetParam().box);
                      person.Click(L"Cancel");
                  }
              }),
              !refused);
    EXPECT_EQ(Value(), 0.0) << "also when the dialog was left by Cancel in the end";
    EXPECT_EQ(MessageTexts(*platform), refused ? Texts{GetParam().message} : Texts{});
}

TEST_P(SettingsDialogTest, ReportsANumberThatIsTooLargeAndRollsNothingBack) {
    const wchar_t* const tooLarge = GetParam().otherBox ? GetParam().otherBox : GetParam().box;
    EXPECT_TRUE(EditWith([&](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Type(tooLarge, L"1e999");
        person.Click(L"OK");
        EXPECT_TRUE(person.Sees().IsOpen());
        EXPECT_EQ(person.Reads(tooLarge), L"1e999");
        if (GetParam().otherBox) {
            EXPECT_EQ(Value(), 7.0);
        }
        person.Type(tooLarge, L"8");
        person.Click(L"OK");
    }));
    EXPECT_EQ(MessageTexts(*platform), Texts{ErrorReport(gathering, 6, L"Overflow", L"QuorConversions")});
    ASSERT_EQ(platform->Messages().size(), 1U);
    EXPECT_EQ(platform->Messages()[0].title, L"Quor Scientific");
    EXPECT_EQ(platform->Messages()[0].icon, ICON_CRITICAL);
}

TEST_P(SettingsDialogTest, ReportsAnErrorOfLoadingAndCanStillBeLeft) {
    FailingListener listener;
    platform->beforeActivation = [&] { platform->dialog->SetListener(&listener); };
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Click(L"Help");
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(MessageTexts(*platform), Texts{ErrorReport(editing, QuorIniFile::ERR_UNEXPECTED,
                                                         L"the screen is gone", GetParam().name)});
    EXPECT_EQ(platform->HelpCalls().size(), 1U);
}

// Reading only

TEST_P(SettingsDialogTest, CanOnlyBeReadWhereEditingIsNotAllowed) {
    settings->SetAllowEdit(false);
    EXPECT_FALSE(EditWith([this](Person& person) {
        for (const auto& control : person.Sees().Controls()) {
            const bool isAlwaysUsable =
                control->Name() == L"cmdOKCancelHelp(1)" || control->Name() == L"cmdOKCancelHelp(2)";
            const bool isEdited = control->Kind() == ControlKind::TextBox ||
                                  control->Kind() == ControlKind::DropDownList ||
                                  control->Kind() == ControlKind::PushButton;
            if (isEdited && control->IsShown()) {
                EXPECT_EQ(control->Enabled(), isAlwaysUsable) << testing::PrintToString(control->Name());
            }
            if (control->Kind() == ControlKind::Label && control->IsShown() &&
                control->Name() != L"lblRange5Coefs") {
                EXPECT_FALSE(control->Enabled()) << testing::PrintToString(control->Name());
            }
        }
        EXPECT_TRUE(person.Focused().starts_with(L"cmdOKCancelHelp") || person.Focused() == L"tabRange")
            << testing::PrintToString(person.Focused());
        platform->Paste(GetParam().box, L"7");
        EXPECT_EQ(Box(GetParam().box).Text(), person.Reads(GetParam().box));
        EXPECT_NE(person.Reads(GetParam().box), L"7");
        person.Click(L"Help");
        person.Click(L"Cancel");
    }));
    EXPECT_FALSE(settings->Changed());
}

TEST_P(SettingsDialogTest, DoesNothingOnAClickOnADisabledButton) {
    settings->SetAllowEdit(false);
    EXPECT_FALSE(EditWith([this](Person& person) {
        for (const wchar_t* const button : {L"cmdOKCancelHelp(0)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"})
            platform->input->Click(dynamic_cast<PushButton&>(*platform->dialog->Find(button)));
        EXPECT_TRUE(person.Sees().IsOpen());
        person.Escape();
    }));
    EXPECT_TRUE(platform->FileRequests().empty());
}

// Open and Save As

TEST_P(SettingsDialogTest, OpenShowsTheValuesOfTheFileAndOKKeepsThem) {
    SupplyFile(*ObjectWith(42.25));
    platform->ChooseFile(L"C:\\a.x");
    std::int32_t window = 0;
    EXPECT_TRUE(EditWith([&](Person& person) {
        window = person.Sees().WindowHandle();
        person.Type(GetParam().box, L"7");
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(GetParam().box), L"42.25");
        person.Click(L"OK");
    }));
    EXPECT_EQ(Value(), 42.25);
    ASSERT_EQ(platform->FileRequests().size(), 1U);
    EXPECT_EQ(platform->FileRequests()[0].kind, FileDialogKind::Open);
    EXPECT_EQ(platform->FileRequests()[0].fileName, L"*." + settings->FileExtension());
    EXPECT_NE(window, 0);
    EXPECT_EQ(platform->FileRequests()[0].owner, window);
}

TEST_P(SettingsDialogTest, CancelKeepsTheValuesOfTheFileThatWasOpened) {
    SupplyFile(*ObjectWith(42.25));
    platform->ChooseFile(L"C:\\a.x");
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Click(L"Open");
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(Value(), 42.25);
}

TEST_P(SettingsDialogTest, KeepsWhatWasTypedWhenNoFileIsChosen) {
    platform->CancelFile();
    EXPECT_TRUE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(GetParam().box), L"7");
        person.Click(L"OK");
    }));
    EXPECT_EQ(Value(), 7.0);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_P(SettingsDialogTest, ShowsWhatTheObjectHoldsAfterAFileThatLacksAKey) {
    SupplyFile(*ObjectWith(42.25));
    file->Remove(settings->SectionName(), GetParam().key);
    platform->ChooseFile(L"C:\\a.x");
    const double own = Value();
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Click(L"Open");
        EXPECT_NE(person.Reads(GetParam().box), L"7") << "the controls are loaded again";
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(Value(), own);
    EXPECT_EQ(MessageTexts(*platform), Texts{Support::versionMessage});
}

TEST_P(SettingsDialogTest, SaveAsStoresAndWritesWhatWasTypedAndStaysOpen) {
    SupplyFile(*settings);
    platform->ChooseFile(L"C:\\a.x");
    std::int32_t window = 0;
    EXPECT_FALSE(EditWith([&](Person& person) {
        window = person.Sees().WindowHandle();
        person.Type(GetParam().box, L"7");
        person.Click(L"Save As");
        EXPECT_TRUE(person.Sees().IsOpen());
        EXPECT_EQ(file->Double(settings->SectionName(), GetParam().key), 7.0);
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(Value(), 7.0) << "Cancel takes nothing back";
    EXPECT_TRUE(settings->Changed()) << "no save clears the flag";
    ASSERT_EQ(platform->FileRequests().size(), 1U);
    EXPECT_EQ(platform->FileRequests()[0].kind, FileDialogKind::Save);
    EXPECT_NE(window, 0);
    EXPECT_EQ(platform->FileRequests()[0].owner, window);
    EXPECT_EQ(platform->FileRequests()[0].fileName, L"*." + settings->FileExtension());
}

TEST_P(SettingsDialogTest, SaveAsStoresWhatWasTypedAlsoWhenNoFileIsChosen) {
    platform->CancelFile();
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"7");
        person.Click(L"Save As");
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(Value(), 7.0);
}

TEST_P(RefusingDialogTest, SaveAsAsksForNoFileWhileValuesAreRefused) {
    GetParam().spoil(*settings);
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Click(L"Save As");
        EXPECT_EQ(person.Focused(), GetParam().faulty);
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(MessageTexts(*platform), Texts{GetParam().message});
    EXPECT_TRUE(platform->FileRequests().empty());
}

TEST_P(SettingsDialogTest, SaveAsAsksForNoFileWhenAValueCannotBeStored) {
    EXPECT_FALSE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"1e999");
        person.Click(L"Save As");
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(MessageTexts(*platform), Texts{ErrorReport(gathering, 6, L"Overflow", L"QuorConversions")});
    EXPECT_TRUE(platform->FileRequests().empty());
}

// Value boxes

TEST_P(SettingsDialogTest, EnterMovesOnFromEveryBoxAndNeverPressesOK) {
    EXPECT_FALSE(EditWith([this](Person& person) {
        for (const auto& control : person.Sees().Controls()) {
            if (control->Kind() != ControlKind::TextBox || !control->IsUsable())
                continue;
            person.GoTo(control->Name());
            person.Tab();
            const std::wstring next = person.Focused();
            person.GoTo(control->Name());
            EXPECT_EQ(platform->input->KeyPress(13), 0) << "the key is swallowed";
            EXPECT_EQ(person.Focused(), next);
            EXPECT_NE(person.Focused(), control->Name());
            EXPECT_TRUE(person.Sees().IsOpen());
        }
        person.Click(L"Cancel");
    }));
    EXPECT_FALSE(settings->Changed());
}

TEST_P(SettingsDialogTest, EveryBoxTakesTheKeysOfNumbersOnly) {
    EXPECT_FALSE(EditWith([](Person& person) {
        for (const auto& control : person.Sees().Controls()) {
            if (control->Kind() != ControlKind::TextBox || !control->IsUsable())
                continue;
            person.Type(control->Name(), L"x -1.5,eE+7 km%");
            EXPECT_EQ(person.Reads(control->Name()), L"-1.5eE+7");
        }
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, TakesEachOfItsLabelsForTheNameOfANumber) {
    const auto isNumberOfARow = [](const std::wstring& name) {
        return name.find_first_not_of(L"0123456789") == std::wstring::npos;
    };
    std::size_t labels = 0;
    EditWith([&](Person& person) {
        for (const auto& control : platform->dialog->Controls()) {
            if (control->Kind() != ControlKind::Label)
                continue;
            const std::wstring name = SpokenCaption(static_cast<const Label&>(*control).Caption());
            const bool isNote = control->Name() == L"lblRange5Coefs";
            const bool isUnit = control->Name().find(L"Units") != std::wstring::npos;
            if (name.empty() || isNote || isUnit || isNumberOfARow(name))
                continue;
            ++labels;
            for (const wchar_t* const sign : {L" = ", L"=", L": ", L":"})
                EXPECT_EQ(NumberFromPaste(name + sign + L"-1.5E-4", L".").number, L"-1.5E-4")
                    << testing::PrintToString(name + sign);
        }
        person.Click(L"Cancel");
    });
    EXPECT_GE(labels, 1U);
}

TEST_P(SettingsDialogTest, PastesANumberUnderTheNameOfItsBoxWithoutAWord) {
    EditWith([&](Person& person) {
        std::size_t boxes = 0;
        for (const auto& [control, name, units, label] : ControlNames(person.Sees())) {
            if (control->Kind() != ControlKind::TextBox || !control->IsUsable())
                continue;
            ++boxes;
            person.Paste(name, name + L": 2.5");
            EXPECT_EQ(person.Reads(name), L"2.5") << testing::PrintToString(name);
            EXPECT_EQ(person.Advice(name), L"") << testing::PrintToString(name);
        }
        EXPECT_GE(boxes, 1U);
        person.Click(L"Cancel");
    });
}

TEST_P(SettingsDialogTest, SelectsTheWholeTextOfEveryBoxThatGetsTheFocus) {
    EXPECT_FALSE(EditWith([this](Person& person) {
        for (const auto& control : person.Sees().Controls()) {
            if (control->Kind() != ControlKind::TextBox || !control->IsUsable())
                continue;
            auto& box = dynamic_cast<TextBox&>(*platform->dialog->Find(control->Name()));
            person.GoTo(L"cmdOKCancelHelp(2)");
            box.SetText(L"12345");
            person.GoTo(control->Name());
            EXPECT_EQ(box.SelStart(), 0U);
            EXPECT_EQ(box.SelLength(), 5U);
        }
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, ReformatsANumberWhenItsBoxIsLeft) {
    SetFormat(L"0.00");
    EXPECT_TRUE(EditWith([](Person& person) {
        person.Type(GetParam().box, L"1.005");
        EXPECT_EQ(person.Reads(GetParam().box), L"1.005") << "not before";
        person.Tab();
        EXPECT_EQ(person.Reads(GetParam().box), L"1.01");
        person.Click(L"OK");
    }));
    EXPECT_EQ(Value(), 1.01);
}

TEST_P(SettingsDialogTest, LeavesATextThatIsNotWhollyANumberAsItIs) {
    SetFormat(L"0.00");
    EXPECT_FALSE(EditWith([this](Person& person) {
        for (const wchar_t* const text : {L"", L"1.5e", L"--1", L"1 2", L"abc", L"1e999"}) {
            platform->Paste(GetParam().box, text);
            person.GoTo(L"cmdOKCancelHelp(2)");
            EXPECT_EQ(person.Reads(GetParam().box), text);
        }
        person.Click(L"Cancel");
    }));
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_P(SettingsDialogTest, LeavesEveryTextAsItIsWithoutAFormat) {
    EXPECT_FALSE(EditWith([](Person& person) {
        for (const wchar_t* const text : {L"01.50", L"+1e0", L"1.50000000000000000000001"}) {
            person.Type(GetParam().box, text);
            person.GoTo(L"cmdOKCancelHelp(2)");
            EXPECT_EQ(person.Reads(GetParam().box), text);
        }
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, TakesGeneralNumberForNoFormat) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const wchar_t* const format : {L"General Number", L"GENERAL NUMBER"}) {
        SetFormat(format);
        for (const double value :
             {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, 0.1 + 0.2}) {
            Take(*settings, HeldBy(*ObjectWith(value)));
            settings->SetChanged(false);
            EXPECT_TRUE(EditWith([](Person& person) { person.Click(L"OK"); }));
            EXPECT_TRUE(Value() == value || (std::isnan(Value()) && std::isnan(value))) << Value();
            EXPECT_FALSE(settings->Changed());
        }
        EXPECT_TRUE(EditWith([](Person& person) {
            person.Type(GetParam().box, L"01.50");
            person.GoTo(L"cmdOKCancelHelp(2)");
            EXPECT_EQ(person.Reads(GetParam().box), L"01.50") << "the text stays as typed";
            person.Click(L"OK");
        }));
        EXPECT_EQ(Value(), 1.5);
    }
}

TEST_P(SettingsDialogTest, ShowsAValueThatMayNotBeEditedInItsFormatOnceAlsoWhenItsBoxHadTheFocus) {
    SetFormat(L"0,"); // of what it shows it would make less each time
    Take(*settings, HeldBy(*ObjectWith(1234567.0)));
    settings->SetAllowEdit(false);
    EXPECT_FALSE(EditWith([](Person& person) {
        EXPECT_EQ(person.Reads(GetParam().box), L"1235");
        EXPECT_NE(person.Focused(), GetParam().box);
        person.Click(L"Cancel");
    }));
}

TEST_P(SettingsDialogTest, SpeaksTheUsersDecimalCommaFromTypingToTheStoredDouble) {
    platform->SetDecimalSeparator(L",");
    SetFormat(L"0.0000");
    EXPECT_TRUE(EditWith([](Person& person) {
        EXPECT_NE(person.Reads(GetParam().box).find(L",5000"), std::wstring::npos);
        person.Type(GetParam().box, L"100.0123");
        EXPECT_EQ(person.Reads(GetParam().box), L"100,0123") << "the point key types the comma";
        person.Type(GetParam().box, L"-3,25");
        person.Tab();
        EXPECT_EQ(person.Reads(GetParam().box), L"-3,2500");
        person.Click(L"OK");
    }));
    EXPECT_EQ(Value(), -3.25);
}

// Placement

TEST_P(SettingsDialogTest, OpensWhereItStoodAndRemembersWhereItWasLeft) {
    const auto registry = std::make_shared<PlacementRegistry>();
    registry->values = {{{GetParam().name, L"Left"}, L"-120"}, {{GetParam().name, L"Top"}, L"45"}};
    std::shared_ptr<QuorRegistryII::Registry> reference = registry;
    settings->SetRegistry(reference);
    for (const auto leave : {&Person::Escape, &Person::Close}) {
        registry->written.clear();
        (void)EditWith([leave](Person& person) {
            ASSERT_TRUE(person.Sees().Place().has_value());
            EXPECT_EQ(person.Sees().Place()->left, -120);
            EXPECT_EQ(person.Sees().Place()->top, 45);
            person.MoveTo(300, -7);
            (person.*leave)();
        });
        EXPECT_EQ(registry->written, (Texts{GetParam().name + std::wstring(L"/Left=300"),
                                            GetParam().name + std::wstring(L"/Top=-7")}));
    }
}

TEST_P(SettingsDialogTest, StandsAnywhereWhenTheRegistryHoldsNoPlace) {
    const std::pair<const wchar_t*, const wchar_t*> places[] = {
        {L"", L"1"},      {L"1", L""},    {L"abc", L"1"},         {L"1", L"2x"},
        {L" 1", L"2"},    {L"1.5", L"2"}, {L"99999999999", L"1"}, {L"\u0131\u0132", L"1"},
        {L"1", L"\uFF11"}};
    const auto registry = std::make_shared<PlacementRegistry>();
    std::shared_ptr<QuorRegistryII::Registry> reference = registry;
    settings->SetRegistry(reference);
    for (const auto& [left, top] : places) {
        SCOPED_TRACE(testing::PrintToString(std::pair(std::wstring(left), std::wstring(top))));
        registry->values = {{{GetParam().name, L"Left"}, left}, {{GetParam().name, L"Top"}, top}};
        EXPECT_FALSE(EditWith([](Person& person) {
            EXPECT_FALSE(person.Sees().Place().has_value());
            person.Escape();
        }));
    }
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_TRUE(registry->written.empty());
}

TEST_P(SettingsDialogTest, IsSilentAboutARegistryThatFails) {
    const auto registry = std::make_shared<PlacementRegistry>();
    registry->fails = true;
    std::shared_ptr<QuorRegistryII::Registry> reference = registry;
    settings->SetRegistry(reference);
    EXPECT_TRUE(EditWith([](Person& person) {
        person.MoveTo(1, 2);
        person.Click(L"OK");
    }));
    EXPECT_TRUE(platform->Messages().empty());
}

// Hosts

TEST_P(SettingsDialogTest, CanBeOpenedWhileItIsOpen) {
    EXPECT_TRUE(EditWith([this](Person& outer) {
        outer.Type(GetParam().box, L"7");
        EXPECT_TRUE(EditWith(TypeAndOK(GetParam().box, L"8")));
        EXPECT_EQ(Value(), 8.0);
        EXPECT_EQ(outer.Reads(GetParam().box), L"7");
        outer.Click(L"OK");
    }));
    EXPECT_EQ(Value(), 7.0);
}

TEST_P(SettingsDialogTest, OutlivesAHostThatChangesTheTypeWhileItIsOpen) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(GetParam().code);
    const std::weak_ptr<SettingsObject> object = conversion.Settings();
    platform->InDialog([&](Person& person) {
        conversion.SetConversionType(CONV_OHMS);
        EXPECT_FALSE(object.expired());
        person.Type(GetParam().box, L"7");
        person.Click(L"Cancel");
    });
    EXPECT_FALSE(conversion.Edit());
    EXPECT_TRUE(object.expired());
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_P(SettingsDialogTest, KeepsEveryBitOfAnyObjectWithoutFormats) {
    std::mt19937_64 random(20240229);
    constexpr double special[] = {std::numeric_limits<double>::quiet_NaN(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  -0.0,
                                  std::numeric_limits<double>::denorm_min(),
                                  -std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::min(),
                                  0.1,
                                  123456789012345680.0};
    const auto any = [&] {
        const std::uint64_t bits = random();
        return bits % 3 == 0 ? special[(bits >> 8) % std::size(special)] : std::bit_cast<double>(random());
    };
    const bool needsNonZero = GetParam().spoiltByZero;
    const auto next = [&] {
        double value = any();
        while (needsNonZero && value == 0.0)
            value = any();
        return value;
    };
    const auto bitsOf = [](const Values& values) {
        std::map<std::pair<std::wstring, std::wstring>, std::uint64_t> bits;
        for (const auto& [place, value] : values)
            if (const auto* const number = std::get_if<double>(&value))
                bits[place] = std::bit_cast<std::uint64_t>(*number);
        return bits;
    };
    for (int round = 0; round < 200; ++round) {
        settings = Acceptable();
        Values values = HeldBy(*settings);
        Replace(values, next);
        Take(*settings, values);
        settings->SetChanged(false);
        ASSERT_EQ(bitsOf(HeldBy(*settings)), bitsOf(values)) << "the object holds what it was given";
        ASSERT_TRUE(EditWith([](Person& person) { person.Click(L"OK"); })) << round;
        EXPECT_EQ(bitsOf(HeldBy(*settings)), bitsOf(values)) << round;
        EXPECT_FALSE(settings->Changed()) << round;
    }
    EXPECT_TRUE(platform->Messages().empty());
}

// What a host may do while a dialog is open

namespace {

using Change = void (*)(SettingsObject&);

struct ChangingHost {
    const wchar_t* dialog;
    EQuorConversionType code;
    Change change;
};

template <class T, std::int16_t count>
void Coefficients(SettingsObject& settings) {
    dynamic_cast<T&>(settings).SetNumCoefficients(count);
}
template <class T, std::int16_t count>
void Points(SettingsObject& settings) {
    dynamic_cast<T&>(settings).SetNumPoints(count);
}
/// For the classes whose count only a file can set.
void FileWithOneCoefficient(SettingsObject& settings) {
    Values values = HeldBy(settings);
    values.at({section, L"NumCoefficients"}) = std::int16_t{1};
    Take(settings, values);
}
void NoRanges(SettingsObject& settings) {
    auto& its90 = dynamic_cast<CQuorITS90&>(settings);
    its90.LowRange()->SetRange(ITS90_NORANGE);
    its90.HighRange()->SetRange(ITS90_NORANGE);
}

const ChangingHost hosts[] = {
    {L"CVD1", CONV_CVD, Coefficients<CQuorCVD, 1>},
    {L"CVD0", CONV_CVD, Coefficients<CQuorCVD, 0>},
    {L"CVDNegative", CONV_CVD, Coefficients<CQuorCVD, -1>},
    {L"CVD100", CONV_CVD, Coefficients<CQuorCVD, 100>},
    {L"PT1000", CONV_PT100R0, Coefficients<CQuorPT100, 0>},
    {L"IPTS681", CONV_IPTS68, FileWithOneCoefficient},
    {L"HTPRT1", CONV_HTPRT, FileWithOneCoefficient},
    {L"Thermistor1", CONV_THERMISTORT_R, FileWithOneCoefficient},
    {L"TCPolynomial1", CONV_TCPOLYNOMIAL, Coefficients<CQuorTCPolynomial, 1>},
    {L"TCPolynomial100", CONV_TCPOLYNOMIAL, Coefficients<CQuorTCPolynomial, 100>},
    {L"TCTypePoly1", CONV_TCTYPEPOLY, Coefficients<CQuorTCTypePoly, 1>},
    {L"TCTable1", CONV_TCTABLE, Points<CQuorTCTable, 1>},
    {L"TCTypeX0", CONV_TCTYPEX, Points<CQuorTCTypeX, 0>},
    {L"ITS90None", CONV_ITS90, NoRanges},
};

void PrintTo(const ChangingHost& host, std::ostream* out) {
    for (const wchar_t character : std::wstring(host.dialog))
        *out << static_cast<char>(character);
}

class ChangingHostTest : public testing::TestWithParam<ChangingHost> {
protected:
    Support::FreshDecimalSeparator fresh;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>(Support::TestedScreen());
    std::shared_ptr<SettingsObject> settings =
        Support::NewSettings<SettingsObject>(GetParam().code, platform);

    void SetUp() override {
        if (const auto its90 = std::dynamic_pointer_cast<CQuorITS90>(settings))
            its90->LowRange()->SetRange(ITS90_RANGE_1);
    }
    /// Types into every box, and leaves the last one.
    static void TypeEverywhere(Person& person) {
        for (const auto& control : person.Sees().Controls())
            if (control->Kind() == ControlKind::TextBox && control->IsUsable())
                person.Type(control->Name(), L"7");
        person.GoTo(L"cmdOKCancelHelp(2)");
    }
};

} // namespace

TEST_P(ChangingHostTest, BreaksNothingWhenItChangesTheObjectUnderTheOpenDialog) {
    platform->InDialog([this](Person& person) {
        GetParam().change(*settings);
        TypeEverywhere(person);
        EXPECT_TRUE(platform->Messages().empty()) << "a row that is refused is no matter for a report";
        person.Click(L"OK");
        EXPECT_TRUE(platform->Messages().empty());
        if (person.Sees().IsOpen())
            person.Click(L"Cancel");
    });
    EXPECT_TRUE(settings->Edit());
    EXPECT_TRUE(platform->NothingLeft()) << testing::PrintToString(platform->Complaints());
}

TEST_P(ChangingHostTest, CanOpenAndLeaveTheDialogOfTheChangedObject) {
    GetParam().change(*settings);
    platform->InDialog([this](Person& person) {
        EXPECT_TRUE(platform->Messages().empty());
        TypeEverywhere(person);
        EXPECT_TRUE(platform->Messages().empty());
        person.Click(L"Cancel");
    });
    EXPECT_FALSE(settings->Edit());
    EXPECT_TRUE(platform->NothingLeft()) << testing::PrintToString(platform->Complaints());
}

INSTANTIATE_TEST_SUITE_P(Hosts, ChangingHostTest, testing::ValuesIn(hosts),
                         testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(DialogsThatRefuse, RefusingDialogTest, testing::ValuesIn(RefusingDialogs()),
                         [](const auto& tested) { return PlainName(tested.param); });

INSTANTIATE_TEST_SUITE_P(TwelveDialogs, SettingsDialogTest, testing::ValuesIn(dialogs),
                         [](const auto& tested) { return PlainName(tested.param); });
