// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tape files, register files, Reset and its undo, with a whole calculator.
#include "records/settings_file.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <random>

namespace tallyforge {
namespace {

class Files : public ::testing::Test, protected CalculatorAtHand {
protected:
    void save(const std::string& name) {
        platform.texts.push_back(name);
        choose(form().mnuSaveTape);
    }
    void retrieve(const std::string& name) {
        platform.texts.push_back(name);
        platform.answers.push_back(Answer::Yes);
        choose(form().mnuTape);
    }
    void retrieveRegisters(const std::string& name) {
        platform.texts.push_back(name);
        platform.answers.push_back(Answer::Yes);
        choose(form().mnuRetMem);
    }
    void work() {
        enter("12.50");
        enter("-3");
        type("4*");
        enter("7");
        type("5");
        clickWith(kShift, form().cmdSTO);
    }
};

TEST_F(Files, ASavedTapeComesBackAsItWas) {
    work();
    const auto before = everything();
    save("work.txt");
    EXPECT_EQ(s().files.UndoKind, TapeFileKind::None);
    clickWith(kAlt, form().cmdReset);
    EXPECT_NE(everything(), before);
    retrieve("work.txt");
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(s().files.UndoKind, TapeFileKind::None);
    save("again.txt");
    EXPECT_EQ(file("again.txt"), file("work.txt"));
}

TEST_F(Files, TheSectionsStandToTheLetter) {
    enter("2");
    type("3+");
    save("t.txt");
    const std::string text = file("t.txt");
    EXPECT_EQ(text.substr(0, 24), "255\n23  ,Register 23\n22 ");
    EXPECT_NE(text.find("1   ,Register 1 - Register arithmetic\n"), std::string::npos);
    EXPECT_NE(text.find("2   ,Register 2 - math constant\n"), std::string::npos);
    EXPECT_EQ(text.substr(text.find("6   ,Register 6\n")),
              "6   ,Register 6\n"
              "3\n 0 \n 2 \n 5 \n"
              " 5 \n"
              "\n"
              "\n\n\n\n"
              "2.00\n3.00\n+                  5.00\n"
              "ZAK\n"
              " 4 \n"
              "\n2\n3\n 5 \n\n\n\n");
}

TEST_F(Files, EveryLineBringsBackItsOwnValueAfterARetrieval) {
    for (int i = 1; i <= 12; ++i) {
        enter(std::to_string(i * i));
    }
    save("t.txt");
    choose(form().cmdReset);
    retrieve("t.txt");
    enter("5");
    for (std::size_t line = 0; line < 12; ++line) {
        doubleClickRow(form(), form().lstDisplayReg, line);
        EXPECT_EQ(x(), std::to_string((line + 1) * (line + 1)));
    }
}

TEST_F(Files, QuestionsAreAskedAndACancelledSaveWritesNothing) {
    enter("1");
    choose(form().mnuSaveTape);
    ASSERT_EQ(platform.inputs.size(), 1U);
    EXPECT_EQ(platform.inputs[0].title, "Save Running Tape");
    EXPECT_EQ(platform.inputs[0].prompt,
              "Please enter a file name (only 25 characters are used), or Click OK to accept the default.The file is "
              "saved in the Oakhollow Application Data Folder. ");
    EXPECT_EQ(s().files.UndoKind, TapeFileKind::None);
    save("a.txt");
    platform.boxes.clear();
    platform.texts = {"a.txt", "b.txt"};
    platform.answers = {Answer::No, Answer::Yes};
    choose(form().mnuSaveTape);
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[0].title, "File Exists!");
    EXPECT_EQ(platform.boxes[0].text, "a.txt exists, do you want to overwrite it?");
    EXPECT_EQ(platform.boxes[1].title, "Save File Name?");
    EXPECT_EQ(platform.boxes[1].text, "Do you want to save b.txt as the default file name?");
    EXPECT_EQ(s().files.TapeFileName, "b.txt");
    start();
    EXPECT_EQ(s().files.TapeFileName, "b.txt");
}

TEST_F(Files, ANameIsCutAndLeadsNowhereElse) {
    enter("1");
    save("../../a-name-longer-than-five-and-twenty.txt");
    EXPECT_FALSE(file("a-name-longer-than-").empty()) << "25 characters, the last part of them";
    platform.inputs.clear();
    save("..");
    EXPECT_EQ(platform.inputs.size(), 2U) << "asked again, and called off";
}

TEST_F(Files, AMissingFileIsToldAndNothingChanges) {
    work();
    const auto before = everything();
    retrieve("nowhere.txt");
    EXPECT_EQ(platform.boxes.back().text, "File not found!");
    EXPECT_EQ(platform.boxes.back().title, "mnuTape Error!");
    EXPECT_EQ(everything(), before);
}

TEST_F(Files, AFileCutAnywhereIsRefusedWhole) {
    work();
    save("t.txt");
    const std::string whole = file("t.txt");
    enter("99");
    const auto before = everything();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        writeFile("cut.txt", whole.substr(0, length));
        platform.boxes.clear();
        retrieve("cut.txt");
        ASSERT_EQ(platform.boxes.back().text, "File error #54") << length;
        ASSERT_EQ(everything(), before) << length;
    }
}

