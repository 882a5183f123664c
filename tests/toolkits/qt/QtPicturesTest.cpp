// What a person sees of the twelve dialogs, checked by measure: at the scale of this process
// (QT_SCALE_FACTOR), in a light and a dark palette, in two languages, in large letters, from right to left.
// The pictures are left in the folder "pictures", by scale, for people to look at.

#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"
#include "tests/support/TestedScreen.h"
#include "tests/toolkits/qt/Looks.h"
#include "tests/toolkits/qt/QtScreen.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>

#include <algorithm>

using namespace QuorConversions;
using QtToolkit::FromQt;
using Scripted::Person;
using Support::Dressed;
using Support::LetLayOut;
using Support::QtInputDriver;
using Support::settingsClasses;

namespace {

/// The longest number: 17 digits, two signs, three digits of exponent.
const wchar_t* const longestNumber = L"-2.2250738585072014e-308";

QRect PlaceIn(const QWidget& widget, const QWidget& window) {
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

/// How wide the widget has to be to show all of its text; 0 where that is no matter.
int WidthOfText(const QWidget& widget) {
    const QFontMetrics metrics = widget.fontMetrics();
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        return label->wordWrap() ? 0 : metrics.size(Qt::TextShowMnemonic, label->text()).width();
    }
    if (const auto* const button = qobject_cast<const QPushButton*>(&widget)) {
        return metrics.size(Qt::TextShowMnemonic, button->text()).width();
    }
    if (const auto* const box = qobject_cast<const QLineEdit*>(&widget)) {
        const int frame = 2 * (box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, box) + 2);
        return metrics.horizontalAdvance(box->text()) + frame;
    }
    if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) {
        return list->sizeHint().width(); // that of its longest item
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
        return metrics.horizontalAdvance(group->title());
    }
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        return tabs->sizeHint().width();
    }
    return 0;
}

void ExpectWellDrawn(const QWidget& window, const Dialog& dialog) {
    const auto& area = *window.findChild<QScrollArea*>();
    const QWidget& content = *area.widget();
    EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << "rows must not be cut at the side";
    EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << "there is room for all rows on this screen";
    std::vector<const QWidget*> controls;
    for (const auto& control : dialog.Controls()) {
        const auto* const widget = window.findChild<QWidget*>(QtToolkit::ToQt(control->Name()));
        ASSERT_NE(widget, nullptr);
        if (!widget->isVisible())
            continue;
        SCOPED_TRACE(testing::PrintToString(control->Name()));
        const QRect place = PlaceIn(*widget, content);
        EXPECT_TRUE(content.rect().contains(place)) << "it stands outside of its window";
        EXPECT_LE(WidthOfText(*widget), widget->width()) << "its text is cut";
        if (const auto* const label = qobject_cast<const QLabel*>(widget); label && label->wordWrap()) {
            EXPECT_LE(label->heightForWidth(label->width()), label->height()) << "its lines are cut";
        }
        if (control->Kind() != ControlKind::Frame) {
            EXPECT_LE(widget->minimumSizeHint().height(), widget->height()) << "its text is cut";
            for (const QWidget* const other : controls)
                EXPECT_FALSE(place.intersects(PlaceIn(*other, content)))
                    << "it overlaps " << other->objectName().toStdString();
            controls.push_back(widget);
        }
        if (control->Kind() == ControlKind::TextBox) {
            EXPECT_FALSE(widget->accessibleName().isEmpty());
        }
    }
    EXPECT_GT(controls.size(), 5U);
}

class QtPicturesTest : public testing::TestWithParam<Support::Look> {
protected:
    static QString Folder() {
        QString folder = QStringLiteral("pictures/") + qEnvironmentVariable("QT_SCALE_FACTOR", "1") +
                         QLatin1Char('/') + QLatin1String(GetParam().name);
        EXPECT_TRUE(QDir().mkpath(folder));
        return folder;
    }
};

} // namespace

