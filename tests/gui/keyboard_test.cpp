// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/window_fixture.h"

#include <vector>

namespace tallyforge {
namespace {

class WindowKeyboard : public WindowTest {};

TEST_F(WindowKeyboard, BelongsToTheEntryLineFromTheStart) {
    EXPECT_EQ(QApplication::focusWidget(), &view());
    EXPECT_EQ(form().focus, &form().txtXreg);
}

TEST_F(WindowKeyboard, StaysWithTheEntryLineAfterClicksAndMenus) {
    clickOn(form().cmdNumPad.at(4));
    clickOn(form().optRad);
    clickOn(form().cmdView);
    clickOn(form().cmdView);
    entry("&Trig")->trigger();
    type("2");
    EXPECT_EQ(QApplication::focusWidget(), &view());
    EXPECT_EQ(form().txtXreg.text, "42");
}

TEST_F(WindowKeyboard, TypesACalculation) {
    type("2");
    strike(Qt::Key_Return, "\r");
    type("3+");
    EXPECT_EQ(engine().xNumber(), 5.0);
    EXPECT_EQ(engine().s.stack.depth(), 1);
    EXPECT_EQ(engine().tape.row(engine().tape.count() - 1), "+                  5.00");
}

TEST_F(WindowKeyboard, KeepsUpWithAFastTypist) {
    constexpr int kTimes = 1000;
    type("0");
    strike(Qt::Key_Enter, "\r");
    const std::string burst = "12.5+";
    for (int i = 0; i < kTimes; ++i) {
        type(burst.c_str());
    }
    EXPECT_EQ(engine().xNumber(), 12.5 * kTimes);
    EXPECT_EQ(engine().tape.lines(), 2U * kTimes + 1U);
}

TEST_F(WindowKeyboard, ShowsWhatIsTypedWithTheCaretBehindIt) {
    type("3.25");
    EXPECT_EQ(form().txtXreg.text, "3.25");
    EXPECT_EQ(form().txtXreg.caret, 4U);
    strike(Qt::Key_Backspace, "\b");
    EXPECT_EQ(form().txtXreg.text, "3.2");
    EXPECT_EQ(form().txtXreg.caret, 3U);
}

TEST_F(WindowKeyboard, PassesTheOwnShiftOfACharacterAsNoModifier) {
    struct Shifted {
        Qt::Key key;
        const char* text;
        double result;
    };
    // The star is Shift+8 here, Shift and the plus key there, and the percent sign is Shift+5.
    const Shifted strokes[] = {{Qt::Key_Asterisk, "*", 42.0}, {Qt::Key_M, "M", 42.0}, {Qt::Key_Slash, "/", 6.0 / 7.0}};
    for (const Shifted& stroke : strokes) {
        std::vector<int> masks;
        const auto plain = form().txtXreg.keyPress;
        form().txtXreg.keyPress = [&](int& character) {
            masks.push_back(engine().s.modifiers.ModifierMask);
            plain(character);
        };
        type("6");
        strike(Qt::Key_Return, "\r");
        type("7");
        masks.clear();
        strike(stroke.key, stroke.text, Qt::ShiftModifier);
        EXPECT_EQ(masks, std::vector<int>{0}) << stroke.text;
        EXPECT_DOUBLE_EQ(engine().xNumber(), stroke.result) << stroke.text;
        form().txtXreg.keyPress = plain;
    }
}

TEST_F(WindowKeyboard, LightsTheLampAndPaintsTheBankWhileShiftIsHeld) {
    const QImage before = picture();
    const std::string ln = form().cmdFunctions.at(14).text;
    holdShift();
    EXPECT_TRUE(widget(form().shaShift).isVisible());
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kShift);
    EXPECT_NE(form().cmdFunctions.at(14).text, ln);
    EXPECT_NE(picture(), before);
    release(Qt::Key_Shift, {}, Qt::ShiftModifier);
    EXPECT_FALSE(widget(form().shaShift).isVisible());
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kNoModifier);
    EXPECT_EQ(picture(), before);
}

TEST_F(WindowKeyboard, LeavesTheBankAloneForTheShiftOfACharacter) {
    const std::string ln = form().cmdFunctions.at(14).text;
    type("6");
    strike(Qt::Key_Return, "\r");
    type("7");
    press(Qt::Key_Shift);
    EXPECT_EQ(form().cmdFunctions.at(14).text, ln);
    press(Qt::Key_Asterisk, "*", Qt::ShiftModifier);
    release(Qt::Key_Asterisk, "*", Qt::ShiftModifier);
    QTest::qWait(160);
    EXPECT_EQ(form().cmdFunctions.at(14).text, ln);
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kNoModifier);
    release(Qt::Key_Shift, {}, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(engine().xNumber(), 42.0);
}