TEST_F(Files, NoiseIsRefused) {
    work();
    const auto before = everything();
    std::mt19937 random(7);
    std::string noise;
    for (int i = 0; i < 5000; ++i) {
        noise += static_cast<char>(random());
    }
    writeFile("noise.txt", noise);
    retrieve("noise.txt");
    EXPECT_EQ(platform.boxes.back().text, "File error #54");
    EXPECT_EQ(everything(), before);
}

TEST_F(Files, AStackPointerThatLiesIsRefused) {
    work();
    save("t.txt");
    const std::string whole = file("t.txt");
    const auto before = everything();
    const std::string truth = " " + std::to_string(s().stack.StackPtr) + " \n";
    const auto at = whole.find(truth);
    for (const std::string lie : {" 0 \n", " -4 \n", " 2000000000 \n", " 99999999999999999999 \n", " x \n", "\n"}) {
        std::string lying = whole;
        lying.replace(at, truth.size(), lie);
        writeFile("lie.txt", lying);
        retrieve("lie.txt");
        EXPECT_EQ(platform.boxes.back().text, "File error #54") << lie;
        EXPECT_EQ(everything(), before);
    }
}

TEST_F(Files, AFileWithoutAHeaderStartsWithItsFirstRegister) {
    work();
    save("t.txt");
    writeFile("old.txt", file("t.txt").substr(4));
    const auto before = everything();
    choose(form().cmdReset);
    retrieve("old.txt");
    EXPECT_EQ(everything(), before);
}

TEST_F(Files, LineEndsOfOtherSystemsAreTaken) {
    work();
    save("t.txt");
    const auto before = everything();
    // The second is what turning a file twice makes of it.
    for (const std::string_view end : {"\r\n", "\r\r\n"}) {
        std::string turned;
        for (const char character : file("t.txt")) {
            turned += character == '\n' ? std::string(end) : std::string(1, character);
        }
        writeFile("turned.txt", turned);
        choose(form().cmdReset);
        retrieve("turned.txt");
        EXPECT_EQ(everything(), before);
    }
}

TEST_F(Files, AnEmptyLineOfTheStateIsAZero) {
    choose(form().cmdReset);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(calc().text(s().stack.LastX), "0");
    EXPECT_EQ(form().txtLastx.text, "0.000e+00");
}

TEST_F(Files, TheNameOfTheSettingsIsRefusedAndAskedForAgain) {
    enter("1");
    const std::string settings = file(SettingsFile::kName);
    platform.texts = {std::string(SettingsFile::kName), "t.txt"};
    choose(form().mnuSaveTape);
    EXPECT_EQ(platform.boxes.front().text,
              "Names that begin with a point are the calculator's own, please choose another one.");
    EXPECT_EQ(file(SettingsFile::kName), settings);
    EXPECT_FALSE(file("t.txt").empty());
}

TEST_F(Files, ARegisterFileThatIsNotWrittenIsNoDefault) {
    std::filesystem::create_directories(platform.folder / "taken" / "inside");
    platform.texts = {"taken"};
    platform.answers = {Answer::Yes, Answer::Yes};
    choose(form().mnuSaveMem);
    EXPECT_EQ(platform.boxes.back().text.substr(0, 6), "Error ");
    EXPECT_NE(s().files.MemoryFileName, "taken");
}

