// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tallyforge {
namespace {

TEST(Text, BytesReadByTheFontThatShowsThem) {
    EXPECT_EQ(toUnicode("\xF6 \xFD \xFB \xE3 \xE4 \xE2 \xF8 \xE6 \xEA \xED \xE9 \xE0", Face::Terminal),
              "÷ ² √ π Σ Γ ° µ Ω φ Θ α");
    EXPECT_EQ(toUnicode("p l w W a e r S G D F \xD6", Face::Symbol), "π λ ω Ω α ε ρ Σ Γ Δ Φ √");
    EXPECT_EQ(toUnicode("\xD6\xB4", Face::Symbol), "√x");
    EXPECT_EQ(toUnicode("x\xB2", Face::Arial), "x²");
    EXPECT_EQ(fromUnicode("2ãf€"),
              "2\xE3"
              "f?");
    EXPECT_EQ("Xý"_t, std::string_view("X\xFD"));
}

}  // namespace
}  // namespace tallyforge
