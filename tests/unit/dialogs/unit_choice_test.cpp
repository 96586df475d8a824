// SPDX-License-Identifier: GPL-3.0-or-later
//
// The words of unit choices: ranges, rows, factors, and the texts made of them.
#include "dialogs/unit_choice.h"

#include "engine/engine.h"
#include "records/settings_file.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <bit>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// The ranges written down a second time: first bit and labels.
struct Wanted {
    const UnitRange& range;
    UnitsWord word;
    int firstBit;
    std::vector<std::string_view> labels;
};

std::vector<Wanted> wantedRanges() {
    return {
        {kOhmArea, &UnitWords::UnitsWordOhm, 0, {"m²"_t, "in²"_t, "cm²"_t, "mm²"_t}},
        {kOhmLength, &UnitWords::UnitsWordOhm, 0, {"m", "in", "cm", "mm"}},
        {kOhmC, &UnitWords::UnitsWordOhm, 6, {"Fd", "mF", "µF"_t, "nF", "pF"}},
        {kOhmF, &UnitWords::UnitsWordOhm, 11, {"Hz", "KHz", "MHz", "GHz"}},
        {kOhmP, &UnitWords::UnitsWordOhm, 16, {"mW", "W", "kW", "MW"}},
        {kOhmI, &UnitWords::UnitsWordOhm, 20, {"µA"_t, "mA", "A"}},
        {kOhmE, &UnitWords::UnitsWordOhm, 23, {"µV"_t, "mV", "V", "kV"}},
        {kOhmR, &UnitWords::UnitsWordOhm, 27, {"mOhms", "Ohms", "kOhms", "MOhms"}},
        {kMagH, &UnitWords::UnitsWordMag, 0, {"Oe", "A·T/cm"_t, "A·T/mm"_t, "A·T/m"_t, "A·T/in"_t}},
        {kMagLe, &UnitWords::UnitsWordMag, 5, {"cm", "mm", "m", "in"}},
        {kMagI, &UnitWords::UnitsWordMag, 9, {"Amps", "mA"}},
        {kMagB, &UnitWords::UnitsWordMag, 11, {"g", "T", "mT", "L/in²"_t}},
        {kMagAe, &UnitWords::UnitsWordMag, 15, {"cm²"_t, "mm²"_t, "m²"_t, "in²"_t}},
        {kMagF, &UnitWords::UnitsWordMag, 19, {"Hz", "KHz"}},
        {kMagWave, &UnitWords::UnitsWordMag, 21, {"", "-SQR"}},
        {kMagLen, &UnitWords::UnitsWordMag, 23, {"inches", "mm", "cm", "meters"}},
        {kMagPlainF, &UnitWords::UnitsWordMag, 27, {"Hz", "kHz", "MHz", "GHz"}},
        {kLmuAe, &UnitWords::UnitsWordLmu, 0, {"cm²"_t, "mm²"_t, "m²"_t, "in²"_t}},
        {kLmuLe, &UnitWords::UnitsWordLmu, 4, {"cm", "mm", "m", "in"}},
        {kLmuL, &UnitWords::UnitsWordLmu, 8, {"Hy", "mH", "µH"_t}},
        {kLmuSurface, &UnitWords::UnitsWordLmu, 18, {"mm²"_t, "cm²"_t}},
        {kLmuSurfaceLength, &UnitWords::UnitsWordLmu, 18, {"mm", "cm"}},
        {kLmuShape, &UnitWords::UnitsWordLmu, 20, {"Cyl", "Blk"}},
        {kLmuTemperature, &UnitWords::UnitsWordLmu, 22, {"°C"_t, "°F"_t}},
        {kLmuCore, &UnitWords::UnitsWordLmu, 24, {"Toroid", "Rect.", "Round"}},
        {kLmuTurn, &UnitWords::UnitsWordLmu, 27, {"mm", "cm", "in"}},
        {kLmuFeet, &UnitWords::UnitsWordLmu, 30, {"ft"}},
        {kCoreDimension, &UnitWords::UnitsWordCore, 0, {"mm", "cm", "in", "m"}},
        {kCoreTurn, &UnitWords::UnitsWordCore, 4, {"cm", "in", "ft"}},
        {kCorePath, &UnitWords::UnitsWordCore, 7, {"mm", "cm", "in", "m"}},
        {kCorePathArea, &UnitWords::UnitsWordCore, 7, {"Ae(mm²)"_t, "Ae(cm²)"_t, "Ae(in²)"_t, "Ae(m²)"_t}},
        {kCoreWindow, &UnitWords::UnitsWordCore, 11, {"CM", "mm²"_t, "cm²"_t, "in²"_t, "m²"_t}},
        {kCoreWeight, &UnitWords::UnitsWordCore, 16, {"lb", "kg"}},
        {kCoreL, &UnitWords::UnitsWordCore, 18, {"Hy", "mH", "µH"_t, "nH"}},
        {kCoreLo, &UnitWords::UnitsWordCore, 22, {"nH/T", "µH/100"_t, "mH/1000"}},
        {kCoreQF, &UnitWords::UnitsWordCore, 25, {"Hz", "KHz", "MHz"}},
        {kCoreQL, &UnitWords::UnitsWordCore, 28, {"Hy", "mH", "µH"_t}},
        {kLcX, &UnitWords::UnitsWordLc, 0, {"mOhms", "Ohms", "KOhms", "MOhms"}},
        {kLcC, &UnitWords::UnitsWordLc, 4, {"Fd", "mF", "µF"_t, "nF", "pF"}},
        {kLcL, &UnitWords::UnitsWordLc, 9, {"Hy", "mH", "µH"_t}},
        {kLcF, &UnitWords::UnitsWordLc, 12, {"Hz", "KHz", "MHz", "GHz"}},
    };
}

