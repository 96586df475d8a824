// SPDX-License-Identifier: GPL-3.0-or-later
//
// Proves fifteenDigits() against printing and reading on random doubles, ties included:
//
//   fifteen_digits_proof [PATTERNS [SEED]]      100 million and 1 where nothing is said
#include "numbers/number_format.h"
#include "support/fifteen_digit_samples.h"

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string>

int main(int count, char** arguments) {
    using namespace tallyforge;
    constexpr std::uint64_t kPatterns = 100'000'000;
    const std::uint64_t patterns = count > 1 ? std::stoull(arguments[1]) : kPatterns;
    FifteenDigitSamples samples{count > 2 ? std::stoull(arguments[2]) : 1};
    for (std::uint64_t i = 0; i < patterns; ++i) {
        const double value = samples.next();
        if (fifteenDigits(value) != printedAndRead(value)) {
            std::printf("%a: %a, by its text %a\n", value, fifteenDigits(value), printedAndRead(value));
            return 1;
        }
    }
    std::printf("%llu numbers, no difference\n", static_cast<unsigned long long>(patterns));
    return 0;
}
