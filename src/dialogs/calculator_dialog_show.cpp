// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a calculator dialog shows what it has found, puts it on the tape, and takes it back by "Use".
#include "dialogs/calculator_dialog.h"
#include "dialogs/tape_posting.h"
#include "dialogs/unit_choice.h"
#include "engine/engine.h"
#include "numbers/checked_math.h"
#include "numbers/circle.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyforge {

void CalculatorDialog::showSolution(const Solution& solution, const Values& values) {
    std::vector<std::pair<int, double>> results;
    for (const int field : solution.solved) {
        if (field >= 0) {
            results.emplace_back(field, checked(values.at(static_cast<std::size_t>(field)) / scale(field)));
        }
    }
    for (const auto& [field, number] : results) {
        held(field) = Held{.cell = number, .number = number};
        txtVal(field).text = shown(number);
        txtVal(field).visible = true;
        txtVal(field).tip = " " + std::string(quantity(field).name) + ": " + std::string(solution.relation) + " ";
    }
    solution_ = &solution;
    EntryCount = solution.solved.front();
    kept_ = kNoIndex;
    showAnswers(solution, values);
    if (table.picture != nullptr) {
        showPicture(table.picture(values, true));
    }
    showSolved();
    for (int i = 0; i < fieldCount(); ++i) {
        optCalc(i).visible = optCalc(i).visible && !quantity(i).resultOnly;
    }
    if (table.use == UseOption::Clears) {
        offerFields(solution);
    }
}

// At first all values may be given anew, and the frequency that is asked for; then that alone.
void CalculatorDialog::offerFields(const Solution& solution) {
    for (int i = 0; i < fieldCount(); ++i) {
        const bool asked = quantity(i).afterSolution;
        txtVal(i).visible = true;
        txtVal(i).enabled = asked && solution.asksOn;
        optCalc(i).visible = asked || solution.asksOn;
        lblUnits(i).visible = true;
    }
}

/// An angle in the angle mode of the keys; a circle is 360 degrees or 400 grads.
double CalculatorDialog::inAngleMode(double radians) const {
    const double degrees = radians * 180.0 / kPi;
    switch (calc.s.format.Angle) {
        case AngleMode::Degrees:
            return degrees;
        case AngleMode::Grads:
            return degrees * 40.0 / 36.0;
        default:
            return radians;
    }
}

std::string CalculatorDialog::unitLabel(int index) const {
    static constexpr std::array<std::string_view, 3> kAngles{"deg", "rad", "grad"};
    const Quantity& field = quantity(index);
    if (field.angle) {
        return std::string(kAngles.at(static_cast<std::size_t>(calc.s.format.Angle)));
    }
    return std::string(field.units == nullptr ? field.unit : chosenUnit(*field.units, calc.units).label);
}

std::string CalculatorDialog::tapeLabel(int index) const {
    const std::string unit = unitLabel(index);
    const std::string label = unit.empty() ? std::string(quantity(index).symbol) : unit;
    return quantity(index).tapeGlyphs ? label : MapUnitText(label);
}

double CalculatorDialog::shownAnswer(const AnswerField& answer, double value) const {
    return answer.angle              ? inAngleMode(value)
           : answer.units == nullptr ? value
                                     : value / unitScale(*answer.units, calc.units);
}

void CalculatorDialog::showAnswers(const Solution& solution, const Values& values) {
    hideAnswers();
    for (std::size_t i = 0; i < solution.answers.size(); ++i) {
        const AnswerField& answer = solution.answers[i];
        answers_.at(i) = checked(shownAnswer(answer, values.at(kFirstAnswer + i)));
        lblAns_[i]->text = answer.caption;
        lblAns_[i]->visible = true;
        txtAns_[i]->text = shown(answers_.at(i));
        txtAns_[i]->visible = true;
        if (answer.angle) {
            lblAns_.back()->text = AngleLabel(calc.s.format.Angle, true);
            lblAns_.back()->place.top = lblAns_[i]->place.top;
            lblAns_.back()->visible = true;
        }
    }
}

void CalculatorDialog::addToTape() {
    std::vector<PostedLine> lines;
    for (int i = 0; i < fieldCount(); ++i) {
        if (held(i) && !isSolved(i)) {
            lines.push_back({.value = held(i)->cell, .label = tapeLabel(i)});
        }
    }
    for (const int field : solution_->solved) {
        if (field >= 0) {
            lines.push_back({.value = held(field)->cell, .label = tapeLabel(field)});
        }
    }
    for (std::size_t i = 0; i < solution_->answers.size(); ++i) {
        lines.push_back({.value = answers_.at(i), .label = std::string(solution_->answers[i].caption)});
    }
    postLines(calc, lines);
    // A text sets X to 0; what was posted last stays.
    const ValueCell x = calc.s.stack.Xreg;
    for (const std::string_view text : table.tapeTexts) {
        calc.commit.TapeLine(text);
    }
    calc.s.stack.Xreg = x;
}

void CalculatorDialog::saveDefaults() {
    std::vector<const UnitRange*> ranges;
    for (const UnitArray& array : table.units) {
        ranges.push_back(array.units);
    }
    if (services_.saveUnits) {
        services_.saveUnits(ranges);
    }
}

bool CalculatorDialog::passEmpty(int index) {
    if (quantity(index).afterSolution) {
        // Nothing typed: back to where the circuit resonates.
        return !solve();
    }
    if (!quantity(index).missing.empty()) {
        calc.message(BoxKind::Notice, "Missing Parameter!", quantity(index).missing);
    }
    return true;
}

void CalculatorDialog::use(int index) {
    if (table.use == UseOption::Keeps) {
        keepOnly(index);
    } else {
        giveAnew(index);
    }
}

// One value is given anew, the others stand.
void CalculatorDialog::giveAnew(int index) {
    const bool asksOn = quantity(index).afterSolution;
    for (int i = 0; i < fieldCount(); ++i) {
        if (i == index || isSolved(i) || quantity(i).afterSolution) {
            held(i).reset();
            txtVal(i).text.clear();
            txtVal(i).enabled = i == index;
        }
        optCalc(i).checked = i == index;
    }
    if (asksOn) {
        keepOption(index);
    }
    hideAnswers();
    solution_ = nullptr;
    showEntering();
    setFocus(txtVal(index));
}

void CalculatorDialog::beginTyping(int index) {
    if (!quantity(index).preset.empty() && txtVal(index).text == quantity(index).preset) {
        txtVal(index).text.clear();
        txtVal(index).caret = 0;
    }
}

void CalculatorDialog::enterFocus(int index) {
    if (solution_ != nullptr && optCalc(index).visible) {
        giveAnew(index);
    }
}

void CalculatorDialog::hideAnswers() {
    for (Control* label : lblAns_) {
        label->visible = false;
    }
    for (Control* answer : txtAns_) {
        answer->visible = false;
    }
}

void CalculatorDialog::keepOnly(int index) {
    for (int i = 0; i < fieldCount(); ++i) {
        if (i != index) {
            held(i).reset();
            txtVal(i).text.clear();
            txtVal(i).enabled = !quantity(i).resultOnly;
        }
    }
    kept_ = index;
    solution_ = nullptr;
    showEntering();
    setFocus(txtVal((index + 1) % fieldCount()));
}

}  // namespace tallyforge
