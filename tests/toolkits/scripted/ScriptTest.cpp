#include "toolkits/scripted/Script.h"

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/DecimalSeparator.h"
#include "tests/support/Objects.h"
#include "tests/support/PasteRows.h"

#include <ios>
#include <sstream>

using namespace QuorConversions;
using QuorConversions::Scripted::Script;
using QuorConversions::Scripted::ScriptedPlatform;
using QuorConversions::Scripted::ScriptError;

namespace {

using Texts = std::vector<std::wstring>;

class ScriptTest : public testing::Test {
protected:
    Support::FreshDecimalSeparator fresh;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorCVD> cvd = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
    Texts printed;

    bool Edit(SettingsObject& settings, std::wstring_view script) {
        Script(script).PlayOn(*platform, [this](const std::wstring& screen) { printed.push_back(screen); });
        return settings.Edit();
    }
    bool Edit(std::wstring_view script) { return Edit(*cvd, script); }
};

/// What a script that cannot be read says of itself.
std::wstring Refused(std::wstring_view text, std::size_t ownLines = 0) {
    try {
        const Script script(text, ownLines);
    } catch (const ScriptError& error) {
        return error.text;
    }
    return L"";
}

} // namespace

TEST_F(ScriptTest, TypesIntoBoxesAndClicksButtons) {
    EXPECT_TRUE(Edit(L"type R0 100.0123\ntype ALPHA 3.9083E-3\ntype DELTA 1.5\nclick OK\n"));
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.0123);
    EXPECT_EQ(cvd->Coefficients(CVD_ALPHA), 3.9083E-3);
    EXPECT_TRUE(platform->NothingLeft());
    EXPECT_TRUE(printed.empty());
}

TEST_F(ScriptTest, SkipsBlankLinesRemarksAndBlanksAroundCommands) {
    EXPECT_FALSE(Edit(L"# a remark\r\n\r\n \t type  R0   7 \r\n  # another\n\nclick Cancel"));
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, ChoosesItemsOfLists) {
    const auto thermocouple = Support::NewSettings<CQuorTCTypeX>(CONV_TCTYPEX, platform);
    EXPECT_TRUE(Edit(*thermocouple, L"choose Type R\ntype DC1 0.5\ntype Temperature 2 20\nclick OK"));
    EXPECT_EQ(thermocouple->TCType(), TCTYPE_R);
    EXPECT_EQ(thermocouple->Coefficients(TCTYPEX_DC1), 0.5);
    EXPECT_EQ(thermocouple->Temperatures(TCTYPEX_T2), 20.0);
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, TurnsPages) {
    const auto its90 = Support::NewSettings<CQuorITS90>(CONV_ITS90, platform);
    EXPECT_TRUE(Edit(*its90, L"type RTPW 25.5\npage High Range\n"
                             L"choose Select high range to use Range 11 (273K to 302K)\n"
                             L"type A[11] -1e-4\nclick OK"));
    EXPECT_EQ(its90->HighRange()->Range(), ITS90_RANGE_11);
    EXPECT_EQ(its90->HighRange()->Coefficients(ITS90_HIGH_A), -1e-4);
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, PressesKeysAndMovesTheFocus) {
    cvd->SetCoefficients(CVD_DELTA, 9);
    EXPECT_TRUE(Edit(L"type R0 1\nenter\nkey 2\ntab\nbacktab\nbacktab\nkey 3\ntab\ntab\nkey 4e-1\nclick OK"));
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 3.0);
    EXPECT_EQ(cvd->Coefficients(CVD_ALPHA), 2.0);
    EXPECT_EQ(cvd->Coefficients(CVD_DELTA), 0.4);
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, LeavesByEscapeAndByTheFrame) {
    EXPECT_FALSE(Edit(L"type R0 1\nescape"));
    EXPECT_TRUE(Edit(L"type R0 1\nclose"));
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 0.0);
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, AnswersFileDialogs) {
    const auto file = std::make_shared<Support::MemoryIniFile>();
    platform->MakeIniFilesWith([&] { return file; });
    EXPECT_FALSE(Edit(L"type R0 1\ntype ALPHA 2\ntype DELTA 3\n"
                      L"nofile\nclick Save As\nfile C:\\my probes\\a b.cvd\nclick Save As\nescape"));
    ASSERT_FALSE(file->operations.empty());
    EXPECT_EQ(file->operations[0], L"FileName \"C:\\my probes\\a b.cvd\"");
    EXPECT_EQ(platform->FileRequests().size(), 2U);
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, GoesOnAfterTheMessageThatItExpects) {
    EXPECT_FALSE(Edit(L"expect Enter valid values for all coefficients.\nclick OK\nclick Cancel"));
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, ExpectsAReportWithBlanksForItsLineBreaks) {
    EXPECT_FALSE(Edit(L"expect An error occurred while attempting to gather settings. Error: 6 - Overflow "
                      L"(QuorConversions)\ntype R0 1e999\nclick OK\nescape"));
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(ScriptTest, EndsAtAMessageThatItDoesNotExpect) {
    EXPECT_FALSE(Edit(L"type R0 1\nclick OK\ntype R0 2\nclose"));
    EXPECT_EQ(platform->Complaints(),
              (Texts{L"there was the message \"Enter valid values for all coefficients.\"",
                     L"in line 2: click OK", L"the dialog \"Callendar-Van Dusen Settings\" was left open"}));
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 1.0) << "no further line was played";
}

