#include "QuorProbeFile/RecordReference.h"

#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace QuorConversions;
using namespace QuorProbeFile;

namespace {

/// The record that a settings class writes, with some of its values replaced.
std::shared_ptr<RecordImage> Record(EQuorConversionType type,
                                    const std::vector<RecordImage::Entry>& changed = {}) {
    CQuorConversion conversion;
    conversion.SetConversionType(type);
    auto image = RecordImage::Of(*conversion.Settings());
    for (const RecordImage::Entry& entry : changed)
        image->Find(entry.path)->value = entry.value;
    RecordImage::Apply(image, *conversion.Settings());
    return RecordImage::Of(*conversion.Settings());
}

/// The largest record of a type: that with all keys.
std::shared_ptr<RecordImage> LargestRecord(EQuorConversionType type) {
    switch (type) {
    case CONV_ITS90:
        return Record(type, {{L"High Range/Range", std::int16_t{6}}, {L"Low Range/Range", std::int16_t{1}}});
    case CONV_POLYNOMIAL:
        return Record(type, {{L"Order", std::int16_t{10}}});
    default:
        return Record(type);
    }
}

std::vector<std::wstring> PathsOf(const RecordImage& image) {
    std::vector<std::wstring> paths;
    for (const RecordImage::Entry& entry : image.Entries())
        paths.push_back(entry.path);
    return paths;
}

/// The keys of the reference, each once.
std::vector<std::wstring> PathsOf(EQuorConversionType type) {
    std::vector<std::wstring> paths;
    for (const RecordKey& key : RecordKeys(type))
        if (paths.empty() || paths.back() != key.path)
            paths.push_back(key.path);
    return paths;
}

} // namespace

TEST(RecordReference, HasEachKeyThatTheSettingsClassesWriteInTheirOrderAndNoOther) {
    for (const TypeInfo& type : Types()) {
        if (type.extension.empty()) {
            EXPECT_TRUE(RecordKeys(type.code).empty()) << type.code;
        } else if (type.code != CONV_ITSSR5) { // which is an ITS-90 with one range
            EXPECT_EQ(PathsOf(type.code), PathsOf(*LargestRecord(type.code))) << type.code;
        }
    }
    EXPECT_EQ(PathsOf(CONV_ITSSR5), PathsOf(CONV_ITS90));
}

TEST(RecordReference, HasTheKindAndTheInitialValueOfEachKeyOfANewRecord) {
    for (const TypeInfo& type : Types()) {
        if (type.extension.empty())
            continue;
        const auto image = Record(type.code);
        for (const RecordImage::Entry& entry : image->Entries()) {
            const RecordKey* const key = FindRecordKey(type.code, entry.path, RecordForm::Any);
            ASSERT_NE(key, nullptr) << type.code;
            EXPECT_TRUE(key->initial.index() == entry.value.index() && SameValue(key->initial, entry.value))
                << type.code << ' ' << key->path.size();
        }
    }
}

TEST(RecordReference, DescribesEachKeyByMeaningAndRangeAndEachCoefficientByAName) {
    for (const TypeInfo& type : Types()) {
        for (const RecordKey& key : RecordKeys(type.code)) {
            EXPECT_FALSE(key.meaning.empty());
            EXPECT_FALSE(key.range.empty());
            EXPECT_EQ(key.name.empty(), key.index < 0) << type.code;
        }
    }
}

TEST(RecordReference, NamesCoefficientsByTheFormOfTheEquation) {
    const RecordKey* key = FindRecordKey(CONV_CVD, L"coefficients2", RecordForm::AlphaDeltaBeta);
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->name, L"DELTA");
    EXPECT_EQ(key->unit, L"\u00B0C");
    EXPECT_EQ(key->usual, L"0.75 to 3");
    key = FindRecordKey(CONV_CVD, L"Coefficients2", RecordForm::Polynomial);
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->name, L"B");
    EXPECT_EQ(key->unit, L"1/\u00B0C\u00B2");
    EXPECT_EQ(key->list, L"Coefficients");
    EXPECT_EQ(key->index, 2);
    EXPECT_EQ(FindRecordKey(CONV_CVD, L"Coefficients4", RecordForm::Any), nullptr);
    EXPECT_EQ(FindRecordKey(CONV_OHMS, L"Coefficients0", RecordForm::Any), nullptr);
}

TEST(RecordReference, CountsTheNamesOfIndexedKeysAsTheDialogsDo) {
    EXPECT_EQ(FindRecordKey(CONV_ITS90, L"Low Range/Coefficients6", RecordForm::Any)->name, L"c5");
    EXPECT_EQ(FindRecordKey(CONV_TCPOLYNOMIAL, L"Coefficients15", RecordForm::Any)->name, L"C15");
    EXPECT_EQ(FindRecordKey(CONV_TCTYPEX, L"Offsets2", RecordForm::Any)->name, L"ADJ3");
    EXPECT_EQ(FindRecordKey(CONV_TCTYPEX, L"Coefficients1", RecordForm::Any)->name, L"DC2");
    EXPECT_EQ(FindRecordKey(CONV_POLYNOMIAL, L"Coefficients10", RecordForm::Any)->name, L"A10");
}

TEST(RecordReference, NamesWhatANumberStandsFor) {
    const RecordKey* const type = FindRecordKey(CONV_TCTYPEX, L"TCType", RecordForm::Any);
    EXPECT_EQ(ChoiceName(*type, 4), L"K");
    EXPECT_EQ(ChoiceName(*type, 12), L"AuPt");
    EXPECT_EQ(ChoiceName(*type, 13), L"");
    const RecordKey* const range = FindRecordKey(CONV_ITS90, L"High Range/Range", RecordForm::Any);
    EXPECT_EQ(ChoiceName(*range, -1), L"none");
    EXPECT_EQ(ChoiceName(*range, 6), L"273 K to 1234 K");
}

TEST(RecordReference, NamesTheRangesOfTheItsThatARecordMayHave) {
    const auto codes = [](const wchar_t* path) {
        std::vector<int> all;
        for (const RecordChoice& choice : FindRecordKey(CONV_ITS90, path, RecordForm::Any)->choices)
            all.push_back(choice.code);
        return all;
    };
    EXPECT_EQ(codes(L"Low Range/Range"), (std::vector<int>{-1, 1, 2, 3, 4, 5}));
    EXPECT_EQ(codes(L"High Range/Range"), (std::vector<int>{-1, 5, 6, 7, 8, 9, 10, 11}));
}
