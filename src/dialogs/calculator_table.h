// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator dialog as a table: its quantities, the units that they are given in, and a row for
// each set of quantities that determines the others, with a pure function on doubles. The dialog
// (calculator_dialog.h) makes its fields and option keys of it, the key's modifiers find their field
// in it, and a test hides each set and finds it again.
#pragma once

#include "dialogs/unit_tables.h"
#include "platform/drawing.h"
#include "platform/form.h"

#include <array>
#include <cstdint>
#include <exception>
#include <span>
#include <string_view>

namespace tallyforge {

/// Values in base units by field; behind the fields the answers, and the table's parameter.
inline constexpr std::size_t kMostFields = 9;
inline constexpr std::size_t kFirstAnswer = kMostFields;
inline constexpr std::size_t kMostAnswers = 4;
inline constexpr std::size_t kParameter = kMostFields + kMostAnswers;
using Values = std::array<double, kParameter + 1>;

/// One field.
struct Quantity {
    std::string_view symbol;           ///< beside the field, and on the tape where there is no unit
    std::string_view name;             ///< what it is, for its tip and for whoever hears the field
    std::uint16_t bit = 0;             ///< in the mask of a solution
    std::uint8_t modifiers = 0;        ///< that bring X into it; 0 for none
    const UnitRange* units = nullptr;  ///< nullptr: always in the base unit
    std::string_view unit{};           ///< its label then, where it has one
    bool angle = false;                ///< in radians here, in the angle mode for the user
    bool tapeGlyphs = false;           ///< symbol and unit are written in the glyphs of the tape
    bool signedValue = false;          ///< "\" turns the sign
    bool zeroCounts = false;           ///< 0 is a number here; elsewhere it starts anew
    bool plainDecimals = false;        ///< no exponent can be typed
    std::string_view missing{};        ///< said by Enter on the empty field, if anything
    std::string_view preset{};         ///< stands in the field from the start, and need not be given
    double presetValue = 0.0;
    bool resultOnly = false;     ///< always solved, never typed
    bool afterSolution = false;  ///< hidden until a solution stands
};

/// A row of option keys: "OptP(0)" and so on under a heading.
struct UnitArray {
    std::string_view options;
    std::string_view heading;
    const UnitRange* units = nullptr;
};

/// What a solution tells beside the fields, in `txtAns(i)` under `lblAns(i)`.
struct AnswerField {
    std::string_view caption;
    bool angle = false;  ///< in radians, shown in the angle mode
    const UnitRange* units = nullptr;
};

using SolvedFields = std::array<int, 5>;  ///< filled up with -1
constexpr SolvedFields solves(std::int8_t first, std::int8_t second = -1) {
    return {first, second, -1, -1, -1};
}

struct Solution {
    std::uint16_t given = 0;  ///< sum of the bits of the quantities that are given
    SolvedFields solved{-1, -1, -1, -1, -1};
    std::string_view relation{};  ///< shown in the tips of the solved fields
    /// Finds the solved values of those given. Raises 5, 6 and 11, and Refusal.
    void (*solve)(Values& values) = nullptr;
    std::span<const AnswerField> answers{};
    /// The solved field can be typed over: the frequency at which a circuit is looked at.
    bool asksOn = false;
};

/// A set of values that a solution refuses, in words of its own.
struct Refusal : std::exception {
    Refusal(std::string_view boxTitle, std::string_view boxText) : title(boxTitle), text(boxText) {}
    [[nodiscard]] const char* what() const noexcept override { return "refused values"; }
    std::string_view title;
    std::string_view text;
};

/// What a click on a "Use" option does.
enum class UseOption : std::uint8_t {
    Keeps,  ///< this value stays, all others are emptied
    Clears  ///< this value is given anew, all others stay
};

struct CalculatorTable {
    std::string_view form;
    std::string_view title;
    std::string_view name;       ///< in the tips of its keys: "Ohms Law"
    std::string_view procedure;  ///< titles its messages
    int helpTopic = 0;
    std::size_t given = 2;  ///< quantities that determine the others
    std::span<const Quantity> fields{};
    std::span<const UnitArray> units{};
    std::span<const Solution> solutions{};
    std::string_view useHeading = "Use";
    UseOption use = UseOption::Keeps;
    /// Counts from the place of the field that was solved first, and not from 0, after "Use": where
    /// that is field 0, the next value does not solve yet.
    bool countsFromSolved = false;
    const UnitRange* parameter = nullptr;  ///< its factor is the parameter of the formulas
    std::string_view checkBox{};           ///< else ticked or not, 1 or 0
    std::string_view checkTip{};
    bool typicalValues = false;  ///< has the key of a list for its first field
    std::string_view exitTip{};  ///< where it differs from " Quit the " + name + " Calculator "
    std::string_view clearCaption = "&Clear";
    std::string_view hint{};                        ///< a line of advice below the fields
    std::span<const std::string_view> tapeTexts{};  ///< lines of text behind what is posted
    /// What stands beside the fields: by the values of a solution, or, before one, in its usual shape.
    Drawing (*picture)(const Values& values, bool solved) = nullptr;
    Values example{};  ///< one consistent set in base units, for tests
};

}  // namespace tallyforge