TEST_F(ScriptTest, EndsAtAnotherMessageThanTheOneThatItExpects) {
    EXPECT_FALSE(Edit(L"expect Select the IPTS-68 scale.\nclick OK\nescape"));
    ASSERT_GE(platform->Complaints().size(), 2U);
    EXPECT_EQ(platform->Complaints()[0],
              L"there was the message \"Enter valid values for all coefficients.\"");
    EXPECT_EQ(platform->Complaints()[1], L"in line 2: click OK");
}

// An expectation that was not met was once forgotten without a word.
TEST_F(ScriptTest, MissesAnExpectedMessageThatDoesNotCome) {
    EXPECT_FALSE(Edit(L"expect Boo\nescape"));
    EXPECT_EQ(platform->Complaints(), (Texts{L"there was no message \"Boo\"", L"in line 1: expect Boo"}));
}

TEST_F(ScriptTest, NamesTheFirstMessageOfSeveralThatDoesNotCome) {
    EXPECT_FALSE(
        Edit(L"expect Enter valid values for all coefficients.\nclick OK\n\nexpect Boo\nexpect Hoo\nescape"));
    EXPECT_EQ(platform->Complaints(), (Texts{L"there was no message \"Boo\"", L"there was no message \"Hoo\"",
                                             L"in line 4: expect Boo"}));
}

// The line behind the one that closed the dialog was once blamed for a message that had not come.
TEST_F(ScriptTest, NamesTheMessageThatDidNotComeWhereTheDialogIsClosedForWantOfIt) {
    cvd->SetUsePolynomial(true); // zeros are taken
    EXPECT_TRUE(Edit(L"type R0 0\nexpect Enter valid values for all coefficients.\nclick OK\n"
                     L"type R0 100.0123\nclick OK"));
    EXPECT_EQ(platform->Complaints(),
              (Texts{L"there was no message \"Enter valid values for all coefficients.\"",
                     L"in line 2: expect Enter valid values for all coefficients."}));
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 0.0) << "no further line was played";
}

TEST_F(ScriptTest, NamesALineThatCannotBeDoneThoughAMessageIsStillToCome) {
    EXPECT_FALSE(Edit(L"expect Enter valid values for all coefficients.\ntype R9 0\nclick OK\nescape"));
    EXPECT_EQ(platform->Complaints().at(0), L"there is no \"R9\" in this dialog");
    EXPECT_EQ(platform->Complaints().at(1), L"in line 2: type R9 0");
}

TEST_F(ScriptTest, MissesAFileDialogThatDoesNotCome) {
    EXPECT_FALSE(Edit(L"file a.cvd\nescape"));
    EXPECT_EQ(platform->Complaints(), Texts{L"there was no file dialog for \"a.cvd\""});
}

TEST_F(ScriptTest, ComplainsOfAFileDialogThatItDidNotExpect) {
    EXPECT_FALSE(Edit(L"click Open\nescape"));
    ASSERT_FALSE(platform->Complaints().empty());
    EXPECT_EQ(platform->Complaints().front(), L"there was the file dialog \"Open Callendar-Van Dusen File\"");
}

