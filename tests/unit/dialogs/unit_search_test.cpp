// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is typed of a unit, and how well a unit answers to it.
#include "dialogs/unit_search.h"

#include "platform/text.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyforge {
namespace {

Hit hit(std::string_view typed, std::string_view names) {
    const Unit unit{.from = "the from", .to = "the to", .names = names};
    return UnitQuery(typed).match(unit);
}

TEST(UnitSearch, ANameLosesItsCaseAndTheSignsBetweenItsLetters) {
    EXPECT_EQ(foldName("Sq. Ft (U-S)^2"), "sqftus2");
    EXPECT_EQ(foldName("kg/m³"_t), "kg/m3");
    EXPECT_EQ(foldName("cm²·s"_t), "cm2s");
    EXPECT_EQ(foldName("AZ az"), "azaz");
    EXPECT_EQ(foldName("@[`{"), "@[`{");
}

TEST(UnitSearch, TheWholeNameIsBetterThanItsBeginningAndThatThanAPart) {
    EXPECT_EQ(hit("inch", "inch|in"), Hit::Exact);
    EXPECT_EQ(hit("  inch ", "inch|in"), Hit::Exact);
    EXPECT_EQ(hit("Inch", "inch|in"), Hit::Whole);
    EXPECT_EQ(hit("inc", "inch|in"), Hit::Beginning);
    EXPECT_EQ(hit("nch", "inch|in"), Hit::Inside);
    EXPECT_EQ(hit("inchy", "inch|in"), Hit::None);
    EXPECT_EQ(hit("in", "foot|inch|in"), Hit::Exact) << "the best of all names";
    EXPECT_EQ(hit("the to", "x"), Hit::Exact) << "the captions are names";
    EXPECT_EQ(hit("thefrom", "x"), Hit::Whole);
}

TEST(UnitSearch, APluralStandsForItsSingular) {
    EXPECT_EQ(hit("meters", "meter"), Hit::Whole);
    EXPECT_EQ(hit("feets", "feet"), Hit::Whole);
    EXPECT_EQ(hit("inches", "inch"), Hit::Whole);
    EXPECT_EQ(hit("boxes", "box"), Hit::Whole);
    EXPECT_EQ(hit("bushes", "bush"), Hit::Whole);
    EXPECT_EQ(hit("tons", "ton"), Hit::Whole) << "four letters are enough";
    EXPECT_EQ(hit("mms", "mm"), Hit::None) << "three are not";
    EXPECT_EQ(hit("meter", "meters"), Hit::Beginning) << "not the other way";
    EXPECT_EQ(hit("miles", "mil"), Hit::None);
    EXPECT_EQ(hit("inchs", "inch"), Hit::Whole);
    EXPECT_EQ(hit("meterz", "meter"), Hit::None);
    EXPECT_EQ(hit("shoes", "shoe"), Hit::Whole) << "of one letter, unless it hisses";
    EXPECT_EQ(hit("shoes", "sho"), Hit::None);
}

TEST(UnitSearch, NothingTypedIsAnEmptyQuery) {
    EXPECT_TRUE(UnitQuery("").empty());
    EXPECT_TRUE(UnitQuery("   ").empty());
    EXPECT_TRUE(UnitQuery(" - ").empty());
    EXPECT_FALSE(UnitQuery("m").empty());
}

}  // namespace
}  // namespace tallyforge
