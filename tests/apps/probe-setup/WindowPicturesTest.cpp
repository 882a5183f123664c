// What a person sees of the window and of the dialog that adds a probe: light, dark, German, in large letters
// and from right to left. The pictures are left in the folder "pictures", for people to look at.

#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/MainWindow.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "apps/probe-setup/ProbeReport.h"
#include "apps/probe-setup/ProbeTableModel.h"
#include "tests/support/TempFolder.h"
#include "tests/toolkits/qt/Looks.h"
#include "tests/toolkits/qt/QtScreen.h"
#include "toolkits/qt/HelpWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QHeaderView>
#include <QHelpContentWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPdfWriter>
#include <QScreen>
#include <QTest>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <QTreeView>

#include <filesystem>

using namespace ProbeSetup;

namespace {

class WindowPictures : public testing::TestWithParam<Support::Look> {
protected:
    void SetUp() override {
        if (GetParam().language == QLocale::German) {
            ASSERT_TRUE(m_texts.load(":/probe-setup/translations/probe-setup_de.qm"));
            QCoreApplication::installTranslator(&m_texts);
        }
        ASSERT_TRUE(QDir().mkpath(folder));
    }

    void TakePicture(QWidget& window, const char* name) const {
        Support::LetLayOut();
        EXPECT_TRUE(window.grab().save(
            QStringLiteral("%1/%2-%3.png").arg(folder, QLatin1String(name), GetParam().name)));
    }
    static void ExpectNothingIsCut(const QWidget& window) {
        for (const QLabel* const label : window.findChildren<QLabel*>()) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            SCOPED_TRACE(label->text().toStdString());
            if (label->wordWrap()) {
                EXPECT_LE(label->heightForWidth(label->width()), label->height());
            } else {
                EXPECT_LE(label->sizeHint().width(), label->width());
            }
        }
        for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible() &&
                !button->text().isEmpty()) { // a style draws the icons of panes as it likes
                EXPECT_LE(button->minimumSizeHint().width(), button->width()) << button->text().toStdString();
            }
        }
    }

    const QString folder = QStringLiteral("pictures/") + qEnvironmentVariable("QT_SCALE_FACTOR", "1");

private:
    Support::Dressed m_dressed{GetParam()};
    QTranslator m_texts; // it leaves the application when it goes
};

} // namespace

TEST_P(WindowPictures, TheWindowShowsAllItsTexts) {
    MainWindow window(nullptr, QString());
    window.show();
    TakePicture(window, "empty");
    ExpectNothingIsCut(window);
    ASSERT_TRUE(window.OpenPath(QString::fromLatin1(QUOR_SAMPLES "/laboratory.ini")));
    if (!window.Document().IsReadOnly()) {
        window.Document().Rename(1, L"Reference");
        window.findChild<QAction*>("duplicate")->trigger();
    }
    window.Table().scrollToTop();
    TakePicture(window, "window");
    ExpectNothingIsCut(window);
    const auto* const extension = window.findChild<QToolButton*>("qt_toolbar_ext_button");
    EXPECT_FALSE(extension && extension->isVisible()) << "there is room for all tools";
}

TEST_P(WindowPictures, TheDialogThatAddsAProbeShowsAllItsTexts) {
    ProbeDocument document(nullptr);
    ProbeDialog dialog(nullptr, document, QString(), [] {});
    dialog.show();
    TakePicture(dialog, "add");
    ExpectNothingIsCut(dialog);
    const auto& types = *dialog.findChild<QListWidget*>();
    EXPECT_LE(types.sizeHintForColumn(0), types.viewport()->width()) << "the longest type is cut";
}

TEST_P(WindowPictures, TheDialogThatAddsAProbeFitsOnASmallScreen) {
    const QScreen* const small = QGuiApplication::screens().back();
    if (small == QGuiApplication::primaryScreen())
        GTEST_SKIP() << "there is one screen only";
    QWidget onIt;
    onIt.move(small->geometry().topLeft() + QPoint(10, 10));
    onIt.show();
    ProbeDocument document(nullptr);
    ProbeDialog dialog(&onIt, document, QString(), [] {});
    dialog.show();
    TakePicture(dialog, "add-small");
    ASSERT_EQ(dialog.screen(), small);
    EXPECT_LT(dialog.height(), small->availableSize().height());
    ExpectNothingIsCut(dialog);
}

