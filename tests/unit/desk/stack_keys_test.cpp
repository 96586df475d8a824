// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/engine/engine_fixture.h"

namespace tallyforge {
namespace {

class StackKeys_ : public EngineTest {};

TEST_F(StackKeys_, DropTakesTheTopAway) {
    commitText("1");
    commitText("2");
    commitText("3");
    stackKeys.cmdDown_Click();
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(x(), "2");
    EXPECT_EQ(y(), "1");
    EXPECT_EQ(lastx(), "3");
    EXPECT_EQ(lastLine(), "Drop               2.00");
}

TEST_F(StackKeys_, DropAtDepthOneEmptiesTheStack) {
    commitText("5");
    stackKeys.cmdDown_Click();
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(calc.s.stack.StackPtr, 1);
    EXPECT_FALSE(calc.form.cmdDown.enabled);
    EXPECT_FALSE(calc.form.cmdXchgY.enabled);
    EXPECT_FALSE(calc.form.lblStkReg[7].visible);
    EXPECT_EQ(lastx(), "5");
}

TEST_F(StackKeys_, DropOnAnEmptyStackOnlyReturnsTheKeyboard) {
    calc.form.setFocus(calc.form.cmdDown);
    stackKeys.cmdDown_Click();
    EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
    EXPECT_EQ(calc.tape.lines(), 0U);
}

TEST_F(StackKeys_, ExchangeSwapsTheTwoTopElements) {
    commitText("1");
    commitText("2");
    commitText("3");
    stackKeys.cmdXchgY_Click();
    EXPECT_EQ(calc.s.stack.depth(), 3);
    EXPECT_EQ(element(3), "2");
    EXPECT_EQ(element(2), "3");
    EXPECT_EQ(y(), "3");
    EXPECT_EQ(lastLine(), "x<>y               2.00");
}

TEST_F(StackKeys_, ExchangeCommitsATypedNumberFirst) {
    commitText("1");
    type("9");
    stackKeys.cmdXchgY_Click();
    EXPECT_EQ(x(), "1");
    EXPECT_EQ(y(), "9");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(StackKeys_, ExchangeOnOneElementTakesZeroForTheMissingOne) {
    commitText("5");
    stackKeys.cmdXchgY_Click();
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(y(), "5");
    EXPECT_EQ(element(1), "5");
    EXPECT_TRUE(calc.s.stack.slot(0).isEmpty());
    stackKeys.cmdXchgY_Click();
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(StackKeys_, LastXIsPushed) {
    commitText("2");
    commitText("7");
    replaceTop(49.0, "sq");
    stackKeys.cmdLastx_Click();
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(y(), "49");
    EXPECT_EQ(calc.s.stack.depth(), 3);
    EXPECT_EQ(lastLine(), "Lastx              7.00");
}

TEST_F(StackKeys_, LastXKeepsATypedNumberThatGoesOnAfterwards) {
    commitText("2");
    type("12");
    stackKeys.cmdLastx_Click();
    EXPECT_EQ(calc.entryText(), "12");
    type("3");
    EXPECT_EQ(calc.entryText(), "123");
    enter();
    EXPECT_EQ(x(), "123");
    EXPECT_EQ(calc.s.stack.depth(), 3);
}

TEST_F(StackKeys_, ChangeSignOfXReplacesTheTop) {
    commitText("1");
    commitText("2.50");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(x(), "-2.5");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(lastx(), "2.50");
    EXPECT_EQ(lastLine(), "CHS               -2.50");
    EXPECT_EQ(calc.entryText(), "");
}

TEST_F(StackKeys_, ChangeSignKeepsEveryDigitOfX) {
    replaceTop(1.0 / 3.0, "");
    commitText("1");
    stackKeys.cmdDown_Click();
    replaceTop(1.0 / 3.0, "");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.xNumber(), -1.0 / 3.0);
}

TEST_F(StackKeys_, ChangeSignOfATypedNumberChangesTheTextOnly) {
    commitText("4");
    commitText("6");
    type("1.50");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "-1.50");
    EXPECT_EQ(lastx(), "4");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(calc.form.txtXreg.caret, 5U);
    enter();
    EXPECT_EQ(x(), "-1.50");
    EXPECT_EQ(lastx(), "6");
}

TEST_F(StackKeys_, ChangeSignOfALongTypedNumberLosesNoDigit) {
    type("12345678901234567");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "-12345678901234567");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "12345678901234567");
}

TEST_F(StackKeys_, ChangeSignOnAnExponentTogglesTheExponent) {
    type("5e3");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "5e-3");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "5e3");
    entry.cmdEsc_Click();
    type("5e");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "5e-");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.entryText(), "5e");
}

TEST_F(StackKeys_, ZeroHasNoSign) {
    commitText("0");
    stackKeys.cmdChs_Click();
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(lastLine(), "CHS                0.00");
}

