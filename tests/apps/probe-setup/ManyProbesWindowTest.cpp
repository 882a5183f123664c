// Commands of the window for several probes, the clipboard, the order of the list, paper, and what other
// programs do to the file meanwhile.

#include "QuorConversions/qt/QtPlatform.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "apps/probe-setup/ProbeReport.h"
#include "apps/probe-setup/ProbeTableModel.h"
#include "apps/probe-setup/ReportCommands.h"
#include "apps/probe-setup/TypeTexts.h"
#include "tests/apps/probe-setup/WindowTest.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTextDocument>

#include <filesystem>
#include <map>

using namespace ProbeSetup;
using QuorConversions::QtToolkit::FromQt;

namespace {

class ManyProbesWindow : public WindowTest {
protected:
    void SelectAll() const {
        GoTo(0);
        Press(Qt::Key_A, Qt::ControlModifier);
    }
    void ClickHeader(int column) const {
        auto* const header = Table().header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 5, header->height() / 2});
    }
};

} // namespace

TEST_F(ManyProbesWindow, ACommandForOneProbeSaysWhyItIsDisabled) {
    GoTo(0);
    EXPECT_TRUE(Action("edit").isEnabled());
    EXPECT_EQ(Action("edit").toolTip(), "Edit the settings of the conversion");
    SelectAll();
    for (const char* const name : {"edit", "rename"}) {
        EXPECT_FALSE(Action(name).isEnabled()) << name;
        EXPECT_EQ(Action(name).toolTip(), "This can be done with one probe only") << name;
        EXPECT_EQ(Action(name).statusTip(), "This can be done with one probe only") << name;
    }
    for (const char* const name : {"changeType", "duplicate", "remove", "export", "copy", "print", "pdf"})
        EXPECT_TRUE(Action(name).isEnabled()) << name;
    Table().clearSelection();
    EXPECT_EQ(Action("remove").toolTip(), "No probe is selected");
}

TEST_F(ManyProbesWindow, EveryCommandCanBeUsedOrItsToolTipSaysWhyNot) {
    const std::map<QString, QString> none{{"export", "No probe is selected"},
                                          {"print", "No probe is selected"},
                                          {"pdf", "No probe is selected"},
                                          {"copy", "No probe is selected"},
                                          {"edit", "No probe is selected"},
                                          {"rename", "No probe is selected"},
                                          {"changeType", "No probe is selected"},
                                          {"duplicate", "No probe is selected"},
                                          {"remove", "No probe is selected"},
                                          {"save", "There are no changes to save"},
                                          {"undo", "There is no change to take back"},
                                          {"redo", "There is no change to make again"}};
    const std::map<QString, QString> one{{"save", "There are no changes to save"},
                                         {"undo", "There is no change to take back"},
                                         {"redo", "There is no change to make again"}};
    std::map<QString, QString> several = one;
    several["edit"] = several["rename"] = "This can be done with one probe only";
    std::map<QString, QString> readOnly = one;
    for (const char* const name :
         {"save", "import", "paste", "add", "rename", "changeType", "duplicate", "remove"})
        readOnly[name] = "The file is read-only";

    const auto disabled = [this] {
        std::map<QString, QString> reasons;
        for (QAction* const action : window->findChildren<QAction*>()) {
            const bool isCommand = !action->objectName().isEmpty() && !action->menu() &&
                                   !action->objectName().startsWith('_') && !action->isSeparator();
            if (isCommand && !action->isEnabled() && action->parent() != Table().viewport()) {
                EXPECT_EQ(action->toolTip(), action->statusTip()) << action->objectName().toStdString();
                reasons[action->objectName()] = action->toolTip();
            }
        }
        return reasons;
    };
    Table().clearSelection();
    EXPECT_EQ(disabled(), none);
    GoTo(0);
    EXPECT_EQ(disabled(), one);
    SelectAll();
    EXPECT_EQ(disabled(), several);
    GoTo(0);
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(disabled(), (std::map<QString, QString>{{"redo", "There is no change to make again"}}));
    EXPECT_EQ(Action("save").toolTip(), "Write the changes into the file");
    Press(Qt::Key_Z, Qt::ControlModifier);
    GoTo(0);
    EXPECT_EQ(disabled(), (std::map<QString, QString>{{"save", "There are no changes to save"},
                                                      {"undo", "There is no change to take back"}}));
    std::filesystem::permissions(folder.Path("host.ini"), std::filesystem::perms::owner_read);
    ASSERT_TRUE(window->OpenPath(Path("host.ini")));
    if (!window->Document().IsReadOnly())
        GTEST_SKIP() << "this user may write every file";
    GoTo(0);
    EXPECT_EQ(disabled(), readOnly);
}

