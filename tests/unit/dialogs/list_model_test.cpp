// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/list_model.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

constexpr ListRow kRows[] = {{"Boltzmann constant, k", "1.380622e-23", "J/øK"_t},
                             {"Bohr radius, ao", "5.2917715e-11", "m"},
                             {"Copper (Cu)", "8.89", ""},
                             {"Stefan-Boltzmann constant, å"_t, "5.66961e-8", "W/(mý øK^4)"_t},
                             {"Bohr magneton, æ_B"_t, "9.274096e-24", "J/T"}};
const ListTable kTable{.form = "frmTest", .title = "Test", .unitHead = "Units", .rows = kRows, .face = Face::Terminal};

class ListModelTest : public testing::Test {
protected:
    std::string names() const {
        std::string all;
        for (const std::size_t row : model.rows()) {
            all += std::to_string(row);
        }
        return all;
    }
    ListMemory memory;
    ListModel model{kTable, memory};
};

TEST_F(ListModelTest, AllRowsStandAtFirstAndNoneIsChosen) {
    EXPECT_EQ(names(), "01234");
    EXPECT_EQ(model.chosenRow(), std::nullopt);
    EXPECT_EQ(model.selected(), 5U);
}

TEST_F(ListModelTest, TheFilterLooksIntoNamesUnitsAndSymbolsInAnyCase) {
    model.filter("boltz");
    EXPECT_EQ(names(), "03");
    model.filter("BOLTZ");
    EXPECT_EQ(names(), "03");
    model.filter("Cu");
    EXPECT_EQ(names(), "2");
    model.filter("j/t");
    EXPECT_EQ(names(), "4");
    model.filter("");
    EXPECT_EQ(names(), "01234");
    model.filter("no such");
    EXPECT_EQ(names(), "");
    EXPECT_EQ(model.chosenRow(), std::nullopt);
}

TEST_F(ListModelTest, GlyphsAreFoundAsTheyAreSpelledAndAsTheyAreTyped) {
    model.filter("mu");
    EXPECT_EQ(names(), "4");
    model.filter("mu_B");
    EXPECT_EQ(names(), "4");
    model.filter("µ"_t);
    EXPECT_EQ(names(), "4");
    model.filter("sigma");
    EXPECT_EQ(names(), "3");
    model.filter("m2");
    EXPECT_EQ(names(), "3");
    model.filter("m²"_t);
    EXPECT_EQ(names(), "3");
    model.filter("degK");
    EXPECT_EQ(names(), "03");
}

TEST_F(ListModelTest, AChoiceThatTheFilterHidesComesBackWithItsRow) {
    model.select(2);
    model.filter("bohr");
    EXPECT_EQ(names(), "14");
    EXPECT_EQ(model.chosenRow(), std::nullopt);
    model.filter("");
    EXPECT_EQ(model.chosenRow(), 2U);
    model.filter("copper");
    EXPECT_EQ(model.selected(), 0U);
    EXPECT_EQ(model.chosenRow(), 2U);
}

TEST_F(ListModelTest, ANewModelChoosesWhatTheMemoryHolds) {
    model.select(3);
    const ListModel next(kTable, memory);
    EXPECT_EQ(next.chosenRow(), 3U);
}

TEST_F(ListModelTest, AMemoryOfARowThatIsGoneChoosesNone) {
    memory.chosen = 99;
    const ListModel next(kTable, memory);
    EXPECT_EQ(next.chosenRow(), std::nullopt);
}

TEST_F(ListModelTest, LettersLeadToTheRowThatBeginsWithThem) {
    model.jump('B');
    EXPECT_EQ(model.chosenRow(), 0U);
    model.jump('o');
    EXPECT_EQ(model.chosenRow(), 0U);
    model.jump('H');
    EXPECT_EQ(model.chosenRow(), 1U);
    model.jump('s');
    EXPECT_EQ(model.chosenRow(), 3U);
    model.jump('x');
    EXPECT_EQ(model.chosenRow(), 3U);
}

TEST_F(ListModelTest, TheSameLetterAgainGoesToTheNextRowAndAroundTheEnd) {
    for (const std::size_t row : {0U, 1U, 4U, 0U}) {
        model.jump('b');
        EXPECT_EQ(model.chosenRow(), row);
    }
}

TEST_F(ListModelTest, StepsStopAtBothEndsAndComeInFromOutside) {
    model.step(false);
    EXPECT_EQ(model.chosenRow(), 4U);
    model.step(true);
    EXPECT_EQ(model.chosenRow(), 4U);
    ListMemory fresh;
    ListModel other(kTable, fresh);
    other.step(true);
    EXPECT_EQ(other.chosenRow(), 0U);
    other.step(false);
    EXPECT_EQ(other.chosenRow(), 0U);
    other.filter("no such");
    other.step(true);
    EXPECT_EQ(other.chosenRow(), std::nullopt);
}

TEST_F(ListModelTest, EveryChangeIsSeenByTheRevision) {
    const auto before = model.revision();
    model.select(1);
    const auto chosen = model.revision();
    model.filter("b");
    EXPECT_NE(before, chosen);
    EXPECT_NE(chosen, model.revision());
}

TEST(LocalValue, HasTheDecimalCharacterOfTheLocale) {
    EXPECT_EQ(localValue("2.997925e8", ','), "2,997925e8");
    EXPECT_EQ(localValue("2.997925e8", '.'), "2.997925e8");
    EXPECT_EQ(localValue("49", ','), "49");
}

}  // namespace
}  // namespace tallyforge
