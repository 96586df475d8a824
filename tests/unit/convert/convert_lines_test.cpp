// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/convert_lines.h"

#include "convert/conversion_tables.h"

#include <gtest/gtest.h>

#include <string>

using namespace tallyforge;

namespace {

std::string converted(std::string_view line, Sizes sizes = Sizes::Table, char decimal = '.') {
    LineConverter converter(sizes, decimal);
    return converter.convert(line).text;
}

}  // namespace

TEST(ConvertLines, AreANumberAUnitAndAUnit) {
    EXPECT_EQ(converted("12.5 inch mm"), "317.5");
    EXPECT_EQ(converted("12.5 inch to mm"), "317.5");
    EXPECT_EQ(converted("  12.5   inches  mm \r"), "317.5");
    EXPECT_EQ(converted("12,5 inch mm", Sizes::Table, ','), "317,5");
    EXPECT_EQ(converted("-40 F C"), "-40");
    EXPECT_EQ(converted("+1e3 m km"), "1");
    EXPECT_EQ(converted("8.5 l/100km mpg"), "27.6723039176471");
    EXPECT_EQ(converted("100 lux footcandle"), "9.29030401442212");
    EXPECT_EQ(converted("1 square foot square meter"), "0.09290304");
    EXPECT_EQ(converted("3 sqft to acre", Sizes::Exact), "6.8870523415978E-05");
    EXPECT_EQ(converted("7 m m"), "7");
}

TEST(ConvertLines, TheOtherUnitDecidesWhatANameIs) {
    EXPECT_EQ(converted("2 min s"), "120");
    EXPECT_EQ(converted("1 gal l"), "3.785411784");
    EXPECT_EQ(converted("1 gal m/s2"), "0.01");
    EXPECT_EQ(converted("1 g kg"), "0.001");
    EXPECT_EQ(converted("1 g T"), "0.0001");
    EXPECT_EQ(converted("1 st lb"), "14");
    EXPECT_EQ(converted("1 st m2/s"), "0.0001");
    EXPECT_EQ(converted("1 tn lb"), "2000");
    EXPECT_EQ(converted("1 min ml").substr(0, 6), "0.0616");
}

TEST(ConvertLines, CapitalsDecideOnlyAmongUnitsThatConvert) {
    EXPECT_EQ(converted("1 A HA"), "0.01") << "ampere and are; no unit is written HA";
    EXPECT_EQ(converted("5 A SF"), "5381.95520835486") << "square feet in five ares";
}

TEST(ConvertLines, WhatDoesNotDecideIsListed) {
    const std::string message = converted("1 ls m");
    EXPECT_NE(message.find("link(s) (Length)"), std::string::npos) << message;
    EXPECT_NE(message.find("light second (Length)"), std::string::npos) << message;
    EXPECT_NE(converted("1 inche mm").find("inch (Length)"), std::string::npos);
    EXPECT_TRUE(converted("1 inch kg").starts_with("no conversion between "));
    EXPECT_TRUE(converted("1 qwxz mm").starts_with("unknown unit \"qwxz\""));
    EXPECT_EQ(converted("1 inch"), "no unit to convert to");
}

TEST(ConvertLines, BadLinesGetAMessageAndNoNumber) {
    LineConverter converter(Sizes::Table, '.');
    for (const std::string_view line :
         {"", " ", "inch mm", "1,5 inch mm", "0x10 inch mm", "1e inch mm", "nan inch mm", "inf inch mm", "1", "1 inch",
          "1 inch qq", "1e308 pc am", "0 l/100km mpg", "1 mon d", "1e999 m km"}) {
        const auto answer = converter.convert(line);
        EXPECT_FALSE(answer.converted) << line << ": " << answer.text;
        EXPECT_FALSE(answer.text.empty()) << line;
    }
    EXPECT_EQ(converted("1e308 pc am"), "Overflow");
    EXPECT_EQ(converted("1 mon d", Sizes::Exact), "30.436875");
}

TEST(ConvertLines, AFactorThatIsOffIsToldOnce) {
    LineConverter converter(Sizes::Table, '.');
    EXPECT_EQ(converter.convert("1 kN-m N-m").warning, "Table: kiloNewton-meter is off by +900 %");
    EXPECT_EQ(converter.convert("2 kN-m N-m").warning, "");
    EXPECT_EQ(converter.convert("2 kN-m N-m").text, "20000");
    LineConverter exact(Sizes::Exact, '.');
    EXPECT_EQ(exact.convert("1 kN-m N-m").warning, "");
    EXPECT_EQ(exact.convert("2 kN-m N-m").text, "2000");
}

// Every unit answers to each of its names, alone or with the others that have it.
TEST(UnitNames, EveryNameFindsItsUnit) {
    const UnitNames names;
    for (const ConversionTable* table : conversionTables()) {
        for (int group = 0; group < static_cast<int>(table->groups.size()); ++group) {
            for (int unit = 0; unit < static_cast<int>(table->group(group).units.size()); ++unit) {
                for (const std::string_view name :
                     {table->group(group).at(unit).from, table->group(group).at(unit).to}) {
                    bool found = false;
                    for (const UnitPlace& place : names.find(name)) {
                        found = found || (place.table == table && place.group == group && place.unit == unit);
                    }
                    EXPECT_TRUE(found) << name;
                }
            }
        }
    }
}