TEST_F(Files, RegisterKeysUnderOtherModifiersCommit) {
    press(kKeyF12, 0);
    for (const std::uint8_t mask : std::initializer_list<std::uint8_t>{3, 4, 5, 6, 7}) {
        const int depth = s().stack.depth();
        type("6");
        clickWith(mask, form().cmdFunctions[0]);
        EXPECT_EQ(s().stack.depth(), depth + 1) << int{mask};
        EXPECT_EQ(x(), "6");
    }
    EXPECT_EQ(reg(23), "");
}

TEST_F(Files, ARegisterKeyRecallsWithoutALabelAndTheRegisterKeyWithOne) {
    press(kKeyF12, 0);
    type("12");
    clickWith(kShift, form().cmdFunctions[15]);
    choose(form().cmdFunctions[15]);
    EXPECT_EQ(tape().back(), "12.00");
    type("1");
    choose(form().cmdSTO);
    EXPECT_EQ(tape().back(), "rcl               12.00");
}

TEST_F(Files, OnlyAStoreAndARecallAskForAName) {
    enter("5");
    for (const std::uint8_t mask : std::initializer_list<std::uint8_t>{2, 3, 4, 5, 6, 7}) {
        type("0");
        clickWith(mask, form().cmdSTO);
        EXPECT_TRUE(platform.inputs.empty()) << int{mask};
        EXPECT_EQ(form().txtXreg.text, "");
    }
}

TEST_F(Files, ADecimalCommaComesBack) {
    platform.decimal = ',';
    start();
    enter("1,5");
    type("4");
    clickWith(kShift, form().cmdSTO);
    const auto before = everything();
    save("t.txt");
    clickWith(kAlt, form().cmdReset);
    retrieve("t.txt");
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(reg(4), "1,5");
}

TEST_F(Files, ResetAndItsUndo) {
    work();
    const auto before = everything();
    choose(form().cmdReset);
    EXPECT_EQ(s().stack.depth(), 0);
    EXPECT_EQ(reg(5), "7") << "a plain reset leaves the registers";
    EXPECT_EQ(form().txtLastx.text, "0");
    EXPECT_EQ(calc().tape.lines(), 0U);
    EXPECT_FALSE(form().cmdDown.enabled);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(everything(), before);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(everything(), before) << "a second undo gives the same state";
}

TEST_F(Files, ResetTwiceThenUndoGivesTheEmptyState) {
    work();
    choose(form().cmdReset);
    choose(form().cmdReset);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(s().stack.depth(), 0);
    EXPECT_EQ(calc().tape.lines(), 0U);
}

TEST_F(Files, CtrlResetClearsTheRegistersAlone) {
    work();
    platform.texts.push_back("volt");
    type("5");
    clickWith(kCtrl, form().cmdSTO);
    const auto before = everything();
    const auto lines = tape();
    clickWith(kCtrl, form().cmdReset);
    EXPECT_EQ(tape(), lines);
    EXPECT_EQ(reg(5), "0");
    EXPECT_EQ(s().memory.RegisterNames[static_cast<std::size_t>(keyOfRegister(5))], "5   ");
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(everything(), before);
}

TEST_F(Files, ARegisterNumberIsRoundedHalfToEven) {
    enter("42");
    for (const auto& [typed, number] : {std::pair{"0.6", 1}, {"1.5", 2}, {"2.5", 2}, {"23.7", 24}}) {
        type(typed);
        clickWith(kShift, form().cmdSTO);
        EXPECT_EQ(reg(static_cast<std::size_t>(number)), "42") << typed;
        clickWith(kCtrl, form().cmdReset);
    }
    EXPECT_TRUE(platform.boxes.empty());
    type("24.6");
    clickWith(kShift, form().cmdSTO);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes.back().text, "Tne registers are 1 to 24 only!");
}

TEST_F(Files, AltResetClearsBothAndTheUndoRestoresBoth) {
    work();
    const auto before = everything();
    clickWith(kAlt, form().cmdReset);
    EXPECT_EQ(reg(5), "0");
    EXPECT_EQ(s().stack.depth(), 0);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(everything(), before);
}

