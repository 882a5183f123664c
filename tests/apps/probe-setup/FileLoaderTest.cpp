// Loading: the window lives on, and a person can cancel what takes too long.

#include "apps/probe-setup/FileLoader.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorIniFile/QuorError.h"
#include "tests/apps/probe-setup/WindowTest.h"
#include "tests/support/InterceptedFiles.h"

#include <QProgressDialog>
#include <QTimer>

#include <ctime>
#include <fstream>
#include <future>

using namespace ProbeSetup;

namespace {

/// A disk that gives nothing before it is told to.
class FileLoading : public HostFileTest {
protected:
    void SetUp() override {
        HostFileTest::SetUp();
        files.onCall = [waits = m_disk.get_future().share()](std::string_view call) {
            if (call == "Read")
                waits.wait();
            return 0;
        };
        widget.show();
    }
    void TearDown() override { LetDiskGive(); }
    void LetDiskGive() {
        if (!m_gives)
            m_disk.set_value();
        m_gives = true;
    }
    [[nodiscard]] std::unique_ptr<ProbeDocument::Loaded> Load() {
        return loader.Load(QuorConversions::QtToolkit::ToQt(folder.Name("host.ini")));
    }
    static void WhenShown(const std::function<void(QProgressDialog&)>& action) {
        Support::WhenShown([](QWidget& shown) { return qobject_cast<QProgressDialog*>(&shown) != nullptr; },
                           [action](QWidget& shown) {
                               shown.activateWindow();
                               EXPECT_TRUE(
                                   QTest::qWaitFor([&] { return QApplication::activeWindow() == &shown; }));
                               action(static_cast<QProgressDialog&>(shown));
                           });
    }

private:
    std::promise<void> m_disk;
    bool m_gives = false;

protected:
    Support::InterceptedFiles files;
    ProbeDocument document{QuorConversions::DefaultPlatform(), nullptr, &files};
    QWidget widget;
    FileLoader loader{widget, document};
};

} // namespace

TEST_F(FileLoading, ShowsItsProgressAndGoesOnWhenTheDiskGives) {
    QString text;
    WhenShown([&](QProgressDialog& dialog) {
        text = dialog.labelText();
        EXPECT_FALSE(widget.isEnabled());
        LetDiskGive();
    });
    const auto loaded = Load();
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->probes.size(), 2U);
    EXPECT_EQ(text, QString::fromUtf8("Loading host.ini…"));
    EXPECT_TRUE(widget.isEnabled());
}

TEST_F(FileLoading, IsCancelledByEscapeAndByTheFrameOfItsWindow) {
    WhenShown([](QProgressDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(Load());
    WhenShown([](QProgressDialog& dialog) { dialog.close(); });
    EXPECT_FALSE(Load());
    EXPECT_TRUE(widget.isEnabled());
    EXPECT_EQ(document.Count(), 0U);
}

TEST_F(FileLoading, IsGivenUpBeforeItsWindowIsThere) {
    EXPECT_FALSE(loader.Cancel()) << "there is nothing to give up";
    QTimer::singleShot(0, &widget, [this] { EXPECT_TRUE(loader.Cancel()); });
    EXPECT_FALSE(Load());
    EXPECT_TRUE(widget.isEnabled());
    LetDiskGive();
    EXPECT_TRUE(Load()) << "the next one is not";
}

TEST_F(FileLoading, RaisesWhatReadingRaises) {
    LetDiskGive();
    EXPECT_THROW(static_cast<void>(loader.Load(QStringLiteral("/nowhere/host.ini"))), QuorIniFile::QuorError);
}

using VeryLargeFile = WindowTest;

TEST_F(VeryLargeFile, OpensInAFewTimesWhatTheStoreNeedsToLoadIt) {
    {
        std::ofstream text(folder.Path("large.ini"));
        for (int i = 0; i < 30'000; ++i)
            text << "[Probe " << i << "]\nVersion=1.0\nConversionType=2\n\n[Probe " << i
                 << " - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=False\nCoefficients0=100.0"
                 << i << "\nCoefficients1=3.9083E-3\nCoefficients2=1.5\nCoefficients3=0.11\n\n";
    }
    // Milliseconds of work, whatever else the machine does.
    const auto measure = [](const auto& action) {
        const std::clock_t start = std::clock();
        action();
        return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    };
    const auto peak = [] {
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmHWM:"))
                return std::stol(line.substr(6)) * 1024;
        }
        return 0L;
    };
    const double store = measure([this] {
        QuorIniFile::IniStore ini;
        ini.SetFileName(folder.Name("large.ini"));
        EXPECT_EQ(ini.Sections().size(), 60'000U);
    });
    const long before = peak();
    const double open = measure([this] { EXPECT_TRUE(window->OpenPath(Path("large.ini"))); });
    const long memory = peak() - before;
    const auto size = static_cast<long>(std::filesystem::file_size(folder.Path("large.ini")));
    RecordProperty("open_to_store_percent", static_cast<int>(100 * open / store));
    RecordProperty("memory_to_file_percent", static_cast<int>(100 * memory / size));
    std::printf("store %.0f ms, open %.0f ms, %.1f times; memory %.1f times the file\n", store, open,
                open / store, static_cast<double>(memory) / static_cast<double>(size));
    EXPECT_LE(open, 12 * store);
#ifndef __SANITIZE_ADDRESS__ // which needs memory of its own
    EXPECT_LE(memory, 6 * size);
#endif
}
