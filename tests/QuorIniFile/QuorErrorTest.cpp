#include "QuorIniFile/QuorError.h"

#include <gtest/gtest.h>

using namespace QuorIniFile;

TEST(QuorError, CarriesEverythingThatAReportPrints) {
    const QuorError error(53, L"QuorIniFile", L"File not found: \u00B0.ini", L"quor.hlp", 10100);
    EXPECT_EQ(error.Number(), 53);
    EXPECT_EQ(error.Source(), L"QuorIniFile");
    EXPECT_EQ(error.Description(), L"File not found: \u00B0.ini");
    EXPECT_EQ(error.HelpFile(), L"quor.hlp");
    EXPECT_EQ(error.HelpContext(), 10100);
    EXPECT_STREQ(error.what(), "File not found: \xC2\xB0.ini");
    EXPECT_FALSE(error.Cause()) << "the store has not raised it";
}
