// SPDX-License-Identifier: GPL-3.0-or-later
//
// The dialog of polynomials: coefficients up to the third degree, their roots or a value.
#pragma once

#include "calculators/polynomial.h"
#include "dialogs/calculator_form.h"

#include <string>
#include <vector>

namespace tallyforge {

class PolynomialDialog : public CalculatorForm {
public:
    explicit PolynomialDialog(Engine& calculator);

protected:
    bool commit(int index) override;
    bool passEmpty(int index) override;
    void addToTape() override;
    void clearAll() override;

private:
    [[nodiscard]] bool complete();
    void chooseDegree(int row);
    void chooseAction(int row);
    bool takeCoefficient(int index);
    void act();
    void solve();
    void showRoots(const Roots& roots);
    void askForX();
    void evaluate(double x);
    void show(int field, std::string_view label, double value, bool plainZero = false);
    void hideResults();
    [[nodiscard]] std::vector<double> coefficients();

    struct Result {
        int field;
        double value;
    };
    int degree_ = 2;
    bool evaluates_ = false;
    std::vector<Result> results_;
    Control* lblEq1_ = nullptr;
    Control* lblEq_ = nullptr;
    Control* heading_ = nullptr;
};

}  // namespace tallyforge
