// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/conversion_tables.h"

#include "dialogs/conversion.h"
#include "numbers/failure.h"
#include "platform/text.h"
#include "unit/convert/published_units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

using namespace tallyforge;

namespace {

void forEachGroup(const std::function<void(const ConversionTable&, const UnitGroup&)>& visit) {
    for (const ConversionTable* table : conversionTables()) {
        for (const UnitGroup& group : table->groups) {
            SCOPED_TRACE(std::string(table->title) + ", " + std::string(group.heading));
            visit(*table, group);
        }
    }
}

void forEachPair(const UnitGroup& group, const std::function<void(int, int)>& visit) {
    const int units = static_cast<int>(group.units.size());
    for (int from = 0; from < units; ++from) {
        for (int to = 0; to < units; ++to) {
            if (from != to) {
                SCOPED_TRACE(std::string(group.at(from).from) + " to " + std::string(group.at(to).to));
                visit(from, to);
            }
        }
    }
}

bool hasRatio(const UnitGroup& group, int from, int to) {
    return group.at(from).factor != kNoFactor && group.at(to).factor != kNoFactor;
}

/// The published rows of a group; temperatures, which are no ratios, have none.
std::vector<published::Row> publishedRows(const ConversionTable& table, const UnitGroup& group) {
    std::vector<published::Row> rows;
    const std::string form = std::string(table.form) + (table.title == "Convert Density" ? " density" : "");
    for (const published::Row& row : published::kRows) {
        if (row.form == form && row.options == group.options && group.measure != Measure::Temperature) {
            rows.push_back(row);
        }
    }
    return rows;
}

/// What a number is worth in base units, by a second way: sizes from counts, distances from both
/// kinds of consumption.
long double worth(const UnitGroup& group, int unit, long double x) {
    const auto factor = static_cast<long double>(group.at(unit).factor);
    switch (group.measure) {
        case Measure::Size:
            return x * factor;
        case Measure::Count:
            return x / factor;
        default:
            return distancePerVolume(group, unit) ? x * factor : factor / x;
    }
}

/// And back: how many of the unit that is.
long double counted(const UnitGroup& group, int unit, long double base) {
    const auto factor = static_cast<long double>(group.at(unit).factor);
    switch (group.measure) {
        case Measure::Size:
            return base / factor;
        case Measure::Count:
            return base * factor;
        default:
            return distancePerVolume(group, unit) ? base / factor : factor / base;
    }
}

}  // namespace

TEST(ConversionTables, EveryRowStandsAsPublished) {
    std::size_t compared = 0;
    forEachGroup([&](const ConversionTable& table, const UnitGroup& group) {
        if (group.measure == Measure::Temperature) {
            return;
        }
        const auto rows = publishedRows(table, group);
        ASSERT_EQ(rows.size(), group.units.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].index, static_cast<int>(i));
            EXPECT_EQ(eightBit(rows[i].from), group.units[i].from);
            EXPECT_EQ(eightBit(rows[i].to), group.units[i].to);
            EXPECT_EQ(rows[i].factor, group.units[i].factor) << rows[i].from;
            ++compared;
        }
    });
    EXPECT_EQ(compared, std::size(published::kRows));
}

TEST(ConversionTables, TheTemperaturesStandInOrder) {
    const UnitGroup& group = kTemperatureTable.group(0);
    const std::vector<std::string> expected{"Celsius", "Fahrenheit", "Kelvin", "Rankine", "Reaumur"};
    ASSERT_EQ(group.units.size(), expected.size());
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(group.at(i).from, expected[static_cast<std::size_t>(i)]);
        EXPECT_EQ(group.at(i).to, expected[static_cast<std::size_t>(i)]);
        EXPECT_EQ(group.toButton(i), 21 - i);
    }
}