TEST_F(ManyProbesWindow, EveryCommandForProbesTakesTheWholeSelection) {
    SelectAll();
    Press(Qt::Key_C, Qt::ControlModifier);
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains("[Probe 1]") && copied.contains("[Probe 2]")) << copied.toStdString();
    Action("duplicate").trigger();
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2", "Probe 1 (2)", "Probe 2 (2)"}));
    Action("remove").trigger(); // the copies, which are selected
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2"}));
    SelectAll();
    WhenShown<QDialog>([](QDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>("typeFilter"), "Ratio");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Action("changeType").trigger();
    EXPECT_EQ(window->Document().Type(0), QuorConversions::CONV_RATIO);
    EXPECT_EQ(window->Document().Type(1), QuorConversions::CONV_RATIO);
    SelectAll();
    WhenShown<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(Path("both.pdf"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Action("pdf").trigger();
    const std::string pdf = folder.Read("both.pdf");
    std::size_t pages = 0;
    for (auto at = pdf.find("/Type /Page\n"); at != std::string::npos; at = pdf.find("/Type /Page\n", at + 1))
        ++pages;
    EXPECT_EQ(pages, 2U);
    Action("remove").trigger();
    EXPECT_EQ(Names(), QStringList{});
}

TEST_F(ManyProbesWindow, ChangeTypeBeginsWithTheTypeOfEachProbeOfTheLaboratory) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    ASSERT_TRUE(window->OpenPath(Path("laboratory.ini")));
    ASSERT_EQ(Table().model()->rowCount(), 29);
    for (int row = 0; row < Table().model()->rowCount(); ++row) {
        SCOPED_TRACE(Row(row).data().toString().toStdString());
        const auto probe = static_cast<std::size_t>(row);
        const TypeChoice own = TypeChoice::Of(window->Document().Conversion(probe));
        ProbeDialog dialog(window.get(), "it", own, [] {});
        EXPECT_EQ(dialog.ChosenType(), own);
        dialog.show();
        const auto& list = *dialog.findChild<QListWidget*>("probeType");
        EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.currentItem()))) << "in sight";
    }
}