TEST_F(ScriptTest, EndsAtWhatAPersonCannotDo) {
    const std::pair<const wchar_t*, const wchar_t*> impossible[] = {
        {L"type R9 1", L"there is no \"R9\" in this dialog"},
        {L"type R0 1 234.5", L"of \"1 234.5\" the box \"R0\" has \"1234.5\""},
        {L"click Apply", L"there is no \"Apply\" in this dialog"},
        {L"choose R0 x", L"\"R0\" is no list"},
        {L"page Low Range", L"there is no page \"Low Range\""}};
    for (const auto& [line, why] : impossible) {
        platform = std::make_shared<ScriptedPlatform>();
        cvd = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
        EXPECT_FALSE(Edit(L"\n" + std::wstring(line) + L"\nclose"));
        EXPECT_EQ(platform->Complaints(),
                  (Texts{why, L"in line 2: " + std::wstring(line),
                         L"the dialog \"Callendar-Van Dusen Settings\" was left open"}));
    }
}

TEST_F(ScriptTest, PastesATextIntoABox) {
    EXPECT_TRUE(Edit(L"paste -2.35 x 10^-4 into R0\npaste 1\\n2\\n3 into ALPHA\nclick OK"));
    EXPECT_EQ(platform->Complaints(), Texts{});
    EXPECT_EQ(cvd->Coefficients(0), -2.35e-4);
    EXPECT_EQ(cvd->Coefficients(1), 1);
    EXPECT_EQ(cvd->Coefficients(2), 2);
    EXPECT_EQ(cvd->Coefficients(3), 3);
}

TEST_F(ScriptTest, PastesCharactersThatALineCannotHold) {
    EXPECT_FALSE(Edit(L"paste \\u{20}\\r\\n1\\u{2009}234.5\\u{3A9} into R0\nshow\n"
                      L"paste a\\b\\\\c\\u{}\\u{110000}\\u{1 into R0\nshow\nescape"));
    ASSERT_EQ(printed.size(), 2U);
    EXPECT_NE(printed[0].find(L"  R0: [1234.5] ! Pasted as 1234.5\n"), std::wstring::npos);
    EXPECT_NE(printed[1].find(
                  L" ! Pasted as 1234.5. Nothing pasted: a\\b\\c\\u{}\\u{110000}\\u{1 is not a number\n"),
              std::wstring::npos)
        << "what is no escape stays as it is";
}