TEST(UnitTables, HoldEveryRangeWithItsBitsAndLabels) {
    for (const Wanted& wanted : wantedRanges()) {
        EXPECT_EQ(wanted.range.word, wanted.word) << wanted.range.name;
        EXPECT_EQ(wanted.range.firstBit, wanted.firstBit) << wanted.range.name;
        ASSERT_EQ(wanted.range.rows.size(), wanted.labels.size()) << wanted.range.name;
        for (std::size_t i = 0; i < wanted.labels.size(); ++i) {
            EXPECT_EQ(wanted.range.rows[i].label, wanted.labels[i]) << wanted.range.name;
        }
    }
}

TEST(UnitTables, NameEachRangeOnceAndFitIntoTheirWords) {
    std::set<std::string_view> names;
    for (const UnitRange* range : kUnitRanges) {
        ASSERT_NE(range, nullptr);
        EXPECT_TRUE(names.insert(range->name).second) << range->name;
        EXPECT_LE(range->firstBit + static_cast<int>(range->rows.size()), 31) << range->name;
        for (const UnitRow& row : range->rows) {
            EXPECT_GT(row.scale, 0.0) << range->name;
        }
    }
    EXPECT_EQ(names.size(), wantedRanges().size() + 2) << "and the two ranges that choose a tip";
}

TEST(UnitTables, RangesOfAWordShareNoBitButForSecondTextsOfOneChoice) {
    for (const UnitRange* one : kUnitRanges) {
        for (const UnitRange* other : kUnitRanges) {
            if (one->word == other->word && (bitsOf(*one) & bitsOf(*other)) != 0) {
                EXPECT_EQ(bitsOf(*one), bitsOf(*other)) << one->name << " and " << other->name;
            }
        }
    }
}

TEST(UnitTables, ALabelIsWhatItsCaptionSaysInParentheses) {
    for (const UnitRange* range : kUnitRanges) {
        for (const UnitRow& row : range->rows) {
            const auto open = row.caption.rfind('(');
            if (open != row.caption.npos) {
                EXPECT_EQ(row.caption.substr(open + 1, row.caption.size() - open - 2), row.label) << range->name;
            }
        }
    }
}

