// What a person sees of the window and of the dialog that adds a probe: light, dark, German, in large letters
// and from right to left. The pictures are left in the folder "pictures", for people to look at.

#include "apps/probe-setup/MainWindow.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "tests/toolkits/qt/Looks.h"
#include "tests/toolkits/qt/QtScreen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <QTreeView>

using namespace ProbeSetup;

namespace {

class WindowPictures : public testing::TestWithParam<Support::Look> {
protected:
    void SetUp() override {
        if (GetParam().language == QLocale::German) {
            ASSERT_TRUE(m_texts.load(":/probe-setup/translations/probe-setup_de.qm"));
            QCoreApplication::installTranslator(&m_texts);
        }
        ASSERT_TRUE(QDir().mkpath("pictures"));
    }

    static void TakePicture(QWidget& window, const char* name) {
        Support::LetLayOut();
        EXPECT_TRUE(window.grab().save(QStringLiteral("pictures/%1-%2.png").arg(name, GetParam().name)));
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

INSTANTIATE_TEST_SUITE_P(Looks, WindowPictures, testing::ValuesIn(Support::looks),
                         [](const auto& tested) { return Support::TestName(tested.param); });