TEST_P(QtPicturesTest, EveryDialogShowsAllItsTextsAndNoTwoControlsOverlap) {
    const Dressed dressed(GetParam());
    const QString folder = Folder();
    for (const auto& settingsClass : settingsClasses) {
        SCOPED_TRACE(testing::PrintToString(settingsClass));
        const auto platform = std::make_shared<Scripted::ScriptedPlatform>(Support::TestedScreen());
        platform->SetDecimalSeparator(FromQt(QLocale().decimalPoint()));
        const auto settings = Support::NewSettings<SettingsObject>(settingsClass.code, platform);
        if (const auto its90 = std::dynamic_pointer_cast<CQuorITS90>(settings)) {
            its90->LowRange()->SetRange(ITS90_RANGE_5);
            its90->HighRange()->SetMinRange(ITS90_RANGE_6); // now range 5 needs the note
            its90->HighRange()->SetRange(ITS90_RANGE_6);
        }
        platform->InDialog([&](Person& person) {
            std::wstring number = longestNumber;
            std::replace(number.begin(), number.end(), L'.', FromQt(QLocale().decimalPoint()).front());
            for (const auto& control : person.Sees().Controls())
                if (control->Kind() == ControlKind::TextBox && control->IsUsable())
                    person.Type(control->Name(), number);
            QWidget& window = *QApplication::activeModalWidget();
            LetLayOut();
            ExpectWellDrawn(window, person.Sees());
            if (!QString::fromLatin1(GetParam().name).contains(QLatin1String("large"))) {
                EXPECT_LE(window.width(), 640) << "it scrolls on the narrowest screens";
            }
            EXPECT_TRUE(window.grab().save(folder + QLatin1Char('/') + window.objectName() + ".png"));
            if (settingsClass.code == CONV_ITS90) {
                person.TurnTo(TableText(IDS_HIGH_RANGE));
                LetLayOut();
                ExpectWellDrawn(window, person.Sees());
                EXPECT_TRUE(
                    window.grab().save(folder + QLatin1Char('/') + window.objectName() + "-high.png"));
            }
            person.Escape();
        });
        EXPECT_FALSE(settings->Edit());
        EXPECT_TRUE(platform->NothingLeft()) << testing::PrintToString(platform->Complaints());
    }
}

TEST_P(QtPicturesTest, AdviceAndFocusAreSeenAndTakeNoRoomFromTheRows) {
    const Dressed dressed(GetParam());
    const QString folder = Folder();
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>(Support::TestedScreen());
    platform->SetDecimalSeparator(FromQt(QLocale().decimalPoint()));
    const auto settings = Support::NewSettings<CQuorITS90>(CONV_ITS90, platform);
    settings->LowRange()->SetRange(ITS90_RANGE_4);
    settings->SetRTPW(25.48317);
    settings->SetRTPWFormat(L"0.00");
    settings->HighRange()->SetRange(ITS90_RANGE_7);
    settings->HighRange()->SetValueFormat(L"0.00");
    for (std::int32_t i = 0; i < settings->HighRange()->NumCoefficients(); ++i)
        settings->HighRange()->SetCoefficients(i, -1.2345678901234567e-4);
    platform->InDialog([&](Person& person) {
        QWidget& window = *QApplication::activeModalWidget();
        const auto take = [&](const char* name) {
            LetLayOut();
            ExpectWellDrawn(window, person.Sees());
            EXPECT_TRUE(window.grab().save(folder + QLatin1Char('/') + QLatin1String(name) + ".png"));
        };
        const auto takeAdvice = [&](const char* name) {
            take(name);
            const auto& line = *window.findChild<QLabel*>(QStringLiteral("advice"));
            EXPECT_FALSE(line.text().isEmpty());
            EXPECT_LE(line.heightForWidth(line.width()), line.height()) << "its lines are cut";
            EXPECT_EQ(line.visibleRegion().boundingRect(), line.rect()) << "it is cut";
        };
        takeAdvice("advice-of-a-format");
        person.GoTo(L"tabRange");
        take("focus-on-tabs");
        person.GoTo(L"cboLowRange");
        take("focus-on-list");
        person.Paste(L"txtLowCoefficient(0)", L"-1.23E-4 \u00B1 0.02");
        EXPECT_FALSE(person.Advice(L"txtLowCoefficient(0)").empty());
        takeAdvice("advice-on-a-paste");
        person.Paste(L"txtLowCoefficient(0)",
                     L"Resistance at the triple point of water in the certificate: 5");
        takeAdvice("advice-on-a-name");
        person.TurnTo(TableText(IDS_HIGH_RANGE));
        person.Choose(L"cboHighRange", TableText(IDS_NO_RANGE));
        person.Choose(L"cboHighRange", TableText(IDS_RANGE_7));
        person.TurnTo(TableText(IDS_LOW_RANGE));
        takeAdvice("advice-on-another-page");
        person.GoTo(L"cmdOKCancelHelp(0)");
        take("focus-on-button");
        person.Escape();
    });
    EXPECT_FALSE(settings->Edit());
    EXPECT_TRUE(platform->NothingLeft()) << testing::PrintToString(platform->Complaints());
}

INSTANTIATE_TEST_SUITE_P(Looks, QtPicturesTest, testing::ValuesIn(Support::looks),
                         [](const auto& tested) { return Support::TestName(tested.param); });
