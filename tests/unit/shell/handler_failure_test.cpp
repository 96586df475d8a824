// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whatever a handler raises ends that handler and nothing else.
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace tallyforge {
namespace {

class HandlerFailure : public ::testing::Test, protected CalculatorAtHand {
protected:
    template <typename Raised>
    void raiseEverywhere(const Raised& raised) {
        for (Control* control : form().controls()) {
            control->enabled = true;
            control->visible = true;
            control->click = [raised] { throw raised; };
            control->doubleClick = [raised] { throw raised; };
            control->mouseDown = [raised](MouseButton, std::uint8_t) { throw raised; };
            control->mouseUp = [raised](MouseButton, std::uint8_t) { throw raised; };
            control->keyDown = [raised](KeyEvent) { throw raised; };
            control->keyPress = [raised](int&) { throw raised; };
            control->keyUp = [raised](KeyEvent) { throw raised; };
            control->gotFocus = [raised] { throw raised; };
            control->changed = [raised] { throw raised; };
        }
    }
    /// Each way in which a hand reaches a control; each tells its failure once.
    void touchEverything(std::string_view text) {
        for (Control* control : form().controls()) {
            for (const auto& touch : std::initializer_list<std::function<void()>>{
                     [&] { click(form(), *control); }, [&] { rightClick(form(), *control, 0); },
                     [&] { clickRow(form(), *control, 0); }, [&] { doubleClickRow(form(), *control, 0); }}) {
                platform.boxes.clear();
                EXPECT_NO_THROW(touch()) << control->fullName();
                EXPECT_LE(platform.boxes.size(), 1U) << control->fullName();
                for (const MessageBox& box : platform.boxes) {
                    EXPECT_EQ(box.text, text);
                    EXPECT_TRUE(box.title.ends_with(" Error!")) << box.title;
                }
            }
        }
        platform.boxes.clear();
        EXPECT_NO_THROW(type("5"));
        EXPECT_FALSE(platform.boxes.empty());
    }
};

TEST_F(HandlerFailure, IsToldAndTheProgramGoesOn) {
    enter("12.5");
    const auto before = everything();
    s().CurrentProc = "cmdFunctions";
    raiseEverywhere(std::runtime_error("whatever"));
    touchEverything("Error");
    EXPECT_TRUE(form().open);
    EXPECT_EQ(everything(), before);
}

TEST_F(HandlerFailure, LackOfMemoryIsToldAsSuch) {
    enter("7");
    const auto before = everything();
    raiseEverywhere(std::bad_alloc());
    touchEverything("Error: there is not enough memory for that!");
    EXPECT_EQ(everything(), before);
}

}  // namespace
}  // namespace tallyforge
