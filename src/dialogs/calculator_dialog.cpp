// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/calculator_dialog.h"

#include "dialogs/dialog_hand_over.h"
#include "dialogs/unit_choice.h"
#include "engine/engine.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

CalculatorLook lookOf(const CalculatorTable& table) {
    return {.form = table.form,
            .title = table.title,
            .name = table.name,
            .procedure = table.procedure,
            .helpTopic = table.helpTopic,
            .useHeading = table.useHeading,
            .hasUnits = !table.units.empty(),
            .hasPicture = table.picture != nullptr,
            .clearCaption = table.clearCaption,
            .exitTip = table.exitTip};
}

/// What need not be given: it has a value from the start.
std::uint16_t presetBits(const CalculatorTable& table) {
    std::uint16_t bits = 0;
    for (const Quantity& quantity : table.fields) {
        if (!quantity.preset.empty()) {
            bits |= quantity.bit;
        }
    }
    return bits;
}

}  // namespace

const Solution* solveFor(const CalculatorTable& table, std::uint16_t given, Values& values) {
    const auto wanted = static_cast<std::uint16_t>(given & ~presetBits(table));
    const auto found = std::find_if(table.solutions.begin(), table.solutions.end(),
                                    [wanted](const Solution& solution) { return solution.given == wanted; });
    if (found == table.solutions.end()) {
        return nullptr;
    }
    found->solve(values);
    return &*found;
}

CalculatorDialog::CalculatorDialog(Engine& calculator, DialogHandOver& handOver, CalculatorServices services,
                                   const CalculatorTable& calculatorTable)
    : CalculatorForm(calculator, lookOf(calculatorTable)),
      handOver_(handOver),
      services_(std::move(services)),
      table(calculatorTable),
      asked_(handOver.DialogCalcId),
      brought_(handOver.DialogValue) {
    addFields();
    addUnits();
    addAnswers();
    addCheckBox();
    finish();
    clearAll();
    activate = [this] { takeX(); };
}

void CalculatorDialog::addFields() {
    for (const Quantity& quantity : table.fields) {
        addField(quantity.symbol, quantity.name,
                 {.signedValue = quantity.signedValue, .plainDecimals = quantity.plainDecimals},
                 quantity.tapeGlyphs ? Face::Terminal : Face::Arial);
        if (quantity.angle) {
            lblUnits(fieldCount() - 1).name = "lblAngle";
            lblUnits(fieldCount() - 1).index = kNoIndex;
        }
    }
}

void CalculatorDialog::addUnits() {
    for (const UnitArray& array : table.units) {
        std::vector<std::string_view> captions;
        for (const UnitRow& row : array.units->rows) {
            captions.push_back(row.caption);
        }
        addOptions(array.options, array.heading, captions, chosenRow(*array.units, calc.units).value_or(kNoIndex),
                   [this, &array](int row) { chooseUnit(array, row); });
    }
}

void CalculatorDialog::addAnswers() {
    std::size_t most = 0;
    for (const Solution& solution : table.solutions) {
        most = std::max(most, solution.answers.size());
    }
    for (std::size_t i = 0; i < most; ++i) {
        const int index = static_cast<int>(i);
        lblAns_.push_back(&addControl(ControlKind::Label, "lblAns", {}, index));
        txtAns_.push_back(&addBeside(Column::Field, ControlKind::Label, "txtAns", index));
        txtAns_.back()->font.face = Face::Terminal;
        txtAns_.back()->rightAligned = true;
    }
    if (most > 0) {
        // The unit of the answer that is an angle.
        lblAns_.push_back(&addBeside(Column::Unit, ControlKind::Label, "lblAns", static_cast<int>(most)));
    }
    if (!table.hint.empty()) {
        addControl(ControlKind::Label, "lblInput", table.hint);
    }
}

void CalculatorDialog::addCheckBox() {
    if (!table.checkBox.empty()) {
        check_ = &addControl(ControlKind::Check, "chkCu", table.checkBox);
        check_->tip = table.checkTip;
        check_->click = [this] {
            if (solution_ != nullptr) {
                static_cast<void>(solve());
            }
        };
    }
    if (table.typicalValues) {
        typical_ = &addControl(ControlKind::Key, "cmdValues", "&Typical Values");
        typical_->tip = " Temperature Coeffients ";
        typical_->click = [this] { showTypicalValue(); };
    }
}

void CalculatorDialog::showTypicalValue() {
    const ValueCell value = services_.typicalValue();
    if (value.isEmpty()) {
        return;
    }
    const auto number = value.tryNumber(calc.s.format.DecimalChar);
    if (number && hold(0, value, *number)) {
        nextField(0);
    }
}

void CalculatorDialog::takeX() {
    const auto field = std::find_if(table.fields.begin(), table.fields.end(), [this](const Quantity& quantity) {
        return quantity.modifiers != 0 && quantity.modifiers == asked_;
    });
    const ValueCell& value = brought_;
    const bool nothingThere = value.isEmpty() || value.isEmptyText() || calc.s.stack.depth() == 0;
    if (field == table.fields.end() || nothingThere) {
        return;
    }
    const auto index = static_cast<int>(field - table.fields.begin());
    const auto number = value.tryNumber(calc.s.format.DecimalChar);
    if (!number) {
        txtVal(index).text = calc.text(value);
        report(Failure{FailureNumber::TypeMismatch});
    } else if (*number != 0.0 || field->zeroCounts) {
        if (hold(index, value, *number)) {
            nextField(index);
        }
    }
}

