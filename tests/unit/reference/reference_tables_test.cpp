// SPDX-License-Identifier: GPL-3.0-or-later
#include "published_lists.h"
#include "reference/codata.h"
#include "reference/csv.h"
#include "reference/material_lists.h"
#include "reference/physical_constants.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <map>
#include <set>
#include <sstream>

namespace tallyforge {
namespace {

double number(std::string_view text) {
    double value = std::nan("");
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string trimmed(std::string_view cell) {
    const auto first = cell.find_first_not_of(' ');
    return first == cell.npos ? std::string() : std::string(cell.substr(first, cell.find_last_not_of(' ') - first + 1));
}

/// The printed lines, a cell between two bars, in the calculator's characters.
std::vector<std::vector<std::string>> printedRows(std::string_view lines) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream in{std::string(lines)};
    for (std::string line; std::getline(in, line);) {
        if (line.empty()) {
            continue;
        }
        std::vector<std::string> cells;
        std::istringstream bars(line.substr(1));
        for (std::string cell; std::getline(bars, cell, '|');) {
            cells.push_back(eightBit(trimmed(cell)));
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

void expectAsPrinted(const ListTable& table, std::string_view lines, std::size_t rows) {
    const auto printed = printedRows(lines);
    ASSERT_EQ(table.rows.size(), rows);
    ASSERT_EQ(printed.size(), rows);
    for (std::size_t row = 0; row < rows; ++row) {
        EXPECT_EQ(table.rows[row].name, printed[row].at(0));
        EXPECT_EQ(table.rows[row].value, printed[row].at(1));
        EXPECT_EQ(table.rows[row].unit, printed[row].size() > 2 ? printed[row].at(2) : "");
        EXPECT_TRUE(std::isfinite(number(table.rows[row].value))) << table.rows[row].name;
    }
}

TEST(ReferenceTables, ConstantsAreAsPrinted) {
    expectAsPrinted(kConstantsList, published::kConstantLines, 42);
}

TEST(ReferenceTables, SpecificGravitiesAreAsPrinted) {
    expectAsPrinted(kGravityList, published::kGravityLines, 43);
}

TEST(ReferenceTables, ResistivitiesAreAsPrinted) {
    expectAsPrinted(kRhoList, published::kRhoLines, 29);
}

TEST(ReferenceTables, TemperatureCoefficientsAreAsPrinted) {
    expectAsPrinted(kAlphaList, published::kAlphaLines, 24);
}

TEST(ReferenceTables, PrefixesAreAsPrinted) {
    expectAsPrinted(kPrefixList, published::kPrefixLines, 20);
}

TEST(ReferenceTables, KeepsTheSpellingsThatUsersKnow) {
    const auto has = [](const ListTable& table, std::string_view name) {
        return std::any_of(table.rows.begin(), table.rows.end(),
                           [name](const ListRow& row) { return row.name == name; });
    };
    EXPECT_TRUE(has(kConstantsList, "Unufied atomic mass unit, u"));
    EXPECT_TRUE(has(kPrefixList, "yocyo"));
    EXPECT_TRUE(has(kAlphaList, "Cobolt (Co)"));
    EXPECT_TRUE(has(kGravityList, "platinum (Pt)"));
    EXPECT_TRUE(has(kRhoList, "platinum (Pt)"));
    EXPECT_TRUE(has(kGravityList, "Steel, Carbon)"));
}

TEST(ReferenceTables, PrefixesAreThePowersOfTenInOrder) {
    const int powers[] = {24, 21, 18, 15, 12, 9, 6, 3, 2, 1, -1, -2, -3, -6, -9, -12, -15, -18, -21, -24};
    ASSERT_EQ(kPrefixList.rows.size(), std::size(powers));
    for (std::size_t row = 0; row < std::size(powers); ++row) {
        EXPECT_EQ(number(kPrefixList.rows[row].value), number("1e" + std::to_string(powers[row])));
    }
}

TEST(ReferenceTables, GlyphsOfTheConstantsReadAsTheyAreMeant) {
    std::map<std::string, std::string> shown;
    for (const ListRow& row : kConstantsList.rows) {
        shown[std::string(constantName(row.name))] =
            toUnicode(constantSymbol(row.name), Face::Terminal) + " / " + toUnicode(row.unit, Face::Terminal);
    }
    EXPECT_EQ(shown["Bohr magneton"], "µ_B / J/T");
    EXPECT_EQ(shown["First radiation constant"], "2πhc² / Wm²");
    EXPECT_EQ(shown["Fine structure constant"], "α / ");
    EXPECT_EQ(shown["Rydberg constant"], "R_∞ / 1/m");
    EXPECT_EQ(shown["Stefan-Boltzmann constant"], "σ / W/(m² °K^4)");
    EXPECT_EQ(shown["Magnetic flux quantum"], "Φ_o / Wb");
    EXPECT_EQ(shown["Permittivity of free space"], "εo / F/m");
}

TEST(ReferenceTables, AConstantsSymbolStandsBehindTheLastComma) {
    EXPECT_EQ(constantSymbol("Compton wavelength of proton, l_c,p"), "l_c,p");
    EXPECT_EQ(constantSymbol("Volume of ideal gas, std.cond., V_o"), "V_o");
    EXPECT_EQ(constantName("Volume of ideal gas, std.cond., V_o"), "Volume of ideal gas, std.cond.");
    EXPECT_EQ(constantSymbol("Earth mass"), "");
    EXPECT_EQ(constantName("Earth mass"), "Earth mass");
}

TEST(Codata, EveryRowBelongsToAConstantOfTheListAndIsCloseToIt) {
    const auto rows = codataRows();
    ASSERT_EQ(rows.size(), 34U);
    std::set<std::string_view> found;
    for (std::size_t index = 0; index < kConstantsList.rows.size(); ++index) {
        const ListRow& constant = kConstantsList.rows[index];
        for (const CodataRow& row : rows) {
            if (row.constant != constantName(constant.name)) {
                continue;
            }
            found.insert(row.constant);
            const double today = number(row.value);
            EXPECT_NEAR(number(constant.value) / today, 1.0, 2e-4) << row.constant;
            if (row.uncertainty != "exact") {
                const double spread = number(row.uncertainty);
                EXPECT_GT(spread, 0.0) << row.constant;
                EXPECT_LT(spread, std::abs(today) * 1e-4) << row.constant;
            }
            EXPECT_FALSE(row.basis.empty());
            const auto taken = valueOfToday(index);
            ASSERT_TRUE(taken.has_value());
            EXPECT_EQ(taken->value, row.value);
            EXPECT_EQ(taken->spread, row.uncertainty);
        }
    }
    EXPECT_EQ(found.size(), rows.size());
}

/// A unit without the marks that the two tables write differently.
std::string plainUnit(std::string unit) {
    std::string plain;
    for (const char character : unit) {
        if (std::string_view(" ()^").find(character) == std::string_view::npos) {
            plain += character;
        }
    }
    const auto squared = plain.find("²");
    if (squared != std::string::npos) {
        plain.replace(squared, 2, "2");
    }
    const auto degree = plain.find("°");
    return degree == std::string::npos ? plain : plain.replace(degree, 2, "");
}

TEST(Codata, CountsInTheUnitsOfTheList) {
    for (const CodataRow& row : codataRows()) {
        for (const ListRow& constant : kConstantsList.rows) {
            if (row.constant == constantName(constant.name)) {
                EXPECT_EQ(plainUnit(row.unit), plainUnit(toUnicode(constant.unit, Face::Terminal))) << row.constant;
            }
        }
    }
}

TEST(Codata, ExactValuesFollowFromTheDefiningConstants) {
    constexpr double kPlanck = 6.62607015e-34;
    constexpr double kLight = 299792458.0;
    constexpr double kCharge = 1.602176634e-19;
    constexpr double kBoltzmann = 1.380649e-23;
    constexpr double kAvogadro = 6.02214076e26;  // per kmol
    const double pi = std::acos(-1.0);
    const std::map<std::string, double> exact{
        {"Avogadro constant", kAvogadro},
        {"Boltzmann constant", kBoltzmann},
        {"Distance earth to sun (mean)", 149597870700.0},
        {"Electron charge", kCharge},
        {"Faraday constant", kCharge * kAvogadro},
        {"First radiation constant", 2 * pi * kPlanck * kLight * kLight},
        {"Free fall acceleration (std)", 9.80665},
        {"Gas constant", kBoltzmann * kAvogadro},
        {"Magnetic flux quantum", kPlanck / (2 * kCharge)},
        {"Planck constant", kPlanck},
        {"Second radiation constant", kPlanck * kLight / kBoltzmann},
        {"Speed of light in vacuum", kLight},
        {"Stefan-Boltzmann constant",
         2 * std::pow(pi, 5) * std::pow(kBoltzmann, 4) / (15 * std::pow(kPlanck, 3) * kLight * kLight)},
        {"Volume of ideal gas, std.cond.", kBoltzmann * kAvogadro * 273.15 / 101325.0},
    };
    std::size_t checked = 0;
    for (const CodataRow& row : codataRows()) {
        if (row.uncertainty == "exact") {
            ASSERT_TRUE(exact.contains(row.constant)) << row.constant;
            EXPECT_NEAR(number(row.value) / exact.at(row.constant), 1.0, 1e-12) << row.constant;
            ++checked;
        }
    }
    EXPECT_EQ(checked, exact.size());
}

TEST(Codata, MeasuredValuesAgreeWithEachOther) {
    std::map<std::string, double> value;
    for (const CodataRow& row : codataRows()) {
        value[row.constant] = number(row.value);
    }
    const double pi = std::acos(-1.0);
    const double h = value["Planck constant"];
    const double c = value["Speed of light in vacuum"];
    const double e = value["Electron charge"];
    const double electron = value["Electron rest mass"];
    const double alpha = value["Fine structure constant"];
    const auto agree = [&](const std::string& name, double computed) {
        EXPECT_NEAR(value[name] / computed, 1.0, 3e-9) << name;
    };
    agree("Compton wavelength of electron", h / (electron * c));
    agree("Compton wavelength of proton", h / (value["Proton rest mass"] * c));
    agree("Compton wavelength of neutron", h / (value["Neutron rest mass"] * c));
    agree("Electron charge to mass ratio", e / electron);
    agree("Bohr magneton", e * h / (4 * pi * electron));
    agree("Nuclear magneton", e * h / (4 * pi * value["Proton rest mass"]));
    agree("Quantum of circulation", h / electron);
    agree("Rydberg constant", alpha * alpha * electron * c / (2 * h));
    agree("Bohr radius", h / (2 * pi * electron * c * alpha));
    agree("classical electron radius", alpha * h / (2 * pi * electron * c));
    agree("Permittivity of free space", e * e / (2 * alpha * h * c));
    agree("Permeability of free space", 2 * alpha * h / (e * e * c));
}

TEST(Csv, CellsInQuotesMayHoldCommas) {
    const auto table = readCsv("# source: a book\na,b\r\n1,\"2, and \"\"3\"\"\"\n\n,\n");
    ASSERT_TRUE(table.has_value());
    EXPECT_EQ(table->source, "a book");
    EXPECT_EQ(table->heads, (std::vector<std::string>{"a", "b"}));
    ASSERT_EQ(table->rows.size(), 2U);
    EXPECT_EQ(table->rows[0], (std::vector<std::string>{"1", "2, and \"3\""}));
    EXPECT_EQ(table->rows[1], (std::vector<std::string>{"", ""}));
    EXPECT_EQ(table->column("b"), 1U);
    EXPECT_EQ(table->column("c"), std::nullopt);
}

TEST(Csv, ACellMayBeginWithTheMarkOfANumberDrill) {
    const auto table = readCsv("# a comment\ndrill,dia\n#53,0.0595\n");
    ASSERT_TRUE(table.has_value());
    ASSERT_EQ(table->rows.size(), 1U);
    EXPECT_EQ(table->rows[0].front(), "#53");
}

TEST(Csv, DamagedTablesAreNotTakenByHalves) {
    EXPECT_FALSE(readCsv("").has_value());
    EXPECT_FALSE(readCsv("# only a comment\n").has_value());
    EXPECT_FALSE(readCsv("a,b\n1,2\n3\n").has_value());
    EXPECT_FALSE(readCsv("a,b\n1,2,3\n").has_value());
    EXPECT_FALSE(readCsv("a,b\n1,234").has_value());
}

}  // namespace
}  // namespace tallyforge
