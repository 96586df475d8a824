// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/window_fixture.h"

namespace tallyforge {
namespace {

class WindowMouse : public WindowTest {
protected:
    /// 2, 3 and 5 on the stack and on the tape.
    void stackThree() {
        for (const int digit : {2, 3, 5}) {
            clickOn(form().cmdNumPad.at(static_cast<std::size_t>(digit)));
            clickOn(form().cmdEnter);
        }
    }
};

TEST_F(WindowMouse, CalculatesOnTheScreenKeys) {
    for (const int digit : {1, 2}) {
        clickOn(form().cmdNumPad.at(static_cast<std::size_t>(digit)));
    }
    clickOn(form().cmdNumPad.at(10));
    clickOn(form().cmdNumPad.at(5));
    EXPECT_EQ(form().txtXreg.text, "12.5");
    clickOn(form().cmdEnter);
    clickOn(form().cmdNumPad.at(4));
    clickOn(form().cmdMath.at(1));
    EXPECT_EQ(engine().xNumber(), 50.0);
}

TEST_F(WindowMouse, PressesAFunctionKeyOfTheBank) {
    clickOn(form().cmdNumPad.at(8));
    clickOn(form().cmdFunctions.at(1));
    EXPECT_EQ(engine().xNumber(), 64.0);
}

TEST_F(WindowMouse, ShowsAKeyAsPressedAndClicksItWhenItIsLetGo) {
    qt::ControlWidget& seven = widget(form().cmdNumPad.at(7));
    const QPoint middle = seven.rect().center();
    QTest::mousePress(&seven, Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_TRUE(seven.isPressed());
    EXPECT_EQ(form().txtXreg.text, "");
    QTest::mouseRelease(&seven, Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_FALSE(seven.isPressed());
    EXPECT_EQ(form().txtXreg.text, "7");
}

TEST_F(WindowMouse, TakesAPressBackOutsideTheKey) {
    qt::ControlWidget& seven = widget(form().cmdNumPad.at(7));
    QTest::mousePress(&seven, Qt::LeftButton, Qt::NoModifier, seven.rect().center());
    QTest::mouseMove(&seven, QPoint(-30, -30));
    QTest::mouseRelease(&seven, Qt::LeftButton, Qt::NoModifier, QPoint(-30, -30));
    EXPECT_FALSE(seven.isPressed());
    EXPECT_EQ(form().txtXreg.text, "");
}

TEST_F(WindowMouse, ADisabledKeyTakesNoPress) {
    ASSERT_FALSE(form().cmdDown.enabled);
    qt::ControlWidget& drop = widget(form().cmdDown);
    QTest::mousePress(&drop, Qt::LeftButton);
    EXPECT_FALSE(drop.isPressed());
    QTest::mouseRelease(&drop, Qt::LeftButton);
    EXPECT_EQ(engine().s.stack.depth(), 0);
}

TEST_F(WindowMouse, RetrievesALineOfTheTapeByADoubleClick) {
    stackThree();
    const auto shown = static_cast<int>(
        qt::listMetrics(form().lstDisplayReg, widget(form().lstDisplayReg).height(), view().scale()).visibleRows);
    doubleClickRow(form().lstDisplayReg, shown - 2);
    EXPECT_EQ(engine().xNumber(), 3.0);
    EXPECT_EQ(engine().s.stack.depth(), 4);
}

TEST_F(WindowMouse, AClickBelowTheLastRowOfTheStackRetrievesNothing) {
    stackThree();
    qt::ControlWidget& stack = widget(form().lstStack);
    QTest::mouseClick(&stack, Qt::LeftButton, Qt::NoModifier, QPoint(stack.width() / 2, stack.height() - 4));
    EXPECT_EQ(engine().s.stack.depth(), 3);
}

TEST_F(WindowMouse, RetrievesAnElementOfTheStackByAClick) {
    stackThree();
    qt::ControlWidget& stack = widget(form().lstStack);
    QTest::mouseClick(&stack, Qt::LeftButton, Qt::NoModifier, QPoint(stack.width() / 2, 4));
    EXPECT_EQ(engine().xNumber(), 2.0);
    EXPECT_EQ(engine().s.stack.depth(), 4);
}

TEST_F(WindowMouse, HoldsAModifierByAnOptionForTheNextKey) {
    clickOn(form().optKey.at(0));
    EXPECT_TRUE(form().optKey.at(0).checked);
    EXPECT_EQ(engine().s.modifiers.ModifierMask, kShift);
    EXPECT_TRUE(engine().s.modifiers.ModifierLatched);
    clickOn(form().cmdEsc);
    EXPECT_FALSE(form().optKey.at(0).checked);
    EXPECT_FALSE(engine().s.modifiers.ModifierLatched);
}

TEST_F(WindowMouse, ChoosesOneOptionOfEachGroup) {
    clickOn(form().optRad);
    clickOn(form().optFix.at(1));
    EXPECT_TRUE(form().optRad.checked);
    EXPECT_FALSE(form().optDeg.checked);
    EXPECT_TRUE(form().optFix.at(1).checked);
    EXPECT_FALSE(form().optFix.at(0).checked);
    EXPECT_EQ(engine().s.format.Angle, AngleMode::Radians);
}

TEST_F(WindowMouse, OpensTheHelpTopicOfAKeyByTheRightButton) {
    QTest::mouseClick(&widget(form().txtXreg), Qt::RightButton);
    EXPECT_EQ(platform.helpTopics, std::vector<int>{510});
}

TEST_F(WindowMouse, ScrollsTheTapeByTheWheel) {
    for (int i = 0; i < 40; ++i) {
        type("1");
        strike(Qt::Key_Return, "\r");
    }
    auto* bar = widget(form().lstDisplayReg).findChild<QScrollBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->value(), bar->maximum());
    const QPointF place(20, 20);
    QWheelEvent up(place, widget(form().lstDisplayReg).mapToGlobal(place), {}, QPoint(0, 120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget(form().lstDisplayReg), &up);
    EXPECT_LT(bar->value(), bar->maximum());
    strike(Qt::Key_Return, "\r");
    EXPECT_EQ(bar->value(), bar->maximum()) << "a new line is brought into view";
}

}  // namespace
}  // namespace tallyforge
