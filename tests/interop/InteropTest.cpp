// The format that we share with the other readers and writers of INI files: ordinary values go both ways.

#include "tests/interop/Peer.h"
#include "tests/support/CommaLocale.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <filesystem>

using namespace Interop;

namespace {

/// The two sections of a record.
struct Sections {
    const char* record;
    const char* settings;
};
constexpr Sections usual = {"Probe 1", "Probe 1 - Settings"};
constexpr Sections withoutBlanks = {"Probe1", "Probe1-Settings"};

struct Coefficient {
    const char* key;
    double value;
};
constexpr std::array<Coefficient, 6> coefficients = {{{"R0", 100.0123},
                                                      {"Alpha", 0.00385055},
                                                      {"Beta", -5.775e-7},
                                                      {"Third", 1.0 / 3.0},
                                                      {"Large", 1.7976931348623157e308},
                                                      {"Count", 3}}};
constexpr std::array<std::pair<const char*, const char*>, 4> texts = {
    {{"Version", "1.0"}, {"Name", "PRT-1182 of the water bath"}, {"Unit", "\u00B0C"}, {"Flag", "True"}}};

class Interoperation : public testing::TestWithParam<PeerRow> {
protected:
    void SetUp() override {
        if (!GetParam().make)
            GTEST_SKIP() << GetParam().name << " is not installed here (Debian package " << GetParam().package
                         << ')';
    }
    [[nodiscard]] std::string File() const { return folder.Path("shared.ini").string(); }

    /// Puts all values into a new file.
    void Write(const PeerRow& row, const Sections& sections) const {
        const std::unique_ptr<Peer> peer = row.make();
        peer->Create(File());
        for (const auto& [key, text] : texts)
            peer->SetText(sections.record, key, text);
        peer->SetInteger(sections.record, "ConversionType", 2);
        peer->SetInteger(sections.record, "Offset", -32768);
        for (const auto& [key, value] : coefficients) {
            std::array<char, 32> digits{};
            std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
            if (row.writesExactDoubles)
                peer->SetDouble(sections.settings, key, value);
            else
                peer->SetText(sections.settings, key, digits.data());
        }
        peer->Save();
    }
    void ExpectAll(const PeerRow& row, const Sections& sections) const {
        const std::unique_ptr<Peer> peer = row.make();
        peer->Open(File());
        for (const auto& [key, text] : texts)
            EXPECT_EQ(peer->Text(sections.record, key), text) << key;
        EXPECT_EQ(peer->Integer(sections.record, "ConversionType"), 2);
        EXPECT_EQ(peer->Integer(sections.record, "Offset"), -32768);
        for (const auto& [key, value] : coefficients)
            EXPECT_EQ(peer->Double(sections.settings, key), value) << key;
    }

    TempFolder folder;
};

std::vector<PeerRow> Others() {
    std::vector<PeerRow> others;
    for (const PeerRow& row : Peers()) {
        if (!row.isOurs)
            others.push_back(row);
    }
    return others;
}

std::string NameOf(const testing::TestParamInfo<PeerRow>& row) { return row.param.name; }

} // namespace

namespace Interop {
/// How a failure names its peer.
void PrintTo(const PeerRow& row, std::ostream* out) { *out << row.name; }
} // namespace Interop

TEST_P(Interoperation, WhatWeWriteTheyRead) {
    Write(Peers().front(), usual);
    ExpectAll(GetParam(), usual);
}

TEST_P(Interoperation, WhatTheyWriteWeRead) {
    if (!GetParam().writes)
        GTEST_SKIP() << GetParam().name << " cannot write";
    const Sections& sections = GetParam().keepsBlanks ? usual : withoutBlanks;
    Write(GetParam(), sections);
    ExpectAll(Peers().front(), sections);
}

TEST_P(Interoperation, WhatWeWriteUnderACommaLocaleTheyReadAndTheOtherWayRound) {
    {
        const CommaLocale comma;
        Write(Peers().front(), usual);
    }
    ExpectAll(GetParam(), usual);
    if (!GetParam().writes)
        return; // it can only read
    std::filesystem::remove(File());
    const Sections& sections = GetParam().keepsBlanks ? usual : withoutBlanks;
    Write(GetParam(), sections);
    const CommaLocale comma;
    ExpectAll(Peers().front(), sections);
}

INSTANTIATE_TEST_SUITE_P(With, Interoperation, testing::ValuesIn(Others()), NameOf);
