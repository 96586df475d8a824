// SPDX-License-Identifier: GPL-3.0-or-later
//
// One net over all calculator tables, so that no new dialog escapes it: each set of quantities is
// typed in each unit and both locales, and what the dialog finds is hidden and found again from
// every other set.
#include "calculator_fixture.h"
#include "calculators/calculators.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <set>

namespace tallyforge {
namespace {

constexpr double kTwelveDigits = 1e-12;
constexpr double kTypedDigits = 1e-7;  ///< of a number that has but fifteen characters

bool isSolved(const Solution& solution, int field) {
    return std::find(solution.solved.begin(), solution.solved.end(), field) != solution.solved.end();
}

/// Angles of the net are in radians, as the tables have them.
double scaleOf(const Quantity& quantity, const UnitWords& words) {
    return quantity.units == nullptr ? 1.0 : unitScale(*quantity.units, words);
}

/// `value` as a hand can type it: fifteen characters at most, no "+".
std::string typable(double value, const Quantity& quantity, char decimal) {
    std::string text = plainText(value, decimal);
    if (text.size() <= 15 && text.find('E') == std::string::npos) {
        return text;
    }
    if (quantity.plainDecimals) {
        text = fixedText(value, 12).substr(0, 15);
    } else {
        char buffer[40];
        std::snprintf(buffer, sizeof buffer, "%.9e", value);
        text = buffer;
        const auto exponent = text.find('e');
        text = text.substr(0, exponent) + "e" + std::to_string(std::stoi(text.substr(exponent + 1)));
    }
    std::replace(text.begin(), text.end(), '.', decimal);
    return text;
}

class AllCalculators : public CalculatorTest {
protected:
    AllCalculators() { calc.s.format.Angle = AngleMode::Radians; }

    /// The example with its derived values right for the parameter in force.
    static Values consistent(const CalculatorTable& table, const UnitWords& words) {
        Values values = table.example;
        if (table.parameter != nullptr) {
            values[kParameter] = unitScale(*table.parameter, words);
            table.solutions.front().solve(values);
        }
        return values;
    }

    /// Types the set of `solution` and posts what the dialog finds; all fields in base units.
    Values solveByHand(const CalculatorTable& table, const Solution& solution, const Values& wanted) {
        const std::size_t before = calc.tape.lines();
        open(table, [&](DialogAtHand hand) {
            for (std::size_t i = 0; i < table.fields.size(); ++i) {
                const Quantity& quantity = table.fields[i];
                if ((solution.given & quantity.bit) != 0) {
                    hand.clickOn("txtVal", static_cast<int>(i));
                    hand.enter(typable(wanted[i] / scaleOf(quantity, calc.units), quantity, calc.s.format.DecimalChar));
                }
            }
            EXPECT_EQ(hand.at("cmdXreg").text, "&Add to Xreg") << table.form << " " << solution.given;
            hand.press(kKeyEnter, 13);
        });
        const std::vector<double> lines = posted(before);
        Values values{};
        values[kParameter] = wanted[kParameter];
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            values[i] = table.fields[i].presetValue;
        }
        std::size_t line = 0;
        const auto take = [&](std::size_t field) {
            values[field] = line < lines.size() ? lines[line++] * scaleOf(table.fields[field], calc.units) : 0.0;
        };
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            if ((solution.given & table.fields[i].bit) != 0) {
                take(i);
            }
        }
        for (const int field : solution.solved) {
            if (field >= 0) {
                take(static_cast<std::size_t>(field));
            }
        }
        EXPECT_EQ(line + solution.answers.size() + table.tapeTexts.size(), lines.size()) << table.form;
        return values;
    }

