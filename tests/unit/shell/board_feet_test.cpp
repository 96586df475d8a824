// SPDX-License-Identifier: GPL-3.0-or-later
//
// Board feet take their three inputs in any order, the length in feet or in inches.
#include "support/bank_fixture.h"

#include <algorithm>
#include <array>
#include <string>

namespace tallyforge {
namespace {

class BoardFeet : public BankAtHand {
protected:
    static constexpr std::size_t kKey = 19;
};

struct Input {
    const char* number;
    std::uint8_t mask;
    const char* label;
};

TEST_F(BoardFeet, ComeInAllSixOrders) {
    constexpr Input kThick{"1", kShift, "thk\""};
    constexpr Input kWide{"6", kCtrl, "Width\""};
    for (const Input& length : {Input{"8", kAlt, "L(ft)"}, Input{"96", kShift | kAlt, "L(in)"}}) {
        const std::array<Input, 3> inputs{kThick, kWide, length};
        std::array<std::size_t, 3> order{0, 1, 2};
        do {
            SCOPED_TRACE(std::string(length.label) + " " + std::to_string(order[0]) + std::to_string(order[1]) +
                         std::to_string(order[2]));
            choose(form().cmdReset);
            for (const std::size_t next : order) {
                type(inputs.at(next).number);
                bank(kKey, inputs.at(next).mask);
            }
            EXPECT_EQ(x(), "4");
            EXPECT_EQ(label(), "bf");
            EXPECT_EQ(s().stack.depth(), 1);
            ASSERT_EQ(tape().size(), 4U);
            for (std::size_t i = 0; i < order.size(); ++i) {
                EXPECT_EQ(label(order.size() - i), inputs.at(order.at(i)).label) << "input " << i;
            }
        } while (std::next_permutation(order.begin(), order.end()));
    }
}

TEST_F(BoardFeet, NumbersPutOnTheStackBetweenTwoInputsStayUntilTheSetIsComplete) {
    enter("7");
    type("1");
    bank(kKey, kShift);
    enter("8");
    enter("9");
    type("6");
    bank(kKey, kCtrl);
    ASSERT_EQ(s().stack.depth(), 5);
    const char* const expected[] = {"6", "9", "8", "1", "7"};
    for (int below = 0; below < 5; ++below) {
        EXPECT_EQ(element(below), expected[below]);
    }
    type("8");
    bank(kKey, kAlt);
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(x(), "4");
    EXPECT_EQ(element(1), "7");
}

}  // namespace
}  // namespace tallyforge
