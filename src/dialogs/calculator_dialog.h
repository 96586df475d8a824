// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator dialog made of its table: give what is known, get what is missing. It is built when
// it is shown and gone afterwards; nothing of an earlier set enters a later one.
#pragma once

#include "dialogs/calculator_form.h"
#include "dialogs/calculator_table.h"
#include "numbers/value_cell.h"

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace tallyforge {

class DialogHandOver;

/// What a dialog asks of the rooms above.
struct CalculatorServices {
    /// Asks whether the units in force of these ranges are to be the default.
    std::function<void(std::span<const UnitRange* const>)> saveUnits;
    /// A value picked from the list of typical ones; Empty for none. Without the function the key of
    /// the list is disabled.
    std::function<ValueCell()> typicalValue;
};

/// Finds what `given` (bits of the fields) determines, from values in base units. Returns the row
/// that was used, nullptr where there is none. Raises 5, 6 and 11.
const Solution* solveFor(const CalculatorTable& table, std::uint16_t given, Values& values);

class CalculatorDialog : public CalculatorForm {
public:
    /// `handOver` holds X and the modifiers with which the key was pressed.
    CalculatorDialog(Engine& calculator, DialogHandOver& handOver, CalculatorServices services,
                     const CalculatorTable& calculatorTable);

protected:
    bool commit(int index) override;
    bool passEmpty(int index) override;
    void use(int index) override;
    void addToTape() override;
    void saveDefaults() override;
    void clearAll() override;
    void beginTyping(int index) override;
    void enterFocus(int index) override;

private:
    /// A value in its field's unit, exact, as it was typed where it was.
    struct Held {
        ValueCell cell;
        double number = 0.0;
    };

    void addFields();
    void addUnits();
    void addAnswers();
    void addCheckBox();
    void showTypicalValue();
    void takeX();
    void chooseUnit(const UnitArray& array, int row);
    void labelFields();
    bool hold(int index, const ValueCell& cell, double number);
    [[nodiscard]] bool due() const;
    void keepTwo(int last);
    void forget();
    [[nodiscard]] bool solve();
    void showSolution(const Solution& solution, const Values& values);
    void showAnswers(const Solution& solution, const Values& values);
    void offerFields(const Solution& solution);
    void hideAnswers();
    void giveAnew(int index);
    void keepOnly(int index);
    [[nodiscard]] std::uint16_t mask() const;
    [[nodiscard]] bool isSolved(int index) const;
    [[nodiscard]] const Quantity& quantity(int index) const { return table.fields[static_cast<std::size_t>(index)]; }
    [[nodiscard]] std::optional<Held>& held(int index) { return held_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] const std::optional<Held>& held(int index) const { return held_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] double scale(int index) const;
    [[nodiscard]] std::string unitLabel(int index) const;
    [[nodiscard]] std::string tapeLabel(int index) const;
    [[nodiscard]] double inAngleMode(double radians) const;
    [[nodiscard]] double parameter() const;
    [[nodiscard]] double shownAnswer(const AnswerField& answer, double value) const;

    DialogHandOver& handOver_;
    CalculatorServices services_;
    const CalculatorTable& table;
    std::uint8_t asked_;  ///< modifiers with which the key was pressed
    ValueCell brought_;   ///< and X
    std::array<std::optional<Held>, kMostFields> held_;
    std::array<double, kMostAnswers> answers_{};
    int EntryCount = 0;
    int kept_ = kNoIndex;                 ///< field that "Use" has kept
    const Solution* solution_ = nullptr;  ///< the one that stands
    Control* check_ = nullptr;
    Control* typical_ = nullptr;
    std::vector<Control*> lblAns_;
    std::vector<Control*> txtAns_;
};

}  // namespace tallyforge
