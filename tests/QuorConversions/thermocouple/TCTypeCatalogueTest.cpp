// The standard types, their names and their list, as both thermocouple-type classes have them.

#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/Records.h"
#include "tests/support/Translation.h"

using namespace QuorConversions;
using Support::Int;
using Support::ListRecorder;
using Support::ScriptedPlatform;

namespace {

constexpr const wchar_t* unknown = L"<unknown>";

struct TypeX {
    using Settings = CQuorTCTypeX;
    static constexpr EQuorConversionType type = CONV_TCTYPEX;
    static constexpr const wchar_t* className = L"CQuorTCTypeX";
    /// From TCTYPE_B, 0, to TCTYPE_AUPT, 12.
    static constexpr const wchar_t* names[] = {L"B", unknown, L"E", L"J", L"K",    unknown, unknown,
                                               L"N", L"R",    L"S", L"T", unknown, L"AuPt"};
    static constexpr std::pair<const wchar_t*, std::int32_t> list[] = {{L"B", 0}, {L"E", 2},  {L"J", 3},
                                                                       {L"K", 4}, {L"N", 7},  {L"R", 8},
                                                                       {L"S", 9}, {L"T", 10}, {L"AuPt", 12}};
};

struct TypePoly {
    using Settings = CQuorTCTypePoly;
    static constexpr EQuorConversionType type = CONV_TCTYPEPOLY;
    static constexpr const wchar_t* className = L"CQuorTCTypePoly";
    static constexpr const wchar_t* names[] = {L"B", L"C", L"E", L"J", L"K", L"L",   L"M",
                                               L"N", L"R", L"S", L"T", L"U", unknown};
    static constexpr std::pair<const wchar_t*, std::int32_t> list[] = {
        {L"B", 0}, {L"C", 1}, {L"E", 2}, {L"J", 3}, {L"K", 4},  {L"L", 5},
        {L"M", 6}, {L"N", 7}, {L"R", 8}, {L"S", 9}, {L"T", 10}, {L"U", 11}};
};

struct Names {
    template <class Case>
    static std::string GetName(int /*index*/) {
        return Case::type == CONV_TCTYPEX ? "CQuorTCTypeX" : "CQuorTCTypePoly";
    }
};

template <class Case>
class TCTypeCatalogueTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<typename Case::Settings> settings =
        Support::NewSettings<typename Case::Settings>(Case::type, platform);

    /// The value of a type is its name without an argument, with -2, and behind -2 in the plain name.
    void ExpectNames(std::int32_t tc, const std::wstring& withPrefix, const std::wstring& plain) {
        SCOPED_TRACE(testing::Message() << "type " << tc);
        settings->SetTCType(ETCType{tc});
        EXPECT_EQ(settings->GetName(), withPrefix);
        EXPECT_EQ(settings->GetName(-2), withPrefix);
        EXPECT_EQ(settings->GetTCTypeName(-2), plain);
        settings->SetTCType(TCTYPE_S); // whatever the current type, an argument other than -2 decides
        if (tc != -2) {
            EXPECT_EQ(settings->GetName(tc), plain);
            EXPECT_EQ(settings->GetTCTypeName(tc), plain);
        }
    }
    [[nodiscard]] std::vector<ListRecorder::Item> List() const {
        ListRecorder list;
        list.AddItem(L"left over");
        settings->FillTCTypeNameCombo(list);
        return list.items;
    }
};

using Cases = testing::Types<TypeX, TypePoly>;
TYPED_TEST_SUITE(TCTypeCatalogueTest, Cases, Names);

} // namespace

TYPED_TEST(TCTypeCatalogueTest, NamesTheTypesThatTheClassKnows) {
    for (std::int32_t tc = TCTYPE_B; tc <= TCTYPE_AUPT; ++tc) {
        const std::wstring name = TypeParam::names[tc];
        this->ExpectNames(tc, name == unknown ? name : L"TC Type " + name, name);
    }
}