void CalculatorDialog::chooseUnit(const UnitArray& array, int row) {
    chooseRow(*array.units, row, calc.units);
    clearAll();
}

void CalculatorDialog::labelFields() {
    for (int i = 0; i < fieldCount(); ++i) {
        lblUnits(i).text = unitLabel(i);
        const bool spoken = !lblUnits(i).text.empty() && !quantity(i).tapeGlyphs;
        txtVal(i).spoken = std::string(quantity(i).name) + (spoken ? ", " + lblUnits(i).text : "");
    }
}

void CalculatorDialog::clearAll() {
    reset();
    forget();
    labelFields();
    for (int i = 0; i < fieldCount(); ++i) {
        const Quantity& field = quantity(i);
        txtVal(i).text = field.preset;
        txtVal(i).visible = !field.afterSolution;
        txtVal(i).enabled = !field.resultOnly;
        lblUnits(i).visible = !field.afterSolution;
    }
}

void CalculatorDialog::forget() {
    for (auto& value : held_) {
        value.reset();
    }
    EntryCount = 0;
    kept_ = kNoIndex;
    solution_ = nullptr;
    handOver_.ClearHandOver();
    if (table.picture != nullptr) {
        showPicture(table.picture({}, false));
    }
    for (int i = 0; i < fieldCount(); ++i) {
        txtVal(i).tip = " " + std::string(quantity(i).name) + " ";
    }
    hideAnswers();
    if (typical_ != nullptr) {
        typical_->enabled = services_.typicalValue != nullptr;
    }
}

bool CalculatorDialog::commit(int index) {
    std::optional<double> number;
    goOn([this](const Failure& failure) { report(failure); }, [&] { number = numberIn(txtVal(index)); });
    if (!number) {
        return false;
    }
    return hold(index, txtVal(index).text, *number);
}

/// Takes a value into its field, and solves where that was the last one needed. Returns whether the
/// focus is to move on.
bool CalculatorDialog::hold(int index, const ValueCell& cell, double number) {
    if (number == 0.0 && !quantity(index).zeroCounts) {
        clearAll();
        return false;
    }
    held(index) = Held{.cell = cell, .number = number};
    txtVal(index).text = calc.text(cell);
    txtVal(index).enabled = false;
    offerClear();
    if (index == 0 && typical_ != nullptr) {
        typical_->enabled = false;
    }
    ++EntryCount;
    if (!due()) {
        return true;
    }
    keepTwo(index);
    return !solve();
}

bool CalculatorDialog::due() const {
    if (table.countsFromSolved) {
        return EntryCount > 1;
    }
    const auto standing =
        std::count_if(held_.begin(), held_.end(), [](const auto& value) { return value.has_value(); });
    return static_cast<std::size_t>(standing) >= table.given;
}

// After "Use" a value may stand that did not solve; the solution is for the kept field and the last.
void CalculatorDialog::keepTwo(int last) {
    if (!table.countsFromSolved || kept_ == kNoIndex) {
        return;
    }
    for (int i = 0; i < fieldCount(); ++i) {
        if (i != kept_ && i != last) {
            held(i).reset();
        }
    }
}

std::uint16_t CalculatorDialog::mask() const {
    std::uint16_t bits = 0;
    for (int i = 0; i < fieldCount(); ++i) {
        if (held(i) && !isSolved(i)) {
            bits |= quantity(i).bit;
        }
    }
    return bits;
}

bool CalculatorDialog::isSolved(int index) const {
    const auto holds = [index](const Solution& solution) {
        return std::find(solution.solved.begin(), solution.solved.end(), index) != solution.solved.end();
    };
    return solution_ != nullptr && holds(*solution_);
}

double CalculatorDialog::scale(int index) const {
    if (quantity(index).angle) {
        return 1.0 / inAngleMode(1.0);
    }
    const UnitRange* units = quantity(index).units;
    return units == nullptr ? 1.0 : unitScale(*units, calc.units);
}

double CalculatorDialog::parameter() const {
    if (table.parameter != nullptr) {
        return unitScale(*table.parameter, calc.units);
    }
    return check_ != nullptr && check_->checked ? 1.0 : 0.0;
}

/// Returns whether there was something to solve, be it in vain.
bool CalculatorDialog::solve() {
    Values values{};
    for (int i = 0; i < fieldCount(); ++i) {
        const double number = held(i) ? held(i)->number : quantity(i).presetValue;
        values.at(static_cast<std::size_t>(i)) = number * scale(i);
    }
    values.at(kParameter) = parameter();
    const std::uint16_t given = mask();
    const auto onFailure = [this](const Failure& failure) {
        solution_ = nullptr;
        report(failure);
        showFailed();
    };
    const Solution* found = nullptr;
    bool ran = false;
    try {
        ran = goOn(onFailure, [&] {
            found = solveFor(table, given, values);
            if (found != nullptr) {
                showSolution(*found, values);
            }
        });
    } catch (const Refusal& refusal) {
        solution_ = nullptr;
        calc.message(BoxKind::Stop, refusal.title, refusal.text);
        showFailed();
    }
    return found != nullptr || !ran;
}

}  // namespace tallyforge