TEST_F(Files, AnEmptyRegisterCountsAsZeroAfterAnUndo) {
    enter("6");
    clickWith(kAlt, form().cmdReset);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    clickWith(kCtrl, form().cmdMath[3]);
    EXPECT_EQ(reg(1), "6");
    EXPECT_EQ(x(), "6");
    clickWith(kAlt, form().cmdMath[3]);
    EXPECT_EQ(x(), "6") << "the constant register is empty";
    EXPECT_EQ(form().txtReg_m[2].text, "");
}

TEST_F(Files, WhatWasLeftBelowTheStackIsThereAfterAnUndo) {
    type("5+");
    enter("3");
    choose(form().cmdReset);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(calc().text(s().stack.Yreg), "5");
    type("+");
    EXPECT_EQ(x(), "8");
    choose(form().cmdReset);
    type("5+");
    choose(form().cmdReset);
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(x(), "5");
    enter("3");
    EXPECT_EQ(calc().text(s().stack.Yreg), "5");
}

TEST_F(Files, OtherMasksOfResetDoNothing) {
    work();
    const auto before = everything();
    for (const int mask : {1, 3, 5, 6}) {
        clickWith(static_cast<std::uint8_t>(mask), form().cmdReset);
        EXPECT_EQ(everything(), before) << mask;
    }
}

TEST_F(Files, AnUndoWithoutAFileIsTold) {
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "File not found!");
    EXPECT_EQ(s().files.UndoKind, TapeFileKind::None);
}

TEST_F(Files, ASaveThatFailsIsToldAndTheOldFileStays) {
    enter("1");
    save("t.txt");
    const std::string before = file("t.txt");
    enter("2");
    // Where the temporary would be renamed to stands a folder that is not empty.
    std::filesystem::create_directories(platform.folder / "taken" / "inside");
    platform.boxes.clear();
    platform.answers = {Answer::Yes};
    save("taken");
    EXPECT_EQ(platform.boxes.back().text.substr(0, 6), "Error ");
    EXPECT_NE(platform.boxes.back().text.find(") in procedure mnuSaveTape_Click of Form frm_Tallyforge"),
              std::string::npos);
    EXPECT_EQ(file("t.txt"), before);
    for (const auto& entry : std::filesystem::directory_iterator(platform.folder)) {
        EXPECT_EQ(entry.path().filename().string().find("taken."), std::string::npos) << "no temporary is left";
    }
}

TEST_F(Files, RegistersAreSavedAndRetrieved) {
    work();
    platform.texts = {"regs.txt"};
    choose(form().mnuSaveMem);
    EXPECT_EQ(platform.inputs.back().title, "Save Memory Registers");
    EXPECT_EQ(splitLines(file("regs.txt")).size(), 24U);
    EXPECT_NE(file("regs.txt").find("5   7,Register 5\n"), std::string::npos);
    clickWith(kCtrl, form().cmdReset);
    retrieveRegisters("regs.txt");
    EXPECT_EQ(platform.inputs.back().title, "Retrieve Memory Registers");
    EXPECT_EQ(platform.boxes.back().text, "This will overwrite your current memory registers, continue?");
    EXPECT_EQ(reg(5), "7");
    EXPECT_EQ(form().txtReg_m[4].text, "7.0e+00");
}

TEST_F(Files, ADamagedRegisterFileIsRefusedWhole) {
    work();
    platform.texts = {"regs.txt"};
    choose(form().mnuSaveMem);
    const std::string whole = file("regs.txt");
    const std::string first = "23  ,Register 23\n";
    const std::string damaged[] = {whole.substr(first.size()), "23   1 Register\n" + whole.substr(first.size()),
                                   "23  " + std::string(400, '7') + ",Register 23\n" + whole.substr(first.size()),
                                   "x\n" + whole.substr(first.size()), ""};
    for (const std::string& text : damaged) {
        writeFile("bad.txt", text);
        retrieveRegisters("bad.txt");
        EXPECT_EQ(platform.boxes.back().text, "File error #54");
        EXPECT_EQ(platform.boxes.back().title, "Retrieve Registers Error!");
        EXPECT_EQ(reg(5), "7");
    }
    retrieveRegisters("none.txt");
    EXPECT_EQ(platform.boxes.back().text, "File not found!");
}

