// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/calculator_keys.h"

#include "calculators/ladder_dialog.h"
#include "calculators/loan_dialog.h"
#include "calculators/polynomial_dialog.h"
#include "dialogs/calculator_dialog.h"
#include "keypads/keys.h"

namespace tallyforge {

namespace {

CalculatorServices servicesOf(Keys& keys) {
    const auto typicalValue = [&keys] {
        const auto taken = keys.lists.temperatureCoefficient();
        return taken ? ValueCell{taken->value} : ValueCell{};
    };
    return {.saveUnits = keys.saveUnits, .typicalValue = typicalValue};
}

/// Hands X over, has `open` show the dialog, and takes X back.
template <typename Open>
void handOver(Keys& keys, Open open) {
    keys.dialog.EnterDialog();
    open();
    keys.dialog.LeaveDialog();
}

}  // namespace

void openCalculator(Keys& keys, const CalculatorTable& table) {
    handOver(keys, [&] {
        CalculatorDialog dialog(keys.calc, keys.dialog, servicesOf(keys), table);
        keys.calc.platform.showDialog(dialog);
    });
}

void openLadder(Keys& keys) {
    handOver(keys, [&] {
        LadderDialog dialog(keys.calc, keys.dialog, servicesOf(keys));
        keys.calc.platform.showDialog(dialog);
    });
}

void openPolynomial(Keys& keys) {
    handOver(keys, [&] {
        PolynomialDialog dialog(keys.calc);
        keys.calc.platform.showDialog(dialog);
    });
}

void openLoan(Keys& keys) {
    handOver(keys, [&] {
        LoanDialog dialog(keys.calc, keys.dialog);
        keys.calc.platform.showDialog(dialog);
    });
}

}  // namespace tallyforge
