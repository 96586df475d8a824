// SPDX-License-Identifier: GPL-3.0-or-later
//
// The quiz in the window, by mouse and by keyboard, to each of its ends.
#include "window_fixture.h"

namespace tallyforge {
namespace {

class WindowQuiz : public WindowTest {
protected:
    static constexpr std::size_t kQuizKey = 7;

    /// Both numbers of every problem are 4 of 9.
    void start() {
        platform.randoms.assign(20, 0.4);
        clickOn(form().cmdFunctions[kQuizKey]);
        type("9");
        strike(Qt::Key_Return, "\r");
    }
    bool onlyTheQuizKeyIsSeen() {
        for (std::size_t i = 0; i < form().cmdFunctions.size(); ++i) {
            if (widget(form().cmdFunctions[i]).isVisible() != (i == kQuizKey)) {
                return false;
            }
        }
        return true;
    }
    void expectAllBack() {
        EXPECT_FALSE(engine().s.modes.QuizMode);
        for (const Control& key : form().cmdFunctions) {
            EXPECT_TRUE(widget(key).isVisible());
        }
        EXPECT_EQ(form().cmdFunctions[kQuizKey].tip, " Teach math: Add (+) [Click] | Subtract (-) Shift-Click ");
        EXPECT_TRUE(form().mnuStd.enabled);
        EXPECT_TRUE(form().cmdF11.enabled);
        EXPECT_EQ(engine().s.format.DisplayDigits, 2);
    }
    std::string line(std::size_t fromEnd) { return engine().tape.row(engine().tape.count() - 1 - fromEnd); }
};

TEST_F(WindowQuiz, IsAnsweredByKeyboardAndByMouse) {
    start();
    EXPECT_TRUE(onlyTheQuizKeyIsSeen());
    EXPECT_EQ(engine().xNumber(), 4.4);
    type("8");
    strike(Qt::Key_Return, "\r");
    EXPECT_TRUE(line(1).starts_with("You are right!"));
    clickOn(form().cmdNumPad[7]);
    clickOn(form().cmdFunctions[kQuizKey]);
    EXPECT_TRUE(line(1).starts_with("Try again"));
    EXPECT_TRUE(onlyTheQuizKeyIsSeen());
    type("8");
    EXPECT_EQ(form().txtXreg.text, "8") << "the entry line has the keyboard";
}

TEST_F(WindowQuiz, EndsByItsKeyUnderCtrlAlt) {
    start();
    clickOn(form().cmdFunctions[kQuizKey], Qt::ControlModifier | Qt::AltModifier);
    expectAllBack();
    EXPECT_TRUE(line(0).starts_with("Correct!"));
}

TEST_F(WindowQuiz, EndsByTheModifierOptionsAndItsKey) {
    start();
    clickOn(form().optKey[5]);
    clickOn(form().cmdFunctions[kQuizKey]);
    expectAllBack();
}

TEST_F(WindowQuiz, EndsByReset) {
    start();
    clickOn(form().cmdReset);
    expectAllBack();
}

TEST_F(WindowQuiz, ClosingTheWindowEndsTheProgram) {
    start();
    window.close();
    EXPECT_FALSE(form().open);
}

}  // namespace
}  // namespace tallyforge
