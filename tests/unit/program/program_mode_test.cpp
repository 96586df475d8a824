// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_fixture.h"

#include "program/comparison.h"
#include "program/program_mode.h"

#include <fstream>
#include <iterator>

namespace tallyforge {
namespace {

class ProgramModeKeys : public ProgramAtHand {
protected:
    std::string tip(std::size_t key) const { return form().cmdFunctions.at(key).tip; }
    std::string trace(const std::string& name = "Traced.txt") const { return file("Traces/" + name); }
};

TEST_F(ProgramModeKeys, WithoutNamesTheKeysCarryTheirLetters) {
    choose(form().cmdF11);
    std::string captions;
    for (int i = 0; i < kBankKeys; ++i) {
        captions += caption(static_cast<std::size_t>(i)) + " ";
    }
    EXPECT_EQ(captions, "trac Tex Pex L H G Q M P O N E D C B A T S R init K J I F ");
    EXPECT_EQ(form().lblName.text, "Program Mode");
    EXPECT_EQ(form().cmdFunctions.at(4).font.face, Face::SmallFonts);
    EXPECT_EQ(form().cmdFunctions.at(4).colour, KeyColour::Plain);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Program);
}

TEST_F(ProgramModeKeys, AKeyLeavesTheKeyboardWithTheEntryLine) {
    form().setFocus(form().cmdEnter);
    loadProgram("# aa\nlbl init\nend\nlbl a\nend\nlbl b\naa = 1\nend\n");
    EXPECT_EQ(form().focus, &form().txtXreg) << "behind a load, too";
    for (const std::size_t key : {kKeyA, kKeyB}) {
        type("~");
        form().setFocus(form().cmdEnter);
        run(key);
        EXPECT_EQ(form().focus, &form().txtXreg);
        EXPECT_EQ(s().entry.Dropped, '\0') << "a character that was dropped before is forgotten";
    }
}

TEST_F(ProgramModeKeys, EnteringAndLeavingChangesMenuKeysAndTips) {
    calc().keypads().ShowKeypad(Keypad::Trigonometry);
    choose(form().cmdF11);
    EXPECT_FALSE(form().mnuStd.enabled);
    EXPECT_FALSE(form().mnuConvert.enabled);
    EXPECT_FALSE(form().cmdF12.enabled);
    EXPECT_EQ(form().cmdF11.tip, "Leave Program Mode");
    EXPECT_EQ(form().cmdF12.tip, "Enter Memory Array");
    press(kKeyF11);
    EXPECT_TRUE(form().mnuStd.enabled);
    EXPECT_TRUE(form().cmdF12.enabled);
    EXPECT_EQ(form().cmdF11.tip, "Enter Program Mode");
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Trigonometry);
    EXPECT_EQ(caption(22), "sin");
    EXPECT_EQ(form().lblName.text, "");
}

TEST_F(ProgramModeKeys, TheBinaryKeypadComesBackWithItsMode) {
    calc().keypads().ShowKeypad(Keypad::Binary);
    runSection("1.5\n2\n*");
    EXPECT_EQ(x(), "3");
    EXPECT_FALSE(s().modes.BaseMode);
    choose(form().cmdF11);
    EXPECT_TRUE(s().modes.BaseMode);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Binary);
}

TEST_F(ProgramModeKeys, TipsTellTheNames) {
    loadProgram("#\nlbl init\nname a go there\nend\n");
    EXPECT_EQ(tip(15), "Program Button \"go there\"");
    EXPECT_EQ(tip(14), "Not renamed");
    EXPECT_EQ(tip(1), "Program Button \"V\" - Traces explore ");
    EXPECT_EQ(tip(2), "Program Button \"U\" - Program explore ");
    EXPECT_EQ(tip(19), "Program Button \"X\" - initialize ");
    EXPECT_EQ(tip(0), " Toggle trace (W) | Shift+: list variables | Ctrl+: rename file ");
}

