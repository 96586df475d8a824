// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Binary keypad in the hand of its user.
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

class BinaryKeypad : public ::testing::Test, protected CalculatorAtHand {
protected:
    BinaryKeypad() { choose(form().mnuEngBinary); }
    void bank(std::size_t key, std::uint8_t mask = 0) { clickWith(mask, form().cmdFunctions.at(key)); }
    void word(const char* size) {
        type(size);
        choose(form().cmdDigits);
    }
    /// Pastes a number of a base, whatever its letter.
    void put(std::string_view text) {
        platform.clipboard = text;
        choose(form().mnuPaste);
    }
    std::string lastBox() { return platform.boxes.empty() ? "" : platform.boxes.back().text; }
    std::string lastTitle() { return platform.boxes.empty() ? "" : platform.boxes.back().title; }
    std::string line() { return tape().back(); }
};

TEST_F(BinaryKeypad, ComesAndGoesWithBaseModeAndTheFormat) {
    EXPECT_TRUE(s().modes.BaseMode);
    EXPECT_EQ(form().cmdChs.text, "Mod");
    EXPECT_EQ(form().cmdDigits.text, "wrdsze(64)");
    enter("7");
    EXPECT_EQ(line(), "7") << "whole numbers are shown";
    choose(form().mnuStd);
    EXPECT_FALSE(s().modes.BaseMode);
    EXPECT_EQ(s().format.DisplayDigits, 2);
    EXPECT_EQ(form().cmdChs.text, "C&HS");
    EXPECT_EQ(form().cmdDigits.text, "Display(2)");
}

TEST_F(BinaryKeypad, ANumberIsKeyedByKeyboardAndByKeys) {
    type("#1FFh");
    EXPECT_EQ(form().txtXreg.text, "#1FFh");
    press(kKeyEnter, 13);
    EXPECT_EQ(x(), "#1FFh");
    bank(16, kShift);
    choose(form().cmdNumPad[1]);
    bank(17);
    bank(0);
    bank(1, kShift);
    EXPECT_EQ(form().txtXreg.text, "#1FCh");
    type("+");
    EXPECT_EQ(x(), "#3FBh");
    EXPECT_EQ(line(), "+                 #3FBh");
}

TEST_F(BinaryKeypad, WrongDigitsAreToldWithWhatTheLetterStandsFor) {
    type("#12b");
    EXPECT_EQ(lastBox(), "'b' is binary number\nOnes (1) and Zeros (0) Only!");
    EXPECT_EQ(platform.boxes.back().title, "Syntax Error");
    EXPECT_EQ(form().txtXreg.text, "");
    type("#129o");
    EXPECT_EQ(lastBox(), "'o' is octal number\n0 to 7 Only!");
    type("#1A");
    bank(2, kShift);
    EXPECT_EQ(lastBox(), "'d' is decimal number\n(0 to 9) Only!");
    EXPECT_EQ(s().stack.depth(), 0);
}

TEST_F(BinaryKeypad, ALogicKeyLeavesOneElementOfASingleOne) {
    for (const std::size_t key : {5U, 11U, 23U}) {
        choose(form().cmdReset);
        enter("#1Fh");
        bank(key);
        EXPECT_EQ(s().stack.depth(), 1) << form().cmdFunctions.at(key).text;
        EXPECT_TRUE(x().starts_with('#')) << x();
    }
}

TEST_F(BinaryKeypad, LettersInSmallAndAMissingLetter) {
    type("#1G");
    EXPECT_EQ(form().txtXreg.text, "#1");
    press(kKeyEnter, 13);
    EXPECT_EQ(lastBox(), "Binary indicator (b, d, h, o) required");
    EXPECT_EQ(s().stack.depth(), 0);
    type("#12");
    press(kKeyBackspace, 8);
    type("Fh");
    press(kKeyBackspace, 8);
    type("Eh");
    EXPECT_EQ(form().txtXreg.text, "#1FEh") << "Backspace over the letter opens the number again";
}