TYPED_TEST(TCTypeCatalogueTest, NamesNoTypeWithThePrefixAlone) {
    this->ExpectNames(TCTYPE_NONE, L"TC Type ", L"");
}

TYPED_TEST(TCTypeCatalogueTest, CallsAnyOtherValueUnknownWithoutThePrefix) {
    for (const std::int32_t tc : {-3, -2, 13, 65536, 65540, std::numeric_limits<std::int32_t>::max(),
                                  std::numeric_limits<std::int32_t>::min()})
        this->ExpectNames(tc, unknown, unknown);
}

TYPED_TEST(TCTypeCatalogueTest, TranslatesThePrefixAndTheUnknownTypeButNoLetters) {
    const Support::Translation translation;
    this->ExpectNames(TCTYPE_K, L"167 K", L"K");
    this->ExpectNames(13, L"124", L"124");
    EXPECT_EQ(this->List().size(), std::size(TypeParam::list));
}

TYPED_TEST(TCTypeCatalogueTest, FillsAListThatIsClearedFirstWithTheNamedTypesInOrder) {
    EXPECT_EQ(this->List(),
              std::vector<ListRecorder::Item>(std::begin(TypeParam::list), std::end(TypeParam::list)));
}

TYPED_TEST(TCTypeCatalogueTest, MarksAnotherTypeOfWhateverValue) {
    this->settings->SetTCType(TCTYPE_J);
    this->settings->SetChanged(false);
    this->settings->SetTCType(TCTYPE_J);
    EXPECT_FALSE(this->settings->Changed());
    for (const std::int32_t tc : {-1, 70000, -70000}) {
        this->settings->SetChanged(false);
        this->settings->SetTCType(ETCType{tc});
        EXPECT_TRUE(this->settings->Changed());
        EXPECT_EQ(this->settings->TCType(), tc);
    }
}

TYPED_TEST(TCTypeCatalogueTest, TakesAnyTypeFromAFile) {
    Support::Record record = Support::Held(*this->settings);
    for (const int tc : {-1, -2, 1, 12, 99, 32767, -32768}) {
        SCOPED_TRACE(tc);
        record[L"TCType"] = Int(tc);
        EXPECT_TRUE(Support::Load(*this->settings, record));
        EXPECT_EQ(this->settings->TCType(), tc);
        EXPECT_EQ(Support::Held(*this->settings), record);
    }
    EXPECT_TRUE(this->platform->Messages().empty());
}

TYPED_TEST(TCTypeCatalogueTest, TakesTheTypeThatTheStoreLeavesForAMissingKey) {
    Support::Record record = Support::Held(*this->settings);
    record.erase(L"TCType");
    const auto store = Support::StoreWith(record);
    store->scribblesOnMissingKeys = true; // leaves 1
    EXPECT_FALSE(Support::ReadFrom(*this->settings, store));
    EXPECT_EQ(this->settings->TCType(), TCTYPE_C);
}

TYPED_TEST(TCTypeCatalogueTest, NeverCutsATypeBeyond16Bits) {
    Support::Record record = Support::Held(*this->settings);
    record.erase(L"TCType");
    for (const std::int32_t tc : {70000, 32768, -32769}) {
        SCOPED_TRACE(tc);
        this->settings->SetTCType(ETCType{tc});
        const std::size_t shownBefore = this->platform->Messages().size();
        EXPECT_EQ(Support::OperationsOfWriting(*this->settings),
                  (std::vector<std::wstring>{L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                                             L"Release"}));
        ASSERT_EQ(this->platform->Messages().size(), shownBefore + 1);
        EXPECT_EQ(this->platform->Messages().back().text,
                  Support::WritingReport(std::wstring(L"6 - Overflow\r(") + TypeParam::className + L")"));
        EXPECT_FALSE(Support::Load(*this->settings, record));
        EXPECT_EQ(this->settings->TCType(), tc);
    }
}
