// SPDX-License-Identifier: GPL-3.0-or-later
//
// The numbers that the pages repeat are those that the calculator computes with: each unit with its
// captions, factor, definition and fault, each scale of temperature, each constant. (Lists and tables of sizes:
// tools/check_help_tables.)
#include "convert/conversion_tables.h"
#include "dialogs/conversion.h"
#include "help/help_book.h"
#include "help/inline_text.h"
#include "help_sources.h"
#include "platform/text.h"
#include "reference/codata.h"
#include "reference/physical_constants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

const HelpBook& book() {
    static const HelpBook kBook(helpSources());
    return kBook;
}

Row bareRow(const Row& row) {
    Row bare;
    std::transform(row.begin(), row.end(), std::back_inserter(bare),
                   [](const std::string& cell) { return plainText(cell); });
    return bare;
}

/// The tables of a page whose head begins with `first` and `second`, without marks.
std::vector<Rows> tablesOf(const HelpPage& page, std::string_view first, std::string_view second) {
    std::vector<Rows> tables;
    for (const HelpBlock& block : helpBlocks(page.body)) {
        if (block.kind == HelpBlock::Kind::Table && block.rows.front().at(0) == first &&
            block.rows.front().at(1) == second) {
            Rows rows;
            std::transform(block.rows.begin(), block.rows.end(), std::back_inserter(rows), bareRow);
            tables.push_back(std::move(rows));
        }
    }
    return tables;
}

std::string caption(std::string_view eightBit) {
    return toUnicode(eightBit, Face::Arial);
}

double readNumber(const std::string& text) {
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : std::nan("");
}

/// "-0.0029 %, exact 0.012566370614359173", in two digits, where the factor is told to be off.
void compareFault(const Unit& unit, const std::string& told) {
    const double part = static_cast<double>(unit.factor) / static_cast<double>(unit.exact) - 1.0;
    if (unit.factor == kNoFactor || std::fabs(part) <= kTellDeviation) {
        EXPECT_EQ(told, "");
        return;
    }
    constexpr std::string_view kBetween = " %, exact ";
    const std::size_t between = told.find(kBetween);
    ASSERT_NE(between, told.npos) << told;
    std::array<char, 32> percent{};
    std::snprintf(percent.data(), percent.size(), "%.2g", 100.0 * part);
    EXPECT_EQ(told.front(), part < 0.0 ? '-' : '+');
    EXPECT_EQ(readNumber(told.substr(part < 0.0 ? 0 : 1, between - (part < 0.0 ? 0 : 1))), readNumber(percent.data()));
    EXPECT_EQ(readNumber(told.substr(between + kBetween.size())), static_cast<double>(unit.exact));
}

void compareUnits(const UnitGroup& group, const Rows& told) {
    const Row& head = told.front();
    std::string base = caption(group.base);
    if (const std::size_t raised = base.find('^'); raised != base.npos) {
        base.replace(raised, 2, base[raised + 1] == '2' ? "²" : "³");
    }
    EXPECT_EQ(head.at(2), (group.measure == Measure::Count ? "in 1 " : "") + base);
    EXPECT_EQ(head.at(3), "Definition");
    ASSERT_EQ(told.size() - 1, group.units.size());
    for (std::size_t at = 0; at < group.units.size(); ++at) {
        const Unit& unit = group.units[at];
        const Row& row = told[at + 1];
        SCOPED_TRACE(row.at(0));
        EXPECT_EQ(row.at(0), caption(unit.from));
        EXPECT_EQ(row.at(1), caption(unit.to));
        if (unit.factor != kNoFactor) {
            EXPECT_EQ(readNumber(row.at(2)), unit.factor) << row.at(2);
        } else {
            EXPECT_TRUE(std::isnan(readNumber(row.at(2)))) << row.at(2);
        }
        EXPECT_EQ(row.at(3), caption(unit.definition));
        compareFault(unit, row.size() > 4 ? row.at(4) : "");
    }
}

TEST(HelpNumbers, EveryUnitStandsWithTheFactorThatConverts) {
    std::size_t compared = 0;
    for (const ConversionTable* table : conversionTables()) {
        SCOPED_TRACE(table->form);
        constexpr int kFirstTopic = 1400;
        const HelpPage* page = book().byTopic(kFirstTopic + table->key);
        ASSERT_NE(page, nullptr);
        const std::vector<Rows> told = tablesOf(*page, "From", "To");
        std::size_t next = 0;
        for (const UnitGroup& group : table->groups) {
            if (group.measure != Measure::Temperature) {
                ASSERT_LT(next, told.size());
                compareUnits(group, told[next++]);
                compared += group.units.size();
            }
        }
        EXPECT_EQ(next, told.size());
    }
    EXPECT_GT(compared, 350U);
}