TEST(ConversionTables, FormsTitlesAndKeysAreThoseOfTheDialogs) {
    using Row = std::tuple<int, std::string_view, std::string_view>;
    const std::vector<Row> expected{{3, "frmForce", "Convert Temperature"},
                                    {4, "frmViscosity", "Convert Viscosity"},
                                    {5, "frmForce", "Convert Density"},
                                    {6, "frmPower", "Convert Power"},
                                    {7, "frmTime", "Convert Time"},
                                    {8, "frmTorque", "Convert Torque"},
                                    {9, "frmFuel", "Convert Fuel Consumption"},
                                    {10, "frmSpdAndAccel", "Convert Speed and Acceleration"},
                                    {11, "frmPressure", "Convert Pressure"},
                                    {12, "frmMass", "Convert Mass"},
                                    {13, "frmVolume", "Convert Volume"},
                                    {14, "frmArea", "Convert Area"},
                                    {15, "frmlength", "Convert Length"},
                                    {17, "frmMag", "Convert Magnetics"},
                                    {18, "frmEnergyAT", "Convert Energy"},
                                    {20, "frmCandle", "Convert Light"},
                                    {21, "frmDB", "Convert Decibels"},
                                    {22, "frmWav4rm", "Convert Waveforms"},
                                    {23, "frmForce", "Convert Force"}};
    std::vector<Row> found;
    std::set<std::string_view> forms;
    for (const ConversionTable* table : conversionTables()) {
        found.emplace_back(table->key, table->form, table->title);
        forms.insert(table->form);
        EXPECT_EQ(conversionTableOf(table->key), table);
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(forms.size(), 17U);
    EXPECT_EQ(conversionTableOf(16), nullptr);
    EXPECT_EQ(conversionTableOf(19), nullptr);
}

TEST(ConversionTables, TheDefaultKeysChooseTheUsualUnits) {
    const auto pair = [](const ConversionTable& table) {
        const UnitGroup& group = table.group(table.preset.group);
        return std::string(group.at(table.preset.from).from) + " to " + std::string(group.at(table.preset.to).from);
    };
    EXPECT_EQ(pair(kLengthTable), "inch to millimeter");
    EXPECT_EQ(pair(kMassTable), "pound (a) to kilogram");
    EXPECT_EQ(pair(kAreaTable), "sqr feet to sqr meters");
    EXPECT_EQ(pair(kVolumeTable), "gallon(liq) to liter");
    int withDefault = 0;
    for (const ConversionTable* table : conversionTables()) {
        withDefault += table->hasPreset() ? 1 : 0;
    }
    EXPECT_EQ(withDefault, 4);
}

TEST(ConversionTables, NamesAreUniqueAndTwinsMirrorEachOther) {
    forEachGroup([](const ConversionTable& table, const UnitGroup& group) {
        std::set<std::string_view> names;
        std::set<int> buttons;
        for (int unit = 0; unit < static_cast<int>(group.units.size()); ++unit) {
            EXPECT_TRUE(names.insert(group.at(unit).from).second) << group.at(unit).from;
            EXPECT_FALSE(group.at(unit).to.empty());
            EXPECT_FALSE(group.at(unit).definition.empty());
            buttons.insert(unit);
            buttons.insert(group.toButton(unit));
            EXPECT_EQ(unit + group.toButton(unit), 2 * group.bankSize() - 1);
        }
        EXPECT_EQ(buttons.size(), 2 * group.units.size());
        EXPECT_LE(*buttons.rbegin(), 2 * group.bankSize() - 1);
        std::set<std::string_view> arrays;
        for (const UnitGroup& other : table.groups) {
            EXPECT_TRUE(arrays.insert(other.options).second);
        }
    });
}

TEST(ConversionTables, EveryPairConvertsAsASecondWayDoesAndComesBack) {
    int walked = 0;
    forEachGroup([&](const ConversionTable&, const UnitGroup& group) {
        forEachPair(group, [&](int from, int to) {
            ++walked;
            for (const double x : {1.0, -2.5, 12.0, 98.6, 1e-7, 6.02e23}) {
                const Conversion there = convert(group, from, to, x);
                const double back = convert(group, to, from, there.value).value;
                if (group.measure == Measure::Temperature) {
                    EXPECT_NEAR(back, x, 1e-12 * std::max(std::fabs(x), 1000.0));
                } else if (!hasRatio(group, from, to)) {
                    EXPECT_EQ(there.value, x);
                    EXPECT_EQ(there.ConversionFactor, 1.0);
                    EXPECT_TRUE(there.withoutRatio);
                } else {
                    const auto expected = static_cast<double>(counted(group, to, worth(group, from, x)));
                    EXPECT_NEAR(there.value / expected, 1.0, 1e-15 * 2);
                    EXPECT_NEAR(back / x, 1.0, 1e-14);
                    EXPECT_NEAR(applyFactor(x, there.ConversionFactor, there.divides) / there.value, 1.0, 1e-15);
                }
            }
        });
    });
    // Candlepower and lumen have come to the 10,282 of the published tables.
    EXPECT_EQ(walked, 10282 + 2);
}

TEST(ConversionTables, AWayOverAThirdUnitEndsAtTheSameNumber) {
    forEachGroup([&](const ConversionTable&, const UnitGroup& group) {
        if (group.measure == Measure::Temperature) {
            return;
        }
        forEachPair(group, [&](int from, int to) {
            for (int over = 0; over < static_cast<int>(group.units.size()); ++over) {
                if (over == from || over == to || !hasRatio(group, from, to) || !hasRatio(group, over, to)) {
                    continue;
                }
                const double straight = convert(group, from, to, 7.3).value;
                const double around = convert(group, over, to, convert(group, from, over, 7.3).value).value;
                ASSERT_NEAR(around / straight, 1.0, 1e-14);
            }
        });
    });
}

TEST(ConversionTables, ExactSizesComeBackToo) {
    forEachGroup([&](const ConversionTable&, const UnitGroup& group) {
        if (group.measure == Measure::Temperature) {
            return;
        }
        forEachPair(group, [&](int from, int to) {
            const double there = convert(group, from, to, 7.3, Sizes::Exact).value;
            EXPECT_NEAR(convert(group, to, from, there, Sizes::Exact).value / 7.3, 1.0, 1e-15);
        });
    });
}

// The units whose stated factor is off by more than a millionth; all others are their definition.
TEST(ConversionTables, KeepsTheStatedFactorsThatAreOffAndNoOthers) {
    std::set<std::string> off;
    forEachGroup([&](const ConversionTable&, const UnitGroup& group) {
        for (const Unit& unit : group.units) {
            if (group.measure != Measure::Temperature && std::fabs(deviation(unit)) > kTellDeviation) {
                off.emplace(toUnicode(unit.from, Face::Arial));
            }
        }
    });
    const std::set<std::string> expected{"kcal/min",
                                         "gallon(dry)",
                                         "vedro(R)",
                                         "koku(J)",
                                         "chetvert(R)",
                                         "load",
                                         "crith",
                                         "funt (R)",
                                         "kin (J)",
                                         "kwan (J)",
                                         "pood (R)",
                                         "electron volt",
                                         "rydberg",
                                         "billion electron volts",
                                         "A·T/meter",
                                         "A·T/cm",
                                         "A·T/mm",
                                         "A·T/inch",
                                         "lines/A·T inch",
                                         "Weber/A·T m",
                                         "weber/A·T in",
                                         "lines/inch²",
                                         "Webers/inch²",
                                         "torr (0°c)",
                                         "cm of mercury (0°c)",
                                         "kiloNewton-meter",
                                         "cho (J)",
                                         "dsyatina(R)",
                                         "shaku(J)",
                                         "vara",
                                         "sazhen(R)",
                                         "ri(J)",
                                         "parsec",

                                         "nepers"};
    EXPECT_EQ(off, expected);
}
