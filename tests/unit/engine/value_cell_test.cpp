// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/value_cell.h"

#include "engine/failure.h"
#include "engine/tape.h"
#include "platform/text.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

TEST(Cell, ReadsAsANumberWhateverItHolds) {
    EXPECT_EQ(ValueCell{}.number('.'), 0.0);
    EXPECT_EQ(ValueCell{std::int16_t{7}}.number('.'), 7.0);
    EXPECT_EQ(ValueCell{0.5F}.number('.'), 0.5);
    EXPECT_EQ(ValueCell{true}.number('.'), -1.0);
    EXPECT_EQ(ValueCell{"2,5"}.number(','), 2.5);
    EXPECT_THROW((void)ValueCell{"#1b"}.number('.'), Failure);
    EXPECT_THROW((void)ValueCell{""}.number('.'), Failure);
}

TEST(Cell, PrintsAsPlainText) {
    EXPECT_EQ(ValueCell{}.text('.'), "");
    EXPECT_EQ(ValueCell{std::int16_t{-7}}.text('.'), "-7");
    EXPECT_EQ(ValueCell{0.1F}.text('.'), "0.1");
    EXPECT_EQ(ValueCell{false}.text('.'), "False");
    EXPECT_EQ(ValueCell{2.5}.text(','), "2,5");
    EXPECT_EQ(ValueCell{"007"}.text('.'), "007") << "a typed number stays as it was typed";
}

TEST(Cell, KnowsAnEmptyTextFromNothingAndATagFromANumber) {
    EXPECT_TRUE(ValueCell{}.isEmpty());
    EXPECT_FALSE(ValueCell{}.isEmptyText());
    EXPECT_TRUE(ValueCell{""}.isEmptyText());
    EXPECT_TRUE(ValueCell{"#1b"}.isTagged());
    EXPECT_FALSE(ValueCell{5.0}.isTagged());
}

TEST(TapeLines, KeepTheirValuesWhileFillersGo) {
    Tape tape;
    tape.clear(2);
    EXPECT_EQ(tape.count(), 2U);
    EXPECT_EQ(tape.lines(), 0U);
    tape.add("one", ValueCell{1.0});
    EXPECT_TRUE(tape.dropFiller());
    tape.add("a line that is longer than the tape is wide", ValueCell{2.0});
    EXPECT_TRUE(tape.dropFiller());
    EXPECT_FALSE(tape.dropFiller());
    EXPECT_EQ(tape.row(0), "one");
    EXPECT_EQ(tape.row(1), "a line that is longer than the tape is wide");
    EXPECT_EQ(tape.value(1), ValueCell{2.0});
    EXPECT_EQ(tape.selected(), 1U);
    EXPECT_TRUE(tape.row(9).empty());
    EXPECT_TRUE(tape.value(9).isEmpty());
}

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
