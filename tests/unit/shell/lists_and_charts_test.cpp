// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lists and charts in the hand of their user: each row of each of them is taken once.
#include "dialogs/chart_dialog.h"
#include "dialogs/list_dialog.h"
#include "reference/hardware_charts.h"
#include "reference/material_lists.h"
#include "reference/physical_constants.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tallyforge {
namespace {

class ListsAndCharts : public testing::Test {
protected:
    ListsAndCharts() {
        std::filesystem::copy(std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "data" / "charts",
                              at.platform.folder / "charts");
    }
    void press(Keypad keypad, std::size_t key, std::uint8_t mask = 0) {
        at.calc().keypads().ShowKeypad(keypad);
        at.clickWith(mask, at.form().cmdFunctions.at(key));
    }
    /// The next dialog is left by a double click on row `row` of its list `name`.
    void takeRow(std::string_view name, std::size_t row) {
        at.platform.inDialog = [name, row](Form& dialog) { doubleClickRow(dialog, *dialog.find(name), row); };
    }
    /// Stack, tape and X; the key makes X the last x, as every key of the bank does.
    [[nodiscard]] std::vector<std::string> left() const {
        auto all = at.stackAndTape();
        all.erase(all.begin() + 2);
        return all;
    }
    [[nodiscard]] std::string lastLine() const { return at.tape().empty() ? std::string() : at.tape().back(); }

