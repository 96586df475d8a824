// SPDX-License-Identifier: GPL-3.0-or-later
//
// The dialog of compound interest: as soon as three of amount, payments, interest and payment are
// known, the fourth is found.
#pragma once

#include "dialogs/calculator_form.h"

#include "numbers/value_cell.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tallyforge {

class DialogHandOver;

class LoanDialog : public CalculatorForm {
public:
    LoanDialog(Engine& calculator, DialogHandOver& handOver);

    enum Field { LoanAmount, Years, Ppy, Periods, Apr, PeriodRate, Payment, Total, kFields };

protected:
    bool commit(int index) override;
    bool passEmpty(int index) override;
    void use(int index) override;
    void addToTape() override;
    void clearAll() override;

private:
    enum Quantity { kAmount, kPeriods, kInterest, kPayment, kQuantities };

    bool take(int index, double number);
    void derive(int given);
    void set(int field, std::optional<double> value);
    void showField(int field);
    [[nodiscard]] bool knows(Quantity quantity) const;
    [[nodiscard]] int known() const;
    [[nodiscard]] static Quantity quantityOf(int field);
    void empty(Quantity quantity);
    bool solve(Quantity missing);
    void findMissing(Quantity missing);
    void takeX();
    [[nodiscard]] bool refuseNegative();
    void showResult();
    void require(Quantity wanted, int field);

    std::uint8_t asked_;  ///< modifiers with which the key was pressed
    ValueCell brought_;   ///< and X
    /// Amounts and counts as they are, interest in percent.
    std::array<std::optional<double>, kFields> value_;
    std::optional<Quantity> target_;  ///< solved last, and to be solved again
    Quantity last_ = kPayment;        ///< given last
    bool again_ = false;              ///< a value is given anew
};

}  // namespace tallyforge
