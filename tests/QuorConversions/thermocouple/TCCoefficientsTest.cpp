// The coefficients and their count, as both thermocouple classes with a polynomial have them.

#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "tests/support/Records.h"

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Int;
using Support::OnlyMessage;
using Support::Record;
using Support::ScriptedPlatform;

namespace {

struct TCPolynomial {
    using Settings = CQuorTCPolynomial;
    static constexpr EQuorConversionType type = CONV_TCPOLYNOMIAL;
    static constexpr const wchar_t* className = L"CQuorTCPolynomial";
    static constexpr int limit = 16;
    static Record Keys() { return {{L"mV(25C)", 1.5}}; }
};

struct TCTypePoly {
    using Settings = CQuorTCTypePoly;
    static constexpr EQuorConversionType type = CONV_TCTYPEPOLY;
    static constexpr const wchar_t* className = L"CQuorTCTypePoly";
    static constexpr int limit = 4;
    static Record Keys() { return {{L"TCType", Int(TCTYPE_K)}}; }
};

struct Names {
    template <class Case>
    static std::string GetName(int /*index*/) {
        return Case::limit == 16 ? "CQuorTCPolynomial" : "CQuorTCTypePoly";
    }
};

template <class Case>
class TCCoefficientsTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<typename Case::Settings> settings =
        Support::NewSettings<typename Case::Settings>(Case::type, platform);

    /// A record that says `count` and holds `held` coefficients: 1.0, 2.0 and so on.
    static Record Counting(int count, int held) {
        Record record = Case::Keys();
        record[L"NumCoefficients"] = Int(count);
        for (int i = 0; i < held; ++i)
            record[L"Coefficients" + std::to_wstring(i)] = i + 1.0;
        return record;
    }
    void ExpectRefused(std::int32_t index) {
        SCOPED_TRACE(testing::Message() << "index " << index);
        EXPECT_QUOR_ERROR((void)settings->Coefficients(index), indexOutOfRange, Case::className,
                          L"Index out of range");
        EXPECT_QUOR_ERROR(settings->SetCoefficients(index, 1.0), indexOutOfRange, Case::className,
                          L"Index out of range");
    }
};

using Cases = testing::Types<TCPolynomial, TCTypePoly>;
TYPED_TEST_SUITE(TCCoefficientsTest, Cases, Names);

} // namespace

TYPED_TEST(TCCoefficientsTest, AreAllZeroAtFirst) {
    ASSERT_EQ(this->settings->NumCoefficients(), TypeParam::limit);
    for (std::int32_t i = 0; i < TypeParam::limit; ++i)
        EXPECT_EQ(this->settings->Coefficients(i), 0.0);
}

TYPED_TEST(TCCoefficientsTest, MarkADifferentValueOnly) {
    const std::int32_t last = TypeParam::limit - 1;
    Support::ExpectAMarkForADifferenceOnly(
        *this->settings, [&] { return this->settings->Coefficients(last); },
        [&](double value) { this->settings->SetCoefficients(last, value); });
}

TYPED_TEST(TCCoefficientsTest, MarkADifferentCountOnly) {
    this->settings->SetNumCoefficients(TypeParam::limit);
    EXPECT_FALSE(this->settings->Changed());
    this->settings->SetNumCoefficients(3);
    EXPECT_TRUE(this->settings->Changed());
}

TYPED_TEST(TCCoefficientsTest, TakeNoMarkFromTheDisplayFormat) {
    this->settings->SetValueFormat(L"0.0000");
    EXPECT_EQ(this->settings->ValueFormat(), L"0.0000");
    EXPECT_FALSE(this->settings->Changed());
}

TYPED_TEST(TCCoefficientsTest, RefuseAnIndexOutsideTheirCount) {
    this->settings->SetNumCoefficients(3);
    this->settings->SetChanged(false);
    for (const std::int32_t index : {-1, 3, 65536})
        this->ExpectRefused(index);
    EXPECT_FALSE(this->settings->Changed());
    this->settings->SetNumCoefficients(4);
    EXPECT_EQ(this->settings->Coefficients(3), 0.0); // the refused value went nowhere
}

TYPED_TEST(TCCoefficientsTest, TakeACountAboveTheLimitButNoIndexAboveIt) {
    for (const int count : {TypeParam::limit + 2, 32767}) {
        SCOPED_TRACE(count);
        this->settings->SetChanged(false);
        this->settings->SetNumCoefficients(Int(count));
        EXPECT_EQ(this->settings->NumCoefficients(), count);
        EXPECT_TRUE(this->settings->Changed());
        this->ExpectRefused(TypeParam::limit);
        this->settings->SetCoefficients(TypeParam::limit - 1, 2.5);
        EXPECT_EQ(this->settings->Coefficients(TypeParam::limit - 1), 2.5);
    }
}