TEST_F(ProgramModeKeys, LettersPressTheKeys) {
    loadProgram("#\nlbl init\nname a first\nend\nlbl first\n1\nend\nlbl t\n2\nend\n");
    type("a");
    EXPECT_EQ(x(), "1");
    type("T");
    EXPECT_EQ(x(), "2");
    EXPECT_EQ(keyOfProgramLetter(1), 15);
    EXPECT_EQ(keyOfProgramLetter(24), 19);
    EXPECT_EQ(keyOfProgramLetter(25), -1);
    EXPECT_EQ(programKeyLetter(23), "F");
}

TEST_F(ProgramModeKeys, LeavingAndEnteringKeepsNamesMarksAndTrace) {
    loadProgram("# aa\nlbl init\nname a first\nend\nlbl first\naa = 6\nend\n");
    run();
    run(0);
    choose(form().cmdF11);
    EXPECT_FALSE(bold(kKeyA));
    EXPECT_EQ(form().cmdFunctions.at(0).colour, KeyColour::Plain);
    choose(form().cmdF11);
    EXPECT_EQ(caption(kKeyA), "first");
    EXPECT_TRUE(bold(kKeyA));
    EXPECT_EQ(form().cmdFunctions.at(0).colour, KeyColour::Yellow);
    EXPECT_EQ(variable("aa"), 6.0);
}

TEST_F(ProgramModeKeys, TheExplorersOpenTheFoldersThatAreUsed) {
    runSection("5");
    run(2);
    run(1);
    EXPECT_EQ(platform.folders,
              (std::vector<std::filesystem::path>{platform.folder / "programs", platform.folder / "Traces"}));
    EXPECT_TRUE(std::filesystem::is_directory(platform.folder / "Traces"));
}

TEST_F(ProgramModeKeys, AModifierOnAnExplorerOnlyGoesOut) {
    choose(form().cmdF11);
    clickWith(kShift, form().cmdFunctions.at(2));
    EXPECT_TRUE(platform.folders.empty());
    EXPECT_FALSE(form().shaShift.visible);
    EXPECT_EQ(s().modifiers.ModifierMask, 0);
}

TEST_F(ProgramModeKeys, ShiftOnTracListsTheVariables) {
    runSection("aa = 5\ndrop\ncc = 7");
    clickWith(kShift, form().cmdFunctions.at(0));
    EXPECT_EQ(tape().at(tape().size() - 2), " aa-               5.00");
    EXPECT_EQ(tape().back(), " cc-               7.00");
    EXPECT_FALSE(programState().TraceOn);
}

TEST_F(ProgramModeKeys, CtrlOnTracRenamesTheFile) {
    runSection("5");
    platform.answers = {Answer::Yes};
    platform.texts = {"mine.txt"};
    clickWith(kCtrl, form().cmdFunctions.at(0));
    EXPECT_EQ(said(), Said{"Rename traced.txt: Do you want a new name for the trace file?"});
    EXPECT_EQ(platform.boxes.front().kind, BoxKind::Question);
    ASSERT_EQ(platform.inputs.size(), 1U);
    EXPECT_EQ(platform.inputs.front().title, "New Trace File");
    EXPECT_EQ(platform.inputs.front().prompt, "Enter name.ext");
    EXPECT_EQ(platform.inputs.front().preset, "Traced.txt");
    EXPECT_EQ(programState().TraceFileName, "mine.txt");
    run(0);
    run();
    EXPECT_NE(trace("mine.txt"), "");
    platform.answers = {Answer::Yes};
    platform.texts = {""};
    clickWith(kCtrl, form().cmdFunctions.at(0));
    EXPECT_EQ(programState().TraceFileName, "Traced.txt");
}

TEST_F(ProgramModeKeys, ATraceHasALineForEachWord) {
    runSection("aa = 3 -4 +\numsg\n\\hello");
    run(0);
    EXPECT_EQ(form().cmdFunctions.at(0).colour, KeyColour::Yellow);
    run();
    EXPECT_EQ(trace(), "\n11/20/2026 14:30\n 5 3-1 \n 5 -4 3 \n 5 +-4 \n 6 umsg-1 \n 8 end-1 \n");
    run();
    EXPECT_EQ(trace().find("11/20", 5), std::string::npos) << "the heading is written once a load";
}