TEST_F(ManyProbesWindow, ChangeTypeBeginsWithNoneWhereTheTypeOfTheProbeIsNoChoice) {
    Open("[Probe 1]\nConversionType=99\n");
    GoTo(0);
    WhenShown<QDialog>([](QDialog& dialog) {
        auto& types = *dialog.findChild<QListWidget*>("probeType");
        EXPECT_TRUE(types.hasFocus());
        EXPECT_EQ(types.selectedItems(), QList<QListWidgetItem*>());
        const auto& ok = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        EXPECT_FALSE(ok.isEnabled()) << "Return gives the probe no type by chance";
        QTest::keyClick(&types, Qt::Key_Down);
        EXPECT_TRUE(ok.isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Action("changeType").trigger();
    EXPECT_FALSE(window->Document().Changed());
}

TEST_F(ManyProbesWindow, TheFilterOfTheTypesShowsThoseThatContainItsText) {
    ProbeDialog dialog(window.get(), "it", QuorConversions::CONV_PT100, [] {});
    auto& filter = *dialog.findChild<QLineEdit*>("typeFilter");
    const auto& list = *dialog.findChild<QListWidget*>("probeType");
    const auto& ok = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    dialog.show();
    const auto shown = [&list] {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            if (!list.item(row)->isHidden())
                texts += list.item(row)->text();
        return texts;
    };
    const QStringList all = shown();
    QTest::keyClicks(&filter, "type K");
    EXPECT_EQ(shown(), (QStringList{"TC Type K, deviation points", "TC Type K, deviation polynomial"}));
    EXPECT_EQ(list.currentItem()->text(), "TC Type K, deviation points") << "the first that is left";
    QTest::keyClick(&filter, Qt::Key_Down);
    EXPECT_EQ(list.currentItem()->text(), "TC Type K, deviation polynomial") << "the keys go to the list";
    ASSERT_TRUE(dialog.ChosenType());
    EXPECT_EQ(dialog.ChosenType()->type, QuorConversions::CONV_TCTYPEPOLY);
    EXPECT_EQ(dialog.ChosenType()->letter, QuorConversions::TCTYPE_K);
    QTest::keyClicks(&filter, "?");
    EXPECT_EQ(shown(), QStringList{});
    EXPECT_FALSE(dialog.ChosenType());
    EXPECT_FALSE(ok.isEnabled());
    filter.clear();
    EXPECT_EQ(shown(), all);
    EXPECT_TRUE(ok.isEnabled());
    EXPECT_FALSE(all.contains("<keep existing>"));
    for (const char* const letter : {"B", "C", "E", "J", "K", "L", "M", "N", "R", "S", "T", "U", "AuPt"})
        EXPECT_GE(all.filter(QStringLiteral("TC Type %1,").arg(letter)).size(), 1) << letter;
}

TEST_F(ManyProbesWindow, DuplicateTakesTheWholeSelectionAndUndoTakesItBackAtOnce) {
    SelectAll();
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2", "Probe 1 (2)", "Probe 2 (2)"}));
    EXPECT_EQ(Table().selectionModel()->selectedRows().size(), 2);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2"}));
}

TEST_F(ManyProbesWindow, ChangeTypeTakesTheWholeSelectionAndAFormIsChosenByTheFilterLine) {
    SelectAll();
    QString title;
    WhenShown<QDialog>([&](QDialog& dialog) {
        title = dialog.windowTitle();
        QTest::keyClicks(dialog.findChild<QLineEdit*>("typeFilter"), "a, b and");
        EXPECT_EQ(dialog.findChild<QListWidget*>("probeType")->currentItem()->text(),
                  "Callendar-Van Dusen, A, B and C");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(title, "Conversion type of 2 probes");
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(File().find("[Probe 1 - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\n"),
              std::string::npos)
        << File();
    EXPECT_NE(File().find("[Probe 2 - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\n"),
              std::string::npos);
}

TEST_F(ManyProbesWindow, ANewItsNinetyProbeGetsTheRangesThatAreChosen) {
    WhenShown<QDialog>([](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QListWidget*>("probeType")->currentItem()->text(), "ITS-90");
        const auto choose = [&dialog](const char* name, const char* range) {
            auto* const box = dialog.findChild<QComboBox*>(QString::fromLatin1(name));
            box->setCurrentText(QString::fromLatin1(range));
            EXPECT_EQ(box->currentText(), range);
        };
        choose("lowRange", "Range 4 (83K to 273K)");
        choose("highRange", "Range 7 (273K to 933K)");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    GoTo(0);
    Press(Qt::Key_Insert);
    const TypeChoice choice = TypeChoice::Of(window->Document().Conversion(2));
    EXPECT_EQ(choice.low, QuorConversions::ITS90_RANGE_4);
    EXPECT_EQ(choice.high, QuorConversions::ITS90_RANGE_7);
}

TEST_F(ManyProbesWindow, SeveralProbesAreExportedIntoAFolder) {
    Press(Qt::Key_Home);
    GoTo(0);
    Press(Qt::Key_D, Qt::ControlModifier);
    SelectAll();
    WhenShown<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(Path("."));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Action("export").trigger();
    EXPECT_TRUE(std::filesystem::exists(folder.Path("Probe 1.cvd")));
    EXPECT_TRUE(std::filesystem::exists(folder.Path("Probe 1 (2).cvd")));
    EXPECT_TRUE(window->statusBar()->currentMessage().startsWith("2 probes are written into "))
        << window->statusBar()->currentMessage().toStdString();
    EXPECT_TRUE(window->statusBar()->currentMessage().endsWith(". Without settings, and left out: Probe 2"))
        << window->statusBar()->currentMessage().toStdString();
}

TEST_F(ManyProbesWindow, WhatNeedsSettingsIsDisabledWithTheReasonForProbesWithoutAny) {
    GoTo(1);
    for (const char* const name : {"edit", "export"}) {
        EXPECT_FALSE(Action(name).isEnabled()) << name;
        EXPECT_EQ(Action(name).toolTip(), "Conversions of this kind have no settings");
    }
    Open("[P]\nConversionType=99\n[Q]\n");
    GoTo(0);
    EXPECT_TRUE(Action("edit").isEnabled()) << "it tells why a type that is not known has no dialog";
    EXPECT_FALSE(Action("export").isEnabled());
    EXPECT_EQ(Action("export").toolTip(), "The conversion type is not known");
    Open("[P]\nConversionType=99\n[Q]\nConversionType=abc\n" + host);
    SelectAll();
    EXPECT_TRUE(Action("export").isEnabled()) << "one of them can be exported";
    Table().selectionModel()->select(QItemSelection(Row(2), Row(3)),
                                     QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    EXPECT_EQ(Action("export").toolTip(), "The conversion type is not known");
}

TEST_F(ManyProbesWindow, SaveAsOntoTheOwnFileKeepsTheProbeThatIsSelected) {
    window->Document().Rename(1, L"Second");
    GoTo(1);
    folder.Write("host.ini", "[A]\nConversionType=10\n" + host);
    WhenShown<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(Path("host.ini"));
        WillAnswer(QMessageBox::Yes); // it is there already
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Action("saveAs").trigger();
    EXPECT_EQ(Names(), (QStringList{"A", "Probe 1", "Second"}));
    EXPECT_EQ(Table().currentIndex().data().toString(), "Second");
}

TEST_F(ManyProbesWindow, ProbesGoThroughTheClipboardAsText) {
    SelectAll();
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("[Probe 1]\nVersion=1.0\nConversionType=2\n"));
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2", "Probe 1 (2)", "Probe 2 (2)"}));
    QString text;
    WillAnswer(QMessageBox::Ok, &text);
    QApplication::clipboard()->setText("Good morning");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text, "The text on the clipboard cannot be pasted.|It contains no probe: a probe starts with "
                    "its name in square brackets and has the key \"ConversionType\".");
}

TEST_F(ManyProbesWindow, AClickOnAHeadingSortsAndTheThirdOneGivesTheOrderOfTheFile) {
    Open("[P 10]\nConversionType=11\n[P 9]\nConversionType=10\n[p 1]\nConversionType=11\n");
    ClickHeader(0);
    EXPECT_EQ(Names(), (QStringList{"p 1", "P 9", "P 10"})) << "numbers by their value";
    ClickHeader(0);
    EXPECT_EQ(Names(), (QStringList{"P 10", "P 9", "p 1"}));
    GoTo(1);
    ClickHeader(0);
    EXPECT_EQ(Names(), (QStringList{"P 10", "P 9", "p 1"})) << "as in the file";
    EXPECT_EQ(Table().currentIndex().data().toString(), "P 9");
    ClickHeader(1);
    EXPECT_EQ(Names(), (QStringList{"P 9", "P 10", "p 1"})) << "by the conversion";
    GoTo(0);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Names(), (QStringList{"P 10", "p 1"}));
    EXPECT_FALSE(window->Document().Find(L"P 9"));
}

TEST_F(ManyProbesWindow, TheMenuSortsAsTheHeadingsDo) {
    Open("[P 10]\nConversionType=11\n[P 9]\nConversionType=10\n[p 1]\nConversionType=11\n");
    Action("sortByName").trigger();
    EXPECT_EQ(Names(), (QStringList{"p 1", "P 9", "P 10"}));
    Action("sortByName").trigger();
    EXPECT_EQ(Names(), (QStringList{"P 10", "P 9", "p 1"}));
    Action("sortByConversion").trigger();
    EXPECT_EQ(Names(), (QStringList{"P 9", "P 10", "p 1"}));
    Action("sortByFile").trigger();
    EXPECT_EQ(Names(), (QStringList{"P 10", "P 9", "p 1"}));
    EXPECT_EQ(Table().header()->sortIndicatorSection(), -1);
}

TEST_F(ManyProbesWindow, APageSaysAllOfAProbeAndHasLinesForDateAndSignature) {
    QTextDocument paper;
    QuorConversions::QtToolkit::QtPlatform platform;
    ProbeReport::Write(window->Document(), platform, {0, 1}, QDateTime({2024, 3, 1}, {14, 5}), paper);
    const QStringList lines = paper.toPlainText().split('\n', Qt::SkipEmptyParts);
    const QString rule(36, '_');
    EXPECT_EQ(lines.mid(0, 13), (QStringList{"Probe 1", "Conversion:", "Callendar-Van Dusen",
                                             "File:", Path("host.ini"), "Printed:", "2024-03-01 14:05",
                                             "Name", "Value", "Unit", "R0", "100", QString::fromUtf8("Ω")}));
    EXPECT_TRUE(paper.toPlainText().contains(QString::fromUtf8("ALPHA\n0.0039083\n°C⁻¹\n")));
    EXPECT_EQ(lines.count(rule), 6);
    EXPECT_TRUE(lines.contains("Signature:"));
    EXPECT_TRUE(lines.contains("This conversion has no values."));
}

TEST_F(ManyProbesWindow, APdfHasAPageForEachProbe) {
    SelectAll();
    WhenShown<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(Path("probes"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Action("pdf").trigger();
    const std::string pdf = folder.Read("probes.pdf");
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_NE(pdf.find("/Count 2"), std::string::npos);
    EXPECT_EQ(window->statusBar()->currentMessage(), Path("probes.pdf") + " is saved.");
}

TEST_F(ManyProbesWindow, NamesThatAreCutGetTheRoomThatConversionsLeaveEmpty) {
    Open("[Triple point cell no. 760 in the second bath of the laboratory]\nConversionType=10\n" + host);
    const auto isCut = [this](int column) {
        const QAbstractItemView& view = Table();
        return view.sizeHintForColumn(column) > Table().header()->sectionSize(column);
    };
    window->resize(700, 600);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isCut(ProbeTableModel::NameColumn));
    EXPECT_FALSE(isCut(ProbeTableModel::ConversionColumn));
    window->resize(1800, 600);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isCut(ProbeTableModel::NameColumn));
    EXPECT_FALSE(isCut(ProbeTableModel::ConversionColumn));
    window->resize(700, 600);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isCut(ProbeTableModel::ConversionColumn));
    std::string many = "[" + std::string(300, 'x') + "]\nConversionType=10\n";
    for (int i = 0; i < 100; ++i)
        many += "[Probe " + std::to_string(i) + "]\nConversionType=10\n";
    Open(many);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isCut(ProbeTableModel::NameColumn));
    EXPECT_FALSE(isCut(ProbeTableModel::ConversionColumn)) << "beside a scroll bar";
}

TEST_F(ManyProbesWindow, ABarOffersToReloadWhenAnotherProgramHasChangedTheFile) {
    auto& bar = Find<QFrame>("reloadBar");
    EXPECT_FALSE(bar.isVisible());
    folder.Write("host.ini", host + "[Probe 3]\nConversionType=11\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }));
    EXPECT_EQ(Find<QLabel>("reloadText").text(),
              "Another program has changed host.ini. The list shows an older state.");
    GoTo(1);
    QTest::mouseClick(&Find<QPushButton>("reload"), Qt::LeftButton);
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2", "Probe 3"}));
    EXPECT_EQ(Table().currentIndex().row(), 1);
    EXPECT_FALSE(bar.isVisible());

    folder.Write("host.ini", host); // a file that was replaced is watched on
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }));
}

