// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/failure_messages.h"

#include "platform/text.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

struct FailureCase {
    const char* name;
    FailureNumber number;
    int key;
    Keypad keypad;
    bool baseMode;
    std::string_view label;
    const char* x;
    std::string_view message;
};

void PrintTo(const FailureCase& row, std::ostream* out) {
    *out << row.name;
}

constexpr std::string_view kRange = "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t;

class FailureMessage : public ::testing::TestWithParam<FailureCase> {};

TEST_P(FailureMessage, IsTheOneOfTheTable) {
    const FailureCase& row = GetParam();
    EngineState state;
    state.modes.ActiveKeypad = row.keypad;
    state.modes.BaseMode = row.baseMode;
    state.delivery.FnLabel = row.label;
    state.stack.Xreg = row.x;
    EXPECT_EQ(failureMessage(row.number, row.key, state), row.message);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FailureMessage,
    ::testing::Values(
        FailureCase{"SquareRoot", FailureNumber::InvalidArgument, 2, Keypad::Standard, false, "ûx"_t, "-4",
                    "Illegal operation (square root of negitive number)!"},
        FailureCase{"SquareRootBeforeKeyFive", FailureNumber::InvalidArgument, 5, Keypad::Standard, false, "ûx"_t, "-4",
                    "Illegal operation (square root of negitive number)!"},
        FailureCase{"KeyFiveOnAnyKeypad", FailureNumber::InvalidArgument, 5, Keypad::Magnetics, false, "y^x", "-4",
                    "Illegal operation - check for negitive numbers!"},
        FailureCase{"OtherKey", FailureNumber::InvalidArgument, 14, Keypad::Standard, false, "ln", "-4",
                    "Error number 5"},
        FailureCase{"KeepsOctalTextOfKey21OnConvert", FailureNumber::Overflow, 21, Keypad::Convert, false, "", "1",
                    "Octal number outside of range: 17777777777 octal maximum"},
        FailureCase{"Key21Elsewhere", FailureNumber::Overflow, 21, Keypad::Standard, false, "", "1", kRange},
        FailureCase{"BinaryOfTaggedNumber", FailureNumber::Overflow, 6, Keypad::Binary, true, "", "#101b",
                    "Real number required!"},
        FailureCase{"BinaryTooLarge", FailureNumber::Overflow, 6, Keypad::Binary, true, "", "1e30",
                    "Exceeded maximum number (1.845e19)!"},
        FailureCase{"BinaryWithoutBaseMode", FailureNumber::Overflow, 6, Keypad::Binary, false, "", "1e30", kRange},
        FailureCase{"OtherKeyOfBinary", FailureNumber::Overflow, 7, Keypad::Binary, true, "", "1e30", kRange},
        FailureCase{"OtherOverflow", FailureNumber::Overflow, 1, Keypad::Standard, false, "", "1e300", kRange},
        FailureCase{"DivisionByZero", FailureNumber::DivisionByZero, 0, Keypad::Standard, false, "1/X", "0",
                    "Division by zero - be sure all variables are defined!"},
        FailureCase{"TypeMismatch", FailureNumber::TypeMismatch, 0, Keypad::Standard, false, "", "abc",
                    "Error number 13"},
        FailureCase{"ModifierNotValid", FailureNumber::ModifierNotValid, 0, Keypad::Standard, false, "", "1",
                    "That Extended key (or keys) not valid for that function,\nsee Help file or tooltip for "
                    "applicable Extended keys"},
        FailureCase{"BaseNumberRequired", FailureNumber::BaseNumberRequired, 3, Keypad::Binary, true, "", "1",
                    "Binary number required in x-register!"},
        FailureCase{"AnyOther", FailureNumber::IndexOutOfRange, 0, Keypad::Standard, false, "", "1", "Error number 9"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace tallyforge