/// A formula of x, numbers, the four operations and parentheses.
class Formula {
public:
    explicit Formula(std::string text) : text_(std::move(text)) {
        for (std::size_t at = text_.find("·"); at != text_.npos; at = text_.find("·")) {
            text_.replace(at, std::string_view("·").size(), "*");
        }
        std::erase(text_, ' ');
    }
    double at(double x) {
        x_ = x;
        rest_ = text_;
        const double value = sum();
        EXPECT_TRUE(rest_.empty()) << text_;
        return value;
    }

private:
    bool take(char character) {
        const bool there = rest_.starts_with(character);
        rest_.remove_prefix(there ? 1 : 0);
        return there;
    }
    double sum() {
        double value = product();
        for (;;) {
            if (take('+')) {
                value += product();
            } else if (take('-')) {
                value -= product();
            } else {
                return value;
            }
        }
    }
    double product() {
        double value = operand();
        for (;;) {
            if (take('*')) {
                value *= operand();
            } else if (take('/')) {
                value /= operand();
            } else {
                return value;
            }
        }
    }
    double operand() {
        if (take('x')) {
            return x_;
        }
        if (take('(')) {
            const double value = sum();
            EXPECT_TRUE(take(')')) << text_;
            return value;
        }
        const auto end = std::min(rest_.find_first_not_of("0123456789."), rest_.size());
        const double value = readNumber(std::string(rest_.substr(0, end)));
        rest_.remove_prefix(end);
        return value;
    }

    std::string text_;
    std::string_view rest_;
    double x_ = 0.0;
};

TEST(HelpNumbers, EveryFormulaOfTemperatureIsTheOneThatConverts) {
    const HelpPage* page = book().byName("convert-temperature");
    ASSERT_NE(page, nullptr);
    const std::vector<Rows> told = tablesOf(*page, "From", "Celsius");
    ASSERT_EQ(told.size(), 1U);
    const UnitGroup* scales = nullptr;
    for (const ConversionTable* table : conversionTables()) {
        scales = table->groups.front().measure == Measure::Temperature ? table->groups.data() : scales;
    }
    ASSERT_NE(scales, nullptr);
    const auto scaleOf = [&](const std::string& name) {
        for (std::size_t at = 0; at < scales->units.size(); ++at) {
            if (caption(scales->units[at].from).find(name) != std::string::npos) {
                return static_cast<int>(at);
            }
        }
        return -1;
    };
    ASSERT_EQ(told.front().size(), 6U);
    for (std::size_t row = 1; row < told.front().size(); ++row) {
        for (std::size_t column = 1; column < told.front().front().size(); ++column) {
            const int from = scaleOf(told.front().at(row).at(0));
            const int to = scaleOf(told.front().front().at(column));
            ASSERT_GE(std::min(from, to), 0);
            const std::string& formula = told.front().at(row).at(column);
            EXPECT_EQ(formula.empty(), from == to);
            for (const double x : {-40.0, 0.0, 98.6, 1234.5}) {
                if (from != to) {
                    EXPECT_NEAR(Formula(formula).at(x), convert(*scales, from, to, x).value, 1e-9)
                        << formula << " of " << x;
                }
            }
        }
    }
}

TEST(HelpNumbers, EveryConstantStandsWithItsValueAndThatOfToday) {
    const std::vector<Rows> told = tablesOf(*book().byName("constants"), "Name", "Value");
    ASSERT_EQ(told.size(), 1U);
    const Rows& rows = told.front();
    ASSERT_EQ(rows.size() - 1, kConstantsList.rows.size());
    std::size_t ofToday = 0;
    for (std::size_t at = 0; at < kConstantsList.rows.size(); ++at) {
        const ListRow& constant = kConstantsList.rows[at];
        const Row& row = rows[at + 1];
        EXPECT_EQ(row.at(0), toUnicode(constant.name, Face::Terminal));
        EXPECT_EQ(row.at(1), constant.value);
        EXPECT_EQ(row.at(2), toUnicode(constant.unit, Face::Terminal));
        const auto all = codataRows();
        const auto known = std::find_if(
            all.begin(), all.end(), [&](const CodataRow& one) { return one.constant == constantName(constant.name); });
        std::string today;
        if (known != all.end()) {
            ++ofToday;
            today = known->value + (known->uncertainty == "exact" ? " exact" : " ± " + known->uncertainty);
        }
        EXPECT_EQ(row.at(3), today) << row.at(0);
    }
    EXPECT_EQ(ofToday, codataRows().size()) << "a value of today that no constant has";
}

}  // namespace
}  // namespace tallyforge
