// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/ladder_dialog.h"

#include "calculators/pictures.h"
#include "dialogs/dialog_hand_over.h"
#include "dialogs/tape_posting.h"
#include "dialogs/unit_choice.h"
#include "engine/engine.h"
#include "numbers/circle.h"
#include "numbers/number_format.h"

#include <array>
#include <utility>

namespace tallyforge {

namespace {

struct LadderField {
    std::string_view symbol;
    std::string_view name;
    std::string_view prefix;  ///< in the list and on the tape
    LadderElement element;
    const UnitRange* units;
};
constexpr std::array<LadderField, 7> kFields{{
    {"Freq", "Frequency", "Fr", LadderElement::Frequency, &kLcF},
    {"Rp", "Parallel resistor", "Rp", LadderElement::Rp, &kLcX},
    {"rs", "Series resistor", "rs", LadderElement::rs, &kLcX},
    {"Lp", "Parallel inductor", "Lp", LadderElement::Lp, &kLcL},
    {"Ls", "Series inductor", "Ls", LadderElement::Ls, &kLcL},
    {"Cp", "Parallel capacitor", "Cp", LadderElement::Cp, &kLcC},
    {"Cs", "Series capacitor", "Cs", LadderElement::Cs, &kLcC},
}};
constexpr int kSizeField = 7;
constexpr int kAngleField = 8;

constexpr std::array<UnitArray, 4> kUnits{{{"OptX", "Resistance", &kLcX},
                                           {"OptCap", "Capacitance", &kLcC},
                                           {"OptL", "Inductance", &kLcL},
                                           {"OptFreq", "Frequency", &kLcF}}};

constexpr CalculatorLook kLook{.form = "frmZn",
                               .title = "Calculate the Impedance of a Ladder Network",
                               .name = "Ladder Network",
                               .procedure = "CalcLNW",
                               .helpTopic = 1116,
                               .hasUse = false,
                               .hasPicture = true};

double inMode(double radians, AngleMode mode) {
    const double degrees = radians * 180.0 / kPi;
    return mode == AngleMode::Radians ? radians : mode == AngleMode::Degrees ? degrees : degrees * 40.0 / 36.0;
}

}  // namespace

LadderDialog::LadderDialog(Engine& calculator, DialogHandOver& handOver, CalculatorServices services)
    : CalculatorForm(calculator, kLook),
      services_(std::move(services)),
      asked_(handOver.DialogCalcId),
      brought_(handOver.DialogValue) {
    handOver.ClearHandOver();
    for (const LadderField& field : kFields) {
        addField(field.symbol, field.name, {});
    }
    addField("|Zin|", "Size of the impedance at the input", {});
    addField("Angle", "Angle of the impedance at the input", {});
    constexpr int kListLines = 5;
    Control& list = addControl(ControlKind::List, "lstComponets", {}, kNoIndex, kListLines);
    list.font.face = Face::Terminal;
    list.rows = &rows_;
    list.spoken = "Elements of the network";
    for (const UnitArray& array : kUnits) {
        std::vector<std::string_view> captions;
        for (const UnitRow& row : array.units->rows) {
            captions.push_back(row.caption);
        }
        addOptions(array.options, array.heading, captions, chosenRow(*array.units, calc.units).value_or(kNoIndex),
                   [this, &array](int row) {
                       chooseRow(*array.units, row, calc.units);
                       clearAll();
                   });
    }
    finish();
    clearAll();
    activate = [this] { takeX(); };
}

void LadderDialog::clearAll() {
    ladder_ = {};
    rows_.clear();
    drawNetwork();
    committed_ = kNoIndex;
    reset();
    txtVal(kSizeField).enabled = false;
    txtVal(kAngleField).enabled = false;
    labelFields();
}

void LadderDialog::drawNetwork() {
    std::vector<std::string> elements;
    for (const Step& step : rows_.steps) {
        if (step.measured) {
            elements.push_back(step.prefix);
        }
    }
    showPicture(ladderPicture(elements));
}

void LadderDialog::labelFields() {
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        const std::string_view unit = chosenUnit(*kFields.at(i).units, calc.units).label;
        lblUnits(static_cast<int>(i)).text = unit;
        txtVal(static_cast<int>(i)).spoken = std::string(kFields.at(i).name) + ", " + std::string(unit);
    }
    lblUnits(kSizeField).text = "Ohms";
    lblUnits(kAngleField).text = AngleLabel(calc.s.format.Angle, true);
}

void LadderDialog::takeX() {
    if (asked_ != kShift || calc.s.stack.depth() == 0) {
        return;
    }
    txtVal(0).text = calc.text(brought_);
    const auto number = brought_.tryNumber(calc.s.format.DecimalChar);
    if (!number) {
        report(Failure{FailureNumber::TypeMismatch});
    } else if (*number == 0.0) {
        txtVal(0).text.clear();
    } else if (add(0, brought_, *number)) {
        nextField(0);
    }
}

bool LadderDialog::commit(int index) {
    bool movesOn = false;
    goOn([this](const Failure& failure) { report(failure); },
         [&] { movesOn = add(index, txtVal(index).text, numberIn(txtVal(index))); });
    return movesOn;
}

/// Adds what stands in a field to the network. Returns whether the focus is to move on.
bool LadderDialog::add(int index, const ValueCell& value, double number) {
    if (number == 0.0) {
        clearAll();
        return false;
    }
    const LadderField& field = kFields.at(static_cast<std::size_t>(index));
    const bool frequency = field.element == LadderElement::Frequency;
    Step step{.value = value, .prefix = std::string(field.prefix)};
    Ladder next;
    try {
        next = CalcLNW(ladder_, field.element, number * unitScale(*field.units, calc.units));
        if (!frequency) {
            const std::complex<double> impedance = inputImpedance(next);
            step.measured = true;
            step.size = std::abs(impedance);
            step.angle = inMode(std::arg(impedance), calc.s.format.Angle);
        }
    } catch (const Refusal& refusal) {
        calc.message(BoxKind::Stop, refusal.title, refusal.text);
        return false;
    }
    ladder_ = next;
    committed_ = index;
    if (frequency) {
        rows_.clear();
    }
    step.listed =
        number < 0.0 ? std::string() : step.prefix + " " + formatScientific(number, 2, calc.s.format.DecimalChar);
    rows_.add(step);
    drawNetwork();
    txtVal(kSizeField).text = frequency ? "" : shown(step.size);
    txtVal(kAngleField).text = frequency ? "" : shown(step.angle);
    if (!frequency) {
        offerAdd();
    }
    return frequency;
}

void LadderDialog::beginTyping(int index) {
    if (committed_ == index) {
        leaveFocus(index);
    }
    takeEntry();
}

void LadderDialog::leaveFocus(int index) {
    if (committed_ == index) {
        txtVal(index).text.clear();
        txtVal(index).caret = 0;
        committed_ = kNoIndex;
    }
}

void LadderDialog::addToTape() {
    std::vector<PostedLine> lines;
    for (const Step& step : rows_.steps) {
        lines.push_back({.value = step.value, .label = step.prefix});
        if (step.measured) {
            lines.push_back({.value = step.angle, .label = std::string(AngleLabel(calc.s.format.Angle, true))});
            lines.push_back({.value = step.size, .label = "|Zin|"});
        }
    }
    postLines(calc, lines);
    offerExit();
}

void LadderDialog::saveDefaults() {
    constexpr std::array<const UnitRange*, 4> kRanges{&kLcX, &kLcC, &kLcL, &kLcF};
    if (services_.saveUnits) {
        services_.saveUnits(kRanges);
    }
}

}  // namespace tallyforge
