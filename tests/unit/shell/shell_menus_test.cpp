// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the menus open: the printed page, the tip of the day, about, help and the pages that come
// with the calculator.
#include "shell/printing.h"
#include "shell/tip_dialog.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

class ShellMenus : public ::testing::Test, protected CalculatorAtHand {
protected:
    void writeTips(std::string_view text) const { writeFile("TIPOFDAY.TXT", text); }
    void showTip(const std::function<void(Form&)>& look) {
        platform.inDialog = look;
        choose(form().mnuTip);
        platform.inDialog = nullptr;
    }
};

TEST(PrintColumns, ValuesEndInOneColumnWhateverTheirLabel) {
    const std::string sum = inPrintColumns("+                  3.60");
    const std::string plain = inPrintColumns("12.60");
    const std::string conversion = inPrintColumns(" inch to mm       25.40");
    EXPECT_EQ(sum.size(), plain.size());
    EXPECT_EQ(sum.size(), conversion.size());
    EXPECT_TRUE(sum.starts_with("+ ")) << sum;
    EXPECT_TRUE(sum.ends_with(" 3.60"));
    EXPECT_TRUE(conversion.starts_with(" inch to mm "));
    EXPECT_EQ(inPrintColumns("").find_first_not_of(' '), std::string::npos);
}

TEST_F(ShellMenus, ThePageHoldsTapeStateAndRegistersTwoToALine) {
    enter("12.5");
    type("3+");
    type("7");
    clickWith(kShift, form().cmdSTO);
    Printing(calc()).mnuPrint_Click();
    const auto& page = platform.printed;
    ASSERT_EQ(page.size(), 1U + 3U + 2U + 12U);
    EXPECT_EQ(page[0].text, "Tallyforge Running Tape Display  --  11/20/2026");
    EXPECT_EQ(page[0].font.face, Face::Arial);
    EXPECT_EQ(page[1].font.face, Face::Terminal);
    EXPECT_EQ(page[1].font.points, 12.0F);
    EXPECT_EQ(page[4].text, "Registers");
    EXPECT_EQ(page[5].text, "x-reg: 1.550e+01  |  y-reg: 0.000e+00  |  Lastx: 3.000e+00  |  Bank: 1");
    EXPECT_EQ(page[6].text, "reg1: 0.000e+00 |  reg2: 0.000e+00");
    EXPECT_EQ(page[9].text, "reg7: 1.550e+01 |  reg8: 0.000e+00");
    EXPECT_EQ(page[17].text, "reg23: 0.000e+00 |  reg24: 0.000e+00");
}

TEST(Tips, AreTheLinesOfTheirFileWhateverItHolds) {
    EXPECT_EQ(readTips("one\r\n\n  \ntwo"), (std::vector<std::string>{"one", "two"}));
    EXPECT_TRUE(readTips("").empty());
    EXPECT_TRUE(readTips(std::string(1000, '\0')).empty());
    const auto noise = readTips(std::string(10'000'000, 'x') + "\n" +
                                std::string("a\x01\x02"
                                            "b"));
    ASSERT_EQ(noise.size(), 2U);
    EXPECT_LE(noise[0].size(), 400U);
    EXPECT_EQ(noise[1], "ab");
}

TEST_F(ShellMenus, ATipIsShownAndTheNextOne) {
    writeTips("only this\n");
    bool shown = false;
    showTip([&](Form& dialog) {
        shown = true;
        EXPECT_EQ(dialog.name, "frmTip");
        EXPECT_EQ(dialog.title, "Tip of the Day");
        EXPECT_EQ(dialog.find("lblTipText")->text, "only this");
        click(dialog, *dialog.find("cmdNextTip"));
        EXPECT_EQ(dialog.find("lblTipText")->text, "only this");
        EXPECT_EQ(dialog.defaultKey, dialog.find("cmdOK"));
        EXPECT_EQ(dialog.cancelKey, dialog.find("cmdOK"));
        click(dialog, *dialog.find("cmdOK"));
        EXPECT_FALSE(dialog.open);
    });
    EXPECT_TRUE(shown);
}

TEST_F(ShellMenus, TheTickIsKeptAtOnceAndShownInTheMenu) {
    writeTips("a\nb\n");
    platform.tips = true;
    showTip([&](Form& dialog) {
        Control& tick = *dialog.find("chkLoadTipsAtStartup");
        EXPECT_TRUE(tick.checked);
        click(dialog, tick);
        EXPECT_FALSE(platform.readOption(TipDialog::kOption, true));
        click(dialog, *dialog.find("cmdOK"));
    });
    EXPECT_FALSE(form().mnuTip.checked);
    start();
    EXPECT_FALSE(form().mnuTip.checked) << "and the next start shows none";
}

TEST_F(ShellMenus, AMissingTipsFileIsToldAndNothingElseHappens) {
    bool shown = false;
    showTip([&](Form&) { shown = true; });
    EXPECT_FALSE(shown);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_TRUE(platform.boxes[0].text.ends_with("Then place it in the same directory as the application. "));
}

TEST_F(ShellMenus, AboutNamesTheProductAndCopiesWhatABugReportNeeds) {
    bool shown = false;
    platform.inDialog = [&](Form& dialog) {
        shown = true;
        EXPECT_EQ(dialog.title, "About Tallyforge");
        EXPECT_EQ(dialog.find("lblDescription")->text, "Another Quality Application from Oakhollow");
        EXPECT_TRUE(dialog.find("lblVersion")->text.starts_with("Version "));
        click(dialog, *dialog.find("cmdSysInfo"));
        EXPECT_NE(platform.clipboard.find("Decimal character: ."), std::string::npos);
        click(dialog, *dialog.find("cmdOK"));
    };
    choose(form().mnuAbout);
    EXPECT_TRUE(shown);
}

TEST_F(ShellMenus, ThePagesOpenAfterAQuestionAndNotWithoutAYes) {
    choose(form().mnuWeb);
    EXPECT_TRUE(platform.urls.empty());
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Oakhollow");
    platform.answers = {Answer::Yes, Answer::Yes};
    choose(form().mnuWeb);
    choose(form().mnuVersion);
    EXPECT_EQ(platform.urls, (std::vector<std::string>{"manual.html", "changes.html"}));
}

TEST_F(ShellMenus, EachEntryOfTheHelpMenuHasATopicOfItsOwn) {
    for (Control* entry : {&form().mnuHelpIntro, &form().mnuHlepStd, &form().mnuEngKp, &form().mnuBKP, &form().mnuMagKp,
                           &form().mnuTrigKp, &form().mnuCvrtKp, &form().mnuHelpSupport}) {
        choose(*entry);
    }
    EXPECT_EQ(platform.helpTopics, (std::vector<int>{500, 1000, 2101, 2102, 2103, 2104, 2105, 2100}));
}

}  // namespace
}  // namespace tallyforge
