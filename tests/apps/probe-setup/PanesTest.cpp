// The panes of the window: findings and values.

#include "tests/apps/probe-setup/WindowTest.h"

#include <QClipboard>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QTreeWidget>

namespace {

const std::string withFindings = "[Right]\nConversionType=10\n"
                                 "[Short]\nConversionType=19\n[Short - Settings]\nNumCoefficients=1\n"
                                 "[Odd]\nConversionType=19\n[Odd - Settings]\nNumCoefficients=1\n"
                                 "Coefficients0=0\n";

class Panes : public WindowTest {
protected:
    /// The rows of a pane's list, columns with a bar between them.
    [[nodiscard]] QStringList Rows(const char* list) const {
        QCoreApplication::processEvents(); // values are filled in when nothing else is to be done
        QStringList rows;
        const auto& tree = Find<QTreeWidget>(list);
        for (int row = 0; row < tree.topLevelItemCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < tree.columnCount(); ++column)
                cells += tree.topLevelItem(row)->text(column);
            rows += cells.join('|');
        }
        return rows;
    }
};

} // namespace

TEST_F(Panes, AMarkInTheListTellsWhatIsWrongWithAProbe) {
    Open(withFindings);
    EXPECT_TRUE(Row(0).data(Qt::DecorationRole).isNull());
    EXPECT_FALSE(Row(1).data(Qt::DecorationRole).isNull());
    EXPECT_FALSE(Row(2).data(Qt::DecorationRole).isNull());
    const auto tip = [this](int row) {
        return QTextDocumentFragment::fromHtml(Row(row).data(Qt::ToolTipRole).toString()).toPlainText();
    };
    EXPECT_EQ(tip(0), "Right");
    EXPECT_EQ(tip(1), "Short\nCoefficients0: Error: the key is missing");
    EXPECT_EQ(tip(2), "Odd\nCoefficients0: Warning: R0 is 0; limit: above 0");
    EXPECT_EQ(Row(1).data(Qt::AccessibleTextRole).toString(),
              "Short, Coefficients0: Error: the key is missing");
    WhenShown<QDialog>([](QDialog& dialog) {
        auto* const box = dialog.findChild<QLineEdit*>("txtCoefficients(0)");
        box->selectAll();
        QTest::keyClicks(box, "100");
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOKCancelHelp(0)"), Qt::LeftButton);
    });
    GoTo(2);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Row(2).data(Qt::DecorationRole).isNull()) << "it is mended";
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(Row(2).data(Qt::DecorationRole).isNull());
}

TEST_F(Panes, CheckListsAllFindingsAndEnterGoesThere) {
    Open(withFindings);
    EXPECT_FALSE(Find<QDockWidget>("findings").isVisible());
    Press(Qt::Key_F7);
    EXPECT_TRUE(Find<QDockWidget>("findings").isVisible());
    EXPECT_EQ(Rows("findingList"), (QStringList{"Short|5|Coefficients0|Error: the key is missing",
                                                "Odd|11|Coefficients0|Warning: R0 is 0; limit: above 0"}));
    EXPECT_EQ(Find<QLabel>("findingSummary").text(), "Findings: 2");
    auto& list = Find<QTreeWidget>("findingList");
    EXPECT_TRUE(list.hasFocus()) << "the keys of the person are in the list";
    EXPECT_EQ(list.currentItem(), list.topLevelItem(0));
    QTest::keyClicks(&Find<QLineEdit>("find"), "Right"); // hides the others
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(Table().currentIndex().data().toString(), "Odd");
    EXPECT_TRUE(Table().hasFocus());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.topLevelItem(0)).center());
    EXPECT_EQ(Table().currentIndex().data().toString(), "Short");
}

TEST_F(Panes, CheckSaysThatThereAreNoFindings) {
    Press(Qt::Key_F7);
    EXPECT_EQ(Find<QLabel>("findingSummary").text(),
              "No findings: all probes can be read, and their values are plausible.");
    EXPECT_EQ(Rows("findingList"), QStringList{});
}

TEST_F(Panes, AFileOfVeryManyProbesIsCheckedWhenThePersonAsks) {
    std::string text = "[Odd]\nConversionType=19\n[Odd - Settings]\nNumCoefficients=1\nCoefficients0=0\n";
    for (int i = 0; i < 5000; ++i)
        text += "[Probe " + std::to_string(i) + "]\nConversionType=10\n";
    Open(text);
    EXPECT_TRUE(Row(0).data(Qt::DecorationRole).isNull());
    EXPECT_EQ(Find<QLabel>("findingSummary").text(),
              "This file is large: it is checked when you ask for it (F7).");
    Press(Qt::Key_F7);
    EXPECT_EQ(Find<QLabel>("findingSummary").text(), "Findings: 1");
    EXPECT_FALSE(Row(0).data(Qt::DecorationRole).isNull());
}

TEST_F(Panes, TheValuesOfTheSelectedProbesAreShownWithUnits) {
    GoTo(0);
    EXPECT_EQ(Rows("valueList"),
              (QStringList{"Conversion|Callendar-Van Dusen|", QString::fromUtf8("R0|100|Ω"),
                           QString::fromUtf8("ALPHA|0.0039083|°C⁻¹"), QString::fromUtf8("DELTA|1.5|°C"),
                           QString::fromUtf8("BETA|0|°C")}));
    GoTo(1);
    EXPECT_EQ(Rows("valueList"), QStringList{"Conversion|Ohms|"});
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Rows("valueList").size(), 8);
    EXPECT_EQ(Rows("valueList")[0], "Probe 1||");
    EXPECT_EQ(Rows("valueList")[6], "Probe 2||");
}

TEST_F(Panes, WhatIsCopiedAreTheValuesOfTheProbeThatWasSelectedLast) {
    GoTo(1);
    EXPECT_EQ(Rows("valueList"), QStringList{"Conversion|Ohms|"});
    GoTo(0); // and the next key comes at once
    Action("copyText").trigger();
    EXPECT_EQ(QApplication::clipboard()->text(),
              QString::fromUtf8("Conversion = Callendar-Van Dusen\nR0 = 100 Ω\nALPHA = 0.0039083 °C⁻¹\n"
                                "DELTA = 1.5 °C\nBETA = 0 °C\n"));
}

TEST_F(Panes, ValuesAreCopiedAsATableAndAsText) {
    GoTo(0);
    auto& list = Find<QTreeWidget>("valueList");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    EXPECT_EQ(data->text(), QString::fromUtf8("Conversion\tCallendar-Van Dusen\t\nR0\t100\tΩ\n"
                                              "ALPHA\t0.0039083\t°C⁻¹\nDELTA\t1.5\t°C\nBETA\t0\t°C\n"));
    EXPECT_TRUE(data->html().contains(QString::fromUtf8("<tr><td>R0</td><td>100</td><td>Ω</td></tr>")))
        << data->html().toStdString();
    list.topLevelItem(1)->setSelected(true);
    Action("copyText").trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("R0 = 100 Ω\n"));
}