TEST_F(Files, ARegisterLineWithABlankZeroClearsItsRegister) {
    work();
    platform.texts = {"regs.txt"};
    choose(form().mnuSaveMem);
    std::string text = file("regs.txt");
    text.replace(text.find("5   7,"), 6, "5    0,");
    writeFile("zero.txt", text);
    retrieveRegisters("zero.txt");
    EXPECT_EQ(reg(5), "");
    EXPECT_EQ(form().txtReg_m[4].text, "");
    type("5");
    choose(form().cmdSTO);
    EXPECT_EQ(x(), "0");
}

TEST_F(Files, TheRegisterKeyAnswersBadInput) {
    choose(form().cmdSTO);
    EXPECT_EQ(platform.boxes.back().text, "Please enter a number between 1 and 24, or 0 for names!");
    EXPECT_EQ(platform.boxes.back().title, "Nothing to do!");
    for (const std::string number : {"25", "-1", "1e9", "."}) {
        enter("4");
        type(number == "-1" ? "1" : number);
        if (number == "-1") {
            press(keyCodeOf('\\'), '\\');
        }
        choose(form().cmdSTO);
        EXPECT_EQ(platform.boxes.back().text, "Tne registers are 1 to 24 only!") << number;
        EXPECT_EQ(platform.boxes.back().title, "Out of Range!");
        EXPECT_EQ(x(), "4");
        EXPECT_EQ(form().txtXreg.text, "");
    }
}

TEST_F(Files, NamesAreStoredSmallAndFoundAsTheyAreStored) {
    enter("42");
    platform.texts = {"VoltAge"};
    type("3");
    clickWith(kCtrl, form().cmdSTO);
    EXPECT_EQ(platform.inputs.back().title, "Name Register 3");
    EXPECT_EQ(platform.inputs.back().prompt, "Enter a name, only the first 4 characters will be used!");
    EXPECT_EQ(s().memory.RegisterNames[static_cast<std::size_t>(keyOfRegister(3))], "volt");
    EXPECT_NE(form().cmdFunctions[static_cast<std::size_t>(keyOfRegister(3))].text, "volt");
    platform.texts = {"VOLT"};
    type("0");
    clickWith(kShift, form().cmdSTO);
    EXPECT_EQ(platform.inputs.back().title, "Save to Named Register");
    EXPECT_EQ(reg(3), "42");
    EXPECT_EQ(platform.sounds, 1);
    const int depth = s().stack.depth();
    platform.texts = {"VOLT"};
    type("0");
    choose(form().cmdSTO);
    EXPECT_EQ(platform.inputs.back().title, "Recall Named Register");
    EXPECT_EQ(s().stack.depth(), depth) << "a recall finds small letters only";
    platform.texts = {"volt"};
    type("0");
    choose(form().cmdSTO);
    EXPECT_EQ(s().stack.depth(), depth + 1);
    EXPECT_EQ(x(), "42");
    platform.texts = {"nobody"};
    type("0");
    clickWith(kShift, form().cmdSTO);
    EXPECT_EQ(platform.sounds, 1) << "an unknown name writes nowhere";
}

TEST_F(Files, ANameMayHoldACommaAndLosesALineBreak) {
    platform.texts = {"a,\nb"};
    type("3");
    clickWith(kCtrl, form().cmdSTO);
    EXPECT_EQ(s().memory.RegisterNames[static_cast<std::size_t>(keyOfRegister(3))], "a,b");
    enter("8");
    type("3");
    clickWith(kShift, form().cmdSTO);
    const auto before = everything();
    save("t.txt");
    clickWith(kAlt, form().cmdReset);
    retrieve("t.txt");
    EXPECT_EQ(reg(3), "8");
    EXPECT_EQ(s().memory.RegisterNames[static_cast<std::size_t>(keyOfRegister(3))], "a,b ");
}

