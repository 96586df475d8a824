// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/loan.h"

#include "numbers/checked_math.h"

#include <cmath>

namespace tallyforge {

namespace {

/// What `periods` payments of 1 are worth at the start: (1 - (1 + r)^-n) / r, and n without interest.
/// Small rates lose nothing this way.
double worthOfPayments(double rate, double periods) {
    return rate == 0.0 ? periods : -std::expm1(-periods * std::log1p(rate)) / rate;
}

}  // namespace

double loanPayment(double rate, double periods, double amount) {
    return quotient(amount, worthOfPayments(rate, periods));
}

double loanAmount(double rate, double periods, double payment) {
    return checked(payment * worthOfPayments(rate, periods));
}

double loanPeriods(double rate, double payment, double amount) {
    if (rate == 0.0) {
        return quotient(amount, payment);
    }
    // ln(pmt / (pmt - pv r)) / ln(1 + r)
    const double interest = quotient(amount, payment) * rate;
    if (interest >= 1.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return checked(-std::log1p(-interest) / std::log1p(rate));
}

// The worth of the payments falls from infinity at -1 to 0, and lies below the amount at the rate at
// which a payment is just the interest, so that a bracket holds the root and bisection finds it.
double loanRate(double periods, double payment, double amount) {
    const double wanted = quotient(amount, payment);
    if (wanted == periods) {
        return 0.0;
    }
    double low = wanted < periods ? 0.0 : -1.0;
    double high = wanted < periods ? 1.0 / wanted : 0.0;
    for (double middle = (low + high) / 2.0; middle > low && middle < high; middle = low + (high - low) / 2.0) {
        (worthOfPayments(middle, periods) > wanted ? low : high) = middle;
    }
    return high;
}

}  // namespace tallyforge