    static void expectSame(const CalculatorTable& table, const Values& found, const Values& wanted, double digits,
                           const std::string& where) {
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            if (found[i] == 0.0 && table.fields[i].afterSolution) {
                continue;
            }
            EXPECT_NEAR(found[i] / wanted[i], 1.0, digits) << table.form << " " << table.fields[i].symbol << where;
        }
    }

    /// What was found agrees with every other set of the table.
    static void expectConsistent(const CalculatorTable& table, const Values& values, const std::string& where) {
        for (const Solution& other : table.solutions) {
            if (other.asksOn) {
                // What it finds is but the first frequency; any other may stand in its place.
                continue;
            }
            Values again = values;
            for (const int field : other.solved) {
                if (field >= 0) {
                    again[static_cast<std::size_t>(field)] = 0.0;
                }
            }
            other.solve(again);
            expectSame(table, again, values, kTwelveDigits, where + " by set " + std::to_string(other.given));
        }
    }

    void tryAll(const CalculatorTable& table, const std::string& where) {
        const Values wanted = consistent(table, calc.units);
        for (const Solution& solution : table.solutions) {
            const std::string here = where + " set " + std::to_string(solution.given);
            const Values found = solveByHand(table, solution, wanted);
            expectSame(table, found, wanted, kTypedDigits, here);
            expectConsistent(table, found, here);
        }
        EXPECT_TRUE(platform.boxes.empty());
        platform.boxes.clear();
    }
};

TEST_F(AllCalculators, FindEachHiddenSetAgainInTwelveDigits) {
    for (const CalculatorTable* table : calculatorTables()) {
        expectConsistent(*table, consistent(*table, calc.units), " example");
    }
}

TEST_F(AllCalculators, SolveEverySetInEachUnitAndBothLocales) {
    const UnitWords fresh = calc.units;
    for (const char decimal : {'.', ','}) {
        calc.s.format.DecimalChar = decimal;
        for (const CalculatorTable* table : calculatorTables()) {
            tryAll(*table, decimal == ',' ? " comma" : " point");
            for (const UnitArray& array : table->units) {
                for (int row = 0; row < static_cast<int>(array.units->rows.size()); ++row) {
                    calc.units = fresh;
                    chooseRow(*array.units, row, calc.units);
                    tryAll(*table, " " + std::string(array.options) + std::to_string(row));
                }
            }
            calc.units = fresh;
        }
    }
}

TEST_F(AllCalculators, FieldsOfATableHaveBitsAndModifiersOfTheirOwn) {
    for (const CalculatorTable* table : calculatorTables()) {
        std::uint32_t bits = 0;
        std::set<int> modifiers;
        for (const Quantity& quantity : table->fields) {
            EXPECT_EQ(bits & quantity.bit, 0U) << table->form;
            bits |= quantity.bit;
            EXPECT_TRUE(quantity.modifiers == 0 || modifiers.insert(quantity.modifiers).second) << table->form;
            EXPECT_FALSE(quantity.name.empty());
        }
        for (const Solution& solution : table->solutions) {
            EXPECT_EQ(solution.given & ~bits, 0U) << table->form;
            EXPECT_FALSE(solution.relation.empty()) << table->form;
            for (std::size_t i = 0; i < table->fields.size(); ++i) {
                const Quantity& quantity = table->fields[i];
                const bool given = (solution.given & quantity.bit) != 0;
                const bool solved = isSolved(solution, static_cast<int>(i));
                const bool neither = !quantity.preset.empty() || quantity.afterSolution;
                EXPECT_TRUE(given != solved || (neither && !given)) << table->form << " " << i;
            }
        }
    }
}

TEST_F(AllCalculators, ANumberUnderTheModifiersOfAFieldStandsInIt) {
    for (const CalculatorTable* table : calculatorTables()) {
        for (std::size_t i = 0; i < table->fields.size(); ++i) {
            const std::uint8_t mask = table->fields[i].modifiers;
            if (mask == 0) {
                continue;
            }
            openWith(*table, mask, -2.5, [&](DialogAtHand hand) {
                EXPECT_EQ(hand.field(static_cast<int>(i)), "-2.5") << table->form << " " << i;
                EXPECT_FALSE(hand.at("txtVal", static_cast<int>(i)).enabled);
                EXPECT_NE(hand.focus(), "txtVal(" + std::to_string(i) + ")");
            });
        }
        for (const int mask : {0, 3, 5}) {
            openWith(*table, static_cast<std::uint8_t>(mask), 7.0, [&](DialogAtHand hand) {
                for (std::size_t i = 0; i < table->fields.size(); ++i) {
                    EXPECT_EQ(hand.field(static_cast<int>(i)), table->fields[i].preset)
                        << table->form << " mask " << mask;
                }
            });
        }
    }
}

