// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/headless/headless_platform.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

using Lines = std::vector<std::string>;

MessageBox box(BoxButtons buttons) {
    return {.kind = BoxKind::Plain, .title = "T", .text = "", .buttons = buttons};
}

class HeadlessPlatformTest : public testing::Test {
protected:
    TemporaryFolder folder;
    HeadlessOptions options{.data = folder.path, .home = folder.path / "home"};
    [[nodiscard]] HeadlessPlatform make() {
        return HeadlessPlatform(options, [this](std::string_view line) { lines.emplace_back(line); });
    }

    Lines lines;
};

TEST_F(HeadlessPlatformTest, EachKindOfBoxIsPrintedByItsName) {
    HeadlessPlatform platform = make();
    for (const BoxKind kind : {BoxKind::Stop, BoxKind::Notice, BoxKind::Info, BoxKind::Question, BoxKind::Plain}) {
        EXPECT_EQ(platform.messageBox({.kind = kind, .title = "T", .text = "t"}), Answer::Ok);
    }
    EXPECT_EQ(lines, (Lines{R"(box stop "T" "t" -> ok)", R"(box notice "T" "t" -> ok)", R"(box info "T" "t" -> ok)",
                            R"(box question "T" "t" -> ok)", R"(box plain "T" "t" -> ok)"}));
}

TEST_F(HeadlessPlatformTest, AMessageWithOnlyOkLeavesTheQueuedAnswers) {
    HeadlessPlatform platform = make();
    platform.queueAnswer(Answer::Ok);
    platform.queueAnswer(Answer::Yes);
    EXPECT_EQ(platform.messageBox(box(BoxButtons::Ok)), Answer::Ok);
    EXPECT_EQ(platform.messageBox(box(BoxButtons::OkCancel)), Answer::Ok);
    EXPECT_EQ(platform.messageBox(box(BoxButtons::YesNo)), Answer::Yes);
}

TEST_F(HeadlessPlatformTest, AQuestionWithoutAnAnswerIsNoOrCancel) {
    HeadlessPlatform platform = make();
    EXPECT_EQ(platform.messageBox(box(BoxButtons::YesNo)), Answer::No);
    EXPECT_EQ(platform.messageBox(box(BoxButtons::OkCancel)), Answer::Cancel);
    EXPECT_EQ(lines, (Lines{R"(box plain "T" "" -> no)", R"(box plain "T" "" -> cancel)"}));
}

TEST_F(HeadlessPlatformTest, AQuestionTakesTheFirstQueuedAnswerThatNamesOneOfItsButtons) {
    HeadlessPlatform platform = make();
    platform.queueAnswer(Answer::Cancel);
    platform.queueAnswer(Answer::Yes);
    platform.queueAnswer(Answer::No);
    const MessageBox yesNo = box(BoxButtons::YesNo);
    EXPECT_EQ(platform.messageBox(yesNo), Answer::Yes);
    EXPECT_EQ(platform.messageBox(box(BoxButtons::OkCancel)), Answer::Cancel);
    EXPECT_EQ(platform.messageBox(yesNo), Answer::No);
}

TEST_F(HeadlessPlatformTest, AnInputBoxTakesTheFirstQueuedText) {
    HeadlessPlatform platform = make();
    platform.queueText("one");
    platform.queueText("two");
    const InputBox box{.title = "T", .prompt = "p", .preset = "d"};
    EXPECT_EQ(platform.inputBox(box), "one");
    EXPECT_EQ(platform.inputBox(box), "two");
    EXPECT_EQ(lines, (Lines{R"(input "T" "p" "d" -> "one")", R"(input "T" "p" "d" -> "two")"}));
}

TEST_F(HeadlessPlatformTest, AnInputBoxWithoutATextIsCancelled) {
    HeadlessPlatform platform = make();
    EXPECT_EQ(platform.inputBox({.title = "T", .prompt = "p", .preset = "d"}), "");
    EXPECT_EQ(lines, (Lines{R"(input "T" "p" "d" -> "")"}));
}

