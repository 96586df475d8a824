// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes from the clipboard: pasted as a number and as loosely as the calculator can, worked
// with, saved and read again.
#include "support/calculator_fixture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyforge;
    static CalculatorAtHand hand;
    hand.platform.clipboard = std::string(reinterpret_cast<const char*>(data), size);
    hand.press(kKeyEscape, 27);
    hand.choose(hand.form().cmdReset);
    hand.choose(hand.form().mnuPaste);
    hand.press('V', 22, kShift | kCtrl);
    hand.enter("2");
    hand.type("+");
    hand.type("5");
    hand.clickWith(kShift, hand.form().cmdSTO);
    for (Control* entry : {&hand.form().mnuSaveTape, &hand.form().mnuTape}) {
        hand.platform.texts = {"pasted.tape"};
        hand.platform.answers = {Answer::Yes, Answer::Yes};
        const auto before = hand.s().stack.StackPtr;
        hand.choose(*entry);
        if (hand.s().stack.StackPtr != before) {
            std::abort();
        }
    }
    hand.platform.boxes.clear();
    hand.platform.inputs.clear();
    return 0;
}
