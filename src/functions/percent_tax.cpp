// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/percent_tax.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"
#include "records/settings_file.h"

#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr int kPercentDigits = 3;
constexpr int kMoneyDigits = 2;
constexpr std::string_view kRateLabel = "Rate(%)";

// The rate is a single; its decimal digits are what the user entered.
double rate(const Engine& calc) {
    constexpr int kDigitsOfSingle = 5;
    return roundHalfEven(static_cast<double>(calc.s.functions.TaxRate), kDigitsOfSingle);
}

}  // namespace

void percentOf(Engine& calc) {
    const double part = checked(operandBelow(calc, 1) * calc.xNumber()) / 100.0;
    calc.display.SaveDisplay(kPercentDigits);
    replaceX(calc, {part, "x% of y"});
}

void percentDifference(Engine& calc) {
    const double base = operandBelow(calc, 1);
    const double difference = quotient(checked((calc.xNumber() - base) * 100.0), base);
    calc.display.SaveDisplay(kPercentDigits);
    replaceOperands(calc, 2, {difference, "d%"});
}

void plusAndMinusPercent(Engine& calc) {
    const double base = operandBelow(calc, 1);
    const double share = checked(base * calc.xNumber()) / 100.0;
    replaceWithPair(calc, 2, {checked(base + share), "+%"}, {checked(base - share), "-%"});
}

void taxAndTotal(Engine& calc) {
    const double subtotal = calc.xNumber();
    const double tax = roundHalfEven(checked(subtotal * rate(calc)) / 100.0, kMoneyDigits);
    const double total = checked(tax + subtotal);
    calc.display.SaveDisplay(kMoneyDigits);
    // The tax stands on the tape only; the total takes the place of the subtotal.
    pushAtOnce(calc, {tax, "tax"}, true);
    replaceOperands(calc, 2, {total, "Total"});
    calc.s.stack.LastX = tax;
}

void changeTaxRate(Engine& calc) {
    constexpr double kTooMuch = 100.0;
    const double wanted = roundHalfEven(calc.xNumber(), kMoneyDigits);
    if (calc.xNumber() >= kTooMuch) {
        calc.message(BoxKind::Stop, "Error!", "Tax Rate must be less than 100!");
        calc.s.delivery.FnLabel = "Error!";
        return;
    }
    const std::string text = plainText(wanted, '.');
    if (text.size() > rowOf(Setting::TaxRate).width) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    SettingsFile settings;
    settings.setPath(calc.AppDataDir / SettingsFile::kName);
    settings.change([&](SettingsRecords& records) { records.setText(Setting::TaxRate, text); });
    calc.s.functions.TaxRate = static_cast<float>(wanted);
    calc.s.delivery.FnLabel = kRateLabel;
}

void showTaxRate(Engine& calc) {
    replaceX(calc, {rate(calc), kRateLabel});
}

}  // namespace tallyforge