TEST(UnitChoice, AFreshFileHasOneRowOfEveryRange) {
    const UnitWords fresh = SettingsFile::freshUnits();
    for (const UnitRange* range : kUnitRanges) {
        const int set = std::popcount(fresh.*range->word & bitsOf(*range));
        EXPECT_EQ(set, range == &kLmuFeet ? 0 : 1) << range->name;
    }
    const std::map<const UnitRange*, std::string_view> usual{
        {&kOhmP, "W"}, {&kOhmI, "A"}, {&kOhmE, "V"}, {&kOhmR, "Ohms"}, {&kLcX, "Ohms"}, {&kLmuSurface, "cm²"_t}};
    for (const auto& [range, label] : usual) {
        EXPECT_EQ(chosenUnit(*range, fresh).label, label) << range->name;
    }
}

TEST(UnitChoice, ConversionsOfTheTablesAgreeWithTheOutsideWorld) {
    UnitWords words = SettingsFile::freshUnits();
    const auto scale = [&](const UnitRange& range, int row) {
        chooseRow(range, row, words);
        return unitScale(range, words);
    };
    EXPECT_NEAR(scale(kMagH, 3) / scale(kMagH, 0), 4e-3 * 3.14159265358979323846, 1e-16) << "A/m in oersteds";
    EXPECT_DOUBLE_EQ(scale(kMagH, 4) / scale(kMagH, 3), 1.0 / 0.0254);
    EXPECT_NEAR(scale(kMagB, 3) / scale(kMagB, 0), 1.0 / 6.4516, 1e-5) << "a line is a maxwell";
    EXPECT_DOUBLE_EQ(scale(kMagB, 1) / scale(kMagB, 2), 1000.0);
    EXPECT_NEAR(scale(kMagAe, 3), 6.4516, 1e-13);
    EXPECT_DOUBLE_EQ(scale(kMagAe, 2), 10000.0);
    EXPECT_NEAR(scale(kCoreWindow, 3), 4e6 / 3.14159265358979323846, 0.2) << "circular mils in a square inch";
    // The factors of the window area are known to eight digits.
    EXPECT_NEAR(scale(kCoreWindow, 1) * 25.4 * 25.4 / scale(kCoreWindow, 3), 1.0, 2e-7);
    EXPECT_NEAR(scale(kCoreWindow, 4) * 0.0254 * 0.0254 / scale(kCoreWindow, 3), 1.0, 2e-7);
    EXPECT_NEAR(scale(kCoreWindow, 2) * 2.54 * 2.54 / scale(kCoreWindow, 3), 1.0, 2e-7);
    EXPECT_DOUBLE_EQ(scale(kCoreLo, 1), 1e-6 / (100.0 * 100.0));
    EXPECT_DOUBLE_EQ(scale(kCoreLo, 2), 1e-3 / (1000.0 * 1000.0));
    EXPECT_DOUBLE_EQ(scale(kCoreWeight, 1), 1.0 / 0.45359237);
    EXPECT_DOUBLE_EQ(scale(kCoreTurn, 0) / scale(kCoreTurn, 1), 1.0 / 2.54);
}

TEST(UnitChoice, TheLowestOfTwoBitsCountsAndNoneLeavesTheFactorAtOne) {
    UnitWords words;
    words.UnitsWordOhm = 1U << 18 | 1U << 17;
    EXPECT_EQ(chosenUnit(kOhmP, words).label, "W");
    EXPECT_FALSE(chosenRow(kOhmR, words).has_value());
    EXPECT_EQ(chosenUnit(kOhmR, words).label, "");
    EXPECT_DOUBLE_EQ(unitScale(kOhmR, words), 1.0);
}

TEST(UnitChoice, NoBitOfTheSurfaceMeansInches) {
    UnitWords words = SettingsFile::freshUnits();
    chooseRow(kLmuSurface, -1, words);
    EXPECT_EQ(withUnits("{LmuSurface} {LmuSurfaceLength}", words), "in²"_t.data() + std::string(" in"));
    EXPECT_EQ(words.UnitsWordLmu, SettingsFile::freshUnits().UnitsWordLmu & ~(3U << 18));
}