TEST_F(Files, StoringChangesNeitherXNorTheStack) {
    enter("1");
    enter("2");
    type("24");
    clickWith(kShift, form().cmdSTO);
    EXPECT_EQ(x(), "2");
    EXPECT_EQ(s().stack.depth(), 2);
    press(kKeyF12);
    clickWith(kShift, form().cmdFunctions[0]);
    EXPECT_EQ(reg(23), "2");
    EXPECT_EQ(s().stack.depth(), 2);
    type("9");
    clickWith(kShift, form().cmdFunctions[1]);
    EXPECT_EQ(reg(22), "9");
    EXPECT_EQ(s().stack.depth(), 2);
    choose(form().cmdFunctions[3]);
    EXPECT_EQ(x(), "0") << "a register never written recalls 0";
    EXPECT_EQ(s().stack.depth(), 3);
    press(kKeyF12);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
    EXPECT_EQ(form().lblName.text, "");
}

TEST_F(Files, ARegisterOfZeroComesBackEmpty) {
    const auto fill = [this] {
        for (const auto& [number, value] : {std::pair{"5", "0"}, std::pair{"6", "0.00"}, std::pair{"7", "#0h"}}) {
            platform.clipboard = value;
            choose(form().mnuPaste);
            type(number);
            clickWith(kShift, form().cmdSTO);
        }
    };
    const auto cameBack = [this] {
        for (const std::size_t number : {5U, 6U}) {
            EXPECT_EQ(reg(number), "");
            EXPECT_EQ(form().txtReg_m.at(number - 1).text, "");
        }
        EXPECT_EQ(reg(7), "#0h") << "a number of a base keeps its zero";
        type("5");
        choose(form().cmdSTO);
        EXPECT_EQ(x(), "0") << "and the empty one recalls as it did";
    };
    fill();
    save("t.txt");
    clickWith(kAlt, form().cmdReset);
    retrieve("t.txt");
    cameBack();
    fill();
    platform.texts = {"regs.txt"};
    choose(form().mnuSaveMem);
    clickWith(kCtrl, form().cmdReset);
    retrieveRegisters("regs.txt");
    cameBack();
}

TEST_F(Files, ANameOfARegisterSurvivesAPlainResetAlone) {
    std::string& name = s().memory.RegisterNames[static_cast<std::size_t>(keyOfRegister(3))];
    const auto giveName = [&] {
        platform.texts = {"volt"};
        type("3");
        clickWith(kCtrl, form().cmdSTO);
    };
    giveName();
    choose(form().cmdReset);
    EXPECT_EQ(name, "volt");
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(name, "volt") << "the undo of a plain reset leaves it alone, too";
    clickWith(kAlt, form().cmdReset);
    EXPECT_EQ(name, "3   ");
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(name, "volt");
}

TEST_F(Files, LabelsWithCommasComeBack) {
    for (const std::string_view label : {"a,b", ",", "1,5,", "23  ,Register 23"}) {
        s().delivery.FnLabel = label;
        s().stack.Xreg = 1234.5;
        calc().commit.PushResult();
        EXPECT_TRUE(tape().back().starts_with(label)) << tape().back();
    }
    const auto before = everything();
    save("t.txt");
    clickWith(kAlt, form().cmdReset);
    retrieve("t.txt");
    EXPECT_EQ(everything(), before);
    doubleClickRow(form(), form().lstDisplayReg, calc().tape.count() - 1);
    EXPECT_EQ(x(), "1234.5");
}

TEST_F(Files, ANameOfTwentyFiveCharactersIsTakenWholeAndALongerOneCut) {
    const std::string whole = "tape-of-25-characters.txt";
    ASSERT_EQ(whole.size(), 25U);
    enter("1");
    platform.texts = {whole};
    platform.answers = {Answer::Yes};
    choose(form().mnuSaveTape);
    EXPECT_FALSE(file(whole).empty());
    start();
    EXPECT_EQ(s().files.TapeFileName, whole) << "the default of the next start";
    EXPECT_EQ(s().files.MemoryFileName, "registers.txt") << "its neighbour in the settings stays";
    enter("2");
    platform.boxes.clear();
    platform.texts = {whole + "-and-more"};
    platform.answers = {Answer::Yes, Answer::No};
    choose(form().mnuSaveTape);
    EXPECT_EQ(platform.boxes.at(0).text, whole + " exists, do you want to overwrite it?");
    EXPECT_FALSE(std::filesystem::exists(platform.folder / (whole + "-and-more")));
    clickWith(kAlt, form().cmdReset);
    retrieve(whole + "?");
    EXPECT_EQ(x(), "2") << "a longer name finds what it was saved under";
    platform.texts = {"registers-25-letters.text-and-more"};
    platform.answers = {Answer::Yes};
    choose(form().mnuSaveMem);
    start();
    EXPECT_EQ(s().files.MemoryFileName, "registers-25-letters.text");
    EXPECT_EQ(s().files.TapeFileName, whole);
}

