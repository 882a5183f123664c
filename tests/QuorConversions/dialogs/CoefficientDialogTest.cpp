// What the dialogs with a row a coefficient do with an object whose count is another one than usual, as a
// file can leave it.

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorHTPRT.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

template <EQuorConversionType code, class SettingsClass, std::size_t rowCount>
struct Row {
    using Object = SettingsClass;
    static constexpr EQuorConversionType type = code;
    static constexpr std::size_t rows = rowCount;
};

using Dialogs =
    testing::Types<Row<CONV_CVD, CQuorCVD, 4>, Row<CONV_PT100R0, CQuorPT100, 1>,
                   Row<CONV_HTPRT, CQuorHTPRT, 3>, Row<CONV_IPTS68, CQuorIPTS68, 5>,
                   Row<CONV_THERMISTORT_R, CQuorThermistor, 4>, Row<CONV_TCPOLYNOMIAL, CQuorTCPolynomial, 16>,
                   Row<CONV_TCTYPEPOLY, CQuorTCTypePoly, 4>>;

template <class D>
class CoefficientDialogTest : public DialogTest<typename D::Object> {
protected:
    CoefficientDialogTest() : DialogTest<typename D::Object>(D::type) {
        if constexpr (D::type == CONV_TCTYPEPOLY)
            this->settings->SetTCType(TCTYPE_K);
    }

    /// The object as a file with that count leaves it: coefficients 1, 2, 3 and so on. Where the class has no
    /// such index or no such count, the reading tells so.
    void Load(int count) {
        const auto file = std::make_shared<MemoryIniFile>();
        std::shared_ptr<QuorIniFile::INIFile> ini = file;
        this->settings->WriteToFile(ini, L"", L"Probe");
        file->Set(L"Probe", L"NumCoefficients", static_cast<std::int16_t>(count));
        for (int i = 0; i < count; ++i)
            file->Set(L"Probe", L"Coefficients" + std::to_wstring(i), i + 1.0);
        constexpr bool takesAnyCount = D::type == CONV_CVD || D::type == CONV_PT100R0;
        if (count < 0 && takesAnyCount)
            this->platform->ExpectMessage(versionMessage);
        else if (count < 0)
            ExpectReport(9, L"Subscript out of range");
        else if (count > static_cast<int>(D::rows) && !takesAnyCount)
            ExpectReport(indexOutOfRange, L"Index out of range");
        (void)this->settings->ReadFromFile(ini, L"", L"Probe");
        ASSERT_EQ(this->settings->NumCoefficients(), count);
        this->settings->SetChanged(false);
    }

private:
    void ExpectReport(std::int32_t number, const wchar_t* description) {
        this->platform->ExpectMessage(
            Scripted::OnOneLine(ErrorReport(readingSettings, number, description, this->Class().className)));
    }
};
TYPED_TEST_SUITE(CoefficientDialogTest, Dialogs);

} // namespace

TYPED_TEST(CoefficientDialogTest, ShowsAndGathersTheRowsThatTheObjectHasAndHidesTheOthers) {
    for (std::size_t count = 1; count <= TypeParam::rows; ++count) {
        SCOPED_TRACE(count);
        this->Load(static_cast<std::int16_t>(count));
        this->EditAndTake([&](Person& person) {
            Texts shown;
            for (std::size_t i = 0; i < count; ++i)
                shown.push_back(std::to_wstring(i + 1));
            EXPECT_EQ(All(person, L"txtCoefficients").size(), TypeParam::rows);
            EXPECT_EQ(Visible(person, L"txtCoefficients"), shown);
            EXPECT_EQ(Visible(person, L"lblCoefficients").size(), count);
            person.Type(Element(L"txtCoefficients", count - 1), L"77");
        });
        EXPECT_EQ(this->settings->Coefficients(static_cast<std::int32_t>(count) - 1), 77.0);
        EXPECT_EQ(this->settings->NumCoefficients(), static_cast<std::int16_t>(count));
        EXPECT_EQ(this->settings->Coefficients(0), count == 1 ? 77.0 : 1.0);
    }
}

TYPED_TEST(CoefficientDialogTest, HidesAllRowsOfAnObjectWithoutCoefficientsAndTakesItByOK) {
    for (const int count : {0, -1, -32768}) {
        SCOPED_TRACE(count);
        this->Load(count);
        this->EditAndTake([](Person& person) {
            EXPECT_EQ(Visible(person, L"txtCoefficients"), Texts{});
            EXPECT_EQ(Visible(person, L"lblCoefficients"), Texts{});
        });
        EXPECT_EQ(this->settings->NumCoefficients(), count);
        EXPECT_FALSE(this->settings->Changed());
    }
}

TYPED_TEST(CoefficientDialogTest, KeepsTheCountOfAnObjectWithMoreCoefficientsThanRows) {
    const auto rows = static_cast<std::int32_t>(TypeParam::rows);
    this->Load(rows + 2);
    this->EditAndTake([&](Person& person) {
        EXPECT_EQ(Visible(person, L"txtCoefficients").size(), TypeParam::rows);
        person.Type(Element(L"txtCoefficients", TypeParam::rows - 1), L"77");
    });
    EXPECT_EQ(this->settings->NumCoefficients(), rows + 2);
    EXPECT_EQ(this->settings->Coefficients(rows - 1), 77.0);
}

TYPED_TEST(CoefficientDialogTest, TakesARowThatIsHiddenForNoZero) {
    this->Load(1);
    this->EditAndTake([](Person&) {}); // where all three or four must not be 0
    EXPECT_EQ(this->settings->Coefficients(0), 1.0);
    EXPECT_FALSE(this->settings->Changed());
}

TYPED_TEST(CoefficientDialogTest, TabsThroughTheShownRowsInTheirOrder) {
    this->Edit([](Person& person) {
        Texts order = TabOrder(person);
        if (order.front() == L"cboTCType")
            order.erase(order.begin());
        Texts expected;
        for (std::size_t i = 0; i < TypeParam::rows; ++i)
            expected.push_back(Element(L"txtCoefficients", i));
        for (const wchar_t* const button : {L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)",
                                            L"cmdOKCancelHelp(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"})
            expected.emplace_back(button);
        EXPECT_EQ(order, expected);
        person.Click(L"Cancel");
    });
}

TYPED_TEST(CoefficientDialogTest, EnablesNothingButCancelAndHelpWhereNothingMayBeEdited) {
    this->settings->SetAllowEdit(false);
    this->Look([](const Person& person) {
        EXPECT_EQ(EnabledControls(person), (Texts{L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)"}));
    });
}