TEST_F(AllCalculators, ClosingLeavesStackAndTapeWhateverStands) {
    for (const CalculatorTable* table : calculatorTables()) {
        const std::size_t lines = calc.tape.lines() + 1;
        openWith(*table, 0, 7.0, [&](DialogAtHand hand) {
            const Solution& solution = table->solutions.front();
            for (std::size_t i = 0; i < table->fields.size(); ++i) {
                if ((solution.given & table->fields[i].bit) != 0) {
                    hand.clickOn("txtVal", static_cast<int>(i));
                    hand.enter(typable(table->example[i] / scaleOf(table->fields[i], calc.units), table->fields[i],
                                       calc.s.format.DecimalChar));
                }
            }
            closeForm(hand.form);
            EXPECT_FALSE(hand.form.open);
        });
        EXPECT_EQ(calc.tape.lines(), lines) << table->form;
        EXPECT_EQ(calc.s.stack.slot(calc.s.stack.depth()), ValueCell(7.0));
        EXPECT_EQ(calc.s.stack.KeepX, ValueCell(7.0));
    }
}

TEST_F(AllCalculators, CtrlPPrintsThePictureAndWhatTheFieldsShow) {
    for (const CalculatorTable* table : calculatorTables()) {
        platform.printedPictures.clear();
        openWith(*table, 0, 7.0, [&](DialogAtHand hand) {
            hand.clickOn("txtVal", 0);
            const std::string clears = table->units.empty() ? "cmdClear" : "cmdDefault";
            const std::string caption = hand.at(clears).text;
            pressKey(hand.form, {.keyCode = 'P', .shift = kCtrl, .character = 'P' - '@'});
            EXPECT_EQ(hand.at(clears).text, caption) << "nothing was typed";
            EXPECT_TRUE(hand.form.open);
            closeForm(hand.form);
        });
        ASSERT_EQ(platform.printedPictures.size(), 1U) << table->form;
        EXPECT_EQ(platform.printed.front().text, table->title);
        const auto& shapes = platform.printedPictures[0].shapes;
        EXPECT_TRUE(std::any_of(shapes.begin(), shapes.end(), [&](const DrawnShape& shape) {
            const auto* text = std::get_if<DrawnText>(&shape);
            return text != nullptr && text->text == table->fields.front().symbol;
        })) << table->form;
    }
}

TEST_F(AllCalculators, KeysAndTipsOfEachState) {
    for (const CalculatorTable* table : calculatorTables()) {
        open(*table, [&](DialogAtHand hand) {
            EXPECT_EQ(hand.focus(), "txtVal(0)");
            EXPECT_EQ(hand.at("cmdCalc").text, "Enter <---");
            EXPECT_EQ(hand.at("cmdCalc").tip, " Same as The Enter key ");
            EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
            EXPECT_EQ(hand.at("cmdXreg").tip, table->exitTip.empty()
                                                  ? " Quit the " + std::string(table->name) + " Calculator "
                                                  : std::string(table->exitTip));
            const std::string clears = table->units.empty() ? "cmdClear" : "cmdDefault";
            if (table->units.empty()) {
                EXPECT_EQ(hand.at(clears).text, table->clearCaption);
            } else {
                EXPECT_EQ(hand.at(clears).text, "&Default");
                EXPECT_EQ(hand.at(clears).tip, " Set Selected Units as Default ");
            }
            hand.type("4");
            EXPECT_EQ(hand.at(clears).text, table->clearCaption);
            EXPECT_EQ(hand.at(clears).tip, " Reset Calculator ");
            EXPECT_EQ(hand.field(0), "4");
            hand.clickOn(clears);
            EXPECT_EQ(hand.field(0), "");
            EXPECT_EQ(hand.focus(), "txtVal(0)");
        });
    }
}

}  // namespace
}  // namespace tallyforge
