// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/hours.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <cmath>

namespace tallyforge {

namespace {

constexpr double kMinutes = 60.0;
constexpr double kSeconds = 3600.0;
/// Digits shown of an h.mmss number: minutes, seconds and their tenths.
constexpr int kHmsDigits = 5;

/// `value` at `places` decimals, as its digits say: 1.45 less its whole part is 0.45 and not a last
/// bit less, which would cost a minute.
double toPlaces(double value, int places) {
    return readNumber(fixedText(value, places), '.');
}

/// Whole hours and what is left, without the sign.
struct Hours {
    explicit Hours(double value) : whole(std::trunc(std::abs(value))) {
        constexpr int kMostPlaces = 14;
        const int digits = whole < 1.0 ? 1 : static_cast<int>(std::floor(std::log10(whole))) + 1;
        places = std::max(kMostPlaces + 1 - digits, 0);
        fraction = toPlaces(std::abs(value) - whole, places);
    }
    double whole;
    double fraction = 0.0;
    int places = 0;  ///< decimal places that the number has beside its whole part
};

int fewer(int places, int by) {
    return std::max(places - by, 0);
}

double decimalHours(const Hours& hours) {
    const double minutesAndRest = toPlaces(hours.fraction * 100.0, fewer(hours.places, 2));
    const double minutes = std::trunc(minutesAndRest);
    const double seconds = toPlaces((minutesAndRest - minutes) * 100.0, fewer(hours.places, 4));
    return hours.whole + minutes / kMinutes + seconds / kSeconds;
}

// Minutes and seconds come from the rounded sum of seconds, so neither can reach 60.
double hoursMinutesSeconds(const Hours& hours) {
    const int places = fewer(hours.places, 4);
    double seconds = toPlaces(hours.fraction * kSeconds, places);
    double whole = hours.whole;
    if (seconds >= kSeconds) {
        whole += 1.0;
        seconds -= kSeconds;
    }
    const double minutes = std::trunc(seconds / kMinutes);
    seconds = toPlaces(seconds - minutes * kMinutes, places);
    return whole + toPlaces(minutes / 100.0 + seconds / 10000.0, hours.places);
}

void deliverHms(Engine& calc, int operands, double decimal, const char* label) {
    const double value = MathFunctions::HmsConvert(decimal, false);
    calc.display.SaveDisplay(kHmsDigits);
    calc.s.delivery.writtenAs = WrittenAs::MinutesAndSeconds;
    replaceOperands(calc, operands, {value, label});
}

}  // namespace

double MathFunctions::HmsConvert(double value, bool toDecimal) {
    const Hours hours{value};
    const double converted = toDecimal ? decimalHours(hours) : hoursMinutesSeconds(hours);
    return value < 0.0 ? -converted : converted;
}

void toDecimalHours(Engine& calc) {
    replaceX(calc, {MathFunctions::HmsConvert(calc.xNumber(), true), "h.ddd"});
}

void toHoursMinutes(Engine& calc) {
    deliverHms(calc, 1, calc.xNumber(), "h:mm ss.d");
}

void addHoursMinutes(Engine& calc) {
    const double x = MathFunctions::HmsConvert(calc.xNumber(), true);
    const double y = MathFunctions::HmsConvert(operandBelow(calc, 1), true);
    deliverHms(calc, 2, checked(y + x), "h:mm ss.d+");
}

}  // namespace tallyforge
