// What all lists of coefficients do alike when they are read.

#include "QuorConversions/core/SettingsObject.h"
#include "tests/support/Messages.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"

using namespace QuorConversions;
using Support::MessageTexts;
using Lines = std::vector<std::wstring>;

namespace {

/// A class with a greatest index, and the code of the type that has it.
struct LimitedClass {
    EQuorConversionType code;
    const wchar_t* className;
    std::int16_t limit;
    const wchar_t* codeKey; ///< the integer that its record has besides the count; null for none
    std::int16_t codeValue;
};

constexpr LimitedClass limitedClasses[] = {
    {CONV_IPTS68, L"CQuorIPTS68", 5, L"IPTS-68 scale", 0},
    {CONV_HTPRT, L"CQuorHTPRT", 3, nullptr, 0},
    {CONV_THERMISTORT_R, L"CQuorThermistor", 4, L"ConvType", 0},
    {CONV_TCPOLYNOMIAL, L"CQuorTCPolynomial", 16, nullptr, 0},
    {CONV_TCTYPEPOLY, L"CQuorTCTypePoly", 4, L"TCType", 2},
};

void PrintTo(const LimitedClass& limited, std::ostream* out) { *out << Support::Narrow(limited.className); }

class LimitedCoefficientsTest : public testing::TestWithParam<LimitedClass> {
protected:
    /// A record that says `count` and has as many coefficients: 1.0, 2.0 and so on.
    void FillFile(std::int16_t count) const {
        if (GetParam().codeKey)
            memory->Set(L"Probe", GetParam().codeKey, GetParam().codeValue);
        memory->Set(L"Probe", L"mV(25C)", 0.0);
        memory->Set(L"Probe", L"NumCoefficients", count);
        for (int i = 0; i < count; ++i)
            memory->Set(L"Probe", L"Coefficients" + std::to_wstring(i), i + 1.0);
    }
    bool Read() {
        memory->operations.clear();
        return settings->ReadFromFile(ini, L"", L"Probe");
    }

    std::shared_ptr<Support::ScriptedPlatform> platform = std::make_shared<Support::ScriptedPlatform>();
    std::shared_ptr<SettingsObject> settings =
        Support::NewSettings<SettingsObject>(GetParam().code, platform);
    std::shared_ptr<Support::MemoryIniFile> memory = std::make_shared<Support::MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    const Lines refusal{Support::ErrorReport(Support::readingSettings, Support::indexOutOfRange,
                                             L"Index out of range", GetParam().className)};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Every, LimitedCoefficientsTest, testing::ValuesIn(limitedClasses),
                         [](const auto& test) { return Support::Narrow(test.param.className); });

TEST_P(LimitedCoefficientsTest, AreAskedForUpToTheOneThatIsRefused) {
    const std::int16_t limit = GetParam().limit;
    FillFile(static_cast<std::int16_t>(limit + 2));
    EXPECT_FALSE(Read());
    EXPECT_EQ(memory->operations.back(), L"ReadDouble Coefficients" + std::to_wstring(limit));
    EXPECT_EQ(MessageTexts(*platform), refusal);
}

TEST_P(LimitedCoefficientsTest, AreRefusedAlsoWhereTheKeyOfTheRefusedOneIsMissing) {
    const std::int16_t limit = GetParam().limit;
    FillFile(static_cast<std::int16_t>(limit + 1));
    memory->Remove(L"Probe", L"Coefficients" + std::to_wstring(limit));
    EXPECT_FALSE(Read());
    EXPECT_EQ(memory->operations.back(), L"ReadDouble Coefficients" + std::to_wstring(limit));
    EXPECT_EQ(MessageTexts(*platform), refusal);
}

TEST_P(LimitedCoefficientsTest, TellOfAFileThatFailsAtTheKeyOfTheOneThatTheyWouldRefuse) {
    const std::int16_t limit = GetParam().limit;
    FillFile(limit);
    EXPECT_TRUE(Read());
    const std::size_t operations = memory->operations.size();
    FillFile(static_cast<std::int16_t>(limit + 1));
    memory->failAt = operations;
    EXPECT_FALSE(Read());
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{Support::ErrorReport(Support::readingSettings, 57, L"Device I/O error: memory",
                                          L"QuorIniFile")}));
}