TEST_P(WindowPictures, MarksFindingsValuesAndTheBarAreSeen) {
    const TempFolder files;
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", files.Path("laboratory.ini"));
    const std::string text = files.Read("laboratory.ini");
    std::string strange = text +
                          "[Probe 30]\nVersion=1.0\nConversionType=19\n[Probe 30 - Settings]\n"
                          "Version=1.0\nNumCoefficients=1\nCoefficients0=NaN\n"
                          "[Probe 31 with a name that is as long as names of probes become]\nVersion=1.0\n"
                          "ConversionType=2\n";
    files.Write("laboratory.ini", strange);
    MainWindow window(nullptr, QString());
    window.show();
    ASSERT_TRUE(window.OpenPath(QuorConversions::QtToolkit::ToQt(files.Name("laboratory.ini"))));
    window.Table().scrollToBottom();
    window.Table().selectionModel()->setCurrentIndex(
        window.Table().model()->index(0, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    window.findChild<QAction*>("check")->trigger();
    window.Table().scrollToBottom();
    TakePicture(window, "panes");
    ExpectNothingIsCut(window);
    files.Write("laboratory.ini", strange + "; by another program\n");
    auto* const bar = window.findChild<QWidget*>("reloadBar");
    ASSERT_TRUE(QTest::qWaitFor([bar] { return bar->isVisible(); }, 60'000));
    TakePicture(window, "reload");
    ExpectNothingIsCut(window);
    window.resize(800, 600);
    TakePicture(window, "small");
    if (GetParam().pointSize > 0)
        return; // letters that large have no room on that screen
    const auto& table = window.Table();
    const auto conversions = ProbeTableModel::ConversionColumn;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        const QString conversion = table.model()->index(row, conversions).data().toString();
        EXPECT_GT(table.columnWidth(conversions), table.fontMetrics().horizontalAdvance(conversion))
            << conversion.toStdString();
    }
    EXPECT_LE(table.header()->length(), table.viewport()->width());
}

TEST_P(WindowPictures, TheDialogThatChangesATypeHasItInSight) {
    ProbeDocument document(nullptr);
    TypeChoice type(QuorConversions::CONV_TCTYPEPOLY);
    type.letter = QuorConversions::TCTYPE_S;
    ProbeDialog dialog(nullptr, "Probe 9 PRT-1182", type, [] {});
    dialog.show();
    TakePicture(dialog, "type");
    ExpectNothingIsCut(dialog);
    dialog.findChild<QLineEdit*>("typeFilter")->setText("K");
    TakePicture(dialog, "type-filtered");
}

TEST_P(WindowPictures, AboutShowsAllItsTexts) {
    MainWindow window(nullptr, QString());
    Support::WhenShown([](QWidget& shown) { return qobject_cast<QMessageBox*>(&shown) != nullptr; },
                       [this](QWidget& shown) {
                           TakePicture(shown, "about");
                           ExpectNothingIsCut(shown);
                           shown.close();
                       });
    window.findChild<QAction*>("about")->trigger();
}

#ifdef QUOR_HELP
TEST_P(WindowPictures, TheHelpShowsItsTopicsAndWhatASearchHasFound) {
    QString collection = QStringLiteral(QUOR_HELP);
    if (GetParam().language == QLocale::German)
        collection.replace(QStringLiteral(".qhc"), QStringLiteral("_de.qhc"));
    QuorConversions::QtToolkit::HelpWindow help;
    help.ShowTopic(QuorConversions::QtToolkit::FromQt(collection), 10108);
    const auto& topics = *help.findChild<QHelpContentWidget*>();
    ASSERT_TRUE(QTest::qWaitFor([&topics] { return topics.model()->rowCount() > 1; }, 60'000));
    TakePicture(help, "help");
    EXPECT_LE(topics.header()->length(), topics.viewport()->width()) << "the tree is wide enough";
    help.findChild<QLineEdit*>("search")->setText("R0");
    TakePicture(help, "help-search");
    ExpectNothingIsCut(help);
}
#endif

TEST_P(WindowPictures, APageOfPaperIsThere) {
    ProbeDocument document(QuorConversions::DefaultPlatform());
    document.Open(L"" QUOR_SAMPLES "/laboratory.ini");
    QuorConversions::QtToolkit::QtPlatform platform;
    QTextDocument paper;
    paper.setDefaultFont(QFont(QStringLiteral("Sans Serif"), 10));
    ProbeReport::Write(document, platform, {0, 15}, QDateTime({2024, 3, 1}, {14, 5}), paper);
    QPdfWriter pdf(QStringLiteral("%1/paper-%2.pdf").arg(folder, GetParam().name));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    paper.print(&pdf);
}

INSTANTIATE_TEST_SUITE_P(Looks, WindowPictures, testing::ValuesIn(Support::looks),
                         [](const auto& tested) { return Support::TestName(tested.param); });
