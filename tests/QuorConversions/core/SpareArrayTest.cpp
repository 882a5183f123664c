#include "QuorConversions/core/SpareArray.h"

#include "tests/support/Objects.h"

#include <new>

using QuorConversions::SpareArray;
using Support::indexOutOfRange;

namespace {

constexpr const wchar_t* outOfRange = L"Index out of range";

/// Counts 1.5, 2.5, ... into the slots that can be reached.
SpareArray<double> Filled(std::int16_t count) {
    SpareArray<double> array(L"CHost");
    array.Resize(count);
    for (std::int32_t i = 0; i < count; ++i)
        array.At(i) = i + 1.5;
    return array;
}

/// A slot for whose kind the memory runs out.
struct ScarceSlot {
    static inline int left = 0;
    ScarceSlot() {
        if (left-- == 0)
            throw std::bad_alloc();
    }
};

} // namespace

TEST(SpareArrayTest, IsNewWithoutAnySlotToReach) {
    const SpareArray<double> array(L"CHost");
    EXPECT_EQ(array.Count(), 0);
    EXPECT_QUOR_ERROR((void)array.At(0), indexOutOfRange, L"CHost", outOfRange);
}

TEST(SpareArrayTest, ReachesTheSlotsBelowItsCount) {
    const auto array = Filled(3);
    for (const std::int32_t valid : {0, 1, 2})
        EXPECT_EQ(array.At(valid), valid + 1.5);
    for (const std::int32_t invalid : {-1, 3, 4, 65536, std::numeric_limits<std::int32_t>::min(),
                                       std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_FALSE(array.IsValid(invalid));
        EXPECT_QUOR_ERROR((void)array.At(invalid), indexOutOfRange, L"CHost", outOfRange);
    }
}

TEST(SpareArrayTest, RefusesIndicesAboveTheLimitOfItsClassWhateverTheCount) {
    SpareArray<double> array(L"CHost", 3);
    array.Resize(100);
    EXPECT_TRUE(array.IsValid(3));
    EXPECT_QUOR_ERROR((void)array.At(4), indexOutOfRange, L"CHost", outOfRange);
}

TEST(SpareArrayTest, ShowsItsSpareSlotAgainButNothingBeyondIt) {
    auto array = Filled(5);
    array.Resize(2);
    array.Resize(5);
    EXPECT_EQ(array.At(1), 2.5);
    EXPECT_EQ(array.At(2), 3.5); // was the spare slot
    EXPECT_EQ(array.At(3), 0.0);
    EXPECT_EQ(array.At(4), 0.0);
}

TEST(SpareArrayTest, ClearsTheSlotsThatCannotBeReached) {
    const auto clear = [](double& slot) { slot = 0.0; };
    auto array = Filled(3);
    array.SetCount(2);
    array.ClearSpare(clear);
    array.SetCount(3);
    EXPECT_EQ(array.At(1), 2.5);
    EXPECT_EQ(array.At(2), 0.0);
    array.SetCount(-1);
    array.ClearSpare(clear);
    array.SetCount(3);
    EXPECT_EQ(array.At(0), 0.0);
    EXPECT_EQ(array.At(1), 0.0);
}

TEST(SpareArrayTest, KeepsOneSlotEvenWithoutACount) {
    auto array = Filled(2);
    array.Resize(0);
    EXPECT_FALSE(array.IsValid(0));
    array.Resize(2);
    EXPECT_EQ(array.At(0), 1.5);
    EXPECT_EQ(array.At(1), 0.0);
}

TEST(SpareArrayTest, StoresANegativeCountAndFindsItsSlotsAgainLater) {
    for (const std::int16_t negative : {std::int16_t{-1}, std::numeric_limits<std::int16_t>::min()}) {
        auto array = Filled(2);
        array.SetCount(negative);
        EXPECT_EQ(array.Count(), negative);
        EXPECT_QUOR_ERROR((void)array.At(0), indexOutOfRange, L"CHost", outOfRange);
        EXPECT_QUOR_ERROR(array.Resize(negative), 9, L"CHost", L"Subscript out of range");
        EXPECT_EQ(array.Count(), negative);
        array.Resize(2);
        EXPECT_EQ(array.At(0), 1.5);
        EXPECT_EQ(array.At(1), 2.5);
    }
}

TEST(SpareArrayTest, KeepsItsCountWhenTheMemoryForMoreSlotsIsMissing) {
    SpareArray<ScarceSlot> array(L"CHost");
    ScarceSlot::left = 3;
    array.Resize(2);
    EXPECT_THROW(array.Resize(4), std::bad_alloc);
    EXPECT_EQ(array.Count(), 2);
    EXPECT_FALSE(array.IsValid(2));
}

TEST(SpareArrayTest, ReachesEverySlotOfTheGreatestCount) {
    auto array = Filled(std::numeric_limits<std::int16_t>::max());
    EXPECT_EQ(array.At(32766), 32767.5);
    EXPECT_FALSE(array.IsValid(32767));
}