TEST_F(Files, WhatAFileCannotHoldIsToldAndTheRestSaved) {
    enter("12.5");
    const auto paste = [this](const char* text, const char* number) {
        platform.clipboard = text;
        choose(form().mnuPaste);
        type(number);
        clickWith(kShift, form().cmdSTO);
    };
    paste("1,234.56", "5");
    const std::string many(300, '7');
    paste(many.c_str(), "6");
    type("8");
    type("9");
    clickWith(kShift, form().cmdSTO);
    platform.boxes.clear();
    save("t.txt");
    ASSERT_FALSE(platform.boxes.empty());
    const std::string told = platform.boxes.back().text;
    EXPECT_TRUE(told.starts_with("A file cannot hold the text in Register")) << told;
    EXPECT_NE(told.find("Register 5"), std::string::npos);
    EXPECT_NE(told.find("Register 6"), std::string::npos);
    EXPECT_EQ(reg(5), "1,234.56") << "the calculator keeps it";
    const auto stack = stackAndTape();
    clickWith(kAlt, form().cmdReset);
    retrieve("t.txt");
    EXPECT_EQ(stackAndTape().front(), stack.front());
    EXPECT_EQ(reg(5), "");
}

TEST_F(Files, UndoBringsBackWhatNoFileHolds) {
    enter("12.5");
    platform.clipboard = "1,234.56";
    choose(form().mnuPaste);
    type("5");
    clickWith(kShift, form().cmdSTO);
    platform.clipboard = "1\n2";
    choose(form().mnuPaste);
    type("6");
    clickWith(kShift, form().cmdSTO);
    const auto before = registers();
    platform.boxes.clear();
    clickWith(kAlt, form().cmdReset);
    EXPECT_EQ(reg(5), "0");
    EXPECT_TRUE(platform.boxes.empty()) << "nothing is lost, so there is nothing to tell";
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(registers(), before);
}

TEST_F(Files, AnotherCalculatorsUndoFileIsNotTakenForOnesOwn) {
    enter("12.5");
    clickWith(0, form().cmdReset);
    enter("7");
    const std::string others = file("undo.rec");
    start();
    // Taken over from the run before.
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    EXPECT_EQ(x(), "12.5");
    start();
    writeFile("undo.rec", others);
    std::filesystem::last_write_time(platform.folder / "undo.rec",
                                     std::filesystem::file_time_type::clock::now() + std::chrono::seconds(5));
    platform.boxes.clear();
    clickWith(kShift | kCtrl | kAlt, form().cmdReset);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "File not found!");
    EXPECT_EQ(s().stack.depth(), 0);
}

TEST_F(Files, ANameThatIsNoneIsRefusedAndAskedForAgain) {
    enter("1");
    for (const char* name : {"x/", "..", ".", "   ", "a\tb", "undo.rec", ".hidden"}) {
        platform.boxes.clear();
        platform.texts = {name, "t.txt"};
        platform.answers = {};
        choose(form().mnuSaveTape);
        ASSERT_FALSE(platform.boxes.empty()) << name;
        EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop) << name;
        EXPECT_TRUE(std::filesystem::exists(platform.folder / "t.txt")) << name;
        std::filesystem::remove(platform.folder / "t.txt");
    }
}

TEST_F(Files, NamesOfOtherScriptsAreKeptOnDisk) {
    enter("42");
    for (const char* name : {"лента.txt", "纸带.txt", "bänd.txt"}) {
        platform.texts = {name};
        choose(form().mnuSaveTape);
        EXPECT_TRUE(std::filesystem::exists(platform.folder / name)) << name;
        clickWith(kAlt, form().cmdReset);
        retrieve(name);
        EXPECT_EQ(x(), "42") << name;
    }
}

}  // namespace
}  // namespace tallyforge
