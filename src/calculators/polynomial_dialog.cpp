// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/polynomial_dialog.h"

#include "calculators/pictures.h"
#include "dialogs/tape_posting.h"
#include "engine/engine.h"

#include <array>
#include <complex>
#include <span>

namespace tallyforge {

namespace {

constexpr int kMostDegree = 3;
constexpr int kFirstResult = 4;
constexpr int kValueField = 5;
constexpr int kFields = 9;

constexpr std::array<std::string_view, 3> kForms{"a1x + a0 = 0", "a2x² + a1x + a0 = 0"_t, "a3x³+a2x²+a1x+a0=0"_t};

constexpr CalculatorLook kLook{.form = "frmpoly",
                               .title = "Polynomial Calculator",
                               .name = "Polynomial",
                               .procedure = "SolvePoly",
                               .helpTopic = 1110,
                               .hasUnits = false,
                               .hasUse = false,
                               .hasPicture = true};

}  // namespace

PolynomialDialog::PolynomialDialog(Engine& calculator) : CalculatorForm(calculator, kLook) {
    for (int i = 0; i <= kMostDegree; ++i) {
        const std::string symbol = "a" + std::to_string(i);
        addField(symbol, "Coefficient " + symbol, {.signedValue = true});
    }
    for (int i = kFirstResult; i < kFields; ++i) {
        addField({}, i == kFirstResult ? "Root, or x" : "Root", {.signedValue = true});
    }
    lblEq1_ = &addControl(ControlKind::Label, "lblEq1", {});
    lblEq_ = &addControl(ControlKind::Label, "lblEq", {});
    heading_ = &addControl(ControlKind::Label, "lblRoots", {});
    addOptions("OptX", "Degree (n)", {"1", "2", "3"}, degree_ - 1, [this](int row) { chooseDegree(row); });
    addOptions("optSolve", "Action", {"Evaluate", "Solve"}, 1, [this](int row) { chooseAction(row); });
    finish();
    find("optSolve", 0)->tip = " Evaluate Polynomial ";
    clearAll();
}

void PolynomialDialog::clearAll() {
    reset();
    hideResults();
    lblEq_->text.clear();
    lblEq1_->text = kForms.at(static_cast<std::size_t>(degree_ - 1));
    for (int i = 0; i <= kMostDegree; ++i) {
        txtVal(i).visible = i <= degree_;
        lblUnits(i).text.clear();
    }
}

void PolynomialDialog::hideResults() {
    results_.clear();
    heading_->text.clear();
    showPicture(rootsPicture({}));
    for (int i = kFirstResult; i < kFields; ++i) {
        txtVal(i).text.clear();
        txtVal(i).visible = false;
        txtVal(i).enabled = false;
        lblUnits(i).text.clear();
    }
}

std::vector<double> PolynomialDialog::coefficients() {
    std::vector<double> values;
    for (int i = 0; i <= degree_; ++i) {
        values.push_back(numberIn(txtVal(i)));
    }
    return values;
}

bool PolynomialDialog::complete() {
    for (int i = 0; i <= degree_; ++i) {
        if (txtVal(i).text.empty()) {
            return false;
        }
    }
    return true;
}

// A result belongs to its degree: the row goes back until it is cleared.
void PolynomialDialog::chooseDegree(int row) {
    if (!results_.empty()) {
        for (int i = 0; i < kMostDegree; ++i) {
            find("OptX", i)->checked = i == degree_ - 1;
        }
        return;
    }
    degree_ = row + 1;
    clearAll();
}

void PolynomialDialog::chooseAction(int row) {
    evaluates_ = row == 0;
    if (complete()) {
        act();
    } else {
        nextField(degree_);
    }
}

bool PolynomialDialog::commit(int index) {
    bool movesOn = false;
    goOn([this](const Failure& failure) { report(failure); },
         [&] {
             const double number = numberIn(txtVal(index));
             if (index < kFirstResult) {
                 movesOn = takeCoefficient(index);
             } else {
                 evaluate(number);
             }
         });
    return movesOn;
}

bool PolynomialDialog::takeCoefficient(int index) {
    if (complete() && index == degree_) {
        act();
        return false;
    }
    if (index < degree_) {
        setFocus(txtVal(index + 1));
        return false;
    }
    return true;
}

bool PolynomialDialog::passEmpty(int index) {
    if (index >= kFirstResult) {
        return false;
    }
    calc.message(BoxKind::Notice, "Missing Parameter!",
                 "a" + std::to_string(index) + " is required!\nEven if zero (0)!");
    return false;
}

void PolynomialDialog::act() {
    goOn([this](const Failure& failure) { report(failure); },
         [&] {
             lblEq_->text = equationText(coefficients(), calc.s.format.DecimalChar);
             if (evaluates_) {
                 askForX();
             } else {
                 solve();
             }
         });
}

void PolynomialDialog::solve() {
    std::vector<std::string> texts;
    for (int i = 0; i <= degree_; ++i) {
        const std::string& text = txtVal(i).text;
        texts.push_back(text.ends_with('e') ? text + "0" : text);
    }
    hideResults();
    const auto onFailure = [this](const Failure& failure) {
        report(failure);
        showFailed();
    };
    goOn(onFailure, [&] { showRoots(SolvePoly(texts, calc.s.format.DecimalChar)); });
}

void PolynomialDialog::show(int field, std::string_view label, double value, bool plainZero) {
    results_.push_back({field, value});
    txtVal(field).text = plainZero && value == 0.0 ? "0" : shown(value);
    txtVal(field).visible = true;
    lblUnits(field).text = label;
}

void PolynomialDialog::showRoots(const Roots& roots) {
    const std::array<std::complex<double>, 3> plane{
        {{roots.first, roots.imaginary}, {roots.second, -roots.imaginary}, {roots.third, 0.0}}};
    showPicture(rootsPicture(std::span(plane).first(static_cast<std::size_t>(degree_))));
    heading_->text = "Roots";
    if (degree_ == 1) {
        show(kFirstResult, "R1", roots.first);
    } else {
        show(kFirstResult, "j1", roots.imaginary, true);
        show(kFirstResult + 1, "R1", roots.first);
        show(kFirstResult + 2, "j2", roots.imaginary == 0.0 ? 0.0 : -roots.imaginary, true);
        show(kFirstResult + 3, "R2", roots.second);
        if (degree_ == kMostDegree) {
            show(kFirstResult + 4, "R3", roots.third);
        }
    }
    showSolved();
}

void PolynomialDialog::askForX() {
    hideResults();
    showEntering();
    heading_->text = "Evaluation";
    for (int i = 0; i <= degree_; ++i) {
        txtVal(i).enabled = false;
    }
    txtVal(kFirstResult).visible = true;
    txtVal(kFirstResult).enabled = true;
    lblUnits(kFirstResult).text = "x";
    lblUnits(kValueField).text = "f(x)";
    setFocus(txtVal(kFirstResult));
}

void PolynomialDialog::evaluate(double x) {
    const double value = CalcPoly(coefficients(), x);
    results_ = {{kFirstResult, x}};
    show(kValueField, "f(x)", value);
    showSolved();
}

void PolynomialDialog::addToTape() {
    std::vector<PostedLine> lines;
    for (int i = 0; i <= degree_; ++i) {
        lines.push_back({.value = numberIn(txtVal(i)), .label = "a" + std::to_string(i)});
    }
    for (const Result& result : results_) {
        lines.push_back({.value = result.value, .label = lblUnits(result.field).text});
    }
    postLines(calc, lines);
}

}  // namespace tallyforge