TEST_F(ProgramModeKeys, ATraceThatCannotBeWrittenEndsTheRun) {
    runSection("5\n6");
    std::filesystem::create_directories(platform.folder / "Traces/Traced.txt");
    run(0);
    run();
    EXPECT_EQ(said(), Said{"Program Error!: Error 75 (Path or file access error) in program near line 5"});
    EXPECT_EQ(s().stack.depth(), 2) << "nothing but the run before the trace";
    std::filesystem::remove(platform.folder / "Traces/Traced.txt");
    forget();
    run();
    EXPECT_EQ(said(), Said{});
    EXPECT_NE(trace(), "");
}

TEST_F(ProgramModeKeys, KeepsAnotherYellowForATraceThatAProgramSwitchedOn) {
    class Watching : public TestPlatform {
    public:
        Answer messageBox(const MessageBox& box) override {
            colours.push_back(key != nullptr ? key->colour : KeyColour::Plain);
            return TestPlatform::messageBox(box);
        }
        const Control* key = nullptr;
        std::vector<KeyColour> colours;
    } desktop;
    Calculator other(desktop);
    other.start();
    desktop.key = &other.engine().form.cmdFunctions.at(0);
    std::filesystem::create_directories(desktop.folder / "programs");
    std::ofstream(desktop.folder / "programs/test.rec") << "#\nlbl a\ntrac\numsg\n\\on\ntrac\numsg\n\\off\nend\n";
    desktop.texts.push_back("test");
    click(other.engine().form, other.engine().form.mnuProgram);
    desktop.colours.clear();
    click(other.engine().form, other.engine().form.cmdFunctions.at(15));
    EXPECT_EQ(desktop.colours, (std::vector<KeyColour>{KeyColour::PaleYellow, KeyColour::Plain}));
    std::ifstream in(desktop.folder / "Traces/Traced.txt", std::ios::binary);
    const std::string written{std::istreambuf_iterator<char>(in), {}};
    EXPECT_EQ(written, "\n11/20/2026 14:30\n 3 trac\n 4 umsg\n");
}

TEST_F(ProgramModeKeys, AMemoryArrayLeavesProgramModeFirst) {
    choose(form().cmdF11);
    press(kKeyF12);
    EXPECT_TRUE(s().modes.MemoryArrayMode);
    EXPECT_FALSE(s().modes.ProgramMode);
    press(kKeyF12);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
    EXPECT_EQ(caption(0), "1/x");
}

TEST_F(ProgramModeKeys, TheBoardFootKeyLoadsItsProgramWithoutAsking) {
    writeProgram("# aa\nlbl init\nname a thick\nend\n", "Board feet.rec");
    s().files.DefaultProgram = "mine.rec";
    calc().keypads().ShowKeypad(Keypad::Tables);
    enter("8");
    run(8);
    EXPECT_EQ(said(), Said{});
    EXPECT_TRUE(platform.inputs.empty());
    EXPECT_TRUE(s().modes.ProgramMode);
    EXPECT_EQ(caption(kKeyA), "thick");
    EXPECT_EQ(form().lblName.text, "Board feet.rec");
    EXPECT_EQ(s().files.DefaultProgram, "mine.rec");
    EXPECT_EQ(x(), "8");
    EXPECT_EQ(s().stack.depth(), 1);
    choose(form().cmdF11);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Tables);
}

class Interrupting : public TestPlatform {
public:
    Interruption breathe() override { return ++asked > 1 ? wish : Interruption::None; }
    Interruption wish = Interruption::Break;
    int asked = 0;
};

