#include "QuorProbeFile/SectionPlan.h"

#include "QuorIniFile/IniStore.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace QuorProbeFile;

namespace {

using Names = std::vector<std::wstring>;
using Renamed = std::vector<std::pair<std::wstring, std::wstring>>;

ProbeMove Stays(const std::wstring& section) { return {section, section}; }
ProbeMove Renames(const std::wstring& section, const std::wstring& name) { return {section, name}; }
ProbeMove Removes(const std::wstring& section) { return {section, section, true}; }
ProbeMove ChangesType(const std::wstring& section) { return {section, section, false, true}; }

/// The plan for a file with these sections, in which nothing is shared.
SectionPlan PlanOf(const Names& sections, const std::vector<ProbeMove>& probes) {
    std::optional<SharedSection> shared;
    SectionPlan plan = PlanSections(sections, probes, shared);
    EXPECT_FALSE(shared) << "a section is shared";
    return plan;
}

const Names twoProbes = {L"Host",          L"A", L"A - Settings", L"A - Settings - Low Range", L"A - Other",
                         L"A - Settings2", L"B", L"B - Settings", L"b - SETTINGS - High Range"};

} // namespace

TEST(SectionPlan, IsEmptyWhereNothingHappensToAnyProbe) {
    EXPECT_TRUE(PlanOf(twoProbes, {Stays(L"A"), Stays(L"B")}).IsEmpty());
}

TEST(SectionPlan, ARemovedProbeTakesItsSettingsAlongAndNoOtherSection) {
    const SectionPlan plan = PlanOf(twoProbes, {Removes(L"A"), Stays(L"B")});
    EXPECT_EQ(plan.removed, (Names{L"A", L"A - Settings", L"A - Settings - Low Range"}));
    EXPECT_EQ(plan.renamed, Renamed{});
    EXPECT_EQ(plan.outdated, Names{});
}

TEST(SectionPlan, ARenamedProbeTakesItsSettingsAlongInAnyCaseOfLetters) {
    const SectionPlan plan = PlanOf(twoProbes, {Stays(L"A"), Renames(L"B", L"New")});
    EXPECT_EQ(plan.removed, Names{});
    EXPECT_EQ(plan.renamed, (Renamed{{L"B", L"New"},
                                     {L"B - Settings", L"New - Settings"},
                                     {L"b - SETTINGS - High Range", L"New - SETTINGS - High Range"}}));
}

TEST(SectionPlan, ANameInAnotherCaseOfLettersIsAnotherName) {
    EXPECT_EQ(PlanOf({L"A"}, {Renames(L"A", L"a")}).renamed, (Renamed{{L"A", L"a"}}));
}

TEST(SectionPlan, SettingsOfAnotherConversionAreOutdatedUnderTheirNewNames) {
    EXPECT_EQ(PlanOf(twoProbes, {ChangesType(L"A"), Stays(L"B")}).outdated,
              (Names{L"A - Settings", L"A - Settings - Low Range"}));

    ProbeMove both = Renames(L"A", L"New");
    both.changesType = true;
    const SectionPlan plan = PlanOf(twoProbes, {both, Stays(L"B")});
    EXPECT_EQ(plan.renamed.front(), (std::pair<std::wstring, std::wstring>{L"A", L"New"}));
    EXPECT_EQ(plan.outdated, (Names{L"New - Settings", L"New - Settings - Low Range"}));
}

TEST(SectionPlan, ASectionThatAnotherProbeNeedsTooIsToldInsteadOfAPlan) {
    // "A - Settings" holds the settings of A, and is a probe of its own.
    const Names sections{L"A", L"A - Settings", L"A - Settings - Settings"};
    std::optional<SharedSection> shared;
    EXPECT_TRUE(PlanSections(sections, {Removes(L"A"), Stays(L"A - Settings")}, shared).IsEmpty());
    ASSERT_TRUE(shared);
    EXPECT_EQ(shared->section, L"A - Settings");
    EXPECT_EQ(shared->probe, 0U);
    EXPECT_EQ(shared->other, 1U);

    static_cast<void>(PlanSections(sections, {Stays(L"A"), Renames(L"A - Settings", L"B")}, shared));
    ASSERT_TRUE(shared);
    EXPECT_EQ(shared->probe, 1U);
    EXPECT_EQ(shared->other, 0U);

    static_cast<void>(PlanSections(sections, {ChangesType(L"A"), Stays(L"A - Settings")}, shared));
    EXPECT_TRUE(shared);
    static_cast<void>(PlanSections(sections, {Stays(L"A"), ChangesType(L"A - Settings")}, shared));
    ASSERT_TRUE(shared);
    EXPECT_EQ(shared->section, L"A - Settings - Settings") << "its record itself stays where it is";
}

TEST(SectionPlan, ASectionThatTwoProbesShareGoesWhenBothGo) {
    EXPECT_EQ(PlanOf({L"A", L"A - Settings"}, {Removes(L"A"), Removes(L"A - Settings")}).removed,
              (Names{L"A", L"A - Settings"}));
}

TEST(SectionPlan, ProbesMayChangeNamesAmongEachOther) {
    const TempFolder folder;
    folder.Write(
        "a.ini",
        "; first\n[A]\nx=1\n[A - Settings]\ny=1\n[being renamed 1]\n[B]\nx=2\n[B - Settings]\ny=2\n");
    QuorIniFile::IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.Edit([&] {
        ApplyPlan(store, PlanOf(store.Sections(), {Renames(L"A", L"B"), Renames(L"B", L"A")}));
    });
    EXPECT_EQ(folder.Read("a.ini"),
              "; first\n[B]\nx=1\n[B - Settings]\ny=1\n[being renamed 1]\n[A]\nx=2\n[A - Settings]\ny=2\n");
}