TEST_F(StackKeys_, OnTheBinaryKeypadChangeSignGivesTheRemainder) {
    commitText("#7d");
    calc.s.modes.BaseMode = true;
    calc.s.format.BaseRemainder = "#3d";
    stackKeys.cmdChs_Click();
    EXPECT_EQ(x(), "#3d");
    EXPECT_EQ(lastLine(), "Mod                 #3d");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    calc.s.format.BaseRemainder = "";
    stackKeys.cmdChs_Click();
    EXPECT_EQ(x(), "0");
}

TEST_F(StackKeys_, AllFourDoNothingUnderAModifier) {
    commitText("1");
    commitText("2");
    calc.s.modifiers.ModifierMask = kShift;
    stackKeys.cmdDown_Click();
    stackKeys.cmdXchgY_Click();
    stackKeys.cmdLastx_Click();
    stackKeys.cmdChs_Click();
    EXPECT_EQ(calc.tape.lines(), 2U);
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
}

class StackRows : public EngineTest {
protected:
    std::vector<std::string> marks() {
        std::vector<std::string> shown;
        for (const Control& mark : calc.form.lblStkReg) {
            if (mark.visible) {
                shown.push_back(mark.text + std::to_string(mark.index));
            }
        }
        return shown;
    }
};

TEST_F(StackRows, MarksFollowTheListDownAsItFills) {
    commitText("1");
    EXPECT_EQ(marks(), (std::vector<std::string>{"X7"}));
    commitText("2");
    EXPECT_EQ(marks(), (std::vector<std::string>{"X6", "Y7"}));
    for (int i = 3; i <= 7; ++i) {
        commitText("3");
    }
    EXPECT_EQ(marks(), (std::vector<std::string>{"X1", "Y2"}));
    for (int i = 8; i <= 20; ++i) {
        commitText("4");
        EXPECT_EQ(marks(), (std::vector<std::string>{"X0", "Y1"}));
    }
}

TEST_F(StackRows, ShowTheLastEightElementsInAnAlignedColumn) {
    for (int i = 1; i <= 9; ++i) {
        commitText("1.5");
    }
    EXPECT_EQ(calc.stackList.count(), 8U);
    EXPECT_EQ(calc.stackList.row(0), "2   1.50e+00");
    commitText("-2");
    EXPECT_EQ(calc.stackList.row(7), "10  -2.00e+00");
    EXPECT_EQ(calc.stackList.element(7), 10);
}

TEST_F(StackRows, AnIndexOfAThousandLeavesOneDecimal) {
    for (int i = 1; i <= 1000; ++i) {
        commitText("1.25");
    }
    EXPECT_EQ(calc.stackList.row(6), "999 1.25e+00");
    EXPECT_EQ(calc.stackList.row(7), "1000 1.2e+00");
}

TEST_F(StackRows, BaseNumbersKeepTagAndLetterAndEndInTheColumn) {
    commitText("#1Fh");
    EXPECT_EQ(calc.stackList.row(0), "1       #1Fh");
    commitText("#1111000011110000b");
    EXPECT_EQ(calc.stackList.row(1), "2 #1111000011110000b");
}

TEST_F(StackRows, AnEmptyStackShowsNothing) {
    EXPECT_EQ(calc.stackList.count(), 0U);
    EXPECT_TRUE(marks().empty());
}

TEST_F(StackRows, TheCompactLayoutMarksSixRows) {
    calc.s.window.CompactForm = true;
    calc.s.window.TapeRows = 5;
    commitText("1");
    EXPECT_EQ(marks(), (std::vector<std::string>{"X5"}));
    for (int i = 2; i <= 9; ++i) {
        commitText("1");
    }
    EXPECT_EQ(marks(), (std::vector<std::string>{"X0", "Y1"}));
}

TEST_F(StackRows, EachDepthOfTheCompactLayoutHasItsMarks) {
    calc.s.window.CompactForm = true;
    calc.s.window.TapeRows = 5;
    for (int depth = 1; depth <= 9; ++depth) {
        commitText("1");
        const std::string top = std::to_string(depth < 6 ? 6 - depth : 0);
        const std::string below = std::to_string(depth < 6 ? 7 - depth : 1);
        EXPECT_EQ(marks(),
                  depth == 1 ? std::vector<std::string>{"X5"} : (std::vector<std::string>{"X" + top, "Y" + below}))
            << "at depth " << depth;
    }
}

TEST_F(StackRows, EachDepthHasItsMarksAndDropMovesThem) {
    const auto expected = [](int depth) {
        const std::string top = std::to_string(depth < 8 ? 8 - depth : 0);
        const std::string below = std::to_string(depth < 8 ? 9 - depth : 1);
        return depth == 1 ? std::vector<std::string>{"X7"} : std::vector<std::string>{"X" + top, "Y" + below};
    };
    for (int depth = 1; depth <= 10; ++depth) {
        commitText("1");
        EXPECT_EQ(marks(), expected(depth)) << "at depth " << depth;
    }
    for (int depth = 9; depth >= 1; --depth) {
        stackKeys.cmdDown_Click();
        EXPECT_EQ(marks(), expected(depth)) << "at depth " << depth;
    }
}

}  // namespace
}  // namespace tallyforge