TEST_F(WindowKeyboard, AClickRightAfterShiftIsShifted) {
    type("0");
    press(Qt::Key_Shift);
    QTest::mouseClick(&widget(form().cmdFunctions.at(14)), Qt::LeftButton, Qt::ShiftModifier);
    release(Qt::Key_Shift);
    EXPECT_DOUBLE_EQ(engine().xNumber(), 1.0) << "e to the power of 0";
}

TEST_F(WindowKeyboard, ShowsTheKeyOfEachStrokeAsPressed) {
    struct Stroke {
        Qt::Key key;
        const char* text;
        const Control* pressed;
    };
    const Stroke strokes[] = {{Qt::Key_Backspace, "\b", &form().cmdBackSpace},
                              {Qt::Key_Escape, "\x1b", &form().cmdEsc},
                              {Qt::Key_End, "", &form().cmdXchgY},
                              {Qt::Key_Delete, "", &form().cmdDown},
                              {Qt::Key_Insert, "", &form().cmdLastx},
                              {Qt::Key_Backslash, "\\", &form().cmdChs},
                              {Qt::Key_Return, "\r", &form().cmdEnter},
                              {Qt::Key_E, "e", &form().cmdEex}};
    for (const Stroke& stroke : strokes) {
        type("1");
        press(stroke.key, stroke.text);
        EXPECT_TRUE(widget(*stroke.pressed).isPressed()) << stroke.pressed->name;
        release(stroke.key, stroke.text);
        EXPECT_FALSE(widget(*stroke.pressed).isPressed()) << stroke.pressed->name;
    }
}

TEST_F(WindowKeyboard, ZoomsByCtrlPlusMinusAndZero) {
    const double usual = view().scale();
    press(Qt::Key_Plus, {}, Qt::ControlModifier);
    EXPECT_NEAR(view().scale(), usual * 1.1, 0.002);
    press(Qt::Key_Minus, {}, Qt::ControlModifier);
    press(Qt::Key_Minus, {}, Qt::ControlModifier);
    EXPECT_LT(view().scale(), usual);
    press(Qt::Key_0, {}, Qt::ControlModifier);
    EXPECT_NEAR(view().scale(), usual, 0.002);
    EXPECT_EQ(form().txtXreg.text, "");
}

TEST_F(WindowKeyboard, AddsModifiersAndTakesThemAwayOneByOne) {
    press(Qt::Key_Shift);
    press(Qt::Key_Control, {}, Qt::ShiftModifier);
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kShift + kCtrl);
    EXPECT_TRUE(widget(form().shaShift).isVisible());
    EXPECT_TRUE(widget(form().shaCtrl).isVisible());
    release(Qt::Key_Control, {}, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_TRUE(widget(form().shaShift).isVisible());
    EXPECT_FALSE(widget(form().shaCtrl).isVisible());
    release(Qt::Key_Shift, {}, Qt::ShiftModifier);
    EXPECT_FALSE(widget(form().shaShift).isVisible());
}

TEST_F(WindowKeyboard, TakesAltBehindShiftUnderItsOtherName) {
    press(Qt::Key_Shift);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Meta, Qt::ShiftModifier);
    QApplication::sendEvent(&view(), &down);
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kShift + kAlt);
    EXPECT_TRUE(widget(form().shaAlt).isVisible());
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Meta, Qt::ShiftModifier | Qt::AltModifier);
    QApplication::sendEvent(&view(), &up);
    EXPECT_TRUE(widget(form().shaShift).isVisible());
    EXPECT_FALSE(widget(form().shaAlt).isVisible());
    release(Qt::Key_Shift, {}, Qt::ShiftModifier);
}

TEST_F(WindowKeyboard, LetsModifiersGoWhenTheWindowLosesTheKeyboard) {
    press(Qt::Key_Control);
    ASSERT_EQ(engine().s.modifiers.ModifierMask, kCtrl);
    view().clearFocus();
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kNoModifier);
    EXPECT_FALSE(widget(form().shaCtrl).isVisible());
}

