// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/failure_messages.h"
#include "engine/key_names.h"
#include "numbers/out_of_range.h"

#include "platform/text.h"

namespace tallyforge {

namespace {

constexpr int kOctalKey = 21;

}  // namespace

std::string failureMessage(FailureNumber number, int index, const EngineState& state) {
    switch (number) {
        case FailureNumber::InvalidArgument:
            if (state.delivery.FnLabel == "ûx"_t) {
                return "Illegal operation (square root of negitive number)!";
            }
            return index == key::Power ? "Illegal operation - check for negitive numbers!" : "Error number 5";
        case FailureNumber::Overflow:
            // Kept from a numbering in which key 21 of the Convert keypad was the octal key.
            if (index == kOctalKey && state.modes.ActiveKeypad == Keypad::Convert) {
                return "Octal number outside of range: 17777777777 octal maximum";
            }
            if (index == key::ToBase && state.modes.ActiveKeypad == Keypad::Binary && state.modes.BaseMode) {
                return state.stack.Xreg.isTagged() ? "Real number required!" : "Exceeded maximum number (1.845e19)!";
            }
            return std::string(kOutOfRange);
        case FailureNumber::DivisionByZero:
            return std::string(kDividedByZero);
        case FailureNumber::ModifierNotValid:
            return "That Extended key (or keys) not valid for that function,\nsee Help file or tooltip for applicable "
                   "Extended keys";
        case FailureNumber::BaseRange:
            return "Number outside of range (#0b to #1111.... (64 TOTAL) ....1111b)";
        case FailureNumber::BaseNumberRequired:
            return "Binary number required in x-register!";
        default:
            return "Error number " + std::to_string(static_cast<int>(number));
    }
}

}  // namespace tallyforge
