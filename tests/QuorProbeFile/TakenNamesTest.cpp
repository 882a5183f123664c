#include "QuorProbeFile/TakenNames.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace QuorProbeFile;

namespace {

/// "code other" of what keeps a new probe from that name in a file with a probe "P".
std::wstring ObstacleTo(std::wstring_view name, const std::vector<std::wstring>& sections) {
    TakenNames names;
    for (const std::wstring& section : sections)
        names.Add(section);
    const auto isProbe = [](std::wstring_view section) { return EqualFolded(section, L"P"); };
    const auto obstacle = names.ObstacleTo(name, isProbe);
    return obstacle ? std::to_wstring(obstacle->code) + L" " + obstacle->other : L"none";
}

} // namespace

TEST(TakenNames, ANewProbeGetsEachNameThatNoSectionHas) {
    EXPECT_EQ(ObstacleTo(L"Q", {L"P", L"P - Settings", L"Q - Set", L"Host"}), L"none");
    EXPECT_EQ(ObstacleTo(L"Host - Settings", {L"P", L"Host"}), L"none") << "no probe, and no settings of it";
    EXPECT_EQ(ObstacleTo(L"Q", {}), L"none");
}

TEST(TakenNames, ANameThatNoSectionCanHaveIsBad) { EXPECT_EQ(ObstacleTo(L"a\nb", {}), L"6 "); }

TEST(TakenNames, TheNameOfASectionIsTakenInAnyCaseOfLetters) {
    EXPECT_EQ(ObstacleTo(L"host", {L"P", L"Host"}), L"7 ");
}

TEST(TakenNames, TheSettingsOfAProbeAreNoNameEvenWhileItHasNone) {
    EXPECT_EQ(ObstacleTo(L"P - Settings", {L"P"}), L"8 P");
    EXPECT_EQ(ObstacleTo(L"p - settings - Low Range", {L"P"}), L"8 p");
}

TEST(TakenNames, AProbeDoesNotGetTheSectionsOfOthersForItsSettings) {
    EXPECT_EQ(ObstacleTo(L"q", {L"Q - Settings - Low Range", L"Q - Settings"}),
              L"9 Q - Settings - Low Range");
}