TEST_F(BinaryKeypad, SmallLettersAreDigitsUntilTheBaseIsNamed) {
    type("#acefh");
    EXPECT_EQ(form().txtXreg.text, "#ACEFh");
    press(kKeyEnter, 13);
    EXPECT_EQ(x(), "#ACEFh");
    type("#12d");
    EXPECT_EQ(form().txtXreg.text, "#12d");
    press(kKeyEnter, 13);
    EXPECT_EQ(x(), "#12d");
    EXPECT_EQ(s().stack.depth(), 2);
    type("#cad");
    EXPECT_EQ(lastBox(), "'d' is decimal number\n(0 to 9) Only!");
    type("#3ha");
    EXPECT_EQ(x(), "#Fh") << "behind the letter a adds";
}

TEST_F(BinaryKeypad, ADecimalPointIsRefusedLikeAMissingLetter) {
    enter("7");
    const auto lines = tape();
    for (const char* const text : {"#1A.", "#1A.5", "#1.5", "#.F", "paste #1.5h", "paste #.1b", "paste #7,5d"}) {
        SCOPED_TRACE(text);
        platform.boxes.clear();
        const std::string_view number{text};
        if (number.starts_with('#')) {
            enter(number);
            EXPECT_EQ(x(), "7");
        } else {
            put(number.substr(number.find('#')));
        }
        EXPECT_EQ(lastBox(), "Binary indicator (b, d, h, o) required");
        EXPECT_EQ(s().stack.depth(), 1);
        EXPECT_EQ(calc().text(s().stack.slot(1)), "7");
        EXPECT_EQ(tape(), lines);
    }
}

TEST_F(BinaryKeypad, TypedDecimalsGoToABaseByTheirDigits) {
    const std::pair<const char*, const char*> decimals[] = {{"1844674407370955161.4", "#1844674407370955161d"},
                                                            {"1844674407370955161.6", "#1844674407370955162d"},
                                                            {"1844674407370955161.5", "#1844674407370955162d"},
                                                            {"1844674407370955162.5", "#1844674407370955162d"},
                                                            {"1844674407370955162.50", "#1844674407370955162d"},
                                                            {"18446744073709551615.4", "#18446744073709551615d"},
                                                            {"9007199254740993", "#9007199254740993d"},
                                                            {"2.5", "#2d"},
                                                            {"3.5", "#4d"},
                                                            {"0.4", "#0d"},
                                                            {".6", "#1d"},
                                                            {"12e3", "#12000d"}};
    for (const auto& [typed, expected] : decimals) {
        type(typed);
        bank(6, kAlt);
        EXPECT_EQ(x(), expected) << typed;
    }
    for (const auto& [pasted, expected] : {std::pair{"1844674407370955162.50000001", "#1844674407370955163d"},
                                           {"1.8446744073709551615e19", "#18446744073709551615d"},
                                           {"184467440737095516145000e-4", "#18446744073709551614d"},
                                           {"5e-1", "#0d"},
                                           {"0.000006e5", "#1d"}}) {
        put(pasted);
        bank(6, kAlt);
        EXPECT_EQ(x(), expected) << pasted;
    }
    EXPECT_TRUE(platform.boxes.empty());
    type("18446744073709551615.5");
    bank(6, kAlt);
    EXPECT_EQ(lastBox(), "Exceeded maximum number (1.845e19)!");
    EXPECT_EQ(x(), "18446744073709551615.5");
}