/// Runs an endless program on `desktop`; returns the calculator.
std::unique_ptr<Calculator> endless(Interrupting& desktop) {
    auto calculator = std::make_unique<Calculator>(desktop);
    calculator->start();
    std::filesystem::create_directories(desktop.folder / "programs");
    std::ofstream(desktop.folder / "programs/forever.rec")
        << "# nn\nlbl init\nend\nlbl a\nnn = nn 1 +\ndrop\nif nn < 100\nglb a\nendif\nnn = 0\npause 0.1\nglb a\nend\n";
    desktop.texts.push_back("forever");
    click(calculator->engine().form, calculator->engine().form.mnuProgram);
    desktop.boxes.clear();
    click(calculator->engine().form, calculator->engine().form.cmdFunctions.at(15));
    return calculator;
}

TEST(EndlessProgram, IsEndedByCtrlBreakAsByStop) {
    Interrupting desktop;
    const auto calculator = endless(desktop);
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes.front().title, "Attention!");
    EXPECT_TRUE(desktop.boxes.front().text.starts_with("Stop Statement encountered at Line "));
    EXPECT_GT(calculator->engine().tape.lines(), 100U);
    EXPECT_TRUE(calculator->engine().form.open);
    EXPECT_FALSE(calculator->programs().running());
}

TEST(EndlessProgram, IsEndedByTheCloseButtonAfterAQuestion) {
    Interrupting desktop;
    desktop.wish = Interruption::Close;
    desktop.answers = {Answer::No, Answer::No, Answer::Yes};
    const auto calculator = endless(desktop);
    ASSERT_EQ(desktop.boxes.size(), 3U);
    EXPECT_EQ(desktop.boxes.at(0).buttons, BoxButtons::YesNo);
    EXPECT_EQ(desktop.boxes.at(1).text, "A program is running. Do you want to end it?");
    EXPECT_TRUE(calculator->engine().form.open);
    EXPECT_TRUE(calculator->engine().form.cmdEnter.enabled);
}

TEST(Comparison, HoldsWithATolerance) {
    EXPECT_TRUE(comparisonHolds(3, "=", 3));
    EXPECT_TRUE(comparisonHolds(0, "=", 0));
    EXPECT_TRUE(comparisonHolds(0.1 + 0.2, "=", 0.3));
    EXPECT_FALSE(comparisonHolds(3, "=", 3.0001));
    EXPECT_FALSE(comparisonHolds(0, "=", 1));
    EXPECT_TRUE(comparisonHolds(3, "<>", 4));
    EXPECT_FALSE(comparisonHolds(3, "<>", 3));
    EXPECT_FALSE(comparisonHolds(0, "<>", 0));
    EXPECT_TRUE(comparisonHolds(4, ">", 3));
    EXPECT_FALSE(comparisonHolds(3, ">", 3));
    EXPECT_FALSE(comparisonHolds(3, ">", 4));
    EXPECT_TRUE(comparisonHolds(-4, "<", 3));
    EXPECT_FALSE(comparisonHolds(3, "<", 3));
    EXPECT_THROW(static_cast<void>(comparisonHolds(3, ">>", 3)), Failure);
    EXPECT_THROW(static_cast<void>(comparisonHolds(1, "<", 1.0) || comparisonHolds(1.7e308, "=", 1.79e308) ||
                                   comparisonHolds(1.7976931348623157e308, "<", 1)),
                 Failure);
}

TEST(Comparison, KeepsZeroAboveZeroAndMinusThreeAboveItself) {
    EXPECT_TRUE(comparisonHolds(0, ">", 0));
    EXPECT_TRUE(comparisonHolds(0, "<", 0));
    EXPECT_TRUE(comparisonHolds(-3, ">", -3));
    EXPECT_TRUE(comparisonHolds(-3, "<", -3));
}

TEST(Comparison, KeepsNumbersThatDifferInTheLastDigitEqualAndUnequal) {
    const double left = 0.1 + 0.2;
    EXPECT_TRUE(comparisonHolds(left, "=", 0.3));
    EXPECT_TRUE(comparisonHolds(left, "<>", 0.3));
}

}  // namespace
}  // namespace tallyforge