TEST(UnitChoice, AnotherRowReplacesItsRangeAlone) {
    UnitWords words;
    words.UnitsWordOhm = 0xFFFFFFFF;
    chooseRow(kOhmI, 1, words);
    EXPECT_EQ(words.UnitsWordOhm, 0xFFFFFFFF & ~(1U << 20 | 1U << 22));
}

TEST(UnitChoice, APatternMayNameRangesInRangesAndKeepsWhatIsNone) {
    UnitWords words = SettingsFile::freshUnits();
    EXPECT_EQ(withUnits("{LmuCoreTip}", words),
              " Toroid (mm): OD (mm) [Click] | ID (mm) [Ctrl+] | HT (mm) [Alt+] | Recalc. [Shift+key+Click] ");
    chooseRow(kLmuCore, 1, words);
    chooseRow(kLmuTurn, 2, words);
    EXPECT_EQ(withUnits("{LmuCoreTip}", words),
              " Rect. (in): Length (in) [Click] | Width (in)[Ctrl+] | Wdg. Ht. (in) [Alt+] | Recalc. "
              "[Shift+key+Click] ");
    chooseRow(kLmuCore, 2, words);
    EXPECT_EQ(withUnits("{LmuCoreTip}", words),
              " Round (in): Start Dia. (in) [Click] | Wdg. Dia. (in) [Ctrl+] | Recalc. [Shift+key+Click] ");
    EXPECT_EQ(withUnits("no {Such} range, {open", words), "no {Such} range, {open");
    EXPECT_EQ(withUnits("", words), "");
}

TEST(UnitChoice, LabelsTakeTheGlyphsOfTheTape) {
    const auto onTape = [](std::string_view label) { return toUnicode(MapUnitText(label), Face::Terminal); };
    EXPECT_EQ(onTape("A·T/cm"_t), "A·T/cm");
    EXPECT_EQ(onTape("µF"_t), "µF");
    EXPECT_EQ(onTape("L/in²"_t), "L/in²");
    EXPECT_EQ(onTape("°C"_t), "°C");
    EXPECT_EQ(onTape("Ohms"), "Ohms");
}

class SaveUnits : public ::testing::Test {
protected:
    SaveUnits() {
        file.setPath(platform.folder / SettingsFile::kName);
        file.create();
        calc.units = SettingsFile::units(file.read());
    }
    TestPlatform platform;
    Engine calc{platform};
    SettingsFile file;
    std::vector<const UnitRange*> ranges{&kOhmP, &kOhmI};
};

TEST_F(SaveUnits, AFreshFileReadsAsTheFreshWords) {
    EXPECT_EQ(SettingsFile::units(file.read()), SettingsFile::freshUnits());
}

TEST_F(SaveUnits, YesReplacesTheRangesInTheFileAndNoOtherBits) {
    chooseRow(kOhmP, 2, calc.units);
    chooseRow(kOhmI, 0, calc.units);
    chooseRow(kOhmE, 0, calc.units);
    file.replaceUnits(&UnitWords::UnitsWordOhm, 1U << 4, 1U << 4);
    platform.answers.push_back(Answer::Yes);
    askToSaveUnits(calc, file, ranges);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "SAVE!");
    EXPECT_EQ(platform.boxes[0].text, "Would you like to save these units as default?");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Plain);
    UnitWords wanted = SettingsFile::freshUnits();
    wanted.UnitsWordOhm = (wanted.UnitsWordOhm & ~(1U << 17 | 1U << 22)) | 1U << 18 | 1U << 20 | 1U << 4;
    EXPECT_EQ(SettingsFile::units(file.read()), wanted);
}

TEST_F(SaveUnits, NoLeavesTheFile) {
    chooseRow(kOhmP, 2, calc.units);
    askToSaveUnits(calc, file, ranges);
    EXPECT_EQ(SettingsFile::units(file.read()), SettingsFile::freshUnits());
}

TEST_F(SaveUnits, AFileThatIsGoneIsReported) {
    std::filesystem::remove(file.path());
    platform.answers.push_back(Answer::Yes);
    askToSaveUnits(calc, file, ranges);
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[1].text, "Error number 53!");
}

}  // namespace
}  // namespace tallyforge