TEST_F(HeadlessPlatformTest, ADialogThatNobodyDrivesIsClosed) {
    HeadlessPlatform platform = make();
    Form dialog("frmOhms", "Ohm's Law");
    platform.showDialog(dialog);
    EXPECT_FALSE(dialog.open);
    EXPECT_EQ(lines, (Lines{R"(dialog frmOhms "Ohm's Law")", "dialog frmOhms closed"}));
}

TEST_F(HeadlessPlatformTest, ADialogIsDrivenWhileItIsOpen) {
    HeadlessPlatform platform = make();
    Form dialog("frmOhms", "Ohm's Law");
    dialog.open = false;
    platform.driveDialog = [this](Form& driven) {
        EXPECT_TRUE(driven.open);
        lines.push_back("driven " + driven.name);
    };
    platform.showDialog(dialog);
    EXPECT_EQ(lines, (Lines{R"(dialog frmOhms "Ohm's Law")", "driven frmOhms", "dialog frmOhms closed"}));
}

TEST_F(HeadlessPlatformTest, WhatGoesOutsideIsPrinted) {
    HeadlessPlatform platform = make();
    platform.helpTopic(510);
    platform.playSound({});
    platform.openUrl("https://example.org/a");
    platform.openFolder("/some/folder");
    platform.print({.title = {.text = "\x94 3", .font = {.face = Face::Terminal}}, .blocks = {blockOf({""}, {})}});
    EXPECT_EQ(lines,
              (Lines{"help 510", "sound", "url https://example.org/a", "folder /some/folder", "page ö 3", "page "}));
}

TEST_F(HeadlessPlatformTest, ADateIsShortInBothLocales) {
    const LocalTime day{.year = 2026, .month = 1, .day = 2};
    EXPECT_EQ(make().shortDate(day), "1/2/2026");
    options.decimal = ',';
    EXPECT_EQ(make().shortDate(day), "02.01.2026");
}

TEST_F(HeadlessPlatformTest, TheClipboardIsAText) {
    HeadlessPlatform platform = make();
    EXPECT_EQ(platform.clipboardText(), "");
    platform.setClipboardText("12.5");
    EXPECT_EQ(platform.clipboardText(), "12.5");
}

TEST_F(HeadlessPlatformTest, ASecondOptionLeavesTheFirst) {
    HeadlessPlatform platform = make();
    platform.writeOption("One", true);
    platform.writeOption("Two", false);
    platform.writeOption("Three", true);
    platform.writeOption("One", false);
    platform.writeOption("Two", true);
    EXPECT_FALSE(make().readOption("One", true));
    EXPECT_TRUE(make().readOption("Two", false));
    EXPECT_TRUE(make().readOption("Three", false));
    EXPECT_TRUE(make().hasOption("Three"));
    EXPECT_FALSE(make().hasOption("Thre"));
}

TEST_F(HeadlessPlatformTest, TheClockOfTheOptionsStandsStill) {
    options.now = LocalTime{.year = 2026, .month = 11, .day = 20, .hour = 14, .minute = 30, .second = 5};
    HeadlessPlatform platform = make();
    const auto begun = std::chrono::steady_clock::now();
    platform.sleep(std::chrono::hours(1));
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(10));
    const LocalTime time = platform.now();
    EXPECT_EQ(time.year, 2026);
    EXPECT_EQ(time.month, 11);
    EXPECT_EQ(time.day, 20);
    EXPECT_EQ(time.hour, 14);
    EXPECT_EQ(time.minute, 30);
    EXPECT_EQ(time.second, 5);
}

TEST_F(HeadlessPlatformTest, WithoutAnOptionTheClockIsTheRealOneAndIsWaitedFor) {
    HeadlessPlatform platform = make();
    const auto begun = std::chrono::steady_clock::now();
    platform.sleep(std::chrono::milliseconds(5));
    EXPECT_GE(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(5));
    EXPECT_GE(platform.now().year, 2024);
}

TEST_F(HeadlessPlatformTest, TheSameSeedGivesTheSameNumbers) {
    options.seed = 7;
    HeadlessPlatform first = make();
    HeadlessPlatform second = make();
    options.seed = 8;
    HeadlessPlatform other = make();
    bool differs = false;
    for (int i = 0; i < 1000; ++i) {
        const double number = first.random();
        ASSERT_GE(number, 0.0);
        ASSERT_LT(number, 1.0);
        ASSERT_EQ(number, second.random());
        differs = differs || number != other.random();
    }
    EXPECT_TRUE(differs);
}

TEST_F(HeadlessPlatformTest, ARestartTakesOverAnswersClipboardAndRandomNumbers) {
    options.seed = 7;
    HeadlessPlatform former = make();
    former.queueAnswer(Answer::Yes);
    former.queueText("name");
    former.setClipboardText("5");
    const double first = former.random();
    HeadlessPlatform next = make();
    next.inherit(former);
    EXPECT_EQ(next.messageBox(box(BoxButtons::YesNo)), Answer::Yes);
    EXPECT_EQ(next.inputBox({}), "name");
    EXPECT_EQ(next.clipboardText(), "5");
    EXPECT_NE(next.random(), first);
}

TEST_F(HeadlessPlatformTest, TheDesktopIsAsTheOptionsSay) {
    options.dotsPerInch = 192;
    options.decimal = ',';
    const HeadlessPlatform platform = make();
    EXPECT_EQ(platform.metrics().dotsPerInch, 192);
    EXPECT_EQ(platform.decimalCharacter(), ',');
    EXPECT_EQ(platform.dataFolder(), folder.path);
    EXPECT_EQ(platform.installedFolder(), folder.path / "home");
}

TEST_F(HeadlessPlatformTest, TipsAreOffUnlessTheyAreAskedFor) {
    HeadlessPlatform platform = make();
    EXPECT_FALSE(platform.readOption("Show Tips at Startup", true));
    EXPECT_TRUE(platform.readOption("Another option", true));
}

TEST_F(HeadlessPlatformTest, TheSettingsStoreOutlivesTheProgram) {
    options.tips = true;
    HeadlessPlatform platform = make();
    EXPECT_TRUE(platform.readOption("Show Tips at Startup", true));
    EXPECT_FALSE(platform.readOption("Show Tips at Startup", false));
    platform.writeOption("Show Tips at Startup", false);
    EXPECT_FALSE(make().readOption("Show Tips at Startup", true));
    platform.writeOption("Show Tips at Startup", true);
    EXPECT_TRUE(make().readOption("Show Tips at Startup", false));
}

TEST_F(HeadlessPlatformTest, AnOptionFileOfAWrongShapeHoldsNoneAndStopsNothing) {
    options.tips = true;
    const std::filesystem::path file = folder.path / ".options.txt";
    ASSERT_EQ(mkfifo(file.c_str(), S_IRUSR | S_IWUSR), 0);
    HeadlessPlatform platform = make();
    EXPECT_FALSE(platform.hasOption("A"));
    platform.writeOption("A", true);
    EXPECT_TRUE(std::filesystem::is_fifo(file));
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_TRUE(platform.readOption("A", true));
    std::filesystem::remove(file);
    platform.writeOption("A", false);
    EXPECT_FALSE(platform.readOption("A", true));
}

TEST(InQuotes, EscapesLineBreaksQuotesAndBackslashes) {
    EXPECT_EQ(inQuotes("two\nlines"), R"("two\nlines")");
    EXPECT_EQ(inQuotes(R"(say "so")"), R"("say \"so\"")");
    EXPECT_EQ(inQuotes(R"(C:\x)"), R"("C:\\x")");
    EXPECT_EQ(inQuotes(""), R"("")");
}

TEST(InQuotes, ReadsItsBytesAsTheirFontShowsThem) {
    EXPECT_EQ(inQuotes("\xF6"), "\"ö\"");
    EXPECT_EQ(inQuotes("\xF6", Face::Terminal), "\"÷\"");
    EXPECT_EQ(inQuotes("2p", Face::Symbol), "\"2π\"");
}

}  // namespace
}  // namespace tallyforge