TEST_F(WindowKeyboard, ShowsAKeyAsPressedWhileItIsDown) {
    const qt::ControlWidget& seven = widget(form().cmdNumPad.at(7));
    const QImage plain = widget(form().cmdNumPad.at(7)).grab().toImage();
    press(Qt::Key_7, "7");
    EXPECT_TRUE(seven.isPressed());
    EXPECT_NE(widget(form().cmdNumPad.at(7)).grab().toImage(), plain);
    release(Qt::Key_7, "7");
    EXPECT_FALSE(seven.isPressed());
    EXPECT_EQ(widget(form().cmdNumPad.at(7)).grab().toImage(), plain);
}

TEST_F(WindowKeyboard, ARepeatedModifierPaintsTheBankOnce) {
    holdShift();
    int paints = 0;
    const auto plain = form().txtXreg.keyDown;
    form().txtXreg.keyDown = [&](KeyEvent event) {
        ++paints;
        plain(event);
    };
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier, {}, true);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier, {}, true);
    for (int i = 0; i < 5; ++i) {
        QApplication::sendEvent(&view(), &release);
        QApplication::sendEvent(&view(), &again);
    }
    EXPECT_EQ(paints, 0);
    EXPECT_TRUE(widget(form().shaShift).isVisible());
}

TEST_F(WindowKeyboard, ARepeatedKeyTypesAgainAndAgain) {
    press(Qt::Key_4, "4");
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_4, Qt::NoModifier, "4", true);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_4, Qt::NoModifier, "4", true);
    for (int i = 0; i < 3; ++i) {
        QApplication::sendEvent(&view(), &up);
        EXPECT_TRUE(widget(form().cmdNumPad.at(4)).isPressed());
        QApplication::sendEvent(&view(), &down);
    }
    release(Qt::Key_4, "4");
    EXPECT_EQ(form().txtXreg.text, "4444");
}

TEST_F(WindowKeyboard, KeepsTheArrowKeysForTheKeypads) {
    const std::string first = form().lblBank.text;
    strike(Qt::Key_Down);
    const std::string second = form().lblBank.text;
    EXPECT_NE(second, first);
    strike(Qt::Key_Up);
    EXPECT_EQ(form().lblBank.text, first);
    EXPECT_EQ(QApplication::focusWidget(), &view());
    strike(Qt::Key_Tab, "\t");
    EXPECT_EQ(QApplication::focusWidget(), &view());
}

TEST_F(WindowKeyboard, DropsExchangesAndRetrievesByTheEditingKeys) {
    type("8");
    strike(Qt::Key_Return, "\r");
    type("2");
    strike(Qt::Key_Return, "\r");
    strike(Qt::Key_End);
    EXPECT_EQ(engine().xNumber(), 8.0);
    strike(Qt::Key_Delete);
    EXPECT_EQ(engine().xNumber(), 2.0);
    EXPECT_EQ(engine().s.stack.depth(), 1);
}

TEST_F(WindowKeyboard, TakesAltWithALetterForItsKeys) {
    ASSERT_FALSE(form().txty_Reg.visible);
    strike(Qt::Key_V, "v", Qt::AltModifier);
    EXPECT_TRUE(widget(form().txty_Reg).isVisible());
    strike(Qt::Key_C, "c", Qt::AltModifier);
    EXPECT_TRUE(form().optFix.at(1).checked);
    EXPECT_EQ(form().txtXreg.text, "");
    EXPECT_EQ(QApplication::focusWidget(), &view());
}

TEST_F(WindowKeyboard, LeavesAltWithAMenuLetterToTheMenu) {
    QKeyEvent forMenu(QEvent::ShortcutOverride, Qt::Key_F, Qt::AltModifier);
    forMenu.ignore();
    QApplication::sendEvent(&view(), &forMenu);
    EXPECT_FALSE(forMenu.isAccepted());
    QKeyEvent forKey(QEvent::ShortcutOverride, Qt::Key_D, Qt::AltModifier);
    forKey.ignore();
    QApplication::sendEvent(&view(), &forKey);
    EXPECT_TRUE(forKey.isAccepted());
}

TEST_F(WindowKeyboard, ALoneAltLeavesTheMenuBarAlone) {
    press(Qt::Key_Alt);
    EXPECT_TRUE(widget(form().shaAlt).isVisible());
    release(Qt::Key_Alt, {}, Qt::AltModifier);
    EXPECT_FALSE(widget(form().shaAlt).isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &view());
    type("5");
    EXPECT_EQ(form().txtXreg.text, "5");
}

TEST_F(WindowKeyboard, CopiesWithCtrlC) {
    type("12.5");
    strike(Qt::Key_Return, "\r");
    strike(Qt::Key_C, "\x03", Qt::ControlModifier);
    EXPECT_EQ(platform.clipboard, "12.5");
}

}  // namespace
}  // namespace tallyforge
