// What a person sees of the window and of the dialog that adds a probe: light, dark, German, in large letters
// and from right to left. The pictures are left in the folder "pictures", for people to look at.

#include "apps/probe-setup/MainWindow.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "tests/toolkits/qt/QtScreen.h"
#include "toolkits/qt/Translations.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPalette>
#include <QPushButton>
#include <QStyle>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <QTreeView>

#include <ostream>

using namespace ProbeSetup;

namespace {

struct Look {
    const char* name;
    bool dark;
    bool german;
    int pointSize; ///< 0 for the usual one
    Qt::LayoutDirection direction;
};

const Look looks[] = {
    {"light", false, false, 0, Qt::LeftToRight},       {"dark", true, false, 0, Qt::LeftToRight},
    {"german", false, true, 0, Qt::LeftToRight},       {"large", false, false, 18, Qt::LeftToRight},
    {"large-german", true, true, 18, Qt::LeftToRight}, {"mirrored", false, false, 0, Qt::RightToLeft},
};

void PrintTo(const Look& look, std::ostream* out) { *out << look.name; }

QPalette Dark() {
    QPalette palette(QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    return palette;
}

class WindowPictures : public testing::TestWithParam<Look> {
protected:
    void SetUp() override {
        const Look& look = GetParam();
        if (look.dark)
            QApplication::setPalette(Dark());
        QFont font = m_font;
        if (look.pointSize > 0)
            font.setPointSize(look.pointSize);
        QApplication::setFont(font);
        QLocale::setDefault(look.german ? QLocale(QLocale::German) : QLocale::c());
        QuorConversions::QtToolkit::InstallTranslations(QLocale());
        if (look.german) {
            ASSERT_TRUE(m_texts.load(":/probe-setup/translations/probe-setup_de.qm"));
            QCoreApplication::installTranslator(&m_texts);
        }
        QApplication::setLayoutDirection(look.direction);
        ASSERT_TRUE(QDir().mkpath("pictures"));
    }
    void TearDown() override {
        QCoreApplication::removeTranslator(&m_texts);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(QLocale::c());
        QuorConversions::QtToolkit::InstallTranslations(QLocale());
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
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
            if (button->isVisible()) {
                EXPECT_LE(button->minimumSizeHint().width(), button->width()) << button->text().toStdString();
            }
        }
    }

    QPalette m_palette = QApplication::palette();
    QFont m_font = QApplication::font();
    QTranslator m_texts;
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

INSTANTIATE_TEST_SUITE_P(Looks, WindowPictures, testing::ValuesIn(looks), [](const auto& look) {
    return QString(look.param.name).replace('-', '_').toStdString();
});
