// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/value_cell.h"

#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tallyforge {
namespace {

TEST(Cell, ReadsAsANumberWhateverItHolds) {
    EXPECT_EQ(ValueCell{}.number('.'), 0.0);
    EXPECT_EQ(ValueCell{std::int16_t{7}}.number('.'), 7.0);
    EXPECT_EQ(ValueCell{0.5F}.number('.'), 0.5);
    EXPECT_EQ(ValueCell{true}.number('.'), -1.0);
    EXPECT_EQ(ValueCell{false}.number('.'), 0.0);
    EXPECT_EQ(ValueCell{2.5}.number('.'), 2.5);
    EXPECT_EQ(ValueCell{}.tryNumber('.'), 0.0);
    EXPECT_EQ(ValueCell{2.5}.tryNumber('.'), 2.5);
    EXPECT_EQ(ValueCell{"x"}.tryNumber('.'), std::nullopt);
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

TEST(Cell, KeepsItsTextWhenACopyOfItChangesOrGoes) {
    ValueCell typed{"1234567890123456789012345678901234567890"};
    {
        ValueCell copy{typed};
        EXPECT_EQ(copy, typed);
        copy = 5.0;
        const ValueCell other = typed;
    }
    EXPECT_EQ(typed.textView(), "1234567890123456789012345678901234567890");
    ValueCell& itself = typed;
    typed = itself;
    typed = std::move(itself);
    EXPECT_EQ(typed.textView().size(), 40U);
    const ValueCell taken = std::move(typed);
    EXPECT_EQ(taken.textView().size(), 40U);
}

TEST(Cell, EqualsWhatIsOfTheSameKindAndValue) {
    EXPECT_EQ(ValueCell{"1"}, ValueCell{std::string("1")});
    EXPECT_NE(ValueCell{"1"}, ValueCell{1.0});
    EXPECT_NE(ValueCell{1.0}, ValueCell{std::int16_t{1}});
    EXPECT_EQ(ValueCell{1.0F}, ValueCell{1.0F});
    EXPECT_NE(ValueCell{1.0F}, ValueCell{1.5F});
    EXPECT_EQ(ValueCell{std::int16_t{7}}, ValueCell{std::int16_t{7}});
    EXPECT_NE(ValueCell{std::int16_t{7}}, ValueCell{std::int16_t{8}});
    EXPECT_NE(ValueCell{1.0}, ValueCell{2.0});
    EXPECT_NE(ValueCell{"1"}, ValueCell{"2"});
    EXPECT_EQ(ValueCell{true}, ValueCell{true});
    EXPECT_NE(ValueCell{}, ValueCell{""});
    EXPECT_NE(ValueCell{true}, ValueCell{false});
    EXPECT_EQ(ValueCell{}, ValueCell{});
}

}  // namespace
}  // namespace tallyforge