TEST_F(ManyProbesWindow, ASaveOfOurOwnIsNoChangeOfAnotherProgram) {
    GoTo(0);
    Press(Qt::Key_D, Qt::ControlModifier);
    Press(Qt::Key_S, Qt::ControlModifier);
    QTest::qWait(500);
    EXPECT_FALSE(Find<QFrame>("reloadBar").isVisible());
}

TEST_F(ManyProbesWindow, NoDialogOpensOnValuesThatAnotherProgramHasChanged) {
    std::string changed = host;
    changed.replace(changed.find("100.0"), 5, "99.75");
    folder.Write("host.ini", changed);
    QString shown;
    WhenShown<QDialog>([&](QDialog& dialog) {
        shown = dialog.findChild<QLineEdit*>("txtCoefficients(0)")->text();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    GoTo(0);
    Press(Qt::Key_Return);
    EXPECT_EQ(shown, "99.75");

    window->Document().Rename(1, L"Ours");
    folder.Write("host.ini", host);
    QString text;
    WillAnswer(QMessageBox::Cancel, &text);
    Press(Qt::Key_Return);
    EXPECT_EQ(
        text,
        "Another program has changed \"Probe 1\" in the file.|Reload the file to see the current values.");
    EXPECT_TRUE(window->Document().Changed());
}

TEST_F(ManyProbesWindow, SaveAsGoesOnWithTheOtherFile) {
    WhenShown<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(Path("other"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window->Document().Path(), folder.Name("other.ini"));
    EXPECT_EQ(folder.Read("other.ini"), host);
    EXPECT_EQ(window->windowTitle(), QString::fromUtf8("other.ini[*] – Probe Setup"));
}

TEST_F(ManyProbesWindow, AStepOfProbesOfWhichTheFindBoxHidesSomeIsTakenBackAndShowsAll) {
    SelectAll();
    WhenShown<QDialog>([](QDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>("typeFilter"), "Ratio");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Action("changeType").trigger();
    QTest::keyClicks(&Find<QLineEdit>("find"), "Probe 1");
    ASSERT_EQ(Names(), QStringList{"Probe 1"});
    Action("undo").trigger();
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2"}));
    EXPECT_EQ(Table().selectionModel()->selectedRows().size(), 2);
    EXPECT_EQ(window->Document().Type(1), QuorConversions::CONV_OHMS);
}

TEST_F(ManyProbesWindow, WhatIsDoneWithOneProbeIsDoneWithTheOneThatIsSelected) {
    GoTo(0);
    const auto clickWithControl = [this](int row) {
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          Table().visualRect(Row(row)).center());
    };
    clickWithControl(1);
    clickWithControl(1);
    ASSERT_EQ(Table().currentIndex().row(), 1) << "it has the frame, and is not selected";
    ASSERT_EQ(Table().selectionModel()->selectedRows().value(0).row(), 0);
    WhenShown<QDialog>([](QDialog& dialog) {
        EXPECT_TRUE(
            dialog.findChild<QListWidget*>("probeType")->currentItem()->text().startsWith("Callendar"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Action("changeType").trigger();
    bool isEdited = false;
    WhenShown<QDialog>([&isEdited](QDialog& dialog) {
        isEdited = true;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Action("edit").trigger();
    EXPECT_TRUE(isEdited) << "it is the one with settings";
    Action("rename").trigger();
    QTest::keyClicks(Table().viewport()->findChild<QLineEdit*>(), "Reference");
    QTest::keyClick(Table().viewport()->findChild<QLineEdit*>(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Names()[0] == "Reference"; }));
    EXPECT_EQ(Names()[1], "Probe 2");
}

TEST_F(ManyProbesWindow, AProbeThatTheFindBoxHidesAfterAReloadIsShownAndEdited) {
    QTest::keyClicks(&Find<QLineEdit>("find"), "Callendar");
    ASSERT_EQ(Names(), QStringList{"Probe 1"});
    GoTo(0);
    folder.Write("host.ini", "[A]\nConversionType=10\n[Probe 1]\nConversionType=19\n[Probe 1 - Settings]\n"
                             "NumCoefficients=1\nCoefficients0=100.5\n");
    QString value;
    WhenShown<QDialog>([&value](QDialog& dialog) {
        value = dialog.findChild<QLineEdit*>("txtCoefficients(0)")->text();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Action("edit").trigger();
    EXPECT_EQ(value, "100.5");
    EXPECT_EQ(Names(), (QStringList{"A", "Probe 1"}));
    EXPECT_EQ(Table().currentIndex().data().toString(), "Probe 1");
}

TEST_F(ManyProbesWindow, WhatIsCopiedOrPrintedHasTheValuesOfTheFile) {
    const auto writeR0 = [this](const std::string& value) {
        std::string theirs = host;
        folder.Write("host.ini", theirs.replace(theirs.find("=100.0\n"), 7, "=" + value + "\n"));
    };
    SelectAll();
    writeR0("99.5");
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains("Coefficients0=99.5\n"));
    EXPECT_EQ(Table().selectionModel()->selectedRows().size(), 2) << "the selection outlives the reload";
    writeR0("99.25");
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_NE(window->Document().TextOf({2}).find(L"Coefficients0=99.25\n"), std::wstring::npos);

    writeR0("99.125"); // beside changes that are not saved
    SelectAll();
    for (const char* const command : {"pdf", "print", "export", "copy", "duplicate"}) {
        QString text;
        WillAnswer(QMessageBox::Cancel, &text);
        Action(command).trigger();
        EXPECT_EQ(text, "Another program has changed \"Probe 1\" in the file.|"
                        "Reload the file to see the current values.");
    }
    GoTo(1);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("[Probe 2]")) << "this one is as in the file";

    QTextDocument paper;
    QuorConversions::QtToolkit::QtPlatform platform;
    ProbeReport::Write(window->Document(), platform, {0}, QDateTime({2024, 3, 1}, {14, 5}), paper);
    EXPECT_TRUE(
        paper.toPlainText().contains("State:\nanother program has changed it in the file in the meantime\n"))
        << "also when it does so while the printer is chosen";
}

TEST_F(ManyProbesWindow, WhatOnlyReadsProbesThatAreAsInTheFileKeepsTheHistory) {
    GoTo(0);
    Press(Qt::Key_D, Qt::ControlModifier);
    Press(Qt::Key_Z, Qt::ControlModifier);
    std::string theirs = host;
    theirs.replace(theirs.rfind("10\n"), 2, "11");
    folder.Write("host.ini", theirs);
    QApplication::clipboard()->clear();
    GoTo(0);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("[Probe 1]"));
    EXPECT_EQ(window->Document().RedoKind(), StepKind::Duplicate);

    GoTo(1);
    QString text;
    WillAnswer(QMessageBox::Cancel, &text);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(
        text,
        "Another program has changed \"Probe 2\" in the file.|Reload the file to see the current values.");
    EXPECT_EQ(window->Document().RedoKind(), StepKind::Duplicate);
}

TEST_F(ManyProbesWindow, ProbesOfAFileThatIsGoneCanStillBeCopied) {
    std::filesystem::remove(folder.Path("host.ini"));
    QApplication::clipboard()->clear();
    GoTo(0);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("[Probe 1]"));
    EXPECT_EQ(Names(), (QStringList{"Probe 1", "Probe 2"}));
}

TEST_F(ManyProbesWindow, ACommandForProbesOfWhichOneIsGoneFromTheFileSaysWhichAndDoesNothing) {
    SelectAll();
    folder.Write("host.ini", host.substr(0, host.find("[Probe 2]")));
    QApplication::clipboard()->setText("before");
    QString text;
    WillAnswer(QMessageBox::Ok, &text);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(text, "Nothing was done. No longer in the file:|Probe 2");
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
    EXPECT_EQ(Names(), QStringList{"Probe 1"});
}
