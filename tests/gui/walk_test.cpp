// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/window_fixture.h"

#include <QMenu>

#include <algorithm>
#include <vector>

namespace tallyforge {
namespace {

class WindowWalk : public WindowTest {
protected:
    void tab(int times = 1) {
        for (int i = 0; i < times; ++i) {
            strike(Qt::Key_Tab, "\t");
        }
    }
    void typeNumbers() {
        for (const char* number : {"3", "4", "5"}) {
            type(number);
            strike(Qt::Key_Return, "\r");
        }
    }
};

TEST_F(WindowWalk, TabGoesThroughTheFormAndBack) {
    typeNumbers();
    const Control* stops[] = {&form().lstDisplayReg, &form().lstStack, &form().cmdFunctions.at(15), &form().cmdSTO,
                              &form().optFix.at(0),  &form().optDeg,   &form().optKey.at(0)};
    for (const Control* stop : stops) {
        tab();
        ASSERT_NE(form().tabbedTo, nullptr);
        EXPECT_EQ(form().tabbedTo->fullName(), stop->fullName());
        EXPECT_TRUE(widget(*stop).hasKeyboard());
        EXPECT_FALSE(widget(form().txtXreg).hasKeyboard());
    }
    tab();
    EXPECT_EQ(form().tabbedTo, nullptr);
    EXPECT_TRUE(widget(form().txtXreg).hasKeyboard());
    strike(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(form().tabbedTo, &form().optKey.at(0));
}

TEST_F(WindowWalk, EveryVisibleKeyAndOptionIsReachedByTabAndArrows) {
    typeNumbers();
    std::vector<const Control*> reached;
    for (int stop = 1; stop <= 7; ++stop) {
        tab();
        std::vector<Control*> open{form().tabbedTo};
        if (form().tabbedTo->kind == ControlKind::List) {
            reached.push_back(form().tabbedTo);
            continue;
        }
        std::vector<const Control*> group;
        while (!open.empty()) {
            Control* at = open.back();
            open.pop_back();
            if (std::find(group.begin(), group.end(), at) != group.end()) {
                continue;
            }
            group.push_back(at);
            for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
                form().tabbedTo = at;
                strike(arrow);
                open.push_back(form().tabbedTo);
            }
        }
        reached.insert(reached.end(), group.begin(), group.end());
    }
    for (const Control* control : form().controls()) {
        const bool pressed = control->kind == ControlKind::Key || control->kind == ControlKind::Option;
        if (pressed && control->visible && control->enabled) {
            EXPECT_NE(std::find(reached.begin(), reached.end(), control), reached.end()) << control->fullName();
        }
    }
}

TEST_F(WindowWalk, SpacePressesAndTypingLeadsBack) {
    type("0");
    tab(3);
    strike(Qt::Key_Right);
    EXPECT_EQ(form().tabbedTo, &form().cmdFunctions.at(14));
    press(Qt::Key_Shift);
    strike(Qt::Key_Space, " ", Qt::ShiftModifier);
    release(Qt::Key_Shift);
    EXPECT_DOUBLE_EQ(engine().xNumber(), 1.0) << "e to the power of 0";
    EXPECT_EQ(form().tabbedTo, nullptr);
    tab(3);
    type("7");
    EXPECT_EQ(form().tabbedTo, nullptr);
    EXPECT_EQ(form().txtXreg.text, "7");
    tab(2);
    strike(Qt::Key_Escape, "\x1b");
    EXPECT_EQ(form().tabbedTo, nullptr);
    EXPECT_EQ(form().txtXreg.text, "7");
}

// The session of the README, and what a listener is told of it.
TEST_F(WindowWalk, AWholeSessionGoesByKeyboardAloneAndByEar) {
    type("1");
    strike(Qt::Key_Escape, "\x1b");
    std::vector<std::string> heard;
    view().announced = [&](const QString& text) { heard.push_back(text.toStdString()); };
    type("12.60");
    strike(Qt::Key_Return, "\r");
    type("3.5/");
    EXPECT_DOUBLE_EQ(engine().xNumber(), 3.6);
    type("2");
    tab(3);
    for (int row = 0; row < 5; ++row) {
        strike(Qt::Key_Down);
    }
    EXPECT_EQ(form().tabbedTo, &form().cmdFunctions.at(2));
    EXPECT_EQ(widget(form().lblName).label(), "Square root of x");
    strike(Qt::Key_Space, " ");
    type("*");
    strike(Qt::Key_Insert);
    EXPECT_EQ(engine().text(engine().s.stack.Xreg), "1.4142135623731");
    tab(2);
    strike(Qt::Key_Home);
    EXPECT_EQ(widget(form().lstStack).meaning(), "1 5.09e+00");
    // One result a key.
    const std::vector<std::string> told{"12.60", "\xC3\xB7 3.60", "\xE2\x88\x9Ax 1.41", "X 5.09", "Lastx 1.41"};
    EXPECT_EQ(heard, told);
}

TEST_F(WindowWalk, ARowIsChosenAndRecalled) {
    typeNumbers();
    tab(2);
    strike(Qt::Key_Home);
    EXPECT_EQ(engine().stackList.selected(), 0U);
    strike(Qt::Key_C, "\x03", Qt::ControlModifier);
    EXPECT_EQ(platform.clipboard.substr(0, 1), "1");
    strike(Qt::Key_Return, "\r");
    EXPECT_DOUBLE_EQ(engine().xNumber(), 3.0);
    EXPECT_EQ(form().tabbedTo, nullptr);
}

TEST_F(WindowWalk, TheNameLineSaysWhatIsUnderThePointerOrTheWalk) {
    EXPECT_EQ(widget(form().lblName).label(), "Standard");
    tab(3);
    EXPECT_EQ(widget(form().lblName).label(), "Logarithm to the base of ten");
    strike(Qt::Key_Escape, "\x1b");
    view().pointAt(&form().cmdFunctions.at(14));
    EXPECT_EQ(widget(form().lblName).label(), "Natural logarithm");
    view().pointAt(nullptr);
    EXPECT_EQ(widget(form().lblName).label(), "Standard");
}

TEST_F(WindowWalk, FunctionKeysChooseAngleFormatAndView) {
    strike(Qt::Key_F3);
    EXPECT_TRUE(form().optRad.checked);
    strike(Qt::Key_F6);
    EXPECT_TRUE(form().optFix.at(1).checked);
    strike(Qt::Key_F8);
    EXPECT_EQ(form().place.width, MainForm::kExtendedWidth);
    strike(Qt::Key_F1);
    EXPECT_EQ(platform.helpTopics, std::vector<int>{500});
}

TEST_F(WindowWalk, AMenuClosedByEscLeavesTheMenuBarAlone) {
    QMenu* file = window.menuBar()->actions().at(0)->menu();
    window.menuBar()->setActiveAction(window.menuBar()->actions().at(0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return file->isVisible(); }));
    QTest::keyClick(file, Qt::Key_Escape);
    QTest::qWait(20);
    EXPECT_EQ(window.menuBar()->activeAction(), nullptr);
    QTest::mouseMove(window.menuBar(), window.menuBar()->actionGeometry(window.menuBar()->actions().at(1)).center());
    QTest::qWait(20);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    QTest::keyClicks(&view(), "8");
    EXPECT_EQ(form().txtXreg.text, "8");
}

TEST_F(WindowWalk, AWiderWindowIsFilledAtOnceAndAHigherOneShowsMoreTape) {
    const int rows = widget(form().lstDisplayReg).height();
    window.resize(window.width() + 200, window.height());
    QApplication::processEvents();
    const QRect tape = widget(form().lstDisplayReg).geometry();
    EXPECT_EQ(tape, view().toPixels(form().lstDisplayReg.place));
    EXPECT_LT(tape.left(), 20) << "the width goes to the lists";
    window.resize(window.width() - 200, window.height() + 150);
    QApplication::processEvents();
    EXPECT_NEAR(widget(form().lstDisplayReg).height(), rows + 150, 3);
    EXPECT_LE(widget(form().cmdReset).geometry().bottom(), view().height());
}

TEST_F(WindowWalk, ALongNumberIsCutInTheMiddleAndKeepsItsSize) {
    const QFont font(QString("DejaVu Sans Mono"), 12);
    Control field;
    field.kind = ControlKind::Field;
    field.text = "#" + std::string(64, '1') + "b";
    const QString cut = qt::fittedFieldText(field, 120.0, font);
    EXPECT_TRUE(cut.startsWith("#1"));
    EXPECT_TRUE(cut.endsWith("1b"));
    EXPECT_LE(QFontMetricsF(font).horizontalAdvance(cut), 120.0);
}

}  // namespace
}  // namespace tallyforge