TEST_F(ScriptTest, PastesEveryTextAsAPersonDoes) {
    const auto escaped = [](const std::wstring& text) {
        std::wostringstream line;
        for (const wchar_t c : text)
            line << L"\\u{" << std::hex << std::uppercase << static_cast<unsigned>(c) << L"}";
        return line.str();
    };
    for (const std::wstring separator : {L".", L",", L"\u066B"}) {
        const Support::FreshDecimalSeparator another;
        platform->SetDecimalSeparator(separator);
        cvd->SetNumCoefficients(1); // R0 alone
        std::wstring script;
        Texts expected;
        Support::ForEachPaste(
            [&](const Support::PasteRow& row, const std::wstring& under, const std::wstring& number) {
                if (under != separator || !*row.text) // nobody can paste no text
                    return;
                script += L"paste 7 into R0\npaste " + escaped(row.text) + L" into R0\nshow\n";
                const std::wstring advice = Support::ExpectedAdvice(row, number);
                expected.push_back(
                    QuorIniFile::EscapeControls(L"  R0: [" + (Support::IsTaken(row) ? number : L"7") + L"]" +
                                                (advice.empty() ? L"" : L" ! " + advice)) +
                    L"\n");
            });
        printed.clear();
        EXPECT_FALSE(Edit(script + L"escape"));
        EXPECT_EQ(platform->Complaints(), Texts{});
        ASSERT_EQ(printed.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_NE(printed[i].find(expected[i]), std::wstring::npos)
                << testing::PrintToString(expected[i]) << " is not on " << testing::PrintToString(printed[i]);
    }
}

TEST_F(ScriptTest, SaysWhereAPasteNamesNoBox) {
    EXPECT_FALSE(Edit(L"paste 5\nescape"));
    EXPECT_EQ(platform->Complaints().at(0), L"\"paste\" does not say into which box");
}

TEST_F(ScriptTest, ExpectsAdvice) {
    EXPECT_FALSE(Edit(L"paste 100,012 into R0\n"
                      L"expect advice Nothing pasted: 100,012 can be read in two ways\nescape"));
    EXPECT_EQ(platform->Complaints(), Texts{});
}

TEST_F(ScriptTest, TellsThePlatformOfAdviceThatTheScriptDoesNotExpect) {
    EXPECT_TRUE(Edit(L"type DELTA 1.5\npaste 100,012 into R0\ntype R0 7\npaste 1 234.5 into ALPHA\n"
                     L"expect advice Pasted as 1234.5\nclick OK"));
    EXPECT_EQ(platform->Complaints(), Texts{});
    EXPECT_EQ(platform->UnexpectedAdvice(),
              Texts{L"Nothing pasted: 100,012 can be read in two ways (line 2: paste 100,012 into R0)"});
    EXPECT_FALSE(Edit(L"escape"));
    EXPECT_EQ(platform->UnexpectedAdvice(), Texts{}) << "that was another script";
}

TEST_F(ScriptTest, EndsAtAnAdviceThatIsNotThere) {
    EXPECT_FALSE(Edit(L"expect advice Boo\nclick OK"));
    EXPECT_EQ(platform->Complaints().at(0), L"there is no advice \"Boo\"");
    EXPECT_EQ(platform->Complaints().at(1), L"in line 1: expect advice Boo");
}

TEST_F(ScriptTest, DoesNothingOnAClickOnADisabledButtonAndSaysSo) {
    cvd->SetAllowEdit(false);
    EXPECT_FALSE(Edit(L"click OK"));
    EXPECT_EQ(platform->Complaints().at(0), L"\"OK\" is disabled");
}

TEST_F(ScriptTest, EndsWhereTheDialogIsClosed) {
    EXPECT_TRUE(Edit(L"close\ntype R0 1"));
    EXPECT_EQ(platform->Complaints(), (Texts{L"the dialog is closed", L"in line 2: type R0 1"}));
}

TEST_F(ScriptTest, ComplainsOfADialogThatItLeavesOpen) {
    EXPECT_FALSE(Edit(L"type R0 1"));
    EXPECT_EQ(platform->Complaints(), Texts{L"the dialog \"Callendar-Van Dusen Settings\" was left open"});
}

TEST_F(ScriptTest, PrintsTheDialogAtAnyMoment) {
    EXPECT_FALSE(Edit(L"show\ntype R0 1\nshow\nescape"));
    ASSERT_EQ(printed.size(), 2U);
    EXPECT_NE(printed[0].find(L"  R0: [0]\n"), std::wstring::npos);
    EXPECT_NE(printed[1].find(L"  R0: [1]\n"), std::wstring::npos);
}

TEST_F(ScriptTest, RefusesUnknownCommandsWithTheNumberOfTheLine) {
    EXPECT_EQ(Refused(L"click OK\n\n# no\npress OK\n"), L"line 4: there is no command \"press\"");
    EXPECT_EQ(Refused(L"Click OK"), L"line 1: there is no command \"Click\"");
    EXPECT_EQ(Refused(L"show\nclick OK\nx", 1), L"line 2: there is no command \"x\"");
}

TEST_F(ScriptTest, RefusesCommandsWithTooMuchOrTooLittle) {
    for (const wchar_t* const verb :
         {L"type", L"choose", L"page", L"click", L"key", L"file", L"expect", L"paste"})
        EXPECT_EQ(Refused(std::wstring(verb) + L" "), L"line 1: \"" + std::wstring(verb) + L"\" needs more");
    for (const wchar_t* const verb :
         {L"enter", L"tab", L"backtab", L"escape", L"help", L"close", L"nofile", L"show"}) {
        EXPECT_EQ(Refused(verb), L"");
        EXPECT_EQ(Refused(std::wstring(verb) + L" x"),
                  L"line 1: \"" + std::wstring(verb) + L"\" stands alone");
    }
}

TEST_F(ScriptTest, ExpectsAdviceOfTheBoxesThatShowItAndNoLonger) {
    EXPECT_FALSE(Edit(L"type R0 -\nexpect advice Not a number: 0 would be stored\ntype R0 100\n"
                      L"type ALPHA -\nescape"));
    EXPECT_EQ(platform->Complaints(), Texts{});
    EXPECT_EQ(platform->UnexpectedAdvice(), Texts{L"Not a number: 0 would be stored (line 4: type ALPHA -)"});
    EXPECT_FALSE(Edit(L"type R0 -\nexpect advice Not a number: 0 would be stored\ntype ALPHA -\nescape"));
    EXPECT_EQ(platform->UnexpectedAdvice(), Texts{L"Not a number: 0 would be stored (line 3: type ALPHA -)"})
        << "which R0 shows, too";
}
