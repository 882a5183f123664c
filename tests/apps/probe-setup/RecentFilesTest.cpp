#include "apps/probe-setup/RecentFiles.h"

#include "QuorIniFile/QuorError.h"
#include "apps/probe-setup/WindowSettings.h"
#include "tests/apps/probe-setup/MemoryRegistry.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>

using namespace ProbeSetup;

namespace {

class RecentFilesTest : public testing::Test {
protected:
    [[nodiscard]] QStringList Menu() const {
        QStringList texts;
        for (const QAction* const action : menu.actions())
            texts += action->text();
        return texts;
    }

    std::shared_ptr<MemoryRegistry> registry = std::make_shared<MemoryRegistry>();
    WindowSettings settings{registry, [](const QString& problem) { ADD_FAILURE() << problem.toStdString(); }};
    QMenu menu;
    QStringList opened;
    RecentFiles recent{settings, menu, [this](const QString& path) { opened += path; }};
};

} // namespace

TEST_F(RecentFilesTest, AMenuWithoutFilesIsDisabled) {
    EXPECT_FALSE(menu.isEnabled());
    recent.Add("/lab.ini");
    EXPECT_TRUE(menu.isEnabled());
    recent.Remove("/lab.ini");
    EXPECT_FALSE(menu.isEnabled());
    EXPECT_EQ(recent.Paths(), QStringList{});
}

TEST_F(RecentFilesTest, TheLatestStandsInFrontAndNoneTwice) {
    for (const char* const path : {"/a.ini", "/b & c.ini", "/a.ini"})
        recent.Add(path);
    EXPECT_EQ(recent.Paths(), (QStringList{"/a.ini", "/b & c.ini"}));
    EXPECT_EQ(Menu(), (QStringList{"&1 /a.ini", "&2 /b && c.ini"}));
    menu.actions().back()->trigger();
    EXPECT_EQ(opened, QStringList{"/b & c.ini"});
}

TEST_F(RecentFilesTest, TheOldestOfMoreThanEightGoes) {
    for (int i = 1; i <= 9; ++i)
        recent.Add(QStringLiteral("/%1.ini").arg(i));
    EXPECT_EQ(recent.Paths().size(), 8);
    EXPECT_EQ(recent.Paths().front(), "/9.ini");
    EXPECT_EQ(recent.Paths().back(), "/2.ini");
}

TEST_F(RecentFilesTest, AnotherRunFindsThemAgain) {
    recent.Add("/a.ini");
    recent.Remove("/none.ini");
    QMenu later;
    const RecentFiles again(settings, later, [](const QString&) {});
    EXPECT_EQ(again.Paths(), QStringList{"/a.ini"});
    EXPECT_EQ(later.actions().size(), 1);
}

TEST(WindowSettings, ARegistryThatFailsIsToldWhenAValueIsWrittenAndReadsAsEmpty) {
    class Failing final : public QuorRegistryII::Registry {
    public:
        bool ReadValue(std::wstring_view, std::wstring_view, std::wstring&) override { Fail(); }
        void WriteValue(std::wstring_view, std::wstring_view, std::wstring_view) override { Fail(); }
        [[noreturn]] static void Fail() { throw QuorIniFile::QuorError(70, L"here", L"Nobody may write"); }
    };
    QStringList problems;
    WindowSettings settings(std::make_shared<Failing>(), [&](const QString& text) { problems += text; });
    EXPECT_EQ(settings.Read(L"Geometry"), "");
    settings.Write(L"Geometry", "x");
    EXPECT_EQ(problems, QStringList{"Nobody may write"});
    WindowSettings none(nullptr, [](const QString&) { FAIL(); });
    none.Write(L"Geometry", "x");
    EXPECT_EQ(none.Read(L"Geometry"), "");
}