    CalculatorAtHand at;
};

TEST_F(ListsAndCharts, EveryConstantGoesOnTheStackAsItStandsUnderItsUnits) {
    for (std::size_t row = 0; row < kConstantsList.rows.size(); ++row) {
        takeRow("lstNameSym", row);
        press(Keypad::Tables, 16);
        EXPECT_EQ(at.x(), kConstantsList.rows[row].value);
        EXPECT_EQ(at.s().stack.depth(), static_cast<int>(row) + 1);
        EXPECT_TRUE(lastLine().starts_with(kConstantsList.rows[row].unit)) << lastLine();
    }
}

TEST_F(ListsAndCharts, EveryPrefixGoesOnTheStackWithoutALabel) {
    for (std::size_t row = 0; row < kPrefixList.rows.size(); ++row) {
        takeRow("lstUnits", row);
        press(Keypad::Tables, 16, kCtrl);
        EXPECT_EQ(at.x(), kPrefixList.rows[row].value);
        EXPECT_EQ(lastLine().find_first_not_of("0123456789.,e+-"), std::string::npos) << lastLine();
    }
}

TEST_F(ListsAndCharts, ACancelledListLeavesTheTopOfTheStackInX) {
    at.enter("3");
    at.enter("4");
    const auto before = left();
    at.platform.inDialog = [](Form& dialog) {
        clickRow(dialog, *dialog.find("lstNameSym"), 5);
        click(dialog, *dialog.find("cmdCancel"));
    };
    for (const std::uint8_t mask : {std::uint8_t{0}, std::uint8_t{kCtrl}}) {
        press(Keypad::Tables, 16, mask);
        EXPECT_EQ(left(), before);
        EXPECT_EQ(at.x(), "4");
    }
    // What follows works on it.
    at.type("+");
    EXPECT_EQ(at.x(), "7");
}

TEST_F(ListsAndCharts, SelectWithoutARowDoesNothing) {
    at.platform.inDialog = [](Form& dialog) {
        click(dialog, *dialog.find("cmdOk"));
        EXPECT_TRUE(dialog.open);
        click(dialog, *dialog.find("cmdSave"));
        EXPECT_TRUE(dialog.open);
        EXPECT_FALSE(dialog.find("cmdCodata")->enabled);
    };
    press(Keypad::Tables, 16);
    EXPECT_EQ(at.s().stack.depth(), 0);
    EXPECT_TRUE(at.tape().empty());
    EXPECT_FALSE(at.s().memory.RegistersUsed);
}

TEST_F(ListsAndCharts, ToMemoryWritesRegisterTwoAndItsNameOnly) {
    at.enter("8");
    at.platform.inDialog = [](Form& dialog) {
        clickRow(dialog, *dialog.find("lstNameSym"), 37);
        click(dialog, *dialog.find("cmdSave"));
        EXPECT_TRUE(dialog.open);
    };
    const auto before = left();
    press(Keypad::Tables, 16);
    EXPECT_EQ(left(), before);
    EXPECT_EQ(at.reg(2), "2.997925e8");
    EXPECT_EQ(at.form().txtReg_m.at(1).text, "3.0e+08");
    EXPECT_EQ(at.s().memory.RegisterNames.at(static_cast<std::size_t>(keyOfRegister(2))), "Spee");
    EXPECT_TRUE(at.form().cmdSTO.enabled);
    // It is recalled as a number.
    at.type("2");
    at.choose(at.form().cmdSTO);
    EXPECT_EQ(at.x(), "2.997925e8");
}

TEST_F(ListsAndCharts, TheRowThatWasChosenLastIsChosenAgain) {
    takeRow("lstNameSym", 11);
    press(Keypad::Tables, 16);
    at.platform.inDialog = [](Form& dialog) {
        EXPECT_EQ(dialog.find("lstNameSym")->rows->selected(), 11U);
        EXPECT_EQ(dialog.find("lstUnits")->rows->selected(), 11U);
        pressKey(dialog, {.keyCode = kKeyEnter, .character = 13});
        EXPECT_FALSE(dialog.open);
    };
    press(Keypad::Tables, 16);
    EXPECT_EQ(at.s().stack.depth(), 2);
    // The prefixes have a choice of their own.
    at.platform.inDialog = [](Form& dialog) { EXPECT_EQ(dialog.find("lstNameSym")->rows->selected(), 20U); };
    press(Keypad::Tables, 16, kCtrl);
}

TEST_F(ListsAndCharts, TypingIntoTheFieldLeavesTheRowsThatHoldIt) {
    at.platform.inDialog = [](Form& dialog) {
        click(dialog, *dialog.find("txtFind"));
        strikeAll(dialog, "boltz");
        const ListRows& rows = *dialog.find("lstNameSym")->rows;
        EXPECT_EQ(rows.count(), 2U);
        pressKey(dialog, {.keyCode = kKeyDown});
        EXPECT_EQ(rows.selected(), 0U);
        EXPECT_EQ(dialog.find("txtValue")->text, "1.380622e-23");
        for (int i = 0; i < 5; ++i) {
            pressKey(dialog, {.keyCode = kKeyBackspace, .character = 8});
        }
        EXPECT_EQ(rows.count(), kConstantsList.rows.size());
        EXPECT_EQ(rows.selected(), 3U);
    };
    press(Keypad::Tables, 16);
}

TEST_F(ListsAndCharts, MaterialListsGiveTheirValuesToWhoAsksAndNothingToX) {
    ReferenceLists lists(at.calc());
    const std::pair<const ListTable*, std::function<std::optional<ListChoice>()>> asked[] = {
        {&kRhoList, [&] { return lists.resistivity(); }},
        {&kAlphaList, [&] { return lists.temperatureCoefficient(); }}};
    for (const auto& [table, ask] : asked) {
        for (std::size_t row = 0; row < table->rows.size(); ++row) {
            takeRow("lstValue", row);
            const auto taken = ask();
            ASSERT_TRUE(taken.has_value());
            EXPECT_EQ(taken->row, row);
            EXPECT_EQ(taken->value, table->rows[row].value);
        }
        at.platform.inDialog = {};
        EXPECT_FALSE(ask().has_value());
    }
    EXPECT_EQ(at.s().stack.depth(), 0);
    EXPECT_TRUE(at.tape().empty());
}

TEST_F(ListsAndCharts, EverySpecificGravityGoesOnTheStack) {
    ReferenceLists lists(at.calc());
    for (std::size_t row = 0; row < kGravityList.rows.size(); ++row) {
        takeRow("lstNameSym", row);
        lists.specificGravity();
        EXPECT_EQ(at.x(), kGravityList.rows[row].value);
        EXPECT_EQ(at.s().delivery.FnLabel, "SG");
    }
}

struct KeyOfChart {
    std::size_t key;
    ChartId id;
};
constexpr KeyOfChart kKeysOfCharts[] = {{5, ChartId::SteelWire},    {6, ChartId::FineThreads},
                                        {11, ChartId::Nails},       {18, ChartId::CoarseThreads},
                                        {22, ChartId::PipeThreads}, {23, ChartId::WoodScrews}};

TEST_F(ListsAndCharts, EveryRowOfEveryChartGivesItsChiefNumber) {
    for (const auto& [key, id] : kKeysOfCharts) {
        const auto chart = loadChart(at.calc(), id);
        ASSERT_TRUE(chart.has_value());
        for (std::size_t row = 0; row < chart->rows.size(); ++row) {
            const int depth = at.s().stack.depth();
            takeRow("lstRows", row);
            press(Keypad::Tables, key);
            EXPECT_EQ(at.x(), chart->rows[row].value) << chart->form;
            EXPECT_EQ(at.s().stack.depth(), depth + 1);
            EXPECT_TRUE(lastLine().starts_with(hardwareChart(id).label)) << lastLine();
            const auto& cells = chart->rows[row].cells;
            EXPECT_NE(std::find(cells.begin(), cells.end(), chart->rows[row].value), cells.end());
        }
        EXPECT_EQ(at.platform.dialogs.back(), chart->form);
    }
    EXPECT_TRUE(at.platform.boxes.empty());
}

TEST_F(ListsAndCharts, AChartThatIsLeftGivesNothing) {
    at.enter("6");
    const auto before = left();
    at.platform.inDialog = [](Form& dialog) {
        clickRow(dialog, *dialog.find("lstRows"), 3);
        pressKey(dialog, {.keyCode = kKeyEnter, .character = 13});
        EXPECT_TRUE(dialog.open);
        pressKey(dialog, {.keyCode = kKeyEscape, .character = 27});
        EXPECT_FALSE(dialog.open);
    };
    for (const auto& [key, id] : kKeysOfCharts) {
        press(Keypad::Tables, key);
        EXPECT_EQ(left(), before);
        EXPECT_EQ(at.x(), "6");
    }
}

TEST_F(ListsAndCharts, AChartWithoutItsFileSaysSoAndNothingElseHappens) {
    at.enter("6");
    const auto before = left();
    for (const auto& [key, id] : kKeysOfCharts) {
        const HardwareChart& chart = hardwareChart(id);
        const auto file = at.platform.folder / "charts" / chart.file;
        const std::string name(chart.file);
        at.platform.boxes.clear();
        std::filesystem::resize_file(file, 1200);
        press(Keypad::Tables, key);
        ASSERT_EQ(at.platform.boxes.size(), 1U) << name;
        EXPECT_EQ(at.platform.boxes[0].text, "The chart's file " + name + " is damaged!");
        EXPECT_EQ(at.platform.boxes[0].title, chart.title);
        std::filesystem::remove(file);
        press(Keypad::Tables, key);
        ASSERT_EQ(at.platform.boxes.size(), 2U) << name;
        EXPECT_EQ(at.platform.boxes[1].text, "The chart's file " + name + " was not found!");
        EXPECT_TRUE(at.platform.dialogs.empty());
        EXPECT_EQ(left(), before);
        EXPECT_EQ(at.x(), "6");
    }
}

TEST_F(ListsAndCharts, AFileOfNoiseIsDamaged) {
    std::string noise;
    for (int i = 0; i < 100000; ++i) {
        noise += static_cast<char>((i * 7919) >> 3);
    }
    at.writeFile("charts/tap_drills_unf.csv", noise);
    press(Keypad::Tables, 6);
    ASSERT_EQ(at.platform.boxes.size(), 1U);
    EXPECT_EQ(at.platform.boxes[0].text, "The chart's file tap_drills_unf.csv is damaged!");
}

TEST_F(ListsAndCharts, ChartsAreCopiedAsTextWithTabsAndPrinted) {
    at.platform.inDialog = [](Form& dialog) {
        pressKey(dialog, {.keyCode = 'C', .shift = kCtrl, .character = 3});
        click(dialog, *dialog.find("cmdPrint"));
    };
    press(Keypad::Tables, 5);
    EXPECT_TRUE(at.platform.clipboard.starts_with("Gauge\tDiameter (in)\tCommon nails\n7/0\t0.4900\t\n"));
    EXPECT_EQ(std::count(at.platform.clipboard.begin(), at.platform.clipboard.end(), '\n'), 57);
    ASSERT_GT(at.platform.printed.size(), 57U);
    EXPECT_EQ(at.platform.printed.front().text, "Steel Wire Gauge");
    ASSERT_EQ(at.platform.printedPictures.size(), 1U);
    EXPECT_FALSE(at.platform.printedPictures[0].shapes.empty());
}

TEST_F(ListsAndCharts, TheRightButtonOpensTheColoursAndLeavesATypedNumberAlone) {
    at.calc().keypads().ShowKeypad(Keypad::Convert);
    at.type("47");
    at.platform.inDialog = [](Form& dialog) {
        EXPECT_EQ(dialog.name, "frmColors");
        EXPECT_EQ(dialog.helpTopic, 2010);
    };
    Control& key = at.form().cmdFunctions.at(19);
    rightClick(at.form(), key, kCtrl);
    EXPECT_EQ(at.form().txtXreg.text, "47");
    takeRow("lstRows", 10);
    rightClick(at.form(), key, kCtrl);
    EXPECT_EQ(at.x(), "-1");
    EXPECT_EQ(at.s().stack.depth(), 2);
    EXPECT_TRUE(lastLine().starts_with("Gold")) << lastLine();
}

}  // namespace
}  // namespace tallyforge
