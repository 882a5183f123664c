// Doubles through a file and back: the same bits, whatever the locale.

#include "QuorIniFile/IniStore.h"

#include "tests/support/CommaLocale.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

using namespace QuorIniFile;

namespace {

/// Random bit patterns: every exponent, denormals, infinities and NaNs among them.
std::vector<double> RandomDoubles(std::size_t count, std::uint64_t seed) {
    std::mt19937_64 random(seed);
    std::vector<double> values(count);
    std::generate(values.begin(), values.end(), [&] { return std::bit_cast<double>(random()); });
    return values;
}

std::wstring Key(std::size_t index) { return L"Coefficients" + std::to_wstring(index); }

/// Writes all values into a file in one hold, and reads them with another store.
void ExpectAllComeBack(const std::vector<double>& values) {
    const TempFolder folder;
    {
        IniStore store;
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"Random");
        store.Hold();
        for (std::size_t i = 0; i < values.size(); ++i)
            store.WriteDouble(Key(i), values[i], L"");
        store.Release();
    }
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"Random");
    for (std::size_t i = 0; i < values.size(); ++i) {
        double value = 0;
        ASSERT_TRUE(store.ReadDouble(Key(i), value)) << Key(i);
        if (std::isnan(values[i]))
            ASSERT_TRUE(std::isnan(value));
        else
            ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(values[i]))
                << values[i];
    }
}

} // namespace

TEST(IniStoreNumbers, AHundredThousandRandomDoublesComeBackBitForBit) {
    ExpectAllComeBack(RandomDoubles(100'000, 1));
}

TEST(IniStoreNumbers, TenMillionRandomDoublesComeBackBitForBit) {
    if (std::getenv("QUOR_NIGHTLY") == nullptr)
        GTEST_SKIP() << "takes its time; set QUOR_NIGHTLY to run it";
    for (std::uint64_t round = 0; round < 10; ++round)
        ExpectAllComeBack(RandomDoubles(1'000'000, 100 + round));
}

TEST(IniStoreNumbers, ACommaLocaleChangesNothing) {
    const CommaLocale locale;
    const TempFolder folder;
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    store.WriteDouble(L"Coefficients0", 1234567.5, L"");
    store.WriteInteger(L"NumCoefficients", 12345, L"");
    store.WriteString(L"Text", L"1,5 \u00B0C");
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nCoefficients0=1234567.5\nNumCoefficients=12345\nText=1,5 \xC2\xB0"
                                    "C\n");
    folder.Write("b.ini", "[A]\npoint=1.5\ncomma=1,5\n");
    store.SetFileName(folder.Name("b.ini"));
    double value = 0;
    EXPECT_TRUE(store.ReadDouble(L"point", value));
    EXPECT_EQ(value, 1.5);
    EXPECT_FALSE(store.ReadDouble(L"comma", value));
    ExpectAllComeBack(RandomDoubles(1000, 2));
}