TYPED_TEST(TCCoefficientsTest, KeepTheirSpareSlotWhenTheyShrinkAndGrow) {
    for (std::int32_t i = 0; i < 4; ++i)
        this->settings->SetCoefficients(i, i + 1.0);
    this->settings->SetNumCoefficients(0);
    this->ExpectRefused(0);
    this->settings->SetNumCoefficients(4);
    EXPECT_EQ(this->settings->Coefficients(0), 1.0); // slot 0 was the spare one
    for (std::int32_t i = 1; i < 4; ++i)
        EXPECT_EQ(this->settings->Coefficients(i), 0.0);
}

TYPED_TEST(TCCoefficientsTest, RaiseForANegativeCountAndAreFoundAgain) {
    for (const int count : {-1, -32768}) {
        SCOPED_TRACE(count);
        this->settings->SetCoefficients(3, 2.5);
        this->settings->SetChanged(false);
        EXPECT_QUOR_ERROR(this->settings->SetNumCoefficients(Int(count)), 9, TypeParam::className,
                          L"Subscript out of range");
        EXPECT_EQ(this->settings->NumCoefficients(), count);
        EXPECT_TRUE(this->settings->Changed());
        this->ExpectRefused(0);
        this->settings->SetNumCoefficients(TypeParam::limit);
        EXPECT_EQ(this->settings->Coefficients(3), 2.5);
    }
}

TYPED_TEST(TCCoefficientsTest, AreNotWrittenForANegativeCount) {
    ASSERT_TRUE(Support::Load(*this->settings, this->Counting(2, 2)));
    EXPECT_QUOR_ERROR(this->settings->SetNumCoefficients(-32768), 9, TypeParam::className,
                      L"Subscript out of range");
    EXPECT_EQ(Support::Held(*this->settings), this->Counting(-32768, 0));
    EXPECT_TRUE(this->platform->Messages().empty());
}

TYPED_TEST(TCCoefficientsTest, AreKeptWhenAFileHoldsANegativeCount) {
    this->settings->SetCoefficients(3, 2.5);
    EXPECT_FALSE(Support::Load(*this->settings, this->Counting(-5, 4)));
    EXPECT_EQ(
        OnlyMessage(*this->platform),
        Support::ReadingReport(std::wstring(L"9 - Subscript out of range\r(") + TypeParam::className + L")"));
    EXPECT_EQ(this->settings->NumCoefficients(), -5);
    this->settings->SetNumCoefficients(4);
    EXPECT_EQ(this->settings->Coefficients(3), 2.5);
}

TYPED_TEST(TCCoefficientsTest, AreReadUpToTheLimitWhenAFileHoldsMore) {
    const int limit = TypeParam::limit;
    for (const int count : {limit + 1, 32767}) {
        SCOPED_TRACE(count);
        const auto fresh =
            Support::NewSettings<typename TypeParam::Settings>(TypeParam::type, this->platform);
        const std::size_t shownBefore = this->platform->Messages().size();
        EXPECT_FALSE(Support::Load(*fresh, this->Counting(count, limit + 2)));
        ASSERT_EQ(this->platform->Messages().size(), shownBefore + 1);
        EXPECT_EQ(this->platform->Messages().back().text,
                  Support::ReadingReport(std::wstring(L"-2147221003 - Index out of range\r(") +
                                         TypeParam::className + L")"));
        EXPECT_EQ(this->platform->Messages().back().icon, ICON_CRITICAL);
        EXPECT_EQ(fresh->NumCoefficients(), count);
        fresh->SetNumCoefficients(Int(limit));
        EXPECT_EQ(Support::Held(*fresh), this->Counting(limit, limit));
    }
}

TYPED_TEST(TCCoefficientsTest, AreWrittenUpToTheLimitWhenThereAreMore) {
    const int limit = TypeParam::limit;
    ASSERT_TRUE(Support::Load(*this->settings, this->Counting(limit, limit)));
    this->settings->SetNumCoefficients(Int(limit + 4));
    EXPECT_EQ(Support::Held(*this->settings), this->Counting(limit + 4, limit));
    EXPECT_EQ(OnlyMessage(*this->platform),
              Support::WritingReport(std::wstring(L"-2147221003 - Index out of range\r(") +
                                     TypeParam::className + L")"));
}

TYPED_TEST(TCCoefficientsTest, AreReadByTheOwnCountOrTheOneTheStoreLeavesWhenTheirCountIsMissing) {
    Record record = this->Counting(3, 4);
    record.erase(L"NumCoefficients");
    this->settings->SetNumCoefficients(3);
    EXPECT_FALSE(Support::Load(*this->settings, record));
    EXPECT_EQ(Support::Held(*this->settings), this->Counting(3, 3));
    const auto store = Support::StoreWith(record);
    store->scribblesOnMissingKeys = true; // leaves 1
    EXPECT_FALSE(Support::ReadFrom(*this->settings, store));
    EXPECT_EQ(Support::Held(*this->settings), this->Counting(1, 1));
}