TEST_F(BinaryKeypad, ANumberBeyondAWordStaysWithEveryKeyThatRefusesIt) {
    for (const char* const number : {"#1FFFFFFFFFFFFFFFFh", "#18446744073709551616d", "18446744073709551616"}) {
        for (const std::size_t key : {4U, 5U, 6U, 7U, 11U, 12U, 13U, 14U, 15U, 18U, 22U, 23U}) {
            SCOPED_TRACE(std::string(number) + " key " + std::to_string(key));
            choose(form().cmdReset);
            platform.boxes.clear();
            put("#5h");
            put(number);
            const auto lines = tape();
            bank(key);
            ASSERT_EQ(platform.boxes.size(), 1U);
            EXPECT_EQ(x(), number) << "X is the top of the stack again";
            EXPECT_EQ(s().stack.depth(), 2);
            EXPECT_EQ(calc().text(s().stack.slot(2)), number);
            EXPECT_EQ(tape(), lines);
        }
    }
}

TEST_F(BinaryKeypad, ANumberBeyondAWordBelowXStaysToo) {
    put("#1FFFFFFFFFFFFFFFFh");
    put("#5h");
    bank(11);
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(x(), "#5h");
    EXPECT_EQ(s().stack.depth(), 2);
}

TEST_F(BinaryKeypad, AFunctionOfRealNumbersLeavesThoseOfABaseAlone) {
    put("9");
    put("#5h");
    choose(form().mnuTrig);
    const auto lines = tape();
    for (const std::size_t key : {22U, 21U, 6U, 12U, 14U}) {
        SCOPED_TRACE(key);
        bank(key);
        EXPECT_EQ(x(), "#5h");
        EXPECT_EQ(s().stack.depth(), 2);
        EXPECT_EQ(tape(), lines);
    }
    press(kKeyEnd);
    choose(form().mnuStd);
    const auto swapped = tape();
    bank(5);
    EXPECT_EQ(x(), "9") << "the exponent is real, the base is none";
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(tape(), swapped);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(BinaryKeypad, ThePasteOfANumberTooLongIsHeldButNotCountedWith) {
    put("#" + std::string(65, '1') + "b");
    EXPECT_EQ(s().stack.depth(), 1);
    bank(12);
    EXPECT_EQ(lastBox(), "Number outside of range (#0b to #1111.... (64 TOTAL) ....1111b)");
    EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
    put("18446744073709551616");
    bank(6);
    EXPECT_EQ(lastBox(), "Exceeded maximum number (1.845e19)!");
    put("18446744073709551615");
    bank(6, kShift);
    EXPECT_EQ(x(), "#FFFFFFFFFFFFFFFFh");
    bank(6, kShift);
    EXPECT_EQ(lastBox(), "Real number required!");
}

TEST_F(BinaryKeypad, SixtyFiveBitsAreRefusedByEveryKeyThatReadsThem) {
    const std::string tooLong = "#1" + std::string(64, '0') + "b";
    for (const std::size_t key : {4U, 6U, 7U, 12U, 13U, 14U, 15U, 18U, 22U}) {
        SCOPED_TRACE(key);
        choose(form().cmdReset);
        platform.boxes.clear();
        put(tooLong);
        EXPECT_TRUE(platform.boxes.empty()) << "the paste itself says nothing";
        bank(key);
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(lastBox(), "Number outside of range (#0b to #1111.... (64 TOTAL) ....1111b)");
        EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
        EXPECT_EQ(calc().text(s().stack.slot(1)), tooLong) << "it stays where it is";
    }
}

TEST_F(BinaryKeypad, OneMoreThanTheLargestIsRefusedHoweverItComes) {
    const auto refused = [&] {
        bank(6);
        EXPECT_EQ(lastBox(), "Exceeded maximum number (1.845e19)!");
        EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
        platform.boxes.clear();
    };
    put("18446744073709551616");
    refused();
    choose(form().cmdReset);
    enter("18446744073709551616");
    refused();
    choose(form().cmdReset);
    enter("1e20");
    refused();
    choose(form().cmdReset);
    type("18446744073709551615");
    bank(6, kAlt);
    EXPECT_EQ(x(), "#18446744073709551615d");
    EXPECT_TRUE(platform.boxes.empty());
    type("#1h");
    press(kKeyEnter, 13);
    type("+");
    EXPECT_EQ(lastBox(), eightBit("Number outside of range: ± 1.8e308, & ± 4.9e-324"));
    EXPECT_EQ(lastTitle(), "cmdMath Error!");
    EXPECT_EQ(calc().text(s().stack.slot(1)), "#18446744073709551615d") << "the operands stay";
    EXPECT_EQ(s().stack.depth(), 2);
}

TEST_F(BinaryKeypad, APasteLooksAtTheLastLetterAlone) {
    for (const std::string text : {"#1Fb", "#129o", "#1Gh"}) {
        SCOPED_TRACE(text);
        put(text);
        EXPECT_EQ(x(), text);
        EXPECT_EQ(s().stack.depth(), 1);
        EXPECT_TRUE(platform.boxes.empty());
        choose(form().cmdReset);
    }
    for (const char* text : {"#12", "#", "12h", "#1H", "1e9999999"}) {
        SCOPED_TRACE(text);
        put(text);
        EXPECT_EQ(s().stack.depth(), 0);
    }
}

TEST_F(BinaryKeypad, ResultsAreCutByTheCommitOnly) {
    word("8");
    type("#FFh");
    press(kKeyEnter, 13);
    type("#1h+");
    EXPECT_EQ(x(), "#0h");
    EXPECT_EQ(calc().text(s().stack.slot(1)), "#0h");
    EXPECT_TRUE(platform.boxes.empty());
    put("#10h");
    type("#11h*");
    EXPECT_EQ(x(), "#10h");
    put("#FFh");
    type("1");
    clickWith(kShift, form().cmdSTO);
    put("#2h");
    clickWith(kCtrl, form().cmdMath[3]);
    EXPECT_EQ(reg(1), "#101h") << "what goes into a register is not committed";
}

TEST_F(BinaryKeypad, AWordOfEightCutsOnCommit) {
    word("8");
    type("#1FFh");
    press(kKeyEnter, 13);
    EXPECT_EQ(x(), "#FFh");
    EXPECT_EQ(calc().text(s().stack.slot(1)), "#FFh");
    EXPECT_FALSE(form().cmdFunctions[3].enabled);
    word("65");
    EXPECT_EQ(lastBox(), "4 to 64 only for this function");
    choose(form().mnuStd);
    choose(form().mnuEngBinary);
    EXPECT_FALSE(form().cmdFunctions[3].enabled) << "the byte keys know the word when the keypad comes back";
}

TEST_F(BinaryKeypad, DisplayKeysShowXInAnyBaseWithOneCommit) {
    type("#1FFh");
    press(kKeyEnter, 13);
    const std::size_t lines = calc().tape.lines();
    bank(13);
    EXPECT_EQ(x(), "#777o");
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(calc().tape.lines(), lines + 1);
    bank(15);
    EXPECT_EQ(x(), "#511d");
    bank(12);
    EXPECT_EQ(x(), "#111111111b");
    bank(14);
    EXPECT_EQ(x(), "#1FFh");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(BinaryKeypad, RealNumbersGoToABaseAndBack) {
    enter("255");
    bank(6);
    EXPECT_EQ(x(), "#11111111b");
    EXPECT_EQ(line().substr(0, 3), "(b)");
    bank(6);
    EXPECT_EQ(x(), "255");
    EXPECT_EQ(line(), "real                255");
    bank(6, kCtrl);
    EXPECT_EQ(x(), "#377o");
    type("H");
    EXPECT_EQ(x(), "255");
    bank(6, kAlt);
    EXPECT_EQ(x(), "#255d");
    enter("0");
    bank(6);
    EXPECT_EQ(x(), "#0b");
}

TEST_F(BinaryKeypad, DivisionKeepsItsRemainderForMod) {
    put("#7d");
    put("#2d");
    type("/");
    EXPECT_EQ(x(), "#3d");
    choose(form().cmdChs);
    EXPECT_EQ(x(), "#1d");
    EXPECT_EQ(s().stack.depth(), 2) << "Mod is a new commit and nothing else";
    put("#6d");
    put("#2d");
    type("/");
    choose(form().cmdChs);
    EXPECT_EQ(x(), "0");
}

TEST_F(BinaryKeypad, DivisionByZeroIsQuietAndKeepsTheDivisor) {
    put("#6d");
    put("#0d");
    type("/");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(x(), "#0d");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(BinaryKeypad, TheEdgesOfArithmetic) {
    put("#101b");
    put("#101b");
    type("-");
    EXPECT_EQ(x(), "#0b");
    put("#7h");
    put("#7h");
    type("*");
    EXPECT_EQ(x(), "#31h");
    put("#1b");
    put("#10b");
    type("-");
    EXPECT_EQ(lastBox(), "Subtrahend is greater than the minuend!");
    EXPECT_EQ(lastTitle(), "cmdMath Error!");
    EXPECT_EQ(x(), "");
}

struct Mixed {
    const char* y;
    const char* x;
    char operation;
    const char* result;     ///< X afterwards
    const char* remainder;  ///< what Mod gives behind it
    const char* box = "";
};

constexpr const char* kGreater = "Subtrahend is greater than the minuend!";

// A plain number counts by its whole value, half to even, one below zero as 0; the result has the
// base of the one that has one. A division by zero is quiet and leaves the divisor.
constexpr Mixed kMixed[] = {
    {"#10h", "3", '+', "#13h", "0"},      {"#10h", "3", '-', "#Dh", "0"},      {"#10h", "3", '*', "#30h", "0"},
    {"#10h", "3", '/', "#5h", "#1h"},     {"19", "#11b", '+', "#10110b", "0"}, {"19", "#11b", '-', "#10000b", "0"},
    {"19", "#11b", '*', "#111001b", "0"}, {"19", "#11b", '/', "#110b", "#1b"}, {"#10h", "2.5", '+', "#12h", "0"},
    {"#10h", "2.5", '-', "#Eh", "0"},     {"#10h", "2.5", '*', "#20h", "0"},   {"#10h", "2.5", '/', "#8h", "0"},
    {"3.5", "#3o", '+', "#7o", "0"},      {"3.5", "#3o", '-', "#1o", "0"},     {"3.5", "#3o", '*', "#14o", "0"},
    {"3.5", "#3o", '/', "#1o", "#1o"},    {"#10h", "0.4", '+', "#10h", "0"},   {"#10h", "0.4", '/', "0.4", "0"},
    {"#10h", "-1", '+', "#10h", "0"},     {"#10h", "-1", '-', "#10h", "0"},    {"#10h", "-1", '*', "#0h", "0"},
    {"#10h", "-1", '/', "-1", "0"},       {"-1", "#10h", '+', "#10h", "0"},    {"-1", "#10h", '-', "", "0", kGreater},
    {"-1", "#10h", '*', "#0h", "0"},      {"-1", "#10h", '/', "#0h", "0"},     {"-2.5", "#0d", '-', "#0d", "0"},
};

TEST_F(BinaryKeypad, PlainNumbersBesideTaggedOnes) {
    for (const Mixed& mixed : kMixed) {
        SCOPED_TRACE(std::string(mixed.y) + " " + mixed.operation + " " + mixed.x);
        choose(form().cmdReset);
        platform.boxes.clear();
        put(mixed.y);
        put(mixed.x);
        type(std::string(1, mixed.operation));
        EXPECT_EQ(x(), mixed.result);
        EXPECT_EQ(lastBox(), mixed.box);
        EXPECT_EQ(s().stack.depth(), *mixed.box == '\0' ? 1 : 2) << "operands that cannot be subtracted stay";
        choose(form().cmdChs);
        EXPECT_EQ(x(), mixed.remainder);
    }
}

TEST_F(BinaryKeypad, ATaggedNumberCountsOnEveryKeypad) {
    put("#10h");
    choose(form().mnuStd);
    enter("1");
    type("+");
    EXPECT_EQ(x(), "#11h");
    type("1");
    choose(form().cmdChs);
    press(kKeyEnter, 13);
    type("+");
    EXPECT_EQ(x(), "#11h") << "a negative number counts as 0";
}

TEST_F(BinaryKeypad, RegistersWithTaggedContents) {
    put("#F0h");
    type("1");
    clickWith(kShift, form().cmdSTO);
    put("#10h");
    clickWith(kCtrl, form().cmdMath[2]);
    EXPECT_EQ(reg(1), "#E0h");
    EXPECT_EQ(form().txtReg_m[0].text, "#E0h");
    EXPECT_EQ(x(), "#10h");
    type("2");
    clickWith(kShift, form().cmdSTO);
    enter("3");
    clickWith(kAlt, form().cmdMath[1]);
    EXPECT_EQ(x(), "#30h");
}

TEST_F(BinaryKeypad, LogicTakesTwoAndLeavesOne) {
    put("#Fh");
    put("#5h");
    bank(11);
    EXPECT_EQ(x(), "#5h");
    EXPECT_EQ(s().stack.depth(), 1);
    put("#Ah");
    bank(23);
    EXPECT_EQ(x(), "#Fh");
    put("#3h");
    bank(5);
    EXPECT_EQ(x(), "#Ch");
    EXPECT_EQ(line().substr(0, 3), "XOR");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(BinaryKeypad, KeepsNotOnWholeHexDigitsUntilTheCommit) {
    word("8");
    put("#0h");
    bank(4);
    EXPECT_EQ(x(), "#FFh");
    EXPECT_EQ(s().stack.depth(), 1);
    word("6");
    put("#0h");
    bank(4);
    EXPECT_EQ(x(), "#Fh") << "six bits are one whole hex digit";
}

TEST_F(BinaryKeypad, ShiftsAndRotationsInAWordOfEight) {
    word("8");
    put("#81h");
    bank(22);
    EXPECT_EQ(x(), "#3h");
    put("#80h");
    bank(18);
    EXPECT_EQ(x(), "#C0h");
    put("#80h");
    bank(10);
    EXPECT_EQ(x(), "#40h");
    type("<");
    EXPECT_EQ(x(), "#80h");
    const std::string before = x();
    bank(9);
    EXPECT_EQ(x(), before) << "a byte key rests in a word of one byte";
}

TEST_F(BinaryKeypad, APlainNumberIsNotShifted) {
    enter("5");
    const std::size_t lines = calc().tape.lines();
    bank(7);
    EXPECT_EQ(lastBox(), eightBit("Number outside of range: ± 1.8e308, & ± 4.9e-324"));
    EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(calc().tape.lines(), lines);
}

TEST_F(BinaryKeypad, NoKeyOfItIsUnfinished) {
    for (const KeyRow& row : keypadTable(Keypad::Binary).rows) {
        EXPECT_TRUE(row.built() || row.types.plain != '\0') << row.key;
    }
}

TEST_F(BinaryKeypad, AnOperandWithoutItsLetterStopsTheFunctionAndLosesNothing) {
    put("#31h");
    const auto lines = tape();
    const auto stays = [&] {
        EXPECT_NE(lastBox().find("Binary indicator"), std::string::npos) << lastBox();
        EXPECT_EQ(s().stack.depth(), 1);
        EXPECT_EQ(calc().text(s().stack.slot(1)), "#31h");
        EXPECT_EQ(x(), "#31h");
        EXPECT_EQ(tape(), lines);
        EXPECT_EQ(form().txtXreg.text, "");
        platform.boxes.clear();
    };
    for (const char* operation : {"#7/", "#7*", "#7-", "#7+", "#7<"}) {
        SCOPED_TRACE(operation);
        type(operation);
        stays();
    }
    for (const std::size_t key : {12U, 4U, 21U}) {
        type("#7");
        bank(key);
        stays();
    }
}

}  // namespace
}  // namespace tallyforge
