// SPDX-License-Identifier: GPL-3.0-or-later
//
// Loans repaid in equal payments at the end of each period: amount, number of payments, interest a
// period and payment determine each other. All are positive; the interest is a fraction, 0.01 for 1 %.
#pragma once

namespace tallyforge {

/// Payment that repays `amount` in `periods`. Raises 5 and 6.
[[nodiscard]] double loanPayment(double rate, double periods, double amount);
/// Amount that `periods` payments repay. Raises 6.
[[nodiscard]] double loanAmount(double rate, double periods, double payment);
/// Payments that it takes. Raises 5 where the payment does not exceed the interest, 11, 6.
[[nodiscard]] double loanPeriods(double rate, double payment, double amount);
/// Interest a period, above -1: one exists for all positive numbers. Negative where the payments add up
/// to less than the amount.
[[nodiscard]] double loanRate(double periods, double payment, double amount);

}  // namespace tallyforge
